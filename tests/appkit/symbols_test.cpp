#include "appkit/program.h"
#include "menu_bar/scene_layout.h"
#include "support/pixels.h"
#include "theme/symbols.h"

namespace orvelle {
namespace {

using namespace simulated;

class SystemSymbolsTest : public AppKitTest {
protected:
    static QImage shape(QFont::Weight weight = QFont::Normal) { return rasterizeSymbol(u"cpu", 24, weight); }
};

TEST_F(SystemSymbolsTest, AreThoseThatTheSystemKnows) {
    EXPECT_TRUE(isKnownSymbol(u"cpu"));
    EXPECT_FALSE(isKnownSymbol(u"no.such.symbol"));
    EXPECT_TRUE(rasterizeSymbol(u"no.such.symbol", 24, QFont::Normal).isNull());
}

TEST_F(SystemSymbolsTest, HaveTheirNaturalWidthAndStandInTheMiddleOfTheirLine) {
    const QImage image = shape();
    EXPECT_EQ(image.size(), QSize(30, 24));
    EXPECT_DOUBLE_EQ(desktop().symbolPointSize, 20);
    EXPECT_EQ(paintedRect(image), QRect(0, 2, 30, 20));
}

TEST_F(SystemSymbolsTest, HigherThanTheirLineAreScaledDownToIt) {
    desktop().script.symbolWidth = 0.75;
    desktop().script.symbolHeight = 1.5;
    const QImage image = shape();
    EXPECT_EQ(image.size(), QSize(12, 24));
    EXPECT_EQ(paintedRect(image), QRect(0, 0, 12, 24));
}

TEST_F(SystemSymbolsTest, AreLaidOutAtTheirNaturalWidth) {
    EXPECT_EQ(symbolSize(u"cpu", 10), QSizeF(15, 12));
    EXPECT_EQ(extentOf({SymbolShape{.name = QStringLiteral("cpu"), .fontSize = 10}}).size, QSizeF(15, 12));
    EXPECT_EQ(symbolImage(u"cpu", 10, Qt::red, 2).deviceIndependentSize(), QSizeF(15, 12));
}

TEST_F(SystemSymbolsTest, LeaveASquareEmptyWhereTheSystemCannotDrawThem) {
    EXPECT_EQ(symbolSize(u"no.such.symbol", 10), QSizeF(12, 12));
    desktop().failCallsTo("imageWithSymbolConfiguration");
    EXPECT_EQ(symbolSize(u"cpu", 100), QSizeF(120, 120));
}

TEST_F(SystemSymbolsTest, AreAsHeavyAsTheTextBesideThem) {
    for (const auto& [weight, systemWeight] : std::map<QFont::Weight, double>{{QFont::Light, 0},
                                                                              {QFont::Normal, 0},
                                                                              {QFont::Medium, 0.23},
                                                                              {QFont::DemiBold, 0.3},
                                                                              {QFont::Bold, 0.4},
                                                                              {QFont::Black, 0.4}}) {
        static_cast<void>(shape(weight));
        EXPECT_EQ(desktop().symbolWeight, systemWeight);
    }
}

TEST_F(SystemSymbolsTest, AreLeftOutWhereTheSystemCannotDrawThem) {
    for (const char* call :
         {"imageWithSymbolConfiguration", "CGColorSpaceCreateWithName", "CGBitmapContextCreate"}) {
        desktop().failCallsTo(call);
        EXPECT_TRUE(shape().isNull()) << call;
    }
}

} // namespace
} // namespace orvelle
