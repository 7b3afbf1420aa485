#include "shell/painted/bar_window.h"

#include "shell/painted/bar_accessibility.h"
#include "shell/painted/bar_geometry.h"
#include "theme/colors.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <optional>
#include <utility>

namespace orvelle {
namespace {

constexpr QColor barBackground(30, 30, 32);
constexpr QColor barBottomLine(0, 0, 0);

/// The plate behind an item that is held down: a rounded rectangle that leaves a point free on every side.
constexpr QColor highlightColor(255, 255, 255, 46);
constexpr double highlightMargin = 1;
constexpr double highlightRadius = 4;

void paintHighlight(QPainter& painter, const QRectF& bounds) {
    const QRectF plate =
        bounds.adjusted(highlightMargin, highlightMargin, -highlightMargin, -highlightMargin);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(highlightColor);
    painter.drawRoundedRect(plate, highlightRadius, highlightRadius);
    painter.restore();
}

/// Around the item that keys act on.
void paintFocusRing(QPainter& painter, const QRectF& bounds) {
    constexpr double lineWidth = 1.5;
    const double inset = highlightMargin + lineWidth / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(SystemColors::blue, lineWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(bounds.adjusted(inset, inset, -inset, -inset), highlightRadius, highlightRadius);
    painter.restore();
}

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

BarWindow::BarWindow() {
    setTitle(QStringLiteral("Orvelle"));
    setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    connect(this, &QWindow::screenChanged, this, &BarWindow::layOut); // its scale may be another
    installBarAccessibility();
}

BarItem& BarWindow::addItem(const QString& identifier, double length) {
    m_items.push_back(std::make_unique<BarItem>(identifier, length, *this, [this](const BarItem& item) {
        repaintSoon(item.bounds().toAlignedRect());
    }));
    layOut();
    if (hasAssistiveListener())
        announce(*accessibleRoot()->child(static_cast<int>(m_items.size()) - 1), QAccessible::ObjectCreated);
    if (m_items.size() == 1)
        Q_EMIT emptyChanged();
    return *m_items.back();
}

void BarWindow::removeItem(const StatusItem& item) {
    if (m_pressedItem == &item)
        m_pressedItem = nullptr;
    std::erase_if(m_items, [&item](const auto& present) { return present.get() == &item; });
    layOut();
    if (m_items.empty())
        Q_EMIT emptyChanged();
}

BarItem* BarWindow::itemAt(const QPointF& position) const {
    const auto found = std::ranges::find_if(
        m_items, [&position](const auto& item) { return item->bounds().contains(position); });
    return found == m_items.end() ? nullptr : found->get();
}

BarItem* BarWindow::find(const StatusItem& item) const {
    const auto found =
        std::ranges::find_if(m_items, [&item](const auto& present) { return present.get() == &item; });
    return found == m_items.end() ? nullptr : found->get();
}

QRectF BarWindow::desktopBounds(const StatusItem& item) const {
    const BarItem* found = find(item);
    Q_ASSERT(found != nullptr);
    return found->bounds().translated(position());
}

void BarWindow::setExpanded(const StatusItem& item, bool expanded) {
    if (BarItem* found = find(item))
        found->setExpanded(expanded);
}

void BarWindow::setFocusedItem(const QString& identifier) {
    const QString before = std::exchange(m_focusedItem, identifier);
    if (before == identifier)
        return;
    for (std::size_t index = 0; index < m_items.size(); ++index) {
        const BarItem& item = *m_items[index];
        if (item.identifier() != before && item.identifier() != identifier)
            continue;
        repaintSoon(item.bounds().toAlignedRect());
        if (item.identifier() == identifier && hasAssistiveListener())
            announce(*accessibleRoot()->child(static_cast<int>(index)), QAccessible::Focus);
    }
}

QAccessibleInterface* BarWindow::accessibleRoot() const {
    return QAccessible::queryAccessibleInterface(const_cast<BarWindow*>(this));
}

void BarWindow::hideEvent(QHideEvent* /*event*/) {
    // Who lets the button go now does not tell the bar.
    if (BarItem* item = std::exchange(m_pressedItem, nullptr))
        item->setHighlighted(false);
}

void BarWindow::mousePressEvent(QMouseEvent* event) {
    if (m_pressedItem != nullptr || !clickButton(event->button()))
        return;
    m_pressedItem = itemAt(event->position());
    m_pressedButton = event->button();
    if (m_pressedItem != nullptr)
        m_pressedItem->setHighlighted(true);
}

void BarWindow::mouseMoveEvent(QMouseEvent* event) {
    if (m_pressedItem != nullptr)
        m_pressedItem->setHighlighted(itemAt(event->position()) == m_pressedItem);
}

void BarWindow::mouseReleaseEvent(QMouseEvent* event) {
    const std::optional<ClickButton> button = clickButton(event->button());
    if (m_pressedItem == nullptr || event->button() != m_pressedButton || !button)
        return;
    BarItem& item = *std::exchange(m_pressedItem, nullptr);
    item.setHighlighted(false);
    if (itemAt(event->position()) == &item)
        item.click(*button);
}

void BarWindow::layOut() {
    QList<double> lengths;
    for (const auto& item : m_items)
        lengths.append(item->length());
    const QList<QRectF> bounds = itemBounds(lengths, width(), devicePixelRatio());
    for (std::size_t index = 0; index < m_items.size(); ++index)
        m_items[index]->setBounds(bounds[static_cast<qsizetype>(index)]);
    repaintSoon(QRect(QPoint(0, 0), size()));
}

void BarWindow::resizeEvent(QResizeEvent* /*event*/) {
    layOut();
}

void BarWindow::paintEvent(QPaintEvent* /*event*/) {
    // The event's region is in local coordinates on some platforms only, so everything is painted.
    m_pending = QRegion();
    repaint(QRect(QPoint(0, 0), size()));
}

void BarWindow::repaintSoon(const QRect& rectangle) {
    if (m_pending.isEmpty())
        QMetaObject::invokeMethod(this, &BarWindow::repaintPending, Qt::QueuedConnection);
    m_pending += rectangle;
}

void BarWindow::repaintPending() {
    const QRegion region = std::exchange(m_pending, QRegion());
    // A window that is not on the screen is painted whole when it comes there.
    if (isExposed() && !region.isEmpty())
        repaint(region);
}

void BarWindow::repaint(const QRegion& region) {
    m_picture.resize(size());
    m_picture.beginPaint(region);
    QPainter painter(m_picture.paintDevice());
    painter.setClipRegion(region);
    painter.fillRect(region.boundingRect(), barBackground);
    const double linePoints = 1 / devicePixelRatio();
    painter.fillRect(QRectF(0, height() - linePoints, width(), linePoints), barBottomLine);
    for (const auto& item : m_items) {
        if (region.intersects(item->bounds().toAlignedRect()))
            paintItem(painter, *item);
    }
    painter.end();
    m_picture.endPaint();
    m_picture.flush(region);
    Q_EMIT painted();
}

void BarWindow::paintItem(QPainter& painter, const BarItem& item) const {
    painter.save();
    painter.setClipRect(item.bounds(), Qt::IntersectClip);
    if (item.isHighlighted())
        paintHighlight(painter, item.bounds());
    item.paint(painter);
    if (item.identifier() == m_focusedItem)
        paintFocusRing(painter, item.bounds());
    painter.restore();
}

} // namespace orvelle
