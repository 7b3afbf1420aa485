import QtQuick
import Orvelle.Common
import Orvelle.Settings

/// Offers the values of a setting.
ChoiceGroup {
    id: group

    required property SettingsStore settings
    /// The name of the store's property.
    required property string setting

    chosenIndex: choices.findIndex(choice => choice.value === settings[setting])
    onChosen: index => settings[setting] = choices[index].value
}
