#include "appkit/simulated/objects.h"

#include <algorithm>

using namespace orvelle::simulated;

NSAppearanceName const NSAppearanceNameAqua = @"NSAppearanceNameAqua";
NSAppearanceName const NSAppearanceNameDarkAqua = @"NSAppearanceNameDarkAqua";
NSAppearanceName const NSAppearanceNameVibrantLight = @"NSAppearanceNameVibrantLight";
NSAppearanceName const NSAppearanceNameVibrantDark = @"NSAppearanceNameVibrantDark";

namespace orvelle::simulated {
namespace {

bool isDark(NSString* name) { return textOf(name).ends_with("Dark") || textOf(name).ends_with("DarkAqua"); }

void tellOfAppearance(NSView* view) {
    [view viewDidChangeEffectiveAppearance];
    for (id part : *static_cast<Objects*>(view->m_subviews))
        tellOfAppearance(part);
}

} // namespace

void changeMenuBar(bool isDarkNow) {
    desktop().script.isMenuBarDark = isDarkNow;
    handleNoEvent([] {
        for (NSStatusItem* item : allStatusItems())
            tellOfAppearance(item->m_button);
    });
}

} // namespace orvelle::simulated

@implementation NSAppearance
+ (NSAppearance*)appearanceNamed:(NSAppearanceName)name {
    NSAppearance* appearance = [[[NSAppearance alloc] init] autorelease];
    appearance->m_name = name;
    return appearance;
}
/// One of the same name, else one that is as dark.
- (NSAppearanceName)bestMatchFromAppearancesWithNames:(NSArray*)names {
    if (!desktop().arrives("bestMatchFromAppearancesWithNames"))
        return nil;
    NSAppearanceName best = nil;
    for (NSUInteger index = 0; index < [names count]; ++index) {
        NSAppearanceName const name = [names objectAtIndex:index];
        if (textOf(name) == textOf(m_name))
            return name;
        if (best == nil && isDark(name) == isDark(m_name))
            best = name;
    }
    return best;
}
@end
