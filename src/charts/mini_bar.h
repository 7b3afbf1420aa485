#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace orvelle {

/// A bare bar that grows from the bottom of its slot; the menu bar shows one per core.
struct MiniBar {
    double value = 0; ///< fraction where 1 is full; more is drawn as full
    QColor color;     ///< colour below half; yellow from there and red from three quarters

    /// Seconds over which height and colour ease in and out after a change of `value`.
    static constexpr double animationSeconds = 0.3;

    /// Fills the slot's whole width; never paints outside the slot.
    void paint(QPainter& painter, const QRectF& slot) const;

    bool operator==(const MiniBar&) const = default;
};

} // namespace orvelle
