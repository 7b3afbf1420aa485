#include "picture_comparison.h"

#include <algorithm>
#include <cstdlib>

namespace orvelle {
namespace {

int pixelDifference(QRgb left, QRgb right) {
    return std::max({std::abs(qRed(left) - qRed(right)), std::abs(qGreen(left) - qGreen(right)),
                     std::abs(qBlue(left) - qBlue(right)), std::abs(qAlpha(left) - qAlpha(right))});
}

QRgb faded(QRgb color) {
    constexpr int share = 4;
    const int grey = 255 - (255 - qGray(color)) / share;
    return qRgb(grey, grey, grey);
}

} // namespace

PictureDifference compare(const QImage& actual, const QImage& golden) {
    PictureDifference difference{.sizesDiffer = actual.size() != golden.size()};
    if (difference.sizesDiffer)
        return difference;
    for (int y = 0; y < golden.height(); ++y) {
        for (int x = 0; x < golden.width(); ++x) {
            const int distance = pixelDifference(actual.pixel(x, y), golden.pixel(x, y));
            difference.largest = std::max(difference.largest, distance);
            if (distance <= componentTolerance)
                continue;
            ++difference.pixelCount;
            difference.area |= QRect(x, y, 1, 1);
        }
    }
    return difference;
}

QImage differencePicture(const QImage& actual, const QImage& golden) {
    if (actual.size() != golden.size())
        return actual;
    QImage picture(golden.size(), QImage::Format_RGB32);
    for (int y = 0; y < golden.height(); ++y) {
        for (int x = 0; x < golden.width(); ++x) {
            const bool differs = pixelDifference(actual.pixel(x, y), golden.pixel(x, y)) > componentTolerance;
            picture.setPixel(x, y, differs ? qRgb(255, 0, 0) : faded(golden.pixel(x, y)));
        }
    }
    return picture;
}

} // namespace orvelle
