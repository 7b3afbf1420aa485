#include "appkit/program.h"
#include "shell/macos/macos_desktop.h"

namespace orvelle {
namespace {

using namespace simulated;

class LoginItemTest : public AppKitTest {
protected:
    std::unique_ptr<LoginItem> login = makeMacosLoginItem();
};

TEST_F(LoginItemTest, ReportsTheStateThatTheSystemKeeps) {
    const std::map<long, LoginItemState> states{{0, LoginItemState::off},
                                                {1, LoginItemState::on},
                                                {2, LoginItemState::needsApproval},
                                                {3, LoginItemState::off}};
    for (const auto& [status, state] : states) {
        desktop().script.loginStatus = status;
        EXPECT_EQ(login->state(), state) << status;
    }
}

TEST_F(LoginItemTest, IsSwitchedOnAndOff) {
    EXPECT_TRUE(login->setEnabled(true));
    EXPECT_TRUE(login->isEnabled());
    EXPECT_TRUE(login->setEnabled(true)) << "it is on, whatever the system says of a second time";
    EXPECT_TRUE(login->setEnabled(false));
    EXPECT_FALSE(login->isEnabled());
    EXPECT_TRUE(login->setEnabled(false));
}

TEST_F(LoginItemTest, IsSwitchedOnAndOffWhereItNeedsTheUsersApproval) {
    desktop().script.loginNeedsApproval = true;
    EXPECT_TRUE(login->setEnabled(true));
    EXPECT_EQ(login->state(), LoginItemState::needsApproval);
    EXPECT_TRUE(login->setEnabled(true));
    EXPECT_TRUE(login->setEnabled(false));
    EXPECT_EQ(login->state(), LoginItemState::off);
}

TEST_F(LoginItemTest, OpensTheSystemsSettingsForTheApproval) {
    login->askForApproval();
    EXPECT_EQ(desktop().deeds, std::vector<std::string>{"open the system's login items"});
}

TEST_F(LoginItemTest, ReportsFailureWhenTheSystemRefuses) {
    desktop().script.mayRegisterLogin = false;
    EXPECT_FALSE(login->setEnabled(true));
    EXPECT_FALSE(login->isEnabled());
}

TEST_F(LoginItemTest, CannotBeSwitchedOnWhereTheServiceIsMissing) {
    desktop().script.hasLoginService = false;
    EXPECT_FALSE(login->isEnabled());
    EXPECT_FALSE(login->setEnabled(true));
    EXPECT_FALSE(login->setEnabled(false));
    login->askForApproval();
    EXPECT_TRUE(desktop().calls().empty());
    EXPECT_TRUE(desktop().deeds.empty());
}

} // namespace
} // namespace orvelle
