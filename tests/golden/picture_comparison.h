#pragma once

#include <QImage>
#include <QRect>

namespace orvelle {

/// The allowed difference of a pixel's component (0 to 255) from the golden picture. It covers the rounding
/// of other processors and compilers, but not the faintest drawn shape.
inline constexpr int componentTolerance = 6;

/// The difference between a picture and the golden one.
struct PictureDifference {
    bool sizesDiffer = false;
    qsizetype pixelCount = 0; ///< pixels that differ by more than the tolerance
    int largest = 0;          ///< the largest difference between two components
    QRect area = {};          ///< the bounding rectangle of these pixels, in pixels

    [[nodiscard]] bool isNone() const { return !sizesDiffer && pixelCount == 0; }
};

[[nodiscard]] PictureDifference compare(const QImage& actual, const QImage& golden);

/// The faded golden picture with differing pixels in red, or the actual picture if the sizes differ.
[[nodiscard]] QImage differencePicture(const QImage& actual, const QImage& golden);

} // namespace orvelle
