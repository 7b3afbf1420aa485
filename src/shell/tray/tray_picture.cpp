#include "shell/tray/tray_picture.h"

#include <QImage>
#include <QtEndian>

namespace orvelle {
namespace {

TrayPicture pictureOf(const QImage& painted) {
    const QImage image = painted.convertToFormat(QImage::Format_ARGB32);
    TrayPicture picture{image.width(), image.height(), {}};
    picture.bytes.resize(image.sizeInBytes());
    // A line of such an image has no padding, because its pixels fill whole words.
    qToBigEndian<quint32>(image.constBits(), image.sizeInBytes() / 4, picture.bytes.data());
    return picture;
}

} // namespace

TrayPictures trayPictures(const std::function<void(QPainter&, const QRectF& square)>& paint) {
    TrayPictures pictures;
    for (const int pixelsPerPoint : {1, 2}) {
        const int side = trayIconPoints * pixelsPerPoint;
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(pixelsPerPoint);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        paint(painter, QRectF(0, 0, trayIconPoints, trayIconPoints));
        painter.end();
        pictures.append(pictureOf(image));
    }
    return pictures;
}

QDBusArgument& operator<<(QDBusArgument& argument, const TrayPicture& picture) {
    argument.beginStructure();
    argument << picture.width << picture.height << picture.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayPicture& picture) {
    argument.beginStructure();
    argument >> picture.width >> picture.height >> picture.bytes;
    argument.endStructure();
    return argument; // NOLINT(bugprone-return-const-ref-from-parameter): what QtDBus asks for
}

QDBusArgument& operator<<(QDBusArgument& argument, const TrayToolTip& toolTip) {
    argument.beginStructure();
    argument << QString() << TrayPictures() << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayToolTip& toolTip) {
    QString iconName;
    TrayPictures pictures;
    argument.beginStructure();
    argument >> iconName >> pictures >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument; // NOLINT(bugprone-return-const-ref-from-parameter): what QtDBus asks for
}

} // namespace orvelle
