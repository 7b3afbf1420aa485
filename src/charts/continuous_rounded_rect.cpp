#include "charts/continuous_rounded_rect.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace orvelle {
namespace {

/// How far beyond one radius the gradual part may begin, as a share of the radius, and how far it then turns.
/// Leaving the edge earlier makes the rest of the turn tighter than the circle; with these two it is at most
/// a fifth tighter anywhere, for every share up to the largest.
constexpr double largestSmoothing = 0.53;
constexpr double largestTurn = 40 * std::numbers::pi / 180;

/// One half of a corner, measured from the corner's point along the edge it starts on.
///
/// The half is a cubic curve that leaves the edge at `extent` with no curvature and meets the circle of the
/// corner after turning by `turn`, with the circle's own direction and curvature. The first three points lie
/// on the edge, which makes the curvature zero there. For the meeting point, the curvature of a cubic is
/// 2/3 x (distance of the second point from the final tangent) / (length of the final tangent)^2; setting
/// that to 1 / radius gives `firstControl`.
struct CornerHalf {
    double extent = 0;        ///< where the curve leaves the edge
    double firstControl = 0;  ///< first control point, on the edge
    double secondControl = 0; ///< second control point, on the edge, where the circle's tangent crosses it
    double turn = 0;          ///< radians turned when the circle is met

    CornerHalf(double radius, double room) {
        const double smoothing = std::clamp(room / radius - 1, 0.0, largestSmoothing);
        turn = largestTurn * smoothing / largestSmoothing;
        extent = radius * (1 + smoothing);
        const double tangent = std::tan(turn / 2);
        secondControl = radius * (1 - tangent);
        const double controlGap = turn > 0 ? 1.5 * radius * tangent * tangent / std::sin(turn) : 0;
        firstControl = secondControl + controlGap;
    }
};

struct Corner {
    QPointF point;
    QPointF alongArrival;   ///< unit vector from the corner back along the edge the path arrives on
    QPointF alongDeparture; ///< unit vector from the corner along the edge the path leaves on

    [[nodiscard]] QPointF at(double arrival, double departure) const {
        return point + alongArrival * arrival + alongDeparture * departure;
    }
};

void addCorner(QPainterPath& path, const Corner& corner, double radius, const CornerHalf& arrival,
               const CornerHalf& departure) {
    const auto onCircle = [&](double turned) {
        return corner.at(radius * (1 - std::sin(turned)), radius * (1 - std::cos(turned)));
    };
    const double lastTurn = std::numbers::pi / 2 - departure.turn;
    path.lineTo(corner.at(arrival.extent, 0));
    path.cubicTo(corner.at(arrival.firstControl, 0), corner.at(arrival.secondControl, 0),
                 onCircle(arrival.turn));

    const double handle = radius * 4 / 3 * std::tan((lastTurn - arrival.turn) / 4);
    const auto direction = [&](double turned) {
        return corner.alongDeparture * std::sin(turned) - corner.alongArrival * std::cos(turned);
    };
    path.cubicTo(onCircle(arrival.turn) + direction(arrival.turn) * handle,
                 onCircle(lastTurn) - direction(lastTurn) * handle, onCircle(lastTurn));

    path.cubicTo(corner.at(0, departure.secondControl), corner.at(0, departure.firstControl),
                 corner.at(0, departure.extent));
}

[[nodiscard]] bool hasArea(const QRectF& rectangle) {
    return std::isfinite(rectangle.x()) && std::isfinite(rectangle.y()) && std::isfinite(rectangle.width()) &&
           std::isfinite(rectangle.height()) && rectangle.width() > 0 && rectangle.height() > 0;
}

} // namespace

QPainterPath continuousRoundedRect(const QRectF& rectangle, double radius) {
    QPainterPath path;
    if (!hasArea(rectangle))
        return path;
    const double largestRadius = std::min(rectangle.width(), rectangle.height()) / 2;
    const double usedRadius = radius > 0 ? std::min(radius, largestRadius) : 0;
    if (usedRadius <= 0) {
        path.addRect(rectangle);
        return path;
    }
    const CornerHalf across(usedRadius, rectangle.width() / 2);
    const CornerHalf upright(usedRadius, rectangle.height() / 2);
    const QPointF left(-1, 0), right(1, 0), up(0, -1), down(0, 1);
    path.moveTo(rectangle.left() + across.extent, rectangle.top());
    addCorner(path, {rectangle.topRight(), left, down}, usedRadius, across, upright);
    addCorner(path, {rectangle.bottomRight(), up, left}, usedRadius, upright, across);
    addCorner(path, {rectangle.bottomLeft(), right, up}, usedRadius, across, upright);
    addCorner(path, {rectangle.topLeft(), down, right}, usedRadius, upright, across);
    path.closeSubpath();
    return path;
}

QPainterPath continuousCapsule(const QRectF& rectangle) {
    return continuousRoundedRect(rectangle, std::min(rectangle.width(), rectangle.height()) / 2);
}

} // namespace orvelle
