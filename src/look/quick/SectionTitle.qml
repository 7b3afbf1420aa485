import QtQuick
import Orvelle.Look

PlainText {
    size: 10
    weight: Font.DemiBold
    color: Look.secondaryLabel
    Accessible.role: Accessible.Heading
}
