#include "platform/linux/files.h"

#include "platform/linux/text.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace orvelle::linux_platform {
namespace {

constexpr std::size_t firstBufferSize = 8192;
constexpr std::size_t firstValueBufferSize = 64;

ssize_t preadWithoutInterruption(int descriptor, char* into, std::size_t size, std::size_t offset) {
    ssize_t count = 0;
    do {
        count = ::pread(descriptor, into, size, static_cast<off_t>(offset));
    } while (count < 0 && errno == EINTR);
    return count;
}

/// Whether the descriptor is one of the last that this process may have.
bool isAmongLast(int descriptor) {
    rlimit limit{};
    return descriptor >= 0 && ::getrlimit(RLIMIT_NOFILE, &limit) == 0 &&
           static_cast<rlim_t>(descriptor) + KeptFile::descriptorsLeftFree >= limit.rlim_cur;
}

/// No name or label that a driver gives is longer.
constexpr std::size_t maximumAttributeSize = 256;

} // namespace

std::vector<std::string> namesIn(const std::filesystem::path& directory) {
    std::vector<std::string> names;
    std::error_code error;
    // A range-based loop would throw when the directory vanishes between two entries.
    for (std::filesystem::directory_iterator entry(directory, error), end; !error && entry != end;
         entry.increment(error))
        names.push_back(entry->path().filename().string());
    return names;
}

bool existsUnfollowed(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::exists(std::filesystem::symlink_status(path, ignored));
}

bool isEntryName(std::string_view name) {
    return !name.empty() && name != "." && name != "..";
}

KeptFile::KeptFile(std::filesystem::path path, Layout layout)
    : m_path(std::move(path))
    , m_layout(layout) {}

KeptFile::~KeptFile() {
    close();
}

KeptFile::KeptFile(KeptFile&& other) noexcept
    : m_path(std::move(other.m_path))
    , m_layout(other.m_layout)
    , m_descriptor(std::exchange(other.m_descriptor, -1))
    , m_isKept(other.m_isKept)
    , m_buffer(std::move(other.m_buffer))
    , m_size(std::exchange(other.m_size, 0)) {}

KeptFile& KeptFile::operator=(KeptFile&& other) noexcept {
    if (this != &other) {
        close();
        m_path = std::move(other.m_path);
        m_layout = other.m_layout;
        m_descriptor = std::exchange(other.m_descriptor, -1);
        m_isKept = other.m_isKept;
        m_buffer = std::move(other.m_buffer);
        m_size = std::exchange(other.m_size, 0);
    }
    return *this;
}

void KeptFile::close() {
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    m_descriptor = -1;
}

std::optional<std::string_view> KeptFile::read() {
    if (m_descriptor < 0) {
        m_descriptor = ::open(m_path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
        m_isKept = !isAmongLast(m_descriptor);
    }
    if (m_descriptor < 0)
        return std::nullopt;
    const bool isRead = readAll();
    if (!isRead || !m_isKept)
        close();
    if (!isRead)
        return std::nullopt;
    return std::string_view(m_buffer.data(), m_size);
}

bool KeptFile::hasAnnouncedChange() {
    if (m_descriptor < 0)
        return true;
    pollfd request{.fd = m_descriptor, .events = POLLPRI, .revents = 0};
    return ::poll(&request, 1, 0) != 0 && (request.revents & (POLLPRI | POLLERR)) != 0;
}

bool KeptFile::readAll() {
    if (m_buffer.empty())
        m_buffer.resize(m_layout == Layout::value ? firstValueBufferSize : firstBufferSize);
    m_size = 0;
    while (true) {
        const std::size_t room = m_buffer.size() - m_size;
        const ssize_t count = preadWithoutInterruption(m_descriptor, m_buffer.data() + m_size, room, m_size);
        if (count < 0)
            return false;
        m_size += static_cast<std::size_t>(count);
        const bool leftRoom = static_cast<std::size_t>(count) < room;
        if (count == 0 || (leftRoom && m_layout != Layout::records))
            return true;
        if (leftRoom)
            continue;
        if (m_size >= maximumSize)
            return true;
        m_buffer.resize(std::min(m_buffer.size() * 2, maximumSize));
        // A text that is produced for one read would be made of two moments if only its rest were read.
        if (m_layout != Layout::records)
            m_size = 0;
    }
}

std::optional<std::string> readFile(const std::filesystem::path& path, std::size_t maximumSize) {
    KeptFile file(path, KeptFile::Layout::records);
    const std::optional<std::string_view> text = file.read();
    if (!text)
        return std::nullopt;
    return std::string(text->substr(0, maximumSize));
}

OpenFolder::OpenFolder(const std::filesystem::path& path)
    : m_descriptor(::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {}

OpenFolder::OpenFolder(const OpenFolder& parent, const std::string& name)
    : m_descriptor(::openat(parent.m_descriptor, name.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {}

OpenFolder::~OpenFolder() {
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

std::optional<std::string_view> OpenFolder::read(const char* name) {
    if (m_descriptor < 0)
        return std::nullopt;
    const int file = ::openat(m_descriptor, name, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0)
        return std::nullopt;
    const ssize_t size = preadWithoutInterruption(file, m_buffer.data(), m_buffer.size(), 0);
    ::close(file);
    if (size < 0)
        return std::nullopt;
    return std::string_view(m_buffer.data(), static_cast<std::size_t>(size));
}

bool OpenFolder::contains(const char* name) const {
    struct stat ignored = {};
    return m_descriptor >= 0 && ::fstatat(m_descriptor, name, &ignored, AT_SYMLINK_NOFOLLOW) == 0;
}

std::optional<std::int64_t> parseAttributeNumber(std::string_view text) {
    const std::string_view word = trimmed(text);
    const std::string_view digits = word.starts_with('-') ? word.substr(1) : word;
    if (!isDigits(digits))
        return std::nullopt;
    return parseNumber<std::int64_t>(word);
}

std::optional<std::int64_t> readNumber(KeptFile& file) {
    const std::optional<std::string_view> text = file.read();
    return text ? parseAttributeNumber(*text) : std::nullopt;
}

std::string readAttribute(const std::filesystem::path& path) {
    const std::optional<std::string> text = readFile(path, maximumAttributeSize);
    return text ? std::string(trimmed(*text)) : std::string();
}

} // namespace orvelle::linux_platform
