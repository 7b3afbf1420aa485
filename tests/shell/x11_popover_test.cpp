#include "shell/x11/x11_popover.h"

#include <QRasterWindow>
#include <QTest>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

class X11PopoverTest : public ::testing::Test {
protected:
    static constexpr int popoverCount = 5;

    X11PopoverTest() {
        for (int index = 0; index < popoverCount; ++index) {
            items.push_back(&bar.addItem(QString::number(index), 60));
            popovers.push_back(std::make_unique<X11Popover>(bar, kept, [this, index](double) {
                auto content = std::make_unique<QRasterWindow>();
                content->resize(320, 500);
                ++made[index];
                ++present;
                QObject::connect(content.get(), &QObject::destroyed, &bar, [this] { --present; });
                return content;
            }));
        }
        bar.resize(1000, 22);
    }
    void openAndClose(int index) {
        X11Popover& popover = *popovers[static_cast<std::size_t>(index)];
        popover.show(*items[static_cast<std::size_t>(index)]);
        QCoreApplication::processEvents();
        ASSERT_TRUE(popover.isShown());
        popover.close();
    }

    BarWindow bar;
    KeptPopovers kept;
    std::vector<const StatusItem*> items;
    int made[popoverCount] = {};
    int present = 0;
    std::vector<std::unique_ptr<X11Popover>> popovers;
};

TEST_F(X11PopoverTest, OpensWhenThePresentClicksAreHandled) {
    popovers[0]->show(*items[0]);
    EXPECT_TRUE(popovers[0]->isShown());
    EXPECT_EQ(made[0], 0);
    popovers[0]->close();
    QCoreApplication::processEvents();
    EXPECT_EQ(made[0], 0) << "two clicks at once change nothing";
    openAndClose(0);
    EXPECT_EQ(made[0], 1);
}

TEST_F(X11PopoverTest, KeepsTheWindowsOfTheThreeThatOpenedLast) {
    for (int index = 0; index < popoverCount; ++index)
        openAndClose(index);
    EXPECT_EQ(present, 3);
    openAndClose(3);
    EXPECT_EQ(made[3], 1);
    openAndClose(0);
    EXPECT_EQ(made[0], 2);
    EXPECT_EQ(present, 3);
    openAndClose(3);
    EXPECT_EQ(made[3], 1) << "it opened later than two others";
}

TEST_F(X11PopoverTest, ForgetsAPopoverThatIsGone) {
    for (int index = 0; index < 3; ++index)
        openAndClose(index);
    popovers.erase(popovers.begin());
    EXPECT_EQ(present, 2);
    EXPECT_EQ(kept.size(), 2U);
}

TEST_F(X11PopoverTest, IsNotShownWhenItsContentCannotBeMade) {
    X11Popover broken(bar, kept, [](double) { return nullptr; });
    broken.show(*items[0]);
    QCoreApplication::processEvents();
    EXPECT_FALSE(broken.isShown());
    EXPECT_TRUE(kept.empty());
}

} // namespace
} // namespace orvelle
