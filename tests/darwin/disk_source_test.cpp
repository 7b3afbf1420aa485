#include "core/disk_monitor.h"
#include "darwin/typical_machine.h"
#include "platform/darwin/darwin_disk_source.h"

#include <algorithm>
#include <limits>

namespace orvelle {
namespace {

using namespace simulated;
using Counters = std::optional<std::vector<DiskCounters>>;
using Volumes = std::optional<std::vector<MountedVolume>>;

class DarwinDiskSourceTest : public DarwinTest {
protected:
    Counters readCounters() { return host().disk->readCounters(); }
    Volumes readVolumes() { return host().disk->readVolumes(); }
    /// The answer to one driver with these properties.
    Counters readDriver(const Property& properties) {
        machine().services["IOBlockStorageDriver"] = {{.properties = properties}};
        return readCounters();
    }
    /// The answer to one driver whose "Bytes (Read)" is this.
    std::uint64_t readBytesRead(const Property& value) {
        return readDriver(Properties{{"Statistics", Properties{{"Bytes (Read)", value}}}})->at(0).bytesRead;
    }
};

TEST_F(DarwinDiskSourceTest, EveryDriverIsAskedOnce) {
    EXPECT_EQ(readCounters(), (std::vector<DiskCounters>{{1000, 2000}, {30000, 40000}}));
    EXPECT_EQ(takeSystemCalls(),
              (std::vector<std::string>{"IOServiceGetMatchingServices IOBlockStorageDriver", "IOIteratorNext",
                                        "IORegistryEntryCreateCFProperties", "IOIteratorNext",
                                        "IORegistryEntryCreateCFProperties", "IOIteratorNext"}));
}

TEST_F(DarwinDiskSourceTest, AMachineWithoutDriversHasNoCountersYetAnAnswer) {
    machine().services.clear();
    EXPECT_EQ(readCounters(), std::vector<DiskCounters>{});
}

TEST_F(DarwinDiskSourceTest, ADriverWithoutStatisticsAddsNothing) {
    EXPECT_EQ(readDriver(Properties{}), std::vector<DiskCounters>{});
    EXPECT_EQ(readDriver(Properties{{"Statistics", 5}}), std::vector<DiskCounters>{});
    EXPECT_EQ(readDriver(Properties{{"Statistics", PropertyList{1, 2}}}), std::vector<DiskCounters>{});
    EXPECT_EQ(readDriver("not a dictionary"), std::vector<DiskCounters>{});
    EXPECT_EQ(readDriver(PropertyList{}), std::vector<DiskCounters>{});
}

TEST_F(DarwinDiskSourceTest, AMissingCounterIsZeroAndTheOtherCounts) {
    EXPECT_EQ(readDriver(Properties{{"Statistics", Properties{{"Bytes (Write)", 5}}}}),
              (std::vector<DiskCounters>{{0, 5}}));
}

TEST_F(DarwinDiskSourceTest, ACounterOfAnotherTypeIsZero) {
    EXPECT_EQ(readBytesRead("1000"), 0u);
    EXPECT_EQ(readBytesRead(true), 0u);
    EXPECT_EQ(readBytesRead(1000.5), 0u);
    EXPECT_EQ(readBytesRead(Properties{}), 0u);
    EXPECT_EQ(readBytesRead(-1), 0u) << "not an unsigned number";
    EXPECT_EQ(readBytesRead(std::numeric_limits<std::int64_t>::max()), 0x7fffffffffffffffu);
}

TEST_F(DarwinDiskSourceTest, VolumesAreListedInTheFileManagersOrder) {
    EXPECT_EQ(readVolumes(),
              (std::vector<MountedVolume>{
                  {.path = "/", .name = "Macintosh HD", .isLocal = true, .totalBytes = 500, .freeBytes = 200},
                  {.path = "/Volumes/Share", .name = "Share", .totalBytes = 900, .freeBytes = 100}}));
}

TEST_F(DarwinDiskSourceTest, FiveValuesAreAskedForWithTheListAndOfEachVolume) {
    const std::string five = " name total available local internal";
    EXPECT_TRUE(readVolumes());
    static_cast<void>(takeSystemCalls());
    EXPECT_TRUE(readVolumes());
    EXPECT_EQ(takeSystemCalls(),
              (std::vector<std::string>{"mountedVolumeURLs" + five, "resourceValues" + five,
                                        "resourceValues" + five}));
}

TEST_F(DarwinDiskSourceTest, OnlyLocalVolumesAreAskedWhatCouldBeDeleted) {
    EXPECT_TRUE(readVolumes());
    const std::vector<std::string> calls = takeSystemCalls();
    EXPECT_EQ(std::ranges::count(calls, "importantUsage of /"), 1);
    EXPECT_EQ(std::ranges::count(calls, "importantUsage of /Volumes/Share"), 0);
}

TEST_F(DarwinDiskSourceTest, WithoutPurgeableSpaceWhatIsAvailableIsFree) {
    // Only the system's own file system knows the value for important usage; others answer 0 or nothing.
    const Properties stick{{"local", true}, {"total", 900}, {"available", 300}};
    Properties exFAT = stick;
    exFAT["important"] = 0;
    Properties odd = stick;
    odd["important"] = -5;
    Properties less = stick;
    less["important"] = 200;
    machine().volumes = {{.path = "/a", .values = stick},
                         {.path = "/b", .values = exFAT},
                         {.path = "/c", .values = odd},
                         {.path = "/d", .values = less}};
    const std::vector<MountedVolume> volumes = readVolumes().value();
    for (const MountedVolume& volume : volumes)
        EXPECT_EQ(volume.freeBytes, 300) << volume.path;
}

/// The disk source with a clock that the test moves.
class PurgeableSpaceTest : public DarwinTest {
protected:
    std::int64_t freeBytes() { return source.readVolumes().value().at(0).freeBytes; }
    static std::size_t takeQuestions() {
        const std::vector<std::string> calls = takeSystemCalls();
        return static_cast<std::size_t>(std::ranges::count(calls, "importantUsage of /"));
    }
    static Properties& root() { return *machine().volumes->at(0).values; }

