#include "theme/fonts.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <gtest/gtest.h>

#include <limits>

namespace orvelle {
namespace {

TEST(Fonts, HaveAWholeSizeInPixels) {
    EXPECT_EQ(systemFont(11).pixelSize(), 11);
    EXPECT_EQ(monospacedSystemFont(8, QFont::Medium).pixelSize(), 8);
}

TEST(Fonts, KeepAFractionalSize) {
    const double between = QFontMetricsF(systemFont(14.5)).height();
    EXPECT_NEAR(QFontInfo(systemFont(14.5)).pointSizeF() * 96 / 72, 14.5, 0.5);
    EXPECT_GE(between, QFontMetricsF(systemFont(14)).height());
    EXPECT_LE(between, QFontMetricsF(systemFont(15)).height());
}

TEST(Fonts, HaveTheRequestedWeight) {
    EXPECT_EQ(systemFont(10, QFont::DemiBold).weight(), QFont::DemiBold);
    EXPECT_EQ(systemFont(10).weight(), QFont::Normal);
    EXPECT_EQ(roundedSystemFont(14, QFont::Bold).weight(), QFont::Bold);
}

TEST(Fonts, HaveTheSameAdvanceForEveryMonospacedGlyph) {
    const QFontMetricsF metrics(monospacedSystemFont(11, QFont::Medium));
    EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(QStringLiteral("1")),
                     metrics.horizontalAdvance(QStringLiteral("0")));
    EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(QStringLiteral("%")),
                     metrics.horizontalAdvance(QStringLiteral(".")));
}

TEST(Fonts, ClampASizeThatCannotBeDrawn) {
    EXPECT_EQ(systemFont(0).pixelSize(), 1);
    EXPECT_EQ(systemFont(-4).pixelSize(), 1);
    EXPECT_EQ(systemFont(std::numeric_limits<double>::quiet_NaN()).pixelSize(), 1);
    EXPECT_EQ(systemFont(std::numeric_limits<double>::infinity()).pixelSize(), 1000);
}

TEST(DescribedFamily, IsTheLongestInstalledNameBeforeStyleAndSize) {
    const QStringList families = {QStringLiteral("Noto Sans"), QStringLiteral("Noto Sans Mono"),
                                  QStringLiteral("Cantarell")};
    const auto found = [&families](const char16_t* description) {
        return describedFamily(QString::fromUtf16(description), families).toStdString();
    };
    EXPECT_EQ(found(u"Cantarell 11"), "Cantarell");
    EXPECT_EQ(found(u"Noto Sans Bold Italic 10.5"), "Noto Sans");
    EXPECT_EQ(found(u"Noto Sans Mono 10"), "Noto Sans Mono");
    EXPECT_EQ(found(u"  noto   sans,  Medium 10"), "Noto Sans");
    EXPECT_EQ(found(u"Missing, Also Missing, Cantarell @wght=300 11"), "Cantarell");
    for (const char16_t* other :
         {u"", u" ", u",", u"11", u"Sans 10", u"Noto", u"Cantarel 11", u"CantarellBold"})
        EXPECT_EQ(found(other), "") << QString::fromUtf16(other).toStdString();
}

TEST(DescribedFamily, IsEmptyForAnEndlessDescription) {
    EXPECT_EQ(
        describedFamily(QString(1 << 20, u' ') + QStringLiteral("Cantarell"), {QStringLiteral("Cantarell")}),
        QString());
}

/// The desktop changes its fonts while the program runs. `./test` installs the fonts of these tests.
class ChangedFonts : public ::testing::Test {
public:
    ChangedFonts() {
        QObject::connect(&FontChanges::shared(), &FontChanges::changed, &m_listener, [this] { ++changes; });
    }
    ~ChangedFonts() override { setDesktopFontNames({}); }

protected:
    const QString ordinary = systemFont(11).family();
    int changes = 0;

private:
    QObject m_listener;
};

TEST_F(ChangedFonts, AreTheOnesThatTheDesktopAnnounces) {
    setDesktopFontNames({.proportional = QStringLiteral("DejaVu Serif Bold 11"),
                         .monospaced = QStringLiteral("DejaVu Sans 9")});
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(systemFont(11).family(), QStringLiteral("DejaVu Serif"));
    EXPECT_EQ(systemFont(11).pixelSize(), 11);
    EXPECT_EQ(systemFont(11).weight(), QFont::Normal);
    EXPECT_EQ(monospacedSystemFont(11).family(), QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(roundedSystemFont(14).family(), QStringLiteral("DejaVu Serif"))
        << "no rounded family is installed";
    setDesktopFontNames({});
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(systemFont(11).family(), ordinary);
}

TEST_F(ChangedFonts, AreSignalledOnce) {
    for (int count = 0; count < 3; ++count)
        setDesktopFontNames({.proportional = QStringLiteral("DejaVu Serif 11"), .monospaced = {}});
    EXPECT_EQ(changes, 1);
}

TEST_F(ChangedFonts, AreTheOrdinaryOnesWhenTheAnnouncedOnesAreNotInstalled) {
    setDesktopFontNames(
        {.proportional = QStringLiteral("No Such Font 11"), .monospaced = QStringLiteral("Sans 9")});
    EXPECT_EQ(systemFont(11).family(), ordinary);
}

TEST_F(ChangedFonts, AreLookedUpAgainWhenFontsAreInstalled) {
    const QString file = QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuMathTeXGyre.ttf");
    const QString family = QStringLiteral("DejaVu Math TeX Gyre");
    if (QFontDatabase::families().contains(family))
        GTEST_SKIP() << "it is installed already";
    setDesktopFontNames({.proportional = family, .monospaced = {}});
    ASSERT_EQ(systemFont(11).family(), ordinary);
    changes = 0;
    const int added = QFontDatabase::addApplicationFont(file);
    ASSERT_GE(added, 0);
    EXPECT_GE(changes, 1);
    EXPECT_EQ(systemFont(11).family(), family);
    QFontDatabase::removeApplicationFont(added);
    EXPECT_EQ(systemFont(11).family(), ordinary);
}

TEST_F(ChangedFonts, AreSignalledWhenQtChangesTheApplicationFont) {
    const QFont before = QGuiApplication::font();
    QGuiApplication::setFont(QFont(QStringLiteral("DejaVu Serif"), 20)); // as the desktops' plugins do
    EXPECT_EQ(changes, 1);
    QGuiApplication::setFont(before);
}

} // namespace
} // namespace orvelle
