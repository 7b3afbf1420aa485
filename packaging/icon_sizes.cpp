#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

namespace {

/// Paints the drawing into the file, whose folder is made when it is missing.
bool write(QSvgRenderer& renderer, int side, const QString& file) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return QDir().mkpath(QFileInfo(file).path()) && image.save(file);
}

} // namespace

/// Paints a drawing in several sizes, each into its file.
int main(int argumentCount, char** arguments) {
    if (argumentCount < 4 || argumentCount % 2 != 0) {
        std::fprintf(stderr, "usage: orvelle_icon_sizes DRAWING.svg PIXELS FILE.png [PIXELS FILE.png]...\n");
        return EXIT_FAILURE;
    }
    QSvgRenderer renderer(QString::fromLocal8Bit(arguments[1]));
    for (int index = 2; index < argumentCount; index += 2) {
        const int side = QByteArray(arguments[index]).toInt();
        const char* const file = arguments[index + 1];
        if (!renderer.isValid() || side <= 0 || !write(renderer, side, QString::fromLocal8Bit(file))) {
            std::fprintf(stderr, "orvelle_icon_sizes: cannot paint %s into %s\n", arguments[1], file);
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
