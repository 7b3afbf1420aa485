#!/usr/bin/env -S python3 -B
"""Shows that a new module needs what CONTRIBUTING.md says and nothing else: adds a seventh one, a clock that counts its
updates, to a copy of the checkout, builds it and uses it. For use by hand: it builds for some minutes.

    add.py [--folder FOLDER]

FOLDER, build/new-module where none is given, keeps the copy and its build for the next time. Ends with status 1 when
something does not know the module.
"""

import argparse
import json
import subprocess
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
CHECKOUT = HERE.parents[1]
sys.path.insert(0, str(HERE.parent / "planted_faults"))
from planting import Checkout  # noqa: E402  pylint: disable=wrong-import-position

NEW_FILES = ["src/core/clock_monitor.h", "src/menu_bar/clock_menu_bar_item.h",
             "src/windows/panels/ClockPanelView.qml", "tests/menu_bar/clock_menu_bar_item_test.cpp"]

# What stands in a file, and what stands there afterwards.
CHANGES = [
    # The table.
    ("src/settings/module_table.h", '"thermometer",   50,    false)',
     '"thermometer",   50,    false) \\\n    MODULE(clock, Clock, Clock, accentColor, "network", 40, true)'),
    # Its monitor.
    ("src/core/CMakeLists.txt", "  SOURCES\n", "  SOURCES\n    clock_monitor.h\n"),
    ("src/core/system_monitor.h", '#include "core/cpu_monitor.h"\n',
     '#include "core/clock_monitor.h"\n#include "core/cpu_monitor.h"\n'),
    ("src/core/system_monitor.h", "    [[nodiscard]] ProcessMonitor& process()",
     "    [[nodiscard]] ClockMonitor& clock() { return m_clock; }\n    [[nodiscard]] ProcessMonitor& process()"),
    ("src/core/system_monitor.h", "    ProcessMonitor m_process;\n",
     "    ProcessMonitor m_process;\n    ClockMonitor m_clock;\n"),
    ("src/core/system_monitor.cpp", "    m_sensor.update();\n", "    m_sensor.update();\n    m_clock.update();\n"),
    # Its item.
    ("src/menu_bar/modules.cpp", '#include "menu_bar/cpu_menu_bar_item.h"\n',
     '#include "menu_bar/clock_menu_bar_item.h"\n#include "menu_bar/cpu_menu_bar_item.h"\n'),
    # Its panel.
    ("src/windows/panels/CMakeLists.txt", "    CPUPanelView.qml\n", "    CPUPanelView.qml\n    ClockPanelView.qml\n"),
    # Its line for status bars and terminals.
    ("tools/probe/module_lines.cpp", "ModuleReport reportOf(SensorMonitor& sensors",
     "ModuleReport reportOf(ClockMonitor& clock, SystemMonitor& /*monitor*/) {\n"
     "    const QString ticks = QString::number(clock.ticks());\n"
     "    return {.text = QStringLiteral(\"CLK \") + ticks, .details = {QStringLiteral(\"Clock \") + ticks}};\n}\n\n"
     "ModuleReport reportOf(SensorMonitor& sensors"),
    # Its tests.
    ("tests/menu_bar/CMakeLists.txt", "    cpu_menu_bar_item_test.cpp\n",
     "    clock_menu_bar_item_test.cpp\n    cpu_menu_bar_item_test.cpp\n"),
    # Its settings, as people read of them.
    ("docs/settings.md", "| `updateInterval` |", "| `showClock` | `true`, `false` | `true` | likewise |\n| `updateInterval` |"),
    ("docs/settings.md", "| `customCPUColorHex` |",
     "| `useCustomClockColor` | `true`, `false` | `false` | likewise |\n| `customCPUColorHex` |"),
    ("docs/settings.md", "| `launchAtLogin` |",
     "| `customClockColorHex` | a colour such as `#FF8000`, or empty | empty | likewise |\n| `launchAtLogin` |"),
]

# Programs of the tests, and which of their tests are to pass with seven modules as with six.
TESTS = [
    ("test_settings", "SettingsStoreTest.*:ReadmeSettingsTest.HasARow*:ReadmeSettingsTest.TellsTheDefault*"),
    ("test_theme", "ThemeManagerTest.*"),
    ("test_menu_bar", "ClockMenuBarItemTest.*:UnchangedPictures.*"),
    ("test_app", "AppDelegate*:-*KnowsTheModulesInTheirFixedOrderAndLengths"),
    ("test_windows_panels", "AnyPanel.*"),
]


def add_module(source):
    """Follows the recipe."""
    for name in NEW_FILES:
        (source / name).write_bytes((HERE / name).read_bytes())
    for name, old, new in CHANGES:
        text = (source / name).read_text(encoding="utf-8")
        if text.count(old) != 1:
            raise SystemExit(f"{name} has no single place for: {new}")
        (source / name).write_text(text.replace(old, new), encoding="utf-8")


def said_by_probe(build, *arguments):
    """What the probe of the build prints."""
    return subprocess.run([build / "bin" / "orvelle-probe", *arguments], check=True, capture_output=True,
                          encoding="utf-8").stdout


def line_for_status_bars(build):
    """The first line that the probe of the build prints for them. It would print more until nobody reads."""
    with subprocess.Popen([build / "bin" / "orvelle-probe", "--plain", "--interval", "0.1"], stdout=subprocess.PIPE,
                          encoding="utf-8") as probe:
        line = probe.stdout.readline()
        probe.kill()
    return line


def main():
    """Adds the module and says who knows it."""
    arguments = argparse.ArgumentParser(description="Adds a seventh module to a copy of the checkout.")
    arguments.add_argument("--folder", type=Path, default=CHECKOUT / "build" / "new-module")
    checkout = Checkout(CHECKOUT, arguments.parse_args().folder)
    checkout.refresh()
    add_module(checkout.source)
    checkout.configure()
    if not checkout.builds(["orvelle", "orvelle-probe", *(program for program, _ in TESTS)]):
        raise SystemExit("a program with the new module does not build")
    ticks = json.loads(said_by_probe(checkout.build, "--step", "0.1"))["clock"]["ticks"]
    answers = [
        ("the probe lists it", "clock\t40\tshowClock\ttrue\tClock\n" in said_by_probe(checkout.build, "--modules")),
        ("the probe prints what it publishes", ticks == 2),
        ("the probe has a line for status bars", "CLK " in line_for_status_bars(checkout.build)),
        *((f"{program} passes with it", checkout.passed(program, only)) for program, only in TESTS),
    ]
    for what, is_so in answers:
        print(f"{'ok' if is_so else 'FAILED'}: {what}")
    return 0 if all(is_so for _, is_so in answers) else 1


if __name__ == "__main__":
    sys.exit(main())
