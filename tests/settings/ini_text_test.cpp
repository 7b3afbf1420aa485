#include "settings/ini_text.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

/// The value under the key `a`, invalid where the text has no plain one.
QVariant valueIn(const QByteArray& text) {
    return IniText::parse(text, {u"a"_s}).value(u"a"_s);
}

QVariant valueOf(const QByteArray& value) {
    return valueIn("[General]\na=" + value + '\n');
}

TEST(IniTextTest, PlainValuesAreTexts) {
    EXPECT_EQ(valueOf("neon"), u"neon"_s);
    EXPECT_EQ(valueOf("  two words \t"), u"two words"_s);
    EXPECT_EQ(valueOf(""), u""_s);
    EXPECT_EQ(valueOf("#FF8000"), u"#FF8000"_s);
    EXPECT_EQ(valueOf("x=y"), u"x=y"_s);
    EXPECT_EQ(valueOf("gr\xC3\xBCn"), u"grün"_s);
    EXPECT_EQ(valueOf("3 ; seconds"), u"3"_s);
}

TEST(IniTextTest, QuotedValuesKeepBlanksAndEscapes) {
    EXPECT_EQ(valueOf(R"(" a, b; ")"), u" a, b; "_s);
    EXPECT_EQ(valueOf(R"("\"\\\n\r\t\x41\x00e4\x3b1z")"), u"\"\\\n\r\tA\u00e4\u03b1z"_s);
    EXPECT_EQ(valueOf(R"("a" ; a comment)"), u"a"_s);
    EXPECT_EQ(valueOf(R"("@@home")"), u"@home"_s);
}

TEST(IniTextTest, ValuesThatAreNoPlainTextAreLeftOut) {
    for (const char* value :
         {"a, b", "@Invalid()", "@Variant(\\0\\0\\0\\x7f)", "\"@Variant(\\x0\\x0)\"", "@ByteArray(x)", "@",
          "@Rect(0 0 1 1)", "\"open", "\"", "\"\\\"", "\"a\" b", "\"a\"\"b\"", "\"\\q\"", "\"\\x\"", "a\\nb"})
        EXPECT_FALSE(valueOf(value).isValid()) << value;
}

TEST(IniTextTest, OnlyTheGeneralSectionCounts) {
    EXPECT_EQ(valueIn("a=1\n[Other]\na=2\n"), u"1"_s);
    EXPECT_EQ(valueIn("[Other]\na=2\n[General]\na=3"), u"3"_s);
    EXPECT_EQ(valueIn(" [general] \na=3"), u"3"_s);
    EXPECT_EQ(valueIn("[Other]\n[General] ; again\na=4"), u"4"_s);
    EXPECT_FALSE(valueIn("[Other]\na=2\n").isValid());
    EXPECT_FALSE(valueIn("[General\na=2\n").isValid());
    EXPECT_FALSE(valueIn("[Generals]\na=2\n").isValid());
}

TEST(IniTextTest, CommentsAndBrokenLinesAreNoValues) {
    EXPECT_FALSE(valueIn("#a=1\n;a=1\na\nA=1\naa=1\n=1\n").isValid());
}

TEST(IniTextTest, TheLastOfEqualKeysCounts) {
    EXPECT_EQ(valueIn("a=1\na=2\n"), u"2"_s);
    EXPECT_FALSE(valueIn("a=1\na=@Invalid()\n").isValid());
}

TEST(IniTextTest, LineEndsAndAByteOrderMarkDoNotMatter) {
    EXPECT_EQ(valueIn("\xEF\xBB\xBF[General]\r\na=1\r\n"), u"1"_s);
    EXPECT_EQ(valueIn("\xEF\xBB\xBF"
                      "a=1"),
              u"1"_s);
}

TEST(IniTextTest, KeysThatAreNotAskedForAreLeftOut) {
    EXPECT_EQ(IniText::parse("a=1\nb=2\n", {u"b"_s, u"c"_s}), (StoredValues{{u"b"_s, u"2"_s}}));
}

TEST(IniTextTest, AnEmptyTextGetsASection) {
    EXPECT_EQ(IniText::withValues("", {{u"b"_s, true}, {u"a"_s, 2.5}}), "[General]\na=2.5\nb=true\n");
}

TEST(IniTextTest, NewKeysStandAtTheEndOfTheirSection) {
    EXPECT_EQ(IniText::withValues("[General]\nb=1\n\n[Other]\na=2\n", {{u"a"_s, false}}),
              "[General]\nb=1\na=false\n\n[Other]\na=2\n");
    EXPECT_EQ(IniText::withValues("[Other]\na=2", {{u"a"_s, false}}), "[Other]\na=2\n[General]\na=false\n");
    EXPECT_EQ(IniText::withValues("[General]", {{u"a"_s, false}}), "[General]\na=false");
}

TEST(IniTextTest, OnlyTheLineOfTheKeyIsRewritten) {
    const QByteArray before =
        "; by hand\r\n [General]\r\n  z = @Variant(\\0\\0\\xff)\r\na = old ; why\r\nq=\xFF\xFE\r\n";
    const QByteArray after =
        "; by hand\r\n [General]\r\n  z = @Variant(\\0\\0\\xff)\r\na=new\r\nq=\xFF\xFE\r\n";
    EXPECT_EQ(IniText::withValues(before, {{u"a"_s, u"new"_s}}), after);
}

TEST(IniTextTest, OfEqualKeysTheOneThatCountsIsRewritten) {
    EXPECT_EQ(IniText::withValues("a=1\na=2\n", {{u"a"_s, u"3"_s}}), "a=1\na=3\n");
}

TEST(IniTextTest, ChangedAndNewKeysGoInTogether) {
    EXPECT_EQ(
        IniText::withValues("[General]\na=1\nb=2", {{u"b"_s, u"20"_s}, {u"a"_s, u"10"_s}, {u"c"_s, u"30"_s}}),
        "[General]\na=10\nb=20\nc=30");
}

TEST(IniTextTest, EveryTextComesBackAsItWasWritten) {
    QStringList texts{u""_s, u"nord"_s, u" blanks "_s, u"a,b;c"_s, u"\"q\" \\ \\x41"_s, u"@home"_s, u"@@"_s};
    texts.append({u"#FF8000"_s, u"[General]"_s, u"a=b\n[X]\na=c"_s, u"\0\x1f\x7f"_s, u"true"_s});
    texts.append(u"grün \U0001F44D"_s);
    texts.append(QString(QChar(0xD800)) + u"41"_s); // half of a pair, which UTF-8 cannot hold
    for (const QString& text : texts) {
        const QByteArray file = IniText::withValues("[General]\nb=1\n", {{u"a"_s, text}});
        EXPECT_EQ(valueIn(file), text) << file.toStdString();
        EXPECT_EQ(file.count('\n'), 3) << file.toStdString();
    }
}

TEST(IniTextTest, NumbersComeBackToTheLastBit) {
    for (const double number : {3.0, 0.1, 1.0 / 3.0, 5e-324, 86400.0, 12345.678901234567}) {
        const QByteArray file = IniText::withValues("", {{u"a"_s, number}});
        EXPECT_EQ(valueIn(file).toString().toDouble(), number) << file.toStdString();
    }
}

} // namespace
} // namespace orvelle
