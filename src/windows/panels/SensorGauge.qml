import QtQuick
import QtQuick.Layouts
import Orvelle.Charts
import Orvelle.Common
import Orvelle.Panels

TemperatureGauge {
    id: gauge

    required property SettingsStore settings
    required property string title
    required property real celsius

    Layout.fillWidth: true
    Layout.preferredWidth: 1 // the gauges of a row share it equally

    label: title
    temperature: celsius
    maxTemp: 110
    useFahrenheit: settings.useFahrenheit
    glowIntensity: settings.glowIntensity
    showGlow: PanelGraphics.hasGlow(settings.glowIntensity)

    Accessible.role: Accessible.Chart
    Accessible.name: PanelGraphics.isTemperatureKnown(celsius)
                     ? title + " " + PanelTexts.formatTemperature(celsius, settings.useFahrenheit)
                     : title + ": no temperature"
}
