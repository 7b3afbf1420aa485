"""Changes a setting that cannot be saved: the change applies, and the settings window shows why it is not saved.

    settings_faults.py REASON
"""

import re
import sys

import settings_window
from assistive import Role, connect, descendants, finish, report, wait_until


def notice(window):
    return next((part.get_name() for part in descendants(window)
                 if part.get_role() == Role.ALERT and part.get_name()), "")


def main():
    program = connect()
    window = program and settings_window.open_by_menu(program)
    if not window:
        return
    report(notice(window) == "", "there is no notice yet", notice(window))
    compact = settings_window.find_switch(window, "Compact Mode")
    settings_window.press(compact, "a switch can be pressed")
    wait_until(f"the notice tells: {sys.argv[1]}",
               lambda: re.fullmatch(f"Settings could not be saved: .*{sys.argv[1]}.*", notice(window)))
    report(settings_window.is_checked(compact), "the change holds")
    settings_window.press(settings_window.find_choice(window, "Every", "1s"), "another setting can be changed")
    wait_until("it holds, too",
               lambda: settings_window.is_checked(settings_window.find_choice(window, "Every", "1s")))
    report(settings_window.is_checked(compact), "so does the first")


main()
finish()
