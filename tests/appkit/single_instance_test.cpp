#include "appkit/program.h"
#include "shell/macos/macos_desktop.h"

#include <QCoreApplication>
#include <QSignalSpy>

namespace orvelle {
namespace {

using namespace simulated;

class SingleInstanceTest : public AppKitTest {};

TEST_F(SingleInstanceTest, IsHeldWhenNoOtherProcessRuns) {
    EXPECT_NE(becomeSingleMacosInstance(), nullptr);
    EXPECT_TRUE(desktop().deeds.empty());
}

TEST_F(SingleInstanceTest, IsNotHeldByASecondProcessWhichNotifiesTheFirst) {
    desktop().script.instances = {{.processIdentifier = 499}, {.processIdentifier = 500}};
    EXPECT_EQ(becomeSingleMacosInstance(), nullptr);
    EXPECT_EQ(desktop().deeds, std::vector<std::string>{"open the program's bundle"});
}

TEST_F(SingleInstanceTest, IgnoresAProcessThatHasEnded) {
    desktop().script.instances = {{.processIdentifier = 499, .isTerminated = true},
                                  {.processIdentifier = 500}};
    EXPECT_NE(becomeSingleMacosInstance(), nullptr);
}

TEST_F(SingleInstanceTest, IsAlwaysHeldOutsideABundle) {
    desktop().script.bundleIdentifier.reset();
    desktop().script.instances = {{.processIdentifier = 499}};
    EXPECT_NE(becomeSingleMacosInstance(), nullptr);
}

TEST_F(SingleInstanceTest, ReportsLaterStartsOnceItsLoopRuns) {
    std::unique_ptr<SingleInstance> instance = becomeSingleMacosInstance();
    ASSERT_NE(instance, nullptr);
    const QSignalSpy startedAgain(instance.get(), &SingleInstance::startedAgain);
    openProgramAgain();
    EXPECT_EQ(startedAgain.size(), 0) << "the application object would take the event back";
    QCoreApplication::processEvents();
    openProgramAgain();
    openProgramAgain();
    EXPECT_EQ(startedAgain.size(), 2);
    instance.reset();
    openProgramAgain();
    EXPECT_EQ(startedAgain.size(), 2);
}

TEST_F(SingleInstanceTest, NeedsNoSearchForADesktop) {
    const DesktopChoice choice = chooseDesktop(desktopNames().first());
    EXPECT_TRUE(choice.error.isEmpty());
    EXPECT_TRUE(choice.make);
}

TEST_F(SingleInstanceTest, LeavesTheKeyboardToTheProgramThatHasItWhenItStarts) {
    constexpr const char* variable = "QT_MAC_DISABLE_FOREGROUND_APPLICATION_TRANSFORM";
    qunsetenv(variable);
    static_cast<void>(chooseDesktop(desktopNames().first()));
    // Qt activates the process after its launch when the variable is missing or empty.
    EXPECT_FALSE(qEnvironmentVariableIsEmpty(variable));
}

} // namespace
} // namespace orvelle
