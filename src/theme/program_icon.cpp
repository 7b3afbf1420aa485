#include "theme/program_icon.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace orvelle {

QIcon programIcon() {
    QSvgRenderer drawing(QStringLiteral(":/orvelle.svg"));
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128}) {
        QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        drawing.render(&painter);
        painter.end();
        icon.addPixmap(QPixmap::fromImage(picture));
    }
    return icon;
}

} // namespace orvelle
