#pragma once

#include "support/pixels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace orvelle {

/// A test of pictures that runs at one and at two pixels per point.
class AtScale : public ::testing::TestWithParam<double> {
protected:
    /// What `paint` draws on a transparent image of `size` points.
    [[nodiscard]] QImage painted(const QSizeF& size, const std::function<void(QPainter&)>& paint) const {
        return unscaled(paintedImage(size, GetParam(), paint));
    }

    /// A length in pixels.
    [[nodiscard]] int pixels(double points) const { return static_cast<int>(points * GetParam()); }

    /// The colour of the pixel whose centre lies nearest to a position in points.
    [[nodiscard]] QColor colorAt(const QImage& image, double x, double y) const {
        return image.pixelColor(pixels(x), pixels(y));
    }
};

/// The parameters of every such test.
inline const auto bothScales = ::testing::Values(1.0, 2.0);

/// Whether two colours are the same but for rounding while painting.
inline bool isNear(const QColor& left, const QColor& right, int tolerance = 3) {
    return std::abs(left.red() - right.red()) <= tolerance &&
           std::abs(left.green() - right.green()) <= tolerance &&
           std::abs(left.blue() - right.blue()) <= tolerance &&
           std::abs(left.alpha() - right.alpha()) <= tolerance;
}

/// The largest difference between the stored components of two premultiplied images of one size.
inline int largestDifference(const QImage& left, const QImage& right) {
    int largest = 0;
    for (int y = 0; y < left.height(); ++y) {
        const uchar* leftRow = left.constScanLine(y);
        const uchar* rightRow = right.constScanLine(y);
        for (int byte = 0; byte < left.width() * 4; ++byte)
            largest = std::max(largest, std::abs(leftRow[byte] - rightRow[byte]));
    }
    return largest;
}

} // namespace orvelle
