#include "core/system_monitor.h"
#include "item_fixture.h"
#include "menu_bar/battery_menu_bar_item.h"
#include "menu_bar/cpu_menu_bar_item.h"
#include "menu_bar/disk_menu_bar_item.h"
#include "menu_bar/memory_menu_bar_item.h"
#include "menu_bar/network_menu_bar_item.h"
#include "menu_bar/sensor_menu_bar_item.h"
#include "platform/replay/fake_sources.h"
#include "support/written_texts.h"

namespace orvelle {
namespace {

using enum MenuBarDisplayStyle;

/// Checks the texts that the items paint, as the painter receives them.
class WrittenValues : public ItemFixture {
protected:
    void SetUp() override {
        machine.processor->ticks = std::vector<CoreTicks>{{.idle = 100}};
        machine.memory->reading = {.pageSize = 1, .physicalMemory = 100, .wiredPages = 42};
        machine.disk->volumes = {{.path = "/", .isLocal = true, .totalBytes = 100, .freeBytes = 29}};
        machine.network->entries = {{.name = "eth0", .isUp = true}};
        machine.battery->powerSources = {{PowerSourceDescription{.currentCapacity = 63}}};
        machine.sensor->cpuTemperature = 65;
        monitor.updateCycle();
        machine.clock.advance(std::chrono::seconds(1));
        machine.processor->ticks = std::vector<CoreTicks>{{.user = 45, .idle = 155}};
        machine.network->entries = {{.name = "eth0", .isUp = true, .bytesIn = 300, .bytesOut = 2048}};
        monitor.updateCycle();
    }

    template <class Item>
    [[nodiscard]] QList<WrittenText> writtenIn(MenuBarDisplayStyle style, const Item& item) {
        settings.setMenuBarDisplayStyle(style);
        return writtenTexts([&](QPainter& painter) {
            paintScene(painter, {0, 0, 200, barHeight}, item.body().body, BarAppearance::dark);
        });
    }
    /// A value in the usual font of all items: monospaced and medium.
    [[nodiscard]] static WrittenText value(const char16_t* text, int pixelSize,
                                           const QColor& color = Qt::white) {
        return {QString::fromUtf16(text), pixelSize, QFont::Medium, true, color};
    }
    [[nodiscard]] static QColor white(int alpha) { return {255, 255, 255, alpha}; }

    FakeMachine machine;
    SystemMonitor monitor{machine.sources(), settings};
};

TEST_F(WrittenValues, OfTheProcessorAreOfSizeEleven) {
    const CPUMenuBarItem item(monitor.cpu(), settings, themes);
    const QList<WrittenText> expected{value(u"45%", 11)};
    EXPECT_EQ(writtenIn(textOnly, item), expected);
    EXPECT_EQ(writtenIn(iconAndText, item), expected);
    for (const MenuBarDisplayStyle style : {miniBars, sparkline, dotIndicator})
        EXPECT_TRUE(writtenIn(style, item).isEmpty());
}

TEST_F(WrittenValues, OfTheMemoryAreOfSizeElevenAndOfTenBesideTheBar) {
    const MemoryMenuBarItem item(monitor.memory(), settings, themes);
    EXPECT_EQ(writtenIn(miniBars, item), QList<WrittenText>{value(u"42%", 10)});
    EXPECT_EQ(writtenIn(textOnly, item), QList<WrittenText>{value(u"42%", 11)});
    EXPECT_EQ(writtenIn(iconAndText, item), QList<WrittenText>{value(u"42%", 11)});
}

TEST_F(WrittenValues, OfTheDiskAreOfSizeEleven) {
    const DiskMenuBarItem item(monitor.disk(), settings, themes);
    EXPECT_EQ(writtenIn(textOnly, item), QList<WrittenText>{value(u"71%", 11)});
    EXPECT_EQ(writtenIn(iconAndText, item), QList<WrittenText>{value(u"71%", 11)});
    EXPECT_TRUE(writtenIn(miniBars, item).isEmpty());
}

TEST_F(WrittenValues, OfTheBatteryAreOfSizeElevenAloneAndOfTenBesideTheGlyph) {
    const BatteryMenuBarItem item(monitor.battery(), settings, themes);
    EXPECT_EQ(writtenIn(textOnly, item), QList<WrittenText>{value(u"63%", 11)});
    EXPECT_EQ(writtenIn(miniBars, item), QList<WrittenText>{value(u"63%", 10)});
    EXPECT_EQ(writtenIn(iconAndText, item), QList<WrittenText>{value(u"63%", 10)});
    machine.battery->powerSources.emplace();
    monitor.updateCycle();
    EXPECT_EQ(writtenIn(textOnly, item), QList<WrittenText>{value(u"AC", 10)});
}

TEST_F(WrittenValues, OfTheTemperatureAreOfSizeTenInItsColour) {
    const SensorMenuBarItem item(monitor.sensor(), settings, themes);
    const QList<WrittenText> expected{value(u"65°", 10, QColor(255, 214, 10))};
    for (const MenuBarDisplayStyle style : {miniBars, textOnly, iconAndText})
        EXPECT_EQ(writtenIn(style, item), expected);
}

TEST_F(WrittenValues, OfAnUnknownTemperatureAreInTheSecondaryColour) {
    FakeMachine other;
    SystemMonitor without(other.sources(), settings);
    const SensorMenuBarItem item(without.sensor(), settings, themes);
    EXPECT_EQ(writtenIn(textOnly, item), QList<WrittenText>{value(u"--°", 10, white(140))});
}

TEST_F(WrittenValues, OfTheNetworkAreTheUploadAboveTheDownloadInSizeEight) {
    const NetworkMenuBarItem item(monitor.network(), settings, themes);
    EXPECT_EQ(writtenIn(textOnly, item),
              (QList<WrittenText>{value(u"2.0K", 8, white(179)), value(u"300B", 8, white(179))}));
    const QList<WrittenText> pair{{QStringLiteral("2.0K"), 8, QFont::Normal, true, white(204)},
                                  {QStringLiteral("300B"), 8, QFont::Normal, true, white(204)}};
    EXPECT_EQ(writtenIn(iconAndText, item), pair);
    EXPECT_EQ(writtenIn(miniBars, item), pair);
}

} // namespace
} // namespace orvelle
