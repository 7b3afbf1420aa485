#include "core/disk_monitor.h"
#include "platform/replay/fake_sources.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

class DiskMonitorTest : public ::testing::Test {
protected:
    FakeDiskSource source;
    FakeClock clock;
    DiskMonitor monitor{source, clock.reader()};

    void updateVolumesWith(std::vector<MountedVolume> volumes) {
        source.volumes = std::move(volumes);
        monitor.updateVolumes();
    }
    void updateIOWith(std::vector<DiskCounters> counters) {
        source.counters = std::move(counters);
        monitor.updateIO();
    }
};

MountedVolume volumeAt(std::string path) {
    return {.path = std::move(path), .isLocal = true, .totalBytes = 1000, .freeBytes = 400};
}

DiskVolumeInfo volumeOf(quint64 totalSpace, quint64 freeSpace) {
    DiskVolumeInfo volume;
    volume.totalSpace = totalSpace;
    volume.freeSpace = freeSpace;
    return volume;
}

TEST(DiskVolume, IsUsedAsFarAsItIsNotFree) {
    EXPECT_EQ(usedBytes(volumeOf(1000, 250)), 750U);
    EXPECT_EQ(usedFraction(volumeOf(1000, 300)), 0.7);
    EXPECT_EQ(usedFraction(volumeOf(1000, 1000)), 0);
    EXPECT_EQ(usedFraction(volumeOf(1000, 0)), 1);
}

TEST(DiskVolume, OfUnknownSizeIsNotUsed) {
    EXPECT_EQ(usedFraction(volumeOf(0, 0)), 0);
    EXPECT_EQ(usedFraction(volumeOf(0, 5)), 0);
}

TEST(DiskVolume, WithMoreFreeSpaceThanSpaceIsNotUsed) {
    EXPECT_EQ(usedBytes(volumeOf(1000, 1001)), 0U);
    EXPECT_EQ(usedFraction(volumeOf(1000, 1001)), 0);
}

TEST_F(DiskMonitorTest, PublishesNothingAfterConstruction) {
    EXPECT_TRUE(monitor.volumes().isEmpty());
    EXPECT_EQ(monitor.diskIO(), DiskMonitor::DiskIO());
    EXPECT_TRUE(monitor.readHistory().isEmpty());
    EXPECT_TRUE(monitor.writeHistory().isEmpty());
}

TEST_F(DiskMonitorTest, ListsLocalVolumesInMountOrder) {
    MountedVolume named = volumeAt("/Volumes/B");
    named.name = "Backup";
    updateVolumesWith({volumeAt("/"), named, volumeAt("/Volumes/A")});
    const QList<DiskVolumeInfo> expected{
        {.id = u"/"_s, .name = u"/"_s, .totalSpace = 1000, .freeSpace = 400},
        {.id = u"/Volumes/B"_s, .name = u"Backup"_s, .totalSpace = 1000, .freeSpace = 400},
        {.id = u"/Volumes/A"_s, .name = u"A"_s, .totalSpace = 1000, .freeSpace = 400}};
    EXPECT_EQ(monitor.volumes(), expected);
}

TEST_F(DiskMonitorTest, VolumeWithoutANameIsCalledByTheLastComponentOfItsPath) {
    MountedVolume emptyName = volumeAt("/mnt/named");
    emptyName.name = "";
    updateVolumesWith({volumeAt("/mnt/My Disk"), volumeAt("/srv/data/"), emptyName});
    ASSERT_EQ(monitor.volumes().size(), 3);
    EXPECT_EQ(monitor.volumes()[0].name, u"My Disk"_s);
    EXPECT_EQ(monitor.volumes()[1].name, u"data"_s);
    EXPECT_EQ(monitor.volumes()[2].name, QString()); // a name that is there is used as it is
}

TEST_F(DiskMonitorTest, NeverListsANetworkVolumeOrOneWithoutCapacity) {
    MountedVolume network = volumeAt("/mnt/nas");
    network.isLocal = false;
    MountedVolume empty = volumeAt("/mnt/empty");
    empty.totalBytes = 0;
    updateVolumesWith({network, empty, volumeAt("/mnt/disk")});
    ASSERT_EQ(monitor.volumes().size(), 1);
    EXPECT_EQ(monitor.volumes()[0].id, u"/mnt/disk"_s);
}

TEST_F(DiskMonitorTest, MissingAnswerPublishesAnEmptyList) {
    updateVolumesWith({volumeAt("/")});
    int announcements = 0;
    QObject::connect(&monitor, &DiskMonitor::volumesChanged, [&announcements] { ++announcements; });
    source.volumes.reset();
    monitor.updateVolumes();
    EXPECT_TRUE(monitor.volumes().isEmpty());
    EXPECT_EQ(announcements, 1);
}

