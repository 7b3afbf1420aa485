#pragma once

#include "menu_bar/item_scene.h"

/// The pieces that the scenes of the menu-bar items are made of.
namespace orvelle {

/// Size of the module's icon and of the value that stands alone; beside a mini chart the value is smaller.
inline constexpr double iconFontSize = 10;
inline constexpr double valueFontSize = 11;
inline constexpr double smallValueFontSize = 10;

[[nodiscard]] SceneNode symbolNode(const QString& name, double fontSize, const QColor& color);

/// The module's icon in the module's colour.
[[nodiscard]] SceneNode iconNode(const QString& name, const QColor& color);

[[nodiscard]] SceneNode textNode(const QString& text, const QFont& font, const QColor& color);

/// A value in the primary label colour, medium and monospaced.
[[nodiscard]] SceneNode valueNode(const QString& text, double fontSize = valueFontSize);

[[nodiscard]] SceneNode dotsNode(const QList<QColor>& colors, double diameter = 4);

/// A bar that is filled from the left up to `fraction`. It eases to its next value, or jumps there.
[[nodiscard]] SceneNode levelBarNode(const QSizeF& size, double cornerRadius, double fraction,
                                     const QColor& color, bool eases);

/// The sparkline of one module's history in the module's colour; `maxValue` 0 scales to the samples.
[[nodiscard]] SceneNode historyNode(const QList<double>& history, const QColor& color, double maxValue,
                                    const QSizeF& size);

} // namespace orvelle
