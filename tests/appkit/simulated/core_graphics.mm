#include "appkit/simulated/objects.h"

using namespace orvelle::simulated;

struct CGColorSpace {};

struct CGDataProvider {
    void* information = nullptr;
    const void* data = nullptr;
    std::size_t size = 0;
    CGDataProviderReleaseDataCallback releaseData = nullptr;
};

struct CGImage {
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t bytesPerRow = 0;
    CGDataProviderRef provider = nullptr;
};

const CFStringRef kCGColorSpaceSRGB = nullptr;

CGColorSpaceRef CGColorSpaceCreateWithName(CFStringRef /*name*/) {
    if (!desktop().arrives("CGColorSpaceCreateWithName"))
        return nullptr;
    auto* space = new CGColorSpace;
    desktop().lend(space, "CGColorSpace");
    return space;
}

void CGColorSpaceRelease(CGColorSpaceRef space) {
    if (space != nullptr && desktop().dropReference(space))
        delete space;
}

CGDataProviderRef CGDataProviderCreateWithData(void* information, const void* data, std::size_t size,
                                               CGDataProviderReleaseDataCallback releaseData) {
    if (!desktop().arrives("CGDataProviderCreateWithData"))
        return nullptr;
    auto* provider = new CGDataProvider{information, data, size, releaseData};
    desktop().lend(provider, "CGDataProvider");
    return provider;
}

void CGDataProviderRelease(CGDataProviderRef provider) {
    if (provider == nullptr || !desktop().dropReference(provider))
        return;
    provider->releaseData(provider->information, provider->data, provider->size);
    delete provider;
}

CGImageRef CGImageCreate(std::size_t width, std::size_t height, std::size_t bitsPerComponent,
                         std::size_t bitsPerPixel, std::size_t bytesPerRow, CGColorSpaceRef space,
                         CGBitmapInfo bitmapInfo, CGDataProviderRef provider, const CGFloat* /*decode*/,
                         bool /*shouldInterpolate*/, CGColorRenderingIntent /*intent*/) {
    if (!desktop().arrives("CGImageCreate"))
        return nullptr;
    desktop().expect(space != nullptr && provider != nullptr, "an image without colours or pixels");
    desktop().expect(bitsPerComponent == 8 && bitsPerPixel == 32 && bitmapInfo == (2u | (2u << 12)),
                     "pixels in another layout than a QImage's");
    desktop().expect(bytesPerRow >= width * 4 && bytesPerRow * height <= provider->size,
                     "an image that is larger than its pixels");
    desktop().addReference(provider);
    auto* image = new CGImage{width, height, bytesPerRow, provider};
    desktop().lend(image, "CGImage");
    return image;
}

void CGImageRelease(CGImageRef image) {
    if (image == nullptr || !desktop().dropReference(image))
        return;
    CGDataProviderRelease(image->provider);
    delete image;
}

void CGContextDrawImage(CGContextRef context, CGRect rect, CGImageRef image) {
    if (context == nullptr)
        return; // as the real one does, with a message in the log
    Drawing drawing{.width = image->width,
                    .height = image->height,
                    .widthInPoints = rect.size.width,
                    .heightInPoints = rect.size.height};
    for (std::size_t row = 0; row < image->height; ++row) {
        const auto* line = reinterpret_cast<const std::uint32_t*>(
            static_cast<const std::uint8_t*>(image->provider->data) + row * image->bytesPerRow);
        drawing.pixels.insert(drawing.pixels.end(), line, line + image->width);
    }
    context->drawing = std::move(drawing);
}

namespace orvelle::simulated {

std::vector<CGContextRef>& savedDrawings() {
    static std::vector<CGContextRef> contexts;
    return contexts;
}

CGContextRef& currentDrawing() {
    static CGContextRef context = nullptr;
    return context;
}

} // namespace orvelle::simulated

CGContextRef CGBitmapContextCreate(void* data, std::size_t /*width*/, std::size_t height,
                                   std::size_t bitsPerComponent, std::size_t bytesPerRow,
                                   CGColorSpaceRef space, std::uint32_t bitmapInfo) {
    if (!desktop().arrives("CGBitmapContextCreate"))
        return nullptr;
    if (space == nullptr)
        return nullptr;
    desktop().expect(bitsPerComponent == 8 && bitmapInfo == (2u | (2u << 12)),
                     "pixels in another layout than a QImage's");
    auto* context = new CGContext{
        .pixels = static_cast<std::uint32_t*>(data), .pixelsPerRow = bytesPerRow / 4, .height = height};
    desktop().lend(context, "CGContext");
    return context;
}

void CGContextRelease(CGContextRef context) {
    if (context != nullptr && desktop().dropReference(context))
        delete context;
}

@implementation NSGraphicsContext
+ (NSGraphicsContext*)graphicsContextWithCGContext:(CGContextRef)context flipped:(BOOL)flipped {
    desktop().expect(!flipped, "a symbol on its head");
    NSGraphicsContext* graphics = [[[NSGraphicsContext alloc] init] autorelease];
    graphics->m_context = context;
    return graphics;
}
+ (void)saveGraphicsState {
    savedDrawings().push_back(currentDrawing());
}
+ (void)restoreGraphicsState {
    currentDrawing() = savedDrawings().back();
    savedDrawings().pop_back();
}
+ (void)setCurrentContext:(NSGraphicsContext*)context {
    currentDrawing() = context->m_context;
}
+ (NSGraphicsContext*)currentContext {
    if (!desktop().arrives("currentContext"))
        return nil;
    return theOnly(self);
}
- (CGContextRef)CGContext {
    return currentDrawing();
}
@end
