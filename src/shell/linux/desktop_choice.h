#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

/// Which of the desktops of Linux the program runs on.
namespace orvelle {

enum class DesktopKind {
    foreign, ///< a platform of Qt that only a user or a test chooses, such as one without a screen
    wayland, ///< a compositor on which the program can place a bar of its own
    x11,     ///< an X server, also one inside a Wayland session
    tray,    ///< a panel of the desktop that shows the items of programs
};

/// How each desktop is looked for: the answer says why it is not there, and is nothing when it is.
struct DesktopSearch {
    using Absence = std::function<std::optional<QString>()>;
    Absence wayland;
    Absence x11;
    Absence tray;
};

/// The desktop to use, or one line that says what was looked for.
struct DesktopFinding {
    std::optional<DesktopKind> kind;
    QString error;
};

/// Looks for the desktop named `wish`: "wayland", "x11", "tray", or "auto", which takes the first of them
/// that is there. Only what must be known is asked. `platform` is what QT_QPA_PLATFORM holds: it matters for
/// "auto" alone. A platform that is neither Wayland nor X11 was chosen on purpose and is kept, and so is X11;
/// a session that asks all programs for Wayland has not chosen a bar.
[[nodiscard]] DesktopFinding findDesktop(const QString& wish, const QByteArray& platform,
                                         const DesktopSearch& search);

} // namespace orvelle
