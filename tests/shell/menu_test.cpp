#include "shell/painted/menu_window.h"
#include "three_entries.h"

#include <QTest>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

TEST(MenuRows, StandBelowOneAnotherWithALowSeparator) {
    const QList<QRect> rows = menuRows(threeEntries(), 200);
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[0], QRect(5, 5, 190, 24));
    EXPECT_EQ(rows[1], QRect(5, 29, 190, 11));
    EXPECT_EQ(rows[2], QRect(5, 40, 190, 24));
}

TEST(NextEntry, SkipsSeparatorsAndGoesRoundTheEnds) {
    const auto entries = threeEntries();
    EXPECT_EQ(nextEntry(entries, std::nullopt, 1), 0U);
    EXPECT_EQ(nextEntry(entries, 0, 1), 2U);
    EXPECT_EQ(nextEntry(entries, 2, 1), 0U);
    EXPECT_EQ(nextEntry(entries, std::nullopt, -1), 2U);
    EXPECT_EQ(nextEntry(entries, 2, -1), 0U);
    EXPECT_EQ(nextEntry(entries, 0, -1), 2U);
}

TEST(NextEntry, IsNothingWhereNothingCanBeChosen) {
    EXPECT_EQ(nextEntry({}, std::nullopt, 1), std::nullopt);
    EXPECT_EQ(nextEntry({{}, {}}, std::nullopt, -1), std::nullopt);
}

TEST(MenuKeys, AreTheKeyEquivalentWithControl) {
    EXPECT_EQ(menuKeys(threeEntries()[2]), QKeySequence(Qt::CTRL | Qt::Key_Q));
    EXPECT_EQ(menuKeys(threeEntries()[0]), QKeySequence(Qt::CTRL | Qt::Key_Comma));
    EXPECT_TRUE(menuKeys({}).isEmpty());
}

class MenuWindowTest : public ::testing::Test {
protected:
    MenuWindowTest() {
        menu.setEntries(threeEntries());
        menu.resize(menu.wantedSize());
        QObject::connect(&menu, &MenuWindow::chosen, &menu,
                         [this](std::size_t index) { chosen.append(static_cast<int>(index)); });
    }
    MenuWindow menu;
    QList<int> chosen;
};

TEST_F(MenuWindowTest, IsHighEnoughForItsRowsAndWiderForALongerTitle) {
    EXPECT_EQ(menu.wantedSize().height(), 69);
    const int before = menu.wantedSize().width();
    menu.setEntries({{QStringLiteral("A title that is longer than both others together"), {}, nullptr}});
    EXPECT_GT(menu.wantedSize().width(), before);
}

TEST_F(MenuWindowTest, ChoosesWithArrowsAndEnter) {
    QTest::keyClick(&menu, Qt::Key_Return);
    EXPECT_TRUE(chosen.isEmpty());
    QTest::keyClick(&menu, Qt::Key_Up);
    QTest::keyClick(&menu, Qt::Key_Return);
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Enter);
    EXPECT_EQ(chosen, (QList<int>{2, 0}));
}

TEST_F(MenuWindowTest, ChoosesWithTheKeyEquivalents) {
    QTest::keyClick(&menu, Qt::Key_Q);
    EXPECT_TRUE(chosen.isEmpty());
    QTest::keyClick(&menu, Qt::Key_Q, Qt::ControlModifier);
    QTest::keyClick(&menu, Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(chosen, (QList<int>{2, 0}));
}

TEST_F(MenuWindowTest, ChoosesWithAClickButNoSeparator) {
    QTest::mouseClick(&menu, Qt::LeftButton, {}, QPoint(20, 50));
    QTest::mouseClick(&menu, Qt::LeftButton, {}, QPoint(20, 34));
    EXPECT_EQ(chosen, QList<int>{2});
}

TEST_F(MenuWindowTest, MarksTheEntryUnderThePointer) {
    QTest::mouseMove(&menu, QPoint(20, 50));
    EXPECT_EQ(menu.current(), 2U);
    QTest::mouseMove(&menu, QPoint(20, 34));
    EXPECT_EQ(menu.current(), std::nullopt);
}

} // namespace
} // namespace orvelle