    darwin_platform::PurgeableSpace::Clock::time_point now{};
    darwin_platform::DarwinDiskSource source{[this] { return now; }};
};

TEST_F(PurgeableSpaceTest, IsAskedForOnceInFiveMinutes) {
    EXPECT_EQ(freeBytes(), 200);
    EXPECT_EQ(takeQuestions(), 1u);
    for (int cycle = 0; cycle < 99; ++cycle) {
        now += std::chrono::seconds{3};
        EXPECT_EQ(freeBytes(), 200);
    }
    EXPECT_EQ(takeQuestions(), 0u);
    now += std::chrono::seconds{3};
    root()["important"] = 180;
    EXPECT_EQ(freeBytes(), 180);
    EXPECT_EQ(takeQuestions(), 1u);
}

TEST_F(PurgeableSpaceTest, IsAddedToWhatIsAvailableNow) {
    EXPECT_EQ(freeBytes(), 200);
    root()["available"] = 110;
    EXPECT_EQ(freeBytes(), 160) << "50 could still be deleted";
    root()["available"] = 490;
    EXPECT_EQ(freeBytes(), 500) << "no more than there is";
}

TEST_F(PurgeableSpaceTest, OfAnotherVolumeAtTheSamePlaceIsAskedForAtOnce) {
    EXPECT_EQ(freeBytes(), 200);
    root()["total"] = 700;
    root()["important"] = 160;
    EXPECT_EQ(freeBytes(), 160);
}

TEST_F(PurgeableSpaceTest, OfAVolumeThatWasAwayIsAskedForAgain) {
    EXPECT_EQ(freeBytes(), 200);
    const std::vector<Volume> volumes = *std::exchange(machine().volumes, std::vector<Volume>{});
    EXPECT_TRUE(source.readVolumes()->empty());
    machine().volumes = volumes;
    root()["important"] = 170;
    EXPECT_EQ(freeBytes(), 170);
}

TEST_F(PurgeableSpaceTest, ThatCannotBeAskedForIsNone) {
    kernel().failCallsTo("importantUsage");
    EXPECT_EQ(freeBytes(), 150);
    EXPECT_EQ(takeQuestions(), 1u);
    EXPECT_EQ(freeBytes(), 150);
    EXPECT_EQ(takeQuestions(), 0u) << "a failure is not asked again in each cycle";
}

TEST_F(DarwinDiskSourceTest, AnAbsentListIsNothingAndAnEmptyOneIsEmpty) {
    machine().volumes.reset();
    EXPECT_EQ(readVolumes(), std::nullopt);
    machine().volumes.emplace();
    EXPECT_EQ(readVolumes(), std::vector<MountedVolume>{});
}

TEST_F(DarwinDiskSourceTest, AbsentValuesAreNoNameNotLocalAndZero) {
    machine().volumes = {{.path = "/Volumes/Plain", .values = Properties{}}};
    EXPECT_EQ(readVolumes(), (std::vector<MountedVolume>{{.path = "/Volumes/Plain"}}));
}

TEST_F(DarwinDiskSourceTest, ValuesOfAnotherTypeAreAbsent) {
    machine().volumes = {
        {.path = "/Volumes/Odd",
         .values = {{{"name", 5}, {"total", "much"}, {"available", "some"}, {"local", "yes"}}}}};
    EXPECT_EQ(readVolumes(), (std::vector<MountedVolume>{{.path = "/Volumes/Odd"}}));
}

TEST_F(DarwinDiskSourceTest, NoMoreIsFreeThanThereIs) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    machine().volumes = {
        {.path = "/", .values = {{{"local", true}, {"total", 5}, {"available", 6}}}},
        {.path = "/a", .values = {{{"local", true}, {"total", 5}, {"available", 4}, {"important", most}}}},
        {.path = "/b",
         .values = {{{"local", true}, {"total", most}, {"available", most - 1}, {"important", most}}}},
        {.path = "/Volumes/Plain", .values = {{{"available", 6}}}}};
    EXPECT_EQ(readVolumes(), (std::vector<MountedVolume>{
                                 {.path = "/", .isLocal = true, .totalBytes = 5, .freeBytes = 5},
                                 {.path = "/a", .isLocal = true, .totalBytes = 5, .freeBytes = 5},
                                 {.path = "/b", .isLocal = true, .totalBytes = most, .freeBytes = most},
                                 {.path = "/Volumes/Plain"}}));
}

TEST_F(DarwinDiskSourceTest, AVolumeThatCannotBeAskedOrHasNoPathIsLeftOut) {
    machine().volumes = {{.path = "/Volumes/Gone"},
                         {.values = Properties{{"local", true}}},
                         {.path = "/", .values = {{{"local", true}, {"total", 5}}}}};
    EXPECT_EQ(readVolumes(), (std::vector<MountedVolume>{{.path = "/", .isLocal = true, .totalBytes = 5}}));
}

TEST_F(DarwinDiskSourceTest, NamesAndPathsAreMadeReadable) {
    machine().volumes = {{.path = "/Volumes/a\nb", .values = {{{"name", "a\nb"}}}}};
    EXPECT_EQ(readVolumes(), (std::vector<MountedVolume>{{.path = "/Volumes/a b", .name = "a b"}}));
}

TEST_F(DarwinDiskSourceTest, ACapacityBelowZeroIsUnknownAndStopsNothing) {
    // A file system of a service on the network may report more bytes than a signed number holds.
    machine().volumes = {{.path = "/a", .values = {{{"local", true}, {"total", -1}, {"available", -2}}}},
                         {.path = "/b", .values = {{{"local", true}, {"total", 5}, {"available", -2}}}}};
    EXPECT_EQ(readVolumes(), (std::vector<MountedVolume>{{.path = "/a", .isLocal = true},
                                                         {.path = "/b", .isLocal = true, .totalBytes = 5}}));
    DiskMonitor monitor(*host().disk, host().now);
    monitor.updateVolumes();
    ASSERT_EQ(monitor.volumes().size(), 1);
    EXPECT_EQ(monitor.volumes().at(0).freeSpace, 0u);
}

TEST_F(DarwinDiskSourceTest, CountersWhoseSumNoNumberHoldsAreAFailedRead) {
    DiskMonitor monitor(*host().disk, host().now);
    const auto drivers = [](std::size_t count, const std::string& counter) {
        const Properties statistics{{counter, std::numeric_limits<std::int64_t>::max()}};
        return std::vector<Service>(count, {.properties = Properties{{"Statistics", statistics}}});
    };
    for (const char* const counter : {"Bytes (Read)", "Bytes (Write)"}) {
        machine().services["IOBlockStorageDriver"] = drivers(2, counter);
        EXPECT_TRUE(readCounters()) << counter;
        machine().services["IOBlockStorageDriver"] = drivers(3, counter);
        EXPECT_FALSE(readCounters()) << counter;
        monitor.updateIO();
    }
}

} // namespace
} // namespace orvelle
