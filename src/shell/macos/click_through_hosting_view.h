#pragma once

#include <AppKit/AppKit.h>

#include <QPainter>
#include <QRectF>

namespace orvelle {

/// What a view shows, painted with Qt.
class PaintedPicture {
  public:
    virtual ~PaintedPicture() = default;
    /// Paints within `bounds`, in points. Nothing has been painted there yet.
    virtual void paint(QPainter& painter, const QRectF& bounds) = 0;
};

} // namespace orvelle

namespace orvelle {

/// Pixels a point on the screen that the view is on; 0 while it is on none, and for null.
[[nodiscard]] CGFloat backingScale(NSView* view);

} // namespace orvelle

/// A view that is only a picture: every click goes to what lies under it.
@interface ClickThroughHostingView : NSView {
  @private
    orvelle::PaintedPicture* m_picture;
}
/// The picture must live until the view is told to forget it.
- (instancetype)initWithPicture:(orvelle::PaintedPicture*)picture;
/// The view shows nothing from now on.
- (void)forgetPicture;
@end
