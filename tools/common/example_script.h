#pragma once

#include "common/example_character.h"
#include "platform/replay/fake_sources.h"

namespace orvelle {

/// The sources of one example machine, moved on cycle by cycle. Whole numbers throughout, so that it is the
/// same everywhere.
class ExampleScript {
public:
    explicit ExampleScript(ExampleCharacter character);

    [[nodiscard]] MachineSources sources();

    /// What the machine answers in this cycle, counted from 0; each cycle in turn.
    void tell(int cycle);

private:
    void tellConstants();
    void tellProcessor(int cycle);
    void tellMemory(int cycle);
    void tellNetwork(int cycle);
    void tellDisk(int cycle);
    void tellBattery(int cycle);
    void tellSensors(int cycle);
    void tellProcesses();
    [[nodiscard]] int cyclesLeft(int cycle) const { return m_character.cycles - 1 - cycle; }
    /// How much of `whole` is there by this cycle: all of it in the last.
    [[nodiscard]] int climbed(int whole, int cycle) const;

    ExampleCharacter m_character;
    FakeMachine m_machine;
    std::vector<CoreTicks> m_ticks;
    DiskCounters m_disk;
};

} // namespace orvelle
