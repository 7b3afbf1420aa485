#include "windows/settings/settings_fixture.h"

namespace orvelle {
namespace {

using SettingsKeys = SettingsFixture;

TEST_F(SettingsKeys, ReachEveryControlFromTopToBottom) {
    openOverrides();
    settings.setUseCustomCPUColor(true);
    item("scroller")->forceActiveFocus();
    QStringList names;
    for (int count = 0; count < 60; ++count) {
        press(Qt::Key_Tab);
        const QString name = nameOf(focused());
        if (!names.isEmpty() && name == names.first())
            break;
        names.append(name);
    }
    EXPECT_EQ(
        names.join(u'|'),
        QStringLiteral("CPU|Memory|Network|Disk|Battery|Sensors|Bar Chart|Use Fahrenheit|Compact Mode|3s|"
                       "Midnight|Smooth|Gradient|Rounded|Full Ring|Mini Bars|Normal|Medium|"
                       "CUSTOM COLOR OVERRIDES|Own color for CPU|Color for CPU|Own color for Memory|"
                       "Own color for Network|Own color for Disk|Own color for Battery|"
                       "Own color for Sensors|Launch at Login|Quit"));
}

TEST_F(SettingsKeys, ScrollTheFocusedControlIntoView) {
    item("scroller")->forceActiveFocus();
    const QQuickItem* scroller = item("scroller");
    for (int count = 0; count < 22; ++count) {
        press(Qt::Key_Tab);
        const QRectF place = focused()->mapRectToScene({0, 0, focused()->width(), focused()->height()});
        // Including the focus ring around it.
        EXPECT_GE(place.top(), 4) << nameOf(focused()).toStdString();
        EXPECT_LE(place.bottom(), scroller->height() - 4) << nameOf(focused()).toStdString();
    }
}

TEST_F(SettingsKeys, SwitchWithSpaceAndReturn) {
    control(u"Use Fahrenheit")->forceActiveFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(settings.useFahrenheit());
    press(Qt::Key_Return);
    EXPECT_FALSE(settings.useFahrenheit());
    press(Qt::Key_Enter);
    EXPECT_TRUE(settings.useFahrenheit());
}

TEST_F(SettingsKeys, ChooseWithTheArrows) {
    control(u"3s")->forceActiveFocus();
    press(Qt::Key_Right);
    EXPECT_EQ(settings.updateInterval(), 5);
    EXPECT_EQ(nameOf(focused()), QStringLiteral("5s"));
    press(Qt::Key_Right);
    press(Qt::Key_Right); // the last segment stays chosen
    EXPECT_EQ(settings.updateInterval(), 10);
    for (int count = 0; count < 6; ++count)
        press(Qt::Key_Left);
    EXPECT_EQ(settings.updateInterval(), 1);
}

TEST_F(SettingsKeys, MoveThroughTheThemesByRowAndColumn) {
    const int columns = group(u"Theme")->property("columns").toInt();
    EXPECT_EQ(columns, 4);
    control(u"Midnight")->forceActiveFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(themes.currentTheme().id, builtInThemes()[columns].id);
    press(Qt::Key_Right);
    EXPECT_EQ(themes.currentTheme().id, builtInThemes()[columns + 1].id);
    press(Qt::Key_Up);
    EXPECT_EQ(themes.currentTheme().id, builtInThemes()[1].id);
}

TEST_F(SettingsKeys, ChooseTheFirstButtonOfAGroupWithoutAChoice) {
    settings.setUpdateInterval(4);
    control(u"1s")->forceActiveFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(settings.updateInterval(), 1);
}

TEST_F(SettingsKeys, ExpandTheOverrides) {
    item("disclosure")->forceActiveFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(item("customColors")->property("active").toBool());
    press(Qt::Key_Return);
    EXPECT_FALSE(item("customColors")->property("active").toBool());
}

TEST_F(SettingsKeys, CloseTheWindow) {
    for (const auto& [key, modifiers] : {std::pair(Qt::Key_Escape, Qt::KeyboardModifiers()),
                                         std::pair(Qt::Key_W, Qt::KeyboardModifiers(Qt::ControlModifier))}) {
        press(key, modifiers);
        EXPECT_FALSE(view->isVisible());
        EXPECT_NE(view->handle(), nullptr) << "which its host still shows, perhaps in a window of its own";
        open();
    }
    press(Qt::Key_W);
    EXPECT_TRUE(view->isVisible());
}

TEST_F(SettingsKeys, CloseTheWindowFromAnyControl) {
    control(u"3s")->forceActiveFocus();
    press(Qt::Key_Escape);
    EXPECT_FALSE(view->isVisible());
}

TEST_F(SettingsKeys, ScrollWhenNoControlUsesThem) {
    QQuickItem* scroller = item("scroller");
    scroller->forceActiveFocus();
    press(Qt::Key_End);
    EXPECT_DOUBLE_EQ(scroller->property("contentY").toDouble(),
                     scroller->property("contentHeight").toDouble() - scroller->height());
    press(Qt::Key_Home);
    EXPECT_EQ(scroller->property("contentY").toDouble(), 0);
}

TEST_F(SettingsKeys, MarkTheFocusedControl) {
    openOverrides();
    settings.setUseCustomCPUColor(true);
    for (QQuickItem* each : items([](QQuickItem* candidate) {
             return isControl(candidate) && candidate->isVisible() && candidate->activeFocusOnTab();
         })) {
        each->forceActiveFocus(Qt::TabFocusReason);
        const QImage focusedPicture = view->grabWindow();
        item("scroller")->forceActiveFocus();
        EXPECT_NE(view->grabWindow(), focusedPicture) << nameOf(each).toStdString();
    }
}

TEST_F(SettingsKeys, MarkNoControlThatTheMouseFocused) {
    openOverrides();
    settings.setUseCustomCPUColor(true);
    QQuickItem* well = item("well", overrideRow(u"CPU"));
    for (const bool isByKeys : {false, true}) {
        item("scroller")->forceActiveFocus();
        if (isByKeys) {
            well->forceActiveFocus(Qt::TabFocusReason);
            press(Qt::Key_Space);
        } else {
            click(well);
        }
        settle();
        EXPECT_EQ(nameOf(focused()), QStringLiteral("Hue"));
        EXPECT_EQ(focused()->property("visualFocus").toBool(), isByKeys);
        press(Qt::Key_Escape);
        settle();
        EXPECT_EQ(focused(), well);
        EXPECT_EQ(well->property("visualFocus").toBool(), isByKeys);
    }
}

TEST_F(SettingsKeys, StartAtTheTopWheneverTheWindowOpens) {
    control(u"Quit")->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_GT(item("scroller")->property("contentY").toDouble(), 100);
    view->close();
    open();
    EXPECT_EQ(item("scroller")->property("contentY").toDouble(), 0);
    EXPECT_EQ(focused(), item("scroller"));
    press(Qt::Key_Tab);
    EXPECT_EQ(nameOf(focused()), QStringLiteral("CPU"));
}

TEST_F(SettingsKeys, ReachControlsThatAllHaveANameAndARole) {
    openOverrides();
    settings.setUseCustomCPUColor(true);
    int count = 0;
    for (QQuickItem* each :
         items([](QQuickItem* candidate) { return isControl(candidate) && candidate->isVisible(); })) {
        EXPECT_FALSE(nameOf(each).isEmpty());
        const QAccessible::Role role = roleOf(each);
        EXPECT_TRUE(role == QAccessible::CheckBox || role == QAccessible::RadioButton ||
                    role == QAccessible::Button)
            << nameOf(each).toStdString() << " " << role;
        ++count;
    }
    // 6 modules, 2 + 2 + 5 displays and intervals, 12 themes, 8 graphs, 4 bars, 4 rings, 5 + 4 + 4 choices,
    // the overrides with 6 switches and a color well, launch at login, quit.
    EXPECT_EQ(count, 6 + 9 + 12 + 8 + 4 + 4 + 13 + 8 + 2);
}

} // namespace
} // namespace orvelle
