#include "shell/x11/work_area.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

namespace orvelle {
namespace {

/// A window manager that counts in points may round what was reserved.
constexpr int roundingPixels = 2;

/// A root window is no larger.
constexpr std::uint32_t mostPixels = std::numeric_limits<std::uint16_t>::max();

std::int64_t areaOf(const QRect& rectangle) {
    return std::int64_t{rectangle.width()} * rectangle.height();
}

} // namespace

std::vector<QRect> workAreasIn(std::span<const std::uint32_t> values) {
    constexpr std::size_t valuesOfOne = 4;
    std::vector<QRect> areas;
    for (; values.size() >= valuesOfOne; values = values.subspan(valuesOfOne)) {
        const bool isPossible = std::ranges::all_of(values.first(valuesOfOne),
                                                    [](std::uint32_t value) { return value <= mostPixels; });
        const std::array<int, valuesOfOne> area{static_cast<int>(values[0]), static_cast<int>(values[1]),
                                                static_cast<int>(values[2]), static_cast<int>(values[3])};
        if (isPossible && area[2] > 0 && area[3] > 0)
            areas.emplace_back(area[0], area[1], area[2], area[3]);
    }
    return areas;
}

int heightAboveWorkArea(const QRect& screen, const std::vector<QRect>& areas) {
    QRect most;
    for (const QRect& area : areas) {
        const QRect shared = area & screen;
        if (areaOf(shared) > areaOf(most))
            most = shared;
    }
    if (most.isEmpty())
        return 0;
    const int height = most.top() - screen.top();
    return most.width() >= screen.width() / 2 && height <= screen.height() / 2 ? height : 0;
}

bool isReservedByDocks(const QRect& screen, const std::vector<QRect>& areas,
                       const std::vector<TopDock>& docks) {
    const int bottom = screen.top() + heightAboveWorkArea(screen, areas);
    const bool isOfAllScreens = areas.size() == 1 && !screen.contains(areas.front());
    return std::ranges::any_of(docks, [&](const TopDock& dock) {
        const bool isOnScreen = dock.strut.startX <= screen.right() && dock.strut.endX >= screen.left();
        return (isOnScreen || isOfAllScreens) && dock.strut.height >= bottom;
    });
}

std::optional<TopDock> TopStrip::asDock(const QRect& screen) const {
    if (m_height <= 0)
        return std::nullopt;
    return TopDock{.window = QRect(screen.left(), screen.top(), screen.width(), m_height),
                   .strut = {screen.top() + m_height, screen.left(), screen.right()}};
}

void TopStrip::beginMeasurement(int reserved, std::optional<int> refutation) {
    m_withdrawn = m_isMeasuring ? std::max(m_withdrawn, reserved) : reserved;
    m_isMeasuring = true;
    m_refutation = refutation;
}

void TopStrip::measure(const Announcement& announced, bool isLate) {
    const bool isEcho = m_withdrawn > 0 && std::abs(announced.height - m_withdrawn) <= roundingPixels;
    if (isEcho && !isLate)
        return;
    m_isMeasuring = false;
    if (isEcho)
        return; // of a window manager that is gone, or has not noticed: the last measurement holds
    // Behind a dock the strip may be as high as before, but no higher than what is announced.
    m_height = announced.isReservedByDocks ? std::min(m_height, announced.height) : announced.height;
}

bool TopStrip::isRefutedBy(const Announcement& announced, int reserved) const {
    const bool isTooLow = announced.height < m_height;
    const bool isTooHigh = announced.height > std::max(m_height, reserved) + roundingPixels;
    return (isTooLow || (isTooHigh && !announced.isReservedByDocks)) && announced.height != m_refutation;
}

} // namespace orvelle
