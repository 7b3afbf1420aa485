#pragma once

#include <QRect>

#include <optional>
#include <vector>

/// The bar's geometry on an X11 desktop.
///
/// Two units meet here. Qt speaks of points, `pixelsPerPoint` device pixels each, and gives a screen's origin
/// in device pixels but its size in points. The X server and the window manager know device pixels only.
namespace orvelle {

/// The top strip of the screen that a dock reserves: `height` pixels from the root window's upper edge, in
/// the columns from `startX` to `endX`, both included.
struct TopStrut {
    int height = 0;
    int startX = 0;
    int endX = 0;

    bool operator==(const TopStrut&) const = default;
};

/// The strut in the units of a window manager whose desktop has the size `desktop`, where the root window has
/// the size `root`, both in their own pixels. They differ where the window manager counts in points: KWin 5
/// does when it leaves scaling to X11 programs. A desktop of several root windows makes no difference.
[[nodiscard]] TopStrut strutInUnitsOf(const QSize& desktop, const QSize& root, const TopStrut& strut);

/// A dock of another program that reserves space at the top, in pixels of the root window.
struct TopDock {
    QRect window;
    TopStrut strut;
};

/// The screen in pixels of the root window.
[[nodiscard]] QRect screenPixels(const QRect& screenGeometry, double pixelsPerPoint);

/// How many pixels below the upper edge of `screen` a bar of `height` pixels finds room: the first gap
/// between the docks of other programs. 0 when they leave none in the upper half of the screen.
[[nodiscard]] int freeOffset(const QRect& screen, int height, const std::vector<TopDock>& others);

/// The bar's geometry as Qt wants it, over the whole width, at least `offset` pixels below the upper edge.
[[nodiscard]] QRect barGeometry(const QRect& screenGeometry, double pixelsPerPoint, int offset);

/// The pixels of the root window that Qt makes of a window's geometry on that screen.
[[nodiscard]] QRect windowPixels(const QRect& geometry, const QRect& screenGeometry, double pixelsPerPoint);

/// What a bar at `bar` (pixels) reserves in a root window of `rootSize`. Nothing below another screen: a
/// strut counts from the root window's edge, so it would take the same columns of the screen above.
[[nodiscard]] std::optional<TopStrut> strutFor(const QRect& bar, const QRect& screen, const QSize& rootSize,
                                               const std::vector<QRect>& otherScreens);

} // namespace orvelle
