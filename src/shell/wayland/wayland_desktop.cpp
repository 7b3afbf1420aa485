#include "shell/wayland/wayland_desktop.h"

#include "shell/painted/autostart.h"
#include "shell/painted/painted_settings_window.h"
#include "shell/painted/runtime_instance.h"
#include "shell/painted/settings_portal.h"
#include "shell/painted/window_frame.h"
#include "shell/wayland/wayland_search.h"
#include "shell/wayland/wayland_status_bar.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace orvelle {
namespace {

/// Closes the bar's popups before it comes forward: a compositor may leave the keyboard with them.
class WaylandSettingsWindow final : public SettingsWindow {
public:
    WaylandSettingsWindow(std::unique_ptr<QWindow> content, std::function<void()> closePopups)
        : m_window(
              std::move(content), openStateFile(), [](QWindow& /*window*/) {},
              PaintedSettingsWindow::Placing::byDesktop)
        , m_closePopups(std::move(closePopups)) {}

    void bringForward() override {
        m_closePopups();
        m_window.bringForward();
    }

private:
    PaintedSettingsWindow m_window;
    std::function<void()> m_closePopups;
};

void endProgram(const QString& reason) {
    std::fprintf(stderr, "orvelle: %s\n", qPrintable(reason));
    QCoreApplication::exit(EXIT_FAILURE);
}

} // namespace

std::optional<QString> waylandDesktopAbsence() {
    return waylandAbsence({QStringLiteral("zwlr_layer_shell_v1"), QStringLiteral("wp_viewporter")});
}

void chooseWayland() {
    qputenv("QT_QPA_PLATFORM", "wayland;xcb;offscreen");
    // Popups get their role from the program, see LayerRole.
    qputenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1");
    // Everything is painted by the processor. The usual way would load the drivers of the graphics card for
    // nothing, which take 54 MB.
    qputenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", "none");
    QLoggingCategory::setFilterRules(
        QStringLiteral("qt.qpa.wayland.warning=false")); // that there is no "none"
    // The strip's own connection would not come back.
    qunsetenv("QT_WAYLAND_RECONNECT");
}

std::unique_ptr<WaylandDesktop> WaylandDesktop::open(QString& reason) {
    if (!QGuiApplication::platformName().startsWith(QStringLiteral("wayland"))) {
        reason = QStringLiteral("Qt has no plugin for Wayland; the package qt6-wayland has it");
        return nullptr;
    }
    std::unique_ptr<LayerShell> shell = LayerShell::connect();
    if (shell == nullptr) {
        reason = QStringLiteral("the Wayland compositor has no layer shell any more");
        return nullptr;
    }
    std::unique_ptr<WaylandConnection> connection = WaylandConnection::open(reason);
    if (connection == nullptr)
        return nullptr;
    if (QGuiApplication::desktopFileName().isEmpty())
        QGuiApplication::setDesktopFileName(QStringLiteral("orvelle"));
    return std::unique_ptr<WaylandDesktop>(new WaylandDesktop(std::move(shell), std::move(connection)));
}

WaylandDesktop::WaylandDesktop(std::unique_ptr<LayerShell> shell,
                               std::unique_ptr<WaylandConnection> connection)
    : m_shell(std::move(shell))
    , m_connection(std::move(connection)) {}

WaylandDesktop::~WaylandDesktop() = default;

std::unique_ptr<SingleInstance> WaylandDesktop::becomeSingleInstance(const StartRequest& request) {
    return becomeSingleInstanceWith(instanceFile(qEnvironmentVariable("WAYLAND_DISPLAY")), request);
}

bool WaylandDesktop::isRunningElsewhere() const {
    return isInstanceFileHeld(instanceFile(qEnvironmentVariable("WAYLAND_DISPLAY")));
}

std::unique_ptr<StatusBar> WaylandDesktop::makeStatusBar() {
    return makeStrip();
}

std::unique_ptr<WaylandStatusBar> WaylandDesktop::makeStrip() {
    auto bar = std::make_unique<WaylandStatusBar>(*m_shell, std::move(m_connection));
    QObject::connect(bar.get(), &WaylandStatusBar::lost, bar.get(), &endProgram);
    m_statusBar = bar.get();
    return bar;
}

std::unique_ptr<SettingsWindow> WaylandDesktop::makeSettingsWindow(std::unique_ptr<QWindow> content) {
    return std::make_unique<WaylandSettingsWindow>(std::move(content), [this] {
        if (m_statusBar)
            Q_EMIT m_statusBar->closePopups();
    });
}

std::unique_ptr<QObject> WaylandDesktop::followReducedMotion(AnimationClock& clock) {
    return followPortalMotion(clock);
}

std::unique_ptr<QObject> WaylandDesktop::followFonts() {
    return followPortalFonts();
}

std::unique_ptr<LoginItem> WaylandDesktop::makeLoginItem() {
    return std::make_unique<AutostartLoginItem>(AutostartPlaces::present());
}

} // namespace orvelle
