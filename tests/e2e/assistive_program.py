"""An assistive program for the end-to-end test: finds the bar, uses it through AT-SPI alone, and ends Orvelle."""

import os

from assistive import (Atspi, GLib, Role, State, children, connect, descendants, do, find_child, finish, has_state,
                       press_key, report, shown_panel, wait_until)

ITEMS = os.environ["ORVELLE_MODULE_TITLES"].split("|")

# Containers need no name.
CONTAINERS = {Role.FILLER, Role.PANEL, Role.UNKNOWN, Role.LIST, Role.SCROLL_PANE, Role.LAYERED_PANE}

heard = []


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
    """The role, the role's name and the name of each visible part. Starts again when the panel replaces a part meanwhile,
    as it does with the processes that it lists."""
    return wait_until("the panel's parts can be read", lambda: [
        (part.get_role(), part.get_role_name(), part.get_name())
        for part in descendants(panel) if has_state(part, State.VISIBLE)]) or []


def check_names(panel, title):
    parts = visible_parts(panel)
    nameless = [role_name for role, role_name, name in parts if not name and role not in CONTAINERS]
    report(not nameless, f"everything in the {title} panel has a name", nameless)
    names = [name for _, _, name in parts]
    report(any(any(sign.isdigit() for sign in name) for name in names), f"the {title} panel says values")
    report((Role.PUSH_BUTTON, "Open Orvelle Settings") in [(role, name) for role, _, name in parts],
           f"the {title} panel has the button for the settings", names)


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
    press_key("Down")
    wait_until("the focus is announced as the keys move it",
               lambda: ("object:state-changed:focused", "Settings...") in heard)
    report(has_state(menu.get_child_at_index(0), State.FOCUSED), "the current entry has the focus")


def quit_by_menu(program):
    for menu in children(program):
        if menu.get_role() == Role.POPUP_MENU:
            try:
                do(menu.get_child_at_index(2), "Press")
            except GLib.Error:
                pass  # the program has ended before it could answer


def listen(event):
    if event.type.startswith("object:property-change") or event.detail1 == 1:
        heard.append((event.type, event.source.get_name()))


def main():
    program = connect()
    if program is None:
        return
    # Register only now, because a starting program can miss a new listener.
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
finish()
