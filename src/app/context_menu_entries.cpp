#include "app/context_menu_entries.h"

namespace orvelle {

std::vector<MenuEntry> contextMenuEntries(std::function<void()> openSettings, std::function<void()> quitApp) {
    std::vector<MenuEntry> entries;
    if (openSettings) {
        entries.push_back({QStringLiteral("Settings..."), QStringLiteral(","), std::move(openSettings)});
        entries.emplace_back();
    }
    entries.push_back({QStringLiteral("Quit Orvelle"), QStringLiteral("q"), std::move(quitApp)});
    return entries;
}

} // namespace orvelle
