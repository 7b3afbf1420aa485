#pragma once

#include "shell/painted/bar_item.h"

#include <QList>
#include <QObject>

#include <memory>
#include <vector>

class QScreen;

/// The bar on desktops where the program paints it: its items, their layout and picture, and clicks. It knows
/// neither a window nor a window manager.
namespace orvelle {

/// Height of the bar and of every item in it, in points.
inline constexpr int barHeightPoints = 22;

/// Left free between the last item and the edge of the screen, in points.
inline constexpr double barRightMarginPoints = 8;

/// The items' rectangles in a bar of `barWidth` points, in the order of `lengths`, side by side and flush
/// right. Their edges lie on whole device pixels, so that no item loses a fraction of a pixel to its
/// neighbour, and an item has the same width at every place: its length in pixels, rounded. When they do not
/// fit, the first ones leave the bar at its left edge.
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
    /// `place` is called whenever the bar needs its place.
    explicit Bar(std::function<BarPlace()> place);

    /// Appends an item to the right of those present. The bar owns it.
    BarItem& addItem(const QString& identifier, double length);
    void removeItem(const StatusItem& item);
    [[nodiscard]] bool isEmpty() const { return m_items.empty(); }
    /// From left to right.
    [[nodiscard]] const std::vector<std::unique_ptr<BarItem>>& items() const { return m_items; }
    /// The item at a position in points from the bar's upper left corner; null between and beside them.
    [[nodiscard]] BarItem* itemAt(const QPointF& position) const;
    [[nodiscard]] BarPlace place() const { return m_place(); }
    /// The bounds of one of the bar's items, in points of the desktop.
    [[nodiscard]] QRectF desktopBounds(const StatusItem& item) const;
    /// Sets whether the popover of one of the bar's items is shown; an item that has gone is ignored.
    void setExpanded(const StatusItem& item, bool expanded);

    /// Marks the item with this identifier as the one that keys act on; none when it is empty. A later item
    /// with this identifier is marked too.
    void setFocusedItem(const QString& identifier);
    [[nodiscard]] const QString& focusedItem() const { return m_focusedItem; }

    /// Events of the mouse, at a position in points from the bar's upper left corner. Releasing the button
    /// over the item where it was pressed makes a click.
    void pressMouse(const QPointF& position, Qt::MouseButton button);
    void moveMouse(const QPointF& position);
    void releaseMouse(const QPointF& position, Qt::MouseButton button);
    /// The button will not be released over the bar any more.
    void cancelPress();

    /// To be called when the bar has another width or another scale.
    void layOut();
    /// Paints the region, in points.
    void paint(QPainter& painter, const QRegion& region) const;

Q_SIGNALS:
    /// The first item came or the last one went.
    void emptyChanged();
    void itemAdded(std::size_t index);
    /// Keys act on this item from now on.
    void itemFocused(std::size_t index);
    /// A button of the mouse was pressed at this position, in points from the bar's upper left corner, before
    /// any item reacts.
    void pressed(const QPointF& position);
    /// The rectangle, in points, looks different.
    void repaintWanted(const QRect& rectangle);
    /// The bar's place has changed; emitted by whatever shows the bar.
    void moved();

private:
    [[nodiscard]] BarItem* find(const StatusItem& item) const;

    std::function<BarPlace()> m_place;
    BarItem* m_pressedItem = nullptr; ///< over which a button is held down
    Qt::MouseButton m_pressedButton = Qt::NoButton;
    QString m_focusedItem; ///< identifier; empty for none
    /// Last, because assistive programs may ask about the other members while the items are destroyed.
    std::vector<std::unique_ptr<BarItem>> m_items;
};

} // namespace orvelle
