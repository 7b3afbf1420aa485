#!/usr/bin/env python3
"""tidy.py CLANG_TIDY FILE...: runs clang-tidy over C++ and Objective-C++. Exits with status 1 if it finds anything.

Headers are checked through the sources that include them. A clean source is checked again only after a change of the
source, of a project file that it includes, of its compile command, or of the checks.
"""

import concurrent.futures
import hashlib
import json
import os
import re
import subprocess
import sys

from includes import Includes

BUILD = "build/lint"
CLEAN = f"{BUILD}/clean"  # one empty file, named by the fingerprint, for each clean source
FINDING = re.compile(r"^(\S[^:\n]*):\d+:\d+: (?:warning|error): .*$")
NOT_COMPILED = "[clang-diagnostic-error]"


def output_of(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


def project_files():
    """The files that git tracks, and new files that it does not ignore."""
    return [file for file in output_of("git", "ls-files", "-co", "--exclude-standard").splitlines() if os.path.isfile(file)]


def compile_commands(files):
    """The compile command of each source. The preset uses no precompiled headers, which clang could not read."""
    if not os.path.exists(f"{BUILD}/build.ninja"):
        output_of("cmake", "--preset", "dev", "-B", BUILD, "-DORVELLE_BUILD_BENCH=ON")
    output_of("cmake", "--build", BUILD, "--target", "build.ninja")  # reconfigures if necessary
    with open(f"{BUILD}/compile_commands.json", encoding="utf-8") as file:
        commands = {os.path.relpath(entry["file"]): entry["command"] for entry in json.load(file)}
    return {file: commands[file] for file in files if file in commands}


class Tidy:
    """Checks sources in parallel and collects the findings."""

    def __init__(self, clang_tidy):
        files = project_files()
        self.commands = compile_commands(files)
        self.includes = Includes(files)
        # The header of the Objective-C runtime comes with g++.
        gcc_headers = output_of("g++", "-print-file-name=include").strip()
        self.call = [clang_tidy, "-p", BUILD, "--quiet", f"--extra-arg=-idirafter{gcc_headers}"]
        self.version = output_of(clang_tidy, "--version")
        self.findings = {}  # by their first line, because many sources include the same header
        self.not_compiled = []

    def sources_for(self, files):
        """The sources among the files, and one including source for each header."""
        sources = self.commands.keys() & set(files)
        for header in sorted(file for file in files if file.endswith(".h")):
            including = [source for source in self.commands if header in self.seen_by(source)]
            if including and sources.isdisjoint(including):
                sources.add(min(including))
        return sorted(sources)

    def seen_by(self, source):
        """The project's files that compiling the source reads."""
        added = re.findall(r"-include (\S+)", self.commands.get(source, ""))
        return self.includes.closure(source, added)

    def fingerprint(self, source):
        """Changes with everything that can cause a finding, except headers of other projects."""
        configurations = [file for file in (".clang-tidy", "tests/.clang-tidy") if os.path.exists(file)]
        digest = hashlib.sha256(f"{self.version} {self.call} {self.commands.get(source)}".encode())
        for file in sorted(self.seen_by(source)) + configurations:
            with open(file, "rb") as content:
                digest.update(f" {file} ".encode() + hashlib.sha256(content.read()).digest())
        return digest.hexdigest()

    def look_at(self, source):
        """Prints the new findings. Returns whether the source is clean."""
        run = subprocess.run([*self.call, source], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
        found = findings_of(run.stdout)
        if not found and run.returncode != 0:
            title = f"{source}: clang-tidy ended with status {run.returncode}"
            found = {title: f"{title}\n{run.stderr}"}
        for title, text in found.items():
            if self.findings.setdefault(title, text) is text:
                print(text, end="", flush=True)
        if any(NOT_COMPILED in title for title in found):
            self.not_compiled.append(source)
        return not found

    def look_at_all(self, sources):
        """Checks the sources that are not known to be clean. Returns their number."""
        os.makedirs(CLEAN, exist_ok=True)
        marks = {source: f"{CLEAN}/{self.fingerprint(source)}" for source in sources}
        waiting = [source for source, mark in marks.items() if not os.path.exists(mark)]
        with concurrent.futures.ThreadPoolExecutor(len(os.sched_getaffinity(0))) as pool:
            for source, is_clean in zip(waiting, pool.map(self.look_at, waiting)):
                if is_clean:
                    with open(marks[source], "w", encoding="utf-8"):
                        pass
        return len(waiting)


def findings_of(output):
    """The findings that clang-tidy printed, by their first line, with paths from the top of the checkout."""
    found, title = {}, None
    for line in output.replace(os.getcwd() + "/", "").splitlines():
        if FINDING.match(line):
            title = line
            found[title] = ""
        if title:
            found[title] += line + "\n"
    return found


def main():
    tidy = Tidy(sys.argv[1])
    files = sys.argv[2:]
    sources = tidy.sources_for(files)
    looked_at = tidy.look_at_all(sources)
    print(f"{looked_at} of {len(sources)} sources looked at, the others are as when nothing was found in them")
    not_built = [file for file in files if not file.endswith(".h") and file not in sources]
    if not_built:
        print("not built on this system, and so not looked at:", *not_built)
    if tidy.not_compiled:
        print("clang could not compile, and so not search to the end:", *tidy.not_compiled)
    sys.exit(1 if tidy.findings else 0)


if __name__ == "__main__":
    main()
