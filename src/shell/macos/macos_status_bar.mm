#include "shell/macos/macos_status_bar.h"

#include "shell/desktop.h"
#include "shell/macos/macos_context_menu.h"
#include "shell/macos/macos_popover.h"

#include <algorithm>
#include <utility>

namespace orvelle {

MacosStatusBar::MacosStatusBar() : m_target([[StatusItemTarget alloc] initWithListener:this]) {}

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
    return std::make_unique<MacosPopover>(std::move(makeContent));
}

std::unique_ptr<ContextMenu> MacosStatusBar::makeContextMenu() {
    return std::make_unique<MacosContextMenu>();
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

std::unique_ptr<StatusBar> makeStatusBar() { return std::make_unique<MacosStatusBar>(); }

std::optional<QString> prepareDesktop() {
    return std::nullopt; // a program is only ever started on a desktop that is there
}

} // namespace orvelle
