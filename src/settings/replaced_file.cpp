#include "settings/replaced_file.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

namespace orvelle {
namespace {

constexpr mode_t ownerOnly = 0600;
constexpr mode_t permissionBits = 0777;

bool writeAll(int descriptor, const QByteArray& text) {
    QByteArrayView rest(text);
    while (!rest.isEmpty()) {
        const ssize_t count = ::write(descriptor, rest.data(), static_cast<std::size_t>(rest.size()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        rest = rest.sliced(count);
    }
    return true;
}

/// Nothing where no regular file has this name.
std::optional<struct stat> statusOf(const QByteArray& path) {
    struct stat status{};
    if (::lstat(path.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return status;
}

bool isSameFile(const struct stat& one, const struct stat& other) {
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

/// `folder/.name` and the suffix.
QByteArray nameBeside(const QString& path, const char* suffix) {
    const QFileInfo file(path);
    return QFile::encodeName(file.path() + QStringLiteral("/.") + file.fileName()) + suffix;
}

} // namespace

ReplacedFile::ReplacedFile(const QString& path, Flush flush)
    : m_path(QFile::encodeName(path))
    , m_folder(QFile::encodeName(QFileInfo(path).path()))
    , m_next(nameBeside(path, ".next"))
    , m_last(nameBeside(path, ".last"))
    , m_flush(std::move(flush)) {
    m_flusher.setMaxThreadCount(1);
}

ReplacedFile::~ReplacedFile() {
    m_flusher.waitForDone();
}

ReplacedFile::Flush ReplacedFile::systemFlush() {
    return [](int descriptor) { static_cast<void>(::fsync(descriptor)); };
}

bool ReplacedFile::isInterrupted() const {
    return statusOf(m_next) || statusOf(m_last);
}

void ReplacedFile::recover() {
    const std::unique_lock guard(m_mutex);
    ::unlink(m_next.constData());
    if (!statusOf(m_last))
        return;
    const std::optional<struct stat> present = statusOf(m_path);
    if (!present || present->st_size == 0)
        ::rename(m_last.constData(), m_path.constData());
    else
        flushSoon(FileDescriptor(::open(m_path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW)));
}

bool ReplacedFile::replace(const QByteArray& text) {
    FileDescriptor next = writeNext(text);
    if (!next.isOpen())
        return false;
    const std::unique_lock guard(m_mutex);
    if (!keepLast())
        m_flush(next.get()); // a file system without hard links lets the caller wait
    if (::rename(m_next.constData(), m_path.constData()) != 0) {
        ::unlink(m_next.constData());
        return false;
    }
    flushSoon(std::move(next));
    return true;
}

FileDescriptor ReplacedFile::writeNext(const QByteArray& text) const {
    ::unlink(m_next.constData()); // of a program that was killed
    FileDescriptor file(
        ::open(m_next.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, ownerOnly));
    const std::optional<struct stat> present = statusOf(m_path);
    const mode_t mode = present ? present->st_mode & permissionBits : ownerOnly;
    if (file.isOpen() && ::fchmod(file.get(), mode) == 0 && writeAll(file.get(), text))
        return file;
    if (file.isOpen())
        ::unlink(m_next.constData());
    return FileDescriptor();
}

bool ReplacedFile::keepLast() const {
    // Where there is one already, the present file is not on the disk yet.
    return ::link(m_path.constData(), m_last.constData()) == 0 || errno == EEXIST || errno == ENOENT;
}

void ReplacedFile::flushSoon(FileDescriptor file) {
    m_newest = std::move(file);
    m_flusher.start([this] { flushNewest(); });
}

void ReplacedFile::flushNewest() {
    std::unique_lock guard(m_mutex);
    const std::optional<FileDescriptor> file = std::exchange(m_newest, std::nullopt);
    guard.unlock();
    if (!file || !file->isOpen())
        return; // it was flushed together with an earlier one
    m_flush(file->get());
    m_flush(FileDescriptor(::open(m_folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)).get());

    guard.lock();
    struct stat flushed{};
    const std::optional<struct stat> present = statusOf(m_path);
    if (::fstat(file->get(), &flushed) == 0 && present && isSameFile(flushed, *present))
        ::unlink(m_last.constData());
}

} // namespace orvelle
