#pragma once

#include "shell/login_item.h"

#include <QString>
#include <QStringList>

namespace orvelle {

/// Where the autostart entries of a desktop are, and what is started.
struct AutostartPlaces {
    QString userFolder;        ///< `$XDG_CONFIG_HOME/autostart`
    QStringList systemFolders; ///< `autostart` in each of `$XDG_CONFIG_DIRS`, the most important first
    QStringList desktopNames;  ///< `$XDG_CURRENT_DESKTOP`
    QString programPath;       ///< of this program, absolute

    /// Those of the present user and this program. Needs the application object.
    [[nodiscard]] static AutostartPlaces present();
};

/// The entry `orvelle.desktop` of the XDG autostart folders. The user's own entry stands for all others of
/// that name.
class AutostartLoginItem final : public LoginItem {
public:
    explicit AutostartLoginItem(AutostartPlaces places);

    [[nodiscard]] bool isEnabled() const override;
    [[nodiscard]] bool setEnabled(bool enabled) override;
    void repair() override;

private:
    [[nodiscard]] QString userFile() const;
    /// The file that counts; empty when there is none.
    [[nodiscard]] QString effectiveFile() const;
    [[nodiscard]] bool isEnabledForAll() const;
    [[nodiscard]] bool writeUserFile(const QByteArray& text) const;

    AutostartPlaces m_places;
};

} // namespace orvelle
