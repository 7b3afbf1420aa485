#include "appkit/simulated/objects.h"

using namespace orvelle::simulated;

namespace {

/// The menu that is open now, and what was chosen in it.
struct Tracking {
    NSMenu* menu = nil;
    std::optional<std::size_t> choice{};
    bool isOver = false;
};

Tracking*& currentTracking() {
    static Tracking* tracking = nullptr;
    return tracking;
}

Objects& itemsOf(NSMenu* menu) { return *static_cast<Objects*>(menu->m_items); }

NSMenuItem* itemAt(NSMenu* menu, std::size_t index) { return (NSMenuItem*)itemsOf(menu).at(index); }

} // namespace

namespace orvelle::simulated {

void trackMenu(NSMenu* menu) {
    Tracking tracking{.menu = [menu retain]};
    Tracking* const before = std::exchange(currentTracking(), &tracking);
    if (desktop().script.whileMenuIsOpen)
        desktop().script.whileMenuIsOpen();
    currentTracking() = before;
    if (tracking.choice) {
        NSMenuItem* const item = itemAt(menu, *tracking.choice);
        [item->m_target performSelector:item->m_action withObject:item];
    }
    [menu release];
}

std::optional<std::vector<MenuEntryState>> openMenu() {
    if (currentTracking() == nullptr || currentTracking()->isOver)
        return std::nullopt;
    std::vector<MenuEntryState> entries;
    for (id object : itemsOf(currentTracking()->menu)) {
        auto* const item = (NSMenuItem*)object;
        entries.push_back({.title = textOf(item->m_title),
                           .keyEquivalent = textOf(item->m_keyEquivalent),
                           .hasTarget = item->m_target != nil});
    }
    return entries;
}

void chooseFromMenu(std::size_t entry) {
    currentTracking()->choice = entry;
    currentTracking()->isOver = true;
}

} // namespace orvelle::simulated

@implementation NSMenuItem
+ (NSMenuItem*)separatorItem {
    return [[[NSMenuItem alloc] init] autorelease];
}
- (id)initWithTitle:(NSString*)title action:(SEL)action keyEquivalent:(NSString*)keyEquivalent {
    assign(m_title, title);
    assign(m_keyEquivalent, keyEquivalent);
    m_action = action;
    return self;
}
- (void)dealloc {
    [m_title release];
    [m_keyEquivalent release];
    [super dealloc];
}
- (void)setTarget:(id)target {
    m_target = target;
}
- (NSInteger)tag {
    return m_tag;
}
- (void)setTag:(NSInteger)tag {
    m_tag = tag;
}
@end

@implementation NSMenu
- (id)init {
    m_items = new Objects;
    return self;
}
- (void)dealloc {
    for (id item : itemsOf(self))
        [item release];
    delete static_cast<Objects*>(m_items);
    [super dealloc];
}
- (void)addItem:(NSMenuItem*)item {
    itemsOf(self).push_back([item retain]);
}
- (void)cancelTracking {
    if (currentTracking() == nullptr || currentTracking()->menu != self || currentTracking()->isOver)
        return;
    currentTracking()->isOver = true;
    desktop().deeds.push_back("menu closed");
}
@end
