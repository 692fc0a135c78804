# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A keyboard and a pointer for a Wayland compositor without any, by the protocols for virtual devices.

A client of its own, as the devices have to stay: a seat whose last pointer goes takes every popup along.
"""
import socket
import struct
import tempfile
import time

KEYS = {"Escape": 1, "BackSpace": 14, "Tab": 15, "Return": 28, "Shift": 42, "X": 45, "Space": 57, "F2": 60,
        "Home": 102, "Up": 103, "Left": 105, "Right": 106, "End": 107, "Down": 108}
SHIFT_MASK = 1
LEFT_BUTTON = 0x110
KEYMAP = """xkb_keymap {
    xkb_keycodes { include "evdev" };
    xkb_types { include "complete" };
    xkb_compat { include "complete" };
    xkb_symbols { include "pc+us" };
};
"""
DISPLAY, REGISTRY = 1, 2  # objects


class Input:
    def __init__(self, path, screen):
        """`path` of the compositor's socket; `screen` is its width and height in pixels."""
        self.screen = screen
        self.socket = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self.socket.connect(path)
        self.received = b""
        self.last_object = REGISTRY
        self.globals = {}
        self.send(DISPLAY, 1, struct.pack("=I", REGISTRY))
        self.round_trip()
        self.seat = self.bind("wl_seat")
        self.pointer = self.create("zwlr_virtual_pointer_manager_v1")
        self.keyboard = self.create("zwp_virtual_keyboard_manager_v1")
        self.send_keymap()
        self.round_trip()

    def point(self, x, y):
        self.send(self.pointer, 1, struct.pack("=IIIII", self.now(), x, y, *self.screen))
        self.frame()

    def button(self, pressed):
        self.send(self.pointer, 2, struct.pack("=III", self.now(), LEFT_BUTTON, 1 if pressed else 0))
        self.frame()

    def click(self, x, y):
        self.point(x, y)
        self.button(True)
        self.button(False)

    def key(self, name, shift=False):
        if shift:
            self.send(self.keyboard, 2, struct.pack("=IIII", SHIFT_MASK, 0, 0, 0))
        for pressed in (1, 0):
            self.send(self.keyboard, 1, struct.pack("=III", self.now(), KEYS[name], pressed))
        if shift:
            self.send(self.keyboard, 2, struct.pack("=IIII", 0, 0, 0, 0))
        self.round_trip()

    def frame(self):
        self.send(self.pointer, 4)
        self.round_trip()

    @staticmethod
    def now():
        return int(time.monotonic() * 1000) & 0xffffffff

    def new_object(self):
        self.last_object += 1
        return self.last_object

    def send(self, target, opcode, arguments=b"", descriptors=()):
        message = struct.pack("=II", target, (len(arguments) + 8) << 16 | opcode) + arguments
        socket.send_fds(self.socket, [message], list(descriptors))

    def bind(self, interface):
        if interface not in self.globals:
            raise RuntimeError(f"the compositor has no {interface}")
        text = interface.encode() + b"\0"
        padded = text + bytes(-len(text) % 4)
        target = self.new_object()
        self.send(REGISTRY, 0, struct.pack("=II", self.globals[interface], len(text)) + padded
                  + struct.pack("=II", 1, target))
        return target

    def create(self, manager):
        bound = self.bind(manager)
        target = self.new_object()
        self.send(bound, 0, struct.pack("=II", self.seat, target))
        return target

    def send_keymap(self):
        text = KEYMAP.encode() + b"\0"
        with tempfile.TemporaryFile() as file:
            file.write(text)
            file.flush()
            self.send(self.keyboard, 0, struct.pack("=II", 1, len(text)), [file.fileno()])

    def round_trip(self):
        """Until the compositor has dealt with everything that was sent."""
        callback = self.new_object()
        self.send(DISPLAY, 0, struct.pack("=I", callback))
        while self.next_event() != callback:
            pass

    def next_event(self):
        while len(self.received) < 8 or len(self.received) < struct.unpack_from("=II", self.received)[1] >> 16:
            more = self.socket.recv(65536)
            if not more:
                raise RuntimeError("the compositor closed the connection")
            self.received += more
        target, word = struct.unpack_from("=II", self.received)
        body, self.received = self.received[8:word >> 16], self.received[word >> 16:]
        if target == DISPLAY and word & 0xffff == 0:
            raise RuntimeError(f"the compositor refused a request: {body!r}")
        if target == REGISTRY and word & 0xffff == 0:
            name, length = struct.unpack_from("=II", body)
            self.globals[body[8:8 + length - 1].decode()] = name
        return target
