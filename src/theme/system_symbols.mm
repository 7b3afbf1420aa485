#include "settings/release_pool.h"
#include "theme/symbols.h"

#include <QtMath>

#include <AppKit/AppKit.h>

#include <algorithm>
#include <cstdint>

// The program uses the names of the system's symbols. Compiled with manual reference counting.
namespace orvelle {
namespace {

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

/// Null for an unknown name, and where the system fails.
NSImage* makeSymbol(QStringView name, CGFloat height, QFont::Weight weight) {
    constexpr CGFloat heightPerPointSize = 1.2;
    return [namedSymbol(name)
        imageWithSymbolConfiguration:[NSImageSymbolConfiguration
                                         configurationWithPointSize:height / heightPerPointSize
                                                             weight:systemWeight(weight)]];
}

/// The symbol's own size, scaled down if it is higher than its line.
NSSize sizeInLine(NSImage* symbol, CGFloat height) {
    const NSSize size = [symbol size];
    const CGFloat scale = size.height > height ? height / size.height : 1;
    return NSMakeSize(size.width * scale, size.height * scale);
}

/// Draws the symbol in the middle of the picture.
void draw(NSImage* symbol, CGContextRef context, NSSize size, const QImage& picture) {
    [NSGraphicsContext saveGraphicsState];
    [NSGraphicsContext setCurrentContext:[NSGraphicsContext graphicsContextWithCGContext:context flipped:NO]];
    [symbol drawInRect:NSMakeRect((picture.width() - size.width) / 2, (picture.height() - size.height) / 2,
                                  size.width, size.height)];
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

std::optional<double> symbolWidth(QStringView name, double height, QFont::Weight weight) {
    const ReleasePool pool;
    NSImage* const symbol = makeSymbol(name, height, weight);
    return symbol != nil ? std::optional(sizeInLine(symbol, height).width) : std::nullopt;
}

QImage rasterizeSymbol(QStringView name, int height, QFont::Weight weight) {
    const ReleasePool pool;
    NSImage* const symbol = makeSymbol(name, height, weight);
    if (symbol == nil)
        return {};
    const NSSize size = sizeInLine(symbol, height);
    QImage image(std::max(1, qCeil(size.width)), height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const CGContextRef context = createContext(image);
    if (context == nullptr)
        return {};
    draw(symbol, context, size, image);
    CGContextRelease(context);
    return image;
}

} // namespace orvelle
