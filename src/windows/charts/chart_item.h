#pragma once

#include "animation/animation_clock.h"

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

#include <chrono>

namespace orvelle {

class ChartCanvas;

/// What the items that show charts have in common: they repaint when the chart has changed, and move while
/// there is something to move. An item that is hidden, or in a hidden window, never moves: when it comes
/// back it shows the newest values.
///
/// Each item has the fields of its chart as properties. moc reads and writes them in place: that is what
/// `Q_PRIVATE_PROPERTY` stands for. The styles and this base are written with their namespace, because moc
/// and the tools of QML do not look names up. The fields `width` and `height` are those of the item.
class ChartItem : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS
    // Some charts have a property of their own with the name of the usual default property.
    Q_CLASSINFO("DefaultProperty", "resources")

public:
    explicit ChartItem(AnimationClock& clock);
    ~ChartItem() override;

Q_SIGNALS:
    /// A field of the chart has been given another value.
    void changed();
    /// The chart has moved.
    void moved();

protected:
    /// Paints the chart as it looks now. What reaches beyond `bounds` by no more than the overhang is shown.
    virtual void paintChart(QPainter& painter, const QRectF& bounds) = 0;
    /// How far the chart reaches beyond the item on every side, points.
    [[nodiscard]] virtual double overhang() const { return 0; }
    /// The size that the item asks for, points.
    [[nodiscard]] virtual QSizeF naturalSize() const { return {}; }

    /// A field has changed: starts the motion that follows, or shows the change at once where none does.
    virtual void follow() {}
    /// The item is shown for the first time.
    virtual void open() {}
    /// Lets `seconds` of the motion pass.
    virtual void advance(double /*seconds*/) {}
    /// Ends the motion at once where it would end.
    virtual void settle() {}
    [[nodiscard]] virtual bool isMoving() const { return false; }
    /// How often a moving chart is repainted.
    [[nodiscard]] virtual std::chrono::milliseconds frameInterval() const;

    /// Whether `open` has been called.
    [[nodiscard]] bool hasOpened() const { return m_hasOpened; }
    /// Whether changes move at all: the item can be seen, and the user does not want it calm.
    [[nodiscard]] bool mayMove() const { return m_isShown && !m_clock.isReduced(); }
    /// The present moment, seconds.
    [[nodiscard]] double now() const { return m_clock.now(); }

    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    friend class ChartCanvas;
    void followChange();
    void step(double seconds);
    void watchWindow(QQuickWindow* window);
    void updateShown();
    /// Repaints, and goes on moving or stops.
    void refresh();
    void fitCanvas();

    AnimationClock& m_clock;
    Animation m_part;
    ChartCanvas* m_canvas; ///< a child of the item
    QMetaObject::Connection m_windowShown;
    bool m_isShown = false;
    bool m_hasOpened = false;
};

} // namespace orvelle
