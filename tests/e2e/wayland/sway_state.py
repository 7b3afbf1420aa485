"""Prints what sway says of its desktop:

    sway_state.py free OUTPUT      LEFT,TOP WIDTHxHEIGHT that it leaves to windows on the output, in points
    sway_state.py output OUTPUT    its LEFT WIDTH HEIGHT SCALE, in points
    sway_state.py outputs          the names of the outputs that are on, from left to right
    sway_state.py window TITLE     LEFT,TOP WIDTHxHEIGHT of the window, in points; nothing if there is none
    sway_state.py focused          the title of the window that has the keyboard; nothing if none has
"""

import json
import subprocess
import sys


def ask(kind):
    answer = subprocess.run(["swaymsg", "-r", "-t", kind], check=True, capture_output=True).stdout
    return json.loads(answer)


def geometry(thing):
    place = thing["rect"]
    return f"{place['x']},{place['y']} {place['width']}x{place['height']}"


def windows(node):
    if node["type"] in ("con", "floating_con") and node["name"] is not None:
        yield node
    for child in node["nodes"] + node["floating_nodes"]:
        yield from windows(child)


def print_state(what, *names):
    if what == "free":
        print(*(geometry(space) for space in ask("get_workspaces") if space["visible"] and space["output"] == names[0]))
    elif what == "output":
        output = next(output for output in ask("get_outputs") if output["name"] == names[0])
        print(output["rect"]["x"], output["rect"]["width"], output["rect"]["height"],
              f"{output['scale']:g}")
    elif what == "outputs":
        active = [output for output in ask("get_outputs") if output["active"]]
        print(*(output["name"] for output in sorted(active, key=lambda output: output["rect"]["x"])))
    elif what == "window":
        print(*(geometry(window) for window in windows(ask("get_tree")) if window["name"] == names[0]))
    elif what == "focused":
        print(*(window["name"] for window in windows(ask("get_tree")) if window["focused"]))
    else:
        sys.exit(__doc__)


print_state(*sys.argv[1:])
