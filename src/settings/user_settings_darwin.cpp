#include "settings/settings_storage.h"

#include <QSettings>

namespace orvelle {
namespace {

/// The user-defaults domain of the program, through QSettings' native format.
class UserDefaults : public SettingsStorage {
public:
    UserDefaults() { m_settings.setFallbacksEnabled(false); }

    std::optional<StoredValues> read(const QStringList& keys) override {
        m_settings.sync();
        StoredValues values;
        for (const QString& key : keys) {
            if (m_settings.contains(key))
                values.insert(key, m_settings.value(key));
        }
        return values;
    }

    bool write(const StoredValues& values) override {
        for (auto value = values.begin(); value != values.end(); ++value)
            m_settings.setValue(value.key(), value.value());
        m_settings.sync();
        return m_settings.status() == QSettings::NoError;
    }

    QString filePath() const override { return m_settings.fileName(); }

private:
    QSettings m_settings{QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("orvelle"),
                         QStringLiteral("orvelle")};
};

} // namespace

std::unique_ptr<SettingsStorage> openUserSettings() {
    return std::make_unique<UserDefaults>();
}

} // namespace orvelle
