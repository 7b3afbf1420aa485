#include "animation/animation_clock.h"
#include "support/quick_timers.h"
#include "theme/fonts.h"
#include "windows/panels/panel_fixture.h"

namespace orvelle {
namespace {

using CPUPanel = PanelFixture;
using MemoryPanel = PanelFixture;
using AnyPanel = PanelFixture;

constexpr std::uint64_t gibibyte = std::uint64_t{1} << 30;

MemoryReading memoryReading(std::uint64_t wiredPages) {
    return {.pageSize = 4096,
            .physicalMemory = 4096 * 1000,
            .freePages = 1000 - wiredPages,
            .wiredPages = wiredPages,
            .swapTotal = 2 * gibibyte,
            .swapUsed = gibibyte / 2};
}

TEST_F(AnyPanel, IsMadeForEachModule) {
    for (const char16_t* key : {u"cpu", u"memory", u"network", u"disk", u"battery", u"sensor"}) {
        const QQuickView* view = show(key);
        ASSERT_NE(view, nullptr);
        EXPECT_EQ(view->size(), PanelFactory::panelSize);
        EXPECT_EQ(view->rendererInterface()->graphicsApi(), QSGRendererInterface::Software);
        expectNothingIsCutOff();
    }
}

TEST_F(AnyPanel, OpensTheSettingsByItsButtonAndByTheKeyboard) {
    ASSERT_NE(show(u"cpu"), nullptr);
    QQuickItem* button = item("settingsButton");
    ASSERT_NE(button, nullptr);
    const QPoint center = button->mapToScene({13, 13}).toPoint();
    QTest::mouseClick(panel.get(), Qt::LeftButton, {}, center);
    EXPECT_EQ(settingsOpened, 1);
    button->forceActiveFocus();
    QTest::keyClick(panel.get(), Qt::Key_Space);
    QTest::keyClick(panel.get(), Qt::Key_Return);
    EXPECT_EQ(settingsOpened, 3);
}

TEST_F(AnyPanel, FollowsTheThemeAndTheUsersColour) {
    ASSERT_NE(show(u"cpu"), nullptr);
    EXPECT_EQ(colorOf("totalUsage"), asShown(themes.cpuColor(settings)));
    const AppTheme& other = builtInThemes().at(3);
    themes.selectTheme(other.id);
    EXPECT_EQ(colorOf("totalUsage"), asShown(other.cpuColor));
    settings.setCustomCPUColorHex(QStringLiteral("#102030"));
    settings.setUseCustomCPUColor(true);
    EXPECT_EQ(colorOf("totalUsage"), QColor(0x10, 0x20, 0x30));
}

TEST_F(AnyPanel, FollowsAFontThatTheDesktopChanges) {
    ASSERT_NE(show(u"sensor"), nullptr);
    const auto families = [this] {
        QStringList found;
        for (const QQuickItem* text : shownItems("QQuickText"))
            found.append(text->property("font").value<QFont>().family());
        found.removeDuplicates();
        return found;
    };
    const QStringList before = families();
    const QString serif = QStringLiteral("DejaVu Serif");
    const double gaugeHeight = item("cpuGauge")->height();
    const QImage picture = panel->grabWindow();
    setDesktopFontNames({.proportional = serif + QStringLiteral(" 11"), .monospaced = serif});
    settle();
    EXPECT_EQ(families(), QStringList(serif));
    EXPECT_NE(panel->grabWindow(), picture);
    setDesktopFontNames({});
    settle();
    EXPECT_EQ(families(), before);
    EXPECT_EQ(item("cpuGauge")->height(), gaugeHeight);
    EXPECT_EQ(panel->grabWindow(), picture);
}

TEST_F(AnyPanel, PaintsNothingBetweenTwoSamples) {
    machine.processor->ticks = std::vector<CoreTicks>(8);
    machine.process->processes = {{.pid = 1, .name = "first"}};
    machine.sensor->fanSpeeds = {0};
    std::vector<std::unique_ptr<QQuickView>> panels;
    QStringList painted;
    sample(2);
    for (const char16_t* key : {u"cpu", u"memory", u"network", u"disk", u"battery", u"sensor"}) {
        ASSERT_NE(show(key), nullptr);
        QObject::connect(panel.get(), &QQuickWindow::afterRendering, panel.get(),
                         [&painted, key] { painted.append(QString::fromUtf16(key)); });
        panels.push_back(std::move(panel));
    }
    sample();
    EXPECT_TRUE(waitUntil([] { return !AnimationClock::shared().isRunning(); }));
    for (const auto& each : panels) {
        EXPECT_TRUE(orvelle::settle(*each));
        EXPECT_FALSE(hasRunningTimer(*each->contentItem())) << each->title().toStdString();
    }
    painted.clear();
    passAMoment();
    EXPECT_EQ(painted, QStringList());
}

TEST_F(CPUPanel, ShowsUsageLoadUptimeAndCores) {
    machine.processor->loadAverages = {1.5, 1.25, 1};
    machine.processor->bootTime = FakeClock::replayStartSeconds - 90061;
    machine.processor->ticks = {{.idle = 100}, {.idle = 100}};
    sample();
    machine.processor->ticks = {{.user = 30, .system = 20, .idle = 150}, {.idle = 200}};
    monitor.updateCycle();
    ASSERT_NE(show(u"cpu"), nullptr);
    EXPECT_EQ(textOf("totalUsage"), QStringLiteral("25.0%"));
    EXPECT_TRUE(shows(u"User: 15.0%"));
    EXPECT_TRUE(shows(u"System: 10.0%"));
    EXPECT_TRUE(shows(u"1.50  1.25  1.00"));
    EXPECT_TRUE(shows(u"1d 1h 1m"));
    EXPECT_TRUE(shows(u"2"));
    EXPECT_EQ(item("coreChart")->property("values").value<QList<double>>(), (QList<double>{0.5, 0}));
    EXPECT_EQ(item("history")->property("data").value<QList<double>>().last(), 0.25);
}

TEST_F(CPUPanel, ShowsNoBarsWithoutCores) {
    ASSERT_NE(show(u"cpu"), nullptr);
    EXPECT_TRUE(item("coreChart")->property("values").value<QList<double>>().isEmpty());
    EXPECT_TRUE(shows(u"0"));
    EXPECT_TRUE(shows(u"TOP PROCESSES"));
}

TEST_F(CPUPanel, ShowsHostileNamesAsTheyAre) {
    const std::string markup = "<b>bold</b>&amp;<img src=x>";
    machine.process->totalMemory = 16 * gibibyte;
    machine.process->processes = {{.pid = 1, .name = markup, .residentBytes = gibibyte},
                                  {.pid = 2, .name = std::string(4000, 'W'), .residentBytes = 5},
                                  {.pid = 3, .name = "\u202Eevil %1 %n", .residentBytes = 5}};
    sample();
    ASSERT_NE(show(u"cpu"), nullptr);
    EXPECT_TRUE(shownTexts().contains(QString::fromStdString(markup)));
    expectNothingIsCutOff();
}

TEST_F(CPUPanel, FollowsItsProcesses) {
    machine.process->processes = {{.pid = 1, .name = "first"}, {.pid = 2, .name = "second"}};
    sample();
    ASSERT_NE(show(u"cpu"), nullptr);
    EXPECT_TRUE(shows(u"first"));
    machine.process->processes = {{.pid = 2, .name = "second", .userNanoseconds = 1'500'000'000}};
    sample(3);
    EXPECT_FALSE(shows(u"first"));
    EXPECT_TRUE(shows(u"second"));
    EXPECT_GT(item("processes")->property("maxValue").toDouble(), 1);
}

TEST_F(MemoryPanel, ShowsZeroesForAnUnknownTotal) {
    ASSERT_NE(show(u"memory"), nullptr);
    EXPECT_TRUE(shows(u"0 B / 0 B"));
    EXPECT_TRUE(shows(u"0.0%"));
    EXPECT_EQ(textOf("pressureBadge"), QStringLiteral("Normal"));
}

TEST_F(MemoryPanel, TurnsYellowAndRedAtItsThresholds) {
    machine.memory->reading = memoryReading(600);
    sample();
    ASSERT_NE(show(u"memory"), nullptr);
    EXPECT_EQ(textOf("pressureBadge"), QStringLiteral("Warning"));
    EXPECT_EQ(colorOf("history", "lineColor"), SystemColors::yellow);
    machine.memory->reading = memoryReading(800);
    sample();
    EXPECT_EQ(textOf("pressureBadge"), QStringLiteral("Critical"));
    EXPECT_EQ(colorOf("history", "lineColor"), SystemColors::red);
    EXPECT_EQ(textOf("swapUsed"), QStringLiteral("512.0 MB"));
    EXPECT_TRUE(shows(u"2.0 GB"));
}

TEST_F(MemoryPanel, PutsThePressureOnAFaintPlateWithContinuousCorners) {
    machine.memory->reading = memoryReading(600);
    sample();
    ASSERT_NE(show(u"memory"), nullptr);
    const QQuickItem* plate = item("pressurePlate");
    EXPECT_TRUE(plate->inherits("orvelle::ContinuousRectangleItem"));
    EXPECT_GT(plate->property("radius").toDouble(), 0);
    QColor faint = SystemColors::yellow;
    faint.setAlphaF(0.15F);
    EXPECT_EQ(colorOf("pressurePlate"), asShown(faint));
    const QQuickItem* badge = item("pressureBadge");
    EXPECT_NEAR(plate->width(), badge->width() + 2 * 6, 1);
    EXPECT_NEAR(plate->height(), badge->height() + 2 * 2, 1);
}

TEST_F(MemoryPanel, ShowsOneRingOfTheUsedShareInTheOtherStyles) {
    machine.memory->reading = memoryReading(950);
    sample();
    ASSERT_NE(show(u"memory"), nullptr);
    const QQuickItem* parts = item("parts");
    const QQuickItem* share = item("share");
    EXPECT_TRUE(parts->isVisible());
    EXPECT_FALSE(share->isVisible());
    EXPECT_EQ(parts->property("segments").toList().size(), 5);
    settings.setRingChartStyle(RingChartStyle::halfGauge);
    EXPECT_FALSE(parts->isVisible());
    EXPECT_TRUE(share->isVisible());
    EXPECT_DOUBLE_EQ(share->property("value").toDouble(), 0.95);
    EXPECT_TRUE(share->property("pulseCritical").toBool());
    EXPECT_EQ(share->property("criticalThreshold").toDouble(), 0.9);
    EXPECT_EQ(share->property("ringStyle").value<RingChartStyle>(), RingChartStyle::halfGauge);
}

} // namespace
} // namespace orvelle
