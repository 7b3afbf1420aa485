#include "appkit/simulated/objects.h"

#include <CoreText/CoreText.h>

using namespace orvelle::simulated;

NSFontDescriptorSystemDesign const NSFontDescriptorSystemDesignMonospaced = @"monospaced";
NSFontDescriptorSystemDesign const NSFontDescriptorSystemDesignRounded = @"rounded";

@implementation NSFontDescriptor
- (NSFontDescriptor*)fontDescriptorWithDesign:(NSFontDescriptorSystemDesign)design {
    if (!desktop().arrives("fontDescriptorWithDesign"))
        return nil;
    NSFontDescriptor* const descriptor = [[[NSFontDescriptor alloc] init] autorelease];
    descriptor->m_design = design;
    return descriptor;
}
@end

@implementation NSFont
+ (NSFont*)systemFontOfSize:(CGFloat)size {
    static_cast<void>(size);
    return [[[NSFont alloc] init] autorelease];
}
+ (NSFont*)fontWithDescriptor:(NSFontDescriptor*)descriptor size:(CGFloat)size {
    static_cast<void>(size);
    if (!desktop().arrives("fontWithDescriptor"))
        return nil;
    NSFont* const font = [[[NSFont alloc] init] autorelease];
    font->m_design = descriptor->m_design;
    return font;
}
- (NSFontDescriptor*)fontDescriptor {
    return [[[NSFontDescriptor alloc] init] autorelease];
}
@end

const CFStringRef kCTFontURLAttribute = nullptr;

CFTypeRef CTFontCopyAttribute(CTFontRef font, CFStringRef /*attribute*/) {
    if (!desktop().arrives("CTFontCopyAttribute"))
        return nullptr;
    const auto file = desktop().script.fontFiles.find(textOf(((NSFont*)font)->m_design));
    if (file == desktop().script.fontFiles.end())
        return nullptr;
    NSURL* const url = [[NSURL alloc] init];
    url->m_path = [[NSString stringWithUTF8String:file->second.c_str()] retain];
    return url;
}
