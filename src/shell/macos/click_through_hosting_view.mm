#include "shell/macos/click_through_hosting_view.h"

#include <cstdint>
#include <iterator>

namespace orvelle {
namespace {

/// Whether what surrounds the view is dark or light.
BarAppearance appearanceOf(NSView* view) {
    const id names[] = {NSAppearanceNameDarkAqua, NSAppearanceNameAqua};
    NSArray* const known = [NSArray arrayWithObjects:names count:std::size(names)];
    NSAppearanceName const best = [[view effectiveAppearance] bestMatchFromAppearancesWithNames:known];
    return best != nil && [best isEqualToString:NSAppearanceNameAqua] ? BarAppearance::light
                                                                      : BarAppearance::dark;
}

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
    picture.paint(painter, QRectF(0, 0, size.width, size.height), appearanceOf(view));
    painter.end();
    return image;
}

struct ProviderReleaser {
    void operator()(CGDataProviderRef provider) const { CGDataProviderRelease(provider); }
};
using OwnedProvider = std::unique_ptr<std::remove_pointer_t<CGDataProviderRef>, ProviderReleaser>;

struct ColorSpaceReleaser {
    void operator()(CGColorSpaceRef space) const { CGColorSpaceRelease(space); }
};
using OwnedColorSpace = std::unique_ptr<std::remove_pointer_t<CGColorSpaceRef>, ColorSpaceReleaser>;

void deleteImage(void* image, const void* /*pixels*/, std::size_t /*size*/) {
    delete static_cast<QImage*>(image);
}

/// Keeps the image until nothing is drawn from it any more, which may be after the drawing call has returned.
OwnedProvider makeProvider(QImage image) {
    auto kept = std::make_unique<QImage>(std::move(image));
    OwnedProvider provider(CGDataProviderCreateWithData(
        kept.get(), kept->constBits(), static_cast<std::size_t>(kept->sizeInBytes()), deleteImage));
    if (provider)
        static_cast<void>(kept.release());
    return provider;
}

} // namespace

CGFloat backingScale(NSView* view) {
    NSWindow* const window = [view window];
    return window != nil ? [window backingScaleFactor] : 0;
}

OwnedCGImage makeCGImage(QImage image) {
    if (image.isNull())
        return nullptr;
    const auto width = static_cast<std::size_t>(image.width());
    const auto height = static_cast<std::size_t>(image.height());
    const auto bytesPerLine = static_cast<std::size_t>(image.bytesPerLine());
    // One word a pixel in the byte order of the machine, as QImage keeps them.
    constexpr auto layout = static_cast<std::uint32_t>(kCGImageAlphaPremultipliedFirst) |
                            static_cast<std::uint32_t>(kCGBitmapByteOrder32Host);
    const OwnedColorSpace colorSpace(CGColorSpaceCreateWithName(kCGColorSpaceSRGB));
    const OwnedProvider provider = makeProvider(std::move(image));
    if (!colorSpace || !provider)
        return nullptr;
    constexpr std::size_t bitsPerComponent = 8;
    constexpr std::size_t bitsPerPixel = 32;
    return OwnedCGImage(CGImageCreate(width, height, bitsPerComponent, bitsPerPixel, bytesPerLine,
                                      colorSpace.get(), static_cast<CGBitmapInfo>(layout), provider.get(),
                                      nullptr, false, kCGRenderingIntentDefault));
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

- (void)viewDidChangeEffectiveAppearance {
    [super viewDidChangeEffectiveAppearance];
    [self setNeedsDisplay:YES];
}

- (void)viewDidChangeBackingProperties {
    [super viewDidChangeBackingProperties];
    [self setNeedsDisplay:YES];
}

@end
