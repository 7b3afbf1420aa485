#include "shell/wayland/wayland_connection.h"

#include <QAbstractEventDispatcher>

#include <cerrno>
#include <cstring>
#include <wayland-client.h>

namespace orvelle {
namespace {

QString errorText(int error) {
    return QString::fromLocal8Bit(std::strerror(error));
}

} // namespace

std::unique_ptr<WaylandConnection> WaylandConnection::open(QString& reason) {
    if (wl_display* display = wl_display_connect(nullptr))
        return std::unique_ptr<WaylandConnection>(new WaylandConnection(display));
    const QString name = qEnvironmentVariable("WAYLAND_DISPLAY", QStringLiteral("wayland-0"));
    reason = QStringLiteral("the Wayland display \"%1\" cannot be reached: %2").arg(name, errorText(errno));
    return nullptr;
}

std::unique_ptr<WaylandConnection> WaylandConnection::overSocket(int socket) {
    wl_display* display = wl_display_connect_to_fd(socket);
    return std::unique_ptr<WaylandConnection>(display == nullptr ? nullptr : new WaylandConnection(display));
}

WaylandConnection::WaylandConnection(wl_display* display)
    : m_display(display)
    , m_readable(wl_display_get_fd(display), QSocketNotifier::Read)
    , m_writable(wl_display_get_fd(display), QSocketNotifier::Write) {
    m_writable.setEnabled(false);
    connect(&m_readable, &QSocketNotifier::activated, this, &WaylandConnection::read);
    connect(&m_writable, &QSocketNotifier::activated, this, &WaylandConnection::flush);
    const QAbstractEventDispatcher* loop = QAbstractEventDispatcher::instance();
    connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, &WaylandConnection::flush);
    // A loop that never waits, because it is run bit by bit, reports no more than this.
    connect(loop, &QAbstractEventDispatcher::awake, this, &WaylandConnection::flush);
}

WaylandConnection::~WaylandConnection() {
    m_readable.setEnabled(false); // before its descriptor is closed
    m_writable.setEnabled(false);
    wl_display_disconnect(m_display);
}

void WaylandConnection::read() {
    while (wl_display_prepare_read(m_display) != 0) {
        if (wl_display_dispatch_pending(m_display) < 0)
            return lose();
    }
    if (wl_display_read_events(m_display) < 0 || wl_display_dispatch_pending(m_display) < 0)
        lose();
}

void WaylandConnection::flush() {
    if (m_isLost)
        return;
    const int error = wl_display_flush(m_display) < 0 ? errno : 0;
    m_writable.setEnabled(error == EAGAIN);
    // When the compositor has closed the connection, its reason may still wait to be read.
    if (error != 0 && error != EAGAIN && error != EPIPE)
        lose();
}

void WaylandConnection::lose() {
    if (m_isLost)
        return;
    m_isLost = true;
    // A closed socket is readable for ever.
    m_readable.setEnabled(false);
    m_writable.setEnabled(false);
    // Later, because who hears of it may end the object that has just made a request.
    QMetaObject::invokeMethod(
        this, [this, reason = lossReason()] { Q_EMIT lost(reason); }, Qt::QueuedConnection);
}

QString WaylandConnection::lossReason() const {
    const int error = wl_display_get_error(m_display);
    if (error != EPROTO)
        return QStringLiteral("the compositor has closed the connection: %1").arg(errorText(error));
    const wl_interface* interface = nullptr;
    std::uint32_t id = 0;
    const std::uint32_t code = wl_display_get_protocol_error(m_display, &interface, &id);
    const QString name =
        interface == nullptr ? QStringLiteral("an unknown object") : QString::fromLatin1(interface->name);
    return QStringLiteral("the compositor has refused a request: error %1 of %2@%3")
        .arg(code)
        .arg(name)
        .arg(id);
}

} // namespace orvelle
