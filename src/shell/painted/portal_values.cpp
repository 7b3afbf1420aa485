#include "shell/painted/portal_values.h"

namespace orvelle {
namespace {

constexpr QLatin1StringView gnomeInterface("org.gnome.desktop.interface");
constexpr QLatin1StringView appearance("org.freedesktop.appearance");
constexpr QLatin1StringView kdeGlobals("org.kde.kdeglobals.KDE");

bool isInteger(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

bool isText(const QVariant& value) {
    return value.typeId() == QMetaType::QString;
}

/// KDE keeps numbers as texts.
std::optional<double> numberIn(const QVariant& value) {
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    const bool mayBeNumber = isText(value) || isInteger(value) || value.typeId() == QMetaType::Double;
    return mayBeNumber && isNumber ? std::optional(number) : std::nullopt;
}

} // namespace

QStringList PortalValues::namespaces() {
    return {gnomeInterface, appearance, kdeGlobals};
}

void PortalValues::take(const QString& settings, const QString& key, const QVariant& value) {
    if (settings == gnomeInterface && key == QLatin1StringView("enable-animations")) {
        if (value.typeId() == QMetaType::Bool)
            m_reducesByAnimations = !value.toBool();
    } else if (settings == appearance && key == QLatin1StringView("reduced-motion")) {
        if (isInteger(value))
            m_reducesByPreference = value.toLongLong() == 1;
    } else if (settings == kdeGlobals && key == QLatin1StringView("AnimationDurationFactor")) {
        if (const std::optional<double> factor = numberIn(value))
            m_reducesByDuration = *factor == 0;
    } else if (settings == gnomeInterface && key == QLatin1StringView("font-name")) {
        if (isText(value))
            m_fonts.proportional = value.toString();
    } else if (settings == gnomeInterface && key == QLatin1StringView("monospace-font-name")) {
        if (isText(value))
            m_fonts.monospaced = value.toString();
    }
}

std::optional<bool> PortalValues::reducesMotion() const {
    if (!m_reducesByAnimations && !m_reducesByPreference && !m_reducesByDuration)
        return std::nullopt;
    return m_reducesByAnimations.value_or(false) || m_reducesByPreference.value_or(false) ||
           m_reducesByDuration.value_or(false);
}

} // namespace orvelle
