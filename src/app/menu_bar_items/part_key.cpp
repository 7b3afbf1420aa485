#include "app/menu_bar_items/part_key.h"

#include <cmath>

namespace orvelle {

double visibleLength(double points) {
    constexpr double stepsPerPoint = 16;
    return std::round(points * stepsPerPoint) / stepsPerPoint;
}

} // namespace orvelle
