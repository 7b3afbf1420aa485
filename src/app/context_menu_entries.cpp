#include "app/context_menu_entries.h"

namespace orvelle {

std::vector<MenuEntry> contextMenuEntries(std::function<void()> openSettings, std::function<void()> quitApp) {
    return {{QStringLiteral("Settings..."), QStringLiteral(","), std::move(openSettings)},
            {},
            {QStringLiteral("Quit Orvelle"), QStringLiteral("q"), std::move(quitApp)}};
}

} // namespace orvelle
