#include "core/system_monitor.h"
#include "item_fixture.h"
#include "menu_bar/battery_menu_bar_item.h"
#include "menu_bar/cpu_menu_bar_item.h"
#include "menu_bar/memory_menu_bar_item.h"
#include "menu_bar/sensor_menu_bar_item.h"
#include "platform/replay/fake_sources.h"
#include "theme/colors.h"

#include <cstdlib>

namespace orvelle {
namespace {

/// Whether two colours are equal apart from the rounding of translucent pixels.
bool isNear(const QColor& left, const QColor& right) {
    constexpr int tolerance = 6;
    return std::abs(left.red() - right.red()) <= tolerance &&
           std::abs(left.green() - right.green()) <= tolerance &&
           std::abs(left.blue() - right.blue()) <= tolerance &&
           std::abs(left.alpha() - right.alpha()) <= tolerance;
}

/// Checks the pixels of the items at one and at two pixels per point.
class ItemsAtScale : public ItemFixture, public ::testing::WithParamInterface<double> {
protected:
    /// The item in the middle of a place that is wide enough for it.
    template <class Item>
    [[nodiscard]] QImage shown(const Item& item, MenuBarDisplayStyle style) {
        settings.setMenuBarDisplayStyle(style);
        return unscaled(picture(item, 100, GetParam()));
    }

    /// Adds a sample in which the cores were busy for these shares (of 10000) of the time.
    [[nodiscard]] QImage cores(const std::vector<std::uint64_t>& loads, MenuBarDisplayStyle style) {
        std::vector<CoreTicks> ticks(loads.size());
        for (std::size_t core = 0; core < loads.size(); ++core)
            ticks[core] = {.user = loads[core], .idle = 10000 - loads[core]};
        machine.processor->ticks = std::vector<CoreTicks>(loads.size());
        monitor.cpu().updateUsage();
        machine.processor->ticks = ticks;
        monitor.cpu().updateUsage();
        return shown(CPUMenuBarItem(monitor.cpu(), settings, themes), style);
    }

    [[nodiscard]] QImage memoryDots(std::uint64_t usedPercent) {
        machine.memory->reading =
            MemoryReading{.pageSize = 4096, .physicalMemory = 409600, .wiredPages = usedPercent};
        monitor.memory().update();
        return shown(MemoryMenuBarItem(monitor.memory(), settings, themes),
                     MenuBarDisplayStyle::dotIndicator);
    }

    [[nodiscard]] QImage temperatureDots(double celsius) {
        machine.sensor->cpuTemperature = celsius;
        monitor.sensor().update();
        return shown(SensorMenuBarItem(monitor.sensor(), settings, themes),
                     MenuBarDisplayStyle::dotIndicator);
    }

    [[nodiscard]] QImage batteryGlyph(std::int64_t percent, bool isCharging) {
        machine.battery->powerSources = std::vector<std::optional<PowerSourceDescription>>{
            PowerSourceDescription{.currentCapacity = percent, .isCharging = isCharging}};
        monitor.battery().update();
        return shown(BatteryMenuBarItem(monitor.battery(), settings, themes), MenuBarDisplayStyle::miniBars);
    }

