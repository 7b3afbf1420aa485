#include "theme/symbols.h"

#include <AppKit/AppKit.h>

#include <algorithm>
#include <array>
#include <cstdint>

// The program uses the names of the system's symbols. Compiled with manual reference counting.
namespace orvelle {
namespace {

/// Releases the objects that were autoreleased during its lifetime.
class ReleasePool {
  public:
    ReleasePool() = default;
    ~ReleasePool() { [m_pool release]; }
    ReleasePool(const ReleasePool&) = delete;
    ReleasePool& operator=(const ReleasePool&) = delete;

  private:
    NSAutoreleasePool* m_pool = [[NSAutoreleasePool alloc] init];
};

NSImage* namedSymbol(QStringView name) {
    return [NSImage imageWithSystemSymbolName:[NSString stringWithUTF8String:name.toUtf8().constData()]
                     accessibilityDescription:nil];
}

NSFontWeight systemWeight(QFont::Weight weight) {
    if (weight >= QFont::Bold)
        return NSFontWeightBold;
    if (weight >= QFont::DemiBold)
        return NSFontWeightSemibold;
    return weight >= QFont::Medium ? NSFontWeightMedium : NSFontWeightRegular;
}

/// Centres the symbol in the square, in its own proportions and scaled down to fit.
NSRect placeInSquare(NSSize size, CGFloat side) {
    const CGFloat scale = std::min({CGFloat{1}, side / size.width, side / size.height});
    const CGFloat width = size.width * scale;
    const CGFloat height = size.height * scale;
    return NSMakeRect((side - width) / 2, (side - height) / 2, width, height);
}

void draw(NSImage* symbol, CGContextRef context, CGFloat side) {
    [NSGraphicsContext saveGraphicsState];
    [NSGraphicsContext setCurrentContext:[NSGraphicsContext graphicsContextWithCGContext:context flipped:NO]];
    [symbol drawInRect:placeInSquare([symbol size], side)];
    [NSGraphicsContext restoreGraphicsState];
}

/// A context that draws into the image; null when the system cannot create one.
CGContextRef createContext(QImage& image) {
    constexpr std::size_t bitsPerComponent = 8;
    constexpr auto layout = static_cast<std::uint32_t>(kCGImageAlphaPremultipliedFirst) |
                            static_cast<std::uint32_t>(kCGBitmapByteOrder32Host);
    const CGColorSpaceRef colorSpace = CGColorSpaceCreateWithName(kCGColorSpaceSRGB);
    const CGContextRef context = CGBitmapContextCreate(
        image.bits(), static_cast<std::size_t>(image.width()), static_cast<std::size_t>(image.height()),
        bitsPerComponent, static_cast<std::size_t>(image.bytesPerLine()), colorSpace, layout);
    CGColorSpaceRelease(colorSpace);
    return context;
}

} // namespace

bool isKnownSymbol(QStringView name) {
    const ReleasePool pool;
    return namedSymbol(name) != nil;
}

QImage rasterizeSymbol(QStringView name, int side, QFont::Weight weight) {
    const ReleasePool pool;
    constexpr CGFloat sidePerPointSize = 1.2;
    NSImage* const symbol =
        [namedSymbol(name) imageWithSymbolConfiguration:[NSImageSymbolConfiguration
                                                            configurationWithPointSize:side / sidePerPointSize
                                                                                weight:systemWeight(weight)]];
    if (symbol == nil)
        return {};
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const CGContextRef context = createContext(image);
    if (context == nullptr)
        return {};
    draw(symbol, context, side);
    CGContextRelease(context);
    return image;
}

} // namespace orvelle
