#pragma once

#include "animation/spring.h"
#include "animation/transition.h"

#include <QColor>
#include <QList>

#include <array>

/// The height and the colour of a bar, and how both follow its value. Lengths are in points.
namespace orvelle {

/// A bar at one moment.
struct BarLook {
    double ratio = 0; ///< of the available height; passes 1 while a spring overshoots
    QColor color = {};

    bool operator==(const BarLook&) const = default;
};

/// How full a bar is, 0 to 1; 0 when `maxValue` is not above 0 or the value is not a number.
[[nodiscard]] double barFillRatio(double value, double maxValue);

/// Height of a bar filled to `ratio` of `availableHeight`, at least 1 so that an idle bar still shows.
[[nodiscard]] double barHeight(double ratio, double availableHeight);

/// `baseColor` below half; from there it blends to amber at three quarters, which fades to red when full.
[[nodiscard]] QColor barColor(double ratio, const QColor& baseColor);

/// `color` below half, then yellow, and red from three quarters up.
[[nodiscard]] QColor miniBarColor(double fraction, const QColor& color);

[[nodiscard]] BarLook interpolate(const BarLook& from, const BarLook& to, double progress);

/// Bar by bar. Rows of different length have nothing in common: the second shows at once.
[[nodiscard]] QList<BarLook> interpolate(const QList<BarLook>& from, const QList<BarLook>& to,
                                         double progress);

/// Whether a viewer cannot tell the bars apart: none differs by half a pixel or by a shade. `fullPixels` is
/// the length of a bar at ratio 1.
[[nodiscard]] bool looksAlike(const QList<BarLook>& one, const QList<BarLook>& other, double fullPixels);

/// A bar whose height and colour follow the same spring.
class BarAnimation {
public:
    /// Starts at rest.
    explicit BarAnimation(const BarLook& look);

    /// The bar as it is now. The colour stays valid where the spring overshoots.
    [[nodiscard]] BarLook look() const;

    /// Moves to `look` from now on.
    void retarget(const BarLook& look);
    /// Shows `look` at once.
    void jump(const BarLook& look);
    /// Lets `seconds` pass.
    void advance(double seconds, const SpringParameters& spring);
    /// Whether no visible motion is left.
    [[nodiscard]] bool isSettled() const;

private:
    std::array<Spring, 5> m_springs; ///< ratio, red, green, blue, opacity
};

} // namespace orvelle
