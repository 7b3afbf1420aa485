import QtQuick
import QtQuick.Templates as T
import Orvelle.Common
import Orvelle.Settings

/// A section's title that shows and hides what is under it.
T.AbstractButton {
    id: header

    required property string title
    required property bool isExpanded

    implicitHeight: Math.max(24, implicitContentHeight + 8)
    // The ground reaches beyond the row, which stands in line with the other titles.
    leftInset: -6
    rightInset: -6
    text: title
    focusPolicy: Qt.TabFocus
    hoverEnabled: true

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.name: text
    Accessible.description: isExpanded ? "Expanded" : "Collapsed"
    Accessible.onPressAction: clicked()

    background: Rectangle {
        radius: 5
        color: header.down ? Look.pressed : header.hovered ? Look.card : Look.clear
        KeyRing {
            control: header
            radius: 5
        }
    }
    contentItem: DisclosureTitle {
        title: header.title
        isExpanded: header.isExpanded
    }
}
