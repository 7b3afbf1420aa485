#include "core/sensor_monitor.h"
#include "platform/replay/fake_sources.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

class CountingSensorSource final : public SensorSource {
public:
    int questionCount = 0;

    std::optional<double> readCPUTemperature() override { return ++questionCount, std::nullopt; }
    std::optional<double> readGPUTemperature() override { return ++questionCount, std::nullopt; }
    std::vector<NamedTemperature> readSensors() override {
        return ++questionCount, std::vector<NamedTemperature>{};
    }
    std::vector<std::int64_t> readFanSpeeds() override {
        return ++questionCount, std::vector<std::int64_t>{};
    }
};

class SensorMonitorTest : public ::testing::Test {
protected:
    FakeSensorSource source;
    SensorMonitor monitor{source};
};

TEST_F(SensorMonitorTest, StartsEmpty) {
    EXPECT_EQ(monitor.cpuTemperature(), 0);
    EXPECT_EQ(monitor.gpuTemperature(), 0);
    EXPECT_TRUE(monitor.sensors().isEmpty());
    EXPECT_TRUE(monitor.fans().isEmpty());
    EXPECT_TRUE(monitor.cpuTempHistory().isEmpty());
    EXPECT_TRUE(monitor.gpuTempHistory().isEmpty());
}

TEST_F(SensorMonitorTest, AsksTheSourceNothingBeforeTheFirstUpdate) {
    CountingSensorSource counting;
    SensorMonitor lazy(counting);
    EXPECT_EQ(counting.questionCount, 0);
    lazy.update();
    EXPECT_EQ(counting.questionCount, 4) << "each question once";
}

TEST_F(SensorMonitorTest, PublishesWhatTheSourceReads) {
    source.cpuTemperature = 61.5;
    source.gpuTemperature = 44;
    source.sensors = {{"k1", "Memory", 38.25}, {"k2", "Ärm", 30}};
    source.fanSpeeds = {1800, 2100};
    monitor.update();
    EXPECT_EQ(monitor.cpuTemperature(), 61.5);
    EXPECT_EQ(monitor.gpuTemperature(), 44);
    EXPECT_EQ(monitor.sensors(),
              (QList<TemperatureSensor>{{QStringLiteral("k1"), QStringLiteral("Memory"), 38.25},
                                        {QStringLiteral("k2"), QStringLiteral("\u00c4rm"), 30}}));
    EXPECT_EQ(monitor.fans(), (QList<FanInfo>{{0, 1800}, {1, 2100}}));
    EXPECT_EQ(monitor.cpuTempHistory(), QList<double>{61.5});
    EXPECT_EQ(monitor.gpuTempHistory(), QList<double>{44});
}

TEST_F(SensorMonitorTest, KeepsTheLastTemperatureButReplacesTheListsWhenTheProcessorFails) {
    source.cpuTemperature = 60;
    source.gpuTemperature = 50;
    source.sensors = {{"k", "Memory", 38}};
    source.fanSpeeds = {1800};
    monitor.update();
    source.cpuTemperature.reset();
    source.gpuTemperature.reset();
    source.sensors.clear();
    source.fanSpeeds.clear();
    monitor.update();
    EXPECT_EQ(monitor.cpuTemperature(), 60);
    EXPECT_EQ(monitor.gpuTemperature(), 50);
    EXPECT_EQ(monitor.cpuTempHistory().size(), 1);
    EXPECT_EQ(monitor.gpuTempHistory().size(), 1);
    EXPECT_TRUE(monitor.sensors().isEmpty());
    EXPECT_TRUE(monitor.fans().isEmpty());
}

TEST_F(SensorMonitorTest, TheSixtyFirstReadingDropsTheFirst) {
    for (int sample = 0; sample < 61; ++sample) {
        source.cpuTemperature = 30 + sample;
        source.gpuTemperature = 20 + sample;
        monitor.update();
        ASSERT_LE(monitor.cpuTempHistory().size(), SensorMonitor::maxHistoryCount);
    }
    EXPECT_EQ(monitor.cpuTempHistory().size(), 60);
    EXPECT_EQ(monitor.cpuTempHistory().first(), 31);
    EXPECT_EQ(monitor.cpuTempHistory().last(), 90);
    EXPECT_EQ(monitor.gpuTempHistory().size(), 60);
    EXPECT_EQ(monitor.gpuTempHistory().first(), 21);
}

TEST_F(SensorMonitorTest, AnnouncesTheAssignmentsInTheirOrder) {
    QStringList order;
    const auto note = [&order](const char* name) { return [&order, name] { order << QLatin1String(name); }; };
    QObject::connect(&monitor, &SensorMonitor::cpuTemperatureChanged, note("cpu"));
    QObject::connect(&monitor, &SensorMonitor::cpuTempHistoryChanged, note("cpu history"));
    QObject::connect(&monitor, &SensorMonitor::gpuTemperatureChanged, note("gpu"));
    QObject::connect(&monitor, &SensorMonitor::gpuTempHistoryChanged, note("gpu history"));
    QObject::connect(&monitor, &SensorMonitor::sensorsChanged, note("sensors"));
    QObject::connect(&monitor, &SensorMonitor::fansChanged, note("fans"));
    source.cpuTemperature = 60;
    source.gpuTemperature = 50;
    monitor.update();
    EXPECT_EQ(order.join(QLatin1Char(',')), QStringLiteral("cpu,cpu history,gpu,gpu history,sensors,fans"));
    order.clear();
    source.cpuTemperature.reset();
    monitor.update();
    EXPECT_EQ(order.join(QLatin1Char(',')), QStringLiteral("gpu,gpu history,sensors,fans"));
}

} // namespace
} // namespace orvelle
