#pragma once

#include "animation/animation_clock.h"

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

#include <chrono>

namespace orvelle {

class ChartCanvas;

/// The base of the items that show charts: repaints when the chart has changed, and animates changes. An item
/// that is hidden, or in a hidden window, never animates: when it comes back it shows the newest values.
///
/// Each item has the fields of its chart as properties. `Q_PRIVATE_PROPERTY` lets moc read and write them in
/// place. The styles and this base are written with their namespace, because moc and the tools of QML do not
/// look names up. The fields `width` and `height` are those of the item.
class ChartItem : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS
    // A line graph has a property with the name of the usual default property, `data`.
    Q_CLASSINFO("DefaultProperty", "resources")

public:
    explicit ChartItem(AnimationClock& clock);
    ~ChartItem() override;

Q_SIGNALS:
    /// A field of the chart has a new value.
    void changed();
    /// The animation has taken a step.
    void animated();

protected:
    /// Paints the chart as it is shown now, within `bounds` and up to the overhang around it.
    virtual void paintChart(QPainter& painter, const QRectF& bounds) = 0;
    /// How far the chart reaches beyond the item on every side, points.
    [[nodiscard]] virtual double overhang() const { return 0; }
    /// The implicit size of the item, points.
    [[nodiscard]] virtual QSizeF naturalSize() const { return {}; }

    /// A field has changed: starts an animation, or shows the change at once where it is not animated.
    virtual void follow() {}
    /// The item is shown for the first time.
    virtual void open() {}
    /// Lets `seconds` of the animation pass.
    virtual void advance(double seconds) = 0;
    /// Ends the animation at its target.
    virtual void settle() = 0;
    [[nodiscard]] virtual bool isAnimating() const = 0;
    /// Whether a step of the animation has moved the chart visibly since it was last painted.
    [[nodiscard]] virtual bool hasMoved() const { return true; }
    /// Time between two steps of the animation.
    [[nodiscard]] virtual std::chrono::milliseconds frameInterval() const;

    /// Whether `open` has been called.
    [[nodiscard]] bool hasOpened() const { return m_hasOpened; }
    /// Whether changes are animated: the item can be seen, and the user has not reduced motion.
    [[nodiscard]] bool mayAnimate() const { return m_isShown && !m_clock.isReduced(); }
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
    /// Repaints, and continues or stops the animation.
    void refresh();
    void repaint();
    void continueOrStop();
    void fitCanvas();

    AnimationClock& m_clock;
    Animation m_animation;
    ChartCanvas* m_canvas; ///< a child of the item
    QMetaObject::Connection m_windowShown;
    bool m_isShown = false;
    bool m_hasOpened = false;
};

} // namespace orvelle
