#include "look/quick/look_singleton.h"

#include "look/fonts.h"

namespace orvelle {

QFont Look::systemFont(double size, int weight) {
    return orvelle::systemFont(size, static_cast<QFont::Weight>(weight));
}

QFont Look::monospacedFont(double size, int weight) {
    return monospacedSystemFont(size, static_cast<QFont::Weight>(weight));
}

} // namespace orvelle
