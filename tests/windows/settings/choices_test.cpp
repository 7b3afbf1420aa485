#include "settings/settings_store.h"
#include "theme/app_theme.h"
#include "windows/settings/choices.h"

#include <QMetaEnum>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

QStringList labels(const QVariantList& choices) {
    QStringList texts;
    for (const QVariant& choice : choices)
        texts.append(choice.value<Choice>().label);
    return texts;
}

QStringList words(const char* text) {
    return QString::fromLatin1(text).split(u'|');
}

/// Expects each case of the enumeration once, in the order of its declaration.
template <class Enum>
void expectEveryCase(const QVariantList& choices) {
    const QMetaEnum cases = QMetaEnum::fromType<Enum>();
    ASSERT_EQ(choices.size(), cases.keyCount());
    for (int index = 0; index < cases.keyCount(); ++index)
        EXPECT_EQ(choices[index].value<Choice>().value, QVariant(cases.value(index))) << cases.key(index);
}

TEST(ChoicesTest, OfferEveryCaseOfAStyleInTheOrderOfItsDeclaration) {
    expectEveryCase<SettingsStore::CPUDisplayMode>(Choices::cpuDisplayModes());
    expectEveryCase<GraphLineStyle>(Choices::graphLineStyles());
    expectEveryCase<GraphFillStyle>(Choices::graphFillStyles());
    expectEveryCase<BarChartStyle>(Choices::barChartStyles());
    expectEveryCase<RingChartStyle>(Choices::ringChartStyles());
    expectEveryCase<MenuBarDisplayStyle>(Choices::menuBarDisplayStyles());
    expectEveryCase<AnimationSpeed>(Choices::animationSpeeds());
    expectEveryCase<GlowIntensity>(Choices::glowIntensities());
}

TEST(ChoicesTest, HaveTheirTexts) {
    EXPECT_EQ(labels(Choices::cpuDisplayModes()), words("Bar Chart|Percentage"));
    EXPECT_EQ(labels(Choices::updateIntervals()), words("1s|2s|3s|5s|10s"));
    EXPECT_EQ(labels(Choices::graphLineStyles()), words("Smooth|Sharp|Stepped|Dotted"));
    EXPECT_EQ(labels(Choices::graphFillStyles()), words("Gradient|Solid|None|Striped"));
    EXPECT_EQ(labels(Choices::barChartStyles()), words("Rounded|Square|Pill|Thin Lines"));
    EXPECT_EQ(labels(Choices::ringChartStyles()), words("Full Ring|Half Gauge|Arc Gauge|Pie Chart"));
    EXPECT_EQ(labels(Choices::menuBarDisplayStyles()),
              words("Mini Bars|Text Only|Icon + Text|Sparkline|Dot Indicators"));
    EXPECT_EQ(labels(Choices::animationSpeeds()), words("Slow|Normal|Fast|Instant"));
    EXPECT_EQ(labels(Choices::glowIntensities()), words("None|Subtle|Medium|Intense"));
}

TEST(ChoicesTest, OfferFiveIntervalsInSeconds) {
    QList<double> seconds;
    for (const QVariant& choice : Choices::updateIntervals())
        seconds.append(choice.value<Choice>().value.toDouble());
    EXPECT_EQ(seconds, (QList<double>{1, 2, 3, 5, 10}));
}

TEST(ChoicesTest, HaveSymbolsForTheMenuBarsDisplayStyles) {
    QStringList symbols;
    for (const QVariant& choice : Choices::menuBarDisplayStyles())
        symbols.append(choice.value<Choice>().symbol);
    EXPECT_EQ(symbols, words("chart.bar.fill|textformat.size|text.badge.star|waveform.path|"
                             "circle.grid.2x1.fill"));
}

TEST(ModuleRowsTest, NameExistingModulesAndProperties) {
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
