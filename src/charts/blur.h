#pragma once

#include <QImage>

namespace orvelle {

/// `alpha` (Format_Alpha8) blurred like a Gaussian of the standard deviation `sigma`, in pixels. What lies
/// outside the image counts as clear, and what is spread outside is lost. A sigma of 0 or below, or not
/// finite, leaves the image as it is.
[[nodiscard]] QImage blurredAlpha(const QImage& alpha, double sigma);

/// An image of `color` whose opacity is that of `alpha` (Format_Alpha8) times the colour's own.
[[nodiscard]] QImage tinted(const QImage& alpha, const QColor& color);

} // namespace orvelle
