#pragma once

#include <QColor>

/// Rules of the disk item.
namespace orvelle {

struct DiskVolumeInfo;

/// The share of the volume that is in use; 0 when its size is not known or it reports more free space than
/// that.
[[nodiscard]] double usedSpaceFraction(const DiskVolumeInfo& volume);

/// The colour of the arrow of one direction: `color` while bytes flow, else a faint grey.
[[nodiscard]] QColor activityArrowColor(double bytesPerSecond, const QColor& color);

} // namespace orvelle
