# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Popovers on real displays: X11 with and without a compositor, and Wayland with Qt's own plug-in for it."""
import ctypes
import os
import subprocess
import sys
import tempfile
import threading
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "..", "tools", "sandbox.d"))

from accessibility import wait_until, xdotool  # noqa: E402
from waylandinput import Input  # noqa: E402

GALLERY = os.path.join(os.environ["QUILLON_BUILD"], "tests", "widgets", "quillon-widget-gallery")
DEADLINE = 120  # seconds; only a hang takes that long
SCREEN = (1280, 900)
WINDOW = (40, 30)  # where the compositor puts it
SWAY = f"""xwayland disable
output HEADLESS-1 resolution {SCREEN[0]}x{SCREEN[1]} position 0 0
default_floating_border none
for_window [title=".*"] floating enable, move absolute position {WINDOW[0]} {WINDOW[1]}
focus_follows_mouse no
"""


def start(test, *words, environment=None, **options):
    process = subprocess.Popen(words, stdin=subprocess.DEVNULL, env={**os.environ, **(environment or {})}, **options)
    test.addCleanup(process.wait, DEADLINE)
    test.addCleanup(process.terminate)
    return process


class X11:
    """The sandbox's own display."""
    arrow = "no arrow"
    origin = (0, 0)
    environment = {}

    def __init__(self, _test):
        pass

    @staticmethod
    def point(x, y):
        xdotool("mousemove", x, y)

    @staticmethod
    def button(pressed):
        xdotool("mousedown" if pressed else "mouseup", 1)

    @staticmethod
    def key(name):
        xdotool("key", name)


class ComposedX11(X11):
    arrow = "arrow"

    def __init__(self, test):
        super().__init__(test)
        start(test, "xcompmgr", stderr=subprocess.DEVNULL)
        wait_until(lambda: self.has_compositor(), "the compositor did not start")

    @staticmethod
    def has_compositor():
        """The selection that stands for it has an owner."""
        x11 = ctypes.CDLL("libX11.so.6")
        x11.XOpenDisplay.restype = ctypes.c_void_p
        display = ctypes.c_void_p(x11.XOpenDisplay(None))
        owner = x11.XGetSelectionOwner(display, x11.XInternAtom(display, b"_NET_WM_CM_S0", 0))
        x11.XCloseDisplay(display)
        return owner != 0


class Wayland:
    """A compositor without a screen. Whoever is placed by it is told nothing of it: no arrow."""
    arrow = "no arrow"
    origin = WINDOW

    def __init__(self, test):
        folder = tempfile.TemporaryDirectory()
        test.addCleanup(folder.cleanup)
        config = os.path.join(folder.name, "config")
        with open(config, "w") as file:
            file.write(SWAY)
        runtime = os.path.join(folder.name, "runtime")
        os.mkdir(runtime, 0o700)
        with open(os.path.join(folder.name, "log"), "w") as log:
            start(test, "sway", "--config", config, stdout=log, stderr=log, environment={
                "XDG_RUNTIME_DIR": runtime, "WLR_BACKENDS": "headless", "WLR_RENDERER": "pixman",
                "WLR_LIBINPUT_NO_DEVICES": "1"})

        def display():
            return next((name for name in os.listdir(runtime)
                         if name.startswith("wayland-") and not name.endswith(".lock")), None)
        name = wait_until(display, "the compositor did not start")
        self.environment = {"XDG_RUNTIME_DIR": runtime, "WAYLAND_DISPLAY": name, "QT_QPA_PLATFORM": "wayland"}
        self.input = wait_until(lambda: self.connected(os.path.join(runtime, name)), "no input came")
        test.addCleanup(self.input.socket.close)

    @staticmethod
    def connected(path):
        try:
            return Input(path, SCREEN)
        except OSError:
            return None

    def point(self, x, y):
        self.input.point(x, y)

    def button(self, pressed):
        self.input.button(pressed)

    def key(self, name):
        self.input.key(name)


