#include "appkit/program.h"
#include "shell/macos/macos_desktop.h"

#include <QCoreApplication>
#include <QFileOpenEvent>
#include <QSignalSpy>
#include <QUrl>

namespace orvelle {
namespace {

using namespace simulated;

class SingleInstanceTest : public AppKitTest {
protected:
    /// The address that the system is asked to open for this request.
    static std::vector<std::string> deedsFor(const StartRequest& request) {
        desktop().script.instances = {{.processIdentifier = 499}, {.processIdentifier = 500}};
        EXPECT_EQ(becomeSingleMacosInstance(request), nullptr);
        return desktop().deeds;
    }
    /// What the program is asked when the system gives it this address.
    static StartRequest requestOf(const char* address) {
        const std::unique_ptr<SingleInstance> instance = becomeSingleMacosInstance();
        QSignalSpy startedAgain(instance.get(), &SingleInstance::startedAgain);
        QFileOpenEvent event{QUrl(QString::fromLatin1(address))};
        QCoreApplication::sendEvent(QCoreApplication::instance(), &event);
        EXPECT_EQ(startedAgain.size(), 1);
        return startedAgain.value(0).value(0).value<StartRequest>();
    }
};

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

TEST_F(SingleInstanceTest, OpensAnAddressForARequestToTheFirst) {
    EXPECT_EQ(deedsFor({StartRequest::Kind::openSettings, {}}),
              std::vector<std::string>{"open orvelle:settings"});
    desktop().deeds.clear();
    EXPECT_EQ(deedsFor({StartRequest::Kind::openPanel, QStringLiteral("cpu")}),
              std::vector<std::string>{"open orvelle:open/cpu"});
}

TEST_F(SingleInstanceTest, HasTheSystemEndTheFirst) {
    EXPECT_FALSE(isRunningElsewhereOnMacos());
    EXPECT_EQ(deedsFor({StartRequest::Kind::quit, {}}), std::vector<std::string>{"end process 499"});
    EXPECT_TRUE(isRunningElsewhereOnMacos());
    desktop().script.instances.front().isTerminated = true;
    EXPECT_FALSE(isRunningElsewhereOnMacos());
}

TEST_F(SingleInstanceTest, UnderstandsTheAddressesThatItOpens) {
    EXPECT_EQ(requestOf("orvelle:settings"), (StartRequest{StartRequest::Kind::openSettings, {}}));
    EXPECT_EQ(requestOf("orvelle:open/cpu"),
              (StartRequest{StartRequest::Kind::openPanel, QStringLiteral("cpu")}));
    EXPECT_EQ(requestOf("orvelle:dance"), StartRequest());
    EXPECT_EQ(requestOf("orvelle:"), StartRequest());
}

TEST_F(SingleInstanceTest, DoesNotEndForAnAddress) {
    EXPECT_EQ(requestOf("orvelle:quit"), StartRequest());
}

TEST_F(SingleInstanceTest, IgnoresAddressesOfOthers) {
    const std::unique_ptr<SingleInstance> instance = becomeSingleMacosInstance();
    const QSignalSpy startedAgain(instance.get(), &SingleInstance::startedAgain);
    QFileOpenEvent event{QUrl(QStringLiteral("file:///settings"))};
    QCoreApplication::sendEvent(QCoreApplication::instance(), &event);
    EXPECT_EQ(startedAgain.size(), 0);
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
