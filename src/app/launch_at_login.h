#pragma once

#include "shell/desktop.h"

#include <QObject>
#include <QString>

#include <memory>

namespace orvelle {

class SettingsStore;

/// Synchronizes the setting `launchAtLogin` with the desktop's login item. Main thread only.
class LaunchAtLogin : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString error READ error NOTIFY errorChanged)

public:
    /// The settings must outlive the object.
    LaunchAtLogin(SettingsStore& settings, std::unique_ptr<LoginItem> item, QObject* parent = nullptr);

    /// Repairs the item if the program has moved, and makes the setting match what the desktop will really
    /// do, because the user may have changed it there. Afterwards the item follows the setting. If the item
    /// cannot change, the setting reverts.
    void start();

    /// Tells the user why the setting last reverted; empty if it did not.
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
