#include "app/shell/x11/bar_window.h"

#include "app/shell/x11/bar_geometry.h"

#include <QPainter>
#include <QScreen>

#include <utility>

namespace orvelle {
namespace {

constexpr QColor barBackground(30, 30, 32);
constexpr QColor barBottomLine(0, 0, 0);

} // namespace

BarWindow::BarWindow() {
    setTitle(QStringLiteral("Orvelle"));
    setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    connect(this, &QWindow::screenChanged, this, &BarWindow::layOut); // its scale may be another
}

BarItem& BarWindow::addItem(const QString& identifier, double length) {
    m_items.push_back(std::make_unique<BarItem>(
        identifier, length, [this](const BarItem& item) { repaintSoon(item.bounds().toAlignedRect()); }));
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
    if (item.view() == nullptr)
        return;
    painter.save();
    painter.setClipRect(item.bounds(), Qt::IntersectClip);
    item.view()->paint(painter, item.bounds());
    painter.restore();
}

} // namespace orvelle
