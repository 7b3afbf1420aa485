#include "animation/animation_clock.h"
#include "snapshot/sheets.h"
#include "snapshot/window_pictures.h"
#include "windows/settings/settings_window.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

class SettingsPicture : public ::testing::Test {
public:
    SettingsPicture() { AnimationClock::shared().setReduced(true); }
    ~SettingsPicture() override { AnimationClock::shared().setReduced(false); }

protected:
    FreshSettings settings;
    SettingsPose unfolded{
        .name = QStringLiteral("unfolded"), .size = settingsSize, .isUnfolded = true, .isWhole = true};
};

/// Of the lowest pixel that differs from the corner at the bottom; -1 when there is none.
int lowestContent(const QImage& image) {
    const QRgb ground = image.pixel(0, image.height() - 1);
    for (int y = image.height() - 1; y >= 0; --y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != ground)
                return y;
        }
    }
    return -1;
}

TEST_F(SettingsPicture, ShowsEverythingThatTheWindowScrollsTo) {
    const WindowPicture picture = settingsPicture(settings, unfolded);
    EXPECT_EQ(picture.name, unfolded.name);
    EXPECT_EQ(picture.image.width(), settingsSize.width());
    EXPECT_GT(picture.image.height(), settingsSize.height());
    // It ends with the margin below the last row, and not in the middle of something or far below.
    const int below = picture.image.height() - lowestContent(picture.image);
    EXPECT_GE(below, 16);
    EXPECT_LT(below, 30);
}

TEST_F(SettingsPicture, ShowsWhatIsSet) {
    const QImage before = settingsPicture(settings, unfolded).image;
    settings.store.setSelectedThemeId(QStringLiteral("pastel"));
    const QImage inAnotherTheme = settingsPicture(settings, unfolded).image;
    EXPECT_NE(inAnotherTheme, before);
    EXPECT_EQ(inAnotherTheme.size(), before.size());
    settings.store.setUseCustomCPUColor(true);
    EXPECT_NE(settingsPicture(settings, unfolded).image, inAnotherTheme) << "the custom colours are unfolded";
}

TEST_F(SettingsPicture, HasTheSizeOfItsPose) {
    for (const SettingsPose& pose : settingsPoses()) {
        const QImage image = settingsPicture(settings, pose).image;
        EXPECT_EQ(image.width(), pose.size.width()) << pose.name.toStdString();
        if (pose.isWhole)
            EXPECT_GT(image.height(), pose.size.height()) << pose.name.toStdString();
        else
            EXPECT_EQ(image.height(), pose.size.height()) << pose.name.toStdString();
    }
}

} // namespace
} // namespace orvelle
