#include "common/read_only_settings.h"
#include "core/system_monitor.h"
#include "probe/following.h"
#include "settings/settings_store.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <unistd.h>

namespace orvelle {
namespace {

class Following : public testing::Test {
protected:
    Following() {
        EXPECT_NE(std::signal(SIGPIPE, SIG_IGN), SIG_ERR);
        EXPECT_EQ(::pipe(ends.data()), 0);
        for (const TemporaryTree* tree : {&first, &second})
            tree->makeDirectory("proc");
        first.write("proc/stat", "cpu0 100 0 100 800\nbtime 1767225000\n");
        second.write("proc/stat", "cpu0 175 0 100 825\nbtime 1767225000\n");
    }
    ~Following() override {
        ::close(ends[0]);
        ::close(ends[1]);
    }
    Following(const Following&) = delete;
    Following& operator=(const Following&) = delete;

    FollowEnd followUntil(int lineCount, const FollowPlan& plan) {
        return follow(plan, settings, OutputStream(ends[1]), [this, lineCount](SystemMonitor& monitor) {
            usages.append(monitor.cpu().totalUsage());
            uptimes.append(monitor.cpu().uptime());
            if (usages.size() == lineCount)
                ::close(std::exchange(ends[0], -1));
            return QByteArray("line");
        });
    }
    [[nodiscard]] QStringList roots() const {
        return {QString::fromStdString(first.root().string()),
                QString::fromStdString(second.root().string())};
    }

    const SettingsStore settings{std::make_unique<ReadOnlySettings>()};
    const TemporaryTree first;
    const TemporaryTree second;
    std::array<int, 2> ends{-1, -1};
    QList<double> usages;
    QList<double> uptimes;
};

TEST_F(Following, ARecordingIsALinePerRootAndEnds) {
    const FollowEnd end = followUntil(0, {.roots = roots(), .intervalSeconds = 10});
    EXPECT_EQ(std::get<OutputStream::Result>(end), OutputStream::Result::written);
    EXPECT_EQ(usages, (QList<double>{0, 0.75}));
    EXPECT_EQ(uptimes, (QList<double>{600, 610}));
    std::array<char, 64> text{};
    EXPECT_EQ(::read(ends[0], text.data(), text.size()), 10);
    EXPECT_STREQ(text.data(), "line\nline\n");
}

TEST_F(Following, ThisMachineIsMeasuredForAMomentBeforeTheFirstLine) {
    const FollowEnd end = followUntil(2, {.roots = {}, .intervalSeconds = 0.1});
    EXPECT_EQ(std::get<OutputStream::Result>(end), OutputStream::Result::readerGone);
    EXPECT_EQ(usages.size(), 2);
}

TEST_F(Following, ARecordingEndsWithItsReaderToo) {
    const FollowEnd end = followUntil(1, {.roots = roots()});
    EXPECT_EQ(std::get<OutputStream::Result>(end), OutputStream::Result::readerGone);
    EXPECT_EQ(usages.size(), 1);
}

TEST_F(Following, ARootThatCannotBeReadIsTold) {
    const FollowEnd end = followUntil(0, {.roots = roots() << QStringLiteral("/dev/null")});
    EXPECT_TRUE(std::holds_alternative<UnreadableRoot>(end));
    EXPECT_TRUE(usages.isEmpty());
}

} // namespace
} // namespace orvelle
