#include "common/example_script.h"
#include "fuzz/mutations.h"
#include "platform/host.h"
#include "platform/linux/files.h"
#include "platform/replay/replay_machine.h"
#include "support/machine_moments.h"
#include "support/source_contract.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

namespace orvelle {
namespace {

namespace fs = std::filesystem;

/// The folders of the recorded machines.
std::vector<fs::path> recordedMachines() {
    std::vector<fs::path> machines;
    for (const fs::directory_entry& entry : fs::directory_iterator(ORVELLE_FIXTURES)) {
        if (entry.is_directory())
            machines.push_back(entry.path());
    }
    std::ranges::sort(machines);
    return machines;
}

/// The regular files below `root`, by path.
std::vector<fs::path> filesBelow(const fs::path& root) {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root)) {
        if (!entry.is_symlink() && entry.is_regular_file())
            files.push_back(entry.path().lexically_relative(root));
    }
    std::ranges::sort(files);
    return files;
}

/// `text` with the largest number of 64 bits in place of each of its numbers.
std::string withLargestNumbers(const std::string& text) {
    static const std::regex number("\\b[0-9]+\\b");
    return std::regex_replace(text, number, "18446744073709551615");
}

class RecordedMachineContract : public ::testing::TestWithParam<fs::path> {
protected:
    FakeClock clock;
};

INSTANTIATE_TEST_SUITE_P(Each, RecordedMachineContract, ::testing::ValuesIn(recordedMachines()),
                         [](const auto& machine) {
                             std::string name = machine.param.filename().string();
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

TEST_P(RecordedMachineContract, HoldsForBothMomentsAndTheirReplay) {
    const TemporaryTree second;
    assembleSecondMoment(second.root(), GetParam());
    std::vector<MachineSources> moments;
    for (const fs::path& root : {GetParam() / "1", second.root()}) {
        moments.push_back(makeTreeSources(root, clock.reader()));
        expectKeepsContract(moments.back());
    }
    ReplayMachine replay(std::move(moments));
    const MachineSources machine = replay.sources(clock.reader());
    expectKeepsContract(machine);
    replay.advance();
    expectKeepsContract(machine);
}

TEST_P(RecordedMachineContract, HoldsForTheLargestNumbersAndForDamagedFiles) {
    constexpr int rounds = 2;
    const TemporaryTree tree;
    layOver(tree.root(), GetParam() / "1");
    const MachineSources machine = makeTreeSources(tree.root(), clock.reader());
    const std::vector<fs::path> files = filesBelow(tree.root());
    std::vector<std::string> texts;
    for (const fs::path& file : files) {
        texts.push_back(linux_platform::readFile(tree.root() / file).value_or(""));
        tree.write(file, withLargestNumbers(texts.back()));
    }
    expectKeepsContract(machine);
    fuzz::Mutations mutations(texts);
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t index = 0; index < files.size(); ++index)
            tree.write(files[index], mutations.of(texts[index]));
        expectKeepsContract(machine);
    }
}

TEST(SourceContract, HoldsForThisMachine) {
    const MachineSources machine = makeHostSources();
    expectKeepsContract(machine);
    expectKeepsContract(machine);
}

TEST(SourceContract, HoldsForAnEmptyTree) {
    const TemporaryTree tree;
    expectKeepsContract(makeTreeSources(tree.root(), FakeClock().reader()));
}

TEST(SourceContract, HoldsForTheExampleMachinesInEveryCycle) {
    for (const ExampleMachine example :
         {ExampleMachine::laptop, ExampleMachine::loadedLaptop, ExampleMachine::bareComputer}) {
        ExampleCharacter character = exampleCharacter(example);
        const int cycles = character.cycles;
        ExampleScript script(std::move(character));
        const MachineSources machine = script.sources();
        for (int cycle = 0; cycle < cycles; ++cycle) {
            script.tell(cycle);
            expectKeepsContract(machine);
        }
    }
}

} // namespace
} // namespace orvelle
