# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""An address is changed from everywhere: what window_test, tray_test and vendors_test have not tried."""
import os
import plistlib
import unittest

from program import SETTINGS, ProgramTest, forget_everything, kernel_addresses, trayclient, wait_until, xdotool

import pictures

SAVED = "02:00:5e:00:53:aa"


def save_address(address, name):
    os.makedirs(SETTINGS, exist_ok=True)
    with open(os.path.join(SETTINGS, "com.orvandel.Quillon4.plist"), "wb") as file:
        plistlib.dump({"savedAddresses": {address: {"address": address, "name": name}}}, file)


class ChangesTest(ProgramTest):
    def setUp(self):
        forget_everything()
        save_address(SAVED, "Desk")
        super().setUp()
        self.selected = self.selector.name
        self.addCleanup(self.expect_others_kept)

    def expect_others_kept(self):
        """Nobody else's address was touched."""
        kept = {name: address for name, address in kernel_addresses().items() if name != self.selected}
        self.assertEqual(kept, {name: self.addresses[name] for name in kept})

    def wait_until_over(self):
        """The change has ended, everywhere: what is shown first is not all of it."""
        self.window.find("label", "Changed")
        self.window.find("label", "Changed: this is the address in use now.")

        def can_be_restored():
            entries = trayclient.only_item().menu().entries
            place = next(place for place, entry in enumerate(entries) if entry.label.endswith(" · " + self.selected))
            return entries[place + 1].entries[0].enabled
        wait_until(can_be_restored, "the status item's menu does not offer the hardware address")

    def restore(self):
        self.wait_until_over()
        xdotool("key", "ctrl+shift+r")
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")
        self.expect_shown(self.addresses[self.selected])

    def test_the_keys_of_the_window(self):
        xdotool("key", "ctrl+r")
        self.expect_shown(self.expect_only_changed(self.selected))
        self.restore()

    def test_a_saved_address_is_clicked_and_applied(self):
        token = self.popover("Saved addresses").find("button", "Desk")
        token.click()
        wait_until(lambda: not self.has_popover("Saved addresses"), "the popover stays open")
        self.expect_shown(SAVED.upper())
        apply = self.button("Apply address")
        wait_until(lambda: apply.focused, "the keyboard is not where the address is applied")
        self.assertEqual(kernel_addresses(), self.addresses, "it is only proposed")
        xdotool("key", "space")
        self.assertEqual(self.expect_only_changed(self.selected), SAVED.upper())
        self.restore()

    def test_a_saved_address_is_dragged_onto_the_field_and_applied(self):
        token = self.popover("Saved addresses").find("button", "Desk")
        wait_until(lambda: token.extents[2] > 0, "the token is not on the screen")
        pictures.wait_for_still_screen()
        x, y, width, height = token.extents
        x, y = x + width // 2, y + height // 2
        left, top, wide, high = self.field.extents
        to_x, to_y = left + wide // 2, top + high // 2
        edge = (left - 20, top, 8, high)
        before = pictures.read_area(*edge)
        xdotool("mousemove", x, y, "mousedown", 1)
        for step in range(1, 11):
            xdotool("mousemove", x + (to_x - x) * step // 10, y + (to_y - y) * step // 10)
        # A drop counts when the window has said that it is welcome: its card has another edge then.
        steps = 0

        def is_welcome():
            nonlocal steps
            steps += 1
            xdotool("mousemove", to_x + steps % 2, to_y)
            return pictures.read_area(*edge) != before
        wait_until(is_welcome, "the drop is not welcome")
        xdotool("mouseup", 1)
        self.expect_shown(SAVED.upper())
        wait_until(lambda: not self.has_popover("Saved addresses"), "the popover stays open")
        self.assertEqual(kernel_addresses(), self.addresses, "it is only proposed")
        self.button("Apply address").press()
        self.assertEqual(self.expect_only_changed(self.selected), SAVED.upper())
        self.field.click()
        self.restore()

    def choose_in_file_menu(self, from_end):
        """A menu of a button is in no tree of accessible objects: it is gone through from its end, where each
        interface has three entries, before the Edit menu. The submenu there has one."""
        xdotool("key", "F10")
        pictures.wait_for_still_screen()
        xdotool("key", *(["Up"] * (from_end + 1)), "Right", "Return")

    def test_the_file_menu(self):
        titles = [entry.label for entry in trayclient.only_item().menu().entries]
        devices = [title.split(" · ")[1] for title in titles if " · " in title and not title.startswith(" ")]
        place = 3 * (len(devices) - devices.index(self.selected))
        self.choose_in_file_menu(place - 2)
        self.expect_shown(self.expect_only_changed(self.selected))
        self.wait_until_over()
        self.choose_in_file_menu(place - 1)
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")


if __name__ == "__main__":
    unittest.main(verbosity=2)
