"""Watches one panel of Orvelle until it shows the work that the test gives to the machine.

    live_values.py ITEM (DESCRIPTION PATTERN)...

Presses the item, and waits for each regular expression in turn to match the name of a visible part of its panel.
"""

import re
import sys

from assistive import (Role, State, connect, descendants, do, find_child, finish, has_state, report, shown_panel,
                       wait_until)

# Processes are compared at every third sample, and a busy machine may need long for each sample.
VALUE_PATIENCE_SECONDS = 40


def visible_names(panel):
    return [part.get_name() for part in descendants(panel) if has_state(part, State.VISIBLE)]


def main():
    item, *expectations = sys.argv[1:]
    program = connect()
    bar = program and wait_until("the bar is there", lambda: find_child(program, Role.TOOL_BAR, "Orvelle"))
    if not bar:
        return
    report(do(find_child(bar, Role.PUSH_BUTTON, item), "Press"), f"the {item} item can be pressed")
    panel = wait_until(f"the {item} panel opens", lambda: shown_panel(program, item))
    if panel is None:
        return
    for description, pattern in zip(expectations[::2], expectations[1::2]):
        if not wait_until(description, lambda: any(re.search(pattern, name) for name in visible_names(panel)),
                          VALUE_PATIENCE_SECONDS):
            print(visible_names(panel))


main()
finish()
