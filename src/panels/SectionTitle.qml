import QtQuick
import Orvelle.Panels

PanelText {
    size: 10
    weight: Font.DemiBold
    color: Look.secondaryLabel
    Accessible.role: Accessible.Heading
}
