#include "core/system_monitor.h"
#include "item_fixture.h"
#include "menu_bar/modules.h"
#include "platform/replay/fake_sources.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <random>

namespace orvelle {
namespace {

/// The largest difference between two pictures in any colour channel, 0 to 255.
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

/// Checks the items of all modules over many samples with wandering values, which often change little.
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

    std::mt19937 random{7};
    std::vector<CoreTicks> ticks = std::vector<CoreTicks>(4);
    FakeMachine machine;
    SystemMonitor monitor{machine.sources(), settings};
};

TEST_F(UnchangedPictures, LookTheSameWheneverTheirScenesAreEqual) {
    constexpr int visibleDifference = 40;
    for (const MenuBarDisplayStyle style : allDisplayStyles) {
        settings.setMenuBarDisplayStyle(style);
        std::map<QLatin1StringView, std::pair<SceneNode, QImage>> before;
        int sameCount = 0;
        int otherCount = 0;
        for (int round = 0; round < 30; ++round) {
            sample();
            for (const ModuleInfo& module : moduleTable) {
                const SceneNode scene = makeScene(module.id, {monitor, settings, themes}).body;
                const QImage image = picture(scene, 90);
                auto& [sceneBefore, imageBefore] = before[module.key];
                if (scene == sceneBefore) {
                    ++sameCount;
                    EXPECT_LE(largestDifference(image, imageBefore), visibleDifference)
                        << module.key.data() << " in style " << static_cast<int>(style);
                } else {
                    ++otherCount;
                    sceneBefore = scene;
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
