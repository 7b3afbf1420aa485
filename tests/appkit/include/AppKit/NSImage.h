#pragma once

#include <AppKit/NSFontDescriptor.h>

@interface NSImageSymbolConfiguration : NSObject {
  @public
    CGFloat m_pointSize;
    NSFontWeight m_weight;
}
+ (NSImageSymbolConfiguration*)configurationWithPointSize:(CGFloat)pointSize weight:(NSFontWeight)weight;
@end

@interface NSImage : NSObject {
  @public
    NSSize m_size;
}
+ (NSImage*)imageWithSystemSymbolName:(NSString*)name accessibilityDescription:(NSString*)description;
- (NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration;
- (NSSize)size;
- (void)drawInRect:(NSRect)rect;
@end
