"""An assistive program for the end-to-end test: it finds the bar, uses it through AT-SPI alone, and ends Orvelle.

Prints a line for each check; the exit status is 0 when all of them hold.
"""

import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE_SECONDS = 15
Role = Atspi.Role
State = Atspi.StateType

ITEMS = ["CPU", "Memory", "Network", "Disk", "Battery", "Sensors"]

# What holds other things together and need not have a name of its own.
CONTAINERS = {Role.FILLER, Role.PANEL, Role.UNKNOWN, Role.LIST, Role.SCROLL_PANE, Role.LAYERED_PANE}

failures = 0
heard = []


def report(holds, description, detail=""):
    global failures
    if holds:
        print("ok:", description)
    else:
        failures += 1
        print(f"FAILED: {description}", detail)


def handle_events():
    context = GLib.MainContext.default()
    while context.iteration(False):
        pass


def wait_until(description, condition):
    """Polls until `condition` returns something true, and returns that; None when it never does."""
    deadline = time.monotonic() + PATIENCE_SECONDS
    while time.monotonic() < deadline:
        handle_events()
        try:
            result = condition()
        except GLib.Error:
            result = None  # what was looked at has just gone
        if result:
            report(True, description)
            return result
        time.sleep(0.05)
    report(False, description)
    return None


def children(accessible):
    return [accessible.get_child_at_index(index) for index in range(accessible.get_child_count())]


def descendants(accessible):
    for child in children(accessible):
        if child is not None:
            yield child
            yield from descendants(child)


def find_program():
    for program in children(Atspi.get_desktop(0)):
        if program is not None and program.get_name() == "orvelle":
            program.set_cache_mask(Atspi.Cache.NONE)
            return program
    return None


def has_state(accessible, state):
    return accessible.get_state_set().contains(state)


def find_child(parent, role, name):
    for child in children(parent):
        if child is not None and child.get_role() == role and child.get_name() == name:
            return child
    return None


def shown_panel(program, title):
    """The window on the screen that has a heading with this name."""
    for window in children(program):
        if window is None or not has_state(window, State.VISIBLE):
            continue
        if any(part.get_role() == Role.HEADING and part.get_name() == title for part in descendants(window)):
            return window
    return None


def do(accessible, wanted):
    """Does the action whose name in English is `wanted`; returns whether the program said that it did."""
    names = [accessible.get_action_name(index) for index in range(accessible.get_n_actions())]
    return wanted in names and accessible.do_action(names.index(wanted))


def check_bar(program):
    bar = wait_until("the bar is a tool bar", lambda: find_child(program, Role.TOOL_BAR, "Orvelle"))
    wait_until("its items are buttons in their order",
               lambda: [child.get_name() for child in children(bar)] == ITEMS and
               all(child.get_role() == Role.PUSH_BUTTON for child in children(bar)))
    for item in children(bar):
        name, description = item.get_name(), item.get_description()
        report(description.startswith(name) and len(description) > len(name),
               f"{name} says its values", description)
        box = item.get_extents(Atspi.CoordType.SCREEN)
        report(box.y == 0 and box.height == 22 and box.width > 40, f"{name} stands in the bar",
               (box.x, box.y, box.width, box.height))
        found = bar.get_accessible_at_point(box.x + box.width // 2, 11, Atspi.CoordType.SCREEN)
        report(found is not None and found.get_name() == name, f"{name} is found where it is painted")
    return bar


def visible_parts(panel):
    return [part for part in descendants(panel) if has_state(part, State.VISIBLE)]


def check_names(panel, title):
    parts = visible_parts(panel)
    nameless = [part.get_role_name() for part in parts
                if not part.get_name() and part.get_role() not in CONTAINERS]
    report(not nameless, f"everything in the {title} panel has a name", nameless)
    names = [part.get_name() for part in parts]
    report(any(any(sign.isdigit() for sign in name) for name in names), f"the {title} panel says values")
    report(any(part.get_role() == Role.PUSH_BUTTON and part.get_name() == "Open Orvelle Settings"
               for part in parts), f"the {title} panel has the button for the settings", names)


def check_panels(program, bar):
    report(do(find_child(bar, Role.PUSH_BUTTON, "CPU"), "Press"), "the CPU item can be pressed")
    panel = wait_until("pressing it opens the CPU panel", lambda: shown_panel(program, "CPU"))
    if panel is not None:
        check_names(panel, "CPU")
    report(has_state(find_child(bar, Role.PUSH_BUTTON, "CPU"), State.EXPANDED), "the CPU item is expanded")
    do(find_child(bar, Role.PUSH_BUTTON, "Memory"), "Press")
    panel = wait_until("pressing Memory opens its panel", lambda: shown_panel(program, "Memory"))
    wait_until("and closes the CPU panel", lambda: shown_panel(program, "CPU") is None)
    if panel is not None:
        check_names(panel, "Memory")


def check_menu(program, bar):
    report(do(find_child(bar, Role.PUSH_BUTTON, "Network"), "ShowMenu"), "the menu can be asked for")
    menu = wait_until("the menu opens", lambda: next(
        (child for child in children(program)
         if child.get_role() == Role.POPUP_MENU and has_state(child, State.VISIBLE)), None))
    if menu is None:
        return
    entries = [(child.get_role(), child.get_name()) for child in children(menu)]
    report(entries == [(Role.MENU_ITEM, "Settings..."), (Role.SEPARATOR, ""), (Role.MENU_ITEM, "Quit Orvelle")],
           "the menu has its entries", entries)
    quit_entry = menu.get_child_at_index(2)
    report(quit_entry.get_key_binding(0) == "Ctrl+Q", "an entry tells its keys", quit_entry.get_key_binding(0))
    wait_until("the menu has the keyboard", lambda: has_state(menu, State.ACTIVE))
    subprocess.run(["xdotool", "key", "Down"], check=True)
    wait_until("the focus is announced as the keys move it",
               lambda: ("object:state-changed:focused", "Settings...") in heard)
    report(has_state(menu.get_child_at_index(0), State.FOCUSED), "the current entry has the focus")


def quit_by_menu(program):
    for menu in children(program):
        if menu.get_role() == Role.POPUP_MENU:
            try:
                do(menu.get_child_at_index(2), "Press")
            except GLib.Error:
                pass  # it has ended before it could answer


def listen(event):
    if event.type.startswith("object:property-change") or event.detail1 == 1:
        heard.append((event.type, event.source.get_name()))


def main():
    Atspi.init()
    Atspi.set_timeout(5000, 15000)
    program = wait_until("the program is on the accessibility bus", find_program)
    if program is None:
        return
    # Not before: a program that is just starting can miss that somebody begins to listen.
    listener = Atspi.EventListener.new(listen)
    listener.register("object:property-change:accessible-description")
    listener.register("object:state-changed:focused")
    bar = check_bar(program)
    check_panels(program, bar)
    wait_until("new values are announced", lambda: any(
        kind == "object:property-change:accessible-description" and name in ITEMS for kind, name in heard))
    check_menu(program, bar)
    quit_by_menu(program)


main()
sys.exit(0 if failures == 0 else 1)
