import QtQuick
import Orvelle.Common
import Orvelle.Settings

/// A section's title that expands and collapses the content below it.
PushButton {
    id: header

    required property string title
    required property bool isExpanded

    implicitHeight: Math.max(24, implicitContentHeight + 8)
    // The background extends beyond the row, which is aligned with the other titles.
    leftInset: -6
    rightInset: -6
    text: title
    hoveredColor: Look.card
    Accessible.description: isExpanded ? "Expanded" : "Collapsed"

    contentItem: DisclosureTitle {
        title: header.title
        isExpanded: header.isExpanded
    }

    /// The title, and at the end of the row a chevron.
    component DisclosureTitle: Item {
        id: row

        required property string title
        required property bool isExpanded

        implicitHeight: caption.implicitHeight

        SectionTitle {
            id: caption
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
}
