#include "shell/x11/x11_desktop.h"

#include "shell/painted/autostart.h"
#include "shell/painted/bar_popups.h"
#include "shell/painted/bar_window.h"
#include "shell/painted/painted_settings_window.h"
#include "shell/painted/window_frame.h"
#include "shell/x11/bar_placement.h"
#include "shell/x11/ewmh_hints.h"
#include "shell/x11/popup_window.h"
#include "shell/x11/session_manager.h"
#include "shell/x11/single_instance.h"
#include "shell/x11/x11_bar_focus.h"
#include "shell/x11/xsettings_follower.h"

#include <QGuiApplication>
#include <xcb/xcb.h>

#include <cstdio>

namespace orvelle {
namespace {

/// X11 desktops have no status bar for items of any width, so the program paints its own.
class X11StatusBar final : public StatusBar {
public:
    X11StatusBar() {
        connect(&m_bar, &Bar::emptyChanged, this, [this] { m_placement.setShown(!m_bar.isEmpty()); });
        connect(&m_window, &BarWindow::painted, this, &StatusBar::firstPainted, Qt::SingleShotConnection);
    }

    [[nodiscard]] StatusItem& addItem(const QString& identifier, double length) override {
        return m_bar.addItem(identifier, length);
    }
    void removeItem(StatusItem& item) override { m_bar.removeItem(item); }
    [[nodiscard]] std::unique_ptr<Popover> makePopover(PopoverContent makeContent) override {
        return std::make_unique<BarPopover>(m_bar, m_keptPopovers, makeX11Popup, std::move(makeContent),
                                            [this] { m_focus.resume(); });
    }
    [[nodiscard]] std::unique_ptr<ContextMenu> makeContextMenu() override {
        return std::make_unique<BarContextMenu>(m_bar, makeX11Popup, [this] { m_focus.resume(); });
    }
    void takeKeyboard() override { m_focus.take(); }
    void chooseItem(const StatusItem& item) override { m_focus.choose(item); }

private:
    BarWindow m_window;
    Bar& m_bar = m_window.bar();
    KeptPopovers m_keptPopovers;
    BarPlacement m_placement{m_window};
    X11BarFocus m_focus{m_window};
};

} // namespace

std::unique_ptr<Popup> makeX11Popup(QWindow& window) {
    return std::make_unique<PopupWindow>(window);
}

std::optional<QString> x11Absence() {
    const QString display = qEnvironmentVariable("DISPLAY");
    if (display.isEmpty())
        return QStringLiteral("DISPLAY names no X display");
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool failed = xcb_connection_has_error(connection) != 0;
    xcb_disconnect(connection);
    if (failed)
        return QStringLiteral("the X display \"%1\" cannot be reached").arg(display);
    return std::nullopt;
}

void chooseX11() {
    QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.startsWith("xcb"))
        platform = "xcb";
    // Qt aborts the process when it can use none of its platforms.
    if (!platform.contains(';'))
        qputenv("QT_QPA_PLATFORM", platform + ";offscreen");
    // With shared pictures Qt asks the server before each repaint whether it has read the last one, which
    // wakes two threads. Few pixels change here, so sending them is cheaper: one wake-up per sample instead
    // of three.
    if (!qEnvironmentVariableIsSet("QT_XCB_NO_MITSHM"))
        qputenv("QT_XCB_NO_MITSHM", "1");
    outliveSessionManager();
}

bool hasX11() {
    if (QGuiApplication::platformName() == QLatin1StringView("xcb"))
        return true;
    std::fprintf(stderr, "orvelle: Qt cannot use the X display \"%s\"\n",
                 qPrintable(qEnvironmentVariable("DISPLAY")));
    return false;
}

std::unique_ptr<SingleInstance> X11Desktop::becomeSingleInstance(const StartRequest& request) {
    return becomeSingleX11Instance(request);
}

bool X11Desktop::isRunningElsewhere() const {
    return isRunningElsewhereOnX11();
}

std::unique_ptr<StatusBar> X11Desktop::makeStatusBar() {
    return std::make_unique<X11StatusBar>();
}

std::unique_ptr<SettingsWindow> X11Desktop::makeSettingsWindow(std::unique_ptr<QWindow> content) {
    return std::make_unique<PaintedSettingsWindow>(std::move(content), openStateFile(), [](QWindow& window) {
        if (const EwmhHints* hints = EwmhHints::shared())
            hints->moveToPresentDesktop(static_cast<xcb_window_t>(window.winId()));
    });
}

std::unique_ptr<QObject> X11Desktop::followReducedMotion(AnimationClock& clock) {
    return followXSettingsMotion(clock);
}

std::unique_ptr<QObject> X11Desktop::followFonts() {
    return followXSettingsFonts();
}

std::unique_ptr<LoginItem> X11Desktop::makeLoginItem() {
    return std::make_unique<AutostartLoginItem>(AutostartPlaces::present());
}

} // namespace orvelle
