#pragma once

#include "shell/desktop.h"

#include <QObject>
#include <QString>

#include <memory>

namespace orvelle {

class SettingsStore;

/// Keeps the setting `launchAtLogin` and the desktop's login item in line. Main thread only.
class LaunchAtLogin : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString error READ error NOTIFY errorChanged)

public:
    /// The settings must outlive the object.
    LaunchAtLogin(SettingsStore& settings, std::unique_ptr<LoginItem> item, QObject* parent = nullptr);

    /// Repairs the item where the program has moved, and takes over what the desktop will really do: the user
    /// may have changed it there. From now on the item follows the setting; where it cannot, the setting goes
    /// back.
    void start();

    /// Why the setting went back the last time, for the user; empty when it did not.
    [[nodiscard]] const QString& error() const { return m_error; }

Q_SIGNALS:
    void errorChanged();

private:
    void takeOver();
    void apply();
    void setError(const QString& error);

    SettingsStore& m_settings;
    std::unique_ptr<LoginItem> m_item;
    QString m_error;
};

} // namespace orvelle
