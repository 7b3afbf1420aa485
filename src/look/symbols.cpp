#include "look/symbols.h"

#include "look/device_pixels.h"

#include <QCache>
#include <QFile>
#include <QSvgRenderer>

#include <algorithm>

namespace orvelle {
namespace {

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

QString resourcePath(QStringView name) {
    return QStringLiteral(":/symbols/%1.svg").arg(name);
}

/// Width of the stroke laid around the 16-unit outline to make it heavier.
double strokeUnits(QFont::Weight weight) {
    if (weight >= QFont::Bold)
        return 0.7;
    if (weight >= QFont::DemiBold)
        return 0.5;
    return weight >= QFont::Medium ? 0.25 : 0;
}

QByteArray readOutline(QStringView name, QFont::Weight weight) {
    QFile file(resourcePath(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray outline = file.readAll();
    if (const double width = strokeUnits(weight); width > 0) {
        const QByteArray stroke = R"(<svg stroke="currentColor" stroke-linejoin="round" stroke-width=")" +
                                  QByteArray::number(width) + '"';
        outline.replace("<svg", stroke);
    }
    return outline;
}

QImage renderSymbol(const SymbolKey& key, QFont::Weight weight) {
    QSvgRenderer renderer(readOutline(key.name, weight));
    if (!renderer.isValid()) {
        qWarning("No symbol is named \"%s\"", qUtf8Printable(key.name));
        return {};
    }
    const int side = std::max(1, qRound(symbolExtent(key.fontSize) * key.devicePixelRatio));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), QColor::fromRgba(key.color));
    painter.end();
    image.setDevicePixelRatio(key.devicePixelRatio);
    return image;
}

} // namespace

bool isKnownSymbol(QStringView name) {
    return QFile::exists(resourcePath(name));
}

QImage symbolImage(QStringView name, double fontSize, const QColor& color, double devicePixelRatio,
                   QFont::Weight weight) {
    constexpr double largestSide = 4096;
    const double side = symbolExtent(fontSize) * devicePixelRatio;
    if (!(fontSize > 0) || !(devicePixelRatio > 0) || !(side <= largestSide))
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

} // namespace orvelle
