#pragma once

#include "shell/x11/bar_geometry.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// The strip at the top of a screen that a window manager keeps free for what is no X window, such as the
/// panel of GNOME Shell or a Wayland panel over an X11 client. Only the work area tells of it.
namespace orvelle {

/// The rectangles in the values of a property such as `_NET_WORKAREA`: x, y, width and height, over and over.
/// Empty ones, those that no root window can have, and an incomplete last one are left out.
[[nodiscard]] std::vector<QRect> workAreasIn(std::span<const std::uint32_t> values);

/// How many pixels at the top of the screen lie above its work area: the one among `areas` that shares most
/// with the screen. 0 when none covers half of the screen's columns or the upper half of it lies above.
[[nodiscard]] int heightAboveWorkArea(const QRect& screen, const std::vector<QRect>& areas);

/// Whether the docks, which are X windows, are reason enough for what lies above the screen's work area.
/// Docks of other screens are when only the work area of all screens together is known.
[[nodiscard]] bool isReservedByDocks(const QRect& screen, const std::vector<QRect>& areas,
                                     const std::vector<TopDock>& docks);

/// Finds the height of the strip, in pixels. What the bar reserves itself is part of the work area as well,
/// so the bar measures while it reserves nothing.
class TopStrip {
public:
    [[nodiscard]] int height() const { return m_height; }
    /// The strip as if it were a dock of another program; nothing when there is none.
    [[nodiscard]] std::optional<TopDock> asDock(const QRect& screen) const;

    /// To be called when the bar gives up the `reserved` pixels that it had reserved at the screen's top;
    /// `refutation` is the announcement that was reason to.
    void beginMeasurement(int reserved, std::optional<int> refutation = std::nullopt);
    [[nodiscard]] bool isMeasuring() const { return m_isMeasuring; }

    /// What the window manager announces.
    struct Announcement {
        int height = 0; ///< above the work area
        bool isReservedByDocks = false;
    };
    /// Ends the measurement, unless the announcement is the echo of what the bar had reserved. When it
    /// `isLate`, the window manager has had time to notice that the bar reserves nothing now.
    void measure(const Announcement& announced, bool isLate);

    /// Whether the bar must measure again, because the announcement, made while the bar reserves `reserved`
    /// pixels, cannot be if the last measurement is right. The same height is reason for one measurement
    /// only, so that a window manager that counts in its own way causes no endless loop.
    [[nodiscard]] bool isRefutedBy(const Announcement& announced, int reserved) const;

private:
    int m_height = 0;
    bool m_isMeasuring = false;
    int m_withdrawn = 0;             ///< what the bar reserved before the measurement
    std::optional<int> m_refutation; ///< the announcement that was reason for the last measurement
};

} // namespace orvelle
