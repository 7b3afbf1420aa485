#include "windows/settings/settings_fixture.h"

namespace orvelle {
namespace {

const QString shortInterval = QStringLiteral("Acts as 3s, the shortest interval");
const QString unchangedBar = QStringLiteral("Changes nothing in the menu bar");

class SettingsHelp : public SettingsFixture {
protected:
    static QString descriptionOf(QQuickItem* control) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(control);
        return accessible != nullptr ? accessible->text(QAccessible::Description) : QString();
    }
    /// The visible help texts.
    [[nodiscard]] QList<QQuickItem*> shownHelp() const {
        return items([](const QQuickItem* each) {
            return each->objectName() == QLatin1String("help") && each->isVisible();
        });
    }
    void expectShown(const QQuickItem& control, const QString& text) {
        ASSERT_TRUE(waitUntil([this] { return !shownHelp().isEmpty(); })) << text.toStdString();
        ASSERT_EQ(shownHelp().size(), 1);
        const QQuickItem& help = *shownHelp().first();
        EXPECT_EQ(help.property("text").toString(), text);
        const QRectF place = help.mapRectToScene({0, 0, help.width(), help.height()});
        EXPECT_TRUE(QRectF(QPointF(), view->size()).contains(place)) << text.toStdString();
        EXPECT_FALSE(place.intersects(control.mapRectToScene({0, 0, control.width(), control.height()})));
        EXPECT_EQ(view->grabWindow().pixel((place.topLeft() + QPointF(3, 3)).toPoint()),
                  help.property("color").value<QColor>().rgb())
            << "nothing covers it";
    }
};

TEST_F(SettingsHelp, ExplainsIntervalsBelowTheMinimum) {
    for (const QStringView label : {u"1s", u"2s"})
        EXPECT_EQ(descriptionOf(control(label)), shortInterval);
    for (const QStringView label : {u"3s", u"5s", u"10s"})
        EXPECT_EQ(descriptionOf(control(label)), QString());
}

TEST_F(SettingsHelp, ExplainsSettingsWithoutEffectOnTheMenuBar) {
    for (const QStringView label : {u"Bar Chart", u"Percentage", u"Compact Mode"})
        EXPECT_EQ(descriptionOf(control(label)), unchangedBar);
    for (const QStringView label : {u"Use Fahrenheit", u"Launch at Login", u"Sparkline"})
        EXPECT_EQ(descriptionOf(control(label)), QString());
}

TEST_F(SettingsHelp, AppearsWhereThePointerRests) {
    const QList<std::pair<QStringView, QString>> helped{
        {u"Percentage", unchangedBar}, {u"Compact Mode", unchangedBar}, {u"2s", shortInterval}};
    for (const QSize& size : {settingsSize, smallestSettingsSize}) {
        resizeTo(size);
        for (const auto& [label, text] : helped) {
            QQuickItem* hovered = control(label);
            QMetaObject::invokeMethod(item("scroller"), "reveal",
                                      Q_ARG(QVariant, QVariant::fromValue(hovered)));
            settle();
            QTest::mouseMove(view.get(), hovered->mapToScene({8, 8}).toPoint());
            expectShown(*hovered, text);
            QTest::mouseMove(view.get(), {1, 1});
            EXPECT_TRUE(shownHelp().isEmpty());
        }
    }
}

TEST_F(SettingsHelp, AppearsBelowTheControlWithoutRoomAbove) {
    QQuickItem* hovered = control(u"2s");
    const double top = hovered->mapToItem(item("interval")->parentItem(), {0, 0}).y();
    QMetaObject::invokeMethod(item("scroller"), "scrollTo", Q_ARG(QVariant, top));
    settle();
    QTest::mouseMove(view.get(), hovered->mapToScene({8, 8}).toPoint());
    expectShown(*hovered, shortInterval);
    EXPECT_GT(shownHelp().first()->mapToScene({0, 0}).y(), hovered->mapToScene({0, 0}).y());
}

TEST_F(SettingsHelp, AppearsAtTheFocusedControl) {
    QQuickItem* focused = control(u"Compact Mode");
    focused->forceActiveFocus(Qt::TabFocusReason);
    expectShown(*focused, unchangedBar);
    control(u"Use Fahrenheit")->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(shownHelp().isEmpty());
    press(Qt::Key_Escape);
    EXPECT_FALSE(view->isVisible()) << "a help text handles no key";
}

} // namespace
} // namespace orvelle
