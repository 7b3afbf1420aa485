#include "common/read_only_settings.h"
#include "core/system_monitor.h"
#include "probe/following.h"
#include "probe/published_values.h"
#include "settings/settings_store.h"

#include <QJsonArray>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

const QJsonObject machine{
    {QStringLiteral("cpu"), QJsonObject{{QStringLiteral("totalUsage"), 0.25}}},
    {QStringLiteral("disk"), QJsonObject{{QStringLiteral("volumes"), QJsonArray{1, 2}}}},
    {QStringLiteral("network"), QJsonObject{{QStringLiteral("ipv6"), QJsonValue()}}},
};

TEST(PublishedValues, AreFoundByTheirPaths) {
    EXPECT_EQ(valuesAt(machine, {QStringLiteral("cpu.totalUsage"), QStringLiteral("disk.volumes")}),
              (QJsonObject{{QStringLiteral("cpu.totalUsage"), 0.25},
                           {QStringLiteral("disk.volumes"), QJsonArray{1, 2}}}));
}

TEST(PublishedValues, AMonitorIsAValueToo) {
    EXPECT_EQ(valuesAt(machine, {QStringLiteral("cpu")})[u"cpu"][u"totalUsage"].toDouble(), 0.25);
}

TEST(PublishedValues, TheFirstPathThatLeadsNowhereIsTold) {
    const auto unknown = [](const char* path) {
        return firstUnknownPath(machine, {QStringLiteral("cpu"), QString::fromLatin1(path)}).toStdString();
    };
    EXPECT_EQ(unknown("disk.volumes"), "");
    EXPECT_EQ(unknown("network.ipv6"), ""); // nothing at present, but a value
    for (const char* path :
         {"gpu", "cpu.", ".cpu", "cpu..totalUsage", "cpu.totalusage", "cpu.totalUsage.x", "disk.volumes.0"})
        EXPECT_EQ(unknown(path), path);
}

TEST(PublishedValues, ThoseOfAMonitorAreKnownBeforeItsFirstSample) {
    const SettingsStore settings(std::make_unique<ReadOnlySettings>());
    const QJsonObject values = publishedValues(*unsampledMonitor(settings));
    EXPECT_EQ(values[u"updateCycleCount"].toInt(-1), 0);
    EXPECT_EQ(firstUnknownPath(values,
                               {QStringLiteral("memory.info.used"), QStringLiteral("battery.battery.wattage"),
                                QStringLiteral("process.topCPUProcesses")}),
              QString());
}

} // namespace
} // namespace orvelle
