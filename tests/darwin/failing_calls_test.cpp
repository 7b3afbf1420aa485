#include "darwin/typical_machine.h"

#include <functional>

// Each call that a question makes fails in turn, and every one has its own answer here. A call that no
// outcome is written down for fails the test.
namespace orvelle {
namespace {

using simulated::kernel;
using namespace std::string_literals;

/// One question that the monitors ask of a machine.
template <class Answer>
struct Question {
    std::function<Answer(MachineSources&)> ask;
    Answer whole; ///< when nothing fails
    /// By the call that fails; of several equal ones the second is "... (2)".
    std::map<std::string, Answer> whenFailing;
};

/// The calls since the last `forgetCalls`, each with its own text.
std::vector<std::string> distinctCalls() {
    std::map<std::string, int> counts;
    std::vector<std::string> calls;
    for (const std::string& call : kernel().calls()) {
        const int count = ++counts[call];
        calls.push_back(count == 1 ? call : call + " (" + std::to_string(count) + ")");
    }
    return calls;
}

class FailingCallsTest : public DarwinTest {
protected:
    template <class Answer>
    void failEachCallOf(const Question<Answer>& question) {
        EXPECT_EQ(question.ask(host()), question.whole);
        const std::vector<std::string> calls = distinctCalls();
        for (std::size_t number = 0; number < calls.size(); ++number) {
            SCOPED_TRACE(calls[number]);
            startAfresh();
            MachineSources& sources = host();
            kernel().failCall(number);
            const auto outcome = question.whenFailing.find(calls[number]);
            ASSERT_NE(outcome, question.whenFailing.end()) << "no outcome is written down for this call";
            EXPECT_EQ(question.ask(sources), outcome->second);
        }
        EXPECT_EQ(calls.size(), question.whenFailing.size()) << "an outcome for a call that is not made";
    }
};

TEST_F(FailingCallsTest, ProcessorTicks) {
    using Answer = std::optional<std::vector<CoreTicks>>;
    failEachCallOf<Answer>({.ask = [](MachineSources& sources) { return sources.processor->readTicks(); },
                            .whole = {{{100, 50, 800, 10}, {200, 60, 700, 20}}},
                            .whenFailing = {{"host_processor_info", std::nullopt}}});
}

TEST_F(FailingCallsTest, LoadAverages) {
    using Answer = std::optional<std::array<double, 3>>;
    failEachCallOf<Answer>(
        {.ask = [](MachineSources& sources) { return sources.processor->readLoadAverages(); },
         .whole = {{1.5, 2.5, 3.5}},
         .whenFailing = {{"getloadavg 3", std::nullopt}}});
}

TEST_F(FailingCallsTest, BootTime) {
    using Answer = std::optional<std::int64_t>;
    failEachCallOf<Answer>({.ask = [](MachineSources& sources) { return sources.processor->readBootTime(); },
                            .whole = 1767225600,
                            .whenFailing = {{"sysctl kern.boottime", std::nullopt}}});
}

TEST_F(FailingCallsTest, Memory) {
    using Answer = std::optional<MemoryReading>;
    MemoryReading withoutSize = typicalMemoryReading();
    withoutSize.physicalMemory = 0;
    MemoryReading withoutSwap = typicalMemoryReading();
    withoutSwap.swapTotal = 0;
    withoutSwap.swapUsed = 0;
    failEachCallOf<Answer>({.ask = [](MachineSources& sources) { return sources.memory->read(); },
                            .whole = typicalMemoryReading(),
                            .whenFailing = {{"sysctl hw.memsize", withoutSize},
                                            {"host_statistics64", std::nullopt},
                                            {"sysctl vm.swapusage", withoutSwap}}});
}

TEST_F(FailingCallsTest, TotalMemory) {
    using Answer = std::optional<std::uint64_t>;
    failEachCallOf<Answer>({.ask = [](MachineSources& sources) { return sources.process->readTotalMemory(); },
                            .whole = 8 * gibibyte,
                            .whenFailing = {{"sysctl hw.memsize", std::nullopt}}});
}

TEST_F(FailingCallsTest, Interfaces) {
    using Answer = std::optional<std::vector<InterfaceEntry>>;
    const std::vector<InterfaceEntry> whole = host().network->read().value();
    kernel().forgetCalls();
    std::vector<InterfaceEntry> withoutIPv4 = whole;
    withoutIPv4[3].ipv4Address.clear();
    std::vector<InterfaceEntry> withoutIPv6 = whole;
    withoutIPv6[4].ipv6Address.clear();
    failEachCallOf<Answer>({.ask = [](MachineSources& sources) { return sources.network->read(); },
                            .whole = whole,
                            .whenFailing = {{"getifaddrs", std::nullopt},
                                            {"getnameinfo of IPv4", withoutIPv4},
                                            {"getnameinfo of IPv6", withoutIPv6}}});
}

TEST_F(FailingCallsTest, Volumes) {
    using Answer = std::optional<std::vector<MountedVolume>>;
    const MountedVolume root{
        .path = "/", .name = "Macintosh HD", .isLocal = true, .totalBytes = 500, .freeBytes = 200};
    const MountedVolume share{.path = "/Volumes/Share", .name = "Share", .totalBytes = 900, .freeBytes = 100};
    MountedVolume rootWithoutPurgeable = root;
    rootWithoutPurgeable.freeBytes = 150;
    MountedVolume namelessRoot = root;
    namelessRoot.name.reset();
    MountedVolume namelessShare = share;
    namelessShare.name.reset();
    const std::string values = "resourceValues name total available local internal";
    failEachCallOf<Answer>(
        {.ask = [](MachineSources& sources) { return sources.disk->readVolumes(); },
         .whole = {{root, share}},
         .whenFailing = {{"mountedVolumeURLs name total available local internal", std::nullopt},
                         {values, {{share}}},
                         {"UTF8String /", {{share}}},
                         {"UTF8String Macintosh HD", {{namelessRoot, share}}},
                         {"resourceValues important", {{rootWithoutPurgeable, share}}},
                         {"importantUsage of /", {{rootWithoutPurgeable, share}}},
                         {values + " (2)", {{root}}},
                         {"UTF8String /Volumes/Share", {{root}}},
                         {"UTF8String Share", {{root, namelessShare}}}}});
}

TEST_F(FailingCallsTest, DiskCounters) {
    using Answer = std::optional<std::vector<DiskCounters>>;
    const DiskCounters first{1000, 2000};
    const DiskCounters second{30000, 40000};
    const auto only = [](auto... counters) -> Answer { return std::vector<DiskCounters>{counters...}; };
    failEachCallOf<Answer>(
        {.ask = [](MachineSources& sources) { return sources.disk->readCounters(); },
         .whole = only(first, second),
         .whenFailing = {{"IOServiceMatching IOBlockStorageDriver", std::nullopt},
                         {"IOServiceGetMatchingServices IOBlockStorageDriver", std::nullopt},
                         {"IOIteratorNext", only()},
                         {"IORegistryEntryCreateCFProperties", only(second)},
                         {"CFNumberGetValue", only(DiskCounters{0, 2000}, second)},
                         {"CFNumberGetValue (2)", only(DiskCounters{1000, 0}, second)},
                         {"IOIteratorNext (2)", only(first)},
                         {"IORegistryEntryCreateCFProperties (2)", only(first)},
                         {"CFNumberGetValue (3)", only(first, DiskCounters{0, 40000})},
                         {"CFNumberGetValue (4)", only(first, DiskCounters{30000, 0})},
                         {"IOIteratorNext (3)", only(first, second)}}});
}

TEST_F(FailingCallsTest, PowerSources) {
    using Answer = std::optional<std::vector<std::optional<PowerSourceDescription>>>;
    const PowerSourceDescription whole = host().battery->readPowerSources().value().at(0).value();
    kernel().forgetCalls();
    const auto without = [&whole](auto field) -> Answer {
        PowerSourceDescription description = whole;
        (description.*field).reset();
        return {{description}};
    };
    using Source = PowerSourceDescription;
    failEachCallOf<Answer>(
        {.ask = [](MachineSources& sources) { return sources.battery->readPowerSources(); },
         .whole = {{whole}},
         .whenFailing = {{"IOPSCopyPowerSourcesInfo", std::nullopt},
                         {"IOPSCopyPowerSourcesList", std::nullopt},
                         {"IOPSGetPowerSourceDescription", Answer::value_type(1)},
                         {"CFNumberGetValue", without(&Source::currentCapacity)},
                         {"CFStringGetCString Battery Power", without(&Source::powerSourceState)},
                         {"CFNumberGetValue (2)", without(&Source::timeToEmpty)},
                         {"CFNumberGetValue (3)", without(&Source::timeToFullCharge)}}});
}

TEST_F(FailingCallsTest, SmartBattery) {
    using Answer = std::optional<SmartBatteryProperties>;
    const SmartBatteryProperties whole = host().battery->readSmartBattery().value();
    kernel().forgetCalls();
    const auto without = [&whole](auto field) -> Answer {
        SmartBatteryProperties properties = whole;
        (properties.*field).reset();
        return properties;
    };
    using Battery = SmartBatteryProperties;
    failEachCallOf<Answer>(
        {.ask = [](MachineSources& sources) { return sources.battery->readSmartBattery(); },
         .whole = whole,
         .whenFailing = {{"IOServiceMatching AppleSmartBattery", std::nullopt},
                         {"IOServiceGetMatchingService AppleSmartBattery", std::nullopt},
                         {"IORegistryEntryCreateCFProperties", std::nullopt},
                         {"CFNumberGetValue", without(&Battery::cycleCount)},
                         {"CFNumberGetValue (2)", without(&Battery::designCapacity)},
                         {"CFNumberGetValue (3)", without(&Battery::rawMaxCapacity)},
                         {"CFNumberGetValue (4)", without(&Battery::nominalChargeCapacity)},
                         {"CFNumberGetValue (5)", without(&Battery::temperature)},
                         {"CFNumberGetValue (6)", without(&Battery::voltage)},
                         {"CFNumberGetValue (7)", without(&Battery::amperage)}}});
}

TEST_F(FailingCallsTest, Processes) {
    using Answer = std::optional<std::vector<ProcessRecord>>;
    const auto ask = [](MachineSources& sources) -> Answer {
        const auto processes = sources.process->readProcesses();
        if (!processes)
            return std::nullopt;
        return std::vector<ProcessRecord>(processes->begin(), processes->end());
    };
    const std::vector<ProcessRecord> whole = ask(host()).value();
    kernel().forgetCalls();
    const auto with = [&whole](std::size_t index, const ProcessRecord& record) -> Answer {
        std::vector<ProcessRecord> records = whole;
        records[index] = record;
        return records;
    };
    const auto unknown = [](std::int32_t pid) {
        ProcessRecord record;
        record.pid = pid;
        return record;
    };
    const auto nameless = [&whole](std::size_t index) {
        ProcessRecord record = whole[index];
        record.name.clear();
        return record;
    };
    failEachCallOf<Answer>({.ask = ask,
                            .whole = whole,
                            .whenFailing = {{"proc_listpids size", std::nullopt},
                                            {"proc_listpids", std::nullopt},
                                            {"proc_pidinfo 900", with(0, unknown(900))},
                                            {"proc_pidpath 900", with(0, nameless(0))},
                                            {"proc_pidinfo 321", with(1, unknown(321))},
                                            {"proc_pidpath 321", with(1, nameless(1))},
                                            {"proc_pidinfo 77", with(2, unknown(77))},
                                            {"proc_pidpath 77", whole},
                                            {"proc_name 77", with(2, nameless(2))},
                                            {"proc_pidinfo 60", whole}}});
}

TEST_F(FailingCallsTest, ControllerKeys) {
    using Answer = std::optional<double>;
    failEachCallOf<Answer>(
        {.ask = [](MachineSources& sources) { return sources.sensor->readCPUTemperature(); },
         .whole = 50.0,
         .whenFailing = {{"IOServiceMatching AppleSMC", std::nullopt},
                         {"IOServiceGetMatchingService AppleSMC", std::nullopt},
                         {"IOServiceOpen", std::nullopt},
                         {"IOConnectCallStructMethod 0", std::nullopt},
                         {"IOConnectCallStructMethod 0 (2)", std::nullopt}}});
}

} // namespace
} // namespace orvelle
