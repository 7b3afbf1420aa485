#include "shell/painted/bus_opening.h"

#include <QDBusError>
#include <QThreadPool>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace orvelle {
namespace {

constexpr std::chrono::milliseconds longestWait{500};

void close(const QString& name) {
    if (!name.isEmpty())
        QDBusConnection::disconnectFromBus(name);
}

/// One thread for all, which keeps their order. It is never ended, because it may be stuck.
QThreadPool& openingThread() {
    static QThreadPool* const pool = [] {
        auto* made = new QThreadPool;
        made->setMaxThreadCount(1);
        return made;
    }();
    return *pool;
}

} // namespace

QDBusConnection openBus(const QString& name, const QString& address) {
    if (name.isEmpty())
        return QDBusConnection::sessionBus();
    return address.isEmpty() ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, name)
                             : QDBusConnection::connectToBus(address, name);
}

/// What the two threads share. It outlives the object when the opening thread is stuck.
class BusOpening::Attempt {
public:
    explicit Attempt(BusOpening& owner)
        : m_owner(&owner) {}

    /// In the opening thread.
    void run(const QString& name, const QString& address) {
        {
            const std::scoped_lock lock(m_mutex);
            if (m_owner == nullptr)
                return;
            m_isRunning = true;
        }
        const QDBusConnection connection = openBus(name, address);
        const std::scoped_lock lock(m_mutex);
        isOpen = connection.isConnected();
        error = connection.lastError().message();
        if (!isOpen || m_owner == nullptr)
            close(name);
        if (m_owner != nullptr)
            QMetaObject::invokeMethod(m_owner, &BusOpening::finish, Qt::QueuedConnection);
        m_isRunning = false;
        m_hasEnded.notify_all();
    }

    /// In the main thread: nobody waits for the result any more.
    void abandon(const QString& name) {
        std::unique_lock lock(m_mutex);
        m_hasEnded.wait_for(lock, longestWait, [this] { return !m_isRunning; });
        m_owner = nullptr;
        if (isOpen)
            close(name);
    }

    // Only for when it has ended.
    bool isOpen = false;
    QString error; ///< why it is not

private:
    std::mutex m_mutex;
    std::condition_variable m_hasEnded;
    BusOpening* m_owner; ///< null when it has gone
    bool m_isRunning = false;
};

BusOpening::BusOpening(const QString& name, const QString& address)
    : m_name(name)
    , m_attempt(std::make_shared<Attempt>(*this)) {
    openingThread().start([attempt = m_attempt, name, address] { attempt->run(name, address); });
}

BusOpening::~BusOpening() {
    if (m_attempt != nullptr)
        m_attempt->abandon(m_name);
}

void BusOpening::finish() {
    const std::shared_ptr<Attempt> attempt = std::exchange(m_attempt, nullptr);
    if (attempt->isOpen)
        Q_EMIT opened();
    else
        Q_EMIT failed(attempt->error);
}

} // namespace orvelle
