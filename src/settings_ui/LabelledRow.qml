import QtQuick
import QtQuick.Layouts
import Orvelle.SettingsUI

/// A name, and at the end of the row the control that it names.
RowLayout {
    property alias text: label.text

    Layout.fillWidth: true
    spacing: 8

    SectionLabel {
        id: label
        Layout.fillWidth: true
    }
}
