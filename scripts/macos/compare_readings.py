#!/usr/bin/env python3
"""Compares what the monitors publish on a Mac with what the system's own commands print.

compare_readings.py PROBE prints one line for each comparison, and ends with status 1 when one of them differs.
"""

import json
import re
import subprocess
import sys
import time


def output_of(*command):
    """The text that a command prints; empty when it fails."""
    result = subprocess.run(command, capture_output=True, text=True, check=False)
    return result.stdout if result.returncode == 0 else ""


def page_counts(vm_stat):
    """The lines of vm_stat as bytes by their names, for example "Pages active"."""
    page = int(re.search(r"page size of (\d+) bytes", vm_stat).group(1))
    return {name: int(count) * page for name, count in re.findall(r'^"?([^":]+)"?:\s+(\d+)\.$', vm_stat, re.MULTILINE)}


def swap_bytes(swapusage):
    """Total and used bytes of vm.swapusage, which counts in megabytes."""
    return [float(re.search(rf"{name} = ([\d.]+)M", swapusage).group(1)) * 2**20 for name in ("total", "used")]


def root_volume_bytes(df):
    """The size of the volume in the last line of `df -k`."""
    return int(df.strip().splitlines()[-1].split()[1]) * 1024


def resident_bytes(processes):
    """Resident bytes by process id, from `ps -axo pid=,rss=`."""
    return {int(pid): int(size) * 1024 for pid, size in (line.split() for line in processes.strip().splitlines())}


class Comparison:
    """Prints each comparison and counts those that differ."""

    def __init__(self):
        self.differences = 0

    def tell(self, name, ours, theirs, fits):
        """One line."""
        print(f"{'ok' if fits else 'DIFFERS'}: {name}: Orvelle {ours}, the system {theirs}")
        self.differences += 0 if fits else 1

    def equal(self, name, ours, theirs):
        """Two values that never change."""
        self.tell(name, ours, theirs, ours == theirs)

    def near(self, name, ours, theirs, share):
        """Two values that move between the readings, by at most this share of the larger one."""
        self.tell(name, round(ours), round(theirs), abs(ours - theirs) <= share * max(abs(ours), abs(theirs)))


def compare(values, ask, now):
    """Compares the probe's values with the answers of `ask`, which runs a command. `now` is in seconds since 1970."""
    comparison = Comparison()
    comparison.equal("cores", len(values["cpu"]["coreUsages"]), int(ask("sysctl", "-n", "hw.logicalcpu")))
    booted = int(re.search(r"sec = (\d+)", ask("sysctl", "-n", "kern.boottime")).group(1))
    comparison.near("uptime in seconds", values["cpu"]["uptime"] + 600, now - booted + 600, 0.1)
    memory = values["memory"]["info"]
    pages = page_counts(ask("vm_stat"))
    comparison.equal("memory", memory["total"], int(ask("sysctl", "-n", "hw.memsize")))
    for name in ("active", "inactive"):
        comparison.near(f"{name} memory", memory[name], pages[f"Pages {name}"], 0.2)
    comparison.near("wired memory", memory["wired"], pages["Pages wired down"], 0.2)
    total, used = swap_bytes(ask("sysctl", "-n", "vm.swapusage"))
    comparison.near("swap", memory["swapTotal"], total, 0.01)
    comparison.near("used swap", memory["swapUsed"] + 2**26, used + 2**26, 0.2)
    root = next((volume for volume in values["disk"]["volumes"] if volume["id"] == "/"), {"totalSpace": 0})
    comparison.near("the system's volume", root["totalSpace"], root_volume_bytes(ask("df", "-k", "/")), 0.02)
    address = values["network"]["primaryIPv4"]
    known = re.findall(r"inet (\S+)", ask("ifconfig"))
    comparison.tell("primary address", address, " ".join(known), address in known)
    sizes = resident_bytes(ask("ps", "-axo", "pid=,rss="))
    for process in values["process"]["topMemoryProcesses"]:
        if process["pid"] in sizes:
            comparison.near(f"resident memory of process {process['pid']}", process["memoryBytes"], sizes[process["pid"]], 0.5)
    return comparison.differences


if __name__ == "__main__":
    sys.exit(1 if compare(json.loads(output_of(sys.argv[1])), output_of, time.time()) else 0)
