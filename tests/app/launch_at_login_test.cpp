#include "app/launch_at_login.h"
#include "settings/settings_store.h"
#include "support/temporary_settings.h"

#include <QFile>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

struct ItemState {
    bool isEnabled = false;
    bool isWritable = true;
    int repairs = 0;
    int writes = 0;
};

class ScriptedItem final : public LoginItem {
public:
    explicit ScriptedItem(ItemState& state)
        : m_state(state) {}
    [[nodiscard]] bool isEnabled() const override { return m_state.isEnabled; }
    [[nodiscard]] bool setEnabled(bool enabled) override {
        ++m_state.writes;
        if (m_state.isWritable)
            m_state.isEnabled = enabled;
        return m_state.isWritable;
    }
    void repair() override { ++m_state.repairs; }

private:
    ItemState& m_state;
};

class LaunchAtLoginTest : public ::testing::Test {
protected:
    TemporarySettings file;
    QString path = file.path();
    SettingsStore settings{path};
    ItemState state;
    LaunchAtLogin launch{settings, std::make_unique<ScriptedItem>(state)};
};

TEST_F(LaunchAtLoginTest, StartsWithTheStateOfTheDesktop) {
    state.isEnabled = true;
    launch.start();
    EXPECT_TRUE(settings.launchAtLogin());
    EXPECT_EQ(state.repairs, 1);
    EXPECT_EQ(state.writes, 0);
}

TEST_F(LaunchAtLoginTest, StartsSwitchedOffWhenTheUserDidSoOnTheDesktop) {
    settings.setLaunchAtLogin(true);
    launch.start();
    EXPECT_FALSE(settings.launchAtLogin());
    EXPECT_EQ(state.writes, 0);
}

TEST_F(LaunchAtLoginTest, StoresNothingWhenNothingDiffers) {
    launch.start();
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(LaunchAtLoginTest, TheLoginItemFollowsTheSetting) {
    launch.start();
    settings.setLaunchAtLogin(true);
    EXPECT_TRUE(state.isEnabled);
    settings.setLaunchAtLogin(false);
    EXPECT_FALSE(state.isEnabled);
    EXPECT_EQ(state.writes, 2);
    EXPECT_EQ(launch.error(), QString());
}

TEST_F(LaunchAtLoginTest, RevertsTheSettingAndReportsWhyUntilItSucceeds) {
    launch.start();
    QSignalSpy errors(&launch, &LaunchAtLogin::errorChanged);
    state.isWritable = false;
    settings.setLaunchAtLogin(true);
    EXPECT_FALSE(settings.launchAtLogin());
    EXPECT_EQ(launch.error(), QStringLiteral("Orvelle could not be made to start at login."));
    EXPECT_EQ(errors.count(), 1);
    state.isWritable = true;
    settings.setLaunchAtLogin(true);
    EXPECT_TRUE(settings.launchAtLogin());
    EXPECT_EQ(launch.error(), QString());

    state.isWritable = false;
    settings.setLaunchAtLogin(false);
    EXPECT_TRUE(settings.launchAtLogin());
    EXPECT_EQ(launch.error(), QStringLiteral("Orvelle could not be kept from starting at login."));
}

} // namespace
} // namespace orvelle
