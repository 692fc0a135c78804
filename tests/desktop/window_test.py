# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The main window: what its controls do to the kernel's addresses."""
import unittest

from program import ProgramTest, kernel_addresses, wait_until, xdotool

TYPED = "02:00:5E:10:AB:CD"


class MainWindowTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.selected = self.selector.name
        self.assertIn(self.selected, self.addresses)
        self.factory = self.window.labelled("Factory address", "label").name

    def test_randomise_and_restore(self):
        self.button("Randomise address").press()
        new = self.expect_only_changed(self.selected)
        self.expect_shown(new)
        self.assertIn(int(new[:2], 16) & 3, (2,), "locally administered and unicast")
        wait_until(lambda: self.window.labelled("Current address", "label").name == new,
                   "the details kept the old address")

        self.button("Restore factory address").press()
        wait_until(lambda: kernel_addresses()[self.selected] == self.factory,
                   "the kernel did not get the factory address back")
        self.expect_shown(self.factory)
        wait_until(lambda: not self.button("Restore factory address").enabled,
                   "there is nothing to restore any more")

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
        self.button("Randomise address").press()
        self.expect_shown(self.expect_only_changed(other))
        self.button("Restore factory address").press()
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")
        self.selector.choose(self.selected)
        self.expect_shown(self.addresses[self.selected])

    def test_the_keyboard_alone_is_enough(self):
        self.field.click()
        xdotool("key", "alt+r")
        new = self.expect_only_changed(self.selected)
        self.expect_shown(new)
        wait_until(lambda: self.button("Restore factory address").enabled, "it can be restored")
        xdotool("key", "alt+f")
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")


if __name__ == "__main__":
    unittest.main(verbosity=2)
