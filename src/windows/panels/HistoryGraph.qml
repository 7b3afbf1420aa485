import QtQuick
import QtQuick.Layouts
import Orvelle.Charts
import Orvelle.Common
import Orvelle.Panels

/// A line graph in the style of the settings.
AnimatedLineGraph {
    id: graph

    required property SettingsStore settings
    required property ThemeManager themeManager

    Layout.fillWidth: true
    maxValue: 1
    lineWidth: 1.5
    fillGradient: true
    showGlow: PanelGraphics.hasGlow(graph.settings.glowIntensity)
    lineStyle: graph.settings.graphLineStyle
    fillStyle: graph.settings.graphFillStyle
    glowIntensity: graph.settings.glowIntensity
    gridColor: graph.themeManager.currentTheme.graphGrid

    Accessible.role: Accessible.Chart
}
