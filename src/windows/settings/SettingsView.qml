import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Settings

/// Every setting, in titled sections below each other. Each control reads and writes the store.
Item {
    id: view

    required property SettingsStore settings
    required property ThemeManager themeManager
    property alias showCustomColors: overrides.showCustomColors
    signal quitApp()

    readonly property real padding: 16
    readonly property real largestWidth: 620
    readonly property ModuleColors colors: ModuleColors {
        settings: view.settings
        themeManager: view.themeManager
    }

    /// The window closes: it opens again without what was only unfolded.
    function close() {
        showCustomColors = false;
    }

    implicitHeight: sections.implicitHeight + 2 * padding

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
        Divider {}
        SettingsSection {
            objectName: "modules"
            title: "MENU BAR MODULES"
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2
                Repeater {
                    model: SettingsRules.modules
                    // Here and below: only from Qt 6.5 on can a file say that a component may use an outer id
                    // (ComponentBehavior).
                    delegate: ModuleToggle {
                        settings: view.settings // qmllint disable unqualified
                        colors: view.colors // qmllint disable unqualified
                    }
                }
            }
        }
        Divider {}
        SettingsSection {
            objectName: "display"
            title: "DISPLAY"
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2
                LabelledRow {
                    text: "CPU Display"
                    SegmentedPicker {
                        name: "CPU Display"
                        settings: view.settings
                        setting: "cpuDisplayMode"
                        choices: SettingsRules.cpuDisplayModes
                    }
                }
                SwitchRow {
                    objectName: "useFahrenheit"
                    Layout.fillWidth: true
                    text: "Use Fahrenheit"
                    checked: view.settings.useFahrenheit
                    onToggled: view.settings.useFahrenheit = checked
                }
                SwitchRow {
                    objectName: "compactMode"
                    Layout.fillWidth: true
                    text: "Compact Mode"
                    help: SettingsRules.unchangedBarHelp
                    checked: view.settings.compactMode
                    onToggled: view.settings.compactMode = checked
                }
            }
        }
        Divider {}
        SettingsSection {
            objectName: "interval"
            title: "UPDATE INTERVAL"
            LabelledRow {
                text: "Every"
                SegmentedPicker {
                    name: "Every"
                    settings: view.settings
                    setting: "updateInterval"
                    choices: SettingsRules.updateIntervals
                }
            }
        }
        Divider {}
        SettingsSection {
            objectName: "themes"
            title: "THEME"
            ThemeGrid {
                // As wide as the window, unlike what is read in lines.
                readonly property real fullWidth: Math.min(view.width - 2 * view.padding, largestWidth)
                readonly property real overhang: Math.floor(Math.max(0, fullWidth - sections.width) / 2)
                Layout.fillWidth: true
                Layout.leftMargin: -overhang
                Layout.rightMargin: -overhang
                themeManager: view.themeManager
            }
        }
        Divider {}
        SettingsSection {
            objectName: "graphs"
            title: "GRAPH STYLE"
            SectionLabel { text: "Line Style" }
            PreviewGroup {
                id: lineGroup
                name: "Line Style"
                settings: view.settings
                setting: "graphLineStyle"
                choices: SettingsRules.graphLineStyles
                delegate: PreviewButton {
                    id: lineButton
                    group: lineGroup // qmllint disable unqualified
                    contentItem: GraphLineStylePreview {
                        style: lineButton.modelData.value
                        isSelected: lineButton.checked
                        color: view.colors.cpu // qmllint disable unqualified
                    }
                }
            }
            SectionLabel { text: "Fill Style" }
            SegmentedPicker {
                name: "Fill Style"
                settings: view.settings
                setting: "graphFillStyle"
                choices: SettingsRules.graphFillStyles
            }
        }
        Divider {}
        SettingsSection {
            objectName: "bars"
            title: "BAR CHART STYLE"
            PreviewGroup {
                id: barGroup
                name: "Bar Chart Style"
                settings: view.settings
                setting: "barChartStyle"
                choices: SettingsRules.barChartStyles
                delegate: PreviewButton {
                    id: barButton
                    group: barGroup // qmllint disable unqualified
                    contentItem: BarStylePreview {
                        style: barButton.modelData.value
                        isSelected: barButton.checked
                        color: view.colors.cpu // qmllint disable unqualified
                    }
                }
            }
        }
        Divider {}
        SettingsSection {
            objectName: "rings"
            title: "RING CHART STYLE"
            PreviewGroup {
                id: ringGroup
                name: "Ring Chart Style"
                settings: view.settings
                setting: "ringChartStyle"
                choices: SettingsRules.ringChartStyles
                delegate: PreviewButton {
                    id: ringButton
                    group: ringGroup // qmllint disable unqualified
                    contentItem: RingStylePreview {
                        style: ringButton.modelData.value
                        isSelected: ringButton.checked
                        color: view.colors.cpu // qmllint disable unqualified
                    }
                }
            }
        }
        Divider {}
        SettingsSection {
            objectName: "menuBar"
            title: "MENU BAR DISPLAY"
            SegmentedPicker {
                name: "Menu Bar Display"
                settings: view.settings
                setting: "menuBarDisplayStyle"
                choices: SettingsRules.menuBarDisplayStyles
            }
        }
        Divider {}
        SettingsSection {
            objectName: "animation"
            title: "ANIMATION SPEED"
            SegmentedPicker {
                name: "Animation Speed"
                settings: view.settings
                setting: "animationSpeed"
                choices: SettingsRules.animationSpeeds
            }
        }
        Divider {}
        SettingsSection {
            objectName: "glow"
            title: "GLOW EFFECT"
            SegmentedPicker {
                name: "Glow Effect"
                settings: view.settings
                setting: "glowIntensity"
                choices: SettingsRules.glowIntensities
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
            icon: "power"
            label: "Launch at Login"
            color: Look.green
            isOn: view.settings.launchAtLogin
            onToggled: isOn => view.settings.launchAtLogin = isOn
        }
        Divider {}
        SettingsFooter {
            objectName: "footer"
            onQuitApp: view.quitApp()
        }
    }
}
