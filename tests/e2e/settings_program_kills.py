"""Kills the real program while its settings window is in use.

    settings_program_kills.py ORVELLE FILE KILLS
"""

import os
import random
import subprocess
import sys
import threading
import time

import settings_text
import settings_window
from assistive import GLib, connect, do, finish, report

LONGEST_LIFE_SECONDS = 0.5
SWITCHES = [("Compact Mode", "compactMode"), ("Use Fahrenheit", "useFahrenheit")]


def press_until_the_end(controls, held):
    """The values stored for certain, those possibly stored, and the number of answered presses."""
    presses = 0
    while True:
        control, key = controls[presses % len(controls)]
        following = {**held, key: "false" if held.get(key) == "true" else "true"}
        try:
            if not do(control, "Press"):
                return held, following, presses
        except GLib.Error:
            return held, following, presses
        held = following
        presses += 1


def run_and_kill(orvelle, path):
    program_process = subprocess.Popen([orvelle])
    program = connect()
    window = program and settings_window.open_by_menu(program)
    controls = [(settings_window.find_switch(window, name), key) for name, key in SWITCHES] if window else []
    killer = threading.Timer(random.uniform(0, LONGEST_LIFE_SECONDS), program_process.kill)
    killer.start()
    held, following, presses = settings_text.read(path), None, 0
    if controls:
        held, following, presses = press_until_the_end(controls, held)
    killer.join()
    program_process.wait()
    found = settings_text.read(path)
    report(found in (held, following), f"after {presses} presses each change is kept", (found, held, following))


def main():
    orvelle, path, kills = sys.argv[1], sys.argv[2], int(sys.argv[3])
    seed = int(os.environ.get("ORVELLE_SEED") or time.time_ns() % 1000000)
    random.seed(seed)
    print("seed", seed, "(choose one with ORVELLE_SEED)")
    for _ in range(kills):
        run_and_kill(orvelle, path)


main()
finish()
