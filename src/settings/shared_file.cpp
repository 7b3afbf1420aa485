#include "settings/shared_file.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <utility>

namespace orvelle {
namespace {

constexpr mode_t ownerOnly = 0600;
constexpr mode_t ownersFolder = 0700;
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

/// Nothing unless a regular file has this name.
std::optional<struct stat> statusOf(const QByteArray& path) {
    struct stat status{};
    if (::lstat(path.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return status;
}

bool isSameFile(const struct stat& one, const struct stat& other) {
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

/// Opens or creates the lock's file. A pipe is not waited for, and a link not followed.
FileDescriptor openLock(const QByteArray& path) {
    FileDescriptor file(
        ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, ownerOnly));
    struct stat status{};
    const bool isRegular = file.isOpen() && ::fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode);
    return isRegular ? std::move(file) : FileDescriptor();
}

bool tryLock(const FileDescriptor& file) {
    return ::flock(file.get(), LOCK_EX | LOCK_NB) == 0 || errno == ENOLCK || errno == EOPNOTSUPP;
}

/// Whether the path still names this file: its previous holder removes it when unlocking.
bool isStillNamed(const FileDescriptor& file, const QByteArray& path) {
    struct stat opened{};
    const std::optional<struct stat> named = statusOf(path);
    return ::fstat(file.get(), &opened) == 0 && named && isSameFile(opened, *named);
}

/// `folder/.name` and the suffix.
QByteArray nameBeside(const QString& path, const char* suffix) {
    const QFileInfo file(path);
    return QFile::encodeName(file.path() + QStringLiteral("/.") + file.fileName()) + suffix;
}

} // namespace

bool makePrivateFolders(const QString& path) {
    const QFileInfo folder(path);
    if (folder.isDir())
        return true;
    const QString parent = folder.path();
    if (parent == path || !makePrivateFolders(parent))
        return false;
    return ::mkdir(QFile::encodeName(path).constData(), ownersFolder) == 0 || QFileInfo(path).isDir();
}

std::optional<FileLock> FileLock::take(const QString& path) {
    constexpr int maximumTries = 10; // the file may vanish between being opened and locked
    const QByteArray name = QFile::encodeName(path);
    for (int tries = 0; tries < maximumTries; ++tries) {
        FileDescriptor file = openLock(name);
        if (!file.isOpen() || !tryLock(file))
            return std::nullopt;
        if (isStillNamed(file, name))
            return FileLock(name, std::move(file));
    }
    return std::nullopt;
}

FileLock::FileLock(QByteArray path, FileDescriptor file)
    : m_path(std::move(path))
    , m_file(std::move(file)) {}

FileLock::~FileLock() {
    if (m_file.isOpen())
        ::unlink(m_path.constData()); // while it is locked, so that no other program has locked it
}

AtomicFile::AtomicFile(const QString& path, Flush flush)
    : m_path(QFile::encodeName(path))
    , m_folder(QFile::encodeName(QFileInfo(path).path()))
    , m_next(nameBeside(path, ".next"))
    , m_last(nameBeside(path, ".last"))
    , m_flush(std::move(flush)) {
    m_flusher.setMaxThreadCount(1);
}

AtomicFile::~AtomicFile() {
    m_flusher.waitForDone();
}

AtomicFile::Flush AtomicFile::systemFlush() {
    return [](int descriptor) { static_cast<void>(::fsync(descriptor)); };
}

bool AtomicFile::isInterrupted() const {
    return statusOf(m_next) || statusOf(m_last);
}

void AtomicFile::recover() {
    const std::unique_lock guard(m_mutex);
    ::unlink(m_next.constData());
    if (!statusOf(m_last))
        return;
    const std::optional<struct stat> current = statusOf(m_path);
    if (!current || current->st_size == 0)
        ::rename(m_last.constData(), m_path.constData());
    else
        flushInBackground(FileDescriptor(::open(m_path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW)));
}

bool AtomicFile::replace(const QByteArray& text) {
    FileDescriptor next = writeNext(text);
    if (!next.isOpen())
        return false;
    const std::unique_lock guard(m_mutex);
    if (!keepLast())
        m_flush(next.get()); // a file system without hard links makes the caller wait
    if (::rename(m_next.constData(), m_path.constData()) != 0) {
        ::unlink(m_next.constData());
        return false;
    }
    flushInBackground(std::move(next));
    return true;
}

FileDescriptor AtomicFile::writeNext(const QByteArray& text) const {
    ::unlink(m_next.constData()); // left by a killed program
    FileDescriptor file(
        ::open(m_next.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, ownerOnly));
    const std::optional<struct stat> current = statusOf(m_path);
    const mode_t mode = current ? current->st_mode & permissionBits : ownerOnly;
    if (file.isOpen() && ::fchmod(file.get(), mode) == 0 && writeAll(file.get(), text))
        return file;
    if (file.isOpen())
        ::unlink(m_next.constData());
    return FileDescriptor();
}

bool AtomicFile::keepLast() const {
    // If one exists already, the current file is not on the disk yet.
    return ::link(m_path.constData(), m_last.constData()) == 0 || errno == EEXIST || errno == ENOENT;
}

void AtomicFile::flushInBackground(FileDescriptor file) {
    m_newest = std::move(file);
    m_flusher.start([this] { flushNewest(); });
}

void AtomicFile::flushNewest() {
    std::unique_lock guard(m_mutex);
    const std::optional<FileDescriptor> file = std::exchange(m_newest, std::nullopt);
    guard.unlock();
    if (!file || !file->isOpen())
        return; // already flushed with an earlier one
    m_flush(file->get());
    m_flush(FileDescriptor(::open(m_folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)).get());

    guard.lock();
    struct stat flushed{};
    const std::optional<struct stat> current = statusOf(m_path);
    if (::fstat(file->get(), &flushed) == 0 && current && isSameFile(flushed, *current))
        ::unlink(m_last.constData());
}

} // namespace orvelle
