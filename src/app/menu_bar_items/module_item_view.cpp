#include "app/menu_bar_items/module_item_view.h"

namespace orvelle {

ItemPicture ModuleItemView::picture(const QList<BarLook>& shown) const {
    const ItemPart part = body(shown);
    return {part.key,
            [part](QPainter& painter, const QRectF& bounds) { paintCentred(painter, bounds, part); }};
}

} // namespace orvelle
