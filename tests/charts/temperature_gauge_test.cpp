#include "at_scale.h"
#include "charts/temperature_gauge.h"
#include "support/odd_numbers.h"
#include "theme/colors.h"

#include <clocale>

namespace orvelle {
namespace {

TEST(TemperatureFraction, IsTheShareOfTheMaximum) {
    EXPECT_DOUBLE_EQ(temperatureFraction(55, 110), 0.5);
    EXPECT_EQ(temperatureFraction(200, 110), 1);
    EXPECT_EQ(temperatureFraction(-5, 110), 0);
    EXPECT_EQ(temperatureFraction(50, 0), 0);
    EXPECT_EQ(temperatureFraction(50, -1), 0);
    EXPECT_EQ(temperatureFraction(notANumber, 110), 0);
}

TEST(TemperatureBandColor, ChangesAtItsThresholds) {
    EXPECT_EQ(temperatureBandColor(49.9), SystemColors::green);
    EXPECT_EQ(temperatureBandColor(50), SystemColors::yellow);
    EXPECT_EQ(temperatureBandColor(69.9), SystemColors::yellow);
    EXPECT_EQ(temperatureBandColor(70), SystemColors::orange);
    EXPECT_EQ(temperatureBandColor(89.9), SystemColors::orange);
    EXPECT_EQ(temperatureBandColor(90), SystemColors::red);
}

TEST(TemperatureReading, IsWholeDegrees) {
    EXPECT_EQ(temperatureReading(64.4, false), QStringLiteral("64°C"));
    EXPECT_EQ(temperatureReading(100, true), QStringLiteral("212°F"));
    EXPECT_EQ(temperatureReading(0.4, false), QStringLiteral("0°C"));
}

TEST(TemperatureReading, IsMissingWithoutATemperature) {
    for (const double temperature : {0.0, -3.0, notANumber, infinity, -infinity}) {
        EXPECT_EQ(temperatureReading(temperature, false), QStringLiteral("--°"));
        EXPECT_EQ(temperatureReading(temperature, true), QStringLiteral("--°"));
    }
}

class Gauge : public AtScale {
protected:
    static TemperatureGauge gauge(double temperature) {
        return {.label = {}, .temperature = temperature, .maxTemp = 110, .showGlow = false};
    }

    [[nodiscard]] QImage paintedGauge(const TemperatureGauge& gauge) const {
        return painted({120, 120}, [&](QPainter& painter) { gauge.paint(painter, {10, 20, 100, 100}); });
    }

    /// The colour on the middle of the dial's stroke, this many degrees clockwise from twelve o'clock.
    [[nodiscard]] QColor dialColorAt(const QImage& image, double degrees) const {
        const double angle = qDegreesToRadians(degrees);
        return colorAt(image, 60 + 35 * std::sin(angle), 55 - 35 * std::cos(angle));
    }
};

INSTANTIATE_TEST_SUITE_P(, Gauge, bothScales);

TEST_P(Gauge, FillsTheUpperHalfFromGreenToRed) {
    const QImage image = paintedGauge(gauge(110));
    EXPECT_TRUE(isNear(dialColorAt(image, -88), SystemColors::green, 12));
    EXPECT_TRUE(isNear(dialColorAt(image, 88), SystemColors::red, 12));
    EXPECT_EQ(dialColorAt(image, 180).alpha(), 0);
}

TEST_P(Gauge, ShowsTheTrackWhereItIsNotFilled) {
    const QImage image = paintedGauge(gauge(55));
    EXPECT_EQ(dialColorAt(image, -45).alpha(), 255);
    EXPECT_TRUE(isNear(dialColorAt(image, 45), QColor(255, 255, 255, 20)));
}

TEST_P(Gauge, HasAnEmptyArcButItsReadingWithoutAMaximum) {
    TemperatureGauge withoutMaximum = gauge(55);
    withoutMaximum.maxTemp = 0;
    const QImage image = paintedGauge(withoutMaximum);
    EXPECT_TRUE(isNear(dialColorAt(image, -45), QColor(255, 255, 255, 20)));
    EXPECT_GT(countPixels(image, Qt::white), 0);
}

TEST_P(Gauge, HasAFaintReadingWithoutATemperature) {
    const QImage image = paintedGauge(gauge(0));
    EXPECT_EQ(countPixels(image, Qt::white), 0);
    const QImage reading = image.copy(pixels(40), pixels(45), pixels(40), pixels(20));
    EXPECT_GT(coveredArea(reading), 1);
}

TEST_P(Gauge, GlowsInTheColorOfItsBand) {
    TemperatureGauge glowing = gauge(80);
    glowing.showGlow = true;
    glowing.glowIntensity = GlowIntensity::intense;
    const QImage image = paintedGauge(glowing);
    const QColor halo = colorAt(image, 60, 15);
    EXPECT_TRUE(isNear(halo, QColor(255, 159, 10, halo.alpha()), 16));
    EXPECT_GT(halo.alpha(), 20);
    glowing.showGlow = false;
    EXPECT_EQ(colorAt(paintedGauge(glowing), 60, 15).alpha(), 0);
}

TEST_P(Gauge, WritesItsCaptionUnderTheDial) {
    TemperatureGauge captioned = gauge(0);
    captioned.label = QStringLiteral("CPU");
    const int top = pixels(20 + 70 + 6);
    const QImage image = paintedGauge(captioned);
    const QRect caption = paintedRect(image.copy(0, pixels(95), image.width(), image.height() - pixels(95)));
    EXPECT_GE(caption.top() + pixels(95), top);
    EXPECT_LE(caption.bottom() + pixels(95), pixels(20 + captioned.height()));
    EXPECT_NEAR(caption.center().x(), pixels(60), pixels(1));
}

TEST_P(Gauge, ShortensACaptionThatIsTooLong) {
    TemperatureGauge captioned = gauge(50);
    captioned.label = QString(500, QLatin1Char('W'));
    EXPECT_TRUE(
        QRect(pixels(10), 0, pixels(100), pixels(120)).contains(paintedRect(paintedGauge(captioned))));
}

TEST_P(Gauge, KeepsThePictureOfItsDial) {
    TemperatureGauge glowing = gauge(80);
    glowing.showGlow = true;
    PictureCache<TemperatureDial> cache;
    const auto kept = [&](QPainter& painter) {
        glowing.paint(painter, {10, 20, 100, 100}, glowing.look(), &cache);
    };
    EXPECT_LE(largestDifference(painted({120, 120}, kept), paintedGauge(glowing)), 3);
    glowing.useFahrenheit = true;
    EXPECT_LE(largestDifference(painted({120, 120}, kept), paintedGauge(glowing)), 3);
    EXPECT_EQ(cache.drawCount(), 1U);
    glowing.temperature = 95;
    EXPECT_LE(largestDifference(painted({120, 120}, kept), paintedGauge(glowing)), 3);
    EXPECT_EQ(cache.drawCount(), 2U);
}

TEST_P(Gauge, SurvivesAnyInput) {
    for (const double number : {notANumber, infinity, -infinity, -1.0, 0.0, 0.3, 1e300}) {
        TemperatureGauge gauge = Gauge::gauge(number);
        gauge.showGlow = true;
        (void)paintedGauge(gauge);
        gauge = Gauge::gauge(50);
        gauge.maxTemp = number;
        (void)paintedGauge(gauge);
        (void)painted({120, 120}, [&](QPainter& painter) { gauge.paint(painter, {0, 0, number, number}); });
    }
}

} // namespace
} // namespace orvelle
