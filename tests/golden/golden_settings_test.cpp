#include "golden_picture.h"
#include "snapshot/sheet.h"
#include "snapshot/sheets.h"
#include "snapshot/window_pictures.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

/// The settings window has the screen's scale, which a process cannot change, so the program runs once per
/// scale.
class GoldenSettings : public ::testing::Test {
protected:
    void expectGoldenSettings(const SettingsPose& pose) {
        const WindowPicture picture = settingsPicture(settings, pose);
        expectGoldenPicture(picture.image, sheetFileName(picture.name, picture.image.devicePixelRatio()));
    }

    FreshSettings settings;
};

TEST_F(GoldenSettings, OfAUserWhoHasChangedAFewThings) {
    settings.store.setShowSensors(true);
    settings.store.setGraphLineStyle(GraphLineStyle::dotted);
    settings.store.setMenuBarDisplayStyle(MenuBarDisplayStyle::sparkline);
    settings.store.setUseCustomCPUColor(true);
    settings.store.setCustomCPUColorHex(QStringLiteral("#FF8000"));
    for (const SettingsPose& pose : settingsPoses())
        expectGoldenSettings(pose);
}

} // namespace
} // namespace orvelle
