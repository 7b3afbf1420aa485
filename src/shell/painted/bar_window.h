#pragma once

#include "shell/painted/accessible_bar.h"

#include <QBackingStore>

namespace orvelle {

/// The bar as a window of Qt that paints the items; the desktop decides its place.
///
/// What changes is painted in the same turn of the event loop, which costs one wake-up of the process for
/// each new sample. Qt's update requests would add a second one, because they wait for 5 ms.
class BarWindow final : public AccessibleBar {
    Q_OBJECT

public:
    BarWindow();

Q_SIGNALS:
    /// A picture of the items has been handed to the screen.
    void painted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    /// Paints the rectangle, in points, after the current event has been handled.
    void repaintSoon(const QRect& rectangle);
    void repaintPending();
    void repaint(const QRegion& region);

    QBackingStore m_picture{this};
    QRegion m_pending;
};

} // namespace orvelle
