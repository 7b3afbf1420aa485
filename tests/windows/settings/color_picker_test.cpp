#include "theme/colors.h"
#include "windows/settings/settings_fixture.h"

#include <algorithm>
#include <array>
#include <random>

namespace orvelle {
namespace {

/// The open picker of a module's own colour.
class ColorPickers : public SettingsFixture {
protected:
    void SetUp() override {
        SettingsFixture::SetUp();
        settings.setUseCustomCPUColor(true);
        openOverrides();
        click(item("well", overrideRow(u"CPU")));
        settle();
    }

    /// A random colour, the same sequence in each run.
    QString randomHex() { return QString::asprintf("#%06X", m_colors(m_random)); }
    int randomDigitIndex() { return m_places(m_random); }

    /// Changes the colour from outside.
    void choose(const QString& hex) { settings.tune(QStringLiteral("customCPUColorHex"), hex); }
    [[nodiscard]] QString shownDigits() const { return item("hex")->property("text").toString(); }

private:
    std::mt19937 m_random{20260101};
    std::uniform_int_distribution<unsigned> m_colors{0, 0xFFFFFF};
    std::uniform_int_distribution<int> m_places{1, 6};
};

/// Red, green and blue in ascending order.
std::array<int, 3> sortedComponents(const QString& hex) {
    const QColor color = hexToColor(hex).value_or(QColor());
    std::array components{color.red(), color.green(), color.blue()};
    std::ranges::sort(components);
    return components;
}

TEST_F(ColorPickers, ShowTheStoredDigits) {
    for (int count = 0; count < 2000; ++count) {
        const QString hex = randomHex();
        choose(hex);
        ASSERT_EQ(shownDigits(), hex);
    }
}

TEST_F(ColorPickers, ShowTheThemesColorUntilOneIsChosen) {
    for (const AppTheme& theme : builtInThemes()) {
        themes.selectTheme(theme.id);
        EXPECT_EQ(shownDigits(), theme.cpuColor.name().toUpper()) << theme.id.toStdString();
    }
}

TEST_F(ColorPickers, StoreASingleReplacedDigit) {
    QQuickItem* digits = item("hex");
    for (int count = 0; count < 100; ++count) {
        QString hex = randomHex();
        choose(hex);
        digits->forceActiveFocus();
        const int place = randomDigitIndex();
        const char digit = hex[place] == u'7' ? 'C' : '7';
        QMetaObject::invokeMethod(digits, "select", Q_ARG(int, place), Q_ARG(int, place + 1));
        QTest::keyClick(view.get(), digit);
        hex[place] = QLatin1Char(digit);
        ASSERT_EQ(settings.customCPUColorHex(), hex);
        item("hue")->forceActiveFocus();
        ASSERT_EQ(shownDigits(), hex);
    }
}

TEST_F(ColorPickers, KeepTheLargestAndTheSmallestComponentWhenTheHueMoves) {
    for (int count = 0; count < 100; ++count) {
        const QString hex = randomHex();
        choose(hex);
        item("hue")->forceActiveFocus();
        press(count % 2 == 0 ? Qt::Key_Right : Qt::Key_Left);
        const auto before = sortedComponents(hex);
        const auto after = sortedComponents(settings.customCPUColorHex());
        ASSERT_EQ(after.front(), before.front()) << hex.toStdString();
        ASSERT_EQ(after.back(), before.back()) << hex.toStdString();
        ASSERT_EQ(shownDigits(), settings.customCPUColorHex());
    }
}

TEST_F(ColorPickers, RestoreTheColorWhenASliderReturns) {
    for (int count = 0; count < 50; ++count) {
        const QString hex = randomHex();
        for (const char* slider : {"hue", "saturation", "brightness"}) {
            choose(hex);
            item(slider)->forceActiveFocus();
            const bool isInUpperHalf = item(slider)->property("value").toDouble() > 0.5;
            press(isInUpperHalf ? Qt::Key_Left : Qt::Key_Right);
            press(isInUpperHalf ? Qt::Key_Right : Qt::Key_Left);
            ASSERT_EQ(settings.customCPUColorHex(), hex) << slider;
        }
    }
}

} // namespace
} // namespace orvelle
