import QtQuick
import Orvelle.Common

/// The visible name of a control beside or below it. Assistive programs read the control's own name.
PlainText {
    size: 11
    weight: Font.Medium
    color: Look.valueLabel
    Accessible.ignored: true
}
