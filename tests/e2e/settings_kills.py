"""Kills a program many times in the middle of changing settings.

    settings_kills.py CHANGER FILE KILLS

After each kill the file holds every completed change, and either all or nothing of the next one.
"""

import os
import random
import signal
import subprocess
import sys
import time

import settings_text

SETTING_COUNT = 4
LONGEST_LIFE_SECONDS = 0.03


def change(values, number):
    """The values after the change with this number."""
    turn = number // SETTING_COUNT
    key, value = [("selectedThemeId", f"theme-{turn}"), ("customCPUColorHex", f"#{turn:06x}"),
                  ("menuBarDisplayStyle", ["miniBars", "dotIndicator"][turn % 2]),
                  ("compactMode", ["true", "false"][turn % 2])][number % SETTING_COUNT]
    return {**values, key: value}


def run_and_kill(changer, first):
    """Runs and kills the changer. Returns the numbers of the completed changes."""
    changer.stdin.write(b"%d\n" % first)
    changer.stdin.flush()
    process = int(changer.stdout.readline())
    lines = [changer.stdout.readline()]
    time.sleep(random.uniform(0, LONGEST_LIFE_SECONDS))
    os.kill(process, signal.SIGKILL)
    while not lines[-1].startswith(b"ended"):
        lines.append(changer.stdout.readline() or sys.exit("FAILED: the changer has ended"))
    if lines[-1] != b"ended %d\n" % signal.SIGKILL:
        sys.exit("FAILED: the process that changes settings ended by itself")
    # The last number may be cut off. Its change was made too, but the number is uncertain.
    return [int(line) for line in lines[:-2]]


def main():
    changer_path, path, kills = sys.argv[1], sys.argv[2], int(sys.argv[3])
    seed = int(os.environ.get("ORVELLE_SEED") or time.time_ns() % 1000000)
    random.seed(seed)
    print("seed", seed, "(choose one with ORVELLE_SEED)")
    held, next_number, unfinished = {"untouched": "value"}, 0, 0
    with open(path, "w", encoding="utf-8") as file:
        file.write("[General]\nuntouched=value\n")
    with subprocess.Popen([changer_path, path], stdin=subprocess.PIPE, stdout=subprocess.PIPE) as changer:
        for kill in range(kills):
            made = run_and_kill(changer, next_number)
            if not made:
                sys.exit(f"FAILED: run {kill} made no change")
            for number in made:
                held = change(held, number)
            next_number = made[-1] + 1
            found = settings_text.read(path)
            if found == change(held, next_number) != held:
                held, next_number, unfinished = found, next_number + 1, unfinished + 1
            elif found != held:
                sys.exit(f"FAILED: run {kill} left {found} instead of {held}")
    print(f"ok: {kills} sudden ends lost none of {next_number} changes, {unfinished} of them made but not yet told")


main()
