#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPoint>
#include <QPointF>
#include <QRectF>
#include <QTransform>

#include <concepts>
#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

/// Parts of a chart rasterized for the pixels under a painter, and a cache that keeps them between repaints.
namespace orvelle {

/// The pixels under a painter: their resolution, and the phase of the painter's origin among them. A picture
/// made for a grid is copied pixel by pixel, which is many times faster than scaling it.
struct PixelGrid {
    double pixelsPerPoint = 1; ///< in steps of a quarter, so that a pulsing chart keeps its pictures
    /// Of the painter's origin within its pixel, 0 to 1; 0 under a painter that is turned or scaled
    /// otherwise.
    QPointF phase;

    /// The grid under the present coordinates of `painter`.
    [[nodiscard]] static PixelGrid under(const QPainter& painter);

    /// From the painter's points to pixels, counted from the pixel that holds the painter's origin.
    [[nodiscard]] QTransform toPixels() const;

    /// The pixels that `area` (points) touches. Empty when there are none, or more than any screen shows.
    [[nodiscard]] QRect covering(const QRectF& area) const;

    bool operator==(const PixelGrid&) const = default;
};

/// An image and its place on a grid.
struct Picture {
    QImage image;  ///< null when there is nothing to see
    QPoint offset; ///< of its top-left pixel from the pixel that holds the painter's origin
};

/// What `paint` draws within `area`, in the given format; transparent where it draws nothing.
[[nodiscard]] Picture rasterize(const PixelGrid& grid, const QRectF& area, QImage::Format format,
                                const std::function<void(QPainter&)>& paint);

/// Paints a picture made for the grid under `painter`.
void showPicture(QPainter& painter, const Picture& picture);

/// An image of `color` whose opacity is that of `mask` (Format_Alpha8) times the colour's own.
[[nodiscard]] QImage tinted(const QImage& mask, const QColor& color);

/// Keeps pictures between repaints, because drawing a chart costs many times what copying its picture does.
/// `Subject` is everything that the picture depends on. The host of a chart owns the cache and passes it to
/// every `paint`.
template <typename Subject>
class PictureCache {
public:
    /// Shows the picture of `subject` within `area` (points). Calls `draw` only when `index` last held
    /// another subject, another area, or a picture for another grid. The pictures of one chart are numbered
    /// from 0.
    template <std::invocable<QPainter&> Draw>
    void show(QPainter& painter, const Subject& subject, const QRectF& area, const Draw& draw,
              std::size_t index = 0) {
        const PixelGrid grid = PixelGrid::under(painter);
        if (grid.covering(area).isEmpty())
            return;
        if (index >= m_pictures.size())
            m_pictures.resize(index + 1);
        std::optional<Kept>& kept = m_pictures[index];
        if (!kept || kept->grid != grid || kept->area != area || !(kept->subject == subject)) {
            kept =
                Kept{subject, area, grid, rasterize(grid, area, QImage::Format_ARGB32_Premultiplied, draw)};
            ++m_drawCount;
        }
        showPicture(painter, kept->picture);
    }

    /// How many pictures have been drawn since the cache was made.
    [[nodiscard]] std::size_t drawCount() const { return m_drawCount; }

private:
    struct Kept {
        Subject subject;
        QRectF area;
        PixelGrid grid;
        Picture picture;
    };

    std::vector<std::optional<Kept>> m_pictures;
    std::size_t m_drawCount = 0;
};

/// Shows the picture from `cache`, or draws directly without one.
template <typename Subject, std::invocable<QPainter&> Draw>
void showKept(QPainter& painter, PictureCache<Subject>* cache, const Subject& subject, const QRectF& area,
              const Draw& draw, std::size_t index = 0) {
    if (cache != nullptr)
        cache->show(painter, subject, area, draw, index);
    else
        draw(painter);
}

} // namespace orvelle
