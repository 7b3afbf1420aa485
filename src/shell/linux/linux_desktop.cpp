#include "shell/desktop.h"
#include "shell/linux/desktop_choice.h"
#include "shell/wayland/wayland_desktop.h"
#include "shell/x11/x11_desktop.h"

#include <cstdio>

namespace orvelle {
namespace {

std::unique_ptr<Desktop> makeX11Desktop(SettingsStore& /*settings*/) {
    return std::make_unique<X11Desktop>();
}

std::unique_ptr<Desktop> makeWaylandDesktop(SettingsStore& /*settings*/) {
    QString reason;
    std::unique_ptr<Desktop> desktop = WaylandDesktop::open(reason);
    if (desktop == nullptr)
        std::fprintf(stderr, "orvelle: %s\n", qPrintable(reason));
    return desktop;
}

} // namespace

QStringList desktopNames() {
    return {QStringLiteral("auto"), QStringLiteral("wayland"), QStringLiteral("x11"), QStringLiteral("tray")};
}

DesktopChoice chooseDesktop(const QString& name) {
    const auto noneYet = [] { return std::optional(QStringLiteral("nothing else can be used yet")); };
    const DesktopFinding found =
        findDesktop(name, qgetenv("QT_QPA_PLATFORM"), {&waylandDesktopAbsence, &x11Absence, noneYet});
    if (!found.kind)
        return {{}, found.error};
    if (found.kind == DesktopKind::x11)
        chooseX11();
    if (found.kind == DesktopKind::wayland) {
        chooseWayland();
        return {&makeWaylandDesktop, {}};
    }
    return {&makeX11Desktop, {}};
}

} // namespace orvelle
