"""Uses the settings window like an assistive program."""

from assistive import (Role, State, children, descendants, do, find_child, has_state, report, wait_until)

TITLE = "Orvelle Settings"


def find_bar(program):
    return find_child(program, Role.TOOL_BAR, "Orvelle")


def shown(program):
    return next((window for window in children(program)
                 if window.get_name() == TITLE and has_state(window, State.VISIBLE)), None)


def shown_menu(program):
    return next((child for child in children(program)
                 if child.get_role() == Role.POPUP_MENU and has_state(child, State.VISIBLE)), None)


def open_by_menu(program):
    """The window; None if it does not open."""
    bar = wait_until("the bar is there", lambda: find_bar(program))
    if bar is None:
        return None
    do(bar.get_child_at_index(0), "ShowMenu")
    menu = wait_until("the menu opens", lambda: shown_menu(program))
    if menu is None or not do(find_child(menu, Role.MENU_ITEM, "Settings..."), "Press"):
        return None
    return wait_until('"Settings..." opens the settings', lambda: shown(program))


def find(place, role, name):
    return next((part for part in descendants(place) if part.get_role() == role and part.get_name() == name), None)


def find_choice(window, group, name):
    """The button with the name in the group with that name."""
    for part in descendants(window):
        if part.get_name() == group:
            choice = find_child(part, Role.RADIO_BUTTON, name)
            if choice is not None:
                return choice
    return None


def press(control, description):
    report(control is not None and do(control, "Press"), description)


def is_checked(control):
    return control is not None and has_state(control, State.CHECKED)


def find_switch(window, name):
    return find(window, Role.CHECK_BOX, name)


def find_field(window):
    return find(window, Role.TEXT, "Hexadecimal digits of the color")
