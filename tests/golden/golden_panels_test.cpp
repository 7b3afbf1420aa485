#include "common/example_machines.h"
#include "core/system_monitor.h"
#include "golden_picture.h"
#include "snapshot/sheet.h"
#include "snapshot/sheets.h"
#include "snapshot/window_pictures.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

/// The panels' windows have the screen's scale, which a process cannot change, so the program runs once per
/// scale.
class GoldenPanels : public ::testing::Test {
protected:
    void expectGoldenPanels(ExampleMachine machine, const QString& name) {
        const auto monitor = exampleMonitor(machine, settings.store);
        const QList<WindowPicture> panels = panelPictures(*monitor, settings);
        EXPECT_EQ(panels.size(), 6);
        for (const WindowPicture& panel : panels)
            expectGoldenPicture(panel.image,
                                sheetFileName(panel.name + name, panel.image.devicePixelRatio()));
    }

    FreshSettings settings;
};

TEST_F(GoldenPanels, OfALaptopAtWork) {
    expectGoldenPanels(ExampleMachine::laptop, QStringLiteral("-laptop"));
}
TEST_F(GoldenPanels, OfALaptopAtItsLimits) {
    expectGoldenPanels(ExampleMachine::loadedLaptop, QStringLiteral("-loaded"));
}

} // namespace
} // namespace orvelle
