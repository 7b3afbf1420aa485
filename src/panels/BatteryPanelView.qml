import QtQuick
import Orvelle.Panels

PanelBody {
    id: panel

    required property BatteryMonitor battery
    readonly property var info: battery.battery

    NoBatteryNotice {
        objectName: "notice"
        visible: !panel.info.isPresent
        // In the middle of the room that the panel has.
        implicitHeight: panel.height - 2 * panel.padding
    }
    BatteryDetails {
        objectName: "details"
        visible: panel.info.isPresent
        info: panel.info
        chargeHistory: panel.battery.chargeHistory
        settings: panel.settings
        themeManager: panel.themeManager
        moduleColor: panel.colors.battery
    }
}
