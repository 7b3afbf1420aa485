#pragma once

#include "shell/status_bar.h"

#include <QLoggingCategory>

#include <optional>

/// What the program asks of its desktop. The functions at the end are defined once in the folder of each
/// desktop; the build decides which one is linked.
namespace orvelle {

class AnimationClock;

/// Says when a window was asked for and when its first frame was shown. Off by default;
/// QT_LOGGING_RULES="orvelle.open.debug=true" switches it on.
Q_DECLARE_LOGGING_CATEGORY(openLog)

/// The settings in a window with a title bar, which remembers where it stood. Closed, it is only hidden. Main
/// thread only.
class SettingsWindow {
public:
    virtual ~SettingsWindow() = default;

    /// Opens the window, or brings it before the others, with the keyboard in it.
    virtual void bringForward() = 0;
};

/// Whether the desktop starts the program when the user logs in. Main thread only.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    /// Whether the desktop will start the program at the next login.
    [[nodiscard]] virtual bool isEnabled() const = 0;
    /// Returns whether the desktop accepted it. Switching on again makes it start this program, in case the
    /// program has moved.
    [[nodiscard]] virtual bool setEnabled(bool enabled) = 0;
    /// Makes an enabled item start this program when the program that it would start is gone.
    virtual void repair() = 0;
};

/// Held by the only process of the program on its desktop. No other process gets one until it is destroyed or
/// the process ends. Main thread only.
class SingleInstance : public QObject {
    Q_OBJECT

Q_SIGNALS:
    /// The user started the program once more; that process has ended again.
    void startedAgain();
};

/// Chooses how the program talks to its desktop. Called once, before the application object exists, because
/// the choice cannot change afterwards. Returns why no desktop can be reached, nothing when one can.
[[nodiscard]] std::optional<QString> prepareDesktop();

/// Makes this process the only one of the program on its desktop. Null when another process is, which is then
/// notified. Needs the application object.
[[nodiscard]] std::unique_ptr<SingleInstance> becomeSingleInstance();

/// The bar of this desktop, empty and not yet shown. Needs the application object.
[[nodiscard]] std::unique_ptr<StatusBar> makeStatusBar();

/// The settings window, not shown yet, around a content that has not been shown.
[[nodiscard]] std::unique_ptr<SettingsWindow> makeSettingsWindow(std::unique_ptr<QWindow> content);

/// Keeps the clock's motion reduced when the user asks the desktop for that, now and after every change, as
/// long as the result lives. Null where the desktop has no such setting. Needs the application object.
[[nodiscard]] std::unique_ptr<QObject> followReducedMotion(AnimationClock& clock);

/// Keeps the fonts of theme/fonts.h equal to those that the desktop announces, now and after every change, as
/// long as the result lives. Null where the desktop announces no more than Qt knows. Needs the application
/// object.
[[nodiscard]] std::unique_ptr<QObject> followDesktopFonts();

/// The login item of this program for the present user.
[[nodiscard]] std::unique_ptr<LoginItem> makeLoginItem();

} // namespace orvelle
