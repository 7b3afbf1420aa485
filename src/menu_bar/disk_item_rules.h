#pragma once

#include <QColor>

/// Rules of the disk item.
namespace orvelle {

/// The colour of the arrow of one direction: `color` while bytes flow, else a faint grey.
[[nodiscard]] QColor activityArrowColor(double bytesPerSecond, const QColor& color);

} // namespace orvelle
