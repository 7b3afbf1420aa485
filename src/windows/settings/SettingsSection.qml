import QtQuick
import QtQuick.Layouts
import Orvelle.Common

/// What belongs together, under a title.
ColumnLayout {
    id: section

    required property string title

    Layout.fillWidth: true
    spacing: 8

    SectionTitle {
        text: section.title.toUpperCase()
        Layout.fillWidth: true
    }
}
