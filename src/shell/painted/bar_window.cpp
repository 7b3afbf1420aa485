#include "shell/painted/bar_window.h"

#include <QMouseEvent>

#include <utility>

namespace orvelle {

BarWindow::BarWindow()
    : AccessibleBar([this] { return BarPlace{screen(), geometry(), devicePixelRatio(), isExposed()}; }) {
    setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    connect(this, &QWindow::screenChanged, &bar(), &Bar::layOut); // its scale may be another
    connect(this, &QWindow::yChanged, &bar(), &Bar::moved);
    connect(&bar(), &Bar::repaintWanted, this, &BarWindow::repaintSoon);
}

void BarWindow::hideEvent(QHideEvent* /*event*/) {
    bar().cancelPress(); // the release will not be reported
}

void BarWindow::mousePressEvent(QMouseEvent* event) {
    bar().pressMouse(event->position(), event->button());
}

void BarWindow::mouseMoveEvent(QMouseEvent* event) {
    bar().moveMouse(event->position());
}

void BarWindow::mouseReleaseEvent(QMouseEvent* event) {
    bar().releaseMouse(event->position(), event->button());
}

void BarWindow::resizeEvent(QResizeEvent* /*event*/) {
    bar().layOut();
}

void BarWindow::paintEvent(QPaintEvent* /*event*/) {
    // Only some platforms give the event's region in local coordinates, so everything is painted.
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
    bar().paint(painter, region);
    painter.end();
    m_picture.endPaint();
    m_picture.flush(region);
    Q_EMIT painted();
}

} // namespace orvelle
