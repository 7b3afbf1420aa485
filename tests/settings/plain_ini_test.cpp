#include "settings/plain_ini.h"
#include "support/temporary_settings.h"

#include <QBuffer>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

using Values = QSettings::SettingsMap;

Values valuesIn(QByteArray text) {
    QBuffer buffer(&text);
    Values values;
    EXPECT_TRUE(buffer.open(QIODevice::ReadOnly) && PlainIni::read(buffer, values));
    return values;
}

QByteArray textWith(const Values& values) {
    QBuffer buffer;
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly) && PlainIni::write(buffer, values));
    return buffer.data();
}

/// The plain text under the key `a`, invalid where there is none.
QVariant valueIn(const QByteArray& text) {
    const QVariant value = valuesIn(text).value(u"a"_s);
    return value.typeId() == QMetaType::QString ? value : QVariant();
}

QVariant valueOf(const QByteArray& value) {
    return valueIn("[General]\na=" + value + '\n');
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

TEST(PlainIniTest, PlainValuesAreTexts) {
    EXPECT_EQ(valueOf("neon"), u"neon"_s);
    EXPECT_EQ(valueOf("  two words \t"), u"two words"_s);
    EXPECT_EQ(valueOf(""), u""_s);
    EXPECT_EQ(valueOf("#FF8000"), u"#FF8000"_s);
    EXPECT_EQ(valueOf("x=y"), u"x=y"_s);
    EXPECT_EQ(valueOf("gr\xC3\xBCn"), u"grün"_s);
    EXPECT_EQ(valueOf("3 ; seconds"), u"3"_s);
    EXPECT_EQ(valueOf(R"(a\nb)"), u"a\nb"_s);
}

TEST(PlainIniTest, QuotedValuesKeepBlanksAndEscapes) {
    EXPECT_EQ(valueOf(R"(" a, b; ")"), u" a, b; "_s);
    EXPECT_EQ(valueOf(R"("\"\\\n\r\t\x41\x00e4\x3b1z")"), u"\"\\\n\r\tA\u00e4\u03b1z"_s);
    EXPECT_EQ(valueOf(R"("a" ; a comment)"), u"a"_s);
    EXPECT_EQ(valueOf(R"("@@home")"), u"@home"_s);
}

TEST(PlainIniTest, ValuesThatAreNoPlainTextAreKeptAsTheyAre) {
    for (const char* value : {"a, b", "@Invalid()", "@Variant(\\0\\0\\0\\x7f)", "\"@Variant(\\x0\\x0)\"",
                              "@ByteArray(x)", "@", "@Rect(0 0 1 1)", "\"open", "\"", "\"\\\"", "\"a\" b",
                              "\"a\"\"b\"", "\"\\q\"", "\"\\x\"", "a\\", "gr\xFCn"}) {
        const Values values = valuesIn(QByteArray("a=") + value);
        EXPECT_EQ(values.value(u"a"_s), QVariant(QByteArray(value))) << value;
        EXPECT_EQ(textWith(values), QByteArray("[General]\na=") + value + '\n');
    }
}

TEST(PlainIniTest, OnlyTheGeneralSectionCounts) {
    EXPECT_EQ(valueIn("a=1\n[Other]\na=2\n"), u"1"_s);
    EXPECT_EQ(valueIn("[Other]\na=2\n[General]\na=3"), u"3"_s);
    EXPECT_EQ(valueIn(" [general] \na=3"), u"3"_s);
    EXPECT_EQ(valueIn("[Other]\n[General] ; again\na=4"), u"4"_s);
    EXPECT_FALSE(valueIn("[Other]\na=2\n").isValid());
    EXPECT_FALSE(valueIn("[General\na=2\n").isValid());
    EXPECT_FALSE(valueIn("[Generals]\na=2\n").isValid());
}

TEST(PlainIniTest, CommentsAndBrokenLinesAreNoValues) {
    EXPECT_FALSE(valueIn("#a=1\n;a=1\na\nA=1\naa=1\n=1\n").isValid());
}

TEST(PlainIniTest, TheLastOfEqualKeysCounts) {
    EXPECT_EQ(valueIn("a=1\na=2\n"), u"2"_s);
    EXPECT_FALSE(valueIn("a=1\na=@Invalid()\n").isValid());
}

TEST(PlainIniTest, LineEndsAndAByteOrderMarkDoNotMatter) {
    EXPECT_EQ(valueIn("\xEF\xBB\xBF[General]\r\na=1\r\n"), u"1"_s);
    EXPECT_EQ(valueIn("\xEF\xBB\xBF"
                      "a=1"),
              u"1"_s);
}

TEST(PlainIniTest, AnEmptyTextHasNoKeysButIsKnownToHaveBeenRead) {
    EXPECT_FALSE(valuesIn("").isEmpty());
    EXPECT_EQ(textWith(valuesIn("")), "[General]\n");
    EXPECT_EQ(textWith({}), "[General]\n");
}

TEST(PlainIniTest, OtherSectionsFollowAsTheyAre) {
    const QByteArray sections =
        "[Other] ; why\r\n; by hand\n\n a/b = @Variant(\\0\xff)\n[]\na=2\n[General\nb=3\n";
    Values values = valuesIn("b=1\n" + sections + "[general]\nc=x y\n");
    EXPECT_EQ(textWith(values), "[General]\nb=1\nc=\"x y\"\n\n" + sections);
    EXPECT_EQ(valuesIn(textWith(values)), values);
}

TEST(PlainIniTest, LinesWithoutAValueStandAtTheHeadOfTheirSection) {
    const QByteArray text = "; mine\n[General]\r\nb=1\n# yours=2\nbroken\n=3\n\n";
    const QByteArray sorted = "[General]\n; mine\n# yours=2\nbroken\n=3\nb=1\n";
    EXPECT_EQ(textWith(valuesIn(text)), sorted);
    EXPECT_EQ(textWith(valuesIn(sorted)), sorted);
}

TEST(PlainIniTest, EveryTextComesBackAsItWasWritten) {
    for (const QString& text : texts()) {
        const QByteArray file = textWith({{u"a"_s, text}, {u"b"_s, u"1"_s}});
        EXPECT_EQ(valueIn(file), text) << file.toStdString();
        EXPECT_EQ(file.count('\n'), 3) << file.toStdString();
    }
}

TEST(PlainIniTest, NumbersComeBackToTheLastBit) {
    for (const double number : {3.0, 0.1, 1.0 / 3.0, 5e-324, 86400.0, 12345.678901234567}) {
        const QByteArray file = textWith({{u"a"_s, number}});
        EXPECT_EQ(valueIn(file).toString().toDouble(), number) << file.toStdString();
    }
}

TEST(PlainIniTest, TheOrdinaryIniFormatReadsTheSameTexts) {
    for (const QString& text : texts()) {
        const TemporarySettings settings;
        Values values = valuesIn("; mine\n[B]\na=1\n");
        values.insert(u"a"_s, text);
        settings.writeInPlace(textWith(values));
        const QSettings ordinary(settings.path(), QSettings::IniFormat);
        EXPECT_EQ(ordinary.value(u"a"_s), text) << settings.text().toStdString();
        EXPECT_EQ(ordinary.value(u"B/a"_s), u"1"_s) << settings.text().toStdString();
        EXPECT_EQ(ordinary.status(), QSettings::NoError);
    }
}

TEST(PlainIniTest, TextsOfTheOrdinaryIniFormatAreRead) {
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

TEST(PlainIniTest, ATextThatIsTooLargeIsNeitherReadNorWritten) {
    const QByteArray tooLarge(PlainIni::maximumSize + 1, 'x');
    QByteArray text = tooLarge;
    QBuffer buffer(&text);
    Values values;
    ASSERT_TRUE(buffer.open(QIODevice::ReadWrite));
    EXPECT_FALSE(PlainIni::read(buffer, values));
    EXPECT_FALSE(PlainIni::write(buffer, {{u"a"_s, QString::fromLatin1(text)}}));
    EXPECT_EQ(text, tooLarge);
}

} // namespace
} // namespace orvelle
