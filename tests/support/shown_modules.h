#pragma once

#include "settings/settings_store.h"

#include <QVariant>

namespace orvelle {

/// Shows or hides the menu-bar items of all modules.
inline void showEveryModule(SettingsStore& settings, bool isShown) {
    for (const ModuleInfo& module : moduleTable)
        settings.setProperty(module.showSetting.data(), isShown);
}

} // namespace orvelle
