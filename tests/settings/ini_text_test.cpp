#include "settings/ini_text.h"
#include "support/temporary_settings.h"

#include <QSettings>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

using Values = QHash<QString, QString>;

/// The plain text of the key `a`, null if it is absent.
QString valueIn(const QByteArray& text) {
    return IniText::values(text, {u"a"_s}).value(u"a"_s);
}

bool hasValue(const QByteArray& text) {
    return IniText::values(text, {u"a"_s}).contains(u"a"_s);
}

QString valueOf(const QByteArray& value) {
    return valueIn("[General]\na=" + value + '\n');
}

/// The text with `new` as the value of `a`.
QByteArray changed(const QByteArray& text) {
    return IniText::withValues(text, {{u"a"_s, u"new"_s}});
}

const QStringList& texts() {
    static const QStringList all{u""_s,
                                 u"nord"_s,
                                 u" blanks "_s,
                                 u"a,b;c"_s,
                                 u"\"q\" \\ \\x41"_s,
                                 u"@home"_s,
                                 u"@@"_s,
                                 u"#FF8000"_s,
                                 u"[General]"_s,
                                 u"a=b\n[X]\na=c"_s,
                                 u"\x1f\x7f"_s,
                                 u"\x01"_s + u"a\x02,41g"_s, // digits behind an escape
                                 u"\0z"_s,
                                 u"true"_s,
                                 u"gr\u00fcn \U0001F44D"_s,
                                 QString(QChar(0xD800)) + u"41"_s}; // half of a pair, which UTF-8 cannot hold
    return all;
}

TEST(IniTextTest, ReadsPlainValues) {
    EXPECT_EQ(valueOf("neon"), u"neon"_s);
    EXPECT_EQ(valueOf("  two words \t"), u"two words"_s);
    EXPECT_EQ(valueOf(""), u""_s);
    EXPECT_TRUE(hasValue("a="));
    EXPECT_EQ(valueOf("#FF8000"), u"#FF8000"_s);
    EXPECT_EQ(valueOf("x=y"), u"x=y"_s);
    EXPECT_EQ(valueOf("gr\xC3\xBCn"), u"grün"_s);
    EXPECT_EQ(valueOf("3 ; seconds"), u"3"_s);
    EXPECT_EQ(valueOf(R"(a\nb)"), u"a\nb"_s);
}

TEST(IniTextTest, ReadsBlanksAndEscapesInQuotes) {
    EXPECT_EQ(valueOf(R"(" a, b; ")"), u" a, b; "_s);
    EXPECT_EQ(valueOf(R"("\"\\\n\r\t\x41\x00e4\x3b1z")"), u"\"\\\n\r\tA\u00e4\u03b1z"_s);
    EXPECT_EQ(valueOf(R"("a" ; a comment)"), u"a"_s);
    EXPECT_EQ(valueOf(R"("@@home")"), u"@home"_s);
}

TEST(IniTextTest, TreatsValuesThatAreNoPlainTextAsAbsent) {
    for (const char* value : {"a, b", "@Invalid()", "@Variant(\\0\\0\\0\\x7f)", "\"@Variant(\\x0\\x0)\"",
                              "@ByteArray(x)", "@", "@Rect(0 0 1 1)", "\"open", "\"", "\"\\\"", "\"a\" b",
                              "\"a\"\"b\"", "\"\\q\"", "\"\\x\"", "a\\", "gr\xFCn"}) {
        EXPECT_FALSE(hasValue(QByteArray("a=") + value)) << value;
        const QByteArray text = QByteArray("a=") + value + "\nb=1\n";
        EXPECT_EQ(IniText::withValues(text, {{u"b"_s, u"2"_s}}), QByteArray("a=") + value + "\nb=2\n");
        EXPECT_EQ(changed(text), "a=new\nb=1\n");
    }
}

TEST(IniTextTest, ReadsTheGeneralSectionOnly) {
    EXPECT_EQ(valueIn("a=1\n[Other]\na=2\n"), u"1"_s);
    EXPECT_EQ(valueIn("[Other]\na=2\n[General]\na=3"), u"3"_s);
    EXPECT_EQ(valueIn(" [general] \na=3"), u"3"_s);
    EXPECT_EQ(valueIn("[Other]\n[General] ; again\na=4"), u"4"_s);
    EXPECT_FALSE(hasValue("[Other]\na=2\n"));
    EXPECT_FALSE(hasValue("[General\na=2\n"));
    EXPECT_FALSE(hasValue("[Generals]\na=2\n"));
    EXPECT_FALSE(hasValue("[General]a=1\n"));
}

TEST(IniTextTest, IgnoresCommentsAndBrokenLines) {
    EXPECT_FALSE(hasValue("#a=1\n;a=1\na\nA=1\naa=1\n=1\n"));
}

