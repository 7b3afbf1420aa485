#include "shell/macos/macos_context_menu.h"

#include "shell/macos/macos_status_item.h"

namespace orvelle {

MacosContextMenu::MacosContextMenu(ProgramActivation& activation)
    : m_activation(activation), m_target([[MenuTarget alloc] initWithMenuListener:this]) {}

MacosContextMenu::~MacosContextMenu() { [m_menu.get() cancelTracking]; }

NSMenuItem* MacosContextMenu::makeItem(const MenuEntry& entry, NSInteger index) const {
    if (entry.title.isEmpty())
        return [NSMenuItem separatorItem];
    NSMenuItem* const item = [[[NSMenuItem alloc] initWithTitle:systemText(entry.title)
                                                         action:@selector(choose:)
                                                  keyEquivalent:systemText(entry.keyEquivalent)] autorelease];
    [item setTarget:m_target.get()];
    [item setTag:index];
    return item;
}

Retained<NSMenu*> MacosContextMenu::makeMenu() const {
    Retained<NSMenu*> menu([[NSMenu alloc] init]);
    NSInteger index = 0;
    for (const MenuEntry& entry : m_entries)
        [menu.get() addItem:makeItem(entry, index++)];
    return menu;
}

void MacosContextMenu::show(const StatusItem& item, std::vector<MenuEntry> entries) {
    const ReleasePool pool;
    // A timer may remove the item while its menu is open.
    const auto statusItem =
        Retained<NSStatusItem*>::adding(static_cast<const MacosStatusItem&>(item).statusItem());
    m_entries = std::move(entries);
    m_menu = makeMenu();
    // An item with a menu opens it at every click, left ones too, so it has a menu only for this click.
    [statusItem.get() setMenu:m_menu.get()];
    m_activation.keep(this);
    [[statusItem.get() button] performClick:nil];
    m_activation.end(this);
    [statusItem.get() setMenu:nil];
}

void MacosContextMenu::close() { [m_menu.get() cancelTracking]; }

void MacosContextMenu::chosen(NSInteger index) {
    // A copy, because the action may end the menu.
    const std::function<void()> action = m_entries.at(static_cast<std::size_t>(index)).action;
    if (action)
        action();
}

} // namespace orvelle

@implementation MenuTarget

- (instancetype)initWithMenuListener:(orvelle::MenuListener*)listener {
    self = [super init];
    if (self != nil)
        m_listener = listener;
    return self;
}

- (void)choose:(NSMenuItem*)sender {
    m_listener->chosen([sender tag]);
}

@end
