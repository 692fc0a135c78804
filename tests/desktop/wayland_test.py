# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The built program under a Wayland compositor, by Qt's own plug-in for it: its popovers, and a drag out of one."""
import os
import plistlib
import unittest

from program import NAME, ProgramTest, accessibility, start, trayclient, wait_until
from widgets_test import Wayland

SETTINGS = os.path.expanduser("~/.config/Quillon/com.orvandel.Quillon4.plist")
SAVED_ITEMS, WINDOW = "Saved Networks and Addresses", "Rules"
HOME, OFFICE = "a4:2b:b0:11:22:33", "b8:27:eb:44:55:66"
PRINTER = "a4:83:e7:01:02:03"
ROWS = ("Hardware address", "Saved addresses", "Vendor", "Rules")


def network(bssid, name):
    return {"BSSID": bssid, "SSID": name, "name": name}


class WaylandTest(ProgramTest):
    def setUp(self):
        self.display = Wayland(self)
        os.makedirs(os.path.dirname(SETTINGS), exist_ok=True)
        with open(SETTINGS, "wb") as file:
            plistlib.dump({"savedNetworks": {HOME: network(HOME, "Home"), OFFICE: network(OFFICE, "Office")},
                           "savedAddresses": {PRINTER: {"address": PRINTER, "name": "Printer"}}}, file)
        super().setUp()

    def start_program(self):
        return start(**self.display.environment)

    def saved(self, key):
        with open(SETTINGS, "rb") as file:
            return plistlib.load(file)[key]

    def key(self, *names):
        for name in names:
            self.display.key(name)

    def middle(self, control):
        """A window is not told where it is: it counts from its own corner."""
        x, y, width, height = control.extents
        return x + width // 2 + self.display.origin[0], y + height // 2 + self.display.origin[1]

    def click(self, control):
        self.display.point(*self.middle(control))
        self.display.button(True)
        self.display.button(False)

    def expect_focused(self, control):
        wait_until(lambda: control.focused, lambda: f"“{control.name}” has not the keyboard")


class MainWindowPopoverTest(WaylandTest):
    def open(self, label):
        """By a press, and another where the compositor gave the first to the popover that was just going."""
        def opened():
            self.click(self.row(label))
            try:
                return wait_until(lambda: self.has_popover(label), "nothing opened", 10)
            except accessibility.NotThere:
                return False
        wait_until(opened, f"“{label}” opened nothing")

    def test_each_is_opened_by_its_row_and_closed_by_escape_and_by_a_press_outside(self):
        for label in ROWS:
            with self.subTest(label):
                for close in (lambda: self.key("Escape"), lambda: self.click(self.field)):
                    self.open(label)
                    close()
                    wait_until(lambda: not self.has_popover(label), f"“{label}” stays open")
                    self.expect_focused(self.row(label))

    def drag(self, token, target):
        """In steps, as a hand does; the program answers between them."""
        (x, y), (to_x, to_y) = self.middle(token), target
        self.display.point(x, y)
        self.display.button(True)
        self.expect_focused(token)
        for step in range(1, 21):
            self.display.point(x + (to_x - x) * step // 20, y + (to_y - y) * step // 20)
        # A drop counts when the compositor knows that it is welcome.
        for step in range(20):
            self.display.point(to_x + step % 2, to_y)
            self.assertIsNotNone(self.field.text)
        self.display.button(False)

    def test_a_saved_address_is_dragged_out_of_its_popover_into_the_field(self):
        target = self.middle(self.field)
        before = self.field.text

        def dropped():
            self.open("Saved addresses")
            popover = self.row("Saved addresses").children[0]
            self.drag(popover.find("button", "Printer"), target)
            wait_until(lambda: not self.has_popover("Saved addresses"), "the popover stays open")
            return self.field.text == PRINTER.upper()
        wait_until(dropped, lambda: f"the field shows {self.field.text}, before {before}")
        self.assertTrue(self.button("Apply address").enabled)
        # All is as before.
        self.open("Saved addresses")
        self.key("Escape")
        self.expect_focused(self.row("Saved addresses"))


class SavedItemsPopoverTest(WaylandTest):
    def setUp(self):
        super().setUp()
        trayclient.only_item().click(SAVED_ITEMS)
        self.items = accessibility.window(NAME, WINDOW)
        # The first token has the keyboard when the compositor has given it to the window.
        wait_until(lambda: any(control.focused for control in self.items.everything_below()),
                   "the window did not get the keyboard")

    def open(self, title, name):
        token = self.items.find("button", name)
        token._fresh.get_component_iface().grab_focus()
        self.expect_focused(token)
        self.key("F2")
        popover = wait_until(lambda: next((child for child in self.items.find("list", title).children
                                           if child.has("entry", "Name")), None), f"“{name}” opened nothing")
        self.expect_focused(popover.find("entry", "Name"))
        return popover

    def test_a_network_is_renamed_and_recognized_by_its_name(self):
        popover = self.open("Networks", "Home")
        self.key("Tab", "Up")
        wait_until(lambda: popover.find("radio button", "Name Home").checked, "the arrow key did not choose")
        wait_until(lambda: self.saved("savedNetworks")[HOME].get("ssidDefined") is True, "it was not saved")
        self.key("Escape")
        self.expect_focused(self.items.find("button", "Home"))
        self.open("Networks", "Home")
        self.key("End", "X", "Return")
        self.expect_focused(self.items.find("button", "Homex"))
        wait_until(lambda: self.saved("savedNetworks")[HOME]["name"] == "Homex", "the name was not saved")

    def test_escape_and_a_press_outside_close_that_of_an_address(self):
        self.open("Addresses", "Printer")
        self.key("BackSpace", "Escape")
        self.expect_focused(self.items.find("button", "Printer"))
        self.assertEqual(self.saved("savedAddresses")[PRINTER]["name"], "Printer")
        popover = self.open("Addresses", "Printer")
        name = popover.find("entry", "Name")
        self.key("End", "X")
        wait_until(lambda: name.text == "Printerx", lambda: f"the name is {name.text}")
        x, y, width, height = self.items.extents
        self.display.point(x + width - 4 + self.display.origin[0], y + height - 4 + self.display.origin[1])
        self.display.button(True)
        self.display.button(False)
        self.expect_focused(self.items.find("button", "Printerx"))
        wait_until(lambda: self.saved("savedAddresses")[PRINTER]["name"] == "Printerx", "leaving it did not save")

    def test_what_is_removed_can_be_had_back(self):
        popover = self.open("Networks", "Home")
        # By keys: where the compositor has put a popover for which there was no room, nobody is told.
        self.key("Tab", "Tab")
        self.expect_focused(popover.find("button", "Remove"))
        self.key("Space")
        wait_until(lambda: HOME not in self.saved("savedNetworks"), "it was not removed")
        self.expect_focused(self.items.find("button", "Office"))
        self.items.find("button", "Undo").press()
        self.items.find("button", "Home")
        wait_until(lambda: HOME in self.saved("savedNetworks"), "it did not come back")


if __name__ == "__main__":
    unittest.main(verbosity=2)
