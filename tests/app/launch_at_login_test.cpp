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
    bool isForbidden = false; ///< an enabled one waits for the user's approval
    bool isWritable = true;
    int requests = 0;
    int repairs = 0;
    int writes = 0;
};

class ScriptedItem final : public LoginItem {
public:
    explicit ScriptedItem(ItemState& state)
        : m_state(state) {}
    [[nodiscard]] LoginItemState state() const override {
        if (m_state.isEnabled && m_state.isForbidden)
            return LoginItemState::needsApproval;
        return m_state.isEnabled ? LoginItemState::on : LoginItemState::off;
    }
    void askForApproval() override { ++m_state.requests; }
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

TEST_F(LaunchAtLoginTest, StaysSwitchedOnWhileItWaitsForTheUsersApproval) {
    launch.start();
    const QSignalSpy changes(&launch, &LaunchAtLogin::needsApprovalChanged);
    state.isForbidden = true;
    settings.setLaunchAtLogin(true);
    EXPECT_TRUE(settings.launchAtLogin());
    EXPECT_TRUE(launch.needsApproval());
    EXPECT_EQ(launch.error(), QString());
    launch.askForApproval();
    EXPECT_EQ(state.requests, 1);

    launch.checkApproval();
    EXPECT_TRUE(launch.needsApproval()) << "nothing has happened";
    state.isForbidden = false;
    launch.checkApproval();
    EXPECT_FALSE(launch.needsApproval());
    EXPECT_TRUE(settings.launchAtLogin());
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(LaunchAtLoginTest, NeedsNoApprovalOnceItIsSwitchedOff) {
    launch.start();
    state.isForbidden = true;
    settings.setLaunchAtLogin(true);
    settings.setLaunchAtLogin(false);
    EXPECT_FALSE(launch.needsApproval());
    EXPECT_FALSE(state.isEnabled);
}

TEST_F(LaunchAtLoginTest, KeepsTheUsersWishWhenItStartsWithoutApproval) {
    state = {.isEnabled = true, .isForbidden = true};
    launch.start();
    EXPECT_FALSE(settings.launchAtLogin()) << "an item that was never wished for";
    EXPECT_FALSE(launch.needsApproval());
    settings.setLaunchAtLogin(true);
    EXPECT_TRUE(launch.needsApproval());
    LaunchAtLogin next(settings, std::make_unique<ScriptedItem>(state));
    next.start();
    EXPECT_TRUE(settings.launchAtLogin());
    EXPECT_TRUE(next.needsApproval());
}

TEST_F(LaunchAtLoginTest, FollowsTheUserWhoRemovesTheWaitingItem) {
    launch.start();
    state.isForbidden = true;
    settings.setLaunchAtLogin(true);
    state.isEnabled = false;
    launch.checkApproval();
    EXPECT_FALSE(settings.launchAtLogin());
    EXPECT_FALSE(launch.needsApproval());
}

} // namespace
} // namespace orvelle
