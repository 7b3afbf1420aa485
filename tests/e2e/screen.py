"""Looks at the screen and uses the mouse for the end-to-end tests."""

import subprocess

from assistive import Atspi

TOLERANCE = 24


def box(accessible):
    return accessible.get_extents(Atspi.CoordType.SCREEN)


def click(accessible):
    """Clicks in the middle with the mouse."""
    place = box(accessible)
    x, y = place.x + place.width // 2, place.y + place.height // 2
    subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "1"], check=True)


def has_color(accessible, red, green, blue):
    """Whether its visible part has a pixel of approximately this colour."""
    place = box(accessible)
    part = f"{place.width}x{place.height}+{place.x}+{place.y}"
    picture = subprocess.run(["import", "-window", "root", "-crop", part, "-depth", "8", "rgb:-"],
                             check=True, capture_output=True).stdout
    return any(abs(picture[start] - red) <= TOLERANCE and abs(picture[start + 1] - green) <= TOLERANCE and
               abs(picture[start + 2] - blue) <= TOLERANCE for start in range(0, len(picture), 3))
