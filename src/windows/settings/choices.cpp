#include "windows/settings/choices.h"

#include "settings/settings_store.h"
#include "theme/app_theme.h"

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

QVariant interval(double seconds, const QString& label, const QString& help = {}) {
    return QVariant::fromValue(Choice{.value = seconds, .label = label, .help = help});
}

template <class Enum>
QVariant choice(Enum value, const QString& label, const QString& symbol = {}, const QString& help = {}) {
    return QVariant::fromValue(Choice{static_cast<int>(value), label, symbol, help});
}

template <class Record>
QVariantList toQml(const QList<Record>& records) {
    QVariantList values;
    for (const Record& record : records)
        values.append(QVariant::fromValue(record));
    return values;
}

} // namespace

QVariantList Choices::cpuDisplayModes() {
    using enum SettingsStore::CPUDisplayMode;
    return {choice(barChart, u"Bar Chart"_s, {}, unchangedBarHelp()),
            choice(percentage, u"Percentage"_s, {}, unchangedBarHelp())};
}

QVariantList Choices::updateIntervals() {
    const QString tooShort = u"Acts as 3s, the shortest interval"_s;
    return {interval(1.0, u"1s"_s, tooShort), interval(2.0, u"2s"_s, tooShort), interval(3.0, u"3s"_s),
            interval(5.0, u"5s"_s), interval(10.0, u"10s"_s)};
}

QVariantList Choices::graphLineStyles() {
    using enum GraphLineStyle;
    return {choice(smooth, u"Smooth"_s), choice(sharp, u"Sharp"_s), choice(stepped, u"Stepped"_s),
            choice(dotted, u"Dotted"_s)};
}

QVariantList Choices::graphFillStyles() {
    using enum GraphFillStyle;
    return {choice(gradient, u"Gradient"_s), choice(solid, u"Solid"_s), choice(none, u"None"_s),
            choice(striped, u"Striped"_s)};
}

QVariantList Choices::barChartStyles() {
    using enum BarChartStyle;
    return {choice(rounded, u"Rounded"_s), choice(square, u"Square"_s), choice(pill, u"Pill"_s),
            choice(thinLine, u"Thin Lines"_s)};
}

QVariantList Choices::ringChartStyles() {
    using enum RingChartStyle;
    return {choice(fullRing, u"Full Ring"_s), choice(halfGauge, u"Half Gauge"_s),
            choice(arcGauge, u"Arc Gauge"_s), choice(pieChart, u"Pie Chart"_s)};
}

QVariantList Choices::menuBarDisplayStyles() {
    using enum MenuBarDisplayStyle;
    return {choice(miniBars, u"Mini Bars"_s, u"chart.bar.fill"_s),
            choice(textOnly, u"Text Only"_s, u"textformat.size"_s),
            choice(iconAndText, u"Icon + Text"_s, u"text.badge.star"_s),
            choice(sparkline, u"Sparkline"_s, u"waveform.path"_s),
            choice(dotIndicator, u"Dot Indicators"_s, u"circle.grid.2x1.fill"_s)};
}

QVariantList Choices::animationSpeeds() {
    using enum AnimationSpeed;
    return {choice(slow, u"Slow"_s), choice(normal, u"Normal"_s), choice(fast, u"Fast"_s),
            choice(instant, u"Instant"_s)};
}

QVariantList Choices::glowIntensities() {
    using enum GlowIntensity;
    return {choice(none, u"None"_s), choice(subtle, u"Subtle"_s), choice(medium, u"Medium"_s),
            choice(intense, u"Intense"_s)};
}

QString Choices::unchangedBarHelp() {
    return u"Changes nothing in the menu bar"_s;
}

QVariantList Choices::modules() {
    return toQml(moduleRows());
}

QVariantList Choices::themes() {
    return toQml(builtInThemes());
}

const QList<ModuleRow>& moduleRows() {
    static const QList<ModuleRow> rows = [] {
        QList<ModuleRow> all;
        for (const ModuleInfo& module : moduleTable)
            all.append({module.key, module.symbol, module.title, module.showSetting,
                        module.useCustomColorSetting, module.customColorHexSetting, module.themeColor});
        return all;
    }();
    return rows;
}

} // namespace orvelle
