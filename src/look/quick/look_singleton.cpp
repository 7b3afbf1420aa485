#include "look/quick/look_singleton.h"

#include "look/font_changes.h"

namespace orvelle {

Look::Look(QObject* parent)
    : QObject(parent) {
    connect(&FontChanges::shared(), &FontChanges::changed, this, &Look::fontsChanged);
}

} // namespace orvelle
