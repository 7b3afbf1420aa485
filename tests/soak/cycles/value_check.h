#pragma once

#include "core/system_monitor.h"
#include "failures.h"
#include "watched_sources.h"

namespace orvelle::soak {

/// Checks that each published value is in its range and that the histories hold what the samples gave,
/// nothing else.
class ValueCheck {
public:
    /// After each cycle.
    void check(SystemMonitor& monitor, const Answers& answers, Failures& failures);

private:
    void checkProcessor(const CPUMonitor& cpu, const Answers& answers, Failures& failures);
    void checkMemory(const MemoryMonitor& memory, const Answers& answers, Failures& failures);
    void checkBattery(const BatteryMonitor& battery, const Answers& answers, Failures& failures);
    void checkSensors(const SensorMonitor& sensor, const Answers& answers, Failures& failures);

    HistoryCheck m_usage{"the history of the processors"};
    HistoryCheck m_pressure{"the history of the memory"};
    HistoryCheck m_charge{"the history of the battery"};
    HistoryCheck m_cpuTemperature{"the history of the processor's temperature"};
    HistoryCheck m_gpuTemperature{"the history of the graphics processor's temperature"};
    double m_lastCPUTemperature = 0;
    double m_lastGPUTemperature = 0;
};

} // namespace orvelle::soak
