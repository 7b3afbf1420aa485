"""Makes a recorded machine on which whoever could choose a name meant harm, and judges what is told of it.

hostile_machine.py make MACHINE COPY: copies a machine, and gives its processes, interfaces, disks and sensors names of
markup, control characters, marks that change the direction, bytes that are not UTF-8, and great length.
hostile_machine.py judge FILE: each line is JSON for a status bar, whose texts are whole and harmless markup.
"""
import json
import os
import re
import shutil
import sys
import unicodedata
from xml.etree import ElementTree

NAMES = [
    b"<b>bold</b>",
    "\u05e9\u05dc\u05d5\u05dd".encode(),
    b"<img src='file:///etc/passwd'>",
    b"&amp;&#x3c;i&#x3e;</span>",
    b"\xe2\x80\xae99.9% \xe2\x80\xac13\xe2\x81\xa7",  # a right-to-left override, its end, an isolate
    b"two\nlines\tand\rmore",
    b"\x1b[31mred\x1b[0m\x1b]0;title\x07",
    b"\xff\xfe not \xc3( UTF-8 \xed\xa0\x80",
    b"W" * 200,
    b"%1 %n ${HOME} $(id) `id` _File &File",
]
DIRECTIONS = set("\u061c\u200e\u200f\u202a\u202b\u202c\u202d\u202e\u2066\u2067")


def processes(folder):
    """Names of processes, in their status and in the link to their program."""
    for index, name in enumerate(NAMES):
        process = os.path.join(folder, b"proc", str(9000 + index).encode())
        os.makedirs(process)
        pages = 900000 - index * 1000
        with open(os.path.join(process, b"stat"), "wb") as stat:
            stat.write(b"%d (%s) S 1 1 1 0 -1 4194304 1 0 0 0 %d 5 0 0 20 0 1 0 1000 46018560 %d 18446744073709551615\n" %
                       (9000 + index, name[:15], 90000 + index, pages))
        if index % 2 == 0:
            os.symlink(b"/opt/" + (name * 20 if index == 8 else name.replace(b"/", b"|")), os.path.join(process, b"exe"))


def interfaces(folder):
    """Names of interfaces, which hold no blanks and no slash."""
    with open(os.path.join(folder, b"proc/net/dev"), "ab") as devices, open(
            os.path.join(folder, b"addresses"), "ab") as addresses:
        for index, name in enumerate(NAMES[:6]):
            short = re.sub(rb"[\s/:]", b"", name)[:15]
            devices.write(b"%s: %d 5 0 0 0 0 0 0 %d 5 0 0 0 0 0 0\n" % (short, 10 ** 12 + index, 10 ** 11))
            addresses.write(short + b" 10.0.0.%d\n" % index)


def volumes(folder):
    """Labels of disks and paths of mounts, written as the kernel and udev escape them."""
    labels = os.path.join(folder, b"dev/disk/by-label")
    os.makedirs(labels, exist_ok=True)
    with open(os.path.join(folder, b"proc/self/mountinfo"), "ab") as mounts, open(
            os.path.join(folder, b"statfs"), "ab") as spaces:
        for index, name in enumerate(NAMES):
            device = b"sdz%d" % index
            path = b"/media/" + b"".join(b"\\%03o" % byte for byte in name[:60])
            mounts.write(b"%d 27 65:%d / %s rw - ext4 /dev/%s rw\n" % (900 + index, index, path, device))
            spaces.write(b"%s 1000000 400000\n" % path)
            if index % 2 == 0:
                label = b"".join(b"\\x%02x" % byte for byte in name[:60])
                os.symlink(b"../../" + device, os.path.join(labels, label))


def sensors(folder):
    """Labels that a driver gives its sensors."""
    for index, name in enumerate(NAMES):
        chip = os.path.join(folder, b"sys/devices/virtual/hostile%d/hwmon/hwmon%d" % (index, 90 + index))
        os.makedirs(chip)
        for file, text in ((b"name", name), (b"temp1_label", name), (b"temp1_input", b"%d" % (60000 + index))):
            with open(os.path.join(chip, file), "wb") as attribute:
                attribute.write(text + b"\n")
        os.symlink(b"../../devices/virtual/hostile%d/hwmon/hwmon%d" % (index, 90 + index),
                   os.path.join(folder, b"sys/class/hwmon/hwmon%d" % (90 + index)))


def make(machine, copy):
    """Makes the machine."""
    shutil.copytree(machine, copy, symlinks=True)
    for plant in (processes, interfaces, volumes, sensors):
        plant(os.fsencode(copy))


def complaints_of_text(text):
    """What is wrong with a text of a status bar."""
    for character in text:
        if unicodedata.category(character) == "Cc" and character != "\n":
            yield f"a control character: {text!r}"
        if character in DIRECTIONS:
            yield f"a change of direction: {text!r}"
    if text.count("\u2068") != text.count("\u2069"):
        yield f"an isolate without an end: {text!r}"
    try:
        if len(ElementTree.fromstring(f"<text>{text}</text>")) > 0:
            yield f"markup: {text!r}"
    except ElementTree.ParseError as error:
        yield f"{error}: {text!r}"


def judge(path):
    """Complaints about all lines of a file."""
    complaints = []
    with open(path, "rb") as file:
        lines = file.read().decode("utf-8").split("\n")
    if lines.pop() != "" or not lines:
        complaints.append("the last line has no end")
    for line in lines:
        bar = json.loads(line)
        for text in (bar["text"], bar["tooltip"]):
            complaints += complaints_of_text(text)
        for part in ("&lt;b&gt;", "&amp;amp;", "\u2068\u05e9"):
            if part not in bar["tooltip"]:
                complaints.append(f"the machine is not hostile: no {part} in {bar['tooltip']!r}")
    return complaints


if __name__ == "__main__":
    if sys.argv[1] == "make":
        make(sys.argv[2], sys.argv[3])
    else:
        found = judge(sys.argv[2])
        print("\n".join(found[:20]))
        sys.exit(1 if found else 0)
