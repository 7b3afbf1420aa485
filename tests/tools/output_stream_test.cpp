#include "common/output_stream.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <thread>
#include <unistd.h>

namespace orvelle {
namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

class OutputStreamTest : public testing::Test {
protected:
    OutputStreamTest() {
        EXPECT_NE(std::signal(SIGPIPE, SIG_IGN), SIG_ERR);
        EXPECT_EQ(::pipe(ends.data()), 0);
    }
    ~OutputStreamTest() override {
        closeReader();
        ::close(ends[1]);
    }
    OutputStreamTest(const OutputStreamTest&) = delete;
    OutputStreamTest& operator=(const OutputStreamTest&) = delete;

    void closeReader() {
        if (ends[0] >= 0)
            ::close(ends[0]);
        ends[0] = -1;
    }
    [[nodiscard]] OutputStream stream() const { return OutputStream(ends[1]); }

    std::array<int, 2> ends{-1, -1};
};

TEST_F(OutputStreamTest, WritesAllOfATextThatIsLargerThanThePipe) {
    const QByteArray text(1'000'000, 'x');
    QByteArray received;
    std::thread reader([this, &received, &text] {
        std::array<char, 4096> buffer{};
        while (received.size() < text.size()) {
            const ssize_t count = ::read(ends[0], buffer.data(), buffer.size());
            ASSERT_GT(count, 0);
            received.append(buffer.data(), count);
        }
    });
    // Whoever starts the program may have made the descriptor answer at once.
    EXPECT_EQ(::fcntl(ends[1], F_SETFL, O_NONBLOCK), 0);
    EXPECT_EQ(stream().write(text), OutputStream::Result::written);
    reader.join();
    EXPECT_EQ(received, text);
}

TEST_F(OutputStreamTest, TellsThatTheReaderIsGone) {
    closeReader();
    EXPECT_EQ(stream().write("text"), OutputStream::Result::readerGone);
    EXPECT_FALSE(stream().waitUntil(steady_clock::now() + 1h));
}

TEST_F(OutputStreamTest, EndsItsWaitWhenTheReaderGoes) {
    std::thread leaver([this] {
        std::this_thread::sleep_for(50ms);
        closeReader();
    });
    EXPECT_FALSE(stream().waitUntil(steady_clock::now() + 1h));
    leaver.join();
}

TEST_F(OutputStreamTest, WaitsUntilTheDeadlineWhileThereIsAReader) {
    const auto deadline = steady_clock::now() + 30ms;
    EXPECT_TRUE(stream().waitUntil(deadline));
    EXPECT_GE(steady_clock::now(), deadline);
}

TEST_F(OutputStreamTest, DoesNotWaitWhenTheDeadlineHasPassed) {
    EXPECT_TRUE(stream().waitUntil(steady_clock::now() - 1s));
}

TEST_F(OutputStreamTest, TellsThatADescriptorIsNotOpen) {
    const OutputStream closed(1 << 20);
    EXPECT_EQ(closed.write("text"), OutputStream::Result::failed);
}

} // namespace
} // namespace orvelle
