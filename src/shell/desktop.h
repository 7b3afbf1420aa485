#pragma once

#include "shell/start_request.h"
#include "shell/status_bar.h"

#include <QLoggingCategory>
#include <QStringList>

/// What the program asks of its desktop. The two functions at the end are defined once for each operating
/// system; the build decides which are linked.
namespace orvelle {

class AnimationClock;
class SettingsStore;

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

/// What the desktop will do at the next login.
enum class LoginItemState {
    off,
    on,
    needsApproval ///< it would start the program if the user allowed that in the desktop's own settings
};

/// Whether the desktop starts the program when the user logs in. Main thread only.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    [[nodiscard]] virtual LoginItemState state() const = 0;
    [[nodiscard]] bool isEnabled() const { return state() == LoginItemState::on; }
    /// Returns whether the desktop accepted it, subject to the user's approval. Switching on again makes it
    /// start this program, in case the program has moved.
    [[nodiscard]] virtual bool setEnabled(bool enabled) = 0;
    /// Opens the desktop's settings where the user gives the approval. Nothing happens on a desktop that asks
    /// for none.
    virtual void askForApproval() {}
    /// Makes an enabled item start this program when the program that it would start is gone.
    virtual void repair() = 0;
};

/// Held by the only process of the program on its desktop. No other process gets one until it is destroyed or
/// the process ends. Main thread only.
class SingleInstance : public QObject {
    Q_OBJECT

Q_SIGNALS:
    /// The user started the program once more, and asks this of the present one. That process ends, or waits
    /// for the end of this one.
    void startedAgain(const orvelle::StartRequest& request);
};

/// The desktop that the program runs on, and what only it can make. Main thread only; it outlives what it
/// made.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// Makes this process the only one of the program on the desktop. Null when another process is, which is
    /// then given the request.
    [[nodiscard]] virtual std::unique_ptr<SingleInstance>
    becomeSingleInstance(const StartRequest& request) = 0;

    /// Whether another process is the only one of the program on the desktop.
    [[nodiscard]] virtual bool isRunningElsewhere() const = 0;

    /// The bar, empty and not yet shown.
    [[nodiscard]] virtual std::unique_ptr<StatusBar> makeStatusBar() = 0;

    /// The settings window, not shown yet, around a content that has not been shown.
    [[nodiscard]] virtual std::unique_ptr<SettingsWindow>
    makeSettingsWindow(std::unique_ptr<QWindow> content) = 0;

    /// Keeps the clock's motion reduced when the user asks the desktop for that, now and after every change,
    /// as long as the result lives. Null where the desktop has no such setting.
    [[nodiscard]] virtual std::unique_ptr<QObject> followReducedMotion(AnimationClock& clock) = 0;

    /// Keeps the fonts of theme/fonts.h equal to those that the desktop announces, now and after every
    /// change, as long as the result lives. Null where the desktop announces no change that Qt does not know.
    [[nodiscard]] virtual std::unique_ptr<QObject> followFonts() = 0;

    /// The login item of this program for the present user.
    [[nodiscard]] virtual std::unique_ptr<LoginItem> makeLoginItem() = 0;
};

/// A desktop that was found, or the reason why there is none.
struct DesktopChoice {
    /// Makes the desktop once the application object exists. Empty when none was found. The result is null,
    /// with the reason on the program's standard error, when the desktop cannot be used after all.
    std::function<std::unique_ptr<Desktop>(SettingsStore&)> make;
    QString error; ///< one line for the user; empty when a desktop was found
};

/// The names that the user can choose a desktop by. The first one stands for the best that there is.
[[nodiscard]] QStringList desktopNames();

/// Looks for the desktop of that name, which is one of `desktopNames()`. Called once, before the application
/// object exists, because it decides how that object talks to the desktop.
[[nodiscard]] DesktopChoice chooseDesktop(const QString& name);

} // namespace orvelle
