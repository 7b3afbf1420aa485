#include "theme/device_pixels.h"

#include <QImage>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

TEST(DevicePixels, CombineTheScreensRatioAndThePaintersScale) {
    QImage image(30, 30, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(1.5);
    QPainter painter(&image);
    EXPECT_DOUBLE_EQ(devicePixelsPerPoint(painter), 1.5);
    painter.scale(2, 2);
    EXPECT_DOUBLE_EQ(devicePixelsPerPoint(painter), 3);
}

TEST(DevicePixels, SnapAPositionToTheNearestPixelCorner) {
    QImage image(30, 30, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(2);
    QPainter painter(&image);
    EXPECT_EQ(snappedToDevicePixels(painter, QPointF(3.3, 4.1)), QPointF(3.5, 4));
    painter.translate(0.2, 0);
    EXPECT_EQ(snappedToDevicePixels(painter, QPointF(3.3, 4)) + QPointF(0.2, 0), QPointF(3.5, 4));
}

TEST(DevicePixels, LeaveAPositionWhenTheTransformationCannotBeInverted) {
    QImage image(30, 30, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.scale(0, 0);
    EXPECT_EQ(snappedToDevicePixels(painter, QPointF(3.3, 4.1)), QPointF(3.3, 4.1));
}

} // namespace
} // namespace orvelle
