import QtQuick
import Orvelle.Common

PlainText {
    size: 10
    weight: Font.DemiBold
    color: Look.secondaryLabel
    Accessible.role: Accessible.Heading
}