class Gallery:
    """The window with all widgets, and the facts that it tells."""

    def __init__(self, test, display):
        self.display = display
        self.facts = []
        self.read = 0
        self.places = {}
        self.process = start(test, GALLERY, "--still", environment=display.environment, stdout=subprocess.PIPE,
                             text=True)
        threading.Thread(target=self.listen, daemon=True).start()
        self.expect("ready")
        self.step = 0
        wait_until(self.pointer_arrives, "the pointer never came to the window")

    def pointer_arrives(self):
        """The compositor may still move the window: the pointer goes there anew until it is there."""
        x, y = self.place("Network")
        self.step += 1
        self.display.point(x + self.step % 2, y)
        return any(fact.startswith("pointer on Network") for fact in self.facts)

    def listen(self):
        with self.process.stdout as facts:
            for line in facts:
                fact = line.rstrip("\n")
                if fact.startswith("at "):
                    _, x, y, name = fact.split(" ", 3)
                    self.places[name.split(",")[0]] = (int(x), int(y))
                self.facts.append(fact)

    def expect(self, beginning):
        """Waits for the next fact that begins so."""
        def found():
            for index in range(self.read, len(self.facts)):
                if self.facts[index].startswith(beginning):
                    self.read = index + 1
                    return self.facts[index]
            return None
        return wait_until(found, lambda: f"no “{beginning}” came after {self.facts[:self.read][-3:]}, "
                                         f"but {self.facts[self.read:]}; the program's end: {self.process.poll()}")

    def place(self, name):
        x, y = wait_until(lambda: self.places.get(name), lambda: f"no place of {name}: {self.places}")
        return x + self.display.origin[0], y + self.display.origin[1]

    def click(self, name):
        self.display.point(*self.place(name))
        self.display.button(True)
        self.display.button(False)

    def drag(self, name, target):
        """In steps, as a hand does; each is seen before the next."""
        (x, y), (to_x, to_y) = self.place(name), self.place(target)
        self.display.point(x, y)
        self.display.button(True)
        self.expect(f"focus {name}")
        for step in range(1, 20):
            self.display.point(x + (to_x - x) * step // 20, y + (to_y - y) * step // 20)
        # A drop counts when the display knows that it is welcome: that is said after the pointer came.
        for step in range(3):
            self.display.point(to_x + step % 2, to_y)
            self.expect("drag over")
        self.display.button(False)


class PopoverTests:
    """What holds on every display."""

    def setUp(self):
        self.gallery = Gallery(self, self.kind(self))

    def open(self):
        self.gallery.click("Saved addresses")
        self.gallery.expect("opening saved")

    def test_it_takes_the_keyboard_and_gives_it_back(self):
        self.open()
        self.gallery.expect("focus Remove Address from Favorites")
        for name in ("Home", "Edit Saved Items", "Remove Address from Favorites"):
            self.gallery.display.key("Tab")
            self.gallery.expect(f"focus {name}")
        self.gallery.display.key("Escape")
        self.gallery.expect("focus Saved addresses")
        self.gallery.expect("closing saved")

    def test_a_press_outside_only_closes_it(self):
        self.open()
        self.gallery.expect("shown")
        self.gallery.click("Hardware address")
        self.gallery.expect("closing saved")
        self.gallery.click("Hardware address")
        self.gallery.expect("pressed hardware")
        self.gallery.click("Network")
        self.gallery.expect("opening network")
        self.assertEqual(self.gallery.facts.count("pressed hardware"), 1)

    def test_its_button_closes_it(self):
        self.open()
        self.gallery.expect("shown")
        self.gallery.click("Saved addresses")
        self.gallery.expect("closing saved")
        self.gallery.click("Network")
        self.gallery.expect("opening network")
        self.assertEqual(self.gallery.facts.count("opening saved"), 1)

    def test_it_has_an_arrow_only_where_that_is_right(self):
        self.open()
        self.assertEqual(self.gallery.expect(self.kind.arrow), self.kind.arrow)

    def test_a_token_is_dragged_out_of_it(self):
        self.open()
        self.gallery.expect("shown")
        self.gallery.drag("Office", "Drop here")
        self.gallery.expect("dropped 02:00:00:00:00:02")
        self.gallery.expect("drag ended")
        self.assertEqual(self.gallery.facts.count("closing saved"), 1)
        # All is as before.
        self.gallery.click("Saved addresses")
        self.gallery.expect("opening saved")

    def test_a_token_is_dropped_whose_entry_went_meanwhile(self):
        self.open()
        self.gallery.expect("shown")
        self.gallery.drag("Guest lab", "Drop here")
        self.gallery.expect("dropped 02:00:00:00:00:03")
        self.gallery.expect("drag ended")
        facts = self.gallery.facts
        self.assertLess(facts.index("entry gone"), facts.index("dropped 02:00:00:00:00:03"))
        self.gallery.click("Saved addresses")
        self.gallery.expect("opening saved")


class X11PopoverTest(PopoverTests, unittest.TestCase):
    kind = X11


class ComposedX11PopoverTest(PopoverTests, unittest.TestCase):
    kind = ComposedX11


class WaylandPopoverTest(PopoverTests, unittest.TestCase):
    kind = Wayland


if __name__ == "__main__":
    unittest.main(verbosity=2)
