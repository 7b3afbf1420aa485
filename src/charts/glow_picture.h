#pragma once

#include <QBrush>
#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QRectF>

#include <cstddef>
#include <vector>

namespace orvelle {

/// A blurred, tinted copy of a shape, to be painted under it. Lengths are points in the painter's
/// coordinates.
struct Glow {
    QPainterPath shape = {};
    QPen pen = Qt::NoPen;       ///< how the shape is stroked; of its colours only the opacity counts
    QBrush brush = Qt::NoBrush; ///< how the shape is filled; of its colours only the opacity counts
    QColor color = {};          ///< the glow's colour and opacity
    double radius = 0;          ///< of the blur; its standard deviation is half of that
    QRectF visible = {};        ///< what of the glow is looked at; empty means all of it

    bool operator==(const Glow&) const = default;
};

/// Glows kept from one repaint to the next, because blurring costs far more than showing the result. The host
/// of a chart owns one for that chart and hands it to every `paint`.
class GlowCache {
public:
    /// Paints `glow`. It is blurred only when `index` last held another one, or one for another resolution. A
    /// chart with several glows numbers them from 0.
    void paint(QPainter& painter, const Glow& glow, std::size_t index = 0);

    /// How many glows have been blurred since the cache was made.
    [[nodiscard]] std::size_t blurCount() const { return m_blurCount; }

private:
    struct Picture {
        Glow glow;
        double pixelsPerPoint = 0;
        QPointF phase; ///< of the painter's origin within its pixel
        QImage image;
        QPoint pixelOffset; ///< of the image from the pixel of the painter's origin
    };

    static Picture blurred(const Glow& glow, double pixelsPerPoint, const QPointF& phase);

    std::vector<Picture> m_pictures;
    std::size_t m_blurCount = 0;
};

/// Paints `glow` from `cache`, or blurs it anew when there is no cache. A glow that cannot be seen costs
/// nothing.
void paintGlow(QPainter& painter, const Glow& glow, GlowCache* cache, std::size_t index = 0);

} // namespace orvelle
