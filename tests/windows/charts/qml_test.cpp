#include "windows/charts/animated_bar_chart_item.h"
#include "windows/charts/animated_line_graph_item.h"
#include "windows/charts/chart_types.h"
#include "windows/charts/ring_items.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <gtest/gtest.h>

#include <memory>

namespace orvelle {
namespace {

/// The charts as QML sees them.
class ChartsInQml : public ::testing::Test {
protected:
    static void SetUpTestSuite() { registerChartTypes(); }

    /// Never null.
    [[nodiscard]] std::unique_ptr<QObject> created(const QByteArray& body) {
        QQmlComponent component(&engine);
        component.setData("import Orvelle.Charts\n" + body, QUrl());
        std::unique_ptr<QObject> object(component.create());
        EXPECT_NE(object, nullptr) << component.errorString().toStdString();
        return object != nullptr ? std::move(object) : std::make_unique<QObject>();
    }

    void expectItCanBeCreated(const QByteArray& body) { static_cast<void>(created(body)); }

    QQmlEngine engine;
};

TEST_F(ChartsInQml, EveryItemHasItsName) {
    for (const char* name : {"AnimatedBarChart", "AnimatedLineGraph", "AnimatedRingChart", "MultiSegmentRing",
                             "TemperatureGauge", "GradientBar", "ContinuousRectangle"})
        expectItCanBeCreated(QByteArray(name) + " {}");
}

TEST_F(ChartsInQml, EveryFieldIsAProperty) {
    expectItCanBeCreated("AnimatedBarChart { values: [1, 2]; maxValue: 4; barSpacing: 1; height: 30; "
                         "baseColor: 'red'; showGlow: false; animateChanges: false; "
                         "barStyle: 'pill'; glowIntensity: 'subtle'; animationSpeed: 'slow' }");
    expectItCanBeCreated("AnimatedLineGraph { data: [1, 2]; maxValue: 4; lineColor: 'red'; height: 30; "
                         "fillGradient: false; showGlow: false; lineWidth: 2; lineStyle: 'dotted'; "
                         "fillStyle: 'striped'; glowIntensity: 'intense'; gridColor: '#20ffffff'; "
                         "property var shown: animatedData }");
    expectItCanBeCreated("AnimatedRingChart { value: 0.5; lineWidth: 8; size: 60; baseColor: 'red'; "
                         "trackColor: 'blue'; showGlow: false; pulseCritical: true; criticalThreshold: 0.8; "
                         "label: '50%'; sublabel: 'Used'; ringStyle: 'arcGauge'; glowIntensity: 'none'; "
                         "animationSpeed: 'instant'; property var shown: [animatedValue, pulseScale] }");
    expectItCanBeCreated("MultiSegmentRing { segments: []; lineWidth: 8; size: 60; trackColor: 'blue'; "
                         "property real shown: animatedProgress }");
    expectItCanBeCreated("TemperatureGauge { label: 'CPU'; temperature: 50; maxTemp: 110; "
                         "useFahrenheit: true; glowIntensity: 'none'; showGlow: false }");
    expectItCanBeCreated("GradientBar { fraction: 0.5; color: 'red'; trackColor: 'blue' }");
    expectItCanBeCreated("ContinuousRectangle { color: 'red'; radius: 3 }");
}

TEST_F(ChartsInQml, StylesAreSetByNameOrByThePropertyOfAnotherObject) {
    const auto chart =
        created("AnimatedBarChart { barStyle: 'thinLine'; animationSpeed: 'fast'; "
                "property var copy: AnimatedBarChart { barStyle: chart.barStyle } id: chart }");
    EXPECT_EQ(chart->property("barStyle").value<BarChartStyle>(), BarChartStyle::thinLine);
    EXPECT_EQ(chart->property("animationSpeed").value<AnimationSpeed>(), AnimationSpeed::fast);
    const auto* copy = chart->property("copy").value<QObject*>();
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->property("barStyle").value<BarChartStyle>(), BarChartStyle::thinLine);
}

TEST_F(ChartsInQml, DataIsTheSeriesAndObjectsInsideAChartAreKept) {
    const auto graph = created("AnimatedLineGraph { data: [0.5, 1.5]; GradientBar {} }");
    EXPECT_EQ(graph->property("data").value<QList<double>>(), (QList<double>{0.5, 1.5}));
}

TEST_F(ChartsInQml, AbsentTextsAreNull) {
    const auto ring = created("AnimatedRingChart { property bool isAbsent: label === null; label: null; "
                              "sublabel: undefined }");
    EXPECT_TRUE(ring->property("isAbsent").toBool());
    EXPECT_TRUE(ring->property("sublabel").isNull());
}

TEST_F(ChartsInQml, SegmentsAreObjects) {
    const auto ring = created("MultiSegmentRing { segments: [{value: 3, color: 'red'}] }");
    const QVariantMap segment = ring->property("segments").toList().at(0).toMap();
    EXPECT_EQ(segment.value(QStringLiteral("value")), QVariant(3));
}

TEST_F(ChartsInQml, ReducedMotionIsVisible) {
    const auto object = created("GradientBar { property bool isReduced: AnimationClock.reduced }");
    EXPECT_FALSE(object->property("isReduced").toBool());
    AnimationClock::shared().setReduced(true);
    EXPECT_TRUE(object->property("isReduced").toBool());
    AnimationClock::shared().setReduced(false);
}

} // namespace
} // namespace orvelle
