#include "settings/file_lock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace orvelle {
namespace {

constexpr mode_t lockPermissions = 0600;

/// How often the file may vanish between being opened and locked before somebody else has the lock.
constexpr int maximumTries = 10;

/// What cannot be a lock, a pipe or a link say, is not waited for or followed.
FileDescriptor openLock(const QByteArray& path) {
    FileDescriptor file(
        ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, lockPermissions));
    struct stat status{};
    const bool isRegular = file.isOpen() && ::fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode);
    return isRegular ? std::move(file) : FileDescriptor();
}

bool lock(const FileDescriptor& file) {
    return ::flock(file.get(), LOCK_EX | LOCK_NB) == 0 || errno == ENOLCK || errno == EOPNOTSUPP;
}

/// Who had the lock before has removed the file when they unlocked it; another one may stand in its place.
bool isStillNamed(const FileDescriptor& file, const QByteArray& path) {
    struct stat opened{};
    struct stat named{};
    return ::fstat(file.get(), &opened) == 0 && ::lstat(path.constData(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

} // namespace

std::optional<FileLock> FileLock::take(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    for (int tries = 0; tries < maximumTries; ++tries) {
        FileDescriptor file = openLock(name);
        if (!file.isOpen() || !lock(file))
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
        ::unlink(m_path.constData()); // while it is locked, so that it is nobody else's
}

} // namespace orvelle
