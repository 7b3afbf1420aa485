#pragma once

#include "shell/desktop.h"
#include "shell/painted/popup.h"

#include <optional>

namespace orvelle {

/// Why no X server can be reached by the environment; nothing when one answers. May be asked before the
/// application object exists.
[[nodiscard]] std::optional<QString> x11Absence();

/// Has Qt, which reads the environment when the application object is made, talk to the X server. Where the
/// server has gone by then, Qt shows nothing, see `hasX11`.
void chooseX11();

/// Whether Qt talks to the X server; if not, a line on standard error says so. After `chooseX11`, once the
/// application object exists.
[[nodiscard]] bool hasX11();

/// Opens a window as a popup of X11. The window must outlive the result and must not have been shown.
[[nodiscard]] std::unique_ptr<Popup> makeX11Popup(QWindow& window);

/// A desktop with an X server, native or XWayland. Where Qt has another platform, which the user or a test
/// chose, the bar is an ordinary window.
class X11Desktop final : public Desktop {
public:
    [[nodiscard]] std::unique_ptr<SingleInstance> becomeSingleInstance(const StartRequest& request) override;
    [[nodiscard]] bool isRunningElsewhere() const override;
    [[nodiscard]] std::unique_ptr<StatusBar> makeStatusBar() override;
    [[nodiscard]] std::unique_ptr<SettingsWindow>
    makeSettingsWindow(std::unique_ptr<QWindow> content) override;
    [[nodiscard]] std::unique_ptr<QObject> followReducedMotion(AnimationClock& clock) override;
    [[nodiscard]] std::unique_ptr<QObject> followFonts() override;
    [[nodiscard]] std::unique_ptr<LoginItem> makeLoginItem() override;
};

} // namespace orvelle
