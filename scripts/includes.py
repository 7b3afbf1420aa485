"""Finds the includes between the project's files without a compiler."""

import os
import re

INCLUDE = re.compile(r'^[ \t]*#[ \t]*(?:include|import)[ \t]*[<"]([^">\n]+)[">]', re.MULTILINE)


class Includes:
    """The includes of the files that git knows. A name that matches the end of several paths stands for all of them."""

    def __init__(self, files):
        self.files_by_name = {}
        for file in files:
            self.files_by_name.setdefault(os.path.basename(file), []).append(file)
        self.known = {}

    def named(self, name):
        """The files that a name in an #include may refer to."""
        ending = "/" + re.sub(r"^(\.\.?/)+", "", name)
        return [file for file in self.files_by_name.get(os.path.basename(name), []) if ("/" + file).endswith(ending)]

    def included_by(self, file):
        """The files that the file includes directly."""
        if file not in self.known:
            with open(file, encoding="utf-8") as text:
                self.known[file] = [found for name in INCLUDE.findall(text.read()) for found in self.named(name)]
        return self.known[file]

    def closure(self, source, added=()):
        """The source and everything that it includes, directly or not; `added` are further names that it includes."""
        seen, waiting = set(), [source, *(file for name in added for file in self.named(name))]
        while waiting:
            file = waiting.pop()
            if file not in seen:
                seen.add(file)
                waiting += self.included_by(file)
        return seen
