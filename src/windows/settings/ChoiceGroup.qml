import QtQuick

/// Buttons of which one is chosen. The Tab key stops at the chosen one, and the arrow keys choose.
Item {
    id: group

    required property string name
    /// -1 if none is chosen.
    required property int chosenIndex
    property alias choices: repeater.model
    property alias delegate: repeater.delegate
    property alias columns: grid.columns
    property alias columnSpacing: grid.columnSpacing
    property alias rowSpacing: grid.rowSpacing
    readonly property int tabIndex: Math.max(0, chosenIndex)
    signal chosen(int index)

    /// The implicit width of each button.
    function neededWidths() {
        return Array.from({length: repeater.count},
                          (nothing, index) => repeater.itemAt(index)?.implicitWidth ?? 0);
    }
    /// The index of the button with the keyboard focus, or -1.
    function focusedIndex() {
        for (let index = 0; index < repeater.count; ++index) {
            if (repeater.itemAt(index).activeFocus)
                return index;
        }
        return -1;
    }
    /// Chooses a button, and moves the keyboard focus to it if the group has the focus.
    function choose(index) {
        if (focusedIndex() >= 0)
            repeater.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
        chosen(index);
    }

    implicitWidth: grid.implicitWidth
    implicitHeight: grid.implicitHeight
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    Keys.onPressed: event => {
        const steps = new Map([[Qt.Key_Left, -1], [Qt.Key_Right, 1], [Qt.Key_Up, -columns], [Qt.Key_Down, columns]]);
        const next = focusedIndex() + (steps.get(event.key) ?? 0);
        event.accepted = steps.has(event.key) && next >= 0 && next < repeater.count;
        if (event.accepted)
            choose(next);
    }

    Grid {
        id: grid
        columns: repeater.count
        horizontalItemAlignment: Grid.AlignHCenter

        Repeater { id: repeater }
    }
}
