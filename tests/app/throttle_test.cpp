#include "app/throttle.h"
#include "support/early_timer.h"
#include "support/waiting.h"

namespace orvelle {
namespace {

using namespace std::chrono_literals;

/// Longer than any test runs, so only the test itself releases a held event.
constexpr std::chrono::milliseconds longInterval = 1h;
constexpr std::chrono::milliseconds shortInterval = 20ms;

/// Counts the events that pass a throttle.
struct Counted {
    explicit Counted(std::chrono::milliseconds interval)
        : throttle(interval) {
        QObject::connect(&throttle, &Throttle::passed, &throttle, [this] { ++passedCount; });
    }
    void trigger(int times) {
        for (int count = 0; count < times; ++count)
            throttle.trigger();
    }
    void endInterval() {
        auto* held = throttle.findChild<QTimer*>();
        ASSERT_NE(held, nullptr);
        endNow(*held);
    }

    Throttle throttle;
    int passedCount = 0;
};

TEST(ThrottleTest, LetsTheFirstEventPassAtOnce) {
    Counted events(longInterval);
    events.trigger(1);
    EXPECT_EQ(events.passedCount, 1);
    EXPECT_FALSE(events.throttle.isHolding());
}

TEST(ThrottleTest, HoldsASecondEvent) {
    Counted events(longInterval);
    events.trigger(2);
    EXPECT_EQ(events.passedCount, 1);
    EXPECT_TRUE(events.throttle.isHolding());
}

TEST(ThrottleTest, LetsASecondEventPassWhenTheIntervalEnds) {
    QElapsedTimer clock;
    Counted events(shortInterval);
    clock.start();
    events.trigger(2);
    ASSERT_TRUE(waitUntil([&] { return events.passedCount == 2; }));
    EXPECT_GE(clock.elapsed(), shortInterval.count());
    EXPECT_FALSE(events.throttle.isHolding());
}

TEST(ThrottleTest, MergesAllHeldEventsIntoOne) {
    Counted events(longInterval);
    events.trigger(10);
    events.endInterval();
    EXPECT_EQ(events.passedCount, 2);
    EXPECT_FALSE(events.throttle.isHolding());
}

TEST(ThrottleTest, StartsANewIntervalWhenAHeldEventPasses) {
    Counted events(longInterval);
    events.trigger(2);
    events.endInterval();
    events.trigger(1);
    EXPECT_EQ(events.passedCount, 2);
    EXPECT_TRUE(events.throttle.isHolding());
}

TEST(ThrottleTest, LetsAnEventPassAtOnceAfterAQuietInterval) {
    Counted events(shortInterval);
    events.trigger(1);
    QElapsedTimer sincePassed;
    sincePassed.start();
    ASSERT_TRUE(waitUntil([&] { return sincePassed.hasExpired(shortInterval.count()); }));
    events.trigger(1);
    EXPECT_EQ(events.passedCount, 2);
    EXPECT_FALSE(events.throttle.isHolding());
}

TEST(ThrottleTest, DropsAHeldEventWhenDestroyed) {
    int passedCount = 0;
    {
        Throttle throttle(longInterval);
        QObject::connect(&throttle, &Throttle::passed, QCoreApplication::instance(), [&] { ++passedCount; });
        throttle.trigger();
        throttle.trigger();
        ASSERT_TRUE(throttle.isHolding());
        throttle.findChild<QTimer*>()->setInterval(0); // due with the next event
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(passedCount, 1);
}

} // namespace
} // namespace orvelle
