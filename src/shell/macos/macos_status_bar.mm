#include "shell/macos/macos_context_menu.h"
#include "shell/macos/macos_desktop.h"
#include "shell/macos/macos_popover.h"
#include "shell/macos/macos_status_item.h"

#include <algorithm>
#include <utility>

namespace orvelle {
namespace {

/// Hears which item was clicked.
class ClickListener {
  public:
    virtual ~ClickListener() = default;
    /// A button with this identifier was clicked. It need not belong to an item.
    virtual void clicked(const QString& identifier, ClickButton button) = 0;
};

} // namespace
} // namespace orvelle

/// The target of the items' buttons.
@interface StatusItemTarget : NSObject {
  @private
    orvelle::ClickListener* m_listener;
}
/// The listener must live as long as the buttons send clicks.
- (instancetype)initWithClickListener:(orvelle::ClickListener*)listener;
/// The current event decides which button of the mouse it was. Without one nothing happens.
- (void)statusItemClicked:(NSStatusBarButton*)sender;
@end

namespace orvelle {
namespace {

/// The program's items in the system's menu bar.
class MacosStatusBar final : public StatusBar, private ClickListener {
  public:
    explicit MacosStatusBar(ProgramActivation& activation);
    ~MacosStatusBar() override;

    /// Asks the system for another item. The system puts it to the left of the others, unless the user has
    /// dragged an item of this identifier elsewhere before.
    [[nodiscard]] StatusItem& addItem(const QString& identifier, double length) override;
    [[nodiscard]] bool addsItemsOnTheLeft() const override { return true; }
    void removeItem(StatusItem& item) override;
    [[nodiscard]] std::unique_ptr<Popover> makePopover(PopoverContent makeContent) override;
    [[nodiscard]] std::unique_ptr<ContextMenu> makeContextMenu() override;

  private:
    void clicked(const QString& identifier, ClickButton button) override;
    void itemPainted();

    ProgramActivation& m_activation;
    Retained<StatusItemTarget*> m_target;
    std::vector<std::unique_ptr<MacosStatusItem>> m_items; ///< in the order in which they were added
    bool m_hasBeenPainted = false;
};

/// Holding Control makes a right click of a left one, as everywhere on this desktop.
ClickButton clickButton(NSEvent* event) {
    const bool isRight =
        [event type] == NSEventTypeRightMouseUp || ([event modifierFlags] & NSEventModifierFlagControl) != 0;
    return isRight ? ClickButton::right : ClickButton::left;
}

MacosStatusBar::MacosStatusBar(ProgramActivation& activation)
    : m_activation(activation), m_target([[StatusItemTarget alloc] initWithClickListener:this]) {}

MacosStatusBar::~MacosStatusBar() {
    const ReleasePool pool;
    m_items.clear(); // before the target that their buttons know
}

StatusItem& MacosStatusBar::addItem(const QString& identifier, double length) {
    const ReleasePool pool;
    return *m_items.emplace_back(
        std::make_unique<MacosStatusItem>(identifier, length, m_target.get(), [this] { itemPainted(); }));
}

void MacosStatusBar::removeItem(StatusItem& item) {
    const ReleasePool pool;
    std::erase_if(m_items, [&item](const auto& present) { return present.get() == &item; });
}

std::unique_ptr<Popover> MacosStatusBar::makePopover(PopoverContent makeContent) {
    return std::make_unique<MacosPopover>(std::move(makeContent), m_activation);
}

std::unique_ptr<ContextMenu> MacosStatusBar::makeContextMenu() {
    return std::make_unique<MacosContextMenu>(m_activation);
}

void MacosStatusBar::clicked(const QString& identifier, ClickButton button) {
    const auto item = std::ranges::find(m_items, identifier, &MacosStatusItem::identifier);
    if (item == m_items.end())
        return;
    // A copy, because the handler may remove the item.
    const std::function<void(ClickButton)> handler = (*item)->clickHandler();
    if (handler)
        handler(button);
}

void MacosStatusBar::itemPainted() {
    if (!std::exchange(m_hasBeenPainted, true))
        Q_EMIT firstPainted();
}

} // namespace

std::unique_ptr<StatusBar> makeMacosStatusBar(ProgramActivation& activation) {
    return std::make_unique<MacosStatusBar>(activation);
}

} // namespace orvelle

@implementation StatusItemTarget

- (instancetype)initWithClickListener:(orvelle::ClickListener*)listener {
    self = [super init];
    if (self != nil)
        m_listener = listener;
    return self;
}

- (void)statusItemClicked:(NSStatusBarButton*)sender {
    NSEvent* const event = [NSApp currentEvent];
    NSString* const identifier = [sender identifier];
    if (event != nil && identifier != nil)
        m_listener->clicked(orvelle::qtText(identifier), orvelle::clickButton(event));
}

@end
