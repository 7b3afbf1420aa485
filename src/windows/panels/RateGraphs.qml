import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// Two series of bytes per second on one scale, and what their colours mean.
ColumnLayout {
    id: graphs

    required property SettingsStore settings
    required property ThemeManager themeManager
    required property string title
    required property string firstName
    required property list<real> firstData
    required property color firstColor
    required property string secondName
    required property list<real> secondData
    required property color secondColor
    required property real graphHeight

    readonly property real sharedScale: PanelGraphics.sharedGraphScale(firstData, secondData)

    Layout.fillWidth: true
    spacing: 6

    SectionTitle { text: graphs.title }
    Item {
        Layout.fillWidth: true
        implicitHeight: graphs.graphHeight

        HistoryGraph {
            objectName: "firstGraph"
            anchors.fill: parent
            settings: graphs.settings
            themeManager: graphs.themeManager
            data: graphs.firstData
            maxValue: graphs.sharedScale
            lineColor: graphs.firstColor
            Accessible.name: graphs.title + ", " + graphs.firstName
        }
        HistoryGraph {
            objectName: "secondGraph"
            anchors.fill: parent
            settings: graphs.settings
            themeManager: graphs.themeManager
            data: graphs.secondData
            maxValue: graphs.sharedScale
            lineColor: graphs.secondColor
            gridColor: Look.clear // the grid is drawn once
            Accessible.name: graphs.title + ", " + graphs.secondName
        }
    }
    RowLayout {
        spacing: 12
        LegendItem {
            text: graphs.firstName
            swatchColor: graphs.firstColor
            isLine: true
        }
        LegendItem {
            text: graphs.secondName
            swatchColor: graphs.secondColor
            isLine: true
        }
    }
}
