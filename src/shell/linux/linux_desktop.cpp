#include "shell/desktop.h"
#include "shell/linux/desktop_choice.h"
#include "shell/x11/x11_desktop.h"

namespace orvelle {
namespace {

std::unique_ptr<Desktop> makeX11Desktop(SettingsStore& /*settings*/) {
    return std::make_unique<X11Desktop>();
}

} // namespace

QStringList desktopNames() {
    return {QStringLiteral("auto"), QStringLiteral("wayland"), QStringLiteral("x11"), QStringLiteral("tray")};
}

DesktopChoice chooseDesktop(const QString& name) {
    const auto noneYet = [] { return std::optional(QStringLiteral("nothing else can be used yet")); };
    const DesktopFinding found =
        findDesktop(name, qgetenv("QT_QPA_PLATFORM"), {noneYet, &x11Absence, noneYet});
    if (!found.kind)
        return {{}, found.error};
    if (found.kind == DesktopKind::x11)
        chooseX11();
    return {&makeX11Desktop, {}};
}

} // namespace orvelle
