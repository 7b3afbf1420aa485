#pragma once

#include <QList>
#include <QPoint>
#include <QRect>

#include <optional>

/// Where the windows of the tray open: in the upper right corner of a screen, or in the lower right one where
/// the desktop's own bar is at the bottom. All lengths are in points of the desktop.
namespace orvelle {

/// The screen, by its index, on which an icon was clicked. `cursor` is the place of the mouse where the
/// desktop tells it. Without it `click` decides if it looks like a place on the desktop; some trays count
/// from the icon's own corner, some tell nothing. Otherwise it is the first screen, which is the primary one.
[[nodiscard]] qsizetype clickedScreen(const QList<QRect>& screens, std::optional<QPoint> cursor,
                                      const QPoint& click);

/// Where the windows of the tray may open on a screen.
struct TrayCorner {
    QRect screen;    ///< the whole screen
    QRect available; ///< what the desktop's own bars leave of it
};

/// The strip of tabs and the panel below it.
struct TrayPlaces {
    QRect strip; ///< empty where there is none
    QRect panel;

    bool operator==(const TrayPlaces&) const = default;
};

/// The places of a strip of this size, empty for none, and of a panel, which is less high than wanted on a
/// low screen.
[[nodiscard]] TrayPlaces trayPlaces(const TrayCorner& corner, const QSize& strip, const QSize& panel);

} // namespace orvelle
