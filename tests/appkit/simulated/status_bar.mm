#include "appkit/simulated/objects.h"

#include <algorithm>
#include <functional>

using namespace orvelle::simulated;

namespace orvelle::simulated {
namespace {

std::string positionKey(NSStatusItem* item) {
    return "NSStatusItem Preferred Position " + textOf(item->m_autosaveName);
}

/// The place that the user gave the item; nothing when it was never dragged.
std::optional<double> keptPosition(NSStatusItem* item) {
    const auto found = desktop().script.defaults.find(positionKey(item));
    return found != desktop().script.defaults.end() ? std::optional(found->second) : std::nullopt;
}

/// Left of every other item.
double leftmostPosition() {
    double position = 0;
    for (NSStatusItem* item : allStatusItems())
        position = std::max(position, item->m_position);
    return position + 100;
}

void sortItems() {
    std::ranges::stable_sort(allStatusItems(), std::greater(),
                             [](NSStatusItem* item) { return item->m_position; });
}

} // namespace

std::vector<NSStatusItem*>& allStatusItems() {
    static std::vector<NSStatusItem*> items;
    return items;
}

void dragToTheRightEnd(std::size_t item) {
    NSStatusItem* const dragged = allStatusItems().at(item);
    dragged->m_position = allStatusItems().back()->m_position / 2;
    desktop().script.defaults[positionKey(dragged)] = dragged->m_position;
    sortItems();
}

} // namespace orvelle::simulated

@implementation NSStatusBar
+ (NSStatusBar*)systemStatusBar {
    return theOnly(self);
}
- (NSStatusItem*)statusItemWithLength:(CGFloat)length {
    if (!desktop().arrives("statusItemWithLength"))
        return nil;
    NSStatusItem* item = [[[NSStatusItem alloc] initWithLength:length] autorelease];
    // Without a name of its own its place belongs to its number.
    [item setAutosaveName:[NSString stringWithUTF8String:("Item-" + std::to_string(allStatusItems().size()))
                                                             .c_str()]];
    if (!keptPosition(item))
        item->m_position = leftmostPosition();
    allStatusItems().push_back([item retain]);
    sortItems();
    return item;
}
- (void)removeStatusItem:(NSStatusItem*)item {
    const bool isThere = std::erase(allStatusItems(), item) == 1;
    desktop().expect(isThere, "removal of an item that is not there");
    if (!isThere)
        return;
    desktop().deeds.push_back("remove " + textOf([item->m_button identifier]));
    desktop().script.defaults.erase(positionKey(item)); // as the real one does
    [item release];
}
@end

@implementation NSStatusItem
- (id)initWithLength:(CGFloat)length {
    m_length = length;
    if (desktop().arrives("status item's button"))
        m_button = [[NSStatusBarButton alloc] initForItem:self];
    return self;
}
- (void)dealloc {
    if (m_button != nil) {
        m_button->m_item = nil;
        [m_button->m_window release];
        m_button->m_window = nil;
        [m_button release];
    }
    [m_menu release];
    [m_autosaveName release];
    [super dealloc];
}
- (NSStatusBarButton*)button {
    return m_button;
}
- (void)setMenu:(NSMenu*)menu {
    assign(m_menu, menu);
}
- (void)setAutosaveName:(NSStatusItemAutosaveName)name {
    assign(m_autosaveName, name);
    m_position = keptPosition(self).value_or(m_position);
    sortItems();
}
@end

@implementation NSControl
- (void)setTarget:(id)target {
    m_target = target;
}
- (void)setAction:(SEL)action {
    m_action = action;
}
- (NSInteger)sendActionOn:(NSEventMask)mask {
    const NSEventMask before = std::exchange(m_actionMask, mask);
    return static_cast<NSInteger>(before);
}
- (void)sendAction {
    desktop().expect(m_target == nil || [m_target respondsToSelector:m_action],
                     "a target that does not know its action");
    [m_target performSelector:m_action withObject:self];
}
- (void)performClick:(id)sender {
    static_cast<void>(sender);
    [self sendAction];
}
@end

@implementation NSButton
@end

@implementation NSStatusBarButton
- (id)initForItem:(NSStatusItem*)item {
    constexpr CGFloat barHeight = 22;
    constexpr NSEventMask onlyLeftMouseUp = 4;
    self = [super initWithFrame:NSMakeRect(0, 0, item->m_length, barHeight)];
    m_item = item;
    m_actionMask = onlyLeftMouseUp;
    m_window = makeSystemWindow();
    return self;
}
- (void)performClick:(id)sender {
    NSMenu* const menu = m_item != nil ? m_item->m_menu : nil;
    if (menu == nil) {
        [super performClick:sender];
        return;
    }
    desktop().deeds.push_back("menu " + textOf(m_identifier));
    trackMenu(menu);
}
@end

/// A number among the settings.
@interface SimulatedNumber : NSObject {
  @public
    double m_value;
}
@end

@implementation SimulatedNumber
@end

@implementation NSUserDefaults
+ (NSUserDefaults*)standardUserDefaults {
    return theOnly(self);
}
- (id)objectForKey:(NSString*)key {
    const auto found = desktop().script.defaults.find(textOf(key));
    if (found == desktop().script.defaults.end())
        return nil;
    SimulatedNumber* const number = [[[SimulatedNumber alloc] init] autorelease];
    number->m_value = found->second;
    return number;
}
- (void)setObject:(id)object forKey:(NSString*)key {
    desktop().expect(object != nil, "a setting without a value");
    desktop().script.defaults[textOf(key)] = ((SimulatedNumber*)object)->m_value;
}
@end
