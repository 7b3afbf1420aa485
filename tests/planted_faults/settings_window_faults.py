"""Faults in the settings window."""

from planting import Fault

CONTENT = "src/windows/settings/SettingsScrollView.qml"
MOVER = "src/windows/settings/WindowMover.qml"
MOVING = ("test_windows_settings", "SettingsMoving.*")

SETTINGS_FAULTS = [
    Fault("Escape closes the window of Qt", CONTENT, "onEscapePressed: Window.window.hide()",
          "onEscapePressed: Window.window.close()", "test_windows_settings", "SettingsKeys.Close*"),
    Fault("a mouse scrolls the settings", MOVER, "preventStealing = isArmed;", "", *MOVING),
    Fault("a finger moves the window", MOVER, "mouse.source === Qt.MouseEventNotSynthesized", "true", *MOVING),
    Fault("a click moves the window", MOVER, "distance < drag.threshold", "distance < 1", *MOVING),
    Fault("the mover lies above the controls", "src/windows/settings/SettingsView.qml", 'objectName: "mover"',
          'objectName: "mover"; z: 1', *MOVING),
]
