#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace orvelle {

/// Height of one line in this font, points.
[[nodiscard]] double lineHeight(const QFont& font);

/// Writes one line in the middle of `line`, shortened with an ellipsis where it is too long.
void drawLabel(QPainter& painter, const QRectF& line, const QString& text, const QFont& font,
               const QColor& color);

} // namespace orvelle
