#include "shell/tray/tray_picture.h"

#include <QDBusMetaType>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

TEST(TrayPictureTest, ComesInTwoSizesForUsualAndDenseScreens) {
    const TrayPictures pictures = trayPictures([](QPainter&, const QRectF&) {});
    ASSERT_EQ(pictures.size(), 2);
    for (const TrayPicture& picture : pictures) {
        EXPECT_EQ(picture.width, picture.height);
        EXPECT_EQ(picture.bytes.size(), picture.width * picture.height * 4);
    }
    EXPECT_EQ(pictures[0].width, 22);
    EXPECT_EQ(pictures[1].width, 44);
}

TEST(TrayPictureTest, HoldsAlphaRedGreenAndBlueInThisOrder) {
    const TrayPictures pictures = trayPictures(
        [](QPainter& painter, const QRectF& square) { painter.fillRect(square, QColor(1, 2, 3)); });
    EXPECT_EQ(pictures[0].bytes.first(8), QByteArray::fromHex("ff010203ff010203"));
    EXPECT_EQ(pictures[1].bytes.last(4), QByteArray::fromHex("ff010203"));
}

TEST(TrayPictureTest, KeepsTheColourOfATranslucentPixel) {
    const TrayPictures pictures = trayPictures(
        [](QPainter& painter, const QRectF& square) { painter.fillRect(square, QColor(255, 0, 0, 128)); });
    EXPECT_EQ(pictures[0].bytes.first(4), QByteArray::fromHex("80ff0000"));
}

TEST(TrayPictureTest, IsTransparentWhereNothingIsPainted) {
    const TrayPictures pictures = trayPictures([](QPainter&, const QRectF&) {});
    EXPECT_EQ(pictures[0].bytes, QByteArray(22 * 22 * 4, '\0'));
}

TEST(TrayPictureTest, PaintsTheSameSquareOfPointsInBothSizes) {
    QList<QRectF> squares;
    const TrayPictures pictures = trayPictures([&squares](QPainter& painter, const QRectF& square) {
        squares.append(square);
        painter.fillRect(QRectF(0, 0, 11, 22), Qt::white); // the left half
    });
    EXPECT_EQ(squares, QList<QRectF>(2, QRectF(0, 0, 22, 22)));
    for (const TrayPicture& picture : pictures) {
        EXPECT_EQ(picture.bytes[(picture.width / 2 - 1) * 4], '\xff');
        EXPECT_EQ(picture.bytes[picture.width / 2 * 4], '\0');
    }
}

TEST(TrayPictureTest, HasTheSignaturesThatTraysAskFor) {
    qDBusRegisterMetaType<TrayPicture>();
    qDBusRegisterMetaType<TrayPictures>();
    qDBusRegisterMetaType<TrayToolTip>();
    EXPECT_STREQ(QDBusMetaType::typeToSignature(QMetaType::fromType<TrayPictures>()), "a(iiay)");
    EXPECT_STREQ(QDBusMetaType::typeToSignature(QMetaType::fromType<TrayToolTip>()), "(sa(iiay)ss)");
}

} // namespace
} // namespace orvelle
