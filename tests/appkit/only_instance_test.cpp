#include "appkit/program.h"

#include <QCoreApplication>
#include <QSignalSpy>

namespace orvelle {
namespace {

using namespace simulated;

class OnlyInstanceTest : public AppKitTest {};

TEST_F(OnlyInstanceTest, IsTheOneThatRunsAlone) {
    EXPECT_NE(becomeOnlyInstance(), nullptr);
    EXPECT_TRUE(desktop().deeds.empty());
}

TEST_F(OnlyInstanceTest, IsNotASecondProcessWhichHasTheFirstOneToldOfIt) {
    desktop().script.instances = {{.processIdentifier = 499}, {.processIdentifier = 500}};
    EXPECT_EQ(becomeOnlyInstance(), nullptr);
    EXPECT_EQ(desktop().deeds, std::vector<std::string>{"open the program's bundle"});
}

TEST_F(OnlyInstanceTest, IsNotHinderedByAProcessThatHasEnded) {
    desktop().script.instances = {{.processIdentifier = 499, .isTerminated = true},
                                  {.processIdentifier = 500}};
    EXPECT_NE(becomeOnlyInstance(), nullptr);
}

TEST_F(OnlyInstanceTest, IsWhateverRunsOutsideABundle) {
    desktop().script.bundleIdentifier.reset();
    desktop().script.instances = {{.processIdentifier = 499}};
    EXPECT_NE(becomeOnlyInstance(), nullptr);
}

TEST_F(OnlyInstanceTest, HearsOfLaterStartsOnceItsLoopHasBegun) {
    std::unique_ptr<OnlyInstance> instance = becomeOnlyInstance();
    ASSERT_NE(instance, nullptr);
    const QSignalSpy startedAgain(instance.get(), &OnlyInstance::startedAgain);
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

TEST_F(OnlyInstanceTest, NeedsNoPreparation) {
    EXPECT_FALSE(prepareDesktop());
}

} // namespace
} // namespace orvelle
