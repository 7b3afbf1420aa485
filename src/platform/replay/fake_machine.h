#pragma once

#include "platform/replay/fake_sources.h"

namespace orvelle {

/// A machine of fixed sources. Its members stay usable after `sources()` handed them to a `SystemMonitor`,
/// for as long as that monitor lives.
class FakeMachine {
public:
    FakeClock clock;
    FakeProcessorSource* processor = nullptr;
    FakeMemorySource* memory = nullptr;
    FakeDiskSource* disk = nullptr;
    FakeNetworkSource* network = nullptr;
    FakeBatterySource* battery = nullptr;
    FakeSensorSource* sensor = nullptr;
    FakeProcessSource* process = nullptr;

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
