#pragma once

#include <QPainter>
#include <QString>

#include <functional>

namespace orvelle {

/// The button of a mouse that a click is made with; others are ignored.
enum class ClickButton { left, right };

/// How the bar looks where its items are painted.
enum class BarAppearance { dark, light };

/// Paints an item within a rectangle in points, 22 points high.
using ItemPaint = std::function<void(QPainter&, const QRectF&, BarAppearance)>;

/// An item where the desktop has room for a square picture alone, and perhaps for a short text beside it.
struct ItemIcon {
    /// Paints the picture within a square in points, 22 points wide. Its surroundings may be dark or light.
    std::function<void(QPainter&, const QRectF& square)> paint;
    QString label;       ///< the value in a few characters, empty for none
    QString widestLabel; ///< at least as wide as any label of the item, for which the desktop keeps space
};

/// One entry of the desktop's status bar: a picture of fixed length. The bar owns it. It does not know what
/// the picture shows.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// The module key that the item was created with.
    [[nodiscard]] virtual const QString& identifier() const = 0;

    /// Width in points; it never follows the content.
    [[nodiscard]] virtual double length() const = 0;

    /// Sets the function that paints the item. Until then the item is empty. It is also called when the bar
    /// has become dark or light.
    virtual void setPaint(ItemPaint paint) = 0;

    /// Has this item alone painted again, soon.
    virtual void repaint() = 0;

    /// Sets what assistive programs say: the item's subject, for example "CPU", and its value in words, for
    /// example "CPU 12%".
    virtual void setWords(const QString& name, const QString& text) = 0;

    /// Whether the desktop shows the item's icon. Else there is no need to set one.
    [[nodiscard]] virtual bool showsIcon() const { return false; }

    /// Sets the icon. One that looks like the last may be set again.
    virtual void setIcon(const ItemIcon& /*icon*/) {}

    /// Device pixels that one point covers while the item is on the screen; 0 while it is not.
    [[nodiscard]] virtual double visiblePixelsPerPoint() const = 0;

    /// Called when a button that was pressed on the item is let go on it. The handler may remove the item.
    virtual void setClickHandler(std::function<void(ClickButton)> handler) = 0;
};

} // namespace orvelle
