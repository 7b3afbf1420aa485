#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

namespace orvelle {

/// One of the values that a setting offers.
struct Choice {
    Q_GADGET
    Q_PROPERTY(QVariant value MEMBER value CONSTANT)
    Q_PROPERTY(QString label MEMBER label CONSTANT)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(QString help MEMBER help CONSTANT)
public:
    QVariant value; ///< an enumeration's case as a number, or seconds
    QString label;
    QString symbol = {}; ///< empty for a label without a symbol
    QString help = {};   ///< a tooltip, or empty

    bool operator==(const Choice&) const = default;
};

/// A module with the names of the properties that its rows in the window read and write.
struct ModuleRow {
    Q_GADGET
    Q_PROPERTY(QString key MEMBER key CONSTANT)
    Q_PROPERTY(QString icon MEMBER icon CONSTANT)
    Q_PROPERTY(QString label MEMBER label CONSTANT)
    Q_PROPERTY(QString shown MEMBER shown CONSTANT)
    Q_PROPERTY(QString useCustomColor MEMBER useCustomColor CONSTANT)
    Q_PROPERTY(QString customColorHex MEMBER customColorHex CONSTANT)
    Q_PROPERTY(QString themeColor MEMBER themeColor CONSTANT)
public:
    QString key; ///< also the name of its colour in `ModuleColors`
    QString icon;
    QString label;
    QString shown;          ///< of the store: whether it has an item in the menu bar
    QString useCustomColor; ///< of the store: whether its own colour replaces the theme's
    QString customColorHex; ///< of the store: its own colour
    QString themeColor;     ///< of the theme: its colour there
};

[[nodiscard]] const QList<ModuleRow>& moduleRows();

/// The choices of each setting in the order of the settings window: lists of `Choice`, and of `ModuleRow` and
/// `AppTheme` for `modules` and `themes`.
class Choices : public QObject {
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
    Q_PROPERTY(QString unchangedBarHelp READ unchangedBarHelp CONSTANT)

public:
    [[nodiscard]] static QVariantList cpuDisplayModes();
    [[nodiscard]] static QVariantList updateIntervals();
    [[nodiscard]] static QVariantList graphLineStyles();
    [[nodiscard]] static QVariantList graphFillStyles();
    [[nodiscard]] static QVariantList barChartStyles();
    [[nodiscard]] static QVariantList ringChartStyles();
    [[nodiscard]] static QVariantList menuBarDisplayStyles();
    [[nodiscard]] static QVariantList animationSpeeds();
    [[nodiscard]] static QVariantList glowIntensities();
    [[nodiscard]] static QVariantList modules();
    [[nodiscard]] static QVariantList themes();

    /// The help of a setting that is stored but does not affect the menu bar.
    [[nodiscard]] static QString unchangedBarHelp();
};

} // namespace orvelle
