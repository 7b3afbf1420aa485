#include "shell/x11/bar_geometry.h"

#include "shell/painted/bar.h"

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

bool shareColumns(const QRect& screen, int startX, int endX) {
    return startX <= screen.right() && endX >= screen.left();
}

/// The rows that a dock takes, relative to the screen's upper edge; from first up to, not including, last.
struct Rows {
    int first = 0;
    int last = 0;
};

Rows rowsOf(const TopDock& dock, const QRect& screen) {
    const int bottom = std::max(dock.window.top() + dock.window.height(), dock.strut.height);
    return {dock.window.top() - screen.top(), bottom - screen.top()};
}

} // namespace

TopStrut strutInUnitsOf(const QSize& desktop, const QSize& root, const TopStrut& strut) {
    if (desktop.isEmpty() || desktop.width() >= root.width() || desktop.height() >= root.height())
        return strut;
    // Points keep the proportions, except that each length is rounded.
    const qint64 difference =
        qint64{desktop.width()} * root.height() - qint64{desktop.height()} * root.width();
    if (std::abs(difference) > root.width() + root.height())
        return strut;
    const double horizontal = static_cast<double>(desktop.width()) / root.width();
    const double vertical = static_cast<double>(desktop.height()) / root.height();
    const int endX = static_cast<int>(std::ceil((strut.endX + 1) * horizontal)) - 1;
    return {.height = static_cast<int>(std::ceil(strut.height * vertical)),
            .startX = static_cast<int>(std::floor(strut.startX * horizontal)),
            .endX = std::min(endX, desktop.width() - 1)};
}

QRect screenPixels(const QRect& screenGeometry, double pixelsPerPoint) {
    return {screenGeometry.topLeft(), (QSizeF(screenGeometry.size()) * pixelsPerPoint).toSize()};
}

int freeOffset(const QRect& screen, int height, const std::vector<TopDock>& others) {
    std::vector<Rows> taken;
    for (const TopDock& dock : others) {
        if (shareColumns(screen, dock.strut.startX, dock.strut.endX))
            taken.push_back(rowsOf(dock, screen));
    }
    std::ranges::sort(taken, {}, &Rows::first);

    int offset = 0;
    for (const Rows& rows : taken) {
        if (rows.first < offset + height)
            offset = std::max(offset, rows.last);
    }
    return offset + height <= screen.height() / 2 ? offset : 0;
}

QRect barGeometry(const QRect& screenGeometry, double pixelsPerPoint, int offset) {
    // A whole number of points that is not less than the offset, so that the bar never covers the dock above.
    const int offsetPoints = static_cast<int>(std::ceil(offset / pixelsPerPoint));
    return {screenGeometry.left(), screenGeometry.top() + offsetPoints, screenGeometry.width(),
            barHeightPoints};
}

QRect windowPixels(const QRect& geometry, const QRect& screenGeometry, double pixelsPerPoint) {
    const QPointF fromOrigin = QPointF(geometry.topLeft() - screenGeometry.topLeft()) * pixelsPerPoint;
    return {screenGeometry.topLeft() + fromOrigin.toPoint(),
            (QSizeF(geometry.size()) * pixelsPerPoint).toSize()};
}

std::optional<TopStrut> strutFor(const QRect& bar, const QRect& screen, const QSize& rootSize,
                                 const std::vector<QRect>& otherScreens) {
    const bool isBelowAnother = std::ranges::any_of(otherScreens, [&](const QRect& other) {
        return other.top() < screen.top() && shareColumns(screen, other.left(), other.right());
    });
    if (isBelowAnother)
        return std::nullopt;
    // The bar can be a pixel wider than the screen when its width in points had to be rounded.
    return TopStrut{.height = bar.top() + bar.height(),
                    .startX = std::max(bar.left(), 0),
                    .endX = std::min(bar.right(), rootSize.width() - 1)};
}

} // namespace orvelle
