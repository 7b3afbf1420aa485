#include "common/example_machines.h"
#include "core/system_monitor.h"
#include "golden_picture.h"
#include "snapshot/sheet.h"
#include "snapshot/sheets.h"
#include "theme/fonts.h"

#include <QFontInfo>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

class GoldenPictures : public ::testing::TestWithParam<double> {
protected:
    void expectGolden(Sheet sheet) const {
        // A light background would show too little more to justify another picture.
        sheet.backgrounds = {SheetBackground::dark};
        expectGoldenAsItIs(sheet);
    }

    static void expectGoldenAsItIs(const Sheet& sheet) {
        expectGoldenPicture(sheetImage(sheet, GetParam()), sheetFileName(sheet.name, GetParam()));
    }

    void expectGoldenItems(ExampleMachine machine, const QString& name,
                           BarAppearance appearance = BarAppearance::dark) {
        const auto monitor = exampleMonitor(machine, settings.store);
        Sheet sheet = menuBarItemSheet(*monitor, settings, appearance);
        sheet.name += name;
        expectGoldenAsItIs(sheet);
    }

    FreshSettings settings;
};

INSTANTIATE_TEST_SUITE_P(, GoldenPictures, ::testing::Values(1.0, 2.0));

TEST_P(GoldenPictures, AreWrittenInTheFontsThatEveryMachineHas) {
    EXPECT_EQ(QFontInfo(systemFont(10)).family(), QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(QFontInfo(roundedSystemFont(10)).family(), QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(QFontInfo(monospacedSystemFont(10)).family(), QStringLiteral("DejaVu Sans Mono"));
}

TEST_P(GoldenPictures, OfBarCharts) {
    expectGolden(barChartSheet());
}
TEST_P(GoldenPictures, OfMiniBars) {
    expectGolden(miniBarSheet());
}
TEST_P(GoldenPictures, OfLineGraphs) {
    expectGolden(lineGraphSheet());
}
TEST_P(GoldenPictures, OfSparklines) {
    expectGolden(sparklineSheet());
}
TEST_P(GoldenPictures, OfRingCharts) {
    expectGolden(ringChartSheet());
}
TEST_P(GoldenPictures, OfSegmentRings) {
    expectGolden(segmentRingSheet());
}
TEST_P(GoldenPictures, OfTemperatureGauges) {
    expectGolden(temperatureGaugeSheet());
}
TEST_P(GoldenPictures, OfTheMenuBarOfALaptopAtWork) {
    expectGoldenItems(ExampleMachine::laptop, QStringLiteral("-laptop"));
}
TEST_P(GoldenPictures, OfTheMenuBarOfALaptopAtItsLimits) {
    expectGoldenItems(ExampleMachine::loadedLaptop, QStringLiteral("-loaded"));
}
TEST_P(GoldenPictures, OfTheMenuBarOfABareComputer) {
    expectGoldenItems(ExampleMachine::bareComputer, QStringLiteral("-bare"));
}

TEST_P(GoldenPictures, OfALightMenuBar) {
    expectGoldenItems(ExampleMachine::laptop, QStringLiteral("-laptop"), BarAppearance::light);
}

TEST_P(GoldenPictures, OfTheIconsInALightTray) {
    const auto monitor = exampleMonitor(ExampleMachine::laptop, settings.store);
    Sheet sheet = trayIconSheet(*monitor, settings);
    sheet.backgrounds = {SheetBackground::light};
    expectGoldenAsItIs(sheet);
}

} // namespace
} // namespace orvelle
