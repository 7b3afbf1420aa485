#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

namespace {

QImage drawing(QSvgRenderer& renderer, int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

bool writeSizes(QSvgRenderer& renderer, const QDir& folder) {
    for (const int points : {16, 32, 128, 256, 512}) {
        const QString plain = QStringLiteral("icon_%1x%1.png").arg(points);
        const QString doubled = QStringLiteral("icon_%1x%1@2x.png").arg(points);
        if (!drawing(renderer, points).save(folder.filePath(plain)) ||
            !drawing(renderer, 2 * points).save(folder.filePath(doubled)))
            return false;
    }
    return true;
}

} // namespace

/// Paints a drawing in the sizes and under the names that `iconutil` expects in an icon set.
int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::fprintf(stderr, "usage: orvelle_icon_set DRAWING.svg FOLDER.iconset\n");
        return EXIT_FAILURE;
    }
    QSvgRenderer renderer(QString::fromLocal8Bit(arguments[1]));
    const QDir folder(QString::fromLocal8Bit(arguments[2]));
    if (!renderer.isValid() || !folder.mkpath(QStringLiteral(".")) || !writeSizes(renderer, folder)) {
        std::fprintf(stderr, "orvelle_icon_set: cannot paint %s into %s\n", arguments[1], arguments[2]);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
