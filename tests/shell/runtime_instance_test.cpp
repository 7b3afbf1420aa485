#include "shell/painted/runtime_instance.h"
#include "support/environment.h"
#include "support/temporary_tree.h"
#include "support/waiting.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvelle {
namespace {

class RuntimeInstance : public ::testing::Test {
protected:
    [[nodiscard]] QString file() const { return QString::fromStdString(tree.root() / "orvelle-wayland-1"); }

    TemporaryTree tree;
};

TEST_F(RuntimeInstance, RefusesASecondProcessAndTellsTheFirst) {
    const auto first = becomeSingleInstanceWith(file());
    ASSERT_NE(first, nullptr);
    QSignalSpy startedAgain(first.get(), &SingleInstance::startedAgain);
    for (int start = 1; start <= 3; ++start) {
        EXPECT_EQ(becomeSingleInstanceWith(file()), nullptr);
        EXPECT_TRUE(waitUntil([&] { return startedAgain.count() == start; }));
    }
}

TEST_F(RuntimeInstance, TellsTheFirstWhatIsAskedForInItsOrder) {
    const auto first = becomeSingleInstanceWith(file());
    QSignalSpy startedAgain(first.get(), &SingleInstance::startedAgain);
    const std::vector<StartRequest> requests{{StartRequest::Kind::openSettings, {}},
                                             {StartRequest::Kind::openPanel, QStringLiteral("memory")},
                                             {},
                                             {StartRequest::Kind::quit, {}}};
    for (const StartRequest& request : requests)
        EXPECT_EQ(becomeSingleInstanceWith(file(), request), nullptr);
    ASSERT_TRUE(waitUntil([&] { return startedAgain.count() == std::ssize(requests); }));
    for (std::size_t index = 0; index < requests.size(); ++index)
        EXPECT_EQ(startedAgain[static_cast<qsizetype>(index)][0].value<StartRequest>(), requests[index]);
}

TEST_F(RuntimeInstance, KnowsWhetherAProcessHoldsTheFile) {
    EXPECT_FALSE(isInstanceFileHeld(file()));
    auto first = becomeSingleInstanceWith(file());
    EXPECT_TRUE(isInstanceFileHeld(file()));
    first.reset();
    EXPECT_FALSE(isInstanceFileHeld(file()));
    EXPECT_FALSE(isInstanceFileHeld({}));
    tree.write("ordinary", "an ordinary file");
    EXPECT_FALSE(isInstanceFileHeld(QString::fromStdString(tree.root() / "ordinary")));
}

TEST_F(RuntimeInstance, IsFreeAgainWhenTheFirstHasEnded) {
    auto first = becomeSingleInstanceWith(file());
    first.reset();
    const auto second = becomeSingleInstanceWith(file());
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(becomeSingleInstanceWith(file()), nullptr);
}

TEST_F(RuntimeInstance, HearsNothingOfStartsBeforeItsOwn) {
    auto first = becomeSingleInstanceWith(file());
    EXPECT_EQ(becomeSingleInstanceWith(file()), nullptr);
    first.reset();
    const auto second = becomeSingleInstanceWith(file());
    QSignalSpy startedAgain(second.get(), &SingleInstance::startedAgain);
    QTest::qWait(50);
    EXPECT_EQ(startedAgain.count(), 0);
}

TEST_F(RuntimeInstance, IsFreeAgainWhenTheFirstWasKilled) {
    const pid_t child = ::fork();
    if (child == 0) {
        const auto killed = becomeSingleInstanceWith(file());
        ::raise(SIGKILL);
    }
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    EXPECT_NE(becomeSingleInstanceWith(file()), nullptr);
}

TEST_F(RuntimeInstance, TellsDesktopsApart) {
    const EnvironmentVariable folder("XDG_RUNTIME_DIR", QByteArray::fromStdString(tree.root()));
    const auto first = becomeSingleInstanceWith(instanceFile(QStringLiteral("wayland-1")));
    const auto second = becomeSingleInstanceWith(instanceFile(QStringLiteral("/elsewhere/wayland-1")));
    const auto third = becomeSingleInstanceWith(instanceFile(QStringLiteral("/else/where/wayland-1")));
    EXPECT_NE(first, nullptr);
    EXPECT_NE(second, nullptr);
    EXPECT_NE(third, nullptr);
    EXPECT_EQ(becomeSingleInstanceWith(instanceFile(QStringLiteral("/elsewhere/wayland-1"))), nullptr);
}

TEST_F(RuntimeInstance, RunsWhereItsFileCannotBeUsed) {
    const EnvironmentVariable folder("XDG_RUNTIME_DIR", std::nullopt);
    EXPECT_NE(becomeSingleInstanceWith(instanceFile(QStringLiteral("wayland-1"))), nullptr);
    EXPECT_NE(becomeSingleInstanceWith(QStringLiteral("/does/not/exist")), nullptr);
    tree.write("orvelle-wayland-1", "an ordinary file");
    EXPECT_NE(becomeSingleInstanceWith(file()), nullptr);
    EXPECT_NE(becomeSingleInstanceWith(file()), nullptr);
}

TEST_F(RuntimeInstance, KeepsItsFileFromOtherUsers) {
    const auto first = becomeSingleInstanceWith(file());
    struct stat status{};
    ASSERT_EQ(::stat(qPrintable(file()), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(RuntimeInstance, TakesThePipeAwayFromOtherUsers) {
    ASSERT_EQ(::mkfifo(qPrintable(file()), 0600), 0);
    ASSERT_EQ(::chmod(qPrintable(file()), 0666), 0);
    const auto first = becomeSingleInstanceWith(file());
    struct stat status{};
    ASSERT_EQ(::stat(qPrintable(file()), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(RuntimeInstance, DoesNotUseThePipeOfAnotherUser) {
    ASSERT_EQ(::mkfifo(qPrintable(file()), 0600), 0);
    ASSERT_EQ(::chmod(qPrintable(file()), 0666), 0);
    const uid_t another = ::geteuid() + 1;
    if (::chown(qPrintable(file()), another, another) != 0)
        GTEST_SKIP() << "only root can make a pipe of another user";
    EXPECT_FALSE(isInstanceFileHeld(file()));
    const auto first = becomeSingleInstanceWith(file());
    EXPECT_NE(first, nullptr);
    EXPECT_NE(becomeSingleInstanceWith(file()), nullptr) << "it does not stand in the way";
}

TEST_F(RuntimeInstance, DoesNotFollowALinkInPlaceOfItsPipe) {
    const QString pipe = QString::fromStdString(tree.root() / "elsewhere");
    ASSERT_EQ(::mkfifo(qPrintable(pipe), 0600), 0);
    ASSERT_EQ(::symlink(qPrintable(pipe), qPrintable(file())), 0);
    EXPECT_NE(becomeSingleInstanceWith(file()), nullptr);
    EXPECT_FALSE(isInstanceFileHeld(file()));
}

TEST_F(RuntimeInstance, SurvivesAPipeFullOfNotices) {
    const auto first = becomeSingleInstanceWith(file());
    QSignalSpy startedAgain(first.get(), &SingleInstance::startedAgain);
    for (int start = 0; start < 70'000; ++start)
        ASSERT_EQ(becomeSingleInstanceWith(file()), nullptr);
    EXPECT_TRUE(waitUntil([&] { return startedAgain.count() > 0; }));
}

} // namespace
} // namespace orvelle
