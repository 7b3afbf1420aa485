#include "core/system_monitor.h"
#include "item_fixture.h"
#include "menu_bar/icon_scene.h"
#include "menu_bar/modules.h"
#include "menu_bar/scene_layout.h"
#include "platform/replay/fake_sources.h"
#include "theme/colors.h"

namespace orvelle {
namespace {

constexpr QSizeF square(22, 22);

QImage pictureOf(const SceneNode& icon, double ratio = 1) {
    return paintedImage(square, ratio,
                        [&icon](QPainter& painter) { paintIcon(painter, {{0, 0}, square}, icon); });
}

CoreBarsShape barsOf(const QList<double>& loads) {
    return std::get<CoreBarsShape>(iconBars(loads, Qt::blue).shape);
}

TEST(GroupMeansTest, KeepsNumbersThatAreFewEnough) {
    EXPECT_EQ(groupMeans({}, 6), QList<double>());
    EXPECT_EQ(groupMeans({0.25, 1}, 6), (QList<double>{0.25, 1}));
    EXPECT_EQ(groupMeans({1, 2, 3, 4, 5, 6}, 6), (QList<double>{1, 2, 3, 4, 5, 6}));
}

TEST(GroupMeansTest, JoinsNeighbours) {
    EXPECT_EQ(groupMeans({0, 1, 0, 0.5}, 2), (QList<double>{0.5, 0.25}));
    EXPECT_EQ(groupMeans({3, 1, 2, 4, 5}, 2), (QList<double>{2, 11.0 / 3})) << "two and three";
    EXPECT_EQ(groupMeans(QList<double>(1000, 0.5), 6), QList<double>(6, 0.5));
}

TEST(IconBarsTest, AreEquallyWideOnWholePixels) {
    for (qsizetype count = 1; count <= 64; ++count) {
        const CoreBarsShape bars = barsOf(QList<double>(count, 0.5));
        const QList<QRectF> places = coreBarSlots(bars.levels.size(), coreBarsFrame(bars));
        EXPECT_LE(places.size(), 6);
        EXPECT_LE(places.last().right(), 18);
        for (const QRectF& place : places) {
            EXPECT_EQ(place.left(), std::round(place.left())) << count;
            EXPECT_EQ(place.width(), places.first().width()) << count;
            EXPECT_GE(place.width(), 2) << count;
            EXPECT_LE(place.width(), 5) << count;
        }
    }
}

TEST(IconBarsTest, HaveTheColourOfTheirLoad) {
    const CoreBarsShape bars = barsOf({0.1, 0.9});
    EXPECT_EQ(bars.levels.at(0).look.color, QColor(Qt::blue));
    EXPECT_EQ(bars.levels.at(1).look.color, SystemColors::red);
}

TEST(IconPictureTest, HasADarkPlateWithRoundedCornersForAnyPanel) {
    const QImage picture = pictureOf({});
    EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0);
    EXPECT_EQ(picture.pixelColor(11, 11), QColor(30, 30, 32));
    EXPECT_EQ(paintedRect(picture), QRect(0, 0, 22, 22));
}

TEST(IconPictureTest, KeepsAMarginAroundItsContent) {
    const QImage empty = pictureOf({}, 2);
    const QList<SceneNode> icons{
        iconSymbol(QStringLiteral("cpu"), Qt::white),
        iconSymbolAndLevel(QStringLiteral("memorychip"), 1, Qt::white),
        iconDigitsAndLevel(1, Qt::white),
        iconBars(QList<double>(64, 1), Qt::white),
    };
    for (qsizetype icon = 0; icon < icons.size(); ++icon) {
        const QImage picture = pictureOf(icons[icon], 2);
        EXPECT_NE(picture, empty);
        QImage inside = picture.copy(2, 2, 40, 40);
        QImage onEmptyPlate = empty;
        QPainter painter(&onEmptyPlate);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        inside.setDevicePixelRatio(2);
        painter.drawImage(QPointF(1, 1), inside);
        painter.end();
        EXPECT_EQ(picture, onEmptyPlate) << icon << ": only the margin could differ";
    }
}

TEST(IconPictureTest, WritesWholePercentsThatAreNeverMoreThanAHundred) {
    const auto digits = [](double fraction) {
        const auto parts = std::get<ColumnShape>(iconDigitsAndLevel(fraction, Qt::blue).shape).nodes;
        return std::get<TextShape>(parts.at(0).shape).text;
    };
    EXPECT_EQ(digits(0), QStringLiteral("0"));
    EXPECT_EQ(digits(0.096), QStringLiteral("10"));
    EXPECT_EQ(digits(1.7), QStringLiteral("100"));
}

/// The icons of a machine of which nothing can be read at first, with the settings of a new user.
class ModuleIconTest : public ItemFixture {
protected:
    [[nodiscard]] IconScene icon(ModuleId module) { return makeIcon(module, {monitor, settings, themes}); }
    /// Two cores, one of them busy.
    void runOneCore() {
        machine.processor->ticks = std::vector<CoreTicks>(2);
        monitor.updateCycle();
        machine.processor->ticks->at(0).user = 100;
        machine.processor->ticks->at(1).idle = 100;
        monitor.updateCycle();
    }
    void charge(std::int64_t percent, bool isCharging) {
        machine.battery->powerSources = std::vector<std::optional<PowerSourceDescription>>{
            PowerSourceDescription{.currentCapacity = percent, .isCharging = isCharging}};
        monitor.updateCycle();
    }

