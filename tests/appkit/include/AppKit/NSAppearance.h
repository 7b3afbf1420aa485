#pragma once

#include <Foundation/Foundation.h>

typedef NSString* NSAppearanceName;

extern "C" {
extern NSAppearanceName const NSAppearanceNameAqua, NSAppearanceNameDarkAqua, NSAppearanceNameVibrantLight,
    NSAppearanceNameVibrantDark;
}

@interface NSAppearance : NSObject {
  @public
    NSString* m_name;
}
+ (NSAppearance*)appearanceNamed:(NSAppearanceName)name;
- (NSAppearanceName)bestMatchFromAppearancesWithNames:(NSArray*)names;
@end
