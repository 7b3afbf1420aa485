#include "theme/colors.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

constexpr QColor grey(10, 20, 30);

TEST(OpacityTest, MultipliesTheColorsOwnOpacity) {
    EXPECT_EQ(withOpacity(grey, 0.4).rgba(), qRgba(10, 20, 30, 102));
    EXPECT_EQ(withOpacity(QColor(10, 20, 30, 51), 0.5).rgba(), qRgba(10, 20, 30, 26));
    EXPECT_EQ(withOpacity(QColor(10, 20, 30, 51), 1).rgba(), qRgba(10, 20, 30, 51));
    EXPECT_EQ(withOpacity(QColor(10, 20, 30, 0), 0.5).alpha(), 0);
}

TEST(OpacityTest, StaysBetweenTransparentAndOpaque) {
    EXPECT_EQ(withOpacity(grey, 0).alpha(), 0);
    EXPECT_EQ(withOpacity(grey, -1).alpha(), 0);
    EXPECT_EQ(withOpacity(grey, 2), grey);
}

TEST(HexColorTest, IgnoresNumberSignsAndSurroundingWhiteSpace) {
    const QColor orange(255, 128, 0);
    for (const QString& text : {u"#FF8000"_s, u" ff8000 "_s, u"\t\nff8000\r\n"_s, u"FF#8000"_s,
                                u"##FF8000#"_s, u"\u00a0\u2003#Ff8000\u2029"_s})
        EXPECT_EQ(hexToColor(text), orange) << text.toStdString();
    const QColor color = hexToColor(u"#FF8000"_s).value();
    EXPECT_FLOAT_EQ(color.redF(), 1.0F);
    EXPECT_FLOAT_EQ(color.greenF(), 128.0F / 255.0F);
    EXPECT_FLOAT_EQ(color.blueF(), 0.0F);
    EXPECT_FLOAT_EQ(color.alphaF(), 1.0F);
}

TEST(HexColorTest, RejectsAnythingButSixCharacters) {
    for (const QString& text : {u""_s, u"#"_s, u"   "_s, u"#FFF"_s, u"#FF80001"_s, u"FF 8000"_s, u"#FF800"_s,
                                u"\u00e4\u00e4\u00e4"_s, u"# FF8000"_s})
        EXPECT_EQ(hexToColor(text), std::nullopt) << text.toStdString();
}

TEST(HexColorTest, EndsTheNumberAtTheFirstCharacterThatIsNoDigit) {
    EXPECT_EQ(hexToColor(u"12ZZ34"_s), QColor(0, 0, 0x12));
    EXPECT_EQ(hexToColor(u"1234-5"_s), QColor(0, 0x12, 0x34));
    EXPECT_EQ(hexToColor(u"abc de"_s), QColor(0, 0x0a, 0xbc));
}

TEST(HexColorTest, SkipsAPrefixAndLeadingBlanks) {
    EXPECT_EQ(hexToColor(u"0xFFFF"_s), QColor(0, 255, 255));
    EXPECT_EQ(hexToColor(u"0X12ZZ"_s), QColor(0, 0, 0x12));
    EXPECT_EQ(hexToColor(u"# FF800"_s), QColor(0x0F, 0xF8, 0x00));
}

TEST(HexColorTest, RejectsATextWithoutADigit) {
    for (const QString& text :
         {u"ZZZZZZ"_s, u"-FF800"_s, u"+FF800"_s, u"0xZZZZ"_s, u"\uff11\uff12\uff13\uff14\uff15\uff16"_s})
        EXPECT_EQ(hexToColor(text), std::nullopt) << text.toStdString();
}

TEST(HexColorTest, CountsCharactersNotBytesOrCodeUnits) {
    EXPECT_EQ(hexToColor(u"12\u00e4345"_s), QColor(0, 0, 0x12));
    EXPECT_EQ(hexToColor(u"12345\U0001F44D"_s), QColor(0x01, 0x23, 0x45));
    EXPECT_EQ(hexToColor(u"12z\u030845"_s + u"6"_s), QColor(0, 0, 0x12));
}

TEST(HexColorTest, WritesTwoUpperCaseDigitsPerComponent) {
    EXPECT_EQ(colorToHex(QColor(255, 0, 0)), u"#FF0000"_s);
    EXPECT_EQ(colorToHex(QColor(0, 10, 171)), u"#000AAB"_s);
    EXPECT_EQ(colorToHex(QColor(1, 2, 3, 0)), u"#010203"_s);
}

TEST(HexColorTest, RoundsComponentsDown) {
    EXPECT_EQ(colorToHex(QColor::fromRgbF(0.999F, 0.0F, 0.0F)), u"#FE0000"_s);
    EXPECT_EQ(colorToHex(QColor::fromRgbF(0.5F, 0.0039F, 1.0F)), u"#7F00FF"_s);
}

TEST(HexColorTest, RoundsEveryComponentOfThreeDecimalsDown) {
    for (int thousandths = 0; thousandths <= 1000; ++thousandths) {
        const double component = thousandths / 1000.0;
        const QString expected = QString::asprintf("#%02X0000", static_cast<unsigned>(component * 255.0));
        EXPECT_EQ(colorToHex(QColor::fromRgbF(static_cast<float>(component), 0, 0)), expected) << component;
    }
}

TEST(HexColorTest, RestoresEveryStepFromItsText) {
    for (int step = 0; step < 256; ++step) {
        const QColor color(step, 255 - step, step);
        EXPECT_EQ(hexToColor(colorToHex(color)), color) << step;
        const float fraction = static_cast<float>(step) / 255.0F;
        EXPECT_EQ(colorToHex(QColor::fromRgbF(fraction, fraction, fraction)),
                  QString::asprintf("#%02X%02X%02X", unsigned(step), unsigned(step), unsigned(step)));
    }
}

TEST(HexColorTest, ConvertsColorsOfAnotherKindAndWritesAnInvalidOneAsWhite) {
    EXPECT_EQ(colorToHex(QColor::fromHsvF(0.0F, 1.0F, 1.0F)), u"#FF0000"_s);
    EXPECT_EQ(colorToHex(QColor::fromRgbF(1.5F, -0.5F, 0.0F)), u"#FF0000"_s);
    EXPECT_EQ(colorToHex(QColor()), u"#FFFFFF"_s);
}

} // namespace
} // namespace orvelle
