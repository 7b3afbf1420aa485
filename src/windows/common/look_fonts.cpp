#include "windows/common/look_fonts.h"

#include "theme/fonts.h"

namespace orvelle {

QFont LookFonts::system(double size, int weight) {
    return systemFont(size, static_cast<QFont::Weight>(weight));
}

QFont LookFonts::monospaced(double size, int weight) {
    return monospacedSystemFont(size, static_cast<QFont::Weight>(weight));
}

} // namespace orvelle
