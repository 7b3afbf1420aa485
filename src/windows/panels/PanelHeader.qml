import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// The module's symbol and name; what stands beside them is placed at the end of the row.
RowLayout {
    id: header

    required property string symbol
    required property string title
    required property color moduleColor

    Layout.fillWidth: true
    spacing: 6

    Symbol {
        name: header.symbol
        fontSize: 14
        weight: Font.DemiBold
        color: header.moduleColor
    }
    PlainText {
        text: header.title
        size: 14
        weight: Font.Bold
        Layout.fillWidth: true
        Accessible.role: Accessible.Heading
    }
}
