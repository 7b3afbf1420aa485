#include "core/process_monitor.h"
#include "darwin/typical_machine.h"

namespace orvelle {
namespace {

using namespace simulated;

class DarwinProcessSourceTest : public DarwinTest {
protected:
    std::optional<std::vector<ProcessRecord>> read() {
        const auto processes = host().process->readProcesses();
        if (!processes)
            return std::nullopt;
        return std::vector<ProcessRecord>(processes->begin(), processes->end());
    }
    /// The name of the only process, which has this path.
    std::string nameFrom(const std::string& path) {
        machine().processes = {{.pid = 5, .path = path, .shortName = "short"}};
        return read()->at(0).name;
    }
    static std::vector<Process> countedProcesses(std::int32_t count) {
        std::vector<Process> processes;
        for (std::int32_t pid = 1; pid <= count; ++pid)
            processes.push_back({.pid = pid, .path = "/bin/" + std::to_string(pid)});
        return processes;
    }
};

TEST_F(DarwinProcessSourceTest, ListsInTheSystemsOrderWithoutTheKernel) {
    const auto records = read().value();
    ASSERT_EQ(records.size(), 4u);
    EXPECT_EQ(records[0], (ProcessRecord{.pid = 900,
                                         .name = "compile",
                                         .userNanoseconds = 5,
                                         .systemNanoseconds = 6,
                                         .residentBytes = 7}));
    EXPECT_EQ(records[1].name, "Browser");
    EXPECT_EQ(records[2].name, "helper");
}

TEST_F(DarwinProcessSourceTest, AResidentSizeThatNoMachineCanHoldIsCut) {
    machine().processes = {{.pid = 1, .path = "/bin/odd", .residentBytes = ~std::uint64_t{0}}};
    EXPECT_EQ(read()->at(0).residentBytes, ProcessRecord::maximumBytes);
}

TEST_F(DarwinProcessSourceTest, AProcessThatMayNotBeInspectedIsListedWithoutAName) {
    EXPECT_EQ(read()->at(3).pid, 60);
    EXPECT_EQ(read()->at(3).name, "");
}

TEST_F(DarwinProcessSourceTest, TakesOneToThreeCallsAProcess) {
    EXPECT_TRUE(read());
    EXPECT_EQ(
        takeSystemCalls(),
        (std::vector<std::string>{"proc_listpids size", "proc_listpids", "proc_pidinfo 900",
                                  "proc_pidpath 900", "proc_pidinfo 321", "proc_pidpath 321",
                                  "proc_pidinfo 77", "proc_pidpath 77", "proc_name 77", "proc_pidinfo 60"}));
}

TEST_F(DarwinProcessSourceTest, OnlyAWholeRecordCounts) {
    for (const int size : {0, -1, 95, 97, 48}) {
        machine().processes = {{.pid = 5, .path = "/bin/sh", .informationSize = size}};
        EXPECT_EQ(read()->at(0).name, "") << size;
    }
}

TEST_F(DarwinProcessSourceTest, TheNameIsTheLastComponentOfThePathElseTheShortName) {
    EXPECT_EQ(nameFrom("/usr/libexec/some daemon"), "some daemon");
    EXPECT_EQ(nameFrom("relative"), "relative");
    EXPECT_EQ(nameFrom("/usr/bin/"), "bin");
    EXPECT_EQ(nameFrom("//"), "/");
    EXPECT_EQ(nameFrom("/"), "short");
    EXPECT_EQ(nameFrom(""), "short");
    EXPECT_EQ(nameFrom("/" + std::string(4095, 'a')), std::string(4095, 'a'));
    EXPECT_EQ(nameFrom("/" + std::string(5000, 'a')), std::string(4095, 'a')) << "cut at the buffer's end";
}

TEST_F(DarwinProcessSourceTest, AProcessWithoutAnyNameIsListedWithoutAName) {
    machine().processes = {{.pid = 5, .user = 9}};
    EXPECT_EQ(read()->at(0).name, "");
}

TEST_F(DarwinProcessSourceTest, OddListSizesAreCutToWholePidsWithinTheBuffer) {
    machine().processes = countedProcesses(3);
    machine().listedPidBytes = 11;
    EXPECT_EQ(read()->size(), 2u);
    machine().listedPidBytes = 1 << 20;
    EXPECT_EQ(read()->size(), 3u) << "the rest of the buffer is zeros, which are no processes";
    machine().listedPidBytes = 3;
    EXPECT_EQ(read(), std::nullopt);
    machine().listedPidBytes = 0;
    EXPECT_EQ(read(), std::nullopt);
}

TEST_F(DarwinProcessSourceTest, NegativePidsAreLeftOut) {
    machine().processes = {{.pid = -4, .path = "/bin/sh"}, {.pid = 4, .path = "/bin/sh"}};
    ASSERT_EQ(read()->size(), 1u);
    EXPECT_EQ(read()->at(0).pid, 4);
}

TEST_F(DarwinProcessSourceTest, AShorterListLeavesNothingOfALongerOneBehind) {
    machine().processes = countedProcesses(50);
    EXPECT_EQ(read()->size(), 50u);
    machine().processes = {{.pid = 7, .informationSize = 0}};
    ProcessRecord unknown;
    unknown.pid = 7;
    EXPECT_EQ(read(), std::vector<ProcessRecord>{unknown});
}

TEST_F(DarwinProcessSourceTest, ASampleUsesTheRecordsAndNamesOfTheOneBefore) {
    machine().processes = {{.pid = 5, .path = "/bin/" + std::string(100, 'n')}};
    const std::span<const ProcessRecord> first = host().process->readProcesses().value();
    const char* const name = first[0].name.data();
    machine().processes[0].path = "/bin/" + std::string(90, 'm');
    const std::span<const ProcessRecord> second = host().process->readProcesses().value();
    EXPECT_EQ(second.data(), first.data());
    EXPECT_EQ(second[0].name.data(), name);
    EXPECT_EQ(second[0].name, std::string(90, 'm'));
}

TEST_F(DarwinProcessSourceTest, NamesAreMadeReadable) {
    EXPECT_EQ(nameFrom("/tmp/two\nlines"), "two lines");
    EXPECT_EQ(nameFrom("/tmp/broken\xff"), "broken\xEF\xBF\xBD");
    machine().processes = {{.pid = 5, .shortName = "a\tb"}};
    EXPECT_EQ(read()->at(0).name, "a b");
}

TEST_F(DarwinProcessSourceTest, TimesPassAsTheSystemCountsThem) {
    machine().processes = {{.pid = 5, .path = "/bin/sh", .user = 24'000'000, .system = 1}};
    EXPECT_EQ(read()->at(0).userNanoseconds, 24'000'000u);
    EXPECT_EQ(read()->at(0).systemNanoseconds, 1u);
}

TEST_F(DarwinProcessSourceTest, TheMonitorMeasuresFromOneSampleToTheNext) {
    WallTime time{};
    ProcessMonitor monitor(*host().process, [&time] { return time; });
    monitor.update();
    time += std::chrono::seconds(1);
    machine().processes[2].user += 500'000'000;
    monitor.update();
    ASSERT_EQ(monitor.topCPUProcesses().size(), 3);
    EXPECT_EQ(monitor.topCPUProcesses()[0].name, QStringLiteral("helper"));
    EXPECT_DOUBLE_EQ(monitor.topCPUProcesses()[0].cpuUsage, 50);
}

TEST_F(DarwinProcessSourceTest, TotalMemoryIsAskedOfTheSystem) {
    EXPECT_EQ(host().process->readTotalMemory(), 8 * gibibyte);
    machine().setSysctl(physicalMemoryName, std::uint32_t{1});
    EXPECT_EQ(host().process->readTotalMemory(), std::nullopt);
}

} // namespace
} // namespace orvelle
