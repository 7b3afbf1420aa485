#include "shell/painted/bar_item.h"

#include "shell/painted/bar.h"
#include "theme/colors.h"

#include <utility>

namespace orvelle {
namespace {

/// The plate behind an item that is held down: a rounded rectangle that leaves a point free on every side.
constexpr QColor highlightColor(255, 255, 255, 46);
constexpr double highlightMargin = 1;
constexpr double highlightRadius = 4;

void paintRounded(QPainter& painter, const QRectF& rectangle, const QPen& pen, const QBrush& brush) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.drawRoundedRect(rectangle, highlightRadius, highlightRadius);
    painter.restore();
}

void paintHighlight(QPainter& painter, const QRectF& bounds) {
    const QRectF plate =
        bounds.adjusted(highlightMargin, highlightMargin, -highlightMargin, -highlightMargin);
    paintRounded(painter, plate, Qt::NoPen, highlightColor);
}

void paintFocusRing(QPainter& painter, const QRectF& bounds) {
    constexpr double lineWidth = 1.5;
    const double inset = highlightMargin + lineWidth / 2;
    paintRounded(painter, bounds.adjusted(inset, inset, -inset, -inset), QPen(SystemColors::blue, lineWidth),
                 Qt::NoBrush);
}

} // namespace

BarItem::BarItem(QString identifier, double length, Bar& bar)
    : m_identifier(std::move(identifier))
    , m_length(length)
    , m_bar(bar) {}

void BarItem::setPaint(ItemPaint paint) {
    m_paint = std::move(paint);
}

void BarItem::repaint() {
    Q_EMIT m_bar.repaintWanted(m_bounds.toAlignedRect());
}

void BarItem::setWords(const QString& name, const QString& text) {
    m_accessibleName = name;
    m_accessibleText = text;
    if (PaintedElement* element = m_accessible.get())
        element->announceDescription();
}

double BarItem::visiblePixelsPerPoint() const {
    const BarPlace place = m_bar.place();
    return place.isOnScreen ? place.pixelsPerPoint : 0;
}

void BarItem::setClickHandler(std::function<void(ClickButton)> handler) {
    m_clickHandler = std::move(handler);
}

void BarItem::click(ClickButton button) const {
    // A copy, because the handler may remove the item and itself with it.
    const std::function<void(ClickButton)> handler = m_clickHandler;
    if (handler)
        handler(button);
}

void BarItem::setHighlighted(bool highlighted) {
    if (std::exchange(m_isHighlighted, highlighted) != highlighted)
        repaint();
}

void BarItem::setExpanded(bool expanded) {
    if (std::exchange(m_isExpanded, expanded) == expanded)
        return;
    QAccessible::State changed;
    changed.expanded = true;
    if (PaintedElement* element = m_accessible.get())
        element->announceState(changed);
}

void BarItem::paint(QPainter& painter, bool isFocused) const {
    painter.save();
    painter.setClipRect(m_bounds, Qt::IntersectClip);
    if (m_isHighlighted)
        paintHighlight(painter, m_bounds);
    if (m_paint)
        m_paint(painter, m_bounds, BarAppearance::dark); // see `barBackground`
    if (isFocused)
        paintFocusRing(painter, m_bounds);
    painter.restore();
}

} // namespace orvelle
