"""Reads and writes the settings file for the end-to-end tests, independently of the program."""

import os


def parse(text):
    """The values by key; an error if the text is not a complete settings file."""
    lines = text.splitlines()
    if text and not (text.endswith("\n") and lines[0] == "[General]"):
        raise ValueError(f"not a whole settings file: {text!r}")
    values = {}
    for line in lines[1:]:
        key, separator, value = line.partition("=")
        if not separator or key in values:
            raise ValueError(f"not a setting: {line!r}")
        values[key] = value.strip('"')
    return values


def read(path):
    """The values in the file; none if there is no file."""
    try:
        with open(path, encoding="utf-8") as file:
            return parse(file.read())
    except FileNotFoundError:
        return {}


def write(path, key, value):
    """Stores one value like an editor that saves under another name first."""
    values = {**read(path), key: value}
    with open(path + ".edited", "w", encoding="utf-8") as file:
        file.write("[General]\n" + "".join(f"{name}={text}\n" for name, text in values.items()))
    os.replace(path + ".edited", path)
