#pragma once

#include "app/menu_bar_items/item_part.h"
#include "app/shell/status_item_view.h"

namespace orvelle {

/// A module's place in the menu bar, laid out as one part that is centred in the item.
class ModuleItemView : public StatusItemView {
public:
    [[nodiscard]] ItemPicture picture(const QList<BarLook>& shown) const final;

private:
    /// What the present values look like in the style that the user chose. `shown` are the lengths and
    /// colours of the bars in a style that has some.
    [[nodiscard]] virtual ItemPart body(const QList<BarLook>& shown) const = 0;
};

} // namespace orvelle
