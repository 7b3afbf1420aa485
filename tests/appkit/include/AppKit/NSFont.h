#pragma once

#include <AppKit/NSFontDescriptor.h>

@interface NSFont : NSObject {
  @public
    NSFontDescriptorSystemDesign m_design; ///< null for the usual one
}
+ (NSFont*)systemFontOfSize:(CGFloat)size;
+ (NSFont*)fontWithDescriptor:(NSFontDescriptor*)descriptor size:(CGFloat)size;
- (NSFontDescriptor*)fontDescriptor;
@end
