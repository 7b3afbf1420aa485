#include "app/menu_bar_items/battery_menu_bar_item.h"
#include "app/menu_bar_items/cpu_menu_bar_item.h"
#include "app/menu_bar_items/disk_menu_bar_item.h"
#include "app/menu_bar_items/memory_menu_bar_item.h"
#include "app/menu_bar_items/network_menu_bar_item.h"
#include "app/menu_bar_items/sensor_menu_bar_item.h"
#include "core/system_monitor.h"
#include "item_fixture.h"
#include "platform/fixed/fixed_machine.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <random>

namespace orvelle {
namespace {

/// The largest difference between two pictures in any of their colours, 0 to 255.
int largestDifference(const QImage& left, const QImage& right) {
    int largest = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            const QRgb one = left.pixel(x, y);
            const QRgb other = right.pixel(x, y);
            largest =
                std::max({largest, std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                          std::abs(qBlue(one) - qBlue(other)), std::abs(qAlpha(one) - qAlpha(other))});
        }
    }
    return largest;
}

/// The items of all modules over many samples of a machine whose values wander, often by little.
class UnchangedPictures : public ItemFixture {
protected:
    void sample() {
        for (CoreTicks& core : ticks) {
            const auto busy = static_cast<std::uint64_t>(from(0, 200));
            core.user += busy;
            core.idle += 1000 - busy;
        }
        machine.processor->ticks = ticks;
        machine.memory->reading = MemoryReading{.pageSize = 4096,
                                                .physicalMemory = 4096 * 100000,
                                                .wiredPages = static_cast<std::uint64_t>(from(50000, 50400))};
        machine.sensor->cpuTemperature = static_cast<double>(from(40, 42));
        machine.battery->powerSources = std::vector<std::optional<PowerSourceDescription>>{
            PowerSourceDescription{.currentCapacity = from(50, 51), .isCharging = from(0, 1) == 1}};
        monitor.updateCycle();
    }
    [[nodiscard]] std::int64_t from(std::int64_t least, std::int64_t most) {
        return std::uniform_int_distribution<std::int64_t>(least, most)(random);
    }

    [[nodiscard]] std::map<std::string, std::unique_ptr<StatusItemView>> makeItems() {
        std::map<std::string, std::unique_ptr<StatusItemView>> items;
        items["cpu"] = std::make_unique<CPUMenuBarItem>(monitor.cpu(), settings, themes);
        items["memory"] = std::make_unique<MemoryMenuBarItem>(monitor.memory(), settings, themes);
        items["network"] = std::make_unique<NetworkMenuBarItem>(monitor.network(), settings, themes);
        items["disk"] = std::make_unique<DiskMenuBarItem>(monitor.disk(), settings, themes);
        items["battery"] = std::make_unique<BatteryMenuBarItem>(monitor.battery(), settings, themes);
        items["sensor"] = std::make_unique<SensorMenuBarItem>(monitor.sensor(), settings, themes);
        return items;
    }

    std::mt19937 random{7};
    std::vector<CoreTicks> ticks = std::vector<CoreTicks>(4);
    FixedMachine machine;
    SystemMonitor monitor{machine.sources(), settings};
};

TEST_F(UnchangedPictures, LookTheSameWheneverTheirKeysAreTheSame) {
    constexpr int visibleDifference = 40;
    const auto items = makeItems();
    for (const MenuBarDisplayStyle style : allDisplayStyles) {
        settings.setMenuBarDisplayStyle(style);
        std::map<std::string, std::pair<std::string, QImage>> before;
        int sameCount = 0;
        int otherCount = 0;
        for (int round = 0; round < 30; ++round) {
            sample();
            for (const auto& [name, item] : items) {
                const std::string key = item->picture(item->bars().looks).key;
                const QImage image = picture(*item, 90);
                auto& [keyBefore, imageBefore] = before[name];
                if (key == keyBefore) {
                    ++sameCount;
                    EXPECT_LE(largestDifference(image, imageBefore), visibleDifference)
                        << name << " in style " << static_cast<int>(style);
                } else {
                    ++otherCount;
                    keyBefore = key;
                    imageBefore = image;
                }
            }
        }
        EXPECT_GT(sameCount, 30) << "style " << static_cast<int>(style);
        EXPECT_GT(otherCount, 10) << "style " << static_cast<int>(style);
    }
}

} // namespace
} // namespace orvelle
