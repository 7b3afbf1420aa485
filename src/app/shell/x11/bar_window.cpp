#include "app/shell/x11/bar_window.h"

#include "app/shell/x11/bar_geometry.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace orvelle {
namespace {

constexpr QColor barBackground(30, 30, 32);
constexpr QColor barBottomLine(0, 0, 0);

} // namespace

BarWindow::BarWindow() {
    setTitle(QStringLiteral("Orvelle"));
    setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
}

BarItem& BarWindow::addItem(const QString& identifier, double length) {
    m_items.push_back(std::make_unique<BarItem>(
        identifier, length, [this](const BarItem& item) { update(item.bounds().toAlignedRect()); }));
    layOut();
    if (m_items.size() == 1)
        Q_EMIT emptyChanged();
    return *m_items.back();
}

void BarWindow::removeItem(const StatusItem& item) {
    std::erase_if(m_items, [&item](const auto& present) { return present.get() == &item; });
    layOut();
    if (m_items.empty())
        Q_EMIT emptyChanged();
}

void BarWindow::layOut() {
    QList<double> lengths;
    for (const auto& item : m_items)
        lengths.append(item->length());
    const QList<QRectF> bounds = itemBounds(lengths, width());
    for (std::size_t index = 0; index < m_items.size(); ++index)
        m_items[index]->setBounds(bounds[static_cast<qsizetype>(index)]);
    update();
}

void BarWindow::resizeEvent(QResizeEvent* event) {
    QRasterWindow::resizeEvent(event);
    layOut();
}

void BarWindow::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.fillRect(event->rect(), barBackground);
    const double linePoints = 1 / devicePixelRatio();
    painter.fillRect(QRectF(0, height() - linePoints, width(), linePoints), barBottomLine);
    for (const auto& item : m_items) {
        if (event->region().intersects(item->bounds().toAlignedRect()))
            paintItem(painter, *item);
    }
}

void BarWindow::paintItem(QPainter& painter, const BarItem& item) const {
    if (item.view() == nullptr)
        return;
    painter.save();
    painter.setClipRect(item.bounds(), Qt::IntersectClip);
    item.view()->paint(painter, item.bounds());
    painter.restore();
}

bool BarWindow::event(QEvent* event) {
    const bool handled = QRasterWindow::event(event);
    const bool paintsNow = event->type() == QEvent::UpdateRequest || event->type() == QEvent::Paint;
    if (paintsNow && isExposed() && !m_items.empty())
        Q_EMIT painted();
    return handled;
}

} // namespace orvelle
