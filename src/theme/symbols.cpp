#include "theme/symbols.h"

#include "theme/device_pixels.h"

#include <QCache>
#include <QPixmap>
#include <QSvgRenderer>

#include <algorithm>

namespace orvelle {
namespace {

/// The height of a line of text.
double symbolHeight(double fontSize) {
    return 1.2 * fontSize;
}

struct SymbolKey {
    QString name;
    double fontSize = 0;
    QRgb color = 0;
    double devicePixelRatio = 0;
    int weight = 0;

    bool operator==(const SymbolKey&) const = default;
};

size_t qHash(const SymbolKey& key, size_t seed = 0) {
    return qHashMulti(seed, key.name, key.fontSize, key.color, key.devicePixelRatio, key.weight);
}

QImage renderSymbol(const SymbolKey& key, QFont::Weight weight) {
    const int height = std::max(1, qRound(symbolHeight(key.fontSize) * key.devicePixelRatio));
    QImage image = rasterizeSymbol(key.name, height, weight);
    if (image.isNull()) {
        qWarning("No symbol is named \"%s\"", qUtf8Printable(key.name));
        return {};
    }
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), QColor::fromRgba(key.color));
    painter.end();
    image.setDevicePixelRatio(key.devicePixelRatio);
    return image;
}

} // namespace

QSizeF symbolSize(QStringView name, double fontSize, QFont::Weight weight) {
    if (!(fontSize > 0))
        return {0, 0};
    constexpr qsizetype mostKept = 128;
    static QCache<SymbolKey, QSizeF> cache(mostKept); // the system makes a picture to measure it
    const SymbolKey key{.name = name.toString(), .fontSize = fontSize, .weight = weight};
    if (const QSizeF* kept = cache.object(key))
        return *kept;
    const double height = symbolHeight(fontSize);
    const std::optional<double> width = symbolWidth(name, height, weight);
    if (width)
        cache.insert(key, new QSizeF(*width, height));
    return {width.value_or(height), height};
}

QImage symbolImage(QStringView name, double fontSize, const QColor& color, double devicePixelRatio,
                   QFont::Weight weight) {
    constexpr double largestHeight = 4096;
    const double height = symbolHeight(fontSize) * devicePixelRatio;
    if (!(fontSize > 0) || !(devicePixelRatio > 0) || !(height <= largestHeight))
        return {};
    constexpr qsizetype keptBytes = qsizetype{1024} * 1024;
    static QCache<SymbolKey, QImage> cache(keptBytes);
    const SymbolKey key{name.toString(), fontSize, color.rgba(), devicePixelRatio, weight};
    if (const QImage* kept = cache.object(key))
        return *kept;
    QImage image = renderSymbol(key, weight);
    if (!image.isNull())
        cache.insert(key, new QImage(image), image.sizeInBytes());
    return image;
}

void paintSymbol(QPainter& painter, QStringView name, const QPointF& center, double fontSize,
                 const QColor& color, QFont::Weight weight) {
    const QImage image = symbolImage(name, fontSize, color, devicePixelsPerPoint(painter), weight);
    if (image.isNull())
        return;
    const QSizeF size = image.deviceIndependentSize();
    const QPointF topLeft = center - QPointF(size.width() / 2, size.height() / 2);
    painter.drawImage(QRectF(snappedToDevicePixels(painter, topLeft), size), image);
}

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
