#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QList>
#include <QPainter>

#include <functional>

/// Pictures as a tray takes them over D-Bus.
namespace orvelle {

/// Width and height of the picture in points.
inline constexpr int trayIconPoints = 22;

/// A square picture: rows of pixels from the top, four bytes each, alpha, red, green and blue. The colours
/// are not multiplied by alpha.
struct TrayPicture {
    int width = 0;
    int height = 0;
    QByteArray bytes;

    bool operator==(const TrayPicture&) const = default;
};

/// The same picture in several sizes, from which the tray chooses.
using TrayPictures = QList<TrayPicture>;

/// The picture in 22 pixels for usual screens and in 44 for dense ones. `paint` gets a square of 22 points.
[[nodiscard]] TrayPictures trayPictures(const std::function<void(QPainter&, const QRectF& square)>& paint);

/// What the tray shows while the pointer rests on the icon.
struct TrayToolTip {
    QString title;
    QString text; ///< may hold markup, so plain text must be escaped

    bool operator==(const TrayToolTip&) const = default;
};

// As D-Bus carries them: (iiay), and (sa(iiay)ss) with neither name nor pictures of an icon.
QDBusArgument& operator<<(QDBusArgument& argument, const TrayPicture& picture);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayPicture& picture);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayToolTip& toolTip);

} // namespace orvelle
