#pragma once

#include "shell/painted/bar_item.h"

#include <QBackingStore>
#include <QWindow>

#include <memory>
#include <vector>

namespace orvelle {

/// The strip at the top of the screen: it lays the items out and paints them. It knows neither where it
/// stands nor the window manager; that is the work of `BarPlacement`.
///
/// What changes is painted in the same turn of the event loop, which costs one wake-up of the process for
/// each new sample. Qt's update requests would add a second one, because they wait for 5 ms.
class BarWindow : public QWindow {
    Q_OBJECT

public:
    BarWindow();

    /// The window owns the item; it stands to the right of those present.
    BarItem& addItem(const QString& identifier, double length);
    void removeItem(const StatusItem& item);
    [[nodiscard]] bool isEmpty() const { return m_items.empty(); }
    /// From left to right.
    [[nodiscard]] const std::vector<std::unique_ptr<BarItem>>& items() const { return m_items; }
    /// The item at a position in points from the bar's upper left corner; null between and beside them.
    [[nodiscard]] BarItem* itemAt(const QPointF& position) const;
    /// Where one of the bar's items stands, in points of the desktop.
    [[nodiscard]] QRectF desktopBounds(const StatusItem& item) const;
    /// Tells whether the popover of one of the bar's items is shown; an item that has gone is ignored.
    void setExpanded(const StatusItem& item, bool expanded);

    /// Shows that keys act on the item with this identifier, or on none when it is empty. What is said of an
    /// item that has gone holds for the next one of that name.
    void setFocusedItem(const QString& identifier);
    [[nodiscard]] const QString& focusedItem() const { return m_focusedItem; }

    [[nodiscard]] QAccessibleInterface* accessibleRoot() const override;

Q_SIGNALS:
    /// The first item came or the last one went.
    void emptyChanged();
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
    [[nodiscard]] BarItem* find(const StatusItem& item) const;
    void layOut();
    /// Has the rectangle, in points, painted when the present event has been handled.
    void repaintSoon(const QRect& rectangle);
    void repaintPending();
    void repaint(const QRegion& region);
    void paintItem(QPainter& painter, const BarItem& item) const;

    std::vector<std::unique_ptr<BarItem>> m_items;
    BarItem* m_pressedItem = nullptr; ///< where a button went down that has not been let go yet
    Qt::MouseButton m_pressedButton = Qt::NoButton;
    QString m_focusedItem; ///< identifier; empty for none
    QBackingStore m_picture{this};
    QRegion m_pending;
};

} // namespace orvelle
