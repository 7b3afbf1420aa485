#include "app/app_delegate_fixture.h"

#include <QCoreApplication>

namespace orvelle {
namespace {

/// What another start of the program asks of the one that runs.
class StartRequestsTest : public AppDelegateTest {
protected:
    using Kind = StartRequest::Kind;

    /// The program with all items on the screen.
    void launch() {
        showAll(true);
        delegate.applicationDidFinishLaunching();
        Q_EMIT bar.firstPainted();
        bar.calls.clear();
    }
    void open(const char* module) { delegate.handleRequest({Kind::openPanel, QString::fromLatin1(module)}); }
};

TEST_F(StartRequestsTest, OpenTheSettings) {
    launch();
    delegate.handleRequest({Kind::openSettings, {}});
    EXPECT_EQ(windowCalls.last(), QStringLiteral("forward"));
    EXPECT_TRUE(bar.calls.isEmpty());
}

TEST_F(StartRequestsTest, OpenAPanelAsAKeyDoes) {
    launch();
    open("memory");
    EXPECT_EQ(bar.calls, (QStringList{QStringLiteral("choose memory"), QStringLiteral("open memory")}));
}

TEST_F(StartRequestsTest, LeaveAPanelOpenThatIs) {
    launch();
    open("memory");
    bar.calls.clear();
    open("memory");
    EXPECT_TRUE(bar.calls.isEmpty());
    EXPECT_TRUE(delegate.isPopoverShown(QStringLiteral("memory")));
}

TEST_F(StartRequestsTest, CloseWhatElseIsOpen) {
    launch();
    open("memory");
    bar.calls.clear();
    open("cpu");
    EXPECT_EQ(bar.calls, (QStringList{QStringLiteral("choose cpu"), QStringLiteral("close memory"),
                                      QStringLiteral("open cpu")}));
}

TEST_F(StartRequestsTest, OpenTheSettingsForAHiddenModule) {
    launch();
    settings.setShowMemory(false);
    open("memory"); // before the next look at the settings
    EXPECT_EQ(windowCalls.last(), QStringLiteral("forward"));
    EXPECT_FALSE(bar.calls.contains(QStringLiteral("open memory")));
}

TEST_F(StartRequestsTest, OpenAModuleThatHasJustBeenSwitchedOn) {
    showAll(true);
    settings.setShowMemory(false);
    delegate.applicationDidFinishLaunching();
    Q_EMIT bar.firstPainted();
    settings.setShowMemory(true);
    open("memory");
    EXPECT_EQ(bar.calls.last(), QStringLiteral("open memory"));
}

TEST_F(StartRequestsTest, MoveTheKeyboardForAModuleOfALaterVersion) {
    launch();
    open("gpu");
    EXPECT_EQ(bar.calls, QStringList{QStringLiteral("keyboard")});
    EXPECT_TRUE(windowCalls.isEmpty());
}

TEST_F(StartRequestsTest, MoveTheKeyboardWithoutAWish) {
    launch();
    delegate.handleRequest({});
    EXPECT_EQ(bar.calls, QStringList{QStringLiteral("keyboard")});
}

TEST_F(StartRequestsTest, OpenAPanelOnlyOnceItsItemIsOnTheScreen) {
    showAll(true);
    delegate.applicationDidFinishLaunching();
    bar.calls.clear();
    open("cpu");
    open("memory");
    EXPECT_TRUE(bar.calls.isEmpty());
    Q_EMIT bar.firstPainted();
    EXPECT_EQ(bar.calls, (QStringList{QStringLiteral("choose memory"), QStringLiteral("open memory")}));
    Q_EMIT bar.firstPainted();
    EXPECT_EQ(bar.calls.size(), 2);
}

TEST_F(StartRequestsTest, OpenTheSettingsOfABarThatShowsNothing) {
    showAll(false);
    delegate.applicationDidFinishLaunching();
    open("cpu");
    EXPECT_EQ(windowCalls.last(), QStringLiteral("forward"));
}

TEST_F(StartRequestsTest, EndTheProgram) {
    launch();
    QTimer::singleShot(0, &bar, [this] { delegate.handleRequest({Kind::quit, {}}); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
}

} // namespace
} // namespace orvelle
