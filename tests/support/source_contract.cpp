#include "support/source_contract.h"

#include "platform/readable_name.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

namespace orvelle {
namespace {

/// Whether `text` is displayable: valid UTF-8 on one line.
bool isFitToBeShown(const std::string& text) {
    return readableName(text) == text;
}

/// Whether the sum of `field` over `records` fits into 64 bits.
template <class Records, class Record>
bool fitsSum(const Records& records, std::uint64_t Record::* field) {
    std::uint64_t sum = 0;
    for (const Record& record : records) {
        if (__builtin_add_overflow(sum, record.*field, &sum))
            return false;
    }
    return true;
}

void expectProcessorContract(ProcessorSource& source) {
    for (const CoreTicks& core : source.readTicks().value_or(std::vector<CoreTicks>{})) {
        for (const std::uint64_t ticks : {core.user, core.system, core.idle, core.nice})
            EXPECT_LE(ticks, CoreTicks::maximumTicks);
    }
    for (const double average : source.readLoadAverages().value_or(std::array<double, 3>{}))
        EXPECT_TRUE(std::isfinite(average) && average >= 0) << average;
    static_cast<void>(source.readBootTime());
}

void expectMemoryContract(MemorySource& source) {
    const std::optional<MemoryReading> reading = source.read();
    if (!reading)
        return;
    EXPECT_LE(reading->swapUsed, reading->swapTotal);
    EXPECT_GE(reading->activePages + reading->inactivePages + reading->wiredPages + reading->compressorPages,
              2 * (reading->purgeablePages + reading->externalPages));
}

void expectDiskContract(DiskSource& source) {
    for (const MountedVolume& volume : source.readVolumes().value_or(std::vector<MountedVolume>{})) {
        EXPECT_TRUE(isFitToBeShown(volume.path)) << volume.path;
        EXPECT_TRUE(isFitToBeShown(volume.name.value_or(""))) << *volume.name;
        EXPECT_LE(volume.freeBytes, volume.totalBytes) << volume.path;
    }
    const auto disks = source.readCounters().value_or(std::vector<DiskCounters>{});
    EXPECT_TRUE(fitsSum(disks, &DiskCounters::bytesRead));
    EXPECT_TRUE(fitsSum(disks, &DiskCounters::bytesWritten));
}

void expectNetworkContract(NetworkSource& source) {
    const auto entries = source.read().value_or(std::vector<InterfaceEntry>{});
    EXPECT_TRUE(fitsSum(entries, &InterfaceEntry::bytesIn));
    EXPECT_TRUE(fitsSum(entries, &InterfaceEntry::bytesOut));
    std::map<std::string, const InterfaceEntry*> firstEntries;
    for (const InterfaceEntry& entry : entries) {
        EXPECT_FALSE(entry.name.empty());
        EXPECT_TRUE(isFitToBeShown(entry.name)) << entry.name;
        EXPECT_TRUE(isFitToBeShown(entry.ipv4Address)) << entry.ipv4Address;
        EXPECT_TRUE(isFitToBeShown(entry.ipv6Address)) << entry.ipv6Address;
        const InterfaceEntry& first = *firstEntries.try_emplace(entry.name, &entry).first->second;
        EXPECT_EQ(entry.kind, first.kind) << entry.name;
        EXPECT_EQ(entry.defaultRouteMetric, first.defaultRouteMetric) << entry.name;
    }
}

void expectPlausible(const std::optional<double>& degrees) {
    EXPECT_TRUE(!degrees || isPlausibleTemperature(*degrees)) << degrees.value_or(0);
}

/// The keys and names of sensors, whose order does not change between samples.
std::vector<std::string> identities(const std::vector<NamedTemperature>& sensors) {
    std::vector<std::string> all;
    for (const NamedTemperature& sensor : sensors)
        all.push_back(sensor.key + '\n' + sensor.name);
    return all;
}

void expectSensorContract(SensorSource& source) {
    expectPlausible(source.readCPUTemperature());
    expectPlausible(source.readGPUTemperature());
    const std::vector<NamedTemperature> sensors = source.readSensors();
    std::set<std::string> keys;
    for (const NamedTemperature& sensor : sensors) {
        EXPECT_TRUE(keys.insert(sensor.key).second) << "two sensors are " << sensor.key;
        EXPECT_TRUE(isFitToBeShown(sensor.name)) << sensor.name;
        expectPlausible(sensor.value);
    }
    for (const std::int64_t speed : source.readFanSpeeds()) {
        EXPECT_GE(speed, 0);
        EXPECT_LE(speed, maximumFanSpeed);
    }
    EXPECT_EQ(identities(source.readSensors()), identities(sensors));
}

/// Stops at the first failure, because there may be thousands of processes.
void expectProcessContract(ProcessSource& source) {
    static_cast<void>(source.readTotalMemory());
    const auto processes = source.readProcesses().value_or(std::span<const ProcessRecord>{});
    for (const ProcessRecord& process : processes) {
        ASSERT_TRUE(isFitToBeShown(process.name)) << process.pid << ' ' << process.name;
        ASSERT_LE(process.userNanoseconds, ProcessRecord::maximumNanoseconds) << process.pid;
        ASSERT_LE(process.systemNanoseconds, ProcessRecord::maximumNanoseconds) << process.pid;
        ASSERT_LE(process.residentBytes, ProcessRecord::maximumBytes) << process.pid;
    }
}

} // namespace

void expectKeepsContract(const MachineSources& machine) {
    ASSERT_TRUE(machine.now) << "a machine has a clock";
    ASSERT_TRUE(machine.processor && machine.memory && machine.disk && machine.network && machine.battery &&
                machine.sensor && machine.process)
        << "no source may be missing";
    expectProcessorContract(*machine.processor);
    expectMemoryContract(*machine.memory);
    expectDiskContract(*machine.disk);
    expectNetworkContract(*machine.network);
    expectSensorContract(*machine.sensor);
    expectProcessContract(*machine.process);
}

} // namespace orvelle