TEST_F(DiskMonitorTest, VolumesLeaveTheThroughputAlone) {
    updateVolumesWith({volumeAt("/")});
    updateIOWith({{.bytesRead = 100, .bytesWritten = 100}});
    clock.advance(std::chrono::seconds(1));
    updateVolumesWith({volumeAt("/")});
    EXPECT_EQ(monitor.diskIO(), DiskMonitor::DiskIO());
}

TEST_F(DiskMonitorTest, FirstUpdateOnlyTakesTheBaseline) {
    updateIOWith({{.bytesRead = 1000, .bytesWritten = 500}});
    EXPECT_EQ(monitor.diskIO(), DiskMonitor::DiskIO());
    EXPECT_TRUE(monitor.readHistory().isEmpty());

    clock.advance(std::chrono::seconds(4));
    updateIOWith({{.bytesRead = 5000, .bytesWritten = 2500}});
    const DiskMonitor::DiskIO expected{
        .bytesRead = 5000, .bytesWritten = 2500, .readSpeed = 1000, .writeSpeed = 500};
    EXPECT_EQ(monitor.diskIO(), expected);
    EXPECT_EQ(monitor.readHistory(), QList<double>({1000}));
    EXPECT_EQ(monitor.writeHistory(), QList<double>({500}));
}

TEST_F(DiskMonitorTest, SumsTheCountersOfAllDisks) {
    updateIOWith({{.bytesRead = 100, .bytesWritten = 10}, {.bytesRead = 200, .bytesWritten = 20}});
    clock.advance(std::chrono::seconds(1));
    updateIOWith({{.bytesRead = 150, .bytesWritten = 10}, {.bytesRead = 300, .bytesWritten = 40}});
    EXPECT_EQ(monitor.diskIO().bytesRead, 450u);
    EXPECT_EQ(monitor.diskIO().bytesWritten, 50u);
    EXPECT_DOUBLE_EQ(monitor.diskIO().readSpeed, 150);
    EXPECT_DOUBLE_EQ(monitor.diskIO().writeSpeed, 20);
}

TEST_F(DiskMonitorTest, NothingReadYetIsNoBaseline) {
    for (const std::uint64_t written : {100U, 200U, 300U}) {
        updateIOWith({{.bytesRead = 0, .bytesWritten = written}});
        clock.advance(std::chrono::seconds(1));
    }
    EXPECT_EQ(monitor.diskIO(), DiskMonitor::DiskIO());
    EXPECT_TRUE(monitor.writeHistory().isEmpty());

    updateIOWith({{.bytesRead = 10, .bytesWritten = 400}});
    EXPECT_TRUE(monitor.writeHistory().isEmpty());
    clock.advance(std::chrono::seconds(1));
    updateIOWith({{.bytesRead = 20, .bytesWritten = 500}});
    EXPECT_DOUBLE_EQ(monitor.diskIO().writeSpeed, 100);
}

TEST_F(DiskMonitorTest, CounterThatWentBackwardsGivesNoSpeedForOneSample) {
    updateIOWith({{.bytesRead = 1000, .bytesWritten = 1000}});
    clock.advance(std::chrono::seconds(1));
    updateIOWith({{.bytesRead = 400, .bytesWritten = 1100}});
    EXPECT_EQ(monitor.diskIO().readSpeed, 0);
    EXPECT_EQ(monitor.diskIO().writeSpeed, 100);
    EXPECT_EQ(monitor.diskIO().bytesRead, 400u);
    clock.advance(std::chrono::seconds(1));
    updateIOWith({{.bytesRead = 500, .bytesWritten = 1100}});
    EXPECT_EQ(monitor.diskIO().readSpeed, 100);
    EXPECT_EQ(monitor.readHistory(), QList<double>({0, 100}));
}

TEST_F(DiskMonitorTest, ClockThatDidNotAdvanceLeavesTheThroughputAndMovesTheBaseline) {
    updateIOWith({{.bytesRead = 100, .bytesWritten = 100}});
    clock.advance(std::chrono::seconds(1));
    updateIOWith({{.bytesRead = 200, .bytesWritten = 200}});
    const DiskMonitor::DiskIO before = monitor.diskIO();

    clock.advance(std::chrono::hours(-1));
    updateIOWith({{.bytesRead = 1000, .bytesWritten = 1000}});
    EXPECT_EQ(monitor.diskIO(), before);
    EXPECT_EQ(monitor.readHistory(), QList<double>({100}));

    clock.advance(std::chrono::seconds(2));
    updateIOWith({{.bytesRead = 1100, .bytesWritten = 1200}});
    EXPECT_DOUBLE_EQ(monitor.diskIO().readSpeed, 50);
    EXPECT_DOUBLE_EQ(monitor.diskIO().writeSpeed, 100);

    updateIOWith({{.bytesRead = 5000, .bytesWritten = 5000}}); // at the same moment
    EXPECT_DOUBLE_EQ(monitor.diskIO().readSpeed, 50);
    EXPECT_EQ(monitor.readHistory(), QList<double>({100, 50}));
}

