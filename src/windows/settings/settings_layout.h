#pragma once

#include <QObject>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

namespace orvelle {

/// Divides widths among the cells of the settings window. All widths are in points, and the results are
/// whole, so that edges stay crisp. Qt 6.4 does not convert arrays of JavaScript to lists of another type.
class SettingsLayout : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(double themeGridSpacing READ themeGridSpacing CONSTANT)

public:
    /// Divides the available width among cells in a row: evenly if that gives each the width it needs, else
    /// to each its needed width and an equal share of the surplus or deficit.
    Q_INVOKABLE static QVariantList sharedWidths(const QVariantList& needed, double available);

    /// Arranges cells in as few rows as the available width allows, as evenly as possible. Returns the width
    /// of each column, that of its widest cell. There is at least one column.
    Q_INVOKABLE static QVariantList fittingColumns(const QVariantList& needed, double spacing,
                                                   double available);

    /// The width of all cells in one row without spacing.
    Q_INVOKABLE static double widthOfOneRow(const QVariantList& needed);

    [[nodiscard]] static double themeGridSpacing();
    /// The widths of the theme grid's columns: as many as fit, at most one per card, equal within a point and
    /// within their limits. With the spacing they fill the available width.
    Q_INVOKABLE static QVariantList themeGridColumns(double available, int cardCount);
    /// The width of all cards in one row at their widest.
    Q_INVOKABLE static double largestThemeGridWidth(int cardCount);
};

} // namespace orvelle
