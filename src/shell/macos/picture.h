#pragma once

#include <QImage>

#include <CoreGraphics/CoreGraphics.h>
#include <memory>
#include <type_traits>

namespace orvelle {

struct CGImageReleaser {
    void operator()(CGImageRef image) const { CGImageRelease(image); }
};
/// Owns one reference to an image of Core Graphics.
using OwnedCGImage = std::unique_ptr<std::remove_pointer_t<CGImageRef>, CGImageReleaser>;

/// The same pixels for Core Graphics; they are shared, not copied. The image is premultiplied, 32 bits a
/// pixel. Null when it has no pixels or the system cannot make one.
[[nodiscard]] OwnedCGImage makeCGImage(QImage image);

} // namespace orvelle
