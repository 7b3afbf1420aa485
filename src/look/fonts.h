#pragma once

#include <QFont>

/// The desktop's fonts by role. Sizes are points of the design, which are logical pixels on every screen: the
/// same number of pixels whatever the screen's dots per inch, multiplied only by the device pixel ratio.
/// Fractional sizes are kept. Where the desktop names no font of its own, a well-made family that is
/// installed is taken instead of the generic alias. A size that is not above 0 counts as 1, one above 1000 as
/// 1000. Main thread only; needs a QGuiApplication.
namespace orvelle {

/// The proportional font of the desktop's own controls.
[[nodiscard]] QFont systemFont(double size, QFont::Weight weight = QFont::Normal);

/// The desktop's fixed-width font, whose digits all have the same width.
[[nodiscard]] QFont monospacedSystemFont(double size, QFont::Weight weight = QFont::Normal);

/// A family with rounded strokes where one is installed, else the same as `systemFont`.
[[nodiscard]] QFont roundedSystemFont(double size, QFont::Weight weight = QFont::Normal);

} // namespace orvelle
