#pragma once

#include "shell/desktop.h"

#include <QPointer>

#include <optional>

namespace orvelle {

class LayerShell;
class WaylandConnection;
class WaylandStatusBar;

/// Why no Wayland compositor can be reached by the environment on which the program can place a bar; nothing
/// when there is one. May be asked before the application object exists.
[[nodiscard]] std::optional<QString> waylandDesktopAbsence();

/// Has Qt, which reads the environment when the application object is made, talk to the Wayland compositor.
/// Where it has no plugin for that, it takes an X server, or else no display at all.
void chooseWayland();

/// A Wayland compositor with a layer shell. When the compositor ends, or refuses a request, the program ends
/// with a line on standard error and status 1.
class WaylandDesktop final : public Desktop {
public:
    /// Null, with the reason, when the compositor cannot be used after all. Needs the application object.
    [[nodiscard]] static std::unique_ptr<WaylandDesktop> open(QString& reason);
    ~WaylandDesktop() override;

    [[nodiscard]] std::unique_ptr<SingleInstance> becomeSingleInstance(const StartRequest& request) override;
    [[nodiscard]] bool isRunningElsewhere() const override;
    /// There is only one, as there is only one strip.
    [[nodiscard]] std::unique_ptr<StatusBar> makeStatusBar() override;
    /// The same by its own name. Left empty, it opens the windows of a desktop that shows its items
    /// elsewhere.
    [[nodiscard]] std::unique_ptr<WaylandStatusBar> makeStrip();
    [[nodiscard]] std::unique_ptr<SettingsWindow>
    makeSettingsWindow(std::unique_ptr<QWindow> content) override;
    [[nodiscard]] std::unique_ptr<QObject> followReducedMotion(AnimationClock& clock) override;
    [[nodiscard]] std::unique_ptr<QObject> followFonts() override;
    [[nodiscard]] std::unique_ptr<LoginItem> makeLoginItem() override;

private:
    WaylandDesktop(std::unique_ptr<LayerShell> shell, std::unique_ptr<WaylandConnection> connection);

    std::unique_ptr<LayerShell> m_shell;
    std::unique_ptr<WaylandConnection> m_connection; ///< until the status bar takes it
    QPointer<WaylandStatusBar> m_statusBar;
};

} // namespace orvelle
