"""The settings file as the end-to-end tests read it, without any help of the program."""

import os


def parse(text):
    """The values by their keys; an error where the text is not a whole settings file."""
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
    """The values in the file, nothing when there is none."""
    try:
        with open(path, encoding="utf-8") as file:
            return parse(file.read())
    except FileNotFoundError:
        return {}


def write(path, key, value):
    """Stores one value as somebody with an editor would, who saves under another name first."""
    values = {**read(path), key: value}
    with open(path + ".edited", "w", encoding="utf-8") as file:
        file.write("[General]\n" + "".join(f"{name}={text}\n" for name, text in values.items()))
    os.replace(path + ".edited", path)
