#include "shell/painted/runtime_instance.h"

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

/// Opened for reading too, so that the pipe always has a reader and opening it never waits for one.
Descriptor openPipe(const QString& file) {
    const QByteArray path = QFile::encodeName(file);
    ::mkfifo(path.constData(), S_IRUSR | S_IWUSR); // it may exist
    Descriptor pipe(::open(path.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC | O_NOFOLLOW));
    struct stat status{};
    if (pipe.isOpen() && ::fstat(pipe.number(), &status) == 0 && S_ISFIFO(status.st_mode))
        return pipe;
    return Descriptor(-1);
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
        std::array<char, 64> bytes{};
        bool hasRead = false;
        while (::read(m_pipe.number(), bytes.data(), bytes.size()) > 0)
            hasRead = true;
        if (hasRead)
            Q_EMIT startedAgain();
    }

    Descriptor m_pipe;
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
std::unique_ptr<SingleInstance> becomeSingleInstanceWith(const QString& file) {
    Descriptor pipe = openPipe(file);
    if (!pipe.isOpen())
        return std::make_unique<SingleInstance>();
    if (::flock(pipe.number(), LOCK_EX | LOCK_NB) == 0)
        return std::make_unique<PipeOwner>(std::move(pipe));
    if (errno != EWOULDBLOCK)
        return std::make_unique<SingleInstance>();
    constexpr char anything = '\n';
    // A full pipe holds notice enough.
    [[maybe_unused]] const ssize_t written = ::write(pipe.number(), &anything, 1);
    return nullptr;
}

} // namespace orvelle
