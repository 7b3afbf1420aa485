#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvelle {

/// The value of a setting in the bytes of the property `_XSETTINGS_SETTINGS`, by which GNOME, Xfce and KDE
/// publish the settings of the desktop (the XSETTINGS protocol, version 0.5). Nothing when the setting is not
/// there, when it is of another type, and when the bytes before it make no sense.
[[nodiscard]] std::optional<std::int32_t> integerSetting(std::string_view property, std::string_view name);

/// The same for a text, which is part of `property` and in UTF-8 where the desktop keeps to the protocol.
[[nodiscard]] std::optional<std::string_view> textSetting(std::string_view property, std::string_view name);

} // namespace orvelle
