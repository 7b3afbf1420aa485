#include "platform/linux/process_search.h"

#include "platform/linux/text.h"

#include <algorithm>
#include <sys/stat.h>
#include <utility>

namespace orvelle::linux_platform {
namespace {

/// How many pids may be asked one by one: beyond so many per known process the listing is cheaper.
constexpr std::size_t askedPerKnownProcess = 4;
constexpr std::size_t alwaysAsked = 256;

/// Whether both files belong to the same mount of a file system.
bool onSameDevice(const std::filesystem::path& left, const std::filesystem::path& right) {
    struct stat leftStatus {};
    struct stat rightStatus {};
    return ::stat(left.c_str(), &leftStatus) == 0 && ::stat(right.c_str(), &rightStatus) == 0 &&
           leftStatus.st_dev == rightStatus.st_dev;
}

} // namespace

NewProcessSearch NewProcessSearchPlan::next(std::optional<std::int32_t> newestPid, std::size_t knownCount) {
    const std::optional<std::int32_t> previous = std::exchange(m_newestPid, newestPid);
    // A pid is handed out a moment before its process can be seen, so the pids of the sample before are asked
    // once more.
    const std::optional<std::int32_t> from = std::exchange(m_olderNewestPid, previous);
    constexpr NewProcessSearch wholeListing{.wholeListing = true};
    if (m_sampleCount++ % samplesPerListing == 0 || !newestPid || !previous || !from)
        return wholeListing;
    const bool hasWrapped = *newestPid < *previous || *previous < *from;
    if (hasWrapped)
        return wholeListing;
    const auto asked = static_cast<std::size_t>(*newestPid - *from);
    if (asked > std::max(alwaysAsked, knownCount * askedPerKnownProcess))
        return wholeListing;
    return asked == 0 ? NewProcessSearch{} : NewProcessSearch{.first = *from + 1, .last = *newestPid};
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
    return pid && *pid > 0 ? pid : std::nullopt;
}

} // namespace orvelle::linux_platform
