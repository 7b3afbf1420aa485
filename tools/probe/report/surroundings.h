#pragma once

#include <QJsonObject>

namespace orvelle {

class SettingsStore;

// What a report tells beside the machine. Nothing names a person, a machine or a place.

/// The kernel and the distribution.
[[nodiscard]] QJsonObject systemSection();

/// What the environment tells of the desktop: its names, and which displays there are.
[[nodiscard]] QJsonObject desktopSection();

/// Every setting. Texts are told only when they are a colour or could be the name of a theme.
[[nodiscard]] QJsonObject settingsSection(const SettingsStore& settings);

/// `text` when it is made of letters, digits and a few signs alone and is not long; else a remark that it is
/// another.
[[nodiscard]] QString harmlessWord(const QString& text);

} // namespace orvelle
