#pragma once

#include <Foundation/Foundation.h>

typedef CGFloat NSFontWeight;
typedef NSString* NSFontDescriptorSystemDesign;

extern "C" {
extern const NSFontWeight NSFontWeightRegular, NSFontWeightMedium, NSFontWeightSemibold, NSFontWeightBold;
extern NSFontDescriptorSystemDesign const NSFontDescriptorSystemDesignMonospaced,
    NSFontDescriptorSystemDesignRounded;
}

@interface NSFontDescriptor : NSObject {
  @public
    NSFontDescriptorSystemDesign m_design;
}
- (NSFontDescriptor*)fontDescriptorWithDesign:(NSFontDescriptorSystemDesign)design;
@end
