#pragma once

#include "settings/styles.h"

#include <QObject>

namespace orvelle {

/// Placeholder header of the store: one property, until the whole table follows.
class SettingsStore : public QObject {
    Q_OBJECT
public:
    [[nodiscard]] double updateInterval() const { return 3.0; }
};

} // namespace orvelle
