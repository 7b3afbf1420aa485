#include "app/menu_bar_items/item_drawings.h"

#include "app/menu_bar_items/item_rules.h"
#include "app/menu_bar_items/part_key.h"
#include "charts/sparkline_view.h"
#include "look/device_pixels.h"
#include "look/fonts.h"
#include "look/label_colors.h"
#include "look/opacity.h"
#include "look/symbols.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>
#include <string>
#include <unordered_map>

namespace orvelle {
namespace {

constexpr double dotSpacing = 2;
constexpr double trackOpacity = 0.15;
constexpr double levelOpacity = 0.8;
constexpr double historyFillOpacity = 0.15;

ItemPart rigidPart(std::string key, const QSizeF& size, std::function<void(QPainter&, const QRectF&)> paint) {
    return {.key = std::move(key), .size = size, .rigidWidth = size.width(), .paint = std::move(paint)};
}

QPainterPath roundedRect(const QRectF& rect, double cornerRadius) {
    QPainterPath path;
    path.addRoundedRect(rect, cornerRadius, cornerRadius);
    return path;
}

struct TextExtent {
    QSizeF size;
    double capHeight = 0;
};

/// Texts are measured once and remembered while they recur: to measure one costs as much as to paint it.
TextExtent textExtent(const QString& text, const QFont& font) {
    constexpr std::size_t mostRemembered = 64;
    static std::unordered_map<std::string, TextExtent> remembered;
    if (remembered.size() >= mostRemembered)
        remembered.clear();
    const auto [found, isNew] = remembered.try_emplace(partKey("text", QStringView(text), font));
    if (isNew) {
        const QFontMetricsF metrics(font);
        found->second = {{metrics.horizontalAdvance(text), metrics.height()}, metrics.capHeight()};
    }
    return found->second;
}

std::string sparklineKey(const SparklineView& line) {
    return partKey("sparkline", line.data, line.maxValue, line.lineColor, line.fillColor, line.lineWidth,
                   line.width, line.height);
}

std::string sparklineKey(const DualSparklineView& lines) {
    return partKey("two sparklines", lines.topData, lines.bottomData, lines.topColor, lines.bottomColor,
                   lines.width, lines.height);
}

} // namespace

ItemPart symbolPart(QStringView name, double fontSize, const QColor& color) {
    const double side = symbolExtent(fontSize);
    return rigidPart(partKey("symbol", name, fontSize, color), {side, side},
                     [name = name.toString(), fontSize, color](QPainter& painter, const QRectF& frame) {
                         paintSymbol(painter, name, frame.center(), fontSize, color);
                     });
}

ItemPart iconPart(QStringView name, const QColor& color) {
    return symbolPart(name, iconFontSize, color);
}

ItemPart textPart(const QString& text, const QFont& font, const QColor& color) {
    const TextExtent extent = textExtent(text, font);
    const QSizeF size = extent.size;
    const double capHeight = extent.capHeight;
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
    return {.key = partKey("text", QStringView(text), font, color),
            .size = size,
            .rigidWidth = 0,
            .paint = paint};
}

ItemPart valuePart(const QString& text, double fontSize) {
    return textPart(text, monospacedSystemFont(fontSize, QFont::Medium), LabelColors::primary);
}

ItemPart dotsPart(const QList<QColor>& colors, double diameter) {
    const auto count = static_cast<double>(colors.size());
    const double width = std::max(0.0, count * (diameter + dotSpacing) - dotSpacing);
    const auto paint = [colors, diameter](QPainter& painter, const QRectF& frame) {
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
    };
    return rigidPart(partKey("dots", colors, diameter), {width, diameter}, paint);
}

ItemPart levelBarPart(const QSizeF& size, double cornerRadius, double fraction, const QColor& color) {
    const auto paint = [=](QPainter& painter, const QRectF& frame) {
        const QPainterPath track = roundedRect(frame, cornerRadius);
        const double width = frame.width() * std::clamp(fraction, 0.0, 1.0);
        QPainterPath level = roundedRect({frame.topLeft(), QSizeF(width, frame.height())}, cornerRadius);
        // A low level is narrower than the track's corners are round; it must not stick out of them.
        if (width < 2 * cornerRadius)
            level = level.intersected(track);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(track, withOpacity(LabelColors::primary, trackOpacity));
        painter.fillPath(level, withOpacity(color, levelOpacity));
        painter.restore();
    };
    const double visibleWidth = visibleLength(size.width() * std::clamp(fraction, 0.0, 1.0));
    return rigidPart(partKey("level", size, cornerRadius, visibleWidth, color), size, paint);
}

ItemPart sparklinePart(const SparklineView& sparkline) {
    return rigidPart(
        sparklineKey(sparkline), {sparkline.width, sparkline.height},
        [sparkline](QPainter& painter, const QRectF& frame) { sparkline.paint(painter, frame); });
}

ItemPart sparklinePart(const DualSparklineView& sparkline) {
    return rigidPart(
        sparklineKey(sparkline), {sparkline.width, sparkline.height},
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
