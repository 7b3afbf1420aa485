#include "charts/line_mask.h"

#include <QList>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

/// Draws the straight pieces of a line into a mask.
class MaskWriter {
public:
    MaskWriter(QImage& mask, double lineWidth)
        : m_pixels(mask.bits())
        , m_bytesPerLine(mask.bytesPerLine())
        , m_width(mask.width())
        , m_height(mask.height())
        , m_reach(static_cast<float>(lineWidth / 2) + halfPixel)
        , m_core(static_cast<float>(lineWidth / 2) - halfPixel)
        , m_densest(static_cast<float>(std::min(lineWidth, 1.0))) {}

    /// Draws the piece between two positions, in pixels, with round ends. Overlapping pieces do not add up.
    void add(const QPointF& from, const QPointF& to) {
        const auto startX = static_cast<float>(from.x()), startY = static_cast<float>(from.y());
        const auto alongX = static_cast<float>(to.x()) - startX, alongY = static_cast<float>(to.y()) - startY;
        const float squaredLength = alongX * alongX + alongY * alongY;
        const float inverse = squaredLength > 0 ? 1 / squaredLength : 0;
        const int left = pixelBelow(std::min(startX, startX + alongX) - m_reach, m_width);
        const int right = pixelBelow(std::max(startX, startX + alongX) + m_reach + 1, m_width);
        const int top = pixelBelow(std::min(startY, startY + alongY) - m_reach, m_height);
        const int bottom = pixelBelow(std::max(startY, startY + alongY) + m_reach + 1, m_height);
        for (int y = top; y < bottom; ++y) {
            uchar* row = m_pixels + y * m_bytesPerLine;
            const float fromStartY = static_cast<float>(y) + halfPixel - startY;
            for (int x = left; x < right; ++x) {
                const float fromStartX = static_cast<float>(x) + halfPixel - startX;
                const float share =
                    std::clamp((fromStartX * alongX + fromStartY * alongY) * inverse, 0.0F, 1.0F);
                const float acrossX = fromStartX - share * alongX, acrossY = fromStartY - share * alongY;
                row[x] = std::max(row[x], coverage(acrossX * acrossX + acrossY * acrossY));
            }
        }
    }

private:
    static constexpr float halfPixel = 0.5F;

    static int pixelBelow(float position, int limit) {
        return static_cast<int>(std::clamp(position, 0.0F, static_cast<float>(limit)));
    }

    /// The opacity of a pixel whose centre is this far from the line. Under a line thinner than a pixel it is
    /// at most the share of the pixel that the line covers.
    [[nodiscard]] uchar coverage(float squaredDistance) const {
        if (squaredDistance >= m_reach * m_reach)
            return 0;
        const bool isInside = m_core > 0 && squaredDistance <= m_core * m_core;
        const float share = isInside ? 1 : std::min(m_reach - std::sqrt(squaredDistance), m_densest);
        return static_cast<uchar>(share * 255 + halfPixel);
    }

    uchar* m_pixels;
    qsizetype m_bytesPerLine;
    int m_width;
    int m_height;
    float m_reach;   ///< beyond this distance a pixel is clear
    float m_core;    ///< up to this distance a pixel is fully covered
    float m_densest; ///< opacity of a pixel on the line
};

void addLine(MaskWriter& writer, const QPolygonF& line) {
    for (qsizetype index = 1; index < line.size(); ++index)
        writer.add(line[index - 1], line[index]);
}

/// Draws the dashes, which continue around corners.
void addDashes(MaskWriter& writer, const QPolygonF& line, const DashPattern& dashes) {
    bool isDash = true;
    double left = dashes.dash;
    for (qsizetype index = 1; index < line.size(); ++index) {
        QPointF from = line[index - 1];
        const QPointF span = line[index] - from;
        const double length = std::hypot(span.x(), span.y());
        double walked = 0;
        while (walked < length) {
            const double step = std::min(left, length - walked);
            walked += step;
            left -= step;
            const QPointF to = line[index - 1] + span * (walked / length);
            if (isDash)
                writer.add(from, to);
            from = to;
            if (left <= 0) {
                isDash = !isDash;
                left = isDash ? dashes.dash : dashes.gap;
            }
        }
    }
}

/// The path as polylines in pixels of the mask. It is flattened at a higher resolution than a fill needs,
/// because the corners would show along the edge of a line.
QList<QPolygonF> flattened(const QPainterPath& path, const QTransform& toMask) {
    constexpr double finer = 2;
    QList<QPolygonF> lines = path.toSubpathPolygons(toMask * QTransform::fromScale(finer, finer));
    for (QPolygonF& line : lines) {
        for (QPointF& point : line)
            point /= finer;
    }
    return lines;
}

} // namespace

Picture lineMask(const PixelGrid& grid, const QRectF& area, const QPainterPath& path, double width,
                 const std::optional<DashPattern>& dashes) {
    const QRect pixels = grid.covering(area);
    if (pixels.isEmpty() || !(width > 0))
        return {};
    Picture mask{QImage(pixels.size(), QImage::Format_Alpha8), pixels.topLeft()};
    mask.image.fill(0);
    constexpr double widest = 1000;
    MaskWriter writer(mask.image, std::min(width, widest) * grid.pixelsPerPoint);
    const QTransform toMask = grid.toPixels() * QTransform::fromTranslate(-pixels.x(), -pixels.y());
    for (const QPolygonF& line : flattened(path, toMask)) {
        if (dashes)
            addDashes(writer, line, {dashes->dash * grid.pixelsPerPoint, dashes->gap * grid.pixelsPerPoint});
        else
            addLine(writer, line);
    }
    return mask;
}

} // namespace orvelle
