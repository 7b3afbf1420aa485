"""Uses every control of the settings window and checks the results.

    settings_choices.py SETTINGS_FILE
"""

import os
import subprocess
import sys

import settings_text
import settings_window
from assistive import (Role, State, children, connect, descendants, do, find_child, finish, has_state, report,
                       shown_panel, wait_until)
from screen import click, has_color

SETTINGS_FILE = sys.argv[1]
MODULES = os.environ["ORVELLE_MODULE_TITLES"].split("|")

# The group, the name of the choice, the key and the stored value.
CHOICES = [
    ("CPU Display", "Percentage", "cpuDisplayMode", "percentage"),
    ("Every", "1s", "updateInterval", "1"),
    ("Line Style", "Stepped", "graphLineStyle", "stepped"),
    ("Fill Style", "Striped", "graphFillStyle", "striped"),
    ("Bar Chart Style", "Thin Lines", "barChartStyle", "thinLine"),
    ("Ring Chart Style", "Pie Chart", "ringChartStyle", "pieChart"),
    ("Menu Bar Display", "Sparkline", "menuBarDisplayStyle", "sparkline"),
    ("Animation Speed", "Fast", "animationSpeed", "fast"),
    ("Glow Effect", "Intense", "glowIntensity", "intense"),
    ("Theme", "Cyberpunk", "selectedThemeId", "cyberpunk"),
]
SWITCHES = [("Use Fahrenheit", "useFahrenheit", "true"), ("Compact Mode", "compactMode", "true"),
            ("Launch at Login", "launchAtLogin", "true")]

CONTAINERS = {Role.FILLER, Role.PANEL, Role.UNKNOWN, Role.LIST, Role.SCROLL_PANE, Role.LAYERED_PANE, Role.FRAME}


def wait_stored(key, value):
    return wait_until(f"{key}={value} is stored",
                      lambda: settings_text.read(SETTINGS_FILE).get(key) == value)


def check_names(window):
    # A notice has a name only while it has text.
    nameless = [part.get_role_name() for part in descendants(window)
                if not part.get_name() and part.get_role() not in CONTAINERS | {Role.ALERT}]
    report(not nameless, "everything in the settings has a name", nameless)


def use_choices(window):
    for group, name, key, value in CHOICES:
        choice = settings_window.find_choice(window, group, name)
        report(choice is not None and not settings_window.is_checked(choice), f"{group} is not {name} yet")
        settings_window.press(choice, f"{name} can be pressed")
        wait_stored(key, value)
        wait_until(f"{name} is chosen", lambda: settings_window.is_checked(choice))


def use_switches(window):
    for name, key, value in SWITCHES:
        switch = settings_window.find_switch(window, name)
        settings_window.press(switch, f"{name} can be pressed")
        wait_stored(key, value)
        wait_until(f"{name} is on", lambda: settings_window.is_checked(switch))


def shown_items(program):
    bar = settings_window.find_bar(program)
    return [] if bar is None else [item.get_name() for item in children(bar)]


def use_modules(program, window):
    """Switches each module over and back again."""
    for _ in range(2):
        wanted = [module for module in MODULES if module not in shown_items(program)]
        for module in MODULES:
            switch = settings_window.find_switch(window, module)
            report(settings_window.is_checked(switch) != (module in wanted), f"{module} is as it was")
            settings_window.press(switch, f"{module} can be pressed")
            wait_stored(f"show{module}", "true" if module in wanted else "false")
        # The bar checks the settings every 3 seconds.
        wait_until(f"the bar shows {', '.join(wanted)}", lambda: shown_items(program) == wanted, 6)


def type_color(window, module, digits):
    """Gives the module a custom colour by typing hexadecimal digits."""
    header = settings_window.find(window, Role.PUSH_BUTTON, "CUSTOM COLOR OVERRIDES")
    if settings_window.find_switch(window, f"Own color for {module}") is None:
        settings_window.press(header, "the overrides unfold")
    switch = wait_until(f"{module} has a switch for its own color",
                        lambda: settings_window.find_switch(window, f"Own color for {module}"))
    key = "Sensor" if module == "Sensors" else module
    settings_window.press(switch, f"the own color for {module} can be switched on")
    wait_stored(f"useCustom{key}Color", "true")
    well = wait_until("its well is shown", lambda: settings_window.find(
        window, Role.PUSH_BUTTON, f"Color for {module}"))
    settings_window.press(well, "the well can be pressed")
    field = wait_until("the digits can be edited", lambda: settings_window.find_field(window))
    if field is not None:
        do(field, "SetFocus")
        wait_until("they have the keyboard", lambda: has_state(field, State.FOCUSED))
        subprocess.run(["xdotool", "key", "ctrl+a", "type", digits], check=True)
        wait_stored(f"custom{key}ColorHex", digits)
        wait_until("the well tells the color", lambda: well.get_description() == digits)
        settings_window.press(well, "a second press closes it")
        wait_until("the digits are gone", lambda: settings_window.find_field(window) is None)


