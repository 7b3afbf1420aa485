#pragma once

#include <QPainterPath>
#include <QRectF>

#include <functional>

namespace orvelle {

/// A shape of any kind, held as the function that draws it.
struct AnyShape {
    std::function<QPainterPath(const QRectF&)> pathBuilder;

    /// The shape's outline in `rectangle`; empty when there is no function.
    [[nodiscard]] QPainterPath path(const QRectF& rectangle) const {
        return pathBuilder ? pathBuilder(rectangle) : QPainterPath();
    }
};

} // namespace orvelle
