#pragma once

#include "app/menu_bar_items/item_part.h"

#include <QColor>
#include <QFont>
#include <QString>

/// The pieces that the menu-bar items are made of.
namespace orvelle {

struct SparklineView;
struct DualSparklineView;

/// Size of the module's icon and of the value that stands alone; beside a mini chart the value is smaller.
inline constexpr double iconFontSize = 10;
inline constexpr double valueFontSize = 11;
inline constexpr double smallValueFontSize = 10;

[[nodiscard]] ItemPart symbolPart(QStringView name, double fontSize, const QColor& color);

/// The module's icon in the module's colour.
[[nodiscard]] ItemPart iconPart(QStringView name, const QColor& color);

/// One line of text, its capitals centred vertically. Painted in a narrower place it is condensed.
[[nodiscard]] ItemPart textPart(const QString& text, const QFont& font, const QColor& color);

/// A value in the primary label colour, medium and monospaced.
[[nodiscard]] ItemPart valuePart(const QString& text, double fontSize = valueFontSize);

/// Circles from left to right, one for each colour.
[[nodiscard]] ItemPart dotsPart(const QList<QColor>& colors, double diameter = 4);

/// A bar that is filled from the left up to `fraction`; more than 1 is drawn as full.
[[nodiscard]] ItemPart levelBarPart(const QSizeF& size, double cornerRadius, double fraction,
                                    const QColor& color);

[[nodiscard]] ItemPart sparklinePart(const SparklineView& sparkline);
[[nodiscard]] ItemPart sparklinePart(const DualSparklineView& sparkline);

/// The sparkline of one module's history in the module's colour; `maxValue` 0 scales to the samples.
[[nodiscard]] ItemPart historyPart(const QList<double>& history, const QColor& color, double maxValue,
                                   const QSizeF& size);

} // namespace orvelle
