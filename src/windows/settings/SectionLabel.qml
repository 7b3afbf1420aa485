import QtQuick
import Orvelle.Common

/// Names a control below it or beside it, which has the same name for assistive programs.
PlainText {
    size: 11
    weight: Font.Medium
    color: Look.valueLabel
    Accessible.ignored: true
}
