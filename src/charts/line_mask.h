#pragma once

#include "charts/line_rules.h"
#include "charts/picture.h"

#include <QPainterPath>

#include <optional>

namespace orvelle {

/// The coverage (Format_Alpha8) within `area` of a line of `width` points along `path`, with round caps and
/// joins. Every pixel takes its coverage from its distance to the line, which for the long, winding lines of
/// a history is several times faster than filling their outline.
[[nodiscard]] Picture lineMask(const PixelGrid& grid, const QRectF& area, const QPainterPath& path,
                               double width, const std::optional<DashPattern>& dashes = std::nullopt);

} // namespace orvelle
