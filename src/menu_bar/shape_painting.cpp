#include "menu_bar/shape_painting.h"

#include "charts/mini_bar.h"
#include "menu_bar/cpu_item_rules.h"
#include "menu_bar/scene_layout.h"
#include "theme/device_pixels.h"
#include "theme/label_colors.h"
#include "theme/opacity.h"
#include "theme/symbols.h"

#include <QPainterPath>

#include <algorithm>

namespace orvelle {
namespace {

constexpr double trackOpacity = 0.15;
constexpr double levelOpacity = 0.8;

QPainterPath roundedRect(const QRectF& rect, double cornerRadius) {
    QPainterPath path;
    path.addRoundedRect(rect, cornerRadius, cornerRadius);
    return path;
}

/// Moves the bar's sides to whole device pixels, because a gap of one pixel that lies between two is not
/// seen. Where bars or gaps are narrower than a pixel, they stay where they are.
QRectF onWholePixels(const QPainter& painter, const QRectF& bar, double gap) {
    if (std::min(bar.width(), gap) * devicePixelsPerPoint(painter) < 1)
        return bar;
    const double left = snappedToDevicePixels(painter, bar.topLeft()).x();
    const double right = snappedToDevicePixels(painter, bar.topRight()).x();
    return {left, bar.top(), right - left, bar.height()};
}

} // namespace

void paintShape(QPainter& painter, const QRectF& frame, const SymbolShape& symbol) {
    paintSymbol(painter, symbol.name, frame.center(), symbol.fontSize, symbol.color);
}

void paintShape(QPainter& painter, const QRectF& frame, const TextShape& text) {
    const TextExtent& extent = textExtent(text);
    const QPointF baseline(frame.left(), frame.center().y() + extent.capHeight / 2);
    painter.save();
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.translate(snappedToDevicePixels(painter, baseline));
    if (frame.width() < extent.size.width())
        painter.scale(frame.width() / extent.size.width(), 1);
    painter.setFont(text.font);
    painter.setPen(text.color);
    painter.drawText(QPointF(0, 0), text.text);
    painter.restore();
}

void paintShape(QPainter& painter, const QRectF& frame, const CoreBarsShape& bars) {
    const QList<QRectF> places = coreBarSlots(bars.levels.size());
    const double gap = places.size() > 1 ? places.at(1).left() - places.at(0).right() : 1;
    for (qsizetype core = 0; core < places.size(); ++core) {
        const QRectF place = places.at(core).translated(frame.topLeft());
        MiniBar::paint(painter, onWholePixels(painter, place, gap), bars.levels.at(core).look);
    }
}

void paintShape(QPainter& painter, const QRectF& frame, const LevelBarShape& bar) {
    const QPainterPath track = roundedRect(frame, bar.cornerRadius);
    const double width = frame.width() * std::clamp(bar.level.look.ratio, 0.0, 1.0);
    QPainterPath level = roundedRect({frame.topLeft(), QSizeF(width, frame.height())}, bar.cornerRadius);
    // A low level is narrower than the track's corners are round; it must not stick out of them.
    if (width < 2 * bar.cornerRadius)
        level = level.intersected(track);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(track, withOpacity(LabelColors::primary, trackOpacity));
    painter.fillPath(level, withOpacity(bar.level.look.color, levelOpacity));
    painter.restore();
}

void paintShape(QPainter& painter, const QRectF& frame, const DotsShape& dots) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QRectF dot(frame.topLeft(), QSizeF(dots.diameter, dots.diameter));
    for (const QColor& color : dots.colors) {
        painter.setBrush(color);
        painter.drawEllipse(dot);
        dot.translate(dots.diameter + dotSpacing, 0);
    }
    painter.restore();
}

} // namespace orvelle
