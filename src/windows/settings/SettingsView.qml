import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Settings

/// Every setting in titled sections. Each control reads and writes the store.
Item {
    id: view

    required property SettingsStore settings
    required property ThemeManager themeManager
    /// Null, or the object that `SettingsScrollView` describes.
    required property var launchAtLogin
    property alias showCustomColors: overrides.showCustomColors
    signal quitApp()

    readonly property real padding: 16
    readonly property real largestWidth: 620
    readonly property ModuleColors colors: ModuleColors {
        settings: view.settings
        themeManager: view.themeManager
    }

    /// Resets the state that does not outlast the window.
    function close() {
        showCustomColors = false;
    }

    implicitHeight: sections.implicitHeight + 2 * padding

    WindowMover {
        objectName: "mover"
        anchors.fill: parent
    }
    ColumnLayout {
        id: sections
        x: Look.centred(view.width, width)
        y: view.padding
        width: Math.min(view.width, view.largestWidth) - 2 * view.padding
        spacing: 12

        RowLayout {
            objectName: "titleBar"
            spacing: 8
            Symbol {
                name: "gearshape.fill"
                fontSize: 14
                weight: Font.DemiBold
                color: Look.grey
            }
            PlainText {
                text: "Settings"
                size: 14
                weight: Font.Bold
                color: Look.white
                Layout.fillWidth: true
                Accessible.role: Accessible.Heading
            }
        }
        SettingsSection {
            objectName: "modules"
            title: "MENU BAR MODULES"
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2
                Repeater {
                    model: Choices.modules
                    // Only Qt 6.5 and later let a file declare that its components use outer ids
                    // (ComponentBehavior).
                    delegate: SettingsToggle {
                        required property var modelData
                        objectName: modelData.shown
                        Layout.fillWidth: true
                        text: modelData.label
                        symbol: modelData.icon
                        symbolColor: view.colors[modelData.key] // qmllint disable unqualified
                        checked: view.settings[modelData.shown] // qmllint disable unqualified
                        onToggled: view.settings[modelData.shown] = checked // qmllint disable unqualified
                    }
                }
            }
        }
        SettingsSection {
            objectName: "display"
            title: "DISPLAY"
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2
                LabelledPicker {
                    name: "CPU Display"
                    settings: view.settings
                    setting: "cpuDisplayMode"
                    choices: Choices.cpuDisplayModes
                }
                SettingsToggle {
                    objectName: "useFahrenheit"
                    Layout.fillWidth: true
                    text: "Use Fahrenheit"
                    checked: view.settings.useFahrenheit
                    onToggled: view.settings.useFahrenheit = checked
                }
                SettingsToggle {
                    objectName: "compactMode"
                    Layout.fillWidth: true
                    text: "Compact Mode"
                    help: Choices.unchangedBarHelp
                    checked: view.settings.compactMode
                    onToggled: view.settings.compactMode = checked
                }
            }
        }
        SettingsSection {
            objectName: "interval"
            title: "UPDATE INTERVAL"
            LabelledPicker {
                name: "Every"
                settings: view.settings
                setting: "updateInterval"
                choices: Choices.updateIntervals
            }
        }
        SettingsSection {
            objectName: "themes"
            title: "THEME"
            ThemeGrid {
                // Uses the whole window, while the rows of text stay short.
                readonly property real fullWidth: Math.min(view.width - 2 * view.padding, largestWidth)
                readonly property real overhang: Math.floor(Math.max(0, fullWidth - sections.width) / 2)
                Layout.fillWidth: true
                Layout.leftMargin: -overhang
                Layout.rightMargin: -overhang
                themeManager: view.themeManager
            }
        }
        SettingsSection {
            objectName: "graphs"
            title: "GRAPH STYLE"
            SectionLabel { text: "Line Style" }
            StylePicker {
                name: "Line Style"
                settings: view.settings
                setting: "graphLineStyle"
                choices: Choices.graphLineStyles
                color: view.colors.cpu
            }
            SectionLabel { text: "Fill Style" }
            SegmentedPicker {
                name: "Fill Style"
                settings: view.settings
                setting: "graphFillStyle"
                choices: Choices.graphFillStyles
            }
        }
        SettingsSection {
            objectName: "bars"
            title: "BAR CHART STYLE"
            StylePicker {
                name: "Bar Chart Style"
                settings: view.settings
                setting: "barChartStyle"
                choices: Choices.barChartStyles
                color: view.colors.cpu
            }
        }
        SettingsSection {
            objectName: "rings"
            title: "RING CHART STYLE"
            StylePicker {
                name: "Ring Chart Style"
                settings: view.settings
                setting: "ringChartStyle"
                choices: Choices.ringChartStyles
                color: view.colors.cpu
            }
        }
        SettingsSection {
            objectName: "menuBar"
            title: "MENU BAR DISPLAY"
            SegmentedPicker {
                name: "Menu Bar Display"
                settings: view.settings
                setting: "menuBarDisplayStyle"
                choices: Choices.menuBarDisplayStyles
            }
        }
        SettingsSection {
            objectName: "animation"
            title: "ANIMATION SPEED"
            SegmentedPicker {
                name: "Animation Speed"
                settings: view.settings
                setting: "animationSpeed"
                choices: Choices.animationSpeeds
            }
        }
        SettingsSection {
            objectName: "glow"
            title: "GLOW EFFECT"
            SegmentedPicker {
                name: "Glow Effect"
                settings: view.settings
                setting: "glowIntensity"
                choices: Choices.glowIntensities
            }
        }
        Divider {}
        CustomColorOverrides {
            id: overrides
            objectName: "overrides"
            settings: view.settings
            themeManager: view.themeManager
        }
        Divider {}
        SettingsToggle {
            objectName: "launchAtLogin"
            Layout.fillWidth: true
            text: "Launch at Login"
            symbol: "power"
            symbolColor: Look.green
            checked: view.settings.launchAtLogin
            onToggled: view.settings.launchAtLogin = checked
        }
        LoginApproval {
            objectName: "loginApproval"
            Layout.fillWidth: true
            Layout.topMargin: -8
            Layout.leftMargin: 22 // below the text of the switch
            visible: view.launchAtLogin !== null && view.launchAtLogin.needsApproval
            onOpened: view.launchAtLogin.askForApproval()
        }
        Divider {}
        RowLayout {
            objectName: "footer"
            Layout.fillWidth: true

            PlainText {
                Layout.fillWidth: true
                text: "Orvelle v1.0"
                size: 9
                color: Look.secondaryLabel
                opacity: 0.5
            }
            QuitButton {
                objectName: "quit"
                Layout.rightMargin: -rightPadding // aligns its text with the switches
                onClicked: view.quitApp()
            }
        }
    }

    /// Related settings under a line and a title.
    component SettingsSection: ColumnLayout {
        id: section

        required property string title

        Layout.fillWidth: true
        spacing: 8

        Divider { Layout.bottomMargin: 4 }
        SectionTitle {
            text: section.title.toUpperCase()
            Layout.fillWidth: true
        }
    }

    component QuitButton: PushButton {
        id: button

        text: "Quit"
        padding: 4
        leftPadding: 8
        rightPadding: 8
        contentItem: PlainText {
            text: button.text
            size: 10
            weight: Font.Medium
            color: Look.red
            Accessible.ignored: true
        }
    }
}
