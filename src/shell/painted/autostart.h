#pragma once

#include "shell/desktop.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

/// The login item of desktops that read the XDG autostart folders.
namespace orvelle {

// The text of a file there: a desktop entry as freedesktop.org describes it.

/// The keys of an entry that decide whether a desktop starts it.
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

/// The first argument of an `Exec` value whose text escapes have been resolved; empty when there is none or
/// its quotes are not closed.
[[nodiscard]] QString execProgram(const QString& exec);

/// Whether a desktop with these names (`$XDG_CURRENT_DESKTOP`) would start the entry, its program aside.
[[nodiscard]] bool isStartedBy(const AutostartEntry& entry, const QStringList& desktopNames);

/// The folders of a desktop's autostart entries, and the program to start.
struct AutostartPlaces {
    QString userFolder;        ///< `$XDG_CONFIG_HOME/autostart`
    QStringList systemFolders; ///< `autostart` in each of `$XDG_CONFIG_DIRS`, the most important first
    QStringList desktopNames;  ///< `$XDG_CURRENT_DESKTOP`
    QString programPath;       ///< of this program, absolute

    /// Those of the present user and this program. Needs the application object.
    [[nodiscard]] static AutostartPlaces present();
};

/// The entry `orvelle.desktop` of the XDG autostart folders. The user's own entry replaces the others of that
/// name.
class AutostartLoginItem final : public LoginItem {
public:
    explicit AutostartLoginItem(AutostartPlaces places);

    [[nodiscard]] LoginItemState state() const override;
    [[nodiscard]] bool setEnabled(bool enabled) override;
    void repair() override;

private:
    [[nodiscard]] QString userFile() const;
    /// The path of the entry that counts; empty when there is none.
    [[nodiscard]] QString effectiveFile() const;
    [[nodiscard]] bool isEnabledForAll() const;
    [[nodiscard]] bool writeUserFile(const QByteArray& text) const;

    AutostartPlaces m_places;
};

} // namespace orvelle
