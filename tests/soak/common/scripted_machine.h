#pragma once

#include "common/machine.h"
#include "platform/replay/fake_sources.h"

namespace orvelle::soak {

/// A machine of scripted answers, within what `core/sources` promises. Any question may remain without an
/// answer.
class ScriptedMachine final : public Machine {
public:
    /// Whether the machine also has a clock that nobody sets.
    enum class Clock { steadyToo, wallAlone };

    explicit ScriptedMachine(Clock clock)
        : m_clock(clock) {}

    [[nodiscard]] MachineSources sources() override;
    void reset() override;
    void change(Random& random) override;

private:
    /// All that is remembered between two samples, also while a source gives no answer.
    struct State {
        std::vector<CoreTicks> cores;
        std::vector<DiskCounters> disks;
        std::vector<InterfaceEntry> interfaces;
        std::vector<ProcessRecord> processes;
        std::vector<MountedVolume> volumes;
        std::vector<std::optional<PowerSourceDescription>> packs;
        std::vector<NamedTemperature> sensors;
        std::vector<std::int64_t> fans;
    };

    void changeProcessors(Random& random);
    void changeMemory(Random& random);
    void changeDisks(Random& random);
    void changeInterfaces(Random& random);
    void changeProcesses(Random& random);
    void changePacks(Random& random);
    void changeSensors(Random& random);

    Clock m_clock;
    FakeMachine m_machine;
    State m_state;
};

} // namespace orvelle::soak
