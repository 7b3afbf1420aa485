import QtQuick
import QtQuick.Layouts
import Orvelle.Settings

/// A name, and the control that it names: at the end of the row, or below the name where the row is too short for
/// both.
GridLayout {
    id: row

    property alias text: label.text
    default property alias control: place.data
    readonly property bool isOneLine: label.implicitWidth + columnSpacing + place.implicitWidth <= width

    Layout.fillWidth: true
    columns: isOneLine ? 2 : 1
    columnSpacing: 8
    rowSpacing: 8

    SectionLabel {
        id: label
        Layout.fillWidth: true
    }
    RowLayout {
        id: place
        Layout.fillWidth: !row.isOneLine
    }
}
