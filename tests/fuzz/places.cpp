#include "bytes.h"
#include "parsers.h"
#include "require.h"
#include "shell/tray/tray_place.h"
#include "shell/wayland/wayland_output.h"
#include "shell/x11/bar_geometry.h"
#include "shell/x11/work_area.h"

#include <cmath>

namespace orvelle::fuzz {
namespace {

QPoint takePoint(Bytes& bytes) {
    const int x = bytes.number<qint16>();
    return {x, bytes.number<qint16>()};
}

/// At least one pixel in each direction.
QSize takeSize(Bytes& bytes) {
    const int width = std::max<int>(1, bytes.number<quint16>());
    return {width, std::max<int>(1, bytes.number<quint16>())};
}

QRect takeRect(Bytes& bytes) {
    const QPoint corner = takePoint(bytes);
    return {corner, takeSize(bytes)};
}

TopStrut takeStrut(Bytes& bytes) {
    const int height = bytes.number<quint16>();
    const int startX = bytes.number<quint16>();
    return {height, startX, bytes.number<quint16>()};
}

void checkStrip(const QRect& screen, const TopStrip::Announcement& announced, int reserved) {
    TopStrip strip;
    strip.beginMeasurement(reserved);
    strip.measure(announced, true);
    require(!strip.isMeasuring(), "a late announcement ends a measurement");
    require(strip.height() >= 0 && strip.height() <= screen.height() / 2,
            "a strip ends in the upper half of the screen");
    require(strip.asDock(screen).has_value() == (strip.height() > 0), "a strip of no height is none");
}

} // namespace

/// What a window manager, the docks of other programs and the X server tell: a screen, the root window, the
/// size of the desktop, up to four docks and the numbers of the work areas.
void fuzzWorkArea(std::string_view text) {
    Bytes bytes(text);
    const QRect screen = takeRect(bytes);
    const QSize root = takeSize(bytes);
    const QSize desktop = takeSize(bytes);
    std::vector<TopDock> docks;
    for (std::size_t count = bytes.below(5); count > 0; --count) {
        const QRect window = takeRect(bytes);
        docks.push_back({.window = window, .strut = takeStrut(bytes)});
    }
    std::vector<std::uint32_t> values;
    while (!bytes.isEmpty())
        values.push_back(bytes.number<std::uint32_t>());
    const std::vector<QRect> areas = workAreasIn(values);
    require(areas.size() <= values.size() / 4, "an area has four numbers");

    const int above = heightAboveWorkArea(screen, areas);
    require(above >= 0 && above <= screen.height() / 2, "a work area begins in the upper half of the screen");
    checkStrip(screen, {.height = above, .isReservedByDocks = isReservedByDocks(screen, areas, docks)}, 24);
    const int offset = freeOffset(screen, 24, docks);
    require(offset >= 0 && offset <= screen.height() / 2, "the bar lies in the upper half of the screen");
    const TopStrut strut{.height = 24, .startX = 0, .endX = root.width() - 1};
    const TopStrut counted = strutInUnitsOf(desktop, root, strut);
    require(counted.height > 0 && counted.height <= strut.height && counted.endX < root.width(),
            "a strut fits into the desktop in its units too");
}

/// What a tray tells of a click, and the screens.
void fuzzTrayPlaces(std::string_view text) {
    Bytes bytes(text);
    const int clickX = bytes.number<int>();
    const QPoint click(clickX, bytes.number<int>());
    const QSize strip = bytes.below(2) == 0 ? QSize() : takeSize(bytes);
    const QSize panel = takeSize(bytes);
    QList<QRect> screens;
    while (!bytes.isEmpty() && screens.size() < 4)
        screens.append(takeRect(bytes));
    const qsizetype index = clickedScreen(screens, std::nullopt, click);
    require(index == 0 || (index > 0 && index < screens.size()), "a click is on a screen, else on the first");
    const QRect screen = screens.value(index, QRect(0, 0, 1024, 768));
    const TrayPlaces places = trayPlaces({.screen = screen, .available = screen}, strip, panel);
    require(places.strip.size() == strip || strip.isEmpty(), "a strip is as large as it has to be");
    require(places.panel.height() >= 1 && places.panel.height() <= panel.height(),
            "a panel is at most as high as wanted");
}

/// What a compositor tells of a screen.
void fuzzScreenScale(std::string_view text) {
    Bytes bytes(text);
    const int whole = 1 + static_cast<int>(bytes.below(16));
    const int width = bytes.number<int>();
    const QSize pixels(width, bytes.number<int>());
    const int pointsWidth = bytes.number<int>();
    const double scale = screenScale(whole, pixels, {pointsWidth, bytes.number<int>()});
    require(scale > whole - 1 && scale <= whole, "a fraction is rounded up to the whole scale");
}

} // namespace orvelle::fuzz
