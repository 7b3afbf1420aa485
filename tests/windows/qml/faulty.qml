import QtQuick
import Orvelle.Common

// What the lint must notice: the role that a label asks for does not exist.
PlainText {
    text: "Faulty"
    color: Look.missingRole
}
