#include "menu_bar/label_color.h"

#include "theme/colors.h"

namespace orvelle {

QColor colorOnBar(const TextColor& color, BarAppearance appearance) {
    const auto* label = std::get_if<LabelColor>(&color);
    if (label == nullptr)
        return std::get<QColor>(color);
    return withOpacity(appearance == BarAppearance::dark ? LabelColors::primary : QColor(0, 0, 0),
                       label->opacity);
}

} // namespace orvelle
