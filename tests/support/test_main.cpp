#include <QCoreApplication>
#include <gtest/gtest.h>

// Monitors and settings use timers and file watchers, which need an application object.
int main(int argumentCount, char** arguments) {
    ::testing::InitGoogleTest(&argumentCount, arguments);
    ::testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const QCoreApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
