#include "appkit/program.h"
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

TEST_F(SystemSymbolsTest, StandInTheMiddleOfTheirSquareInTheirOwnProportions) {
    const QImage image = shape();
    EXPECT_EQ(image.size(), QSize(24, 24));
    EXPECT_DOUBLE_EQ(desktop().symbolPointSize, 20);
    // Half as wide again as 20 is too wide for the square: it is 24 by 16 there.
    EXPECT_EQ(qAlpha(image.pixel(12, 3)), 0);
    EXPECT_EQ(qAlpha(image.pixel(12, 4)), 255);
    EXPECT_EQ(qAlpha(image.pixel(0, 12)), 255);
    EXPECT_EQ(qAlpha(image.pixel(23, 19)), 255);
    EXPECT_EQ(qAlpha(image.pixel(23, 20)), 0);
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
