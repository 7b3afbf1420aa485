"""What the end-to-end tests see of the screen and do with the mouse."""

import subprocess

from assistive import Atspi

TOLERANCE = 24


def box(accessible):
    return accessible.get_extents(Atspi.CoordType.SCREEN)


def click(accessible):
    """A click of the mouse in the middle."""
    place = box(accessible)
    x, y = place.x + place.width // 2, place.y + place.height // 2
    subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "1"], check=True)


def has_color(accessible, red, green, blue):
    """Whether what is seen of it has a point of about this colour."""
    place = box(accessible)
    part = f"{place.width}x{place.height}+{place.x}+{place.y}"
    picture = subprocess.run(["import", "-window", "root", "-crop", part, "-depth", "8", "rgb:-"],
                             check=True, capture_output=True).stdout
    return any(abs(picture[start] - red) <= TOLERANCE and abs(picture[start + 1] - green) <= TOLERANCE and
               abs(picture[start + 2] - blue) <= TOLERANCE for start in range(0, len(picture), 3))