TEST(IniTextTest, ReadsTheLastOfEqualKeys) {
    EXPECT_EQ(valueIn("a=1\na=2\n"), u"2"_s);
    EXPECT_FALSE(hasValue("a=1\na=@Invalid()\n"));
    EXPECT_EQ(changed("a=1\na=2\n"), "a=1\na=new\n");
}

TEST(IniTextTest, AcceptsAnyLineEndAndAByteOrderMark) {
    EXPECT_EQ(valueIn("\xEF\xBB\xBF[General]\r\na=1\r\n"), u"1"_s);
    EXPECT_EQ(valueIn("\xEF\xBB\xBF"
                      "a=1"),
              u"1"_s);
}

TEST(IniTextTest, KeepsTheLineOfAChangedValue) {
    EXPECT_EQ(changed("; mine\n\n[General]\nb=1\n  a  =  3 ; seconds\n# yours=2\nc=2"),
              "; mine\n\n[General]\nb=1\n  a  =  new ; seconds\n# yours=2\nc=2");
    EXPECT_EQ(changed("a=\nb=1\n"), "a=new\nb=1\n");
    EXPECT_EQ(changed("a= ; none yet\n"), "a= new; none yet\n");
    EXPECT_EQ(changed("a=\"x;y\" ; both\r\n"), "a=new ; both\r\n");
    EXPECT_EQ(changed("\xEF\xBB\xBF[General]\r\na=1\r\nb=2\r\n"),
              "\xEF\xBB\xBF[General]\r\na=new\r\nb=2\r\n");
}

TEST(IniTextTest, AddsANewKeyBehindTheLastOfItsSection) {
    EXPECT_EQ(changed(""), "[General]\na=new\n");
    EXPECT_EQ(changed("[General]"), "[General]\na=new\n");
    EXPECT_EQ(changed("[General]\n; mine\n"), "[General]\na=new\n; mine\n");
    EXPECT_EQ(changed("b=1\n\n[Other]\na=2\n"), "b=1\na=new\n\n[Other]\na=2\n");
    EXPECT_EQ(changed("b=1"), "b=1\na=new\n");
    EXPECT_EQ(changed("[Other]\na=2\n"), "[General]\na=new\n\n[Other]\na=2\n");
    EXPECT_EQ(changed("\xEF\xBB\xBF[Other]\r\n"), "\xEF\xBB\xBF[General]\r\na=new\r\n\r\n[Other]\r\n");
    EXPECT_EQ(changed("; mine"), "; mine\n[General]\na=new\n");
    EXPECT_EQ(changed("[General]\nb=1\n[Other]\nc=2\n[General]\nd=3\n"),
              "[General]\nb=1\n[Other]\nc=2\n[General]\nd=3\na=new\n");
}

TEST(IniTextTest, ChangesSeveralValuesAtOnce) {
    const Values values{
        {u"a"_s, u"long enough to move the others"_s}, {u"b"_s, u""_s}, {u"d"_s, u"4"_s}, {u"c"_s, u"3"_s}};
    EXPECT_EQ(IniText::withValues("b=two\n; between\na=1\n[X]\na=1\n", values),
              "b=\n; between\na=\"long enough to move the others\"\nc=3\nd=4\n[X]\na=1\n");
}

TEST(IniTextTest, ReadsEveryTextAsItWasWritten) {
    for (const QString& text : texts()) {
        const QByteArray file = IniText::withValues("[General]\n; mine\nb=1\n", {{u"a"_s, text}});
        EXPECT_EQ(valueIn(file), text) << file.toStdString();
        EXPECT_EQ(file.count('\n'), 4) << file.toStdString();
    }
}

TEST(IniTextTest, WritesTextsThatQSettingsReadsUnchanged) {
    for (const QString& text : texts()) {
        const TemporarySettings settings;
        settings.writeInPlace(IniText::withValues("; mine\n[B]\na=1\n", {{u"a"_s, text}}));
        const QSettings ordinary(settings.path(), QSettings::IniFormat);
        EXPECT_EQ(ordinary.value(u"a"_s), text) << settings.text().toStdString();
        EXPECT_EQ(ordinary.value(u"B/a"_s), u"1"_s) << settings.text().toStdString();
        EXPECT_EQ(ordinary.status(), QSettings::NoError);
    }
}

TEST(IniTextTest, ReadsTextsThatQSettingsWrote) {
    for (const QString& text : {u"nord"_s, u" blanks "_s, u"a,b;c"_s, u"\"q\" \\ \\x41"_s, u"@home"_s,
                                u"#FF8000"_s, u"a=b\n"_s, u"gr\u00fcn"_s}) {
        const TemporarySettings settings;
        {
            QSettings ordinary(settings.path(), QSettings::IniFormat);
            ordinary.setValue(u"a"_s, text);
        }
        EXPECT_EQ(valueIn(settings.text()), text) << settings.text().toStdString();
    }
}

} // namespace
} // namespace orvelle
