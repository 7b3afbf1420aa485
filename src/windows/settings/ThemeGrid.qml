import QtQuick
import Orvelle.Common
import Orvelle.Settings

/// A card for each theme, in as many columns as fit.
ChoiceGroup {
    id: grid

    required property ThemeManager themeManager
    readonly property real largestWidth: SettingsRules.largestThemeGridWidth(choices.length)
    readonly property var columnWidths: SettingsRules.themeGridColumns(width, choices.length)

    name: "Theme"
    choices: SettingsRules.themes
    chosenIndex: choices.findIndex(theme => theme.id === themeManager.currentTheme.id)
    columns: columnWidths.length
    columnSpacing: SettingsRules.themeGridSpacing
    rowSpacing: SettingsRules.themeGridSpacing
    onChosen: index => themeManager.selectTheme(choices[index].id)

    // Only from Qt 6.5 on can a file say that a component may use an outer id (ComponentBehavior).
    delegate: ThemePreviewCard {
        group: grid // qmllint disable unqualified
        width: grid.columnWidths[index % grid.columns] // qmllint disable unqualified
    }
}
