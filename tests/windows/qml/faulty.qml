import QtQuick
import Orvelle.Common

// The lint must notice that the role which the label asks for does not exist.
PlainText {
    text: "Faulty"
    color: Look.missingRole
}
