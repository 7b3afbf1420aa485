import QtQuick
import Orvelle.Common
import Orvelle.Panels

PanelBody {
    id: panel

    required property ClockMonitor clock

    PanelHeader {
        symbol: "network"
        title: "Clock"
        moduleColor: panel.colors.clock
    }
    PlainText {
        objectName: "ticks"
        text: panel.clock.ticks
    }
}
