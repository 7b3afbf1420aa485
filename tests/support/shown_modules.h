#pragma once

#include "settings/settings_store.h"

#include <QVariant>

namespace orvelle {

/// Gives every module of the table an item in the menu bar, or none.
inline void showEveryModule(SettingsStore& settings, bool isShown) {
    for (const ModuleInfo& module : moduleTable)
        settings.setProperty(module.showSetting.data(), isShown);
}

} // namespace orvelle
