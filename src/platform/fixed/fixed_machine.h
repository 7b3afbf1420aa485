#pragma once

#include "platform/fixed/fixed_sources.h"

namespace orvelle {

/// A machine of fixed sources. Its members stay usable after `sources()` handed them to a `SystemMonitor`,
/// for as long as that monitor lives.
class FixedMachine {
public:
    FixedClock clock;
    FixedProcessorSource* processor = nullptr;
    FixedMemorySource* memory = nullptr;
    FixedDiskSource* disk = nullptr;
    FixedNetworkSource* network = nullptr;
    FixedBatterySource* battery = nullptr;
    FixedSensorSource* sensor = nullptr;
    FixedProcessSource* process = nullptr;

    [[nodiscard]] MachineSources sources() {
        return {.now = clock.reader(),
                .processor = make(processor),
                .memory = make(memory),
                .disk = make(disk),
                .network = make(network),
                .battery = make(battery),
                .sensor = make(sensor),
                .process = make(process)};
    }

private:
    template <class Source>
    static std::unique_ptr<Source> make(Source*& observer) {
        auto source = std::make_unique<Source>();
        observer = source.get();
        return source;
    }
};

} // namespace orvelle
