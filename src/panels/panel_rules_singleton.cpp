#include "panels/panel_rules_singleton.h"

namespace orvelle {
namespace {

ProcessDisplayMode displayMode(int mode) {
    return mode == static_cast<int>(ProcessDisplayMode::cpu) ? ProcessDisplayMode::cpu
                                                             : ProcessDisplayMode::memory;
}

} // namespace

double PanelRules::processBarScale(const QVariantList& processes, int mode) {
    QList<ProcessInfo> records;
    for (const QVariant& process : processes)
        records.append(process.value<ProcessInfo>());
    return orvelle::processBarScale(records, displayMode(mode));
}

double PanelRules::processBarFraction(const ProcessInfo& process, int mode, double scale) {
    return orvelle::processBarFraction(processPercent(process, displayMode(mode)), scale);
}

QString PanelRules::processValueText(const ProcessInfo& process, int mode) {
    return orvelle::processValueText(process, displayMode(mode));
}

} // namespace orvelle
