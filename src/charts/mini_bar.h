#pragma once

#include "charts/bar_look.h"

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace orvelle {

/// A bare bar that grows from the bottom of its slot; the menu bar shows one per core.
struct MiniBar {
    double value = 0;  ///< fraction where 1 is full; more is drawn as full
    QColor color = {}; ///< colour below half; yellow from there and red from three quarters

    /// The look of the present value, towards which a host may animate.
    [[nodiscard]] BarLook look() const;

    /// Fills the slot's whole width; never paints outside the slot.
    void paint(QPainter& painter, const QRectF& slot) const;

    /// Paints the bar as it looks in the middle of an animation.
    static void paint(QPainter& painter, const QRectF& slot, const BarLook& shown);

    bool operator==(const MiniBar&) const = default;
};

} // namespace orvelle
