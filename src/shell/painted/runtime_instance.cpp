#include "shell/painted/runtime_instance.h"

#include "shell/painted/request_lines.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace orvelle {
namespace {

class Descriptor {
public:
    explicit Descriptor(int number)
        : m_number(number) {}
    ~Descriptor() {
        if (isOpen())
            ::close(m_number);
    }
    Descriptor(Descriptor&& other) noexcept
        : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    [[nodiscard]] int number() const { return m_number; }
    [[nodiscard]] bool isOpen() const { return m_number >= 0; }

private:
    int m_number; ///< -1 when closed
};

constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;

/// Whether it is a pipe of this user, to which nobody else may write or whose permissions can be mended.
bool isOwnPipe(int descriptor) {
    constexpr mode_t permissionBits = 0777;
    struct stat status{};
    if (::fstat(descriptor, &status) != 0 || !S_ISFIFO(status.st_mode) || status.st_uid != ::geteuid())
        return false;
    return (status.st_mode & permissionBits) == ownerOnly || ::fchmod(descriptor, ownerOnly) == 0;
}

/// Opens the file for reading, writing or both; closed when it is no pipe of this user.
Descriptor openExistingPipe(const QByteArray& path, int access) {
    Descriptor pipe(::open(path.constData(), access | O_NONBLOCK | O_CLOEXEC | O_NOFOLLOW));
    return pipe.isOpen() && isOwnPipe(pipe.number()) ? std::move(pipe) : Descriptor(-1);
}

/// Opened for reading too, so that the pipe always has a reader and opening it never waits for one.
Descriptor openPipe(const QString& file) {
    const QByteArray path = QFile::encodeName(file);
    ::mkfifo(path.constData(), ownerOnly); // it may exist
    return openExistingPipe(path, O_RDWR);
}

/// Holds the lock of the pipe, to which later starts write.
class PipeOwner final : public SingleInstance {
public:
    explicit PipeOwner(Descriptor pipe)
        : m_pipe(std::move(pipe)) {
        connect(&m_notifier, &QSocketNotifier::activated, this, &PipeOwner::read);
    }

private:
    void read() {
        // What is left is read in the next turn of the loop, so that no flood keeps the program from its
        // work.
        std::array<char, 4096> bytes{};
        const ssize_t count = ::read(m_pipe.number(), bytes.data(), bytes.size());
        if (count <= 0)
            return;
        for (const StartRequest& request : m_lines.take({bytes.data(), count}))
            Q_EMIT startedAgain(request);
    }

    Descriptor m_pipe;
    RequestLines m_lines;
    QSocketNotifier m_notifier{m_pipe.number(), QSocketNotifier::Read};
};

} // namespace

QString instanceFile(const QString& desktopName) {
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!QDir::isAbsolutePath(folder))
        return {};
    QString name = desktopName;
    if (name.contains(u'/'))
        name = QString::fromLatin1(
            QCryptographicHash::hash(desktopName.toUtf8(), QCryptographicHash::Sha1).toHex());
    return folder + QStringLiteral("/orvelle-") + name;
}

// The kernel gives a lock up when its process ends in any way. The file stays: a lock of a file that is
// removed and made again would keep nobody out.
std::unique_ptr<SingleInstance> becomeSingleInstanceWith(const QString& file, const StartRequest& request) {
    Descriptor pipe = openPipe(file);
    if (!pipe.isOpen())
        return std::make_unique<SingleInstance>();
    if (::flock(pipe.number(), LOCK_EX | LOCK_NB) == 0)
        return std::make_unique<PipeOwner>(std::move(pipe));
    if (errno != EWOULDBLOCK)
        return std::make_unique<SingleInstance>();
    const QByteArray line = startRequestText(request) + '\n';
    // A full pipe holds notice enough. So short a line is written whole or not at all.
    [[maybe_unused]] const ssize_t written =
        ::write(pipe.number(), line.constData(), static_cast<std::size_t>(line.size()));
    return nullptr;
}

// Only the process that holds the file reads from it all the time. Without a reader the kernel refuses a
// writer.
bool isInstanceFileHeld(const QString& file) {
    return openExistingPipe(QFile::encodeName(file), O_WRONLY).isOpen();
}

} // namespace orvelle
