#pragma once

#include "charts/picture.h"

#include <QPainterPath>

#include <optional>

namespace orvelle {

/// Lengths along a dashed line, points.
struct DashPattern {
    double dash = 0;
    double gap = 0;

    bool operator==(const DashPattern&) const = default;
};

/// The coverage (Format_Alpha8) within `area` of a line of `width` points along `path`, with round caps and
/// joins. The coverage of a pixel is computed from its distance to the line: for the long, winding lines of a
/// history that is several times faster than filling their outline.
[[nodiscard]] Picture lineMask(const PixelGrid& grid, const QRectF& area, const QPainterPath& path,
                               double width, const std::optional<DashPattern>& dashes = std::nullopt);

} // namespace orvelle
