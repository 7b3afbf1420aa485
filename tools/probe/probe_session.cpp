#include "probe/probe_session.h"

#include "common/read_only_settings.h"
#include "core/system_monitor.h"
#include "probe/published_values.h"
#include "settings/module_table.h"
#include "settings/settings_store.h"

#include <fmt/format.h>

namespace orvelle {
std::variant<QJsonObject, UnreadableRoot> probe(const SamplingPlan& plan) {
    // Sampling asks no more of the settings than their defaults, so the user's own are left alone.
    const SettingsStore settings(std::make_unique<ReadOnlySettings>());
    const auto sampled = sampledMonitor(plan, settings);
    if (const auto* error = std::get_if<UnreadableRoot>(&sampled))
        return *error;
    return publishedValues(*std::get<std::unique_ptr<SystemMonitor>>(sampled));
}

QByteArray moduleLines() {
    std::string lines;
    for (const ModuleInfo& module : moduleTable)
        lines += fmt::format("{}\t{}\t{}\t{}\t{}\n", module.key.data(), module.width,
                             module.showSetting.data(), module.isShownByDefault, module.title.data());
    return QByteArray::fromStdString(lines);
}

} // namespace orvelle
