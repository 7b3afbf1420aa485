import QtQuick
import Orvelle.Common
import Orvelle.Panels

Column {
    spacing: 6

    Symbol {
        x: Look.centred(parent.width, width)
        name: "powerplug.fill"
        fontSize: 24
        color: Look.green
    }
    PlainText {
        x: Look.centred(parent.width, width)
        text: "No Battery Detected"
        size: 12
    }
    PlainText {
        x: Look.centred(parent.width, width)
        text: PanelTexts.mainsPowerNotice()
        size: 10
        color: Look.secondaryLabel
    }
}
