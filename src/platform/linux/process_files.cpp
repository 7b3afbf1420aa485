#include "platform/linux/process_files.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <fcntl.h>
#include <unistd.h>

namespace orvelle::linux_platform {
namespace {

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
