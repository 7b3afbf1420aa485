#include "windows/settings/choices.h"

#include "settings/settings_store.h"

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

template <class Enum>
Choice choice(Enum value, const QString& label, const QString& symbol = {}, const QString& help = {}) {
    return {static_cast<int>(value), label, symbol, help};
}

} // namespace

const QList<Choice>& cpuDisplayModeChoices() {
    using enum SettingsStore::CPUDisplayMode;
    static const QList<Choice> choices{choice(barChart, u"Bar Chart"_s, {}, unchangedBarHelp()),
                                       choice(percentage, u"Percentage"_s, {}, unchangedBarHelp())};
    return choices;
}

const QList<Choice>& updateIntervalChoices() {
    const QString tooShort = u"Acts as 3s, the shortest interval"_s;
    static const QList<Choice> choices{{1.0, u"1s"_s, {}, tooShort},
                                       {2.0, u"2s"_s, {}, tooShort},
                                       {3.0, u"3s"_s},
                                       {5.0, u"5s"_s},
                                       {10.0, u"10s"_s}};
    return choices;
}

const QList<Choice>& graphLineStyleChoices() {
    using enum GraphLineStyle;
    static const QList<Choice> choices{choice(smooth, u"Smooth"_s), choice(sharp, u"Sharp"_s),
                                       choice(stepped, u"Stepped"_s), choice(dotted, u"Dotted"_s)};
    return choices;
}

const QList<Choice>& graphFillStyleChoices() {
    using enum GraphFillStyle;
    static const QList<Choice> choices{choice(gradient, u"Gradient"_s), choice(solid, u"Solid"_s),
                                       choice(none, u"None"_s), choice(striped, u"Striped"_s)};
    return choices;
}

const QList<Choice>& barChartStyleChoices() {
    using enum BarChartStyle;
    static const QList<Choice> choices{choice(rounded, u"Rounded"_s), choice(square, u"Square"_s),
                                       choice(pill, u"Pill"_s), choice(thinLine, u"Thin Lines"_s)};
    return choices;
}

const QList<Choice>& ringChartStyleChoices() {
    using enum RingChartStyle;
    static const QList<Choice> choices{choice(fullRing, u"Full Ring"_s), choice(halfGauge, u"Half Gauge"_s),
                                       choice(arcGauge, u"Arc Gauge"_s), choice(pieChart, u"Pie Chart"_s)};
    return choices;
}

const QList<Choice>& menuBarDisplayStyleChoices() {
    using enum MenuBarDisplayStyle;
    static const QList<Choice> choices{choice(miniBars, u"Mini Bars"_s, u"chart.bar.fill"_s),
                                       choice(textOnly, u"Text Only"_s, u"textformat.size"_s),
                                       choice(iconAndText, u"Icon + Text"_s, u"text.badge.star"_s),
                                       choice(sparkline, u"Sparkline"_s, u"waveform.path"_s),
                                       choice(dotIndicator, u"Dot Indicators"_s, u"circle.grid.2x1.fill"_s)};
    return choices;
}

const QList<Choice>& animationSpeedChoices() {
    using enum AnimationSpeed;
    static const QList<Choice> choices{choice(slow, u"Slow"_s), choice(normal, u"Normal"_s),
                                       choice(fast, u"Fast"_s), choice(instant, u"Instant"_s)};
    return choices;
}

const QList<Choice>& glowIntensityChoices() {
    using enum GlowIntensity;
    static const QList<Choice> choices{choice(none, u"None"_s), choice(subtle, u"Subtle"_s),
                                       choice(medium, u"Medium"_s), choice(intense, u"Intense"_s)};
    return choices;
}

QString unchangedBarHelp() {
    return u"Changes nothing in the menu bar"_s;
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
