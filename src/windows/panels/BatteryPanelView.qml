import QtQuick
import Orvelle.Common
import Orvelle.Panels

PanelBody {
    id: panel

    required property BatteryMonitor battery
    readonly property var info: battery.battery

    // Not one of the sections, so that it stands in the middle of whatever room the panel has.
    children: NoBatteryNotice {
        objectName: "notice"
        visible: !panel.info.isPresent
        x: Look.centred(parent.width, width)
        y: Look.centred(parent.height, height)
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
