#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

/// What the settings window offers, in the order in which it does. Each text and symbol stands here once.
namespace orvelle {

/// One of the values of a setting.
struct Choice {
    Q_GADGET
    Q_PROPERTY(QVariant value MEMBER value CONSTANT)
    Q_PROPERTY(QString label MEMBER label CONSTANT)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(QString help MEMBER help CONSTANT)
public:
    QVariant value; ///< a number: that of an enumeration's case, or seconds
    QString label;
    QString symbol = {}; ///< empty where the label stands alone
    QString help = {};   ///< empty where nothing is to be explained

    bool operator==(const Choice&) const = default;
};

[[nodiscard]] const QList<Choice>& cpuDisplayModeChoices();
[[nodiscard]] const QList<Choice>& updateIntervalChoices();
[[nodiscard]] const QList<Choice>& graphLineStyleChoices();
[[nodiscard]] const QList<Choice>& graphFillStyleChoices();
[[nodiscard]] const QList<Choice>& barChartStyleChoices();
[[nodiscard]] const QList<Choice>& ringChartStyleChoices();
[[nodiscard]] const QList<Choice>& menuBarDisplayStyleChoices();
[[nodiscard]] const QList<Choice>& animationSpeedChoices();
[[nodiscard]] const QList<Choice>& glowIntensityChoices();

/// Explains a setting that is kept, and does not alter the menu bar.
[[nodiscard]] QString unchangedBarHelp();

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

} // namespace orvelle
