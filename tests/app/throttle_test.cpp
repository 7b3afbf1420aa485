#include "app/throttle.h"

#include <QTest>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

using namespace std::chrono_literals;

/// Long enough that a busy machine still gets from one line of a test to the next within it.
constexpr std::chrono::milliseconds interval = 400ms;
constexpr std::chrono::milliseconds patience = 20s;

class ThrottleTest : public ::testing::Test {
protected:
    ThrottleTest() {
        QObject::connect(&throttle, &Throttle::passed, &throttle, [this] { ++passedCount; });
        clock.start();
    }
    void awaitPassed(int count) {
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return passedCount >= count; }, static_cast<int>(patience.count())));
    }

    Throttle throttle{interval};
    int passedCount = 0;
    QElapsedTimer clock;
};

TEST_F(ThrottleTest, LetsTheFirstEventPassAtOnce) {
    throttle.trigger();
    EXPECT_EQ(passedCount, 1);
    EXPECT_FALSE(throttle.isHolding());
}

TEST_F(ThrottleTest, HoldsASecondEventUntilTheIntervalEnds) {
    throttle.trigger();
    throttle.trigger();
    EXPECT_EQ(passedCount, 1);
    EXPECT_TRUE(throttle.isHolding());
    awaitPassed(2);
    EXPECT_GE(clock.elapsed(), interval.count());
    EXPECT_FALSE(throttle.isHolding());
}

TEST_F(ThrottleTest, LetsOneEventPassForAllThatItHeld) {
    for (int count = 0; count < 10; ++count)
        throttle.trigger();
    awaitPassed(2);
    QTest::qWait(static_cast<int>(2 * interval.count()));
    EXPECT_EQ(passedCount, 2);
}

TEST_F(ThrottleTest, StartsANewIntervalWhenAHeldEventPasses) {
    throttle.trigger();
    throttle.trigger();
    awaitPassed(2);
    throttle.trigger();
    EXPECT_EQ(passedCount, 2);
    awaitPassed(3);
    EXPECT_GE(clock.elapsed(), 2 * interval.count());
}

TEST_F(ThrottleTest, LetsAnEventPassAtOnceAfterAQuietInterval) {
    throttle.trigger();
    QTest::qWait(static_cast<int>(interval.count()) + 1);
    throttle.trigger();
    EXPECT_EQ(passedCount, 2);
    EXPECT_FALSE(throttle.isHolding());
}

TEST_F(ThrottleTest, DropsWhatItHoldsWhenDestroyed) {
    int count = 0;
    {
        Throttle shortLived(1ms);
        QObject::connect(&shortLived, &Throttle::passed, &throttle, [&count] { ++count; });
        shortLived.trigger();
        shortLived.trigger();
    }
    QTest::qWait(20);
    EXPECT_EQ(count, 1);
}

} // namespace
} // namespace orvelle
