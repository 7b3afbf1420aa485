"""Finds and uses Orvelle through AT-SPI alone. The assistive programs of the end-to-end tests share this module.

Each check prints a line. `finish` exits with status 0 if all checks passed.
"""

import os
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # only after the version is set

PATIENCE_SECONDS = 60
Role = Atspi.Role
State = Atspi.StateType

failures = []


def report(holds, description, detail=""):
    if holds:
        print("ok:", description)
    else:
        failures.append(description)
        print(f"FAILED: {description}", detail)


def handle_events():
    context = GLib.MainContext.default()
    while context.iteration(False):
        pass


def wait_until(description, condition, patience_seconds=PATIENCE_SECONDS):
    """Polls until `condition` returns a true value, and returns it; None if it never does."""
    deadline = time.monotonic() + patience_seconds
    while time.monotonic() < deadline:
        handle_events()
        try:
            result = condition()
        except GLib.Error:
            result = None  # the object has just disappeared
        if result:
            report(True, description)
            return result
        time.sleep(0.05)
    report(False, description)
    return None


def children(accessible):
    """The children that still exist when they are asked for: the bar may replace its items meanwhile."""
    asked = [accessible.get_child_at_index(index) for index in range(accessible.get_child_count())]
    return [child for child in asked if child is not None]


def descendants(accessible):
    for child in children(accessible):
        yield child
        yield from descendants(child)


def find_program():
    for program in children(Atspi.get_desktop(0)):
        if program.get_name() == "orvelle":
            program.set_cache_mask(Atspi.Cache.NONE)
            return program
    return None


def has_state(accessible, state):
    return accessible.get_state_set().contains(state)


def find_child(parent, role, name):
    for child in children(parent):
        if child.get_role() == role and child.get_name() == name:
            return child
    return None


def shown_panel(program, title):
    """The visible window that has a heading with this name."""
    for window in children(program):
        if window is None or not has_state(window, State.VISIBLE):
            continue
        if any(part.get_role() == Role.HEADING and part.get_name() == title for part in descendants(window)):
            return window
    return None


def do(accessible, wanted):
    """Performs the action with the English name `wanted`; returns whether the program reports success."""
    names = [accessible.get_action_name(index) for index in range(accessible.get_n_actions())]
    return wanted in names and accessible.do_action(names.index(wanted))


def press_key(name):
    """Presses a key of the keyboard, under Wayland by the client that ORVELLE_WAYLAND_CLIENT names."""
    client = os.environ.get("ORVELLE_WAYLAND_CLIENT")
    if client is None:
        subprocess.run(["xdotool", "key", name], check=True)
    else:
        subprocess.run([client, "seat"], input=f"key {name}\n", text=True, stdout=subprocess.DEVNULL, check=True)


def connect():
    """The program on the accessibility bus; None if it does not appear."""
    Atspi.init()
    Atspi.set_timeout(5000, 15000)
    return wait_until("the program is on the accessibility bus", find_program)


def finish():
    sys.exit(1 if failures else 0)
