"""Plants faults in a copy of the checkout, then builds and runs the tests that must notice them."""

import os
import re
import subprocess
import time
from dataclasses import dataclass
from pathlib import Path

# No sanitizers and no optimisation, because compiling takes most of the time. A changed library does not relink the
# programs that load it.
BUILD_OPTIONS = ["-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0",
                 "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON", "-DORVELLE_FAST_BUILD=ON"]
JOBS = str(os.cpu_count() or 1)
TEST_SECONDS = "120"


@dataclass(frozen=True)
class Fault:
    """One change at one place in the sources, and the tests that must notice it."""
    what: str
    file: str
    old: str  # occurs once in the file
    new: str
    test: str  # a test program
    only: str = "*"  # a filter for its tests


class Checkout:
    """A copy of all files of a checkout and a build folder. Both are kept for the next run."""

    def __init__(self, origin, folder):
        self.origin = origin
        self.source = folder / "source"
        self.build = folder / "build"

    def refresh(self):
        """Updates the copy from its origin. Unchanged files keep their times."""
        listing = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                                 cwd=self.origin, check=True, capture_output=True).stdout
        names = {os.fsdecode(name) for name in listing.split(b"\0") if name}
        for name in sorted(names):
            self._copy(self.origin / name, self.source / name)
        for path in self.source.rglob("*"):
            if not path.is_dir() and str(path.relative_to(self.source)) not in names:
                path.unlink()

    @staticmethod
    def _copy(original, copy):
        if not os.path.lexists(original):
            copy.unlink(missing_ok=True)
            return
        copy.parent.mkdir(parents=True, exist_ok=True)
        if original.is_symlink():
            copy.unlink(missing_ok=True)
            copy.symlink_to(os.readlink(original))
            return
        content = original.read_bytes()
        if not copy.exists() or copy.read_bytes() != content:
            copy.write_bytes(content)
            copy.chmod(original.stat().st_mode)

    def configure(self):
        """Prepares the build folder."""
        _run(["cmake", "-S", self.source, "-B", self.build, *BUILD_OPTIONS]).check_returncode()

    def builds(self, programs):
        """Whether the test programs build."""
        targets = [part for program in programs for part in ("--target", program)]
        return _run(["cmake", "--build", self.build, "-j", JOBS, *targets]).returncode == 0

    def passed(self, program, only):
        """The number of these tests that passed; None if one failed."""
        run = _run(["ctest", "--test-dir", self.build, "-V", "--timeout", TEST_SECONDS, "-R", f"^{program}$"],
                   env={**os.environ, "GTEST_FILTER": only})
        counts = re.findall(r"\[  PASSED  \] (\d+) test", run.stdout)
        return int(counts[-1]) if run.returncode == 0 and counts else None


def _run(command, env=None):
    return subprocess.run(command, check=False, capture_output=True, encoding="utf-8", errors="replace", env=env)


def unfit(checkout, faults):
    """The faults whose tests fail without a fault or do not exist. Such tests prove nothing."""
    if not checkout.builds({fault.test for fault in faults}):
        raise SystemExit("the tests do not build")
    counts = {}
    for fault in faults:
        key = (fault.test, fault.only)
        if key not in counts:
            counts[key] = checkout.passed(*key)
    return [fault for fault in faults if not counts[(fault.test, fault.only)]]


def verdict(checkout, fault):
    """The result for the fault. The only good result is "noticed"."""
    path = checkout.source / fault.file
    text = path.read_text(encoding="utf-8") if path.exists() else ""
    if text.count(fault.old) != 1:
        return "NO LONGER POSSIBLE"
    path.write_text(text.replace(fault.old, fault.new), encoding="utf-8")
    try:
        if not checkout.builds([fault.test]):
            return "DOES NOT COMPILE"
        return "noticed" if checkout.passed(fault.test, fault.only) is None else "NOT NOTICED"
    finally:
        path.write_text(text, encoding="utf-8")


def plant(origin, folder, faults):
    """Plants one fault at a time and prints each result. Returns the number of unnoticed faults."""
    checkout = Checkout(Path(origin), Path(folder))
    began = time.monotonic()
    checkout.refresh()
    checkout.configure()
    failing = unfit(checkout, faults)
    for fault in failing:
        print(f"NOTHING TO NOTICE IT WITH: {fault.what}: {fault.test} {fault.only}", flush=True)
    print(f"built and tried without a fault in {time.monotonic() - began:.0f} s", flush=True)
    faulty = len(failing)
    for fault in faults:
        if fault in failing:
            continue
        start = time.monotonic()
        answer = verdict(checkout, fault)
        faulty += answer != "noticed"
        print(f"{answer}: {fault.what} ({time.monotonic() - start:.0f} s)", flush=True)
    print(f"{len(faults) - faulty} of {len(faults)} noticed, {time.monotonic() - began:.0f} s")
    return faulty
