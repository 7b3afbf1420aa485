#pragma once

#include "shell/macos/foundation.h"
#include "shell/macos/program_activation.h"
#include "shell/status_bar.h"

#include <AppKit/AppKit.h>

namespace orvelle {

/// Hears what was chosen from a menu.
class MenuListener {
  public:
    virtual ~MenuListener() = default;
    /// The entry at this place in the list.
    virtual void chosen(NSInteger index) = 0;
};

} // namespace orvelle

/// The target of a menu's entries. Each has its place in the list as its tag.
@interface MenuTarget : NSObject {
  @private
    orvelle::MenuListener* m_listener;
}
/// The listener must live as long as entries send choices.
- (instancetype)initWithMenuListener:(orvelle::MenuListener*)listener;
- (void)choose:(NSMenuItem*)sender;
@end

namespace orvelle {

/// The system's own menu under an item of its menu bar. While it is open `show` does not return; events and
/// timers go on meanwhile.
class MacosContextMenu final : public ContextMenu, private MenuListener {
  public:
    explicit MacosContextMenu(ProgramActivation& activation);
    ~MacosContextMenu() override;
    MacosContextMenu(const MacosContextMenu&) = delete;
    MacosContextMenu& operator=(const MacosContextMenu&) = delete;

    void show(const StatusItem& item, std::vector<MenuEntry> entries) override;
    void close() override;

  private:
    void chosen(NSInteger index) override;
    [[nodiscard]] NSMenuItem* makeItem(const MenuEntry& entry, NSInteger index) const;
    [[nodiscard]] Retained<NSMenu*> makeMenu() const;

    ProgramActivation& m_activation;
    Retained<MenuTarget*> m_target;
    // Kept until the next menu opens: the system may send the choice after the menu has closed.
    std::vector<MenuEntry> m_entries;
    Retained<NSMenu*> m_menu;
};

} // namespace orvelle
