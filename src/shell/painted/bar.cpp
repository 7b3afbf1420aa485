#include "shell/painted/bar.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace orvelle {
namespace {

constexpr QColor barBackground(30, 30, 32);
constexpr QColor barBottomLine(0, 0, 0);

std::optional<ClickButton> clickButton(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return ClickButton::left;
    case Qt::RightButton:
        return ClickButton::right;
    default:
        return std::nullopt;
    }
}

} // namespace

QList<QRectF> itemBounds(const QList<double>& lengths, double barWidth, double pixelsPerPoint) {
    const auto pixels = [pixelsPerPoint](double points) { return std::round(points * pixelsPerPoint); };
    // The lengths are rounded, not the edges, or the width of an item would depend on its place.
    double left = pixels(barWidth - barRightMarginPoints);
    for (const double length : lengths)
        left -= pixels(length);
    QList<QRectF> bounds;
    bounds.reserve(lengths.size());
    for (const double length : lengths) {
        const double right = left + pixels(length);
        bounds.append(
            QRectF(QPointF(left / pixelsPerPoint, 0), QPointF(right / pixelsPerPoint, barHeightPoints)));
        left = right;
    }
    return bounds;
}

Bar::Bar(std::function<BarPlace()> place)
    : m_place(std::move(place)) {}

BarItem& Bar::addItem(const QString& identifier, double length) {
    m_items.push_back(std::make_unique<BarItem>(identifier, length, *this));
    layOut();
    Q_EMIT itemAdded(m_items.size() - 1);
    if (m_items.size() == 1)
        Q_EMIT emptyChanged();
    return *m_items.back();
}

void Bar::removeItem(const StatusItem& item) {
    if (m_pressedItem == &item)
        m_pressedItem = nullptr;
    std::erase_if(m_items, [&item](const auto& present) { return present.get() == &item; });
    layOut();
    if (m_items.empty())
        Q_EMIT emptyChanged();
}

BarItem* Bar::itemAt(const QPointF& position) const {
    const auto found = std::ranges::find_if(
        m_items, [&position](const auto& item) { return item->bounds().contains(position); });
    return found == m_items.end() ? nullptr : found->get();
}

BarItem* Bar::find(const StatusItem& item) const {
    const auto found =
        std::ranges::find_if(m_items, [&item](const auto& present) { return present.get() == &item; });
    return found == m_items.end() ? nullptr : found->get();
}

QRectF Bar::desktopBounds(const StatusItem& item) const {
    const BarItem* found = find(item);
    Q_ASSERT(found != nullptr);
    return found->bounds().translated(place().geometry.topLeft());
}

void Bar::setExpanded(const StatusItem& item, bool expanded) {
    if (BarItem* found = find(item))
        found->setExpanded(expanded);
}

void Bar::setFocusedItem(const QString& identifier) {
    const QString before = std::exchange(m_focusedItem, identifier);
    if (before == identifier)
        return;
    for (std::size_t index = 0; index < m_items.size(); ++index) {
        BarItem& item = *m_items[index];
        if (item.identifier() != before && item.identifier() != identifier)
            continue;
        item.repaint();
        if (item.identifier() == identifier)
            Q_EMIT itemFocused(index);
    }
}

void Bar::pressMouse(const QPointF& position, Qt::MouseButton button) {
    Q_EMIT pressed(position);
    if (m_pressedItem != nullptr || !clickButton(button))
        return;
    m_pressedItem = itemAt(position);
    m_pressedButton = button;
    if (m_pressedItem != nullptr)
        m_pressedItem->setHighlighted(true);
}

void Bar::moveMouse(const QPointF& position) {
    if (m_pressedItem != nullptr)
        m_pressedItem->setHighlighted(itemAt(position) == m_pressedItem);
}

void Bar::releaseMouse(const QPointF& position, Qt::MouseButton button) {
    const std::optional<ClickButton> released = clickButton(button);
    if (m_pressedItem == nullptr || button != m_pressedButton || !released)
        return;
    BarItem& item = *std::exchange(m_pressedItem, nullptr);
    item.setHighlighted(false);
    if (itemAt(position) == &item)
        item.click(*released);
}

void Bar::cancelPress() {
    if (BarItem* item = std::exchange(m_pressedItem, nullptr))
        item->setHighlighted(false);
}

void Bar::layOut() {
    QList<double> lengths;
    for (const auto& item : m_items)
        lengths.append(item->length());
    const BarPlace shown = place();
    const QList<QRectF> bounds = itemBounds(lengths, shown.geometry.width(), shown.pixelsPerPoint);
    for (std::size_t index = 0; index < m_items.size(); ++index)
        m_items[index]->setBounds(bounds[static_cast<qsizetype>(index)]);
    Q_EMIT repaintWanted(QRect(QPoint(0, 0), shown.geometry.size()));
}

void Bar::paint(QPainter& painter, const QRegion& region) const {
    const BarPlace shown = place();
    const QSize size = shown.geometry.size();
    painter.setClipRegion(region);
    painter.fillRect(region.boundingRect(), barBackground);
    const double line = 1 / shown.pixelsPerPoint;
    painter.fillRect(QRectF(0, size.height() - line, size.width(), line), barBottomLine);
    for (const auto& item : m_items) {
        if (region.intersects(item->bounds().toAlignedRect()))
            item->paint(painter, item->identifier() == m_focusedItem);
    }
}

} // namespace orvelle
