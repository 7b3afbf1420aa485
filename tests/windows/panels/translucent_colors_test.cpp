#include "windows/panels/panel_fixture.h"

namespace orvelle {
namespace {

/// Under a theme whose modules have translucent colours.
class TranslucentColors : public PanelFixture {
protected:
    void SetUp() override { themes.selectTheme(QStringLiteral("minimal")); }

    /// White at an opacity, as pixels have it.
    static QColor whiteAt(double opacity) {
        return asShown(QColor::fromRgbF(1, 1, 1, static_cast<float>(opacity)));
    }
};

TEST_F(TranslucentColors, FadeFurtherInTheSymbolOfAnInterface) {
    machine.network->entries = {{.name = "en0", .isUp = true, .ipv4Address = "10.0.0.2"}};
    sample();
    ASSERT_NE(show(u"network"), nullptr);
    EXPECT_EQ(colorOf("symbol"), whiteAt(0.7 * 0.7));
}

TEST_F(TranslucentColors, FadeFurtherInTheSwatchOfTheSystemsShare) {
    ASSERT_NE(show(u"cpu"), nullptr);
    QList<QColor> shades;
    for (const QQuickItem* legend : shownItems("QQuickRowLayout")) {
        const QVariant swatch = legend->property("swatchColor");
        if (swatch.isValid())
            shades.append(asShown(swatch.value<QColor>()));
    }
    EXPECT_EQ(shades, QList<QColor>({whiteAt(0.9), whiteAt(0.9 * 0.5)}));
}

} // namespace
} // namespace orvelle
