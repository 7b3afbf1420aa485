#pragma once

#include "shell/status_bar.h"

#include <QString>

#include <vector>

namespace orvelle {

/// A menu as the program has it: a separator between two entries.
inline std::vector<MenuEntry> threeEntries() {
    return {{QStringLiteral("Settings..."), QStringLiteral(","), nullptr},
            {},
            {QStringLiteral("Quit Orvelle"), QStringLiteral("q"), nullptr}};
}

} // namespace orvelle
