# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The main window: what its controls do to the kernel's addresses."""
import time
import unittest

from program import TITLE, ProgramTest, accessibility, kernel_addresses, wait_until, xdotool

import pictures

TYPED = "02:00:5E:10:AB:CD"


class MainWindowTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.selected = self.selector.name
        self.assertIn(self.selected, self.addresses)
        self.factory = self.value_of("Hardware address")

    def restore_button(self):
        """In its popover, which is then open."""
        return self.popover("Hardware address").find("button", "Restore hardware address")

    def test_randomize_and_restore(self):
        self.button("Randomize address").press()
        new = self.expect_only_changed(self.selected)
        self.expect_shown(new)
        self.assertIn(int(new[:2], 16) & 3, (2,), "locally administered and unicast")
        self.window.find("label", "Changed: this is the address in use now.")
        self.assertEqual(self.value_of("Hardware address"), self.factory)

        self.restore_button().press()
        wait_until(lambda: kernel_addresses()[self.selected] == self.factory,
                   "the kernel did not get the factory address back")
        self.expect_shown(self.factory)
        wait_until(lambda: not self.has_popover("Hardware address"), "the popover stays open")
        wait_until(lambda: not self.restore_button().enabled, "there is nothing to restore any more")
        xdotool("key", "Escape")
        wait_until(lambda: not self.has_popover("Hardware address"), "Escape does not close it")
        self.assertTrue(self.row("Hardware address").focused, "its button has the keyboard again")

    def test_an_address_is_typed_and_applied(self):
        self.assertFalse(self.button("Apply address").enabled, "the address in use cannot be applied")
        self.field.type(TYPED.lower())
        self.expect_shown(TYPED)
        self.button("Apply address").press()
        self.assertEqual(self.expect_only_changed(self.selected), TYPED)
        wait_until(lambda: not self.button("Apply address").enabled, "it is in use now")

        self.field.type(self.factory)
        xdotool("key", "Return")
        wait_until(lambda: kernel_addresses() == self.addresses, "Return did not apply the address")

    def test_what_cannot_be_an_address_is_not_taken(self):
        shown = self.field.text
        self.field.type("xyz! ")
        # The next key press is taken, so all before it have been seen.
        xdotool("key", "End", "BackSpace")
        self.expect_shown(shown[:-1])
        self.assertFalse(self.button("Apply address").enabled)
        self.assertEqual(kernel_addresses(), self.addresses)

    def test_another_interface_is_chosen(self):
        other = next(name for name in ("enp2s0", "enp1s0") if name != self.selected)
        self.selector.choose(other)
        self.expect_shown(self.addresses[other])
        self.button("Randomize address").press()
        self.expect_shown(self.expect_only_changed(other))
        self.restore_button().press()
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")
        self.selector.choose(self.selected)
        self.expect_shown(self.addresses[self.selected])

    def test_the_keyboard_alone_is_enough(self):
        self.field.click()
        xdotool("key", "alt+r")
        new = self.expect_only_changed(self.selected)
        self.expect_shown(new)
        self.window.find("label", "Changed")
        xdotool("key", "ctrl+shift+r")
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")

    def test_it_is_announced_as_a_window(self):
        self.assertIn(self.window.role, accessibility.WINDOWS)

    def drag(self, x, y):
        xdotool("mousemove", x, y, "mousedown", 1)
        # In steps, as a hand does it; upwards, where the screen goes on.
        for step in range(1, 6):
            xdotool("mousemove", x + 12 * step, y - 8 * step)
        xdotool("mouseup", 1)

    def test_the_window_is_moved_by_its_ground(self):
        window = pictures.find_window(TITLE)
        # The display's word: the program hears a moment later where its window was put.
        left, top, width, height = pictures.geometry(window)
        x, y = left + 8, top + height // 2
        xdotool("mousemove", x, y, "mousedown", 1)

        def follows():
            # The pointer rests at either of two places for a second: at one of them the window has moved.
            away = int(time.monotonic()) % 2
            xdotool("mousemove", x + 12 * away, y - 8 * away)
            return pictures.geometry(window)[:2] != [left, top]
        wait_until(follows, "the window does not follow the pointer")
        xdotool("mousemove", x + 60, y - 40)
        # The window manager takes it up where the pointer is by then: at either of the two places.
        ends = ([left + 60, top - 40], [left + 48, top - 32])
        wait_until(lambda: pictures.geometry(window)[:2] in ends,
                   lambda: f"it was at {left}, {top} and is at {pictures.geometry(window)}")
        xdotool("mouseup", 1)
        wait_until(lambda: list(self.window.extents) == pictures.geometry(window),
                   lambda: f"it is at {pictures.geometry(window)} and takes itself to be at {self.window.extents}")
        self.assertEqual(self.window.extents[2:], (width, height))
        # The press that began it is over: a click does what it always does.
        self.button("Randomize address").click()
        self.expect_only_changed(self.selected)

    def test_the_window_is_not_moved_by_its_controls(self):
        before = self.window.extents
        apply = self.button("Apply address")
        self.assertFalse(apply.enabled)
        for control in (self.button("Randomize address"), apply, self.field):
            x, y, width, height = control.extents
            self.drag(x + width // 2, y + height // 2)
        self.field.click()
        wait_until(lambda: self.field.focused, "the window did not get the keyboard")
        self.assertEqual(self.window.extents, before)


if __name__ == "__main__":
    unittest.main(verbosity=2)
