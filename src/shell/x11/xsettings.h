#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvelle {

/// The value of a setting in the bytes of the property `_XSETTINGS_SETTINGS`, by which GNOME, Xfce and KDE
/// publish the settings of the desktop (the XSETTINGS protocol, version 0.5). Nothing when the setting is not
/// there, when it has another type, and when the bytes before it are malformed.
[[nodiscard]] std::optional<std::int32_t> integerSetting(std::string_view property, std::string_view name);

/// The same for a text. It points into `property`; a desktop that follows the protocol writes UTF-8.
[[nodiscard]] std::optional<std::string_view> textSetting(std::string_view property, std::string_view name);

} // namespace orvelle
