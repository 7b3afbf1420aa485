#include "shell/desktop.h"
#include "shell/linux/desktop_choice.h"
#include "shell/linux/session_bus.h"
#include "shell/linux/tray_choice.h"
#include "shell/wayland/wayland_desktop.h"
#include "shell/x11/x11_desktop.h"

#include <QGuiApplication>

#include <cstdio>

namespace orvelle {
namespace {

/// Its bar is an ordinary window.
std::unique_ptr<Desktop> makeForeignDesktop(SettingsStore& /*settings*/) {
    return std::make_unique<X11Desktop>();
}

std::unique_ptr<Desktop> makeX11Desktop(SettingsStore& /*settings*/) {
    return hasX11() ? std::make_unique<X11Desktop>() : nullptr;
}

std::unique_ptr<Desktop> makeWaylandDesktop(SettingsStore& /*settings*/) {
    QString reason;
    std::unique_ptr<Desktop> desktop = WaylandDesktop::open(reason);
    if (desktop == nullptr)
        std::fprintf(stderr, "orvelle: %s\n", qPrintable(reason));
    return desktop;
}

/// Qt takes X11 where it has no plugin for Wayland, which is better than nothing unless the user wants
/// Wayland.
std::unique_ptr<Desktop> makeBestDesktop(SettingsStore& settings) {
    return QGuiApplication::platformName() == QLatin1StringView("xcb") ? makeX11Desktop(settings)
                                                                       : makeWaylandDesktop(settings);
}

} // namespace

QStringList desktopNames() {
    return {QStringLiteral("auto"), QStringLiteral("wayland"), QStringLiteral("x11"), QStringLiteral("tray")};
}

DesktopChoice chooseDesktop(const QString& name) {
    avoidStartingSessionBus();
    outliveSessionBus();
    avoidSilentSessionBus();
    const TrayPatience patience =
        name == QLatin1StringView("tray") ? TrayPatience::waits : TrayPatience::none;
    const DesktopFinding found = findDesktop(
        name, qgetenv("QT_QPA_PLATFORM"),
        {&waylandDesktopAbsence, &x11Absence, [patience] { return trayDesktopAbsence(patience); }});
    if (!found.kind)
        return {{}, found.error};
    switch (*found.kind) {
    case DesktopKind::wayland:
        chooseWayland();
        return {name == desktopNames().first() ? &makeBestDesktop : &makeWaylandDesktop, {}};
    case DesktopKind::tray:
        return {chooseTray(), {}};
    case DesktopKind::x11:
        chooseX11();
        return {&makeX11Desktop, {}};
    case DesktopKind::foreign:
        break;
    }
    return {&makeForeignDesktop, {}};
}

} // namespace orvelle
