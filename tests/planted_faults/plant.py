#!/usr/bin/env -S python3 -B
"""Proves that the tests notice when Orvelle is broken, by planting one fault at a time in a copy of the checkout. For
use by hand: it builds and tests for a quarter of an hour, longer on a busy machine.

    plant.py [--folder FOLDER] [WORD...]

WORDs select the faults whose description or file contains one of them. FOLDER, by default build/planted-faults, keeps
the copy and its build for the next run. Exits with status 1 if the tests miss a fault.
"""

import argparse
import sys
from pathlib import Path

from bar_faults import BAR_FAULTS
from chart_faults import CHART_FAULTS
from core_faults import CORE_FAULTS
from darwin_faults import DARWIN_FAULTS
from panel_faults import PANEL_FAULTS
from planting import plant
from security_faults import SECURITY_FAULTS
from settings_window_faults import SETTINGS_FAULTS
from wayland_faults import WAYLAND_FAULTS
from x11_faults import X11_FAULTS

CHECKOUT = Path(__file__).resolve().parents[2]


def main():
    """Plants the selected faults."""
    arguments = argparse.ArgumentParser(description="Plants faults in a copy of the checkout.")
    arguments.add_argument("--folder", default=CHECKOUT / "build" / "planted-faults")
    arguments.add_argument("words", nargs="*")
    chosen = arguments.parse_args()
    everything = (CORE_FAULTS + DARWIN_FAULTS + CHART_FAULTS + BAR_FAULTS + PANEL_FAULTS + SETTINGS_FAULTS +
                  SECURITY_FAULTS + WAYLAND_FAULTS + X11_FAULTS)
    faults = [fault for fault in everything
              if not chosen.words or any(word in fault.what or word in fault.file for word in chosen.words)]
    return 1 if plant(CHECKOUT, chosen.folder, faults) else 0


if __name__ == "__main__":
    sys.exit(main())
