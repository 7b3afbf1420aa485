#include "common/example_machines.h"
#include "core/system_monitor.h"
#include "look/fonts.h"
#include "picture_comparison.h"
#include "snapshot/sheet_file.h"
#include "snapshot/sheets.h"

#include <QDir>
#include <QFontInfo>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

/// Where the golden pictures are, and where a picture that differs from its golden one is written.
const QString goldenDirectory = QStringLiteral(ORVELLE_GOLDEN_DIRECTORY);
const QString failureDirectory = QStringLiteral(ORVELLE_GOLDEN_FAILURE_DIRECTORY);

bool isBlessing() {
    return qEnvironmentVariableIsSet("ORVELLE_BLESS");
}

void compareWithGolden(const Sheet& sheet, double scale) {
    const QString name = sheetFileName(sheet.name, scale);
    const QString goldenPath = QDir(goldenDirectory).filePath(name);
    const QImage actual = sheetImage(sheet, scale);
    const QImage golden(goldenPath);
    const PictureDifference difference = compare(actual, golden);
    if (difference.isNone())
        return;
    QDir().mkpath(failureDirectory);
    const QString actualPath = QDir(failureDirectory).filePath(QStringLiteral("actual-") + name);
    const QString differencePath = QDir(failureDirectory).filePath(QStringLiteral("difference-") + name);
    EXPECT_TRUE(actual.save(actualPath));
    EXPECT_TRUE(differencePicture(actual, golden).save(differencePath));
    const QRect& area = difference.area;
    ADD_FAILURE() << "golden:     " << qPrintable(goldenPath) << "\nactual:     " << qPrintable(actualPath)
                  << "\ndifference: " << qPrintable(differencePath) << "\n"
                  << (difference.sizesDiffer ? "The sizes differ or there is no golden picture. " : "")
                  << difference.pixelCount << " pixels differ, by up to " << difference.largest << ", within "
                  << area.width() << "x" << area.height() << "+" << area.x() << "+" << area.y()
                  << ".\nIf the new picture is right, run tests/golden/bless.sh and commit what it writes.";
}

class GoldenPictures : public ::testing::TestWithParam<double> {
protected:
    /// Compares, or takes the present picture as the golden one.
    void expectGolden(Sheet sheet) const {
        // What the light background would show besides the dark one is not worth another picture.
        sheet.backgrounds = {SheetBackground::dark};
        if (isBlessing()) {
            EXPECT_FALSE(writeSheets({sheet}, goldenDirectory, GetParam())) << qPrintable(sheet.name);
        }
        compareWithGolden(sheet, GetParam());
    }

    void expectGoldenItems(ExampleMachine machine, const QString& name) {
        const auto monitor = exampleMonitor(machine, settings.store);
        Sheet sheet = menuBarItemSheet(*monitor, settings);
        sheet.name += name;
        expectGolden(sheet);
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

} // namespace
} // namespace orvelle
