#pragma once

#include "core/system_monitor.h"
#include "settings/module_table.h"

#include <QAbstractItemModel>
#include <QQmlEngine>

/// The monitors, which the program makes and QML only uses, and the records that they publish, to QML: the
/// panels declare what they need by these types.
namespace orvelle {

/// Makes the panels known to QML as the module `Orvelle.Panels`. A static library does not register its types
/// by itself. Called again it does nothing.
void registerPanelTypes();

#define ORVELLE_MODULE(id, Type, ...)                                                                        \
    struct Type##MonitorInQml {                                                                              \
        Q_GADGET                                                                                             \
        QML_FOREIGN(orvelle::Type##Monitor)                                                                  \
        QML_NAMED_ELEMENT(Type##Monitor)                                                                     \
        QML_UNCREATABLE("The program makes it.")                                                             \
    };
ORVELLE_MODULES(ORVELLE_MODULE)
#undef ORVELLE_MODULE

struct ProcessMonitorInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::ProcessMonitor)
    QML_NAMED_ELEMENT(ProcessMonitor)
    QML_UNCREATABLE("The program makes it.")
};

/// What the rows of a RecordModel are made from; without the module QtQml.Models the tools of QML do not know
/// it.
struct ItemModelInQml {
    Q_GADGET
    QML_FOREIGN(QAbstractItemModel)
    QML_ANONYMOUS
};

struct CPUCoreUsageInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::CPUCoreUsage)
    QML_VALUE_TYPE(coreUsage)
};

struct MemoryMonitorInfoInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::MemoryMonitorInfo)
    QML_VALUE_TYPE(memoryInfo)
};

struct NetworkInterfaceInfoInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::NetworkInterfaceInfo)
    QML_VALUE_TYPE(interfaceInfo)
};

struct DiskVolumeInfoInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::DiskVolumeInfo)
    QML_VALUE_TYPE(volumeInfo)
};

struct DiskIOInfoInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::DiskIOInfo)
    QML_VALUE_TYPE(diskIO)
};

struct BatteryInfoInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::BatteryInfo)
    QML_VALUE_TYPE(batteryInfo)
};

struct TemperatureSensorInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::TemperatureSensor)
    QML_VALUE_TYPE(temperatureSensor)
};

struct FanInfoInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::FanInfo)
    QML_VALUE_TYPE(fanInfo)
};

struct ProcessInfoInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::ProcessInfo)
    QML_VALUE_TYPE(processInfo)
};

} // namespace orvelle
