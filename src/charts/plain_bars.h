#pragma once

#include "charts/bar_look.h"

#include <QColor>
#include <QPainter>
#include <QRectF>

/// Bars without glow or style.
namespace orvelle {

/// A bar that grows from the bottom of its slot; the menu bar shows one per core.
struct MiniBar {
    double value = 0;  ///< fraction where 1 is full; more is drawn as full
    QColor color = {}; ///< colour below half; see `miniBarColor`

    /// The look of the present value, towards which a host may animate.
    [[nodiscard]] BarLook look() const;

    /// Fills the slot's whole width; never paints outside the slot.
    void paint(QPainter& painter, const QRectF& slot) const;

    /// Paints the bar in the middle of an animation.
    static void paint(QPainter& painter, const QRectF& slot, const BarLook& shown);

    bool operator==(const MiniBar&) const = default;
};

/// A horizontal bar on a track. Its fill grows from the left and becomes stronger towards its end.
struct GradientBar {
    double fraction = 0;    ///< of the track that is filled
    QColor color = {};      ///< at the end of the fill
    QColor trackColor = {}; ///< of the whole width, below the fill

    /// Paints the bar in the middle of an animation. A fraction above 1 fills beyond the right edge of
    /// `bounds`.
    void paint(QPainter& painter, const QRectF& bounds, double shownFraction) const;

    bool operator==(const GradientBar&) const = default;
};

} // namespace orvelle
