"""Faults in the place of the bar on X11."""

from planting import Fault

PLACE = "src/shell/x11/bar_geometry.cpp"
AREA = "src/shell/x11/work_area.cpp"
STRIP = ("test_shell", "TopStrip*")
AREAS = ("test_shell", "WorkArea*:HeightAbove*:ReservedByDocks*")

X11_FAULTS = [
    Fault("a strut in points covers less than the pixels", PLACE,
          "std::ceil(strut.height * vertical)", "std::floor(strut.height * vertical)", "test_shell", "StrutInUnits.*"),
    Fault("a desktop of other proportions counts in points", PLACE,
          "root.width() + root.height())", "root.width() * root.height())", "test_shell", "StrutInUnits.*"),
    Fault("the first work area is that of every screen", AREA, "if (areaOf(shared) > areaOf(most))",
          "if (areaOf(most) == 0)", *AREAS),
    Fault("a work area may begin in the lower half", AREA, "height <= screen.height() / 2", "height <= screen.height()",
          *AREAS),
    Fault("docks of other screens reserve no common work area", AREA, "(isOnScreen || isOfAllScreens)", "isOnScreen",
          *AREAS),
    Fault("the bar takes its own space for that of others", AREA, "const bool isEcho = m_withdrawn > 0 &&",
          "const bool isEcho = m_withdrawn > 10000 &&", *STRIP),
    Fault("a window manager that does not answer is awaited for ever", AREA, "if (isEcho && !isLate)", "if (isEcho)",
          *STRIP),
    Fault("a dock below the shell's panel takes its place", AREA,
          "announced.isReservedByDocks ? std::min(m_height, announced.height) : announced.height", "announced.height",
          *STRIP),
    Fault("a window manager that counts in its own way is measured again and again", AREA,
          " && announced.height != m_refutation", "", *STRIP),
]
