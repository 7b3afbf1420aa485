#include "appkit/simulated/objects.h"

#include <cmath>

using namespace orvelle::simulated;

const NSFontWeight NSFontWeightRegular = 0, NSFontWeightMedium = 0.23, NSFontWeightSemibold = 0.3,
                   NSFontWeightBold = 0.4;

@implementation NSImageSymbolConfiguration
+ (NSImageSymbolConfiguration*)configurationWithPointSize:(CGFloat)pointSize weight:(NSFontWeight)weight {
    NSImageSymbolConfiguration* configuration = [[[NSImageSymbolConfiguration alloc] init] autorelease];
    configuration->m_pointSize = pointSize;
    configuration->m_weight = weight;
    return configuration;
}
@end

// Every symbol is a filled rectangle.
@implementation NSImage
+ (NSImage*)imageWithSystemSymbolName:(NSString*)name accessibilityDescription:(NSString*)description {
    static_cast<void>(description);
    const bool isKnown = desktop().script.symbols.contains(textOf(name));
    return isKnown ? [[[NSImage alloc] init] autorelease] : nil;
}
- (NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration {
    if (!desktop().arrives("imageWithSymbolConfiguration"))
        return nil;
    desktop().symbolPointSize = configuration->m_pointSize;
    desktop().symbolWeight = configuration->m_weight;
    NSImage* image = [[[NSImage alloc] init] autorelease];
    image->m_size = NSMakeSize(configuration->m_pointSize * desktop().script.symbolWidth,
                               configuration->m_pointSize * desktop().script.symbolHeight);
    return image;
}
- (NSSize)size {
    return m_size;
}
- (void)drawInRect:(NSRect)rect {
    const CGContextRef context = currentDrawing();
    const auto whole = [](CGFloat value) { return static_cast<std::size_t>(std::lround(value)); };
    for (std::size_t row = whole(rect.origin.y); row < whole(rect.origin.y + rect.size.height); ++row) {
        for (std::size_t column = whole(rect.origin.x); column < whole(rect.origin.x + rect.size.width);
             ++column)
            context->pixels[row * context->pixelsPerRow + column] = 0xff000000U;
    }
}
@end
