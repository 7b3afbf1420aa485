#include "windows/common/look_singleton.h"

#include "theme/fonts.h"

namespace orvelle {

Look::Look(QObject* parent)
    : QObject(parent) {
    connect(&FontChanges::shared(), &FontChanges::changed, this, &Look::fontsChanged);
}

} // namespace orvelle
