#pragma once

#include <QImage>
#include <QRect>

namespace orvelle {

/// How far a component of a pixel (0 to 255) may be from that of the golden picture: enough for the rounding
/// of another processor or compiler, too little for the faintest thing that is drawn.
inline constexpr int componentTolerance = 6;

/// Where a picture differs from the golden one.
struct PictureDifference {
    bool sizesDiffer = false;
    qsizetype pixelCount = 0; ///< pixels that differ by more than the tolerance
    int largest = 0;          ///< of all differences between two components
    QRect area = {};          ///< the smallest rectangle that holds the pixels, in pixels

    [[nodiscard]] bool isNone() const { return !sizesDiffer && pixelCount == 0; }
};

[[nodiscard]] PictureDifference compare(const QImage& actual, const QImage& golden);

/// The golden picture faded, with red where a pixel differs; the actual one where the sizes differ.
[[nodiscard]] QImage differencePicture(const QImage& actual, const QImage& golden);

} // namespace orvelle
