#include "platform/linux/process_files.h"

#include "platform/linux/text.h"
#include "platform/readable_name.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <fcntl.h>
#include <unistd.h>

namespace orvelle::linux_platform {
namespace {

constexpr std::uint64_t kernelThreadFlag = 0x00200000; // PF_KTHREAD

constexpr std::string_view unshowableName = "\xEF\xBF\xBD"; // U+FFFD

/// Numbers of the fields after the short name, as proc.rst and proc(5) count them.
enum Field : std::size_t {
    firstField = 4,
    flagsField = 9,
    userTicksField = 14,
    systemTicksField = 15,
    threadCountField = 20,
    startTimeField = 22,
    residentPagesField = 24,
};

/// Fields 4 to 24 as text; nothing when one is missing, or when the text ends right after the last: its
/// digits could be cut.
std::optional<std::array<std::string_view, residentPagesField + 1>> takeFields(std::string_view rest) {
    std::array<std::string_view, residentPagesField + 1> fields;
    for (std::size_t field = firstField; field <= residentPagesField; ++field) {
        fields[field] = takeWord(rest);
        if (fields[field].empty() || rest.empty())
            return std::nullopt;
    }
    return fields;
}

/// `PID/NAME` without an allocation: it is needed for every process that ran.
class FileOfProcess {
public:
    FileOfProcess(std::int32_t pid, std::string_view name) {
        char* end = std::to_chars(m_path.data(), m_path.data() + m_path.size(), pid).ptr;
        *end++ = '/';
        *std::copy(name.begin(), name.end(), end) = '\0';
    }
    [[nodiscard]] const char* path() const { return m_path.data(); }

private:
    std::array<char, 24> m_path; // eleven characters of the longest pid, the slash, the name and its end
};

/// The pid that a directory is named after; nothing for the other entries of `/proc`.
std::optional<std::int32_t> pidOf(std::string_view entry) {
    std::int32_t pid = 0;
    const char* end = entry.data() + entry.size();
    const auto [stop, error] = std::from_chars(entry.data(), end, pid);
    if (error != std::errc{} || stop != end || pid <= 0 || entry.front() == '0')
        return std::nullopt;
    return pid;
}

} // namespace

std::optional<ProcessStat> parseProcessStat(std::string_view text) {
    const std::size_t open = text.find('(');
    const std::size_t close = text.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open)
        return std::nullopt;
    std::string_view rest = text.substr(close + 1);
    const std::string_view state = takeWord(rest);
    const auto fields = takeFields(rest);
    if (state.size() != 1 || !fields)
        return std::nullopt;

    const auto number = [&fields](Field field) { return parseNumber<std::uint64_t>((*fields)[field]); };
    const auto flags = number(flagsField);
    const auto userTicks = number(userTicksField);
    const auto systemTicks = number(systemTicksField);
    const auto threadCount = number(threadCountField);
    const auto startTime = number(startTimeField);
    const auto residentPages = number(residentPagesField);
    if (!flags || !userTicks || !systemTicks || !threadCount || !startTime || !residentPages)
        return std::nullopt;
    return ProcessStat{.comm = text.substr(open + 1, close - open - 1),
                       .state = state.front(),
                       .flags = *flags,
                       .userTicks = *userTicks,
                       .systemTicks = *systemTicks,
                       .threadCount = *threadCount,
                       .startTime = *startTime,
                       .residentPages = *residentPages};
}

bool isRunning(const ProcessStat& stat) {
    const bool hasEnded = stat.state == 'Z' || stat.state == 'X' || stat.state == 'x';
    return stat.threadCount > (hasEnded ? 1 : 0);
}

bool isKernelThread(const ProcessStat& stat) {
    return (stat.flags & kernelThreadFlag) != 0;
}

std::string processName(std::string_view executablePath, std::string_view comm) {
    constexpr std::string_view removedMark = " (deleted)";
    if (executablePath.ends_with(removedMark))
        executablePath.remove_suffix(removedMark.size());
    // Without any slash npos + 1 is 0, and the whole text is the name.
    std::string name = readableName(executablePath.substr(executablePath.rfind('/') + 1));
    if (name.empty())
        name = readableName(comm);
    // A process without a name is not listed, and none may hide behind characters that show nothing.
    return name.empty() && !comm.empty() ? std::string(unshowableName) : name;
}

ProcessFiles::ProcessFiles(const std::filesystem::path& root)
    : m_path(root / "proc") {}

bool ProcessFiles::open() {
    if (!m_directory) {
        m_directory.reset(::opendir(m_path.c_str()));
        m_descriptor = m_directory ? ::dirfd(m_directory.get()) : -1;
    }
    return m_directory != nullptr;
}

const std::vector<std::int32_t>& ProcessFiles::list() {
    m_listed.clear();
    ::rewinddir(m_directory.get());
    while (const dirent* entry = ::readdir(m_directory.get())) {
        if (const auto pid = pidOf(entry->d_name))
            m_listed.push_back(*pid);
    }
    // A list that doubled as it grew would keep up to half of its memory unused for good.
    if (m_listed.capacity() > m_listed.size() + m_listed.size() / 16 + 16)
        m_listed.shrink_to_fit();
    // The kernel lists ascending pids, a copied tree in any order.
    if (!std::ranges::is_sorted(m_listed))
        std::ranges::sort(m_listed);
    return m_listed;
}

std::optional<std::string_view> ProcessFiles::readStat(std::int32_t pid) {
    const FileOfProcess file(pid, "stat");
    const int descriptor = ::openat(m_descriptor, file.path(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        return std::nullopt;
    // The kernel makes the whole line for one read.
    const ssize_t size = ::read(descriptor, m_buffer.data(), m_buffer.size());
    ::close(descriptor);
    if (size <= 0)
        return std::nullopt;
    return std::string_view(m_buffer.data(), static_cast<std::size_t>(size));
}

std::optional<std::string_view> ProcessFiles::readExecutablePath(std::int32_t pid) {
    const FileOfProcess file(pid, "exe");
    const ssize_t size = ::readlinkat(m_descriptor, file.path(), m_buffer.data(), m_buffer.size());
    if (size <= 0)
        return std::nullopt;
    return std::string_view(m_buffer.data(), static_cast<std::size_t>(size));
}

} // namespace orvelle::linux_platform
