#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

/// The text of a file in an autostart folder: a desktop entry as freedesktop.org describes it.
namespace orvelle {

/// What of an entry decides whether a desktop starts it.
struct AutostartEntry {
    QString program;             ///< what `Exec` starts, without its arguments; empty when there is none
    QString tryProgram;          ///< `TryExec`: the entry counts only while this can be started; may be empty
    bool isHidden = false;       ///< the user has deleted it
    bool isSwitchedOff = false;  ///< by a tool of the desktop, with `X-GNOME-Autostart-enabled`
    QStringList onlyShowIn = {}; ///< the desktops that start it; all when empty
    QStringList notShowIn = {};  ///< the desktops that do not
};

/// An entry that starts the program with this path.
[[nodiscard]] QByteArray autostartText(const QString& programPath);

/// An entry that starts nothing, and hides one of the same name that is meant for all users.
[[nodiscard]] QByteArray hiddenAutostartText();

/// Nothing when the text has no `[Desktop Entry]` of an application. Of equal keys the first counts.
[[nodiscard]] std::optional<AutostartEntry> parseAutostart(const QByteArray& text);

/// The program path as an argument of `Exec`: quoted, with its special characters escaped twice, as an
/// argument and as a text.
[[nodiscard]] QString execArgument(const QString& programPath);

/// The first argument of an `Exec` value, whose escapes as a text are resolved; empty when there is none or
/// its quotes are not closed.
[[nodiscard]] QString execProgram(const QString& exec);

/// Whether a desktop with these names (`$XDG_CURRENT_DESKTOP`) would start the entry, its program aside.
[[nodiscard]] bool isStartedBy(const AutostartEntry& entry, const QStringList& desktopNames);

} // namespace orvelle
