#include "windows/common/look.h"

#include "theme/fonts.h"

namespace orvelle {

QFont LookFonts::system(double size, int weight) {
    return systemFont(size, static_cast<QFont::Weight>(weight));
}

QFont LookFonts::monospaced(double size, int weight) {
    return monospacedSystemFont(size, static_cast<QFont::Weight>(weight));
}

Look::Look(QObject* parent)
    : QObject(parent) {
    connect(&FontChanges::shared(), &FontChanges::changed, this, &Look::fontsChanged);
}

} // namespace orvelle
