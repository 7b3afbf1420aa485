#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

#include <functional>
#include <memory>
#include <optional>

namespace orvelle {

class AtomicFile;
class WatchedFile;

/// Stored values by their keys.
using StoredValues = QHash<QString, QVariant>;

enum class SaveResult {
    saved,  ///< every reader sees the values
    locked, ///< another program holds the lock; a later try may succeed
    failed, ///< the values cannot be stored
};

/// Where settings are kept between runs. Other programs and people who edit it by hand share the place: keys
/// that are not written keep their values.
class SettingsStorage {
public:
    SettingsStorage() = default;
    SettingsStorage(const SettingsStorage&) = delete;
    SettingsStorage& operator=(const SettingsStorage&) = delete;
    virtual ~SettingsStorage() = default;

    /// The current values of those `keys` that are stored. Nothing when the place cannot be read.
    [[nodiscard]] virtual std::optional<StoredValues> read(const QStringList& keys) = 0;
    /// Stores booleans, numbers and texts, all or none of them.
    [[nodiscard]] virtual SaveResult write(const StoredValues& values) = 0;
    /// Why the last `write` did not save, in a few words for the user.
    [[nodiscard]] virtual QString failureReason() const = 0;
    /// Calls `changed` on the main thread soon after the stored values of `keys` may have changed, whoever
    /// stored them. To be called once, before the first reading; lasts until the end of the storage.
    virtual void watch(const QStringList& keys, std::function<void()> changed) = 0;
};

/// The values of those `keys` that a file of ini text holds. A missing file is an empty one. Nothing unless
/// the path leads to a readable file of a sensible size, or to none. Leaves the file and its folder as they
/// are.
[[nodiscard]] std::optional<StoredValues> readSettingsFile(const QString& filePath, const QStringList& keys);

/// Settings in a file of ini text (see `IniText`). A write takes a lock, reads the file again, merges the
/// values and replaces the file (see `AtomicFile`). A missing file is an empty one; its folder is created
/// when first needed. Neither another program's lock nor a busy disk is waited for.
class SettingsFile : public SettingsStorage {
public:
    explicit SettingsFile(QString filePath);
    ~SettingsFile() override;

    [[nodiscard]] std::optional<StoredValues> read(const QStringList& keys) override;
    [[nodiscard]] SaveResult write(const StoredValues& values) override;
    [[nodiscard]] QString failureReason() const override;
    /// Hears of every change of the file, and of anything else in its folder, which is created.
    void watch(const QStringList& keys, std::function<void()> changed) override;
    [[nodiscard]] const QString& filePath() const { return m_filePath; }

private:
    [[nodiscard]] SaveResult merge(const StoredValues& values);
    /// The file that the path leads to, by links or directly.
    [[nodiscard]] AtomicFile& target();

    const QString m_filePath;
    QString m_targetPath;
    std::unique_ptr<AtomicFile> m_target;
    std::unique_ptr<WatchedFile> m_watch;
};

} // namespace orvelle
