#pragma once

#include "shell/status_item.h"

#include <QColor>

#include <variant>

namespace orvelle {

/// The colour of labels on the bar at an opacity: white on a dark bar, black on a light one.
struct LabelColor {
    double opacity = 1;

    bool operator==(const LabelColor&) const = default;
};

/// Of values and titles.
inline constexpr LabelColor primaryLabel{1};
/// Of unknown values.
inline constexpr LabelColor secondaryLabel{0.55};

/// A colour that is the same on every bar, or that of labels.
using TextColor = std::variant<QColor, LabelColor>;

[[nodiscard]] QColor colorOnBar(const TextColor& color, BarAppearance appearance);

} // namespace orvelle
