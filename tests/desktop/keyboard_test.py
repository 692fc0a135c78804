# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Everything in the main window by keyboard alone: the order of Tab, the popovers, what is in them, the menu."""
import unittest

from gi.repository import GLib
from program import (NAME, TITLE, ProgramTest, accessibility, forget_everything, kernel_addresses, wait_until,
                     write_rule, xdotool)

import pictures

TYPED = "02:00:5E:10:AB:CD"
# A row by its label: its value changes.
ORDER = ["Address", "Apply address", "Randomize address", "Vendor of random addresses", "Hardware address",
         "Saved addresses", "Vendor", "Rules", "Resume", "Refresh external address"]
AT_THE_END = ["Overview", "History", "Preferences", "enp1s0", "File menu"]
DONE = "Changed: this is the address in use now."
MOST = 40  # stops; more are a circle that never comes back


class KeyboardTest(ProgramTest):
    def setUp(self):
        forget_everything()
        self.prepare()
        super().setUp()
        self.assertEqual(self.selector.name, "enp1s0")
        wait_until(lambda: self.field.focused, lambda: f"the keyboard is first at {self.focused().name}")

    def prepare(self):
        """Before the start."""

    def place(self):
        """What has the keyboard: its name, of a row its label."""
        try:
            control = self.focused()
            return control and control.name.partition(", ")[0]
        except GLib.Error:
            return None

    def press(self, key):
        """Gives the place of the keyboard when it has moved on."""
        before = self.place()
        xdotool("key", key)
        return wait_until(lambda: self.place() not in (None, before) and self.place(),
                          f"{key} does not lead on from {before}")

    def go_to(self, name):
        for _ in range(MOST):
            if self.place() == name or self.press("Tab") == name:
                return
        self.fail(f"Tab never came to {name}")

    def type_address(self):
        """With it Apply is a stop as well."""
        xdotool("key", "ctrl+l")
        xdotool("type", TYPED.lower())
        self.expect_shown(TYPED)
        wait_until(lambda: self.button("Apply address").enabled, "it cannot be applied")

    def circle(self, key):
        stops = [self.place()]
        while len(stops) < MOST:
            place = self.press(key)
            if place == stops[0]:
                return stops
            stops.append(place)
        return self.fail(f"it does not come back: {stops}")

    def open(self, label, key):
        self.go_to(label)
        xdotool("key", key)
        wait_until(lambda: self.has_popover(label), f"{key} does not open “{label}”")
        wait_until(lambda: not self.row(label).focused, "the popover has not the keyboard")

    def close(self, label):
        xdotool("key", "Escape")
        wait_until(lambda: not self.has_popover(label), "Escape does not close it")
        wait_until(lambda: self.place() == label, lambda: f"the keyboard is at {self.place()}")


class OrderTest(KeyboardTest):
    def prepare(self):
        write_rule("every-minute", "enp1s0")

    def setUp(self):
        super().setUp()
        wait_until(lambda: self.window.has("button", "Pause"), "there is no countdown")
        # Nothing changes meanwhile.
        xdotool("key", "ctrl+t")
        wait_until(lambda: self.button("Resume").enabled, "it was not paused")

    def test_tab_goes_from_the_address_downwards_and_to_the_header_last(self):
        self.type_address()
        stops = self.circle("Tab")
        self.assertEqual([stop for stop in stops if stop in ORDER], ORDER, stops)
        self.assertEqual(stops[:len(ORDER)], ORDER, stops)
        self.assertEqual([stop for stop in stops if stop in AT_THE_END], AT_THE_END, stops)
        self.assertEqual(stops[-2:], AT_THE_END[-2:], stops)

    def test_back_it_is_the_other_way_round(self):
        self.type_address()
        forward = self.circle("Tab")
        self.assertEqual(self.circle("shift+Tab"), forward[:1] + forward[:0:-1])


