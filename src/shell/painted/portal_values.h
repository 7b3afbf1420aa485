#pragma once

#include "theme/fonts.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

namespace orvelle {

/// What the settings portal has told so far. Each setting keeps its last value of the right type.
class PortalValues {
public:
    /// The namespaces that hold the settings.
    [[nodiscard]] static QStringList namespaces();

    /// Takes the value of any setting of the portal; others than those below, and values of a wrong type,
    /// change nothing.
    void take(const QString& settings, const QString& key, const QVariant& value);

    /// Whether the user asks for reduced motion; nothing while no setting tells.
    [[nodiscard]] std::optional<bool> reducesMotion() const;
    [[nodiscard]] const DesktopFontNames& fonts() const { return m_fonts; }

private:
    std::optional<bool> m_reducesByAnimations; ///< GNOME: animations are switched off
    std::optional<bool> m_reducesByPreference; ///< every desktop, in newer portals
    std::optional<bool> m_reducesByDuration;   ///< KDE: animations take no time
    DesktopFontNames m_fonts;
};

} // namespace orvelle
