#include "shell/wayland/wayland_search.h"

#include <QDeadlineTimer>

#include <memory>
#include <poll.h>
#include <wayland-client.h>

namespace orvelle {
namespace {

struct Disconnect {
    void operator()(wl_display* display) const { wl_display_disconnect(display); }
};
using Display = std::unique_ptr<wl_display, Disconnect>;

void addGlobal(void* names, wl_registry* /*registry*/, std::uint32_t /*name*/, const char* interface,
               std::uint32_t /*version*/) {
    static_cast<QStringList*>(names)->append(QString::fromLatin1(interface));
}
void ignoreRemoval(void* /*names*/, wl_registry* /*registry*/, std::uint32_t /*name*/) {}
constexpr wl_registry_listener registryListener{&addGlobal, &ignoreRemoval};

void finish(void* isDone, wl_callback* /*callback*/, std::uint32_t /*serial*/) {
    *static_cast<bool*>(isDone) = true;
}
constexpr wl_callback_listener doneListener{&finish};

/// Handles the next events. Returns whether there were any before the deadline.
bool dispatchNext(wl_display* display, const QDeadlineTimer& deadline) {
    if (wl_display_prepare_read(display) != 0)
        return wl_display_dispatch_pending(display) >= 0;
    wl_display_flush(display);
    pollfd incoming{wl_display_get_fd(display), POLLIN, 0};
    if (::poll(&incoming, 1, static_cast<int>(deadline.remainingTime())) <= 0) {
        wl_display_cancel_read(display);
        return false;
    }
    return wl_display_read_events(display) == 0 && wl_display_dispatch_pending(display) >= 0;
}

/// The interfaces that the compositor announces; nothing when it does not answer in time.
std::optional<QStringList> announcedInterfaces(wl_display* display, std::chrono::milliseconds patience) {
    QStringList names;
    bool isDone = false;
    const QDeadlineTimer deadline(patience);
    wl_registry* registry = wl_display_get_registry(display);
    wl_registry_add_listener(registry, &registryListener, &names);
    wl_callback* callback = wl_display_sync(display);
    wl_callback_add_listener(callback, &doneListener, &isDone);
    while (!isDone && dispatchNext(display, deadline)) {
    }
    wl_callback_destroy(callback);
    wl_registry_destroy(registry);
    return isDone ? std::optional(names) : std::nullopt;
}

} // namespace

std::optional<QString> waylandAbsence(const QStringList& interfaces, std::chrono::milliseconds patience) {
    // The first connection would use it up, and Qt needs one too.
    if (qEnvironmentVariableIsSet("WAYLAND_SOCKET"))
        return QStringLiteral("WAYLAND_SOCKET serves one connection only");
    const QString name = qEnvironmentVariable("WAYLAND_DISPLAY");
    if (name.isEmpty())
        return QStringLiteral("WAYLAND_DISPLAY names no Wayland compositor");
    const Display display(wl_display_connect(nullptr));
    if (display == nullptr)
        return QStringLiteral("the Wayland compositor \"%1\" cannot be reached").arg(name);
    const std::optional<QStringList> announced = announcedInterfaces(display.get(), patience);
    if (!announced)
        return QStringLiteral("the Wayland compositor \"%1\" does not answer").arg(name);
    for (const QString& interface : interfaces) {
        if (!announced->contains(interface))
            return QStringLiteral("the Wayland compositor \"%1\" does not offer %2").arg(name, interface);
    }
    return std::nullopt;
}

} // namespace orvelle
