#pragma once

#include "settings/settings_store.h"
#include "support/early_timer.h"
#include "support/waiting.h"

namespace orvelle {

/// By which a store waits until a file that changed has come to rest.
[[nodiscard]] inline QTimer& reloadDelay(const SettingsStore& store) {
    return *store.findChild<QTimer*>(QStringLiteral("reloadDelay"));
}
/// By which a store waits between two values that follow the user's hand.
[[nodiscard]] inline QTimer& tuningDelay(const SettingsStore& store) {
    return *store.findChild<QTimer*>(QStringLiteral("tuningDelay"));
}
/// After which a store tries again to save what another program's lock kept it from.
[[nodiscard]] inline QTimer& retryDelay(const SettingsStore& store) {
    return *store.findChild<QTimer*>(QStringLiteral("retryDelay"));
}

/// Waits until the store has seen that something changed, and has it read the file again.
inline void awaitReading(const SettingsStore& store) {
    ASSERT_TRUE(waitUntil([&] { return reloadDelay(store).isActive(); }));
    endNow(reloadDelay(store));
}

} // namespace orvelle
