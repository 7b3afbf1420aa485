#include "core/network_monitor_fixture.h"

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

TEST_F(NetworkMonitorTest, PublishesNothingAfterConstruction) {
    EXPECT_TRUE(monitor.interfaces().isEmpty());
    EXPECT_EQ(monitor.totalDownloadSpeed(), 0);
    EXPECT_EQ(monitor.totalUploadSpeed(), 0);
    EXPECT_EQ(monitor.totalBytesIn(), 0u);
    EXPECT_EQ(monitor.totalBytesOut(), 0u);
    EXPECT_TRUE(monitor.downloadHistory().isEmpty());
    EXPECT_TRUE(monitor.uploadHistory().isEmpty());
    EXPECT_EQ(monitor.primaryIPv4(), u"N/A"_s);
    EXPECT_EQ(monitor.primaryIPv6(), u"N/A"_s);
}

TEST_F(NetworkMonitorTest, FirstUpdateHasNoSpeedsAndTheSecondMeasuresOverTheElapsedTime) {
    updateWith({up("en0", 1000, 500)});
    EXPECT_EQ(monitor.totalDownloadSpeed(), 0);
    EXPECT_EQ(monitor.downloadHistory(), QList<double>({0}));
    EXPECT_EQ(monitor.uploadHistory(), QList<double>({0}));

    clock.advance(std::chrono::seconds(4));
    updateWith({up("en0", 5000, 2500)});
    ASSERT_EQ(monitor.interfaces().size(), 1);
    EXPECT_EQ(monitor.interfaces()[0].bytesIn, 5000u);
    EXPECT_EQ(monitor.interfaces()[0].bytesOut, 2500u);
    EXPECT_DOUBLE_EQ(monitor.interfaces()[0].downloadSpeed, 1000);
    EXPECT_DOUBLE_EQ(monitor.interfaces()[0].uploadSpeed, 500);
    EXPECT_EQ(monitor.downloadHistory(), QList<double>({0, 1000}));
    EXPECT_EQ(monitor.uploadHistory(), QList<double>({0, 500}));
}

TEST_F(NetworkMonitorTest, TotalsAreSumsOverTheInterfaces) {
    updateWith({up("en0", 100, 10), up("en1", 200, 20)});
    clock.advance(std::chrono::seconds(2));
    updateWith({up("en0", 300, 30), up("en1", 1200, 40)});
    EXPECT_EQ(monitor.totalBytesIn(), 1500u);
    EXPECT_EQ(monitor.totalBytesOut(), 70u);
    EXPECT_DOUBLE_EQ(monitor.totalDownloadSpeed(), 600);
    EXPECT_DOUBLE_EQ(monitor.totalUploadSpeed(), 20);
}

TEST_F(NetworkMonitorTest, CounterThatWentBackwardsHasNoSpeedForOneSample) {
    updateWith({up("en0", 4'294'967'000, 100)});
    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 200, 150)});
    EXPECT_EQ(monitor.totalDownloadSpeed(), 0);
    EXPECT_EQ(monitor.totalUploadSpeed(), 50);
    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 300, 150)});
    EXPECT_EQ(monitor.totalDownloadSpeed(), 100);
}

TEST_F(NetworkMonitorTest, ClockThatDidNotAdvanceGivesNoSpeed) {
    updateWith({up("en0", 100, 100)});
    updateWith({up("en0", 200, 200)});
    EXPECT_EQ(monitor.totalDownloadSpeed(), 0);

    clock.advance(std::chrono::hours(-1));
    updateWith({up("en0", 300, 300)});
    EXPECT_EQ(monitor.totalDownloadSpeed(), 0);
    EXPECT_EQ(monitor.totalUploadSpeed(), 0);

    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 400, 500)});
    EXPECT_DOUBLE_EQ(monitor.totalDownloadSpeed(), 100);
    EXPECT_DOUBLE_EQ(monitor.totalUploadSpeed(), 200);
    EXPECT_EQ(monitor.downloadHistory(), QList<double>({0, 0, 0, 100}));
}

TEST_F(NetworkMonitorTest, NewInterfaceHasNoSpeedUntilItWasSeenTwice) {
    updateWith({up("en0", 1, 1)});
    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 1, 1), up("usb0", 5000, 5000)});
    EXPECT_EQ(monitor.totalDownloadSpeed(), 0);
    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 1, 1), up("usb0", 6000, 5000)});
    EXPECT_DOUBLE_EQ(monitor.totalDownloadSpeed(), 1000);
}

TEST_F(NetworkMonitorTest, InterfaceThatComesBackIsMeasuredFromWhereItWasLastSeen) {
    updateWith({up("en0", 1, 1), up("usb0", 1000, 0)});
    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 1, 1)});
    EXPECT_EQ(namesOf(monitor.interfaces()), QStringList({u"en0"_s}));
    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 1, 1), up("usb0", 1600, 0)});
    EXPECT_DOUBLE_EQ(monitor.totalDownloadSpeed(), 600);
}

