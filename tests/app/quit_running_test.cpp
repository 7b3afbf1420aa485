#include "app/quit_running.h"
#include "shell/desktop.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

using namespace std::chrono_literals;

/// A desktop on which another process of the program may run. It makes nothing else.
class OccupiedDesktop final : public Desktop {
public:
    [[nodiscard]] std::unique_ptr<SingleInstance> becomeSingleInstance(const StartRequest& request) override {
        received.push_back(request);
        if (hasEndedMeanwhile)
            isOccupied = false;
        return isOccupied ? nullptr : std::make_unique<SingleInstance>();
    }
    /// The other process ends when this has been asked often enough after it was told to.
    [[nodiscard]] bool isRunningElsewhere() const override {
        if (!received.empty() && questionsUntilEnd-- <= 0)
            isOccupied = false;
        return isOccupied;
    }
    [[nodiscard]] std::unique_ptr<StatusBar> makeStatusBar() override { return nullptr; }
    [[nodiscard]] std::unique_ptr<SettingsWindow>
    makeSettingsWindow(std::unique_ptr<QWindow> /*content*/) override {
        return nullptr;
    }
    [[nodiscard]] std::unique_ptr<QObject> followReducedMotion(AnimationClock& /*clock*/) override {
        return nullptr;
    }
    [[nodiscard]] std::unique_ptr<QObject> followFonts() override { return nullptr; }
    [[nodiscard]] std::unique_ptr<LoginItem> makeLoginItem() override { return nullptr; }

    mutable bool isOccupied = true;
    mutable int questionsUntilEnd = 3;
    bool hasEndedMeanwhile = false;
    std::vector<StartRequest> received;
};

const StartRequest quit{StartRequest::Kind::quit, {}};

TEST(QuitRunning, WaitsUntilTheOtherHasEnded) {
    OccupiedDesktop desktop;
    EXPECT_EQ(quitRunning(desktop, 1min), QuitOutcome::ended);
    EXPECT_EQ(desktop.received, std::vector{quit});
    EXPECT_FALSE(desktop.isOccupied);
}

TEST(QuitRunning, SaysThatThereIsNothingToEnd) {
    OccupiedDesktop desktop;
    desktop.isOccupied = false;
    EXPECT_EQ(quitRunning(desktop, 1min), QuitOutcome::notRunning);
    EXPECT_TRUE(desktop.received.empty()) << "a start at this moment would find a program that is none";
}

TEST(QuitRunning, AcceptsAnEndJustBeforeTheRequest) {
    OccupiedDesktop desktop;
    desktop.hasEndedMeanwhile = true;
    EXPECT_EQ(quitRunning(desktop, 1min), QuitOutcome::ended);
}

TEST(QuitRunning, GivesUpAfterAWhile) {
    OccupiedDesktop desktop;
    desktop.questionsUntilEnd = 1'000'000;
    QElapsedTimer waiting;
    waiting.start();
    EXPECT_EQ(quitRunning(desktop, 50ms), QuitOutcome::stillRuns);
    EXPECT_GE(waiting.elapsed(), 50);
    EXPECT_EQ(desktop.received, std::vector{quit}) << "it is asked once";
}

} // namespace
} // namespace orvelle
