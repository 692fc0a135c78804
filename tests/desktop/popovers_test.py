# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Each popover of the main window: opened by its row, read, used and closed in every way; and who has the keyboard
then. That of the network is in network_popover_test."""
import os
import plistlib
import sqlite3
import unittest

from program import (RECORDS, SETTINGS, ProgramTest, forget_everything, kernel_addresses, wait_until, write_rule,
                     xdotool)

FILE = os.path.join(SETTINGS, "com.orvandel.Quillon4.plist")
ADD, REMOVE = "Add Address to Favorites", "Remove Address from Favorites"
ROWS = ("Hardware address", "Saved addresses", "Vendor", "Rules")


def saved_addresses():
    """What is in the settings."""
    with open(FILE, "rb") as file:
        return sorted(plistlib.load(file).get("savedAddresses", {}))


class PopoverTest(ProgramTest):
    def setUp(self):
        forget_everything()
        super().setUp()
        self.selected = self.selector.name

    def texts(self, label):
        """What can be read in the popover of that row."""
        return [control.name for control in self.popover(label).all("label") if control.name]

    def expect_text(self, label, text):
        wait_until(lambda: text in self.texts(label), lambda: f"“{label}” shows {self.texts(label)}")

    def expect_closed(self, label):
        wait_until(lambda: not self.has_popover(label), f"“{label}” stays open")

    def close(self, label):
        xdotool("key", "Escape")
        self.expect_closed(label)
        wait_until(lambda: self.row(label).focused, lambda: f"the keyboard is at {self.focused()}")


class ClosingTest(PopoverTest):
    def test_escape_closes_each_and_gives_the_keyboard_back(self):
        for label in ROWS:
            with self.subTest(label):
                self.popover(label)
                wait_until(lambda: not self.row(label).focused, "the popover has not the keyboard")
                self.close(label)

    def test_its_own_row_closes_each(self):
        for label in ROWS:
            with self.subTest(label):
                self.row(label).click()
                wait_until(lambda: self.has_popover(label), f"“{label}” opened nothing")
                self.row(label).click()
                self.expect_closed(label)
                wait_until(lambda: self.row(label).focused, "its row has not the keyboard")
                # Had the press opened it again, this one would close it.
                self.row(label).click()
                wait_until(lambda: self.has_popover(label), f"“{label}” opened nothing the second time")
                self.close(label)

    def test_a_press_outside_closes_each_and_does_nothing_else(self):
        for label in ROWS:
            with self.subTest(label):
                self.popover(label)
                self.button("Randomize address").click()
                self.expect_closed(label)
                wait_until(lambda: self.row(label).focused, "its row has not the keyboard")
        # What comes later has come: none of the presses did anything.
        self.field.click()
        wait_until(lambda: self.field.focused, "the field did not get the keyboard")
        self.assertEqual(kernel_addresses(), self.addresses)

    def test_one_is_open_at_a_time(self):
        self.popover("Vendor")
        self.row("Rules").press()
        wait_until(lambda: self.has_popover("Rules"), "the other did not open")
        self.expect_closed("Vendor")
        self.close("Rules")


class ContentTest(PopoverTest):
    def test_the_hardware_address_is_told_and_restored(self):
        address = self.value_of("Hardware address")
        self.assertEqual(address, self.addresses[self.selected])
        self.expect_text("Hardware address", address)
        self.expect_text("Hardware address", "The address the device was made with.")
        restore = self.popover("Hardware address").find("button", "Restore hardware address")
        self.assertFalse(restore.enabled)
        self.assertNotEqual(restore.description, "", "it does not say why")
        self.close("Hardware address")
        self.button("Randomize address").press()
        self.expect_only_changed(self.selected)
        restore = self.popover("Hardware address").find("button", "Restore hardware address")
        restore.press()
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")
        self.expect_closed("Hardware address")

    def test_the_heart_saves_the_address_and_forgets_it(self):
        label = "Saved addresses"
        address = self.addresses[self.selected].lower()
        self.assertEqual(self.value_of(label), "None")
        self.expect_text(label, "Add the current address with the heart.")
        self.popover(label).find("button", ADD).press()
        self.popover(label).find("button", REMOVE)
        self.popover(label).find("button", address)
        self.assertEqual(self.value_of(label), address)
        wait_until(lambda: saved_addresses() == [address], "the settings do not have it")
        self.popover(label).find("button", REMOVE).press()
        self.popover(label).find("button", ADD)
        wait_until(lambda: self.value_of(label) == "None", "the row still shows it")
        wait_until(lambda: saved_addresses() == [], "the settings still have it")
        self.close(label)

    def test_the_vendor_is_told_with_its_identifier(self):
        vendor = self.value_of("Vendor")
        self.expect_text("Vendor", vendor)
        self.expect_text("Vendor", self.addresses[self.selected].replace(":", "")[:6])
        self.close("Vendor")
        # A made-up address has none: there is nothing more to tell.
        self.button("Randomize address").press()
        self.expect_only_changed(self.selected)
        wait_until(lambda: self.value_of("Vendor") != vendor, "the row still names a vendor")
        self.assertEqual(self.row("Vendor").role, self.row("External address").role, "it is still a button")

    def test_without_rules_it_says_so(self):
        self.assertEqual(self.value_of("Rules"), "No rules")
        self.expect_text("Rules", "No rule for this interface.")
        self.close("Rules")


class RulesTest(PopoverTest):
    def setUp(self):
        forget_everything()
        write_rule("every-minute", "enp1s0")
        ProgramTest.setUp(self)
        self.assertEqual(self.selector.name, "enp1s0")
        wait_until(lambda: self.value_of("Rules") == "Active rule", "the rule is not in force")

    @staticmethod
    def enabled():
        connection = sqlite3.connect(f"file:{RECORDS}?mode=ro", uri=True)
        try:
            return [bool(enabled) for enabled, in connection.execute('SELECT enabled FROM "Rule"')]
        finally:
            connection.close()

    def switch(self):
        return wait_until(lambda: self.popover("Rules").all("check box"), "there is no rule")[0]

    def test_a_rule_is_switched_off_and_on(self):
        self.assertTrue(self.switch().checked)
        self.assertIn(self.switch().name, self.texts("Rules"))
        self.switch().press()
        wait_until(lambda: not self.switch().checked, "the switch stays on")
        wait_until(lambda: self.value_of("Rules") == "No active rules", lambda: self.value_of("Rules"))
        wait_until(lambda: self.enabled() == [False], "the records still have it on")
        self.assertTrue(self.has_popover("Rules"), "it stays open")
        self.switch().press()
        wait_until(lambda: self.switch().checked, "the switch stays off")
        wait_until(lambda: self.value_of("Rules") == "Active rule", lambda: self.value_of("Rules"))
        wait_until(lambda: self.enabled() == [True], "the records still have it off")
        self.close("Rules")


if __name__ == "__main__":
    unittest.main(verbosity=2)
