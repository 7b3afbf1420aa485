import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// Two rates in bytes per second: their present values, and their histories on one scale.
ColumnLayout {
    id: rates

    required property SettingsStore settings
    required property ThemeManager themeManager
    required property real valueSize
    required property string historyTitle
    required property real historyHeight
    required property string firstName
    required property color firstColor
    required property real firstRate
    required property list<real> firstData
    required property string secondName
    required property color secondColor
    required property real secondRate
    required property list<real> secondData

    readonly property real sharedScale: PanelGraphics.sharedGraphScale(firstData, secondData)

    Layout.fillWidth: true

    RowLayout {
        spacing: 12
        RateColumn {
            symbol: "arrow.down.circle.fill"
            name: rates.firstName
            directionColor: rates.firstColor
            rate: rates.firstRate
            valueSize: rates.valueSize
        }
        RateColumn {
            symbol: "arrow.up.circle.fill"
            name: rates.secondName
            directionColor: rates.secondColor
            rate: rates.secondRate
            valueSize: rates.valueSize
        }
    }
    Divider {}
    ColumnLayout {
        objectName: "graphs"
        spacing: 6
        SectionTitle { text: rates.historyTitle }
        Item {
            Layout.fillWidth: true
            implicitHeight: rates.historyHeight

            HistoryGraph {
                objectName: "firstGraph"
                anchors.fill: parent
                settings: rates.settings
                themeManager: rates.themeManager
                data: rates.firstData
                maxValue: rates.sharedScale
                lineColor: rates.firstColor
                Accessible.name: rates.historyTitle + ", " + rates.firstName
            }
            HistoryGraph {
                objectName: "secondGraph"
                anchors.fill: parent
                settings: rates.settings
                themeManager: rates.themeManager
                data: rates.secondData
                maxValue: rates.sharedScale
                lineColor: rates.secondColor
                gridColor: Look.clear // the grid is drawn once
                Accessible.name: rates.historyTitle + ", " + rates.secondName
            }
        }
        RowLayout {
            spacing: 12
            LegendItem {
                text: rates.firstName
                swatchColor: rates.firstColor
                isLine: true
            }
            LegendItem {
                text: rates.secondName
                swatchColor: rates.secondColor
                isLine: true
            }
        }
    }

    component RateColumn: ColumnLayout {
        id: column

        required property string symbol
        required property string name
        required property color directionColor
        required property real rate
        required property real valueSize

        spacing: 4
        Layout.fillWidth: true
        Layout.preferredWidth: 1 // columns side by side share the row evenly

        RowLayout {
            spacing: 4
            Symbol {
                name: column.symbol
                fontSize: 10
                color: column.directionColor
            }
            PlainText {
                text: column.name
                size: 10
                color: Look.secondaryLabel
            }
        }
        PlainText {
            text: PanelTexts.formatRate(column.rate)
            size: column.valueSize
            weight: Font.DemiBold
            monospaced: true
            Layout.fillWidth: true
            Accessible.name: column.name + " " + text
        }
    }
}
