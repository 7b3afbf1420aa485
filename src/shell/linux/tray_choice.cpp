#include "shell/linux/tray_choice.h"

#include "shell/painted/autostart.h"
#include "shell/painted/painted_settings_window.h"
#include "shell/painted/runtime_instance.h"
#include "shell/painted/settings_portal.h"
#include "shell/painted/window_frame.h"
#include "shell/tray/plain_popup.h"
#include "shell/tray/tray_desktop.h"
#include "shell/tray/tray_presence.h"
#include "shell/tray/tray_status_bar.h"
#include "shell/wayland/wayland_desktop.h"
#include "shell/wayland/wayland_search.h"
#include "shell/wayland/wayland_status_bar.h"
#include "shell/x11/x11_desktop.h"

#include <QCursor>

#include <cstdio>

namespace orvelle {
namespace {

/// The tray on a Wayland compositor that places all windows itself.
class PlainTrayDesktop final : public Desktop {
public:
    explicit PlainTrayDesktop(const SettingsStore& settings)
        : m_settings(settings) {}

    [[nodiscard]] std::unique_ptr<SingleInstance> becomeSingleInstance(const StartRequest& request) override {
        return becomeSingleInstanceWith(file(), request);
    }
    [[nodiscard]] bool isRunningElsewhere() const override { return isInstanceFileHeld(file()); }
    [[nodiscard]] std::unique_ptr<StatusBar> makeStatusBar() override {
        return std::make_unique<TrayStatusBar>(m_settings, TrayWindows{.makePopup = makePopup}, TrayBus());
    }
    [[nodiscard]] std::unique_ptr<SettingsWindow>
    makeSettingsWindow(std::unique_ptr<QWindow> content) override {
        return std::make_unique<PaintedSettingsWindow>(
            std::move(content), openStateFile(), [](QWindow& /*window*/) {},
            PaintedSettingsWindow::Placing::byDesktop);
    }
    [[nodiscard]] std::unique_ptr<QObject> followReducedMotion(AnimationClock& clock) override {
        return followPortalMotion(clock);
    }
    [[nodiscard]] std::unique_ptr<QObject> followFonts() override { return followPortalFonts(); }
    [[nodiscard]] std::unique_ptr<LoginItem> makeLoginItem() override {
        return std::make_unique<AutostartLoginItem>(AutostartPlaces::present());
    }

private:
    static QString file() { return instanceFile(qEnvironmentVariable("WAYLAND_DISPLAY")); }

    static std::unique_ptr<Popup> makePopup(QWindow& window) {
        return std::make_unique<PlainPopup>(window, PopupKeyboard::takes);
    }

    const SettingsStore& m_settings;
};

std::unique_ptr<Desktop> makePlainTray(SettingsStore& settings) {
    return std::make_unique<PlainTrayDesktop>(settings);
}

std::unique_ptr<Desktop> makeX11Tray(SettingsStore& settings) {
    if (!hasX11())
        return nullptr;
    return std::make_unique<TrayDesktop>(
        settings, std::make_unique<X11Desktop>(),
        TrayWindows{&makeX11Popup, &makePassivePopup, [] { return std::optional(QCursor::pos()); }});
}

std::unique_ptr<Desktop> makeLayerTray(SettingsStore& settings) {
    QString reason;
    std::unique_ptr<WaylandDesktop> desktop = WaylandDesktop::open(reason);
    if (desktop == nullptr) {
        std::fprintf(stderr, "orvelle: %s\n", qPrintable(reason));
        return nullptr;
    }
    const std::shared_ptr<WaylandStatusBar> strip = desktop->makeStrip();
    return std::make_unique<TrayDesktop>(
        settings, std::move(desktop),
        TrayWindows{.makePopup = [strip](QWindow& window) { return strip->makePopup(window); },
                    .makeStrip = [strip](QWindow& window) { return strip->makePassivePopup(window); }});
}

} // namespace

std::optional<QString> trayDesktopAbsence(TrayPatience patience) {
    if (patience == TrayPatience::none) {
        if (std::optional<QString> absence = trayAbsence())
            return absence;
    }
    if (waylandAbsence({}) && x11Absence())
        return QStringLiteral("the tray's windows need a display");
    return std::nullopt;
}

std::function<std::unique_ptr<Desktop>(SettingsStore&)> chooseTray() {
    const bool hasLayerShell = !waylandDesktopAbsence();
    if (!hasLayerShell && !x11Absence()) {
        chooseX11();
        return &makeX11Tray;
    }
    chooseWayland();
    return hasLayerShell ? &makeLayerTray : &makePlainTray;
}

} // namespace orvelle
