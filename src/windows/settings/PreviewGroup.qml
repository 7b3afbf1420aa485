import QtQuick.Layouts
import Orvelle.Settings

/// Previews of a setting's values side by side, in more rows where they do not fit in one.
SettingGroup {
    Layout.fillWidth: true
    Layout.leftMargin: -3 // the frames stand in line with the titles
    columns: SettingsRules.fittingColumns(neededWidths(), columnSpacing, width).length
    columnSpacing: 12
    rowSpacing: 6
}