class UseTest(KeyboardTest):
    def test_each_popover_is_opened_by_space_and_by_return(self):
        for label in ("Hardware address", "Saved addresses", "Vendor", "Rules"):
            for key in ("space", "Return"):
                with self.subTest(label, key=key):
                    self.open(label, key)
                    self.close(label)

    def test_the_address_is_changed_and_restored(self):
        self.type_address()
        xdotool("key", "Return")
        self.assertEqual(self.expect_only_changed("enp1s0"), TYPED)
        self.go_to("Randomize address")
        xdotool("key", "space")
        wait_until(lambda: kernel_addresses()["enp1s0"] not in (TYPED, self.addresses["enp1s0"]),
                   "the address is not another one")
        self.expect_shown(kernel_addresses()["enp1s0"])
        self.window.find("label", DONE)
        self.open("Hardware address", "space")
        wait_until(lambda: self.place() == "Restore hardware address", lambda: f"the keyboard is at {self.place()}")
        xdotool("key", "space")
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")
        wait_until(lambda: not self.has_popover("Hardware address"), "it stays open")

    def test_addresses_are_saved_and_one_is_put_into_the_field(self):
        label = "Saved addresses"
        first = self.addresses["enp1s0"].lower()
        xdotool("key", "ctrl+d")
        wait_until(lambda: self.value_of(label) == first, "the address was not saved")
        self.type_address()
        xdotool("key", "Return")
        self.expect_only_changed("enp1s0")
        self.window.find("label", DONE)
        xdotool("key", "ctrl+d")
        second = TYPED.lower()
        wait_until(lambda: set(self.value_of(label).split(", ")) == {first, second}, lambda: self.value_of(label))
        self.open(label, "Return")
        tokens = sorted((first, second))
        self.go_to(tokens[0])
        self.assertEqual(self.press("Right"), tokens[1])
        self.assertEqual(self.press("Left"), tokens[0])
        self.assertEqual(self.press("End"), tokens[1])
        # For Tab all tokens are one stop.
        self.assertNotIn(self.press("Tab"), tokens)
        self.go_to(tokens[1])
        if first != tokens[1]:
            self.press("Home")
        xdotool("key", "Return")
        wait_until(lambda: not self.has_popover(label), "the popover stays open")
        self.expect_shown(first.upper())
        wait_until(lambda: self.place() == "Apply address", lambda: f"the keyboard is at {self.place()}")
        xdotool("key", "Return")
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not applied")

    def test_the_interface_is_chosen(self):
        self.go_to("enp1s0")
        xdotool("key", "Down")
        wait_until(lambda: self.selector.name != "enp1s0", "no other one was chosen")
        self.expect_shown(self.addresses[self.selector.name])

    def test_the_menu_is_opened_by_its_key_and_by_its_button(self):
        for keys in (("F10",), ("space",)):
            with self.subTest(keys):
                if keys != ("F10",):
                    self.go_to("File menu")
                before = pictures.read_area(*self.below_menu_button())
                xdotool("key", *keys)
                wait_until(lambda: pictures.read_area(*self.below_menu_button()) != before, "no menu came")
                xdotool("key", "Escape")
                wait_until(lambda: pictures.read_area(*self.below_menu_button()) == before, "the menu stayed")
        xdotool("key", "ctrl+w")
        wait_until(lambda: not accessibility.has_window(NAME, TITLE), "the window stayed")

    def below_menu_button(self):
        x, y, width, height = self.button("File menu").extents
        return x + width + 40, y + height + 8, 60, 40


class RuleTest(KeyboardTest):
    """With a rule, and its countdown."""

    def prepare(self):
        write_rule("every-minute", "enp1s0")

    def test_a_rule_is_switched(self):
        self.open("Rules", "space")
        wait_until(lambda: self.focused().role in accessibility.ROLES["check box"], "the switch has not the keyboard")
        self.assertTrue(self.focused().checked)
        xdotool("key", "space")
        wait_until(lambda: self.value_of("Rules") == "No active rules", lambda: self.value_of("Rules"))
        self.close("Rules")

    def test_the_countdown_is_paused_and_resumed(self):
        self.go_to("Pause")
        xdotool("key", "space")
        wait_until(lambda: self.button("Resume").enabled, "it was not paused")
        self.go_to("Resume")
        xdotool("key", "space")
        wait_until(lambda: self.button("Pause").enabled, "it was not resumed")


if __name__ == "__main__":
    unittest.main(verbosity=2)
