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
    EXPECT_FALSE(login->isEnabled());
    desktop().script.loginStatus = 1;
    EXPECT_TRUE(login->isEnabled());
    desktop().script.loginStatus = 2; // waits for the user's approval
    EXPECT_FALSE(login->isEnabled());
}

TEST_F(LoginItemTest, IsSwitchedOnAndOff) {
    EXPECT_TRUE(login->setEnabled(true));
    EXPECT_TRUE(login->isEnabled());
    EXPECT_TRUE(login->setEnabled(true)) << "it is on, whatever the system says of a second time";
    EXPECT_TRUE(login->setEnabled(false));
    EXPECT_FALSE(login->isEnabled());
    EXPECT_TRUE(login->setEnabled(false));
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
    EXPECT_TRUE(desktop().calls().empty());
}

} // namespace
} // namespace orvelle
