"""Faults in the place of the bar on X11, and in what the program asks of a desktop of Linux."""

from planting import Fault

PLACE = "src/shell/x11/bar_geometry.cpp"
AREA = "src/shell/x11/work_area.cpp"
BUS = "src/shell/linux/session_bus.cpp"
BUSES = ("test_shell", "BusSocket.*:Silent*")
STRIP = ("test_shell", "TopStrip*")
AREAS = ("test_shell", "WorkArea*:HeightAbove*:ReservedByDocks*")

X11_FAULTS = [
    Fault("the last address of a bus is asked", BUS, "address.split(';').constFirst()", "address.split(';').constLast()",
          *BUSES),
    Fault("an address is taken as it is written", BUS, "return QByteArray::fromPercentEncoding(pair.mid(5));",
          "return pair.mid(5);", *BUSES),
    Fault("a bus that takes no more connections counts as none", BUS, "return connecting == Connecting::tooLate;",
          "return false;", *BUSES),
    Fault("a silent bus is not hidden", BUS, 'qputenv(addressVariable, "disabled:");', 'qputenv("X", "disabled:");', *BUSES),
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
