#include "app/menu_bar_items/item_drawings.h"

#include "app/menu_bar_items/item_rules.h"
#include "charts/canvas.h"
#include "charts/sparkline_view.h"
#include "look/device_pixels.h"
#include "look/fonts.h"
#include "look/label_colors.h"
#include "look/symbols.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>

namespace orvelle {
namespace {

constexpr double dotSpacing = 2;
constexpr double trackOpacity = 0.15;
constexpr double levelOpacity = 0.8;
constexpr double historyFillOpacity = 0.15;

ItemPart rigidPart(const QSizeF& size, std::function<void(QPainter&, const QRectF&)> paint) {
    return {.size = size, .rigidWidth = size.width(), .paint = std::move(paint)};
}

QPainterPath roundedRect(const QRectF& rect, double cornerRadius) {
    QPainterPath path;
    path.addRoundedRect(rect, cornerRadius, cornerRadius);
    return path;
}

} // namespace

ItemPart symbolPart(QStringView name, double fontSize, const QColor& color) {
    const double side = symbolExtent(fontSize);
    return rigidPart({side, side},
                     [name = name.toString(), fontSize, color](QPainter& painter, const QRectF& frame) {
                         paintSymbol(painter, name, frame.center(), fontSize, color);
                     });
}

ItemPart iconPart(QStringView name, const QColor& color) {
    return symbolPart(name, iconFontSize, color);
}

ItemPart textPart(const QString& text, const QFont& font, const QColor& color) {
    const QFontMetricsF metrics(font);
    const QSizeF size(metrics.horizontalAdvance(text), metrics.height());
    const double capHeight = metrics.capHeight();
    const auto paint = [=](QPainter& painter, const QRectF& frame) {
        const QPointF baseline(frame.left(), frame.center().y() + capHeight / 2);
        painter.save();
        painter.setRenderHint(QPainter::TextAntialiasing);
        painter.translate(snappedToDevicePixels(painter, baseline));
        if (frame.width() < size.width())
            painter.scale(frame.width() / size.width(), 1);
        painter.setFont(font);
        painter.setPen(color);
        painter.drawText(QPointF(0, 0), text);
        painter.restore();
    };
    return {.size = size, .rigidWidth = 0, .paint = paint};
}

ItemPart valuePart(const QString& text, double fontSize) {
    return textPart(text, monospacedSystemFont(fontSize, QFont::Medium), LabelColors::primary);
}

ItemPart dotsPart(const QList<QColor>& colors, double diameter) {
    const auto count = static_cast<double>(colors.size());
    const double width = std::max(0.0, count * (diameter + dotSpacing) - dotSpacing);
    return rigidPart({width, diameter}, [colors, diameter](QPainter& painter, const QRectF& frame) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        QRectF dot(frame.topLeft(), QSizeF(diameter, diameter));
        for (const QColor& color : colors) {
            painter.setBrush(color);
            painter.drawEllipse(dot);
            dot.translate(diameter + dotSpacing, 0);
        }
        painter.restore();
    });
}

ItemPart levelBarPart(const QSizeF& size, double cornerRadius, double fraction, const QColor& color) {
    return rigidPart(size, [=](QPainter& painter, const QRectF& frame) {
        const QPainterPath track = roundedRect(frame, cornerRadius);
        const double width = frame.width() * std::clamp(fraction, 0.0, 1.0);
        const QPainterPath level =
            roundedRect({frame.topLeft(), QSizeF(width, frame.height())}, cornerRadius);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(track, withOpacity(LabelColors::primary, trackOpacity));
        // A low level is narrower than the track's corners are round; it must not stick out of them.
        painter.fillPath(level.intersected(track), withOpacity(color, levelOpacity));
        painter.restore();
    });
}

ItemPart sparklinePart(const SparklineView& sparkline) {
    return rigidPart(
        {sparkline.width, sparkline.height},
        [sparkline](QPainter& painter, const QRectF& frame) { sparkline.paint(painter, frame); });
}

ItemPart sparklinePart(const DualSparklineView& sparkline) {
    return rigidPart(
        {sparkline.width, sparkline.height},
        [sparkline](QPainter& painter, const QRectF& frame) { sparkline.paint(painter, frame); });
}

ItemPart historyPart(const QList<double>& history, const QColor& color, double maxValue, const QSizeF& size) {
    return sparklinePart(SparklineView{.data = recentSamples(history),
                                       .maxValue = maxValue,
                                       .lineColor = color,
                                       .fillColor = withOpacity(color, historyFillOpacity),
                                       .lineWidth = 1,
                                       .width = size.width(),
                                       .height = size.height()});
}

} // namespace orvelle
