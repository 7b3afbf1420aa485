#include "charts/glow_picture.h"

#include "charts/blur.h"
#include "look/device_pixels.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

/// Beyond this many pixels a side a glow is left out: no screen shows it, and its memory would be felt.
constexpr double largestSide = 8192;

/// The resolution to blur for. It moves in steps, so that a chart whose size pulses by a few percent keeps
/// its picture.
double blurResolution(const QPainter& painter) {
    constexpr double stepsPerUnit = 4;
    constexpr double largest = 8;
    return std::clamp(std::round(devicePixelsPerPoint(painter) * stepsPerUnit), 1.0, largest * stepsPerUnit) /
           stepsPerUnit;
}

/// Whether the painter's coordinates are pixels of `pixelsPerPoint` that are only moved.
bool onlyScalesBy(const QTransform& toPixels, double pixelsPerPoint) {
    return toPixels.type() <= QTransform::TxScale && qFuzzyCompare(toPixels.m11(), pixelsPerPoint) &&
           qFuzzyCompare(toPixels.m22(), pixelsPerPoint);
}

/// The pixels to paint, or an empty rectangle when there are none or far too many.
QRect pixelsOf(const Glow& glow, const QTransform& toPixels) {
    const double penReach = glow.pen.style() == Qt::NoPen ? 0 : glow.pen.widthF();
    QRectF inked = glow.shape.controlPointRect().adjusted(-penReach, -penReach, penReach, penReach);
    if (!glow.visible.isEmpty()) {
        const double reach = glow.radius * 2;
        inked &= glow.visible.adjusted(-reach, -reach, reach, reach);
    }
    const QRectF pixels = toPixels.mapRect(inked);
    const bool isPaintable = std::isfinite(pixels.x()) && std::isfinite(pixels.y()) && !pixels.isEmpty() &&
                             pixels.width() < largestSide && pixels.height() < largestSide &&
                             std::abs(pixels.x()) < largestSide && std::abs(pixels.y()) < largestSide;
    return isPaintable ? pixels.toAlignedRect() : QRect();
}

} // namespace

GlowCache::Picture GlowCache::blurred(const Glow& glow, double pixelsPerPoint, const QPointF& phase) {
    Picture picture{glow, pixelsPerPoint, phase, {}, {}};
    QTransform toPixels = QTransform::fromTranslate(phase.x(), phase.y());
    toPixels.scale(pixelsPerPoint, pixelsPerPoint);
    const QRect inked = pixelsOf(glow, toPixels);
    if (inked.isEmpty())
        return picture;
    const double sigma = glow.radius / 2 * pixelsPerPoint;
    const int reach = blurReach(sigma);
    const QRect covered = inked.adjusted(-reach, -reach, reach, reach);
    QImage alpha(covered.size(), QImage::Format_Alpha8);
    alpha.fill(0);
    QPainter painter(&alpha);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(toPixels * QTransform::fromTranslate(-covered.x(), -covered.y()));
    painter.setPen(glow.pen);
    painter.setBrush(glow.brush);
    painter.drawPath(glow.shape);
    painter.end();
    picture.image = tinted(blurredAlpha(alpha, sigma), glow.color);
    picture.pixelOffset = covered.topLeft();
    return picture;
}

void GlowCache::paint(QPainter& painter, const Glow& glow, std::size_t index) {
    const QTransform toPixels = painter.deviceTransform();
    const double pixelsPerPoint = blurResolution(painter);
    const QPointF origin = toPixels.map(QPointF(0, 0));
    const QPointF originPixel(std::floor(origin.x()), std::floor(origin.y()));
    const bool isPixelAligned = onlyScalesBy(toPixels, pixelsPerPoint);
    const QPointF phase = isPixelAligned ? origin - originPixel : QPointF();
    if (index >= m_pictures.size())
        m_pictures.resize(index + 1);
    Picture& picture = m_pictures[index];
    if (picture.pixelsPerPoint != pixelsPerPoint || picture.phase != phase || picture.glow != glow) {
        picture = blurred(glow, pixelsPerPoint, phase);
        ++m_blurCount;
    }
    if (picture.image.isNull())
        return;
    painter.save();
    if (isPixelAligned) {
        // Copying pixels to pixels is many times faster than scaling. The painter multiplies what is set here
        // with the resolution of its device, so that has to be divided out.
        const double deviceRatio = painter.device()->devicePixelRatioF();
        painter.setWorldTransform(QTransform::fromScale(1 / deviceRatio, 1 / deviceRatio));
        painter.drawImage(originPixel + picture.pixelOffset, picture.image);
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.scale(1 / pixelsPerPoint, 1 / pixelsPerPoint);
        painter.drawImage(QPointF(picture.pixelOffset), picture.image);
    }
    painter.restore();
}

void paintGlow(QPainter& painter, const Glow& glow, GlowCache* cache, std::size_t index) {
    if (!(glow.radius > 0) || glow.color.alpha() == 0 || glow.shape.isEmpty())
        return;
    GlowCache unkept;
    (cache != nullptr ? *cache : unkept).paint(painter, glow, index);
}

} // namespace orvelle
