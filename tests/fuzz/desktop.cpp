#include "parsers.h"
#include "require.h"
#include "shell/x11/xsettings.h"

#include <algorithm>

namespace orvelle::fuzz {

void fuzzXSettings(std::string_view text) {
    constexpr std::string_view name = "Gtk/EnableAnimations";
    constexpr std::size_t headerSize = 12;
    if (integerSetting(text, name)) {
        const std::size_t found = text.find(name);
        require(found != std::string_view::npos, "a setting that has a value is there");
        require(text.size() >= headerSize + name.size(), "a setting stands behind the header");
    }
    if (const auto font = textSetting(text, "Gtk/FontName"))
        require(font->data() >= text.data() && font->size() <= text.size(), "a text is one of the bytes'");
    require(!integerSetting(text.substr(0, std::min(text.size(), headerSize)), name),
            "a header alone holds no settings");
}

} // namespace orvelle::fuzz
