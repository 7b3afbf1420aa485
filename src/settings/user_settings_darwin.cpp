#include "settings/settings_storage.h"

#include <QSettings>

namespace orvelle {
namespace {

/// The program's user-defaults domain, or a property list in a given folder, through QSettings' native
/// format.
class UserDefaults : public SettingsStorage {
public:
    explicit UserDefaults(const QString& folder)
        : m_folder(folder) {}

    std::optional<StoredValues> read(const QStringList& keys) override {
        const std::unique_ptr<QSettings> settings = open();
        settings->sync();
        StoredValues values;
        for (const QString& key : keys) {
            if (settings->contains(key))
                values.insert(key, settings->value(key));
        }
        return values;
    }

    SaveResult write(const StoredValues& values) override {
        const std::unique_ptr<QSettings> settings = open();
        for (auto value = values.begin(); value != values.end(); ++value)
            settings->setValue(value.key(), value.value());
        settings->sync();
        return settings->status() == QSettings::NoError ? SaveResult::saved : SaveResult::failed;
    }

    QString failureReason() const override { return QStringLiteral("%1 cannot be written").arg(filePath()); }

    QString filePath() const override { return open()->fileName(); }

private:
    /// A new object each time: the status of one never recovers from an error.
    [[nodiscard]] std::unique_ptr<QSettings> open() const {
        if (!m_folder.isEmpty())
            return std::make_unique<QSettings>(m_folder + QStringLiteral("/com.orvelle.orvelle.plist"),
                                               QSettings::NativeFormat);
        auto settings = std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                                    QStringLiteral("orvelle"), QStringLiteral("orvelle"));
        settings->setFallbacksEnabled(false);
        return settings;
    }

    QString m_folder; ///< empty for the user-defaults domain
};

} // namespace

std::unique_ptr<SettingsStorage> openUserSettings(const QString& folder) {
    return std::make_unique<UserDefaults>(folder);
}

} // namespace orvelle
