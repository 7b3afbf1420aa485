#include "theme/colors.h"
#include "windows/settings/choices.h"
#include "windows/settings/settings_fixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

namespace orvelle {
namespace {

using SettingsControls = SettingsFixture;
using CustomColors = SettingsFixture;
using SettingsNotices = SettingsFixture;

QVariant valueOf(const SettingsStore& settings, const char* setting) {
    return settings.property(setting);
}

struct PickedSetting {
    QStringView group;
    const char* setting;
    QVariantList (*offered)();

    [[nodiscard]] QList<Choice> choices() const {
        QList<Choice> all;
        for (const QVariant& choice : offered())
            all.append(choice.value<Choice>());
        return all;
    }
};

const QList<PickedSetting>& pickedSettings() {
    static const QList<PickedSetting> pickers{
        {u"CPU Display", "cpuDisplayMode", &Choices::cpuDisplayModes},
        {u"Every", "updateInterval", &Choices::updateIntervals},
        {u"Line Style", "graphLineStyle", &Choices::graphLineStyles},
        {u"Fill Style", "graphFillStyle", &Choices::graphFillStyles},
        {u"Bar Chart Style", "barChartStyle", &Choices::barChartStyles},
        {u"Ring Chart Style", "ringChartStyle", &Choices::ringChartStyles},
        {u"Menu Bar Display", "menuBarDisplayStyle", &Choices::menuBarDisplayStyles},
        {u"Animation Speed", "animationSpeed", &Choices::animationSpeeds},
        {u"Glow Effect", "glowIntensity", &Choices::glowIntensities}};
    return pickers;
}

TEST_F(SettingsControls, AreInFourteenSectionsFromTopToBottom) {
    const QStringList expected{
        QStringLiteral("titleBar"),      QStringLiteral("modules"), QStringLiteral("display"),
        QStringLiteral("interval"),      QStringLiteral("themes"),  QStringLiteral("graphs"),
        QStringLiteral("bars"),          QStringLiteral("rings"),   QStringLiteral("menuBar"),
        QStringLiteral("animation"),     QStringLiteral("glow"),    QStringLiteral("overrides"),
        QStringLiteral("launchAtLogin"), QStringLiteral("footer")};
    double bottom = 0;
    for (const QString& name : expected) {
        const QQuickItem* section = item(name.toLatin1());
        ASSERT_NE(section, nullptr);
        const double top = section->mapToScene({0, 0}).y();
        EXPECT_GE(top, bottom) << name.toStdString();
        bottom = top + section->height();
    }
    QStringList titles;
    for (const QQuickItem* each : items([](const QQuickItem* text) {
             return text->inherits("QQuickText") && text->property("size").toDouble() == 10 &&
                    text->property("font").value<QFont>().weight() == QFont::DemiBold;
         }))
        titles.append(each->property("text").toString());
    EXPECT_EQ(titles.join(u'|'),
              QStringLiteral("MENU BAR MODULES|DISPLAY|UPDATE INTERVAL|THEME|GRAPH STYLE|BAR CHART STYLE|"
                             "RING CHART STYLE|MENU BAR DISPLAY|ANIMATION SPEED|GLOW EFFECT|"
                             "CUSTOM COLOR OVERRIDES"));
}

TEST_F(SettingsControls, SwitchEachModuleOnAndOff) {
    for (const ModuleRow& row : moduleRows()) {
        const QByteArray setting = row.shown.toLatin1();
        QQuickItem* toggle = control(row.label, item("modules"));
        ASSERT_NE(toggle, nullptr);
        const bool before = valueOf(settings, setting).toBool();
        EXPECT_EQ(toggle->property("checked").toBool(), before);
        click(toggle);
        EXPECT_EQ(valueOf(settings, setting).toBool(), !before) << row.label.toStdString();
        doAction(toggle, QAccessibleActionInterface::toggleAction());
        EXPECT_EQ(valueOf(settings, setting).toBool(), before) << row.label.toStdString();
        settings.setProperty(setting, !before); // another program's doing
        EXPECT_EQ(toggle->property("checked").toBool(), !before);
    }
}

TEST_F(SettingsControls, SwitchTheOtherSettingsOnAndOff) {
    const QList<std::pair<QStringView, const char*>> switches{{u"Use Fahrenheit", "useFahrenheit"},
                                                              {u"Compact Mode", "compactMode"},
                                                              {u"Launch at Login", "launchAtLogin"}};
    for (const auto& [name, setting] : switches) {
        QQuickItem* toggle = control(name);
        click(toggle);
        EXPECT_TRUE(valueOf(settings, setting).toBool()) << setting;
        doAction(toggle, QAccessibleActionInterface::pressAction());
        EXPECT_FALSE(valueOf(settings, setting).toBool()) << setting;
        settings.setProperty(setting, true);
        EXPECT_TRUE(toggle->property("checked").toBool());
    }
}

TEST_F(SettingsControls, FollowASettingThatRevertsAtOnce) {
    QObject::connect(&settings, &SettingsStore::launchAtLoginChanged, &settings,
                     [this] { settings.setLaunchAtLogin(false); });
    QQuickItem* toggle = control(u"Launch at Login");
    click(toggle);
    EXPECT_FALSE(settings.launchAtLogin());
    EXPECT_FALSE(toggle->property("checked").toBool());
}

TEST_F(SettingsControls, StoreEveryChoiceOfEveryPicker) {
    for (const PickedSetting& picker : pickedSettings()) {
        const QList<Choice> choices = picker.choices();
        for (qsizetype index = choices.size() - 1; index >= 0; --index) {
            QQuickItem* button = control(choices[index].label, group(picker.group));
            ASSERT_NE(button, nullptr);
            click(button);
            EXPECT_EQ(valueOf(settings, picker.setting).toDouble(), choices[index].value.toDouble())
                << picker.setting << " " << choices[index].label.toStdString();
            EXPECT_TRUE(button->property("checked").toBool());
            EXPECT_EQ(group(picker.group)->property("chosenIndex").toInt(), index);
        }
    }
}

TEST_F(SettingsControls, FollowASettingThatChangesElsewhere) {
    for (const PickedSetting& picker : pickedSettings()) {
        const QList<Choice> choices = picker.choices();
        for (const Choice& choice : choices) {
            settings.setProperty(picker.setting, choice.value);
            QStringList chosen;
            for (const Choice& each : choices) {
                if (control(each.label, group(picker.group))->property("checked").toBool())
                    chosen.append(each.label);
            }
            EXPECT_EQ(chosen, QStringList(choice.label)) << picker.setting;
        }
    }
}

TEST_F(SettingsControls, CanBeChosenByAssistivePrograms) {
    for (const PickedSetting& picker : pickedSettings()) {
        for (const QString& action :
             {QAccessibleActionInterface::pressAction(), QAccessibleActionInterface::toggleAction()}) {
            for (const Choice& choice : picker.choices()) {
                QQuickItem* button = control(choice.label, group(picker.group));
                EXPECT_EQ(roleOf(button), QAccessible::RadioButton);
                doAction(button, action);
                EXPECT_EQ(valueOf(settings, picker.setting).toDouble(), choice.value.toDouble())
                    << picker.setting << " " << choice.label.toStdString();
                EXPECT_TRUE(button->property("checked").toBool());
            }
        }
    }
}

TEST_F(SettingsControls, StoreTheIntervalInSeconds) {
    click(control(u"10s"));
    EXPECT_EQ(settings.updateInterval(), 10.0);
    click(control(u"1s"));
    EXPECT_EQ(settings.updateInterval(), 1.0);
    QFile stored(path);
    ASSERT_TRUE(stored.open(QIODevice::ReadOnly));
    EXPECT_TRUE(stored.readAll().contains("updateInterval=1\n"));
}

TEST_F(SettingsControls, SelectNoSegmentForAnIntervalThatIsNotOffered) {
    settings.setUpdateInterval(4.0);
    EXPECT_EQ(group(u"Every")->property("chosenIndex").toInt(), -1);
    for (const QVariant& choice : Choices::updateIntervals())
        EXPECT_FALSE(control(choice.value<Choice>().label)->property("checked").toBool());
    EXPECT_EQ(settings.updateInterval(), 4.0) << "showing it does not change it";
    click(control(u"2s"));
    EXPECT_EQ(settings.updateInterval(), 2.0);
}

TEST_F(SettingsControls, ApplyAndStoreAPickedTheme) {
    for (const AppTheme& theme : builtInThemes()) {
        click(control(theme.name));
        EXPECT_EQ(themes.currentTheme().id, theme.id);
        EXPECT_EQ(settings.selectedThemeId(), theme.id);
    }
    settings.setSelectedThemeId(QStringLiteral("nord"));
    EXPECT_TRUE(control(u"Nord")->property("checked").toBool());
    settings.setSelectedThemeId(QStringLiteral("no such theme"));
    EXPECT_TRUE(control(u"Midnight")->property("checked").toBool());
    EXPECT_EQ(settings.selectedThemeId(), QStringLiteral("no such theme"));
}

TEST_F(SettingsControls, QuitTheProgram) {
    click(control(u"Quit"));
    EXPECT_EQ(quits, 1);
    doAction(control(u"Quit"), QAccessibleActionInterface::pressAction());
    EXPECT_EQ(quits, 2);
}

TEST_F(CustomColors, AreCollapsedWheneverTheWindowOpens) {
    EXPECT_FALSE(item("customColors")->property("active").toBool());
    EXPECT_EQ(item("chevron")->property("name").toString(), QStringLiteral("chevron.right"));
    openOverrides();
    EXPECT_TRUE(item("customColors")->property("active").toBool());
    EXPECT_EQ(item("chevron")->property("name").toString(), QStringLiteral("chevron.down"));
    view->close();
    open();
    EXPECT_FALSE(item("customColors")->property("active").toBool());
    doAction(item("disclosure"), QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(item("customColors")->property("active").toBool());
}

TEST_F(CustomColors, DoNotChangeTheSettingsWhenExpanded) {
    settings.setCustomCPUColorHex(QStringLiteral("no colour"));
    settings.setUseCustomCPUColor(true);
    QFile stored(path);
    ASSERT_TRUE(stored.open(QIODevice::ReadOnly));
    const QByteArray before = stored.readAll();
    openOverrides();
    openOverrides();
    openOverrides();
    QFile again(path);
    ASSERT_TRUE(again.open(QIODevice::ReadOnly));
    EXPECT_EQ(again.readAll(), before);
}

TEST_F(CustomColors, SwitchEachModulesOwnColor) {
    openOverrides();
    for (const ModuleRow& row : moduleRows()) {
        QQuickItem* toggle = item("switch", overrideRow(row.label));
        click(toggle);
        EXPECT_TRUE(valueOf(settings, row.useCustomColor.toLatin1()).toBool()) << row.label.toStdString();
        EXPECT_TRUE(item("well", overrideRow(row.label))->isVisible());
        settings.setProperty(row.useCustomColor.toLatin1(), false);
        EXPECT_FALSE(toggle->property("checked").toBool());
        EXPECT_FALSE(item("well", overrideRow(row.label))->isVisible());
    }
}

TEST_F(CustomColors, TintTheSymbolWithTheEffectiveColor) {
    settings.setCustomDiskColorHex(QStringLiteral("#FF8000"));
    openOverrides();
    const QQuickItem* toggle = item("switch", overrideRow(u"Disk"));
    EXPECT_EQ(toggle->property("symbolColor").value<QColor>().rgb(), themes.currentTheme().diskColor.rgb());
    settings.setUseCustomDiskColor(true);
    EXPECT_EQ(toggle->property("symbolColor").value<QColor>(), QColor(255, 128, 0));
    settings.setCustomDiskColorHex(QStringLiteral("nonsense"));
    EXPECT_EQ(toggle->property("symbolColor").value<QColor>().rgb(), themes.currentTheme().diskColor.rgb());
}

TEST_F(CustomColors, KeepTheLastChosenColorWhileSwitchedOff) {
    openOverrides();
    QQuickItem* toggle = item("switch", overrideRow(u"CPU"));
    click(toggle);
    settings.setCustomCPUColorHex(QStringLiteral("#123456"));
    click(toggle);
    EXPECT_FALSE(settings.useCustomCPUColor());
    EXPECT_EQ(settings.customCPUColorHex(), QStringLiteral("#123456"));
    click(toggle);
    EXPECT_EQ(item("well", overrideRow(u"CPU"))->property("color").value<QColor>(), QColor(0x12, 0x34, 0x56));
}

TEST_F(CustomColors, AreChosenBySlidersAndByDigits) {
    settings.setUseCustomCPUColor(true);
    openOverrides();
    QQuickItem* well = item("well", overrideRow(u"CPU"));
    EXPECT_EQ(well->width(), 24);
    EXPECT_EQ(well->height(), 18);
    click(well);
    settle();
    QQuickItem* hue = control(u"Hue");
    ASSERT_NE(hue, nullptr);
    EXPECT_EQ(settings.customCPUColorHex(), QString()) << "opening it chooses nothing";
    EXPECT_EQ(focused(), hue);
    press(Qt::Key_Right);
    const QString first = settings.customCPUColorHex();
    EXPECT_TRUE(hexToColor(first)) << first.toStdString();
    press(Qt::Key_Tab);
    EXPECT_EQ(nameOf(focused()), QStringLiteral("Saturation"));
    press(Qt::Key_Left);
    EXPECT_NE(settings.customCPUColorHex(), first);

    QQuickItem* digits = item("hex");
    digits->forceActiveFocus();
    digits->setProperty("text", QString());
    type("00ff8");
    EXPECT_NE(settings.customCPUColorHex(), QStringLiteral("#00FF80")) << "not yet a colour";
    type("0");
    EXPECT_EQ(settings.customCPUColorHex(), QStringLiteral("#00FF80"));
    EXPECT_NEAR(hue->property("value").toDouble(), 150.0 / 360, 0.005);
    type("zz");
    press(Qt::Key_Tab);
    EXPECT_EQ(digits->property("text").toString(), QStringLiteral("#00FF80")) << "reverted";
    EXPECT_EQ(focused(), hue) << "the focus stays in the picker";
    press(Qt::Key_Backtab);
    EXPECT_EQ(focused(), digits);

    settings.setCustomCPUColorHex(QStringLiteral("#0000FF"));
    EXPECT_NEAR(hue->property("value").toDouble(), 240.0 / 360, 0.005) << "chosen elsewhere";
    press(Qt::Key_Escape);
    settle();
    EXPECT_TRUE(view->isVisible()) << "Escape closes the picker alone";
    EXPECT_FALSE(well->property("isOpen").toBool());
    EXPECT_EQ(focused(), well);
}

TEST_F(CustomColors, FollowADragAtOnceWithFewWrites) {
    settings.setUseCustomCPUColor(true);
    openOverrides();
    click(item("well", overrideRow(u"CPU")));
    settle();
    QQuickItem* hue = control(u"Hue");
    const auto at = [hue](int x) { return hue->mapToScene({double(x), 9}).toPoint(); };
    QStringList written{settingsText()};
    QStringList shown;
    QElapsedTimer time;
    time.start();
    QTest::mousePress(view.get(), Qt::LeftButton, {}, at(9));
    for (int x = 9; x < 180; x += 3) {
        QTest::mouseMove(view.get(), at(x));
        shown.append(themes.cpuColor(settings).name());
        if (settingsText() != written.last())
            written.append(settingsText());
    }
    QTest::mouseRelease(view.get(), Qt::LeftButton, {}, at(180));
    shown.removeDuplicates();
    EXPECT_GT(shown.size(), 40);
    EXPECT_LE(written.size(), 3 + time.elapsed() / SettingsStore::tuningInterval.count());
    EXPECT_TRUE(waitUntil([&] { return settingsText().contains(settings.customCPUColorHex()); }));
}

TEST_F(CustomColors, KeepTheHueOfAColorThatTurnsGray) {
    settings.setUseCustomCPUColor(true);
    settings.setCustomCPUColorHex(QStringLiteral("#0000FF"));
    openOverrides();
    click(item("well", overrideRow(u"CPU")));
    settle();
    QQuickItem* saturation = control(u"Saturation");
    saturation->forceActiveFocus();
    for (int count = 0; count < 110; ++count)
        press(Qt::Key_Left);
    EXPECT_EQ(settings.customCPUColorHex(), QStringLiteral("#FFFFFF"));
    for (int count = 0; count < 110; ++count)
        press(Qt::Key_Right);
    EXPECT_EQ(settings.customCPUColorHex(), QStringLiteral("#0000FF"));
}

TEST_F(SettingsNotices, ReportASettingThatCouldNotBeSaved) {
    QQuickItem* notice = item("saveNotice");
    EXPECT_FALSE(notice->isVisible());
    QFile::remove(path);
    ASSERT_TRUE(QDir().mkpath(path)); // a folder stands in the file's place
    click(control(u"Use Fahrenheit"));
    EXPECT_TRUE(settings.useFahrenheit());
    EXPECT_TRUE(notice->isVisible());
    EXPECT_EQ(notice->property("text").toString(),
              QStringLiteral("Settings could not be saved: %1 is a folder").arg(path));
    ASSERT_TRUE(QDir().rmdir(path));
    click(control(u"Compact Mode"));
    EXPECT_FALSE(notice->isVisible());
}

TEST_F(SettingsNotices, ReportThatLaunchingAtLoginFailed) {
    QQuickItem* notice = item("loginNotice");
    EXPECT_FALSE(notice->isVisible());
    login.error = QStringLiteral("It cannot be.");
    Q_EMIT login.errorChanged();
    EXPECT_TRUE(notice->isVisible());
    EXPECT_EQ(nameOf(notice), QStringLiteral("It cannot be."));
    settle();
    EXPECT_GE(item("scroller")->y(), notice->height());
}

TEST_F(SettingsNotices, OfferTheSystemsSettingsWhileLaunchingAtLoginWaitsForApproval) {
    QQuickItem* notice = item("loginApproval");
    EXPECT_FALSE(notice->isVisible());
    login.needsApproval = true;
    Q_EMIT login.needsApprovalChanged();
    EXPECT_TRUE(notice->isVisible());
    settle();
    const QQuickItem* launchSwitch = item("launchAtLogin");
    EXPECT_GE(notice->mapToScene({0, 0}).y(), launchSwitch->mapToScene({0, launchSwitch->height()}).y());
    click(item("approvalButton"));
    EXPECT_EQ(login.requests, 1);
}

} // namespace
} // namespace orvelle
