#!/usr/bin/env python3
"""Moves and presses the pointer of a KWin session by KWin's protocol org_kde_kwin_fake_input, version 3.

It reads lines from its input, "move X Y" or "press X Y" in points of the desktop, and answers each with "done" when
KWin has handled it. Its pointer exists until the input ends. WAYLAND_DISPLAY and XDG_RUNTIME_DIR name the session, and
KWin must run without checks of permissions.
"""

import os
import socket
import struct
import sys

DISPLAY, REGISTRY, CALLBACK, INPUT = 1, 2, 3, 4  # objects: the first is there, the others are made here
SYNC, GET_REGISTRY, BIND = 0, 1, 0  # requests
AUTHENTICATE, BUTTON, POINTER_MOTION_ABSOLUTE = 0, 2, 9
ERROR, GLOBAL = 0, 0  # events
LEFT_BUTTON = 0x110  # BTN_LEFT of linux/input-event-codes.h
PRESSED, RELEASED = 1, 0


def fixed(value):
    """A number in the wire format for fractions."""
    return struct.pack("=i", round(value * 256))


def text(value):
    """A text in the wire format: its length with the final zero, padded to whole words."""
    encoded = value.encode() + b"\0"
    return struct.pack("=I", len(encoded)) + encoded + b"\0" * (-len(encoded) % 4)


class Session:
    """A connection to the compositor that knows the few messages it needs."""

    def __init__(self):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.settimeout(20)
        self.socket.connect(os.path.join(os.environ["XDG_RUNTIME_DIR"], os.environ["WAYLAND_DISPLAY"]))
        self.request(DISPLAY, GET_REGISTRY, struct.pack("=I", REGISTRY))
        interface = text("org_kde_kwin_fake_input")
        offers = [offer for offer in self.settle() if offer[4:].startswith(interface)]
        if not offers:
            raise ConnectionError("the compositor offers no fake input")
        self.request(REGISTRY, BIND, offers[0][:4] + interface + struct.pack("=II", 3, INPUT))
        self.request(INPUT, AUTHENTICATE, text("orvelle tests") + text("to press the pointer"))
        self.settle()

    def request(self, target, opcode, arguments=b""):
        """Sends a request to an object."""
        head = struct.pack("=II", target, (8 + len(arguments)) << 16 | opcode)
        self.socket.sendall(head + arguments)

    def receive(self, count):
        """Returns exactly so many bytes."""
        received = b""
        while len(received) < count:
            chunk = self.socket.recv(count - len(received))
            if not chunk:
                raise ConnectionError("the compositor closed the connection")
            received += chunk
        return received

    def settle(self):
        """Waits until the compositor has handled all requests. Returns the globals that it announced meanwhile."""
        self.request(DISPLAY, SYNC, struct.pack("=I", CALLBACK))
        announced = []
        while True:
            source, head = struct.unpack("=II", self.receive(8))
            arguments = self.receive((head >> 16) - 8)
            event = head & 0xFFFF
            if source == DISPLAY and event == ERROR:
                raise ConnectionError(f"the compositor refused a request: {arguments[12:]!r}")
            if source == REGISTRY and event == GLOBAL:
                announced.append(arguments)
            if source == CALLBACK:
                return announced

    def move(self, x, y):
        """Moves the pointer."""
        self.request(INPUT, POINTER_MOTION_ABSOLUTE, fixed(x) + fixed(y))
        self.settle()

    def press(self, x, y):
        """Presses and releases the left button there."""
        self.move(x, y)
        for state in (PRESSED, RELEASED):
            self.request(INPUT, BUTTON, struct.pack("=II", LEFT_BUTTON, state))
            self.settle()


def main():
    """Does what the lines say."""
    session = Session()
    print("ready", flush=True)
    for line in sys.stdin:
        task, x, y = line.split()
        {"move": session.move, "press": session.press}[task](float(x), float(y))
        print("done", flush=True)


main()
