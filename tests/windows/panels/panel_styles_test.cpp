#include "windows/panels/panel_fixture.h"

#include <QMetaEnum>
#include <QMetaProperty>

namespace orvelle {
namespace {

/// The charts of the panels follow the settings.
class PanelStyles : public PanelFixture {
protected:
    [[nodiscard]] QVariant valueOf(const char* chart, const char* property) const {
        const QQuickItem* found = item(chart);
        const QVariant value = found != nullptr ? found->property(property) : QVariant();
        EXPECT_TRUE(value.isValid()) << chart << " has no " << property;
        return value;
    }

    /// The property of the chart takes each value of the setting.
    void expectFollows(const char* chart, const char* setting, const char* property) {
        const QMetaObject& type = SettingsStore::staticMetaObject;
        const QMetaProperty chosen = type.property(type.indexOfProperty(setting));
        const QMetaEnum cases = chosen.enumerator();
        ASSERT_GT(cases.keyCount(), 1) << setting;
        for (int index = cases.keyCount() - 1; index >= 0; --index) {
            ASSERT_TRUE(chosen.write(&settings, cases.value(index)));
            EXPECT_EQ(valueOf(chart, property).toInt(), cases.value(index))
                << chart << " with " << setting << " " << cases.key(index);
        }
    }
    void expectGlowFollows(const char* chart) {
        expectFollows(chart, "glowIntensity", "glowIntensity");
        for (const auto intensity :
             {GlowIntensity::intense, GlowIntensity::none, GlowIntensity::medium, GlowIntensity::subtle}) {
            settings.setGlowIntensity(intensity);
            EXPECT_EQ(valueOf(chart, "showGlow").toBool(), intensity != GlowIntensity::none) << chart;
        }
    }
    /// The line graph follows the settings and has this scale and height.
    void expectGraph(const char* chart, double maxValue, double height) {
        expectFollows(chart, "graphLineStyle", "lineStyle");
        expectFollows(chart, "graphFillStyle", "fillStyle");
        expectGlowFollows(chart);
        EXPECT_TRUE(valueOf(chart, "fillGradient").toBool()) << chart;
        EXPECT_EQ(valueOf(chart, "lineWidth").toDouble(), 1.5) << chart;
        EXPECT_EQ(valueOf(chart, "maxValue").toDouble(), maxValue) << chart;
        EXPECT_EQ(valueOf(chart, "height").toDouble(), height) << chart;
    }
    void expectGridOfTheTheme(const char* chart) {
        for (const AppTheme& theme : builtInThemes()) {
            themes.selectTheme(theme.id);
            EXPECT_EQ(colorOf(chart, "gridColor"), asShown(theme.graphGrid)) << chart;
        }
    }
};

TEST_F(PanelStyles, ReachTheBarsOfTheProcessor) {
    ASSERT_NE(show(u"cpu"), nullptr);
    expectFollows("coreChart", "barChartStyle", "barStyle");
    expectFollows("coreChart", "animationSpeed", "animationSpeed");
    expectGlowFollows("coreChart");
    EXPECT_EQ(valueOf("coreChart", "maxValue").toDouble(), 1);
    EXPECT_EQ(valueOf("coreChart", "barSpacing").toDouble(), 2);
    EXPECT_EQ(valueOf("coreChart", "height").toDouble(), 50);
    EXPECT_TRUE(valueOf("coreChart", "animateChanges").toBool());
    EXPECT_EQ(colorOf("coreChart", "baseColor"), asShown(themes.cpuColor(settings)));
}

TEST_F(PanelStyles, ReachTheHistoryOfTheProcessor) {
    ASSERT_NE(show(u"cpu"), nullptr);
    expectGraph("history", 1, 60);
    expectGridOfTheTheme("history");
    EXPECT_EQ(colorOf("history", "lineColor"), asShown(themes.cpuColor(settings)));
}

TEST_F(PanelStyles, ReachTheHistoryOfTheMemory) {
    ASSERT_NE(show(u"memory"), nullptr);
    expectGraph("history", 1, 50);
    expectGridOfTheTheme("history");
    EXPECT_EQ(colorOf("history", "lineColor"), asShown(themes.memoryColor(settings)));
}

TEST_F(PanelStyles, ReachTheRingOfTheMemory) {
    ASSERT_NE(show(u"memory"), nullptr);
    expectFollows("share", "ringChartStyle", "ringStyle");
    expectFollows("share", "animationSpeed", "animationSpeed");
    expectGlowFollows("share");
    EXPECT_EQ(colorOf("share", "baseColor"), asShown(themes.memoryColor(settings)));
    for (const char* ring : {"share", "parts"}) {
        EXPECT_EQ(valueOf(ring, "lineWidth").toDouble(), 10) << ring;
        EXPECT_EQ(valueOf(ring, "size").toDouble(), 90) << ring;
    }
    EXPECT_EQ(colorOf("share", "trackColor"), QColor(255, 255, 255, 20));
    EXPECT_EQ(colorOf("parts", "trackColor"), QColor(255, 255, 255, 13));
}

TEST_F(PanelStyles, ReachBothGraphsOfTheNetworkAndOfTheDisk) {
    for (const auto& [key, height] : {std::pair{u"network", 60.0}, {u"disk", 50.0}}) {
        ASSERT_NE(show(key), nullptr);
        expectGraph("firstGraph", 1024, height);
        expectGraph("secondGraph", 1024, height);
        expectGridOfTheTheme("firstGraph");
        EXPECT_EQ(colorOf("secondGraph", "gridColor").alpha(), 0) << "the grid is drawn once";
    }
}

TEST_F(PanelStyles, ReachTheHistoryOfTheBattery) {
    ASSERT_NE(show(u"battery"), nullptr);
    expectGraph("history", 1, 50);
    expectGridOfTheTheme("history");
}

TEST_F(PanelStyles, ReachTheGaugesAndTheGraphsOfTheSensors) {
    machine.sensor->cpuTemperature = 61;
    machine.sensor->gpuTemperature = 52;
    sample(2);
    ASSERT_NE(show(u"sensor"), nullptr);
    for (const char* gauge : {"cpuGauge", "gpuGauge"}) {
        expectGlowFollows(gauge);
        EXPECT_EQ(valueOf(gauge, "maxTemp").toDouble(), 110) << gauge;
        for (const bool isFahrenheit : {true, false}) {
            settings.setUseFahrenheit(isFahrenheit);
            EXPECT_EQ(valueOf(gauge, "useFahrenheit").toBool(), isFahrenheit) << gauge;
        }
    }
    EXPECT_EQ(valueOf("cpuGauge", "temperature").toDouble(), 61);
    EXPECT_EQ(valueOf("gpuGauge", "temperature").toDouble(), 52);
    for (const char* graph : {"cpuGraph", "gpuGraph"}) {
        expectGraph(graph, 110, 50);
        EXPECT_EQ(colorOf(graph, "gridColor").alpha(), 0) << graph;
    }
    EXPECT_EQ(colorOf("cpuGraph", "lineColor"), asShown(themes.sensorColor(settings)));
    EXPECT_EQ(colorOf("gpuGraph", "lineColor"), QColor(255, 159, 10));
}

} // namespace
} // namespace orvelle
