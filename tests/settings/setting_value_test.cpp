#include "settings/setting_value.h"
#include "settings/styles.h"
#include "support/odd_numbers.h"

#include <QLocale>
#include <QRect>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

TEST(SettingValueTest, ReadsASwitchFromTheUsualWordsInAnyCase) {
    for (const QString& word : {u"true"_s, u"TRUE"_s, u"yes"_s, u"Yes"_s, u"on"_s, u"1"_s})
        EXPECT_EQ(parseSetting<bool>(word), true) << word.toStdString();
    for (const QString& word : {u"false"_s, u"False"_s, u"no"_s, u"NO"_s, u"off"_s, u"0"_s})
        EXPECT_EQ(parseSetting<bool>(word), false) << word.toStdString();
}

TEST(SettingValueTest, ReadsASwitchFromTheTypesOfAPreferencesDatabase) {
    EXPECT_EQ(parseSetting<bool>(true), true);
    EXPECT_EQ(parseSetting<bool>(false), false);
    EXPECT_EQ(parseSetting<bool>(1), true);
    EXPECT_EQ(parseSetting<bool>(0LL), false);
    EXPECT_EQ(parseSetting<bool>(1.0), true);
}

TEST(SettingValueTest, RejectsASwitchOfAnotherForm) {
    for (const QVariant& stored :
         {QVariant(), QVariant(u""_s), QVariant(u"maybe"_s), QVariant(u"2"_s), QVariant(2), QVariant(-1),
          QVariant(0.5), QVariant(notANumber), QVariant(QStringList{u"true"_s}), QVariant(QVariantMap{}),
          QVariant(QRect())})
        EXPECT_EQ(parseSetting<bool>(stored), std::nullopt) << stored.typeName();
}

TEST(SettingValueTest, ReadsSecondsWithADecimalPointInEveryLocale) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(parseSetting<double>(u"2.5"_s), 2.5);
    EXPECT_EQ(parseSetting<double>(u"2,5"_s), std::nullopt);
    QLocale::setDefault(before);
}

TEST(SettingValueTest, ReadsSecondsFromTextsAndNumbers) {
    EXPECT_EQ(parseSetting<double>(u"10"_s), 10.0);
    EXPECT_EQ(parseSetting<double>(u"1e1"_s), 10.0);
    EXPECT_EQ(parseSetting<double>(u"0.001"_s), 0.001);
    EXPECT_EQ(parseSetting<double>(5), 5.0);
    EXPECT_EQ(parseSetting<double>(5.0F), 5.0);
    EXPECT_EQ(parseSetting<double>(u"86400"_s), maximumIntervalSeconds);
}

TEST(SettingValueTest, RejectsSecondsOutOfRange) {
    for (const QString& text :
         {u"0"_s, u"-0"_s, u"-3"_s, u"nan"_s, u"inf"_s, u"-inf"_s, u"infinity"_s, u"86400.001"_s, u"1e300"_s,
          u"1e999"_s, u"1e-999"_s, u""_s, u"3s"_s, u"0x10"_s})
        EXPECT_EQ(parseSetting<double>(text), std::nullopt) << text.toStdString();
    for (const double number : {0.0, -3.0, notANumber, infinity, -infinity, 86401.0})
        EXPECT_EQ(parseSetting<double>(number), std::nullopt) << number;
}

TEST(SettingValueTest, RejectsSecondsOfAnotherType) {
    EXPECT_EQ(parseSetting<double>(QVariant()), std::nullopt);
    EXPECT_EQ(parseSetting<double>(true), std::nullopt);
    EXPECT_EQ(parseSetting<double>(QStringList{u"3"_s}), std::nullopt);
    EXPECT_EQ(parseSetting<double>(QByteArray("3")), std::nullopt);
}

TEST(SettingValueTest, ReadsATextUnchanged) {
    EXPECT_EQ(parseSetting<QString>(u"nord"_s), u"nord"_s);
    EXPECT_EQ(parseSetting<QString>(u""_s), u""_s);
    EXPECT_EQ(parseSetting<QString>(u" ä\n\u4e16 "_s), u" ä\n\u4e16 "_s);
}

TEST(SettingValueTest, RejectsATextOfAnotherTypeOrAboveTheMaximumLength) {
    EXPECT_EQ(parseSetting<QString>(QVariant()), std::nullopt);
    EXPECT_EQ(parseSetting<QString>(3), std::nullopt);
    EXPECT_EQ(parseSetting<QString>(QStringList{u"nord"_s}), std::nullopt);
    EXPECT_TRUE(parseSetting<QString>(QString(maximumTextLength, u'a')).has_value());
    EXPECT_EQ(parseSetting<QString>(QString(maximumTextLength + 1, u'a')), std::nullopt);
}

TEST(SettingValueTest, ReadsACaseByItsExactName) {
    EXPECT_EQ(parseSetting<GlowIntensity>(u"intense"_s), GlowIntensity::intense);
    for (const QString& name : {u""_s, u"Intense"_s, u"intense "_s, u"3"_s, u"GlowIntensity::intense"_s,
                                u"none|intense"_s, u"blinding"_s, u"intense\0x"_s, u"\u00ef"_s})
        EXPECT_EQ(parseSetting<GlowIntensity>(name), std::nullopt) << name.toStdString();
    EXPECT_EQ(parseSetting<GlowIntensity>(3), std::nullopt);
    EXPECT_EQ(parseSetting<GlowIntensity>(QVariant()), std::nullopt);
}

template <class Enum>
void expectCases(const QStringList& names) {
    const auto cases = QMetaEnum::fromType<Enum>();
    ASSERT_EQ(cases.keyCount(), names.size()) << cases.name();
    for (int index = 0; index < cases.keyCount(); ++index) {
        const auto value = static_cast<Enum>(index);
        EXPECT_EQ(storedForm(value), QVariant(names.at(index)));
        EXPECT_EQ(parseSetting<Enum>(names.at(index)), value);
        EXPECT_TRUE(isLegalSetting(value));
    }
    EXPECT_FALSE(isLegalSetting(static_cast<Enum>(names.size())));
    EXPECT_FALSE(isLegalSetting(static_cast<Enum>(-1)));
}

TEST(SettingValueTest, StoresEveryStyleByTheNamesOfItsCasesInOrder) {
    expectCases<MenuBarDisplayStyle>(
        {u"miniBars"_s, u"textOnly"_s, u"iconAndText"_s, u"sparkline"_s, u"dotIndicator"_s});
    expectCases<GraphLineStyle>({u"smooth"_s, u"sharp"_s, u"stepped"_s, u"dotted"_s});
    expectCases<GraphFillStyle>({u"gradient"_s, u"solid"_s, u"none"_s, u"striped"_s});
    expectCases<BarChartStyle>({u"rounded"_s, u"square"_s, u"pill"_s, u"thinLine"_s});
    expectCases<RingChartStyle>({u"fullRing"_s, u"halfGauge"_s, u"arcGauge"_s, u"pieChart"_s});
    expectCases<AnimationSpeed>({u"slow"_s, u"normal"_s, u"fast"_s, u"instant"_s});
    expectCases<GlowIntensity>({u"none"_s, u"subtle"_s, u"medium"_s, u"intense"_s});
}

} // namespace
} // namespace orvelle
