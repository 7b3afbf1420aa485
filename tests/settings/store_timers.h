#pragma once

#include "settings/settings_store.h"
#include "support/early_timer.h"
#include "support/waiting.h"

namespace orvelle {

/// Delays reading a changed file until its writer has finished.
[[nodiscard]] inline QTimer& reloadDelay(const SettingsStore& store) {
    return *store.findChild<QTimer*>(QStringLiteral("reloadDelay"));
}
/// Spaces the writes of a value that follows the user's hand.
[[nodiscard]] inline QTimer& tuningDelay(const SettingsStore& store) {
    return *store.findChild<QTimer*>(QStringLiteral("tuningDelay"));
}
/// Delays another try after a lock prevented a write.
[[nodiscard]] inline QTimer& retryDelay(const SettingsStore& store) {
    return *store.findChild<QTimer*>(QStringLiteral("retryDelay"));
}

/// Waits until the store notices a change, and makes it read the file.
inline void awaitReading(const SettingsStore& store) {
    ASSERT_TRUE(waitUntil([&] { return reloadDelay(store).isActive(); }));
    endNow(reloadDelay(store));
}

} // namespace orvelle
