#!/usr/bin/env python3
"""What the comparison with a Mac's own commands finds, with answers as those commands print them.

compare_readings_test.py SCRIPTS
"""

import contextlib
import copy
import io
import sys
import unittest

sys.path.insert(0, f"{sys.argv[1]}/macos")
import compare_readings

ANSWERS = {
    ("sysctl", "-n", "hw.logicalcpu"): "8\n",
    ("sysctl", "-n", "hw.memsize"): "17179869184\n",
    ("sysctl", "-n", "kern.boottime"): "{ sec = 1700000000, usec = 123 } Tue Nov 14 23:13:20 2023\n",
    ("sysctl", "-n", "vm.swapusage"): "total = 2048.00M  used = 1024.50M  free = 1023.50M  (encrypted)\n",
    ("vm_stat",): """Mach Virtual Memory Statistics: (page size of 16384 bytes)
Pages free:                                5000.
Pages active:                            200000.
Pages inactive:                          190000.
Pages wired down:                        100000.
"Translation faults":                   1234567.
""",
    ("df", "-k", "/"): """Filesystem     1024-blocks     Used Available Capacity iused ifree %iused  Mounted on
/dev/disk3s1s1   482797652 10000000 200000000     5%  400000 200000    2%   /
""",
    ("ifconfig",): "lo0: flags=8049\n\tinet 127.0.0.1 netmask 0xff000000\nen0: flags=8863\n\tinet 192.0.2.7 netmask 0xffffff00\n",
    ("ps", "-axo", "pid=,rss="): "    1  20480\n  321 102400\n",
}
VALUES = {
    "cpu": {"coreUsages": [{}] * 8, "uptime": 5000.0},
    "memory": {
        "info": {
            "total": 17179869184,
            "active": 200500 * 16384,
            "inactive": 190000 * 16384,
            "wired": 101000 * 16384,
            "swapTotal": 2048 * 2**20,
            "swapUsed": 1025 * 2**20,
        }
    },
    "disk": {"volumes": [{"id": "/Volumes/a", "totalSpace": 1}, {"id": "/", "totalSpace": 482797652 * 1024}]},
    "network": {"primaryIPv4": "192.0.2.7"},
    "process": {"topMemoryProcesses": [{"pid": 321, "memoryBytes": 104857600}, {"pid": 999, "memoryBytes": 5}]},
}


def told(values):
    """The number of differences, and the lines that tell of them."""
    with contextlib.redirect_stdout(io.StringIO()) as output:
        differences = compare_readings.compare(values, lambda *command: ANSWERS[command], 1700005030)
    return differences, [line for line in output.getvalue().splitlines() if not line.startswith("ok: ")]


class ReadingsTest(unittest.TestCase):
    """Values that fit, and each that does not."""

    def test_values_that_fit_are_no_difference(self):
        self.assertEqual(told(VALUES), (0, []))

    def test_each_value_that_does_not_fit_is_told(self):
        def change(values, path, value):
            for key in path[:-1]:
                values = values[key]
            values[path[-1]] = value

        for path, value, name in [
            (["cpu", "coreUsages"], [{}] * 4, "cores"),
            (["cpu", "uptime"], 500.0, "uptime in seconds"),
            (["memory", "info", "total"], 2**33, "memory"),
            (["memory", "info", "active"], 0, "active memory"),
            (["memory", "info", "inactive"], 0, "inactive memory"),
            (["memory", "info", "wired"], 0, "wired memory"),
            (["memory", "info", "swapTotal"], 0, "swap"),
            (["memory", "info", "swapUsed"], 2048 * 2**20, "used swap"),
            (["disk", "volumes"], [], "the system's volume"),
            (["network", "primaryIPv4"], "", "primary address"),
            (["process", "topMemoryProcesses", 0, "memoryBytes"], 1, "resident memory of process 321"),
        ]:
            with self.subTest(name):
                values = copy.deepcopy(VALUES)
                change(values, path, value)
                differences, lines = told(values)
                self.assertEqual(differences, 1)
                self.assertTrue(lines[0].startswith(f"DIFFERS: {name}: Orvelle "), lines)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
