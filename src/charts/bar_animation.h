#pragma once

#include "animation/spring.h"
#include "charts/bar_look.h"

#include <array>

namespace orvelle {

/// The animation of one bar: its height and its colour follow the same spring together.
class BarAnimation {
public:
    /// Starts at rest.
    explicit BarAnimation(const BarLook& look);

    /// The bar as it looks now. The colour's components stay valid where the spring overshoots.
    [[nodiscard]] BarLook look() const;

    /// Moves to `look` from now on.
    void retarget(const BarLook& look);
    /// Shows `look` at once.
    void jump(const BarLook& look);
    /// Lets `seconds` pass.
    void advance(double seconds, const SpringParameters& spring);
    /// Whether nothing visible is moving any more.
    [[nodiscard]] bool isSettled() const;

private:
    std::array<Spring, 5> m_springs; ///< ratio, red, green, blue, opacity
};

} // namespace orvelle
