#pragma once

#include "core/system_monitor.h"

#include <QAbstractItemModel>
#include <QQmlEngine>

/// The monitors, which the program makes and QML only uses, and the records that they publish, to QML: the
/// panels declare what they need by these types.
namespace orvelle {

/// Makes the panels known to QML as the module `Orvelle.Panels`. A static library does not register its types
/// by itself. Called again it does nothing.
void registerPanelTypes();

struct CPUMonitorInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::CPUMonitor)
    QML_NAMED_ELEMENT(CPUMonitor)
    QML_UNCREATABLE("The program makes it.")
};

struct MemoryMonitorInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::MemoryMonitor)
    QML_NAMED_ELEMENT(MemoryMonitor)
    QML_UNCREATABLE("The program makes it.")
};

struct NetworkMonitorInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::NetworkMonitor)
    QML_NAMED_ELEMENT(NetworkMonitor)
    QML_UNCREATABLE("The program makes it.")
};

struct DiskMonitorInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::DiskMonitor)
    QML_NAMED_ELEMENT(DiskMonitor)
    QML_UNCREATABLE("The program makes it.")
};

struct BatteryMonitorInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::BatteryMonitor)
    QML_NAMED_ELEMENT(BatteryMonitor)
    QML_UNCREATABLE("The program makes it.")
};

struct SensorMonitorInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::SensorMonitor)
    QML_NAMED_ELEMENT(SensorMonitor)
    QML_UNCREATABLE("The program makes it.")
};

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