    FakeMachine machine;
    SystemMonitor monitor{machine.sources(), settings};
};

INSTANTIATE_TEST_SUITE_P(, ItemsAtScale, ::testing::Values(1.0, 2.0));

/// The colours of the last `count` painted stretches in the middle row, from left to right.
QList<QColor> lastDots(const QImage& image, qsizetype count) {
    QList<QColor> dots;
    const int middle = image.height() / 2;
    for (int x = image.width() - 1, end = -1; x >= 0 && dots.size() < count; --x) {
        const bool isPainted = qAlpha(image.pixel(x, middle)) > 0;
        end = isPainted && end < 0 ? x : end;
        if (isPainted || end < 0)
            continue;
        dots.prepend(image.pixelColor((x + 1 + end) / 2, middle));
        end = -1;
    }
    return dots;
}

void expectColors(const QList<QColor>& actual, const QList<QColor>& expected) {
    ASSERT_EQ(actual.size(), expected.size());
    for (qsizetype index = 0; index < actual.size(); ++index)
        EXPECT_TRUE(isNear(actual.at(index), expected.at(index)))
            << "dot " << index << " is " << actual.at(index).name(QColor::HexArgb).toStdString();
}

TEST_P(ItemsAtScale, BarsOfSixteenBusyCoresStandApartInFortyTwoPoints) {
    const QImage image = cores(std::vector<std::uint64_t>(16, 10000), MenuBarDisplayStyle::miniBars);
    const int width = static_cast<int>(42 * GetParam());
    const int left = static_cast<int>((50 - 57.0 / 2 + 12 + 3) * GetParam());
    EXPECT_EQ(countRuns(image, image.height() / 2, left - 1, left + width + 1), 16);
    EXPECT_NEAR(paintedRect(image).right() + 1, left + width, 1);
}

TEST_P(ItemsAtScale, BarsOfEightCoresHaveSharpSides) {
    const QImage image = cores(std::vector<std::uint64_t>(8, 10000), MenuBarDisplayStyle::miniBars);
    const int bottom = static_cast<int>((11 + 7) * GetParam()) - 1;
    const int afterTheIcon = static_cast<int>((50 - 43.0 / 2 + 12 + 1) * GetParam());
    EXPECT_EQ(countRuns(image, bottom - 3, afterTheIcon, image.width()), 8);
    for (int x = afterTheIcon; x < image.width(); ++x) {
        const int alpha = qAlpha(image.pixel(x, bottom - 3));
        EXPECT_TRUE(alpha == 0 || alpha == 255) << "at " << x << " of opacity " << alpha;
    }
}

TEST_P(ItemsAtScale, BarsOfVeryManyCoresFillTheirFrame) {
    const QImage image = cores(std::vector<std::uint64_t>(64, 10000), MenuBarDisplayStyle::miniBars);
    const int left = static_cast<int>((50 - 57.0 / 2 + 12 + 3) * GetParam()) + 1;
    for (int x = left; x < left + static_cast<int>(41 * GetParam()); ++x)
        EXPECT_GT(qAlpha(image.pixel(x, image.height() / 2)), 60) << "at " << x;
}

TEST_P(ItemsAtScale, CoreDotsShowTheLoadUpToItsLimits) {
    const QColor color = themes.cpuColor(settings);
    const QImage image = cores({2999, 3000, 5999, 6000, 7999, 8000}, MenuBarDisplayStyle::dotIndicator);
    expectColors(lastDots(image, 6), {withOpacity(color, 0.3), withOpacity(color, 0.6),
                                      withOpacity(color, 0.6), color, color, SystemColors::red});
}

TEST_P(ItemsAtScale, SixteenCoresHaveEightDots) {
    const QImage image = cores(std::vector<std::uint64_t>(16, 10000), MenuBarDisplayStyle::dotIndicator);
    expectColors(lastDots(image, 8), QList<QColor>(8, SystemColors::red));
    EXPECT_NE(lastDots(image, 9).first(), SystemColors::red) << "before the dots stands the icon";
}

TEST_P(ItemsAtScale, FullMemoryLightsAllDotsAndLessThanFullDoesNot) {
    const QColor color = themes.memoryColor(settings);
    expectColors(lastDots(memoryDots(99), 5), {color, color, color, color, withOpacity(color, 0.2)});
    expectColors(lastDots(memoryDots(100), 5), QList<QColor>(5, color));
}

TEST_P(ItemsAtScale, AHundredDegreesLightAllDotsAndThirtyNineLightOne) {
    const QList<QColor> colors = {SystemColors::green, SystemColors::green, SystemColors::yellow,
                                  SystemColors::orange, SystemColors::red};
    expectColors(lastDots(temperatureDots(100), 5), colors);
    QList<QColor> one = {colors.first()};
    for (const QColor& color : colors.sliced(1))
        one.append(withOpacity(color, 0.15));
    expectColors(lastDots(temperatureDots(39), 5), one);
}

TEST_P(ItemsAtScale, TheBatteryIsFilledInTheColourOfItsCharge) {
    const QColor color = themes.batteryColor(settings);
    for (const auto& [percent, isCharging, expected] : {std::tuple{20, false, SystemColors::red},
                                                        {21, false, SystemColors::yellow},
                                                        {40, false, SystemColors::yellow},
                                                        {41, false, color},
                                                        {20, true, SystemColors::green}})
        EXPECT_GT(countPixels(batteryGlyph(percent, isCharging), expected), 8) << percent;
}

} // namespace
} // namespace orvelle
