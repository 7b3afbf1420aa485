import QtQuick
import Orvelle.Common

/// One line of text that is never read as markup: names come from outside.
Text {
    id: text

    property real size: 11
    property int weight: Font.Normal
    property bool monospaced: false

    font: monospaced ? Look.fonts.monospaced(size, weight) : Look.fonts.system(size, weight)
    color: Look.primaryLabel
    textFormat: Text.PlainText
    elide: Text.ElideRight
    maximumLineCount: 1

    Accessible.role: Accessible.StaticText
    Accessible.name: text.text
}
