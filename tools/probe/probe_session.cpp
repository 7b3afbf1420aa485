#include "probe/probe_session.h"

#include "core/system_monitor.h"
#include "probe/monitor_json.h"
#include "settings/settings_store.h"

namespace orvelle {

std::variant<QJsonObject, UnreadableRoot> probe(const SamplingPlan& plan) {
    const SettingsStore settings;
    const auto sampled = sampledMonitor(plan, settings);
    if (const auto* error = std::get_if<UnreadableRoot>(&sampled))
        return *error;
    return publishedValues(*std::get<std::unique_ptr<SystemMonitor>>(sampled));
}

} // namespace orvelle
