#pragma once

#include "theme/colors.h"
#include "theme/theme_manager.h"
#include "windows/settings/choices.h"
#include "windows/settings/color_parts.h"
#include "windows/settings/preview_rules.h"
#include "windows/settings/shared_widths.h"

#include <QColor>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <limits>
#include <numeric>

namespace orvelle {

/// What the settings window offers, and its rules, to QML.
class SettingsRules : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QVariantList cpuDisplayModes READ cpuDisplayModes CONSTANT)
    Q_PROPERTY(QVariantList updateIntervals READ updateIntervals CONSTANT)
    Q_PROPERTY(QVariantList graphLineStyles READ graphLineStyles CONSTANT)
    Q_PROPERTY(QVariantList graphFillStyles READ graphFillStyles CONSTANT)
    Q_PROPERTY(QVariantList barChartStyles READ barChartStyles CONSTANT)
    Q_PROPERTY(QVariantList ringChartStyles READ ringChartStyles CONSTANT)
    Q_PROPERTY(QVariantList menuBarDisplayStyles READ menuBarDisplayStyles CONSTANT)
    Q_PROPERTY(QVariantList animationSpeeds READ animationSpeeds CONSTANT)
    Q_PROPERTY(QVariantList glowIntensities READ glowIntensities CONSTANT)
    Q_PROPERTY(QVariantList modules READ modules CONSTANT)
    Q_PROPERTY(QVariantList themes READ themes CONSTANT)
    Q_PROPERTY(double themeGridSpacing READ themeGridSpacing CONSTANT)
    Q_PROPERTY(QString unchangedBarHelp READ unchangedBarHelp CONSTANT)

public:
    [[nodiscard]] static QVariantList cpuDisplayModes() { return toQml(cpuDisplayModeChoices()); }
    [[nodiscard]] static QVariantList updateIntervals() { return toQml(updateIntervalChoices()); }
    [[nodiscard]] static QVariantList graphLineStyles() { return toQml(graphLineStyleChoices()); }
    [[nodiscard]] static QVariantList graphFillStyles() { return toQml(graphFillStyleChoices()); }
    [[nodiscard]] static QVariantList barChartStyles() { return toQml(barChartStyleChoices()); }
    [[nodiscard]] static QVariantList ringChartStyles() { return toQml(ringChartStyleChoices()); }
    [[nodiscard]] static QVariantList menuBarDisplayStyles() { return toQml(menuBarDisplayStyleChoices()); }
    [[nodiscard]] static QVariantList animationSpeeds() { return toQml(animationSpeedChoices()); }
    [[nodiscard]] static QVariantList glowIntensities() { return toQml(glowIntensityChoices()); }
    [[nodiscard]] static QVariantList modules() { return toQml(moduleRows()); }
    [[nodiscard]] static QVariantList themes() { return toQml(builtInThemes()); }
    [[nodiscard]] static double themeGridSpacing() { return orvelle::themeGridSpacing; }
    [[nodiscard]] static QString unchangedBarHelp() { return orvelle::unchangedBarHelp(); }

    Q_INVOKABLE static QVariantList themeGridColumns(double width, int cardCount) {
        return toQml(orvelle::themeGridColumns(width, cardCount));
    }
    Q_INVOKABLE static double largestThemeGridWidth(int cardCount) {
        return orvelle::largestThemeGridWidth(cardCount);
    }
    Q_INVOKABLE static QVariantList sharedWidths(const QVariantList& needed, double available) {
        return toQml(orvelle::sharedWidths(fromQml(needed), available));
    }
    Q_INVOKABLE static QVariantList fittingColumns(const QVariantList& needed, double spacing,
                                                   double available) {
        return toQml(orvelle::fittingColumns(fromQml(needed), spacing, available));
    }

    /// How wide cells are that stand in one row without a space between them.
    Q_INVOKABLE static double widthOfOneRow(const QVariantList& needed) {
        const QList<double> widths =
            orvelle::fittingColumns(fromQml(needed), 0, std::numeric_limits<double>::infinity());
        return std::accumulate(widths.cbegin(), widths.cend(), 0.0);
    }

    /// The colour that a text spells, or the other one without its opacity when it spells none.
    Q_INVOKABLE static QColor colorFromHex(const QString& hex, const QColor& otherwise) {
        return hexToColor(hex).value_or(QColor::fromRgb(otherwise.rgb()));
    }
    Q_INVOKABLE static QString hexFromColor(const QColor& color) { return colorToHex(color); }

    Q_INVOKABLE static orvelle::ColorParts partsOfColor(const QColor& color, double hueOfGrey) {
        return colorParts(color, hueOfGrey);
    }
    Q_INVOKABLE static QColor colorOfParts(double hue, double saturation, double brightness) {
        return orvelle::colorOfParts({hue, saturation, brightness});
    }

private:
    template <class Record>
    static QVariantList toQml(const QList<Record>& records) {
        QVariantList values;
        for (const Record& record : records)
            values.append(QVariant::fromValue(record));
        return values;
    }
    static QList<double> fromQml(const QVariantList& values) {
        QList<double> numbers;
        for (const QVariant& value : values)
            numbers.append(value.toDouble());
        return numbers;
    }
};

} // namespace orvelle