TEST_F(NetworkMonitorTest, OfManyInterfacesThatLeftOnlyTheLastAreRemembered) {
    updateWith({up("usb0", 1000, 0), up("usb1", 1000, 0)});
    for (int container = 0; container < 1000; ++container) {
        clock.advance(std::chrono::seconds(1));
        const std::string name = "veth" + std::to_string(container);
        updateWith(container == 999 ? std::vector{up(name, 1, 1), up("usb1", 1000, 0)}
                                    : std::vector{up(name, 1, 1)});
    }
    clock.advance(std::chrono::seconds(1));
    updateWith({up("usb0", 1600, 0), up("usb1", 1700, 0), up("veth998", 801, 1)});
    ASSERT_EQ(namesOf(monitor.interfaces()), QStringList({u"usb0"_s, u"usb1"_s, u"veth998"_s}));
    EXPECT_DOUBLE_EQ(monitor.interfaces()[0].downloadSpeed, 0);
    EXPECT_DOUBLE_EQ(monitor.interfaces()[1].downloadSpeed, 700);
    EXPECT_DOUBLE_EQ(monitor.interfaces()[2].downloadSpeed, 800);
}

TEST_F(NetworkMonitorTest, FailedOrEmptyReadChangesNothing) {
    updateWith({up("en0", 100, 100), withIPv4("en0", "192.0.2.1")});
    const QList<NetworkInterfaceInfo> before = monitor.interfaces();
    int announcements = 0;
    QObject::connect(&monitor, &NetworkMonitor::interfacesChanged, [&announcements] { ++announcements; });
    QObject::connect(&monitor, &NetworkMonitor::downloadHistoryChanged,
                     [&announcements] { ++announcements; });

    clock.advance(std::chrono::seconds(1));
    source.entries.reset();
    monitor.update();
    updateWith({});
    EXPECT_EQ(announcements, 0);
    EXPECT_EQ(monitor.interfaces(), before);
    EXPECT_EQ(monitor.downloadHistory(), QList<double>({0}));

    // The failed reads are no samples: the next speed spans the time since the last successful one.
    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 300, 100)});
    EXPECT_DOUBLE_EQ(monitor.totalDownloadSpeed(), 100);
}

TEST_F(NetworkMonitorTest, AnnouncesEachPropertyAsItIsAssignedInOrder) {
    QStringList announced;
    const auto note = [&](auto signal, const QString& name) {
        QObject::connect(&monitor, signal, [&announced, name] { announced.append(name); });
    };
    note(&NetworkMonitor::primaryIPv6Changed, u"primaryIPv6"_s);
    note(&NetworkMonitor::primaryIPv4Changed, u"primaryIPv4"_s);
    note(&NetworkMonitor::uploadHistoryChanged, u"uploadHistory"_s);
    note(&NetworkMonitor::downloadHistoryChanged, u"downloadHistory"_s);
    note(&NetworkMonitor::totalBytesOutChanged, u"totalBytesOut"_s);
    note(&NetworkMonitor::totalBytesInChanged, u"totalBytesIn"_s);
    note(&NetworkMonitor::totalUploadSpeedChanged, u"totalUploadSpeed"_s);
    note(&NetworkMonitor::totalDownloadSpeedChanged, u"totalDownloadSpeed"_s);
    note(&NetworkMonitor::interfacesChanged, u"interfaces"_s);

    updateWith({withIPv4("en0", "192.0.2.1")});
    EXPECT_EQ(announced, QStringList({u"interfaces"_s, u"totalDownloadSpeed"_s, u"totalUploadSpeed"_s,
                                      u"totalBytesIn"_s, u"totalBytesOut"_s, u"primaryIPv4"_s,
                                      u"primaryIPv6"_s, u"downloadHistory"_s, u"uploadHistory"_s}));

    announced.clear();
    updateWith({up("en0", 1, 1)});
    EXPECT_FALSE(announced.contains(u"primaryIPv4"_s));
    EXPECT_FALSE(announced.contains(u"primaryIPv6"_s));
    EXPECT_TRUE(announced.contains(u"uploadHistory"_s));
}

TEST_F(NetworkMonitorTest, HistoriesKeepTheLastSixtySamples) {
    for (std::uint64_t sample = 0; sample <= 60; ++sample) {
        updateWith({up("en0", sample * sample, sample * 10)});
        clock.advance(std::chrono::seconds(1));
    }
    ASSERT_EQ(monitor.downloadHistory().size(), 60);
    ASSERT_EQ(monitor.uploadHistory().size(), 60);
    EXPECT_DOUBLE_EQ(monitor.downloadHistory().first(), 1); // the first sample, 0, is gone
    EXPECT_DOUBLE_EQ(monitor.downloadHistory().last(), 119);
    EXPECT_DOUBLE_EQ(monitor.uploadHistory().first(), 10);
}

using NetworkMonitorDeathTest = NetworkMonitorTest;

TEST_F(NetworkMonitorDeathTest, SumBeyondSixtyFourBitsStopsTheProcess) {
    constexpr std::uint64_t largest = std::numeric_limits<std::uint64_t>::max();
    EXPECT_DEATH(updateWith({up("en0", largest, 0), up("en1", 1, 0)}), "addition");
    EXPECT_DEATH(updateWith({up("en0", 0, largest), up("en0", 0, 1)}), "addition");
}

} // namespace
} // namespace orvelle
