#include "support/quick_timers.h"
#include "windows/panels/panel_fixture.h"

namespace orvelle {
namespace {

/// The values that the panels show, and their colours.
class PanelData : public PanelFixture {
protected:
    /// The colours of the visible rectangles of this size, in the order of the panel.
    [[nodiscard]] QList<QColor> marksOfSize(double width, double height) const {
        QList<QColor> colors;
        for (const QQuickItem* mark : shownItems("QQuickRectangle")) {
            if (mark->width() == width && mark->height() == height)
                colors.append(asShown(mark->property("color").value<QColor>()));
        }
        return colors;
    }
    [[nodiscard]] QList<const QQuickItem*> symbolsCalled(const char16_t* name) const {
        QList<const QQuickItem*> found = shownItems("orvelle::SymbolItem");
        found.removeIf([name](const QQuickItem* symbol) {
            return symbol->property("name").toString() != QString::fromUtf16(name);
        });
        return found;
    }
    [[nodiscard]] QList<double> seriesOf(const char* graph) const {
        return item(graph)->property("data").value<QList<double>>();
    }
    /// Samples a memory of 1000 pages of one byte, of which `wiredPages` are wired and none is cached.
    void hold(std::uint64_t wiredPages) {
        machine.memory->reading = {
            .pageSize = 1, .physicalMemory = 1000, .freePages = 1000 - wiredPages, .wiredPages = wiredPages};
        sample();
    }
    void transfer(std::uint64_t in, std::uint64_t out) {
        machine.network->entries = {
            {.name = "en0", .isUp = true, .ipv4Address = "10.0.0.2", .bytesIn = in, .bytesOut = out}};
        machine.disk->counters = std::vector<DiskCounters>{{.bytesRead = in, .bytesWritten = out}};
        sample();
    }
    /// Degrees by which each fan's icon turns at a tick of the timer.
    [[nodiscard]] QList<double> stepsOfTheFans(QObject& timer) const {
        const QList<const QQuickItem*> icons = symbolsCalled(u"fan");
        QList<double> steps;
        for (const QQuickItem* icon : icons)
            steps.append(-icon->property("angle").toDouble());
        QMetaObject::invokeMethod(&timer, "triggered");
        for (qsizetype index = 0; index < icons.size(); ++index)
            steps[index] = std::fmod(steps[index] + icons[index]->property("angle").toDouble() + 360, 360);
        return steps;
    }
    [[nodiscard]] static QObject* timerIn(const QQuickItem& root, const QString& name) {
        for (QObject* child : root.children()) {
            if (child->objectName() == name)
                return child;
        }
        for (const QQuickItem* child : root.childItems()) {
            if (QObject* found = timerIn(*child, name))
                return found;
        }
        return nullptr;
    }
};

const QColor red(255, 69, 58);
const QColor orange(255, 159, 10);
const QColor yellow(255, 214, 10);
const QColor green(50, 215, 75);
const QColor cyan(90, 200, 245);

QColor faded(QColor color, double opacity) {
    color.setAlpha(static_cast<int>(std::lround(255 * opacity)));
    return color;
}

TEST_F(PanelData, TheRingShowsThePartsOfTheMemoryInTheirOrderAndColours) {
    machine.memory->reading = {.pageSize = 1,
                               .physicalMemory = 1000,
                               .freePages = 100,
                               .activePages = 400,
                               .inactivePages = 200,
                               .wiredPages = 180,
                               .compressorPages = 120,
                               .externalPages = 90};
    sample();
    ASSERT_NE(show(u"memory"), nullptr);
    const QColor active = asShown(themes.memoryColor(settings));
    const QList<std::tuple<QString, double, QColor>> expected{
        {QStringLiteral("Wired"), 180, faded(red, 0.8)},
        {QStringLiteral("Active"), 400, active},
        {QStringLiteral("Compressed"), 120, orange},
        {QStringLiteral("Cached"), 90, faded(cyan, 0.6)},
        {QStringLiteral("Free"), 100, QColor(255, 255, 255, 20)}};
    QList<std::tuple<QString, double, QColor>> shown;
    for (const QVariant& segment : item("parts")->property("segments").toList()) {
        const QVariantMap fields = segment.toMap();
        shown.append({fields.value(QStringLiteral("label")).toString(),
                      fields.value(QStringLiteral("value")).toDouble(),
                      asShown(fields.value(QStringLiteral("color")).value<QColor>())});
    }
    EXPECT_EQ(shown, expected);
}

TEST_F(PanelData, TheLegendOfTheMemoryHasItsOwnOrderAndABrighterFreePart) {
    hold(300);
    ASSERT_NE(show(u"memory"), nullptr);
    QStringList names = shownTexts();
    const QStringList parts{QStringLiteral("Active"), QStringLiteral("Wired"), QStringLiteral("Compressed"),
                            QStringLiteral("Cached"), QStringLiteral("Free")};
    names.removeIf([&parts](const QString& text) { return !parts.contains(text); });
    EXPECT_EQ(names, parts);
    EXPECT_EQ(marksOfSize(6, 6), (QList<QColor>{asShown(themes.memoryColor(settings)), faded(red, 0.8),
                                                orange, faded(cyan, 0.6), faded(Qt::white, 0.3)}));
}

TEST_F(PanelData, TheBadgeOfThePressureChangesExactlyAtItsLevels) {
    hold(599);
    ASSERT_NE(show(u"memory"), nullptr);
    const QColor moduleColor = asShown(themes.memoryColor(settings));
    const auto expectBadge = [&](std::uint64_t held, const char16_t* text, const QColor& color,
                                 const QColor& lineColor) {
        hold(held);
        EXPECT_EQ(textOf("pressureBadge"), QString::fromUtf16(text)) << held;
        EXPECT_EQ(colorOf("pressureBadge"), color) << held;
        EXPECT_EQ(colorOf("history", "lineColor"), lineColor) << held;
    };
    expectBadge(599, u"Normal", green, moduleColor);
    expectBadge(600, u"Warning", yellow, yellow);
    expectBadge(799, u"Warning", yellow, yellow);
    expectBadge(800, u"Critical", red, red);
    expectBadge(0, u"Normal", green, moduleColor);
}

TEST_F(PanelData, TheLegendOfTheProcessorDistinguishesUserFromSystem) {
    ASSERT_NE(show(u"cpu"), nullptr);
    const QColor color = asShown(themes.cpuColor(settings));
    EXPECT_EQ(marksOfSize(6, 6), (QList<QColor>{color, faded(color, 0.5)}));
}

TEST_F(PanelData, BothGraphsOfAPanelShareTheScaleOfTheLargerSeries) {
    transfer(1, 1);
    for (const auto& [in, out, scale] : {std::tuple{6145U, 4U, 2048.0}, {6148U, 12'292U, 4096.0}}) {
        transfer(in, out);
        for (const char16_t* key : {u"network", u"disk"}) {
            ASSERT_NE(show(key), nullptr);
            EXPECT_NEAR(item("firstGraph")->property("maxValue").toDouble(), scale, 1);
            EXPECT_EQ(item("secondGraph")->property("maxValue"), item("firstGraph")->property("maxValue"));
        }
    }
}

TEST_F(PanelData, EachGraphOfAPanelShowsItsOwnSeriesInItsOwnColour) {
    transfer(1, 1);
    transfer(6001, 3001);
    const auto expectGraphs = [this](const QColor& first, const QColor& second) {
        EXPECT_DOUBLE_EQ(seriesOf("firstGraph").last(), 2000);
        EXPECT_DOUBLE_EQ(seriesOf("secondGraph").last(), 1000);
        EXPECT_EQ(colorOf("firstGraph", "lineColor"), asShown(first));
        EXPECT_EQ(colorOf("secondGraph", "lineColor"), asShown(second));
        EXPECT_EQ(marksOfSize(12, 2), (QList<QColor>{asShown(first), asShown(second)}));
    };
    const AppTheme& theme = themes.currentTheme();
    ASSERT_NE(show(u"network"), nullptr);
    expectGraphs(theme.networkDownloadColor, theme.networkUploadColor);
    ASSERT_NE(show(u"disk"), nullptr);
    expectGraphs(theme.diskReadColor, theme.diskWriteColor);
}

TEST_F(PanelData, EachTemperatureHasItsOwnHistory) {
    machine.sensor->cpuTemperature = 61;
    machine.sensor->gpuTemperature = 52;
    sample(2);
    ASSERT_NE(show(u"sensor"), nullptr);
    EXPECT_EQ(seriesOf("cpuGraph"), (QList<double>{61, 61}));
    EXPECT_EQ(seriesOf("gpuGraph"), (QList<double>{52, 52}));
    EXPECT_TRUE(item("gpuGraph")->isVisible());
    EXPECT_EQ(marksOfSize(12, 2), (QList<QColor>{asShown(themes.sensorColor(settings)), orange}));
}

TEST_F(PanelData, ABoltMarksTheBatteryThatCharges) {
    PowerSourceDescription battery{.currentCapacity = 40, .isCharging = true, .isCharged = false};
    machine.battery->powerSources = {{battery}};
    sample();
    ASSERT_NE(show(u"battery"), nullptr);
    ASSERT_EQ(symbolsCalled(u"bolt.fill").size(), 1);
    EXPECT_EQ(asShown(symbolsCalled(u"bolt.fill").front()->property("color").value<QColor>()), yellow);
    EXPECT_EQ(symbolsCalled(u"bolt").size(), 1) << "beside the power";
    EXPECT_EQ(symbolsCalled(u"bolt").front()->property("fontSize").toDouble(), 9);
    battery.isCharging = false;
    machine.battery->powerSources = {{battery}};
    sample();
    EXPECT_TRUE(symbolsCalled(u"bolt.fill").isEmpty());
    EXPECT_EQ(symbolsCalled(u"bolt").size(), 1);
}

TEST_F(PanelData, TheBarOfTheChargeIsGreenWhileTheBatteryCharges) {
    settings.setCustomBatteryColorHex(QStringLiteral("#102030"));
    settings.setUseCustomBatteryColor(true);
    PowerSourceDescription battery{.currentCapacity = 40, .isCharging = true};
    machine.battery->powerSources = {{battery}};
    sample();
    ASSERT_NE(show(u"battery"), nullptr);
    EXPECT_EQ(colorOf("fill"), green);
    EXPECT_EQ(colorOf("charge"), QColor(0x10, 0x20, 0x30));
    battery.isCharging = false;
    machine.battery->powerSources = {{battery}};
    sample();
    EXPECT_EQ(colorOf("fill"), QColor(0x10, 0x20, 0x30));
}

TEST_F(PanelData, TheTimeIsUntilFullWhileChargingAndElseUntilEmpty) {
    PowerSourceDescription battery{
        .currentCapacity = 40, .isCharging = true, .timeToEmpty = 59, .timeToFullCharge = 125};
    machine.battery->powerSources = {{battery}};
    sample();
    ASSERT_NE(show(u"battery"), nullptr);
    EXPECT_EQ(textOf("time"), QStringLiteral("2:05 remaining"));
    battery.isCharging = false;
    machine.battery->powerSources = {{battery}};
    sample();
    EXPECT_EQ(textOf("time"), QStringLiteral("59 min remaining"));
}

TEST_F(PanelData, TheFansTurnAtEveryTickByTheirSpeedUpToTwoTurnsASecond) {
    machine.sensor->fanSpeeds = {1500, 3000, 6000, 9000};
    sample();
    ASSERT_NE(show(u"sensor"), nullptr);
    QObject* timer = timerIn(*panel->contentItem(), QStringLiteral("fanAngleTimer"));
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->property("interval").toInt(), 50);
    EXPECT_TRUE(timer->property("repeat").toBool());
    for (int tick = 0; tick < 30; ++tick) {
        const QList<double> steps = stepsOfTheFans(*timer);
        ASSERT_EQ(steps.size(), 4);
        // One turn takes 2, 1, 0.5 and 0.5 seconds. A tick is a twentieth of a second.
        for (qsizetype fan = 0; fan < 4; ++fan)
            EXPECT_NEAR(steps[fan], (QList<double>{9, 18, 36, 36})[fan], 1e-6)
                << "fan " << fan << ", " << tick;
    }
}

/// A theme with translucent module colours is selected.
class TranslucentColors : public PanelFixture {
protected:
    void SetUp() override { themes.selectTheme(QStringLiteral("minimal")); }

    /// White at an opacity, with eight bits for each channel.
    static QColor whiteAt(double opacity) {
        return asShown(QColor::fromRgbF(1, 1, 1, static_cast<float>(opacity)));
    }
};

TEST_F(TranslucentColors, FadeFurtherInTheSymbolOfAnInterface) {
    machine.network->entries = {{.name = "en0", .isUp = true, .ipv4Address = "10.0.0.2"}};
    sample();
    ASSERT_NE(show(u"network"), nullptr);
    EXPECT_EQ(colorOf("symbol"), whiteAt(0.7 * 0.7));
}

TEST_F(TranslucentColors, FadeFurtherInTheSwatchOfTheSystemsShare) {
    ASSERT_NE(show(u"cpu"), nullptr);
    QList<QColor> shades;
    for (const QQuickItem* legend : shownItems("QQuickRowLayout")) {
        const QVariant swatch = legend->property("swatchColor");
        if (swatch.isValid())
            shades.append(asShown(swatch.value<QColor>()));
    }
    EXPECT_EQ(shades, QList<QColor>({whiteAt(0.9), whiteAt(0.9 * 0.5)}));
}

} // namespace
} // namespace orvelle
