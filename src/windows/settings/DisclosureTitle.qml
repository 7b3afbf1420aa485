import QtQuick
import Orvelle.Common

/// A section's title, and at the end of the row what tells that it can be unfolded.
Item {
    id: row

    required property string title
    required property bool isExpanded

    implicitHeight: title.implicitHeight

    SectionTitle {
        id: title
        y: Look.centred(parent.height, height)
        width: advanced.x - 8
        text: row.title.toUpperCase()
        wrapMode: Text.Wrap
        maximumLineCount: 2
        Accessible.ignored: true
    }
    PlainText {
        id: advanced
        anchors.right: chevron.left
        anchors.rightMargin: 6
        y: Look.centred(parent.height, height)
        text: "Advanced"
        size: 10
        color: Look.secondaryLabel
        Accessible.ignored: true
    }
    Symbol {
        id: chevron
        objectName: "chevron"
        anchors.right: parent.right
        y: Look.centred(parent.height, height)
        name: row.isExpanded ? "chevron.down" : "chevron.right"
        fontSize: 9
        weight: Font.DemiBold
        color: Look.secondaryLabel
    }
}