    FakeMachine machine;
    SystemMonitor monitor{machine.sources(), settings};
};

TEST_F(ModuleIconTest, IsThereForEveryModule) {
    for (const ModuleInfo& module : moduleTable)
        EXPECT_NE(pictureOf(icon(module.id).body), pictureOf({})) << module.key.data();
}

TEST_F(ModuleIconTest, HasALabelThatFitsItsWidest) {
    runOneCore();
    charge(100, false);
    machine.sensor->cpuTemperature = 101;
    monitor.updateCycle();
    for (const ModuleInfo& module : moduleTable) {
        const IconScene scene = icon(module.id);
        EXPECT_LE(scene.label.size(), scene.widestLabel.size()) << module.key.data();
    }
}

TEST_F(ModuleIconTest, OfTheCPUShowsWhatTheUserChose) {
    runOneCore();
    const QColor color = themes.cpuColor(settings);
    EXPECT_EQ(icon(ModuleId::cpu).body, iconBars({1, 0}, color));
    settings.setCpuDisplayMode(SettingsStore::CPUDisplayMode::percentage);
    EXPECT_EQ(icon(ModuleId::cpu).body, iconDigitsAndLevel(0.5, color));
    EXPECT_EQ(icon(ModuleId::cpu).label, QStringLiteral("50%"));
}

TEST_F(ModuleIconTest, OfMemoryShowsTheUsedShare) {
    machine.memory->reading = MemoryReading{.pageSize = 4096, .physicalMemory = 409600, .wiredPages = 42};
    monitor.updateCycle();
    EXPECT_EQ(icon(ModuleId::memory).body,
              iconSymbolAndLevel(QStringLiteral("memorychip"), 0.42, themes.memoryColor(settings)));
    EXPECT_EQ(icon(ModuleId::memory).label, QStringLiteral("42%"));
}

TEST_F(ModuleIconTest, OfABatteryShowsItsChargeAndWhetherItIsCharged) {
    const IconScene onExternalPower = icon(ModuleId::battery);
    EXPECT_EQ(onExternalPower.label, QString());
    charge(60, false);
    const IconScene discharging = icon(ModuleId::battery);
    EXPECT_EQ(discharging.label, QStringLiteral("60%"));
    charge(60, true);
    EXPECT_NE(icon(ModuleId::battery).body, discharging.body);
}

TEST_F(ModuleIconTest, OfTheNetworkKeepsItsArrowsApart) {
    const QImage picture = pictureOf(icon(ModuleId::network).body, 2);
    const QImage empty = pictureOf({}, 2);
    EXPECT_NE(picture, empty);
    for (int y = 0; y < 44; ++y) {
        EXPECT_EQ(picture.pixel(4, y), empty.pixel(4, y)) << "neither touches the edge";
        EXPECT_EQ(picture.pixel(39, y), empty.pixel(39, y)) << "neither touches the edge";
    }
}

TEST_F(ModuleIconTest, OfTheSensorsIsOpaque) {
    machine.sensor->cpuTemperature = 45;
    monitor.updateCycle();
    const auto text = std::get<TextShape>(icon(ModuleId::sensor).body.shape);
    EXPECT_EQ(text.text, QStringLiteral("45°"));
    EXPECT_EQ(std::get<QColor>(text.color).alpha(), 255);
}

} // namespace
} // namespace orvelle
