#include "shell/tray/tray_place.h"

#include "shell/painted/popup.h"

#include <algorithm>

namespace orvelle {
namespace {

/// A larger icon is not expected, so a point this close to the desktop's corner may count from an icon's.
constexpr QRect cornerOfAnIcon(0, 0, 64, 64);

std::optional<qsizetype> screenWith(const QList<QRect>& screens, const QPoint& point) {
    for (qsizetype index = 0; index < screens.size(); ++index) {
        if (screens[index].contains(point))
            return index;
    }
    return std::nullopt;
}

} // namespace

qsizetype clickedScreen(const QList<QRect>& screens, std::optional<QPoint> cursor, const QPoint& click) {
    if (cursor)
        return screenWith(screens, *cursor).value_or(0);
    if (cornerOfAnIcon.contains(click))
        return 0;
    return screenWith(screens, click).value_or(0);
}

TrayPlaces trayPlaces(const TrayCorner& corner, const QSize& strip, const QSize& panel) {
    const QRect room = corner.available.adjusted(screenMarginPoints, screenMarginPoints, -screenMarginPoints,
                                                 -screenMarginPoints);
    const int stripRoom = strip.isEmpty() ? 0 : strip.height() + screenMarginPoints;
    const int panelHeight = std::clamp(room.height() - stripRoom, 1, std::max(1, panel.height()));
    const int right = room.left() + room.width();
    const bool isAtBottom =
        corner.available.top() == corner.screen.top() && corner.available.bottom() < corner.screen.bottom();
    const int lowest = room.top() + room.height() - panelHeight - stripRoom;
    const int top = isAtBottom ? std::max(room.top(), lowest) : room.top();
    TrayPlaces places;
    if (!strip.isEmpty())
        places.strip = QRect(QPoint(right - strip.width(), top), strip);
    places.panel = QRect(right - panel.width(), top + stripRoom, panel.width(), panelHeight);
    return places;
}

} // namespace orvelle
