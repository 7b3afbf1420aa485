#include "theme/symbols.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace orvelle {
namespace {

QString resourcePath(QStringView name) {
    return QStringLiteral(":/symbols/%1.svg").arg(name);
}

/// The width of the stroke that thickens the 16-unit outline.
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

} // namespace

bool isKnownSymbol(QStringView name) {
    return QFile::exists(resourcePath(name));
}

std::optional<double> symbolWidth(QStringView name, double height, QFont::Weight /*weight*/) {
    return isKnownSymbol(name) ? std::optional(height) : std::nullopt;
}

QImage rasterizeSymbol(QStringView name, int height, QFont::Weight weight) {
    QSvgRenderer renderer(readOutline(name, weight));
    if (!renderer.isValid())
        return {};
    QImage image(height, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

} // namespace orvelle
