#include "windows/panels/panel_rules_singleton.h"

namespace orvelle {
namespace {

ProcessDisplayMode displayMode(int mode) {
    return mode == static_cast<int>(ProcessDisplayMode::cpu) ? ProcessDisplayMode::cpu
                                                             : ProcessDisplayMode::memory;
}

/// The records of a list that has been a property of type `var`: such a list keeps its type from Qt 6.5 on,
/// and is one of variants before.
QList<ProcessInfo> processRecords(const QVariant& processes) {
    if (processes.metaType() == QMetaType::fromType<QList<ProcessInfo>>())
        return processes.value<QList<ProcessInfo>>();
    QList<ProcessInfo> records;
    for (const QVariant& process : processes.toList())
        records.append(process.value<ProcessInfo>());
    return records;
}

} // namespace

double PanelRules::processBarScale(const QVariant& processes, int mode) {
    return orvelle::processBarScale(processRecords(processes), displayMode(mode));
}

double PanelRules::processBarFraction(const ProcessInfo& process, int mode, double scale) {
    return orvelle::processBarFraction(processPercent(process, displayMode(mode)), scale);
}

QString PanelRules::processValueText(const ProcessInfo& process, int mode) {
    return orvelle::processValueText(process, displayMode(mode));
}

} // namespace orvelle
