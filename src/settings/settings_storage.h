#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

#include <memory>
#include <optional>

namespace orvelle {

/// Stored values by their keys.
using StoredValues = QHash<QString, QVariant>;

/// What became of values that were to be stored.
enum class SaveResult {
    saved,  ///< every reader of the place has them
    locked, ///< another program has the place for itself; soon it may be free again
    failed, ///< they cannot be stored there
};

/// Where settings are kept between runs. It shares the place with other programs and with people who edit it
/// by hand: keys it is not asked to write keep their values.
class SettingsStorage {
public:
    SettingsStorage() = default;
    SettingsStorage(const SettingsStorage&) = delete;
    SettingsStorage& operator=(const SettingsStorage&) = delete;
    virtual ~SettingsStorage() = default;

    /// What is stored now under those of `keys` that are stored; nothing when the place cannot be read.
    [[nodiscard]] virtual std::optional<StoredValues> read(const QStringList& keys) = 0;
    /// Stores booleans, numbers and texts at once, or none of them.
    [[nodiscard]] virtual SaveResult write(const StoredValues& values) = 0;
    /// Why `write` did not save just now, in a few words for the user.
    [[nodiscard]] virtual QString failureReason() const = 0;
    /// The file behind the storage, which changes when another program stores something.
    [[nodiscard]] virtual QString filePath() const = 0;
};

/// The place where this operating system keeps the user's settings of this program. Where a folder is named,
/// the place is in it instead of in the user's folder of all programs' settings: a test leaves the user's own
/// alone.
[[nodiscard]] std::unique_ptr<SettingsStorage> openUserSettings(const QString& folder = {});

} // namespace orvelle
