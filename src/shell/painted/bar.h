#pragma once

#include "shell/painted/bar_item.h"

#include <QList>
#include <QObject>

#include <memory>
#include <vector>

class QScreen;

/// The bar on desktops on which the program paints it: what it holds, how it is laid out and painted, and
/// what the mouse does in it. It knows no window and no window manager.
namespace orvelle {

/// Height of the bar and of every item in it, in points.
inline constexpr int barHeightPoints = 22;

/// Left free between the last item and the edge of the screen, in points.
inline constexpr double barRightMarginPoints = 8;

/// The items' rectangles in a bar of `barWidth` points, in the order of `lengths`, side by side and flush
/// right. Their edges stand on whole device pixels, so that no item loses a fraction of a pixel to its
/// neighbour, and an item is as wide wherever it stands: its length in pixels, rounded.
/// When they do not fit, the first ones leave the bar at its left edge.
[[nodiscard]] QList<QRectF> itemBounds(const QList<double>& lengths, double barWidth, double pixelsPerPoint);

/// Where the desktop shows a bar.
struct BarPlace {
    QScreen* screen = nullptr;
    QRect geometry;            ///< in points of the desktop
    double pixelsPerPoint = 1; ///< device pixels that a point covers
    bool isOnScreen = false;   ///< whether it can be seen at all
};

class Bar : public QObject {
    Q_OBJECT

public:
    /// `place` is asked whenever the bar needs it.
    explicit Bar(std::function<BarPlace()> place);

    /// The bar owns the item; it stands to the right of those present.
    BarItem& addItem(const QString& identifier, double length);
    void removeItem(const StatusItem& item);
    [[nodiscard]] bool isEmpty() const { return m_items.empty(); }
    /// From left to right.
    [[nodiscard]] const std::vector<std::unique_ptr<BarItem>>& items() const { return m_items; }
    /// The item at a position in points from the bar's upper left corner; null between and beside them.
    [[nodiscard]] BarItem* itemAt(const QPointF& position) const;
    [[nodiscard]] BarPlace place() const { return m_place(); }
    /// Where one of the bar's items stands, in points of the desktop.
    [[nodiscard]] QRectF desktopBounds(const StatusItem& item) const;
    /// Says whether the popover of one of the bar's items is shown; an item that has gone is ignored.
    void setExpanded(const StatusItem& item, bool expanded);

    /// Shows that keys act on the item with this identifier, or on none when it is empty. It holds for the
    /// next item of that name where the present one goes.
    void setFocusedItem(const QString& identifier);
    [[nodiscard]] const QString& focusedItem() const { return m_focusedItem; }

    /// The mouse, at a position in points from the bar's upper left corner. A click is made when the button
    /// is let go on the item where it went down.
    void pressMouse(const QPointF& position, Qt::MouseButton button);
    void moveMouse(const QPointF& position);
    void releaseMouse(const QPointF& position, Qt::MouseButton button);
    /// The mouse has gone with its button down.
    void cancelPress();

    /// To be called when the bar has another width or another scale.
    void layOut();
    /// Paints what lies in the region, in points.
    void paint(QPainter& painter, const QRegion& region) const;

Q_SIGNALS:
    /// The first item came or the last one went.
    void emptyChanged();
    void itemAdded(std::size_t index);
    /// Keys act on this item from now on.
    void itemFocused(std::size_t index);
    /// The rectangle, in points, looks different.
    void repaintWanted(const QRect& rectangle);
    /// Emitted by the bar's window, when it stands somewhere else.
    void moved();

private:
    [[nodiscard]] BarItem* find(const StatusItem& item) const;

    std::function<BarPlace()> m_place;
    BarItem* m_pressedItem = nullptr; ///< where a button went down that has not been let go yet
    Qt::MouseButton m_pressedButton = Qt::NoButton;
    QString m_focusedItem; ///< identifier; empty for none
    /// Last, because an item that goes may be asked about the rest by an assistive program.
    std::vector<std::unique_ptr<BarItem>> m_items;
};

} // namespace orvelle
