import QtQuick
import Orvelle.Charts
import Orvelle.Common
import Orvelle.Settings

/// A card for each theme, in as many columns as fit.
ChoiceGroup {
    id: grid

    required property ThemeManager themeManager
    readonly property real largestWidth: SettingsLayout.largestThemeGridWidth(choices.length)
    readonly property var columnWidths: SettingsLayout.themeGridColumns(width, choices.length)

    name: "Theme"
    choices: Choices.themes
    chosenIndex: choices.findIndex(theme => theme.id === themeManager.currentTheme.id)
    columns: columnWidths.length
    columnSpacing: SettingsLayout.themeGridSpacing
    rowSpacing: SettingsLayout.themeGridSpacing
    onChosen: index => themeManager.selectTheme(choices[index].id)

    // Only Qt 6.5 and later let a file declare that its components use outer ids (ComponentBehavior).
    delegate: ThemePreviewCard {
        group: grid // qmllint disable unqualified
        width: grid.columnWidths[index % grid.columns] // qmllint disable unqualified
    }

    /// Chooses the theme whose colours it shows.
    component ThemePreviewCard: ChoiceButton {
        id: card

        readonly property var theme: modelData
        readonly property bool isSelected: checked
        property bool isHovered: hovered

        text: theme.name
        z: isHovered ? 1 : 0 // the enlarged card covers its neighbours
        scale: isHovered ? 1.05 : 1
        Behavior on scale {
            enabled: !AnimationClock.reduced
            NumberAnimation {
                duration: 150
                easing.type: Easing.BezierSpline
                easing.bezierCurve: [0.42, 0, 0.58, 1, 1, 1]
            }
        }

        contentItem: Column {
            spacing: 4

            Item {
                width: parent.width
                height: 66

                Rectangle {
                    anchors.fill: parent
                    radius: 8
                    color: card.theme.backgroundColor
                }
                ThemeDrawing {
                    anchors.fill: parent
                    anchors.margins: 4
                    theme: card.theme
                }
                Outline {
                    objectName: "selectedOutline"
                    anchors.fill: parent
                    radius: 8
                    color: card.isSelected ? Look.blue : Look.clear
                    lineWidth: 2
                }
                Outline {
                    objectName: "hoveredOutline"
                    anchors.fill: parent
                    radius: 8
                    color: card.isHovered ? Look.hoverOutline : Look.clear
                    lineWidth: 1
                }
            }
            PlainText {
                objectName: "name"
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                maximumLineCount: 2
                text: card.text
                size: 9
                weight: card.isSelected ? Font.Bold : Font.Medium
                color: card.isSelected ? Look.primaryLabel : Look.secondaryLabel
                Accessible.ignored: true
            }
        }
        KeyRing {
            control: card
            anchors.margins: -4
            radius: 10
        }
    }
}
