#pragma once

#include "charts/picture.h"

#include <concepts>
#include <cstddef>
#include <optional>
#include <vector>

namespace orvelle {

/// Pictures kept from one repaint to the next, because drawing a chart costs many times what showing the
/// result does. `Subject` is everything that decides what the picture shows, and can be compared. The host of
/// a chart owns the cache and hands it to every `paint`.
template <typename Subject>
class PictureCache {
public:
    /// Shows the picture of `subject` within `area` (points). `draw` is called only when `index` last held
    /// another subject, another area, or a picture for another pixel grid. Several pictures of one chart are
    /// numbered from 0.
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

/// Shows the picture from `cache`, or draws straight away when there is no cache.
template <typename Subject, std::invocable<QPainter&> Draw>
void showKept(QPainter& painter, PictureCache<Subject>* cache, const Subject& subject, const QRectF& area,
              const Draw& draw, std::size_t index = 0) {
    if (cache != nullptr)
        cache->show(painter, subject, area, draw, index);
    else
        draw(painter);
}

} // namespace orvelle
