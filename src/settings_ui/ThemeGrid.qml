import QtQuick
import Orvelle.Look
import Orvelle.SettingsUI

/// A card for each theme, in as many columns as fit.
ChoiceGroup {
    id: grid

    required property ThemeManager themeManager

    name: "Theme"
    choices: SettingsRules.themes
    chosenIndex: choices.findIndex(theme => theme.id === themeManager.currentTheme.id)
    columns: SettingsRules.themeGridCount(width)
    columnSpacing: SettingsRules.themeGridSpacing
    rowSpacing: SettingsRules.themeGridSpacing
    onChosen: index => themeManager.selectTheme(choices[index].id)

    delegate: ThemePreviewCard {
        group: grid // qmllint disable unqualified
        width: Math.floor(SettingsRules.themeGridColumnWidth(grid.width)) // qmllint disable unqualified
    }
}
