#include "common/example_machines.h"

#include "common/example_script.h"
#include "core/system_monitor.h"

namespace orvelle {

std::unique_ptr<SystemMonitor> exampleMonitor(ExampleMachine machine, const SettingsStore& settings) {
    ExampleCharacter character = exampleCharacter(machine);
    const int cycles = character.cycles;
    ExampleScript script(std::move(character));
    auto monitor = std::make_unique<SystemMonitor>(script.sources(), settings);
    for (int cycle = 0; cycle < cycles; ++cycle) {
        script.tell(cycle);
        monitor->updateCycle();
    }
    return monitor;
}

} // namespace orvelle
