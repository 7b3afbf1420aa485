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
    const LoginItemState state = m_item->state();
    const bool isSet =
        state == LoginItemState::needsApproval ? m_settings.launchAtLogin() : state == LoginItemState::on;
    // Setting an equal value would store the default, although the user did not choose it.
    if (isSet != m_settings.launchAtLogin())
        m_settings.setLaunchAtLogin(isSet);
    updateApproval();
}

void LaunchAtLogin::apply() {
    const bool isWanted = m_settings.launchAtLogin();
    const LoginItemState wantedState = isWanted ? LoginItemState::on : LoginItemState::off;
    if (m_item->state() == wantedState || m_item->setEnabled(isWanted)) {
        setError({});
        updateApproval();
        return;
    }
    takeOver(); // calls this function again, which then has nothing to do
    setError(isWanted ? QStringLiteral("Orvelle could not be made to start at login.")
                      : QStringLiteral("Orvelle could not be kept from starting at login."));
}

void LaunchAtLogin::askForApproval() {
    m_item->askForApproval();
}

void LaunchAtLogin::checkApproval() {
    if (m_needsApproval)
        takeOver();
}

void LaunchAtLogin::updateApproval() {
    const bool needsApproval = m_settings.launchAtLogin() && m_item->state() == LoginItemState::needsApproval;
    if (std::exchange(m_needsApproval, needsApproval) != needsApproval)
        Q_EMIT needsApprovalChanged();
}

void LaunchAtLogin::setError(const QString& error) {
    if (std::exchange(m_error, error) != error)
        Q_EMIT errorChanged();
}

} // namespace orvelle
