#include "core/memory_monitor.h"
#include "platform/linux/linux_memory_source.h"
#include "platform/replay/fake_sources.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace orvelle::linux_platform {
namespace {

constexpr std::uint64_t pageSize = 4096;
constexpr std::uint64_t megabyte = 1024 * 1024;

std::uint64_t bytes(std::uint64_t pages) {
    return pages * pageSize;
}

/// A desktop of 16 GB with a page cache of the usual size.
Meminfo desktop() {
    return {.total = 16000 * megabyte,
            .free = 2000 * megabyte,
            .activeAnonymous = 4000 * megabyte,
            .inactiveAnonymous = 1000 * megabyte,
            .activeFile = 3000 * megabyte,
            .inactiveFile = 4000 * megabyte,
            .unevictable = 100 * megabyte,
            .reclaimableSlab = 500 * megabyte,
            .unreclaimableSlab = 300 * megabyte,
            .kernelStack = 20 * megabyte,
            .pageTables = 60 * megabyte,
            .secondaryPageTables = 10 * megabyte,
            .perProcessor = 10 * megabyte,
            .swapTotal = 8000 * megabyte,
            .swapFree = 7000 * megabyte};
}

/// Runs the monitor's rule, which stops the process where the parts contradict each other.
MemoryMonitorInfo published(const MemoryReading& reading) {
    FakeMemorySource source;
    source.reading = reading;
    MemoryMonitor monitor(source);
    monitor.update();
    const double pressure = monitor.pressureHistory().last();
    EXPECT_GE(pressure, 0);
    EXPECT_LE(pressure, 1);
    return monitor.info();
}

void expectPartsWithinTotal(const MemoryReading& reading) {
    const std::uint64_t parts = reading.freePages + reading.activePages + reading.inactivePages +
                                reading.wiredPages + reading.compressorPages;
    EXPECT_LE(bytes(parts), static_cast<std::uint64_t>(reading.physicalMemory));
}

TEST(Meminfo, ReadsTheLinesItNeedsInBytes) {
    const auto meminfo = parseMeminfo("MemTotal:       16000 kB\nMemFree:  100 kB\nActive(anon): 7 kB\n"
                                      "HugePages_Total:  3\nHugepagesize: 2048 kB\nSwapTotal: 5 kB\n"
                                      "DirectMap4k: 9 kB\n");
    ASSERT_TRUE(meminfo);
    EXPECT_EQ(meminfo->total, 16000u * 1024);
    EXPECT_EQ(meminfo->activeAnonymous, 7u * 1024);
    EXPECT_EQ(meminfo->hugePageCount, 3u);
    EXPECT_EQ(meminfo->hugePageSize, 2048u * 1024);
    EXPECT_EQ(meminfo->swapTotal, 5u * 1024);
}

TEST(Meminfo, IsAFailedReadWithoutAUsableTotal) {
    for (const char* text :
         {"", "MemFree: 5 kB\n", "MemTotal: 0 kB\n", "MemTotal: x kB\n", "MemTotal\n", "\xff\xfe"})
        EXPECT_FALSE(parseMeminfo(text)) << text;
}

TEST(MemoryReading, UsedIsWhatCannotBeGivenBackAtOnce) {
    const auto info = published(memoryReading(desktop(), {}, pageSize));
    EXPECT_EQ(info.wired, 500 * megabyte);
    EXPECT_EQ(info.used, 5500 * megabyte); // anonymous, unevictable and the kernel's own
    EXPECT_EQ(info.cached, 3000 * megabyte);
    EXPECT_EQ(info.active, 7000 * megabyte);
    EXPECT_EQ(info.free, 6500 * megabyte); // free, inactive file and reclaimable slab
    EXPECT_EQ(info.swapUsed, 1000 * megabyte);
}

TEST(MemoryReading, ACacheTenTimesLargerThanEverythingElseLeavesUsedAlone) {
    Meminfo meminfo = desktop();
    meminfo.activeAnonymous = 700 * megabyte;
    meminfo.inactiveAnonymous = 100 * megabyte;
    meminfo.activeFile = 13000 * megabyte;
    meminfo.inactiveFile = 0;
    meminfo.free = 1000 * megabyte;
    const MemoryReading reading = memoryReading(meminfo, {}, pageSize);
    expectPartsWithinTotal(reading);
    const auto info = published(reading);
    EXPECT_EQ(info.used, 1300 * megabyte);
    EXPECT_EQ(info.cached, 1300 * megabyte); // cut to what leaves used >= cached
    EXPECT_EQ(info.free, (1000 + 500 + 11700) * megabyte);
}

TEST(MemoryReading, TheSystemsPoolsCountAsWiredAndCompressed) {
    Meminfo meminfo = desktop();
    meminfo.hugePageCount = 512;
    meminfo.hugePageSize = 2 * megabyte;
    meminfo.compressedSwapCache = 200 * megabyte;
    const auto info = published(memoryReading(meminfo, {.zramPools = 50 * megabyte}, pageSize));
    EXPECT_EQ(info.wired, (500 + 1024) * megabyte);
    EXPECT_EQ(info.compressed, 250 * megabyte);
}

TEST(MemoryReading, ZfsKeepsItsMinimumAndCanGiveTheRestBack) {
    Meminfo meminfo = desktop();
    meminfo.activeFile = 0;
    const auto info = published(
        memoryReading(meminfo, {.arcSize = 2000 * megabyte, .arcMinimum = 500 * megabyte}, pageSize));
    EXPECT_EQ(info.wired, 2500 * megabyte);
    EXPECT_EQ(info.cached, 1500 * megabyte);
    EXPECT_EQ(info.used, (5500 + 500) * megabyte);
}

TEST(MemoryReading, SurvivesZfsOwningNearlyAllMemory) {
    const Meminfo meminfo{.total = 1000 * megabyte, .free = 10 * megabyte, .activeFile = 100 * megabyte};
    const MemoryReading reading = memoryReading(meminfo, {.arcSize = 900 * megabyte}, pageSize);
    expectPartsWithinTotal(reading);
    const auto info = published(reading);
    EXPECT_EQ(info.used, 0u); // all of it can be given back
    EXPECT_EQ(info.free, 1000 * megabyte);
}

TEST(MemoryReading, ALargeZfsCacheThatCanBeGivenBackIsNotUsedMemory) {
    constexpr std::uint64_t gigabyte = 1024 * megabyte;
    const Meminfo meminfo{.total = 64 * gigabyte,
                          .free = 20 * gigabyte,
                          .activeAnonymous = 4 * gigabyte,
                          .activeFile = gigabyte / 4,
                          .inactiveFile = gigabyte / 4,
                          .unreclaimableSlab = gigabyte};
    EXPECT_EQ(published(memoryReading(meminfo, {}, pageSize)).used, 5 * gigabyte);
    for (std::uint64_t arc = 2; arc <= 38; arc += 4) {
        const MemoryBesideMeminfo beside{.arcSize = arc * gigabyte, .arcMinimum = 2 * gigabyte};
        EXPECT_EQ(published(memoryReading(meminfo, beside, pageSize)).used, 7 * gigabyte) << arc;
    }
}

TEST(MemoryReading, NoSwapAndMoreFreeThanTotalSwapAreZeroUsed) {
    EXPECT_EQ(memoryReading({.total = megabyte}, {}, pageSize).swapUsed, 0u);
    EXPECT_EQ(memoryReading({.total = megabyte, .swapTotal = 5, .swapFree = 9}, {}, pageSize).swapUsed, 0u);
}

TEST(MemoryReading, PressureRisesAsMemoryGetsShort) {
    double last = -1;
    for (std::uint64_t anonymous = 0; anonymous <= 15000; anonymous += 1000) {
        const Meminfo meminfo{.total = 16000 * megabyte,
                              .free = (15500 - anonymous) * megabyte / 2,
                              .activeAnonymous = anonymous * megabyte,
                              .activeFile = (15500 - anonymous) * megabyte / 4,
                              .inactiveFile = (15500 - anonymous) * megabyte / 4,
                              .unreclaimableSlab = 500 * megabyte};
        const double pressure = pressureFraction(published(memoryReading(meminfo, {}, pageSize)));
        EXPECT_GE(pressure, last) << anonymous;
        last = pressure;
    }
    EXPECT_GT(last, 0.9);
}

/// Any combination of figures, sane or not, on pages of any size.
TEST(MemoryReading, NoTextOverflowsTheMonitorsArithmetic) {
    std::mt19937_64 random(20260101);
    const auto figure = [&random]() -> std::string {
        switch (random() % 6) {
        case 0:
            return "0";
        case 1:
            return std::to_string(random());
        case 2:
            return "999999999999999999999999";
        case 3:
            return "-" + std::to_string(random() % 1000);
        case 4:
            return "x";
        default:
            return std::to_string(random() % 40'000'000);
        }
    };
    const std::vector<std::string> labels{
        "MemFree",      "Active(anon)", "Inactive(anon)", "Active(file)", "Inactive(file)", "Unevictable",
        "SReclaimable", "SUnreclaim",   "KernelStack",    "PageTables",   "SecPageTables",  "Percpu",
        "Zswap",        "SwapTotal",    "SwapFree",       "Hugepagesize", "HugePages_Total"};
    for (int round = 0; round < 3000; ++round) {
        std::string text = "MemTotal: " + std::to_string(1 + random() % 40'000'000) + " kB\n";
        for (const std::string& label : labels)
            text += label + ": " + figure() + (random() % 8 == 0 ? "\n" : " kB\n");
        const auto meminfo = parseMeminfo(text);
        ASSERT_TRUE(meminfo);
        const MemoryBesideMeminfo beside{.arcSize = random() % (1ULL << 34),
                                         .arcMinimum = random() % (1ULL << 33)};
        for (const std::uint64_t size : {4096u, 16384u, 65536u}) {
            const MemoryReading reading = memoryReading(*meminfo, beside, size);
            EXPECT_LE((reading.freePages + reading.activePages + reading.inactivePages + reading.wiredPages +
                       reading.compressorPages) *
                          size,
                      static_cast<std::uint64_t>(reading.physicalMemory));
            published(reading);
        }
    }
}

TEST(ArcStatistics, GivesSizeAndMinimum) {
    const auto beside = parseArcStatistics("13 1 0x01 147 39984 1\nname type data\nhits 4 100\n"
                                           "c_min 4 536870912\nsize 4 4294967296\n");
    EXPECT_EQ(beside.arcSize, 4294967296u);
    EXPECT_EQ(beside.arcMinimum, 536870912u);
    EXPECT_EQ(parseArcStatistics("size\nc_min 4\n").arcSize, 0u);
}

TEST(ZramStatistics, GiveTheMemoryThatTheDeviceOccupies) {
    EXPECT_EQ(parseZramMemoryUsed(" 100 50 70 0 80 1 2 3 4\n"), 70u);
    EXPECT_EQ(parseZramMemoryUsed("100"), 0u);
}

} // namespace
} // namespace orvelle::linux_platform
