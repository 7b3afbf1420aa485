#pragma once

#include "shell/painted/bar.h"

#include <QBackingStore>
#include <QWindow>

namespace orvelle {

/// The bar as a window of Qt; the desktop decides its place. Assistive programs see a tool bar with a button
/// for each item, named after its module and described by its values in words. Pressing the button is a left
/// click, showing its menu a right one.
///
/// What changes is painted in the same turn of the event loop, which costs one wake-up of the process for
/// each new sample. Qt's update requests would add a second one, because they wait for 5 ms.
class BarWindow : public QWindow {
    Q_OBJECT

public:
    BarWindow();

    [[nodiscard]] Bar& bar() { return m_bar; }
    [[nodiscard]] QAccessibleInterface* accessibleRoot() const override;

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
    void announceItem(std::size_t index, QAccessible::Event type);

    Bar m_bar;
    QBackingStore m_picture{this};
    QRegion m_pending;
};

} // namespace orvelle
