pragma Singleton
import QtQuick
import Orvelle.Common

/// The colours of the parts of the memory; the active part has the module's.
QtObject {
    readonly property color wired: Look.withOpacity(Look.red, 0.8)
    readonly property color compressed: Look.orange
    readonly property color cached: Look.withOpacity(Look.cyan, 0.6)
    readonly property color freeInRing: Look.withOpacity(Look.white, 0.08)
    readonly property color freeInLegend: Look.withOpacity(Look.white, 0.3) // a small swatch is seen only when brighter
}
