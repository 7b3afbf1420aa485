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
    Q_PROPERTY(bool needsApproval READ needsApproval NOTIFY needsApprovalChanged)

public:
    /// The settings must outlive the object.
    LaunchAtLogin(SettingsStore& settings, std::unique_ptr<LoginItem> item, QObject* parent = nullptr);

    /// Repairs the item if the program has moved, and makes the setting match what the desktop will really
    /// do, because the user may have changed it there. An item that waits for the user's approval leaves the
    /// setting as it is. Afterwards the item follows the setting. If the item cannot change, the setting
    /// reverts.
    void start();

    /// Tells the user why the setting last reverted; empty if it did not.
    [[nodiscard]] const QString& error() const { return m_error; }

    /// Whether the setting is on and the desktop waits for the user to allow it in the desktop's settings.
    [[nodiscard]] bool needsApproval() const { return m_needsApproval; }
    /// Opens the desktop's settings where the user allows it.
    Q_INVOKABLE void askForApproval();
    /// Looks whether the user has allowed or forbidden it meanwhile, if it waited for that.
    void checkApproval();

Q_SIGNALS:
    void errorChanged();
    void needsApprovalChanged();

private:
    void takeOver();
    void apply();
    void setError(const QString& error);
    void updateApproval();

    SettingsStore& m_settings;
    std::unique_ptr<LoginItem> m_item;
    QString m_error;
    bool m_needsApproval = false;
};

} // namespace orvelle
