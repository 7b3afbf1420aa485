#include "platform/linux/process_table.h"

#include "platform/linux/process_clock.h"
#include "platform/linux/text.h"

#include <algorithm>
#include <sys/stat.h>
#include <utility>

namespace orvelle::linux_platform {
namespace {

/// How many pids may be asked one by one: a few, plus a share of the known processes. Beyond that a listing,
/// which takes a handful of system calls, is cheaper.
constexpr std::size_t alwaysAsked = 16;
constexpr std::size_t knownProcessesPerAsked = 32;

/// Whether both files belong to the same mount of a file system.
bool onSameDevice(const std::filesystem::path& left, const std::filesystem::path& right) {
    struct stat leftStatus = {};
    struct stat rightStatus = {};
    return ::stat(left.c_str(), &leftStatus) == 0 && ::stat(right.c_str(), &rightStatus) == 0 &&
           leftStatus.st_dev == rightStatus.st_dev;
}

} // namespace

NewProcessSearch NewProcessSearchPlan::next(std::optional<std::int32_t> newestPid, std::size_t knownCount) {
    const std::optional<std::int32_t> previous = std::exchange(m_newestPid, newestPid);
    constexpr NewProcessSearch wholeListing{.wholeListing = true};
    const bool isListingDue = m_sampleCount++ % samplesPerListing == 0;
    if (isListingDue || !newestPid || !previous || *newestPid < *previous)
        return wholeListing;
    const std::int32_t first = std::max(*previous - askedAgain, 0) + 1;
    const auto asked = static_cast<std::size_t>(*newestPid - first) + 1;
    if (asked > alwaysAsked + knownCount / knownProcessesPerAsked)
        return wholeListing;
    return {.first = first, .last = *newestPid};
}

NewestPid::NewestPid(const std::filesystem::path& root)
    : m_loadAverages(root / "proc/loadavg", KeptFile::Layout::single)
    , m_isKernelFile(onSameDevice(m_loadAverages.path(), root / "proc")) {}

std::optional<std::int32_t> NewestPid::read() {
    if (!m_isKernelFile)
        return std::nullopt;
    const std::optional<std::string_view> text = m_loadAverages.read();
    return text ? parseNewestPid(*text) : std::nullopt;
}

std::optional<std::int32_t> parseNewestPid(std::string_view text) {
    std::string_view line = takeLine(text);
    for (int field = 0; field < 4; ++field) // three averages, then running/all tasks
        takeWord(line);
    const std::optional<std::int32_t> pid = takeNumber<std::int32_t>(line);
    return pid && *pid > 0 && *pid <= largestPid ? pid : std::nullopt;
}

} // namespace orvelle::linux_platform
