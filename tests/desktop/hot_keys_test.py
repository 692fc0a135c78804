# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Hot keys: combinations that are pressed while another program has the keyboard, on an X server; and a desktop that
offers none."""
import os
import plistlib
import subprocess
import sys
import tempfile
import time
import unittest

from program import (DEADLINE, NAME, PROGRAM, TITLE, ProgramTest, accessibility, kernel_addresses, messages,
                     wait_until, xdotool)

# Another program that takes a key with Ctrl and Alt, tells whether it got it, and keeps it until it is ended.
OTHER_PROGRAM = """
import ctypes, sys
x11 = ctypes.CDLL("libX11.so.6")
x11.XOpenDisplay.restype = ctypes.c_void_p
display = ctypes.c_void_p(x11.XOpenDisplay(None))
code = x11.XKeysymToKeycode(display, ctypes.c_ulong(x11.XStringToKeysym(sys.argv[1].encode())))
x11.XGrabKey(display, code, 4 | 8, ctypes.c_ulong(x11.XDefaultRootWindow(display)), 1, 1, 1)
x11.XSync(display, 0)
print("has it", flush=True)
sys.stdin.read()
"""
TAKEN = ("Shortcut for “Show window” not set", "Ctrl+Alt+X: Another program uses this shortcut.")
SETTINGS = os.path.expanduser("~/.config/Quillon/com.orvandel.Quillon4.plist")


def write_settings(**values):
    """As another program writes them: the file is replaced whole."""
    settings = {}
    if os.path.exists(SETTINGS):
        with open(SETTINGS, "rb") as file:
            settings = plistlib.load(file)
    os.makedirs(os.path.dirname(SETTINGS), exist_ok=True)
    with open(SETTINGS + ".new", "wb") as file:
        plistlib.dump({**settings, **values}, file)
    os.replace(SETTINGS + ".new", SETTINGS)


class HotKeyTest(ProgramTest):
    def setUp(self):
        write_settings(showKeyEnabled=True, showKeyCombo="Ctrl+Alt+Q", randomKeyEnabled=True, randomKeyCombo="Meta+F7")
        super().setUp()

    def hide(self):
        self.field.click()
        wait_until(lambda: self.field.focused, "the window did not get the keyboard")
        xdotool("key", "ctrl+w")
        wait_until(lambda: not self.is_open(), "the window stayed")

    @staticmethod
    def is_open():
        return accessibility.has_window(NAME, TITLE)

    def press_until(self, keys, condition, what):
        """The program binds its keys some time after a change: they are pressed again until they work."""
        def pressed():
            xdotool("key", keys)
            return condition()
        wait_until(pressed, what)

    def test_the_show_key_brings_the_window(self):
        self.hide()
        self.press_until("ctrl+alt+q", self.is_open, "the window did not come")

    def test_locks_of_the_keyboard_do_not_matter(self):
        for lock in ("Num_Lock", "Caps_Lock"):
            xdotool("key", lock)
            self.addCleanup(xdotool, "key", lock)
        self.hide()
        self.press_until("ctrl+alt+q", self.is_open, "the window did not come")

    def test_the_random_key_held_down_changes_the_address_once(self):
        selected = self.selector.name
        self.hide()
        xdotool("keydown", "super", "keydown", "F7")
        try:
            new = self.expect_only_changed(selected)
            # Long enough for a key that is held to repeat.
            end = time.monotonic() + 2
            while time.monotonic() < end:
                self.assertEqual(kernel_addresses()[selected], new)
        finally:
            xdotool("keyup", "F7", "keyup", "super")
        xdotool("key", "super+F7")
        wait_until(lambda: kernel_addresses()[selected] != new, "the second press did nothing")

    def test_another_combination_takes_its_place(self):
        selected = self.selector.name
        self.hide()
        write_settings(showKeyCombo="Ctrl+Shift+F8")
        self.press_until("ctrl+shift+F8", self.is_open, "the new combination does nothing")
        self.hide()
        xdotool("key", "ctrl+alt+q")
        # What comes later has come: the keys before it did nothing.
        xdotool("key", "super+F7")
        self.expect_only_changed(selected)
        self.assertFalse(self.is_open())

    def test_switched_off_the_keys_belong_to_others_again(self):
        selected = self.selector.name
        self.hide()
        write_settings(showKeyEnabled=False, randomKeyCombo="Ctrl+Alt+Q")
        self.press_until("ctrl+alt+q", lambda: kernel_addresses() != self.addresses, "the key is not free")
        self.expect_only_changed(selected)

    def test_a_combination_that_another_program_has_is_told(self):
        # The window manager closes windows with it.
        write_settings(showKeyCombo="Alt+F4")
        wait_until(lambda: ("Shortcut for “Show window” not set",
                            "Alt+F4: Another program uses this shortcut.") in messages(), "nobody was told")

    def other_program(self, key):
        other = subprocess.Popen([sys.executable, "-c", OTHER_PROGRAM, key], stdin=subprocess.PIPE,
                                 stdout=subprocess.PIPE, text=True)
        self.addCleanup(other.communicate)
        self.assertEqual(other.stdout.readline(), "has it\n")
        return other

    def test_a_combination_of_another_program_stays_its_own_until_that_gives_it_up(self):
        other = self.other_program("x")
        before = messages().count(TAKEN)
        selected = self.selector.name
        self.hide()
        write_settings(showKeyCombo="Ctrl+Alt+X")
        wait_until(lambda: messages().count(TAKEN) == before + 1, "nobody was told")
        xdotool("key", "ctrl+alt+x")
        # What comes later has come: the keys before it did nothing.
        xdotool("key", "super+F7")
        self.expect_only_changed(selected)
        self.assertFalse(self.is_open())

        other.communicate()
        # Asked for again after something else.
        write_settings(showKeyCombo="Ctrl+Alt+W")
        self.press_until("ctrl+alt+w", self.is_open, "the window did not come")
        self.hide()
        write_settings(showKeyCombo="Ctrl+Alt+X")
        self.press_until("ctrl+alt+x", self.is_open, "the combination is free, and the window did not come")
        # And now it is ours.
        self.assertNotEqual(subprocess.run([sys.executable, "-c", OTHER_PROGRAM, "x"], stdin=subprocess.DEVNULL,
                                           capture_output=True).returncode, 0)

    @staticmethod
    def problems():
        return [message for message in messages() if message[0].startswith("Shortcut for")]

    def test_the_two_swap_their_combinations(self):
        told = len(self.problems())
        selected = self.selector.name
        self.hide()
        write_settings(showKeyCombo="Meta+F7", randomKeyCombo="Ctrl+Alt+Q")
        # The first presses may still have changed the address.
        self.press_until("super+F7", self.is_open, "the window did not come")
        before = kernel_addresses()[selected]
        xdotool("key", "ctrl+alt+q")
        wait_until(lambda: kernel_addresses()[selected] != before, "the address was not changed")
        self.assertEqual(len(self.problems()), told)

        write_settings(randomKeyCombo="Meta+F7")
        wait_until(lambda: len(self.problems()) > told, "nobody was told that one combination is not for both")
        self.assertEqual(self.problems()[0], ("Shortcut for “Randomize address” not set",
                                              "Meta+F7: Another program uses this shortcut."))


class WithoutHotKeysTest(unittest.TestCase):
    """A Wayland compositor without a portal."""

    def start(self, *words, **environment):
        process = subprocess.Popen(words, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL, env={**os.environ, **environment})
        self.addCleanup(process.wait, DEADLINE)
        self.addCleanup(process.terminate)

    def test_it_is_told_once_for_each(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        config = os.path.join(folder.name, "config")
        with open(config, "w") as file:
            file.write("xwayland disable\n")
        self.start("sway", "--config", config, XDG_RUNTIME_DIR=folder.name, WLR_BACKENDS="headless",
                   WLR_RENDERER="pixman", WLR_LIBINPUT_NO_DEVICES="1")
        display = wait_until(lambda: next((name for name in os.listdir(folder.name)
                                           if name.startswith("wayland-") and not name.endswith(".lock")), None),
                             "the compositor did not start")
        write_settings(showKeyEnabled=True, showKeyCombo="Ctrl+Alt+Q", randomKeyEnabled=True,
                       randomKeyCombo="Meta+F7")
        before = messages()
        self.start(PROGRAM, XDG_RUNTIME_DIR=folder.name, WAYLAND_DISPLAY=display, QT_QPA_PLATFORM="wayland")
        text = "This desktop does not let programs set global shortcuts."
        expected = [("Shortcut for “Randomize address” not set", f"Meta+F7: {text}"),
                    ("Shortcut for “Show window” not set", f"Ctrl+Alt+Q: {text}")]

        def told():
            new = [message for message in messages() if message[1].endswith(text)]
            return sorted(new[:len(new) - len([old for old in before if old[1].endswith(text)])])
        wait_until(lambda: told() == expected, lambda: f"the user was told {told()}")


if __name__ == "__main__":
    unittest.main(verbosity=2)
