#include "probe/probe_session.h"

#include "core/system_monitor.h"
#include "probe/monitor_json.h"
#include "settings/settings_store.h"

#include <QTemporaryDir>

namespace orvelle {

std::variant<QJsonObject, UnreadableRoot> probe(const SamplingPlan& plan) {
    // Sampling asks no more of the settings than their defaults, so the user's own are left alone.
    const QTemporaryDir directory;
    const SettingsStore settings(directory.filePath(QStringLiteral("settings.conf")));
    const auto sampled = sampledMonitor(plan, settings);
    if (const auto* error = std::get_if<UnreadableRoot>(&sampled))
        return *error;
    return publishedValues(*std::get<std::unique_ptr<SystemMonitor>>(sampled));
}

} // namespace orvelle