def use_colors(window):
    for number, module in enumerate(MODULES):
        type_color(window, module, f"#C000{0xE0 + number:02X}")


def click_and_look(program, window):
    """Uses the mouse and checks the visible results, such as the theme's colour in the memory item."""
    bar = settings_window.find_bar(program)
    memory = find_child(bar, Role.PUSH_BUTTON, "Memory")
    for name, theme, color in (("Forest", "forest", (102, 204, 102)), ("Synthwave", "synthwave", (102, 0, 255))):
        report(not has_color(memory, *color), f"the bar does not look like {name}")
        click(settings_window.find_choice(window, "Theme", name))
        wait_stored("selectedThemeId", theme)
        wait_until(f"the bar looks like {name}", lambda: has_color(memory, *color))
    settings_window.press(settings_window.find_choice(window, "Menu Bar Display", "Text Only"), "text alone")
    wait_until("text alone has no symbol in the theme's color", lambda: not has_color(memory, 102, 0, 255))
    settings_window.press(settings_window.find_choice(window, "Menu Bar Display", "Mini Bars"), "back to the bars")
    wait_until("the symbol is back", lambda: has_color(memory, 102, 0, 255))
    compact = settings_window.find_switch(window, "Compact Mode")
    click(compact)
    wait_stored("compactMode", "true")
    click(compact)
    wait_stored("compactMode", "false")
    click(settings_window.find_choice(window, "CPU Display", "Percentage"))
    wait_stored("cpuDisplayMode", "percentage")
    settings_window.press(settings_window.find_choice(window, "CPU Display", "Bar Chart"), "back to the bars")
    wait_stored("cpuDisplayMode", "barChart")


def check_outside_edits(window):
    """Another program writes one setting while the window writes another."""
    fahrenheit = settings_window.find_switch(window, "Use Fahrenheit")
    compact = settings_window.find_switch(window, "Compact Mode")
    for round_number in range(4):
        fahrenheit_is, compact_is = (settings_window.is_checked(control) for control in (fahrenheit, compact))
        settings_text.write(SETTINGS_FILE, "useFahrenheit", "false" if fahrenheit_is else "true")
        settings_text.write(SETTINGS_FILE, "somebodyElses", f"value {round_number}")
        do(compact, "Press")
        wait_stored("compactMode", "false" if compact_is else "true")
        wait_stored("useFahrenheit", "false" if fahrenheit_is else "true")
        wait_stored("somebodyElses", f"value {round_number}")
        wait_until("the switches follow", lambda: settings_window.is_checked(fahrenheit) != fahrenheit_is and
                   settings_window.is_checked(compact) != compact_is)
    settings_text.write(SETTINGS_FILE, "glowIntensity", "subtle")
    wait_until("the choice follows", lambda: settings_window.is_checked(
        settings_window.find_choice(window, "Glow Effect", "Subtle")))
    settings_text.write(SETTINGS_FILE, "glowIntensity", "nonsense")
    wait_until("nonsense stands for the default", lambda: not settings_window.is_checked(
        settings_window.find_choice(window, "Glow Effect", "Subtle")))


def check_panel(program):
    """An open panel follows at once. Its gear returns to the settings."""
    bar = settings_window.find_bar(program)
    do(find_child(bar, Role.PUSH_BUTTON, "CPU"), "Press")
    panel = wait_until("the CPU panel opens", lambda: shown_panel(program, "CPU"))
    if panel is None:
        return
    wait_until("it has the own color", lambda: has_color(panel, 192, 0, 224))
    settings_text.write(SETTINGS_FILE, "customCPUColorHex", "#00FF80")
    wait_until("it takes another", lambda: has_color(panel, 0, 255, 128) and not has_color(panel, 192, 0, 224))
    gear = settings_window.find(panel, Role.PUSH_BUTTON, "Open Orvelle Settings")
    settings_window.press(gear, "the gear can be pressed")
    wait_until("it leads to the settings", lambda: has_state(settings_window.shown(program), State.ACTIVE))


def main():
    program = connect()
    window = program and settings_window.open_by_menu(program)
    if not window:
        return
    check_names(window)
    click_and_look(program, window)
    use_choices(window)
    use_switches(window)
    use_modules(program, window)
    use_colors(window)
    check_names(window)
    check_panel(program)
    check_outside_edits(window)


main()
finish()
