#include "shell/macos/click_through_hosting_view.h"

#include "shell/macos/picture.h"

#include <QImage>

namespace orvelle {
namespace {

/// The picture at the resolution of the screen that the view is on.
QImage paintedImage(PaintedPicture& picture, NSView* view) {
    const NSSize size = [view bounds].size;
    const CGFloat scale = backingScale(view);
    if (!(size.width > 0 && size.height > 0 && scale > 0))
        return {};
    QImage image(qRound(size.width * scale), qRound(size.height * scale),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    picture.paint(painter, QRectF(0, 0, size.width, size.height));
    painter.end();
    return image;
}

} // namespace

CGFloat backingScale(NSView* view) {
    NSWindow* const window = [view window];
    return window != nil ? [window backingScaleFactor] : 0;
}

} // namespace orvelle

@implementation ClickThroughHostingView

- (instancetype)initWithPicture:(orvelle::PaintedPicture*)picture {
    self = [super initWithFrame:NSMakeRect(0, 0, 0, 0)]; // the constraints decide
    if (self != nil)
        m_picture = picture;
    return self;
}

- (void)forgetPicture {
    m_picture = nullptr;
}

- (NSView*)hitTest:(NSPoint)point {
    static_cast<void>(point); // nowhere is there anything to hit
    return nil;
}

- (void)drawRect:(NSRect)dirtyRect {
    static_cast<void>(dirtyRect); // the picture is small and changes as a whole
    if (m_picture == nullptr)
        return;
    const orvelle::OwnedCGImage image = orvelle::makeCGImage(orvelle::paintedImage(*m_picture, self));
    if (image)
        CGContextDrawImage([[NSGraphicsContext currentContext] CGContext], [self bounds], image.get());
}

- (void)viewDidChangeBackingProperties {
    [super viewDidChangeBackingProperties];
    [self setNeedsDisplay:YES];
}

@end
