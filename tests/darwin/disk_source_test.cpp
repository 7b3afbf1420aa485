#include "core/sources/disk_source.h"
#include "darwin/typical_machine.h"

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
    EXPECT_TRUE(readVolumes());
    EXPECT_EQ(takeSystemCalls(), (std::vector<std::string>{"mountedVolumeURLs name total free local internal",
                                                           "resourceValues name total free local internal",
                                                           "resourceValues name total free local internal"}));
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
    machine().volumes = {{.path = "/Volumes/Odd",
                          .values = {{{"name", 5}, {"total", "much"}, {"free", "some"}, {"local", "yes"}}}}};
    EXPECT_EQ(readVolumes(), (std::vector<MountedVolume>{{.path = "/Volumes/Odd"}}));
}

TEST_F(DarwinDiskSourceTest, NoMoreIsFreeThanThereIs) {
    machine().volumes = {{.path = "/", .values = {{{"local", true}, {"total", 5}, {"free", 6}}}},
                         {.path = "/Volumes/Plain", .values = {{{"free", 6}}}}};
    EXPECT_EQ(readVolumes(),
              (std::vector<MountedVolume>{{.path = "/", .isLocal = true, .totalBytes = 5, .freeBytes = 5},
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

TEST_F(DarwinDiskSourceTest, ANegativeCapacityReachesTheMonitorUnchanged) {
    machine().volumes = {{.path = "/", .values = {{{"total", -1}, {"free", -2}}}}};
    EXPECT_EQ(readVolumes()->at(0).totalBytes, -1);
    EXPECT_EQ(readVolumes()->at(0).freeBytes, -2);
}

} // namespace
} // namespace orvelle
