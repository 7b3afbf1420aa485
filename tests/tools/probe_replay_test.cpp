#include "probe/probe_session.h"
#include "support/temporary_tree.h"

#include <QJsonArray>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

QJsonObject replay(const QStringList& roots) {
    return std::get<QJsonObject>(probe({.roots = roots, .stepSeconds = 3}));
}

QString path(const TemporaryTree& tree) {
    return QString::fromStdString(tree.root().string());
}

TEST(ProbeReplay, AnEmptyDirectoryIsAMachineWithNothing) {
    const TemporaryTree tree;
    const QJsonObject result = replay({path(tree)});
    EXPECT_EQ(result[u"updateCycleCount"].toInt(), 1);
    EXPECT_EQ(result[u"cpu"][u"coreUsages"].toArray().size(), 0);
    EXPECT_EQ(result[u"cpu"][u"totalUsage"].toDouble(-1), 0);
    EXPECT_EQ(result[u"memory"][u"info"][u"total"].toDouble(-1), 0);
}

TEST(ProbeReplay, EachRootIsOneCycleThreeSecondsAfterTheLast) {
    const TemporaryTree first;
    first.write("proc/stat", "cpu0 100 0 100 800\ncpu1 0 0 0 1000\nbtime 1767225000\n");
    first.write("proc/loadavg", "0.50 0.25 0.10 1/2 3\n");
    const TemporaryTree second;
    second.write("proc/stat", "cpu0 250 0 100 950\ncpu1 0 0 0 1300\nbtime 1767225000\n");
    second.write("proc/meminfo", "MemTotal: 8000 kB\nMemFree: 1000 kB\nActive(anon): 4000 kB\n");
    const QJsonObject result = replay({path(first), path(second)});
    EXPECT_EQ(result[u"updateCycleCount"].toInt(), 2);
    const QJsonValue cpu = result[u"cpu"];
    EXPECT_DOUBLE_EQ(cpu[u"coreUsages"][0][u"user"].toDouble(), 0.5);
    EXPECT_DOUBLE_EQ(cpu[u"totalUsage"].toDouble(), 0.25);
    EXPECT_DOUBLE_EQ(cpu[u"loadAverage1"].toDouble(-1), 0); // the second moment has none
    EXPECT_DOUBLE_EQ(cpu[u"uptime"].toDouble(), 603);
    EXPECT_EQ(cpu[u"usageHistory"].toArray(), (QJsonArray{0, 0.25}));
    EXPECT_EQ(result[u"memory"][u"info"][u"used"].toInteger(), 4000 * 1024);
    EXPECT_EQ(result[u"memory"][u"pressureHistory"].toArray(), QJsonArray{0.5});
}

TEST(ProbeReplay, ALargeCounterIsPrintedExactly) {
    const TemporaryTree tree;
    tree.write("proc/meminfo", "MemTotal: 9007199254741 kB\n");
    EXPECT_EQ(replay({path(tree)})[u"memory"][u"info"][u"total"].toInteger(), 9007199254741 * 1024);
}

TEST(ProbeReplay, BatteryAndSensorsComeFromTheTreeOfEachMoment) {
    const TemporaryTree first;
    const TemporaryTree second;
    for (const auto& [tree, energy, temperature] :
         {std::tuple{&first, "40", "50000"}, {&second, "30", "60000"}}) {
        tree->write("sys/class/power_supply/BAT0/type", "Battery\n");
        tree->write("sys/class/power_supply/BAT0/status", "Discharging\n");
        tree->write("sys/class/power_supply/BAT0/energy_now", energy);
        tree->write("sys/class/power_supply/BAT0/energy_full", "50");
        tree->write("sys/class/hwmon/hwmon0/name", "k10temp\n");
        tree->write("sys/class/hwmon/hwmon0/temp1_input", temperature);
    }
    const QJsonObject result = replay({path(first), path(second)});
    EXPECT_EQ(result[u"battery"][u"battery"][u"currentCapacity"].toInt(), 60);
    EXPECT_EQ(result[u"battery"][u"battery"][u"powerSource"].toString(), QStringLiteral("Battery"));
    EXPECT_EQ(result[u"battery"][u"chargeHistory"].toArray(), (QJsonArray{0.8, 0.6}));
    EXPECT_EQ(result[u"sensor"][u"cpuTempHistory"].toArray(), (QJsonArray{50, 60}));
    EXPECT_EQ(result[u"sensor"][u"sensors"][0][u"name"].toString(), QStringLiteral("k10temp"));
}

TEST(ProbeReplay, ARootThatIsNoDirectoryIsSaid) {
    EXPECT_TRUE(std::holds_alternative<UnreadableRoot>(probe({.roots = {QStringLiteral("/dev/null")}})));
}

} // namespace
} // namespace orvelle
