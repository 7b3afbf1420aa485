import QtQuick
import QtQuick.Templates as T
import Orvelle.Settings

/// A button of a `ChoiceGroup`.
T.RadioButton {
    id: button

    required property ChoiceGroup group
    required property int index
    required property var modelData

    text: modelData.label
    checked: group.chosenIndex === index
    focusPolicy: index === group.tabIndex ? Qt.TabFocus : Qt.NoFocus
    hoverEnabled: true
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    onClicked: group.choose(index)

    Keys.onReturnPressed: group.choose(index)
    Keys.onEnterPressed: group.choose(index)
    Accessible.name: text
    Accessible.onPressAction: group.choose(index)
    Accessible.onToggleAction: group.choose(index)
}
