#include "windows/settings/preview_items.h"

#include "charts/continuous_rounded_rect.h"
#include "theme/colors.h"
#include "windows/settings/preview_geometry.h"

#include <QPainter>

#include <array>

namespace orvelle {
namespace {

constexpr double barOpacity = 0.8;
constexpr double trackOpacity = 0.1;
constexpr double cardBarRadius = 2;

QPen ringPen(const QColor& color) {
    return {color, previewRingStroke, Qt::SolidLine, Qt::RoundCap, Qt::SvgMiterJoin};
}

} // namespace

PreviewItem::PreviewItem(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(this, &PreviewItem::changed, this, [this] { update(); });
}

void Outline::paint(QPainter* painter) {
    const double inset = m_lineWidth / 2;
    const QRectF edge = QRectF({0, 0}, size()).adjusted(inset, inset, -inset, -inset);
    painter->strokePath(continuousRoundedRect(edge, m_radius - inset), QPen(m_color, m_lineWidth));
}

void StyleDrawing::paint(QPainter* painter) {
    if (m_setting == QLatin1StringView("graphLineStyle"))
        paintLine(*painter);
    else if (m_setting == QLatin1StringView("barChartStyle"))
        paintBars(*painter);
    else if (m_setting == QLatin1StringView("ringChartStyle"))
        paintRing(*painter);
}

void StyleDrawing::paintLine(QPainter& painter) const {
    const auto style = static_cast<GraphLineStyle>(m_style);
    painter.strokePath(previewLine(style, size()), previewLinePen(style, m_color));
}

void StyleDrawing::paintBars(QPainter& painter) const {
    const auto style = static_cast<BarChartStyle>(m_style);
    for (const QRectF& bar : previewBars(style, size()))
        painter.fillPath(previewBarShape(style, bar), withOpacity(m_color, barOpacity));
}

void StyleDrawing::paintRing(QPainter& painter) const {
    const PreviewRing ring = previewRing(static_cast<RingChartStyle>(m_style), size());
    const QColor track = withOpacity(SystemColors::white, trackOpacity);
    if (ring.isFilled) {
        painter.fillPath(ring.track, track);
        painter.fillPath(ring.progress, m_color);
    } else {
        painter.strokePath(ring.track, ringPen(track));
        painter.strokePath(ring.progress, ringPen(m_color));
    }
}

void ThemeDrawing::paint(QPainter* painter) {
    const std::array barColors{m_theme.cpuColor,  m_theme.memoryColor,  m_theme.networkColor,
                               m_theme.diskColor, m_theme.batteryColor, m_theme.sensorColor};
    const std::array dotColors{m_theme.accentColor, m_theme.networkDownloadColor, m_theme.networkUploadColor,
                               m_theme.diskReadColor, m_theme.diskWriteColor};
    const ThemeCardLayout layout = themeCardLayout({{0, 0}, size()});
    for (std::size_t index = 0; index < barColors.size(); ++index)
        painter->fillPath(continuousRoundedRect(layout.bars[static_cast<qsizetype>(index)], cardBarRadius),
                          barColors[index]);
    painter->setPen(Qt::NoPen);
    for (std::size_t index = 0; index < dotColors.size(); ++index) {
        painter->setBrush(dotColors[index]);
        painter->drawEllipse(layout.dots[static_cast<qsizetype>(index)]);
    }
}

} // namespace orvelle
