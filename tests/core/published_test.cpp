#include "core/published.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

TEST(MetricHistory, KeepsTheNewestSamplesOldestFirst) {
    QList<double> history;
    for (int sample = 0; sample < 61; ++sample)
        MetricHistory::append(history, sample);
    ASSERT_EQ(history.size(), 60);
    EXPECT_EQ(history.first(), 1);
    EXPECT_EQ(history.last(), 60);
}

TEST(MetricHistory, ShrinksALongerArrayToItsBound) {
    QList<double> history{1, 2, 3, 4};
    MetricHistory::append(history, 5, 2);
    EXPECT_EQ(history, (QList<double>{4, 5}));
}

TEST(MetricHistory, TakesNoMoreMemoryWithTimeWhileAViewKeepsACopy) {
    QList<double> history;
    QList<double> copyOfAView;
    for (int sample = 0; sample < 10'000; ++sample) {
        copyOfAView = history;
        MetricHistory::append(history, sample);
    }
    EXPECT_EQ(history.size(), 60);
    EXPECT_LE(history.capacity(), 120);
}

} // namespace
} // namespace orvelle
