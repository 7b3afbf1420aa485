#include "charts/picture.h"

#include "theme/device_pixels.h"

#include <QPaintDevice>

#include <algorithm>
#include <array>
#include <cmath>

namespace orvelle {
namespace {

/// Pixels per side. A larger picture cannot be seen as a whole and takes too much memory.
constexpr double largestPictureSide = 8192;

double steppedResolution(const QPainter& painter) {
    constexpr double stepsPerUnit = 4;
    constexpr double largest = 8;
    return std::clamp(std::round(devicePixelsPerPoint(painter) * stepsPerUnit), 1.0, largest * stepsPerUnit) /
           stepsPerUnit;
}

/// Whether the way from points to pixels is a plain scale, and by exactly this factor.
bool isOnlyScaledBy(const QTransform& toDevice, double pixelsPerPoint) {
    return toDevice.type() <= QTransform::TxScale && qFuzzyCompare(toDevice.m11(), pixelsPerPoint) &&
           qFuzzyCompare(toDevice.m22(), pixelsPerPoint);
}

QPointF originPixel(const QTransform& toDevice) {
    return {std::floor(toDevice.dx()), std::floor(toDevice.dy())};
}

} // namespace

PixelGrid PixelGrid::under(const QPainter& painter) {
    const QTransform toDevice = painter.deviceTransform();
    PixelGrid grid{.pixelsPerPoint = steppedResolution(painter), .phase = {}};
    if (isOnlyScaledBy(toDevice, grid.pixelsPerPoint))
        grid.phase = QPointF(toDevice.dx(), toDevice.dy()) - originPixel(toDevice);
    return grid;
}

QTransform PixelGrid::toPixels() const {
    return {pixelsPerPoint, 0, 0, pixelsPerPoint, phase.x(), phase.y()};
}

QRect PixelGrid::covering(const QRectF& area) const {
    const QRectF pixels = toPixels().mapRect(area);
    const bool isDrawable =
        !pixels.isEmpty() && pixels.width() < largestPictureSide && pixels.height() < largestPictureSide &&
        std::abs(pixels.x()) < largestPictureSide && std::abs(pixels.y()) < largestPictureSide;
    return isDrawable ? pixels.toAlignedRect() : QRect();
}

Picture rasterize(const PixelGrid& grid, const QRectF& area, QImage::Format format,
                  const std::function<void(QPainter&)>& paint) {
    const QRect pixels = grid.covering(area);
    if (pixels.isEmpty())
        return {};
    Picture picture{QImage(pixels.size(), format), pixels.topLeft()};
    picture.image.fill(Qt::transparent);
    QPainter painter(&picture.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(grid.toPixels() * QTransform::fromTranslate(-pixels.x(), -pixels.y()));
    paint(painter);
    return picture;
}

void showPicture(QPainter& painter, const Picture& picture) {
    if (picture.image.isNull())
        return;
    const QTransform toDevice = painter.deviceTransform();
    const double pixelsPerPoint = steppedResolution(painter);
    painter.save();
    if (isOnlyScaledBy(toDevice, pixelsPerPoint)) {
        // The painter multiplies what is set here with its device's own ratio, so that is divided out.
        const double ratio = painter.device()->devicePixelRatioF();
        painter.setWorldTransform(QTransform::fromScale(1 / ratio, 1 / ratio));
        painter.drawImage(originPixel(toDevice) + picture.offset, picture.image);
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.scale(1 / pixelsPerPoint, 1 / pixelsPerPoint);
        painter.drawImage(QPointF(picture.offset), picture.image);
    }
    painter.restore();
}

QImage tinted(const QImage& mask, const QColor& color) {
    std::array<QRgb, 256> shades{};
    const QRgb opaque = color.rgb();
    for (std::size_t opacity = 0; opacity < shades.size(); ++opacity) {
        const auto shade = static_cast<int>(std::lround(color.alphaF() * static_cast<float>(opacity)));
        shades[opacity] = qPremultiply(qRgba(qRed(opaque), qGreen(opaque), qBlue(opaque), shade));
    }
    QImage image(mask.size(), QImage::Format_ARGB32_Premultiplied);
    const int width = mask.width();
    for (int y = 0; y < mask.height(); ++y) {
        const uchar* opacities = mask.constScanLine(y);
        auto* pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x)
            pixels[x] = shades[opacities[x]];
    }
    return image;
}

} // namespace orvelle