TEST_F(DiskMonitorTest, FailedReadLeavesEverythingUntouched) {
    updateIOWith({{.bytesRead = 100, .bytesWritten = 100}});
    clock.advance(std::chrono::seconds(1));
    source.counters.reset();
    monitor.updateIO();
    clock.advance(std::chrono::seconds(1));
    updateIOWith({{.bytesRead = 300, .bytesWritten = 100}});
    EXPECT_DOUBLE_EQ(monitor.diskIO().readSpeed, 100); // over the two seconds since the last successful read
    EXPECT_EQ(monitor.readHistory().size(), 1);
}

TEST_F(DiskMonitorTest, DisksThatVanishAreACounterThatWentBackwards) {
    updateIOWith({{.bytesRead = 100, .bytesWritten = 100}, {.bytesRead = 500, .bytesWritten = 500}});
    clock.advance(std::chrono::seconds(1));
    updateIOWith({{.bytesRead = 110, .bytesWritten = 100}});
    EXPECT_EQ(monitor.diskIO().readSpeed, 0);
    clock.advance(std::chrono::seconds(1));
    updateIOWith({});
    EXPECT_EQ(monitor.diskIO().bytesRead, 0u);
    EXPECT_EQ(monitor.diskIO().readSpeed, 0);
}

TEST_F(DiskMonitorTest, AnnouncesFourAssignmentsOfTheRecordInOrder) {
    updateIOWith({{.bytesRead = 100, .bytesWritten = 100}});
    QStringList announced;
    QList<DiskMonitor::DiskIO> records;
    QObject::connect(&monitor, &DiskMonitor::writeHistoryChanged,
                     [&] { announced.append(u"writeHistory"_s); });
    QObject::connect(&monitor, &DiskMonitor::readHistoryChanged, [&] { announced.append(u"readHistory"_s); });
    QObject::connect(&monitor, &DiskMonitor::diskIOChanged, [&] {
        announced.append(u"diskIO"_s);
        records.append(monitor.diskIO());
    });
    clock.advance(std::chrono::seconds(1));
    updateIOWith({{.bytesRead = 110, .bytesWritten = 120}});
    EXPECT_EQ(announced, QStringList({u"diskIO"_s, u"diskIO"_s, u"diskIO"_s, u"diskIO"_s, u"readHistory"_s,
                                      u"writeHistory"_s}));
    const QList<DiskMonitor::DiskIO> expected{
        {.readSpeed = 10},
        {.readSpeed = 10, .writeSpeed = 20},
        {.bytesRead = 110, .readSpeed = 10, .writeSpeed = 20},
        {.bytesRead = 110, .bytesWritten = 120, .readSpeed = 10, .writeSpeed = 20}};
    EXPECT_EQ(records, expected);
}

TEST_F(DiskMonitorTest, HistoriesKeepTheLastSixtySamples) {
    for (std::uint64_t sample = 1; sample <= 62; ++sample) {
        updateIOWith({{.bytesRead = sample * sample, .bytesWritten = sample * 10}});
        clock.advance(std::chrono::seconds(1));
    }
    ASSERT_EQ(monitor.readHistory().size(), 60);
    ASSERT_EQ(monitor.writeHistory().size(), 60);
    EXPECT_DOUBLE_EQ(monitor.readHistory().first(), 5); // from 4 to 9: the first speed, 3, is gone
    EXPECT_DOUBLE_EQ(monitor.readHistory().last(), 123);
}

using DiskMonitorDeathTest = DiskMonitorTest;

TEST_F(DiskMonitorDeathTest, SumBeyondSixtyFourBitsAndNegativeSizeStopTheProcess) {
    constexpr std::uint64_t largest = std::numeric_limits<std::uint64_t>::max();
    EXPECT_DEATH(updateIOWith({{.bytesRead = largest}, {.bytesRead = 1}}), "addition");
    EXPECT_DEATH(updateIOWith({{.bytesWritten = largest}, {.bytesWritten = 1}}), "addition");
    MountedVolume negative = volumeAt("/");
    negative.freeBytes = -1;
    EXPECT_DEATH(updateVolumesWith({negative}), "conversion");
}

} // namespace
} // namespace orvelle
