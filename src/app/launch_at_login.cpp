#include "app/launch_at_login.h"

#include "settings/settings_store.h"

#include <utility>

namespace orvelle {

LaunchAtLogin::LaunchAtLogin(SettingsStore& settings, std::unique_ptr<LoginItem> item, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_item(std::move(item)) {}

void LaunchAtLogin::start() {
    m_item->repair();
    takeOver();
    connect(&m_settings, &SettingsStore::launchAtLoginChanged, this, &LaunchAtLogin::apply);
}

void LaunchAtLogin::takeOver() {
    // Setting an equal value would store the default, although the user did not choose it.
    if (const bool isEnabled = m_item->isEnabled(); isEnabled != m_settings.launchAtLogin())
        m_settings.setLaunchAtLogin(isEnabled);
}

void LaunchAtLogin::apply() {
    const bool isWanted = m_settings.launchAtLogin();
    if (m_item->isEnabled() == isWanted || m_item->setEnabled(isWanted)) {
        setError({});
        return;
    }
    takeOver(); // calls this function again, which then has nothing to do
    setError(isWanted ? QStringLiteral("Orvelle could not be made to start at login.")
                      : QStringLiteral("Orvelle could not be kept from starting at login."));
}

void LaunchAtLogin::setError(const QString& error) {
    if (std::exchange(m_error, error) != error)
        Q_EMIT errorChanged();
}

} // namespace orvelle
