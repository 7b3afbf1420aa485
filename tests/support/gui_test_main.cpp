#include <QGuiApplication>
#include <gtest/gtest.h>

// Fonts, images and windows need a GUI application; ctest selects the off-screen platform.
int main(int argumentCount, char** arguments) {
    ::testing::InitGoogleTest(&argumentCount, arguments);
    ::testing::GTEST_FLAG(death_test_style) = "threadsafe";
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0"); // paints a requested frame at once
    const QGuiApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
