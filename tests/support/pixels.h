#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>

#include <functional>

/// Pictures for tests: paints into an image and examines its pixels.
namespace orvelle {

/// A transparent image of `size` points at a device pixel ratio, painted by `paint`. Antialiasing is off
/// unless `paint` switches it on.
inline QImage paintedImage(const QSizeF& size, double devicePixelRatio,
                           const std::function<void(QPainter&)>& paint) {
    QImage image((size * devicePixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paint(painter);
    return image;
}

/// Copies the pixels without the device pixel ratio, for comparison.
inline QImage unscaled(QImage image) {
    image.setDevicePixelRatio(1);
    return image;
}

/// The number of pixels of exactly this colour.
inline int countPixels(const QImage& image, const QColor& color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y).rgba() == color.rgba() ? 1 : 0;
    }
    return count;
}

/// The painted area in pixels. A translucent pixel counts by its opacity.
inline double coveredArea(const QImage& image) {
    double area = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            area += qAlpha(image.pixel(x, y)) / 255.0;
    }
    return area;
}

/// The bounding rectangle of all painted pixels; empty if there are none.
inline QRect paintedRect(const QImage& image) {
    QRect rect;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                rect |= QRect(x, y, 1, 1);
        }
    }
    return rect;
}

} // namespace orvelle
