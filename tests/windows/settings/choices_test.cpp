#include "settings/settings_store.h"
#include "theme/app_theme.h"
#include "windows/settings/choices.h"

#include <QMetaEnum>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

QStringList labels(const QList<Choice>& choices) {
    QStringList texts;
    for (const Choice& choice : choices)
        texts.append(choice.label);
    return texts;
}

QStringList words(const char* text) {
    return QString::fromLatin1(text).split(u'|');
}

/// Every case of the enumeration is offered once, in the order of its declaration.
template <class Enum>
void expectEveryCase(const QList<Choice>& choices) {
    const QMetaEnum cases = QMetaEnum::fromType<Enum>();
    ASSERT_EQ(choices.size(), cases.keyCount());
    for (int index = 0; index < cases.keyCount(); ++index)
        EXPECT_EQ(choices[index].value, QVariant(cases.value(index))) << cases.key(index);
}

TEST(ChoicesTest, OfferEveryCaseOfAStyleInTheOrderOfItsDeclaration) {
    expectEveryCase<SettingsStore::CPUDisplayMode>(cpuDisplayModeChoices());
    expectEveryCase<GraphLineStyle>(graphLineStyleChoices());
    expectEveryCase<GraphFillStyle>(graphFillStyleChoices());
    expectEveryCase<BarChartStyle>(barChartStyleChoices());
    expectEveryCase<RingChartStyle>(ringChartStyleChoices());
    expectEveryCase<MenuBarDisplayStyle>(menuBarDisplayStyleChoices());
    expectEveryCase<AnimationSpeed>(animationSpeedChoices());
    expectEveryCase<GlowIntensity>(glowIntensityChoices());
}

TEST(ChoicesTest, HaveTheirTexts) {
    EXPECT_EQ(labels(cpuDisplayModeChoices()), words("Bar Chart|Percentage"));
    EXPECT_EQ(labels(updateIntervalChoices()), words("1s|2s|3s|5s|10s"));
    EXPECT_EQ(labels(graphLineStyleChoices()), words("Smooth|Sharp|Stepped|Dotted"));
    EXPECT_EQ(labels(graphFillStyleChoices()), words("Gradient|Solid|None|Striped"));
    EXPECT_EQ(labels(barChartStyleChoices()), words("Rounded|Square|Pill|Thin Lines"));
    EXPECT_EQ(labels(ringChartStyleChoices()), words("Full Ring|Half Gauge|Arc Gauge|Pie Chart"));
    EXPECT_EQ(labels(menuBarDisplayStyleChoices()),
              words("Mini Bars|Text Only|Icon + Text|Sparkline|Dot Indicators"));
    EXPECT_EQ(labels(animationSpeedChoices()), words("Slow|Normal|Fast|Instant"));
    EXPECT_EQ(labels(glowIntensityChoices()), words("None|Subtle|Medium|Intense"));
}

TEST(ChoicesTest, OfferFiveIntervalsInSeconds) {
    QList<double> seconds;
    for (const Choice& choice : updateIntervalChoices())
        seconds.append(choice.value.toDouble());
    EXPECT_EQ(seconds, (QList<double>{1, 2, 3, 5, 10}));
}

TEST(ChoicesTest, GiveTheDisplaysOfTheMenuBarTheirSymbols) {
    QStringList symbols;
    for (const Choice& choice : menuBarDisplayStyleChoices())
        symbols.append(choice.symbol);
    EXPECT_EQ(symbols, words("chart.bar.fill|textformat.size|text.badge.star|waveform.path|"
                             "circle.grid.2x1.fill"));
}

TEST(ModuleRowsTest, NameTheModulesAndPropertiesThatExist) {
    QStringList names;
    QStringList icons;
    for (const ModuleRow& row : moduleRows()) {
        names.append(row.label);
        icons.append(row.icon);
        for (const QString& property : {row.shown, row.useCustomColor, row.customColorHex})
            EXPECT_GE(SettingsStore::staticMetaObject.indexOfProperty(property.toLatin1()), 0)
                << property.toStdString();
        EXPECT_GE(AppTheme::staticMetaObject.indexOfProperty(row.themeColor.toLatin1()), 0)
            << row.themeColor.toStdString();
    }
    EXPECT_EQ(names, words("CPU|Memory|Network|Disk|Battery|Sensors"));
    EXPECT_EQ(icons, words("cpu|memorychip|network|internaldrive|battery.100|thermometer"));
}

} // namespace
} // namespace orvelle
