# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Shortcuts recorded by real keys, and what the keys do afterwards."""
import unittest

from preferences import PreferencesTest, stored, wait_for_stored
from program import NAME, TITLE, accessibility, kernel_addresses, wait_until, xdotool


class RecorderTest(PreferencesTest):
    def recorder(self, title, shortcut=None):
        name = f"Shortcut for “{title}”"
        return self.preferences.find("button", f"{name}, {shortcut}" if shortcut else name)

    def begin(self, title, shortcut=None):
        button = self.recorder(title, shortcut)
        button.click()
        self.expect_label("Escape keeps the shortcut of before, Backspace clears it.")

    def record(self, title, keys, shortcut):
        self.begin(title)
        xdotool("key", keys)
        self.recorder(title, shortcut)

    def close_windows(self):
        """The preferences lie over the other one."""
        xdotool("key", "ctrl+w")
        wait_until(lambda: not accessibility.has_window(NAME, "General"), "the preferences stayed")
        self.field.click()
        wait_until(lambda: self.field.focused, "the window did not get the keyboard")
        xdotool("key", "ctrl+w")
        wait_until(lambda: not accessibility.has_window(NAME, TITLE), "the window stayed")

    def test_a_recorded_shortcut_acts(self):
        self.record("Show window", "ctrl+alt+q", "Ctrl+Alt+Q")
        wait_for_stored("showKeyCombo", "Ctrl+Alt+Q")
        wait_for_stored("showKeyEnabled", True)
        self.expect_checked("Show window", True)
        self.close_windows()

        def pressed():
            xdotool("key", "ctrl+alt+q")
            return accessibility.has_window(NAME, TITLE)
        wait_until(pressed, "the window did not come")

    def test_the_live_one_does_not_act_while_it_is_recorded_again(self):
        selected = self.selector.name
        self.record("Randomize address", "super+F7", "Meta+F7")

        def pressed():
            xdotool("key", "super+F7")
            return kernel_addresses()[selected] != self.addresses[selected]
        wait_until(pressed, "the hot key does nothing")
        self.begin("Randomize address", "Meta+F7")
        before = kernel_addresses()
        xdotool("key", "super+F7")
        self.expect_no_label("Escape keeps the shortcut of before, Backspace clears it.")
        self.recorder("Randomize address", "Meta+F7")
        self.assertEqual(kernel_addresses(), before)
        wait_until(lambda: (xdotool("key", "super+F7"), kernel_addresses() != before)[1], "the hot key is gone")

    def test_what_is_no_shortcut_is_refused_and_escape_keeps_the_old_one(self):
        self.record("Show window", "ctrl+alt+q", "Ctrl+Alt+Q")
        self.begin("Show window", "Ctrl+Alt+Q")
        xdotool("key", "m")
        self.expect_label("A shortcut needs Ctrl, Alt or Meta and one more key.")
        xdotool("key", "Escape")
        self.expect_no_label("A shortcut needs Ctrl, Alt or Meta and one more key.")
        self.recorder("Show window", "Ctrl+Alt+Q")
        wait_for_stored("showKeyCombo", "Ctrl+Alt+Q")

    def test_conflicts_are_said(self):
        self.record("Show window", "ctrl+alt+q", "Ctrl+Alt+Q")
        self.begin("Randomize address")
        xdotool("key", "ctrl+alt+q")
        self.expect_label("“Show window” uses this shortcut.")
        # The window manager closes windows with it.
        xdotool("key", "alt+F4")
        self.recorder("Randomize address", "Alt+F4")
        self.expect_label("Another program uses this shortcut.")
        self.preferences.find("button", "Clear the shortcut for “Randomize address”").press()
        self.expect_no_label("Another program uses this shortcut.")
        wait_until(lambda: "randomKeyCombo" not in stored(), "it is still stored")

    def test_the_keyboard_alone_records_and_clears(self):
        button = self.recorder("Show window")
        button._fresh.get_component_iface().grab_focus()
        wait_until(lambda: button.focused, "the recorder did not get the keyboard")
        xdotool("key", "space")
        self.expect_label("Escape keeps the shortcut of before, Backspace clears it.")
        xdotool("key", "ctrl+shift+F8")
        self.recorder("Show window", "Ctrl+Shift+F8")
        wait_for_stored("showKeyCombo", "Ctrl+Shift+F8")
        xdotool("key", "Return")
        self.expect_label("Escape keeps the shortcut of before, Backspace clears it.")
        xdotool("key", "BackSpace")
        self.recorder("Show window")
        wait_until(lambda: "showKeyCombo" not in stored(), "it is still stored")


if __name__ == "__main__":
    unittest.main(verbosity=2)
