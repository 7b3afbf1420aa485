#pragma once

#include "shell/status_item.h"

#include <AppKit/AppKit.h>
#include <CoreGraphics/CoreGraphics.h>

#include <QImage>

#include <memory>
#include <type_traits>

namespace orvelle {

/// The content of a view, painted with Qt.
class PaintedPicture {
  public:
    virtual ~PaintedPicture() = default;
    /// Paints within `bounds`, in points, on a bar that looks like this. Nothing has been painted there yet.
    virtual void paint(QPainter& painter, const QRectF& bounds, BarAppearance appearance) = 0;
};

/// Pixels per point of the view's screen; 0 while it is on none, and for nil.
[[nodiscard]] CGFloat backingScale(NSView* view);

struct CGImageReleaser {
    void operator()(CGImageRef image) const { CGImageRelease(image); }
};
/// Owns one reference to an image of Core Graphics.
using OwnedCGImage = std::unique_ptr<std::remove_pointer_t<CGImageRef>, CGImageReleaser>;

/// The same pixels for Core Graphics; they are shared, not copied. The image is premultiplied, 32 bits per
/// pixel. Null when it has no pixels or the system cannot make one.
[[nodiscard]] OwnedCGImage makeCGImage(QImage image);

} // namespace orvelle

/// A view that is only a picture: every click goes to what lies under it.
@interface ClickThroughHostingView : NSView {
  @private
    orvelle::PaintedPicture* m_picture;
}
/// The picture must live until `forgetPicture` is called.
- (instancetype)initWithPicture:(orvelle::PaintedPicture*)picture;
/// The view shows nothing from now on.
- (void)forgetPicture;
@end
