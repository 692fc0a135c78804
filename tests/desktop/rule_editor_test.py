# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A rule is made, switched, renamed, duplicated, deleted and had back, without a pointer, and acts on the kernel."""
import unittest

from preferences import write_settings
from program import (NAME, ProgramTest, accessibility, forget_everything, kernel_addresses, trayclient, wait_until,
                     write_rule, xdotool)

WINDOW = "Rules"
SENTENCE = "On any network, give Ethernet · enp1s0 a new random address every minute."
WARNING = "Another rule for this interface and network was switched off: only one can be on."


class RuleEditorTest(ProgramTest):
    def setUp(self):
        forget_everything()
        self.prepare()
        super().setUp()
        self.assertEqual(self.selector.name, "enp1s0")

    def prepare(self):
        """Before the start."""

    def editor(self):
        return accessibility.window(NAME, WINDOW)

    def row(self, name):
        """Of the list of rules."""
        return self.editor().find("list item", name)

    def rows(self):
        return [item.name for item in self.editor().all("list item")]

    def expect_rows(self, *names):
        wait_until(lambda: self.rows() == list(names), lambda: f"the list is {self.rows()}; there is {self.editor().overview()}")

    def focused_in_editor(self):
        return next((control.name for control in self.editor().everything_below() if control.focused), None)

    def place_in_editor(self):
        """Tabs, a toolbar and a list may have one name."""
        return next(((control.name, control.extents) for control in self.editor().everything_below()
                     if control.focused), None)

    def tab_to(self, control):
        for _ in range(20):
            if control.focused:
                return
            before = self.place_in_editor()
            xdotool("key", "Tab")
            wait_until(lambda: self.place_in_editor() not in (None, before), f"Tab does not lead on from {before}")
        self.fail(f"Tab never came to {control.name}")

    def choose(self, label, entry):
        pop_up = self.editor().labelled(label, "combo box")
        self.tab_to(pop_up)
        # The beginning of an entry chooses it.
        xdotool("type", entry)
        wait_until(lambda: pop_up.name.startswith(entry), lambda: f"{label} is “{pop_up.name}” instead of {entry}")

    def make_rule(self, name):
        """A new random address every minute, on any network."""
        xdotool("key", "ctrl+n")
        wait_until(lambda: self.focused_in_editor() == "Name", "the form has not the keyboard")
        xdotool("type", name)
        self.assertEqual(self.editor().labelled("Interface", "combo box").name, "Ethernet · enp1s0")
        self.choose("Action", "Change")
        self.choose("Repeat", "Every")
        self.tab_to(self.editor().find("entry", "Minutes"))
        xdotool("key", "ctrl+a")
        xdotool("type", "1")
        self.editor().find("label", SENTENCE)
        xdotool("key", "Return")
        row = self.row(name)
        wait_until(lambda: row.focused, "the new rule has not the keyboard")
        self.assertFalse(row.checked, "a new rule is off")
        return row

    def test_a_rule_is_made_acts_and_is_found_in_the_history(self):
        row = self.make_rule("Every minute")
        xdotool("key", "space")
        wait_until(lambda: self.row("Every minute").checked, "it was not switched on")
        wait_until(lambda: "In force now." in self.row("Every minute").description,
                   lambda: f"it says {row.description}")
        countdown = "...changing MAC Address in 00:0"
        wait_until(lambda: any(label.name.startswith(countdown) for label in self.window.all("label")),
                   "nothing counts down")
        self.assertEqual(kernel_addresses(), self.addresses, "too early")
        xdotool("key", "ctrl+o")
        overview = accessibility.window(NAME, "Overview")
        wait_until(lambda: any(label.name.startswith(countdown) for label in overview.all("label")),
                   "nothing counts down in the overview")
        address = self.expect_only_changed("enp1s0")
        xdotool("key", "ctrl+h")
        history = accessibility.window(NAME, "History")
        wait_until(lambda: history.find("entry", "Search All Fields").focused, "the search has not the keyboard")
        xdotool("key", "Down")
        wait_until(lambda: any(address.upper() in label.name for label in history.all("label")),
                   lambda: f"the history does not tell of it; there is {history.overview()}")

    def test_what_another_program_saves_can_be_chosen_and_goes_again(self):
        xdotool("key", "ctrl+n")
        wait_until(lambda: self.focused_in_editor() == "Name", "the form has not the keyboard")
        self.choose("Action", "Change")
        write_settings(savedAddresses={"a4:83:e7:01:02:03": {"address": "a4:83:e7:01:02:03", "name": "Printer"}})
        self.choose("Address", "Printer")
        self.editor().find("label", "On any network, give Ethernet · enp1s0 the address Printer.")
        write_settings(savedAddresses=None)
        address = self.editor().labelled("Address", "combo box")
        wait_until(lambda: address.name == "Random Address", lambda: f"“{address.name}” is still chosen")

    def test_the_form_goes_without_a_trace(self):
        xdotool("key", "ctrl+n")
        wait_until(lambda: self.focused_in_editor() == "Name", "the form has not the keyboard")
        xdotool("type", "No")
        xdotool("key", "Escape")
        self.editor().find("label", "Rules change the address when you join a network.")
        xdotool("key", "ctrl+shift+n")
        wait_until(lambda: self.focused_in_editor() == "Name", "the form has not the keyboard")
        self.editor().find("label", "At login, give Ethernet · enp1s0 a random address.")
        xdotool("key", "Escape")
        self.assertEqual(self.rows(), [])
        self.assertTrue(self.editor().showing, "Escape closes no window")


class RulesListTest(RuleEditorTest):
    def prepare(self):
        write_rule("every-minute", "enp2s0")

    def setUp(self):
        super().setUp()
        trayclient.only_item().click("Rules")
        self.name = wait_until(self.rows, "no rule is listed")[0]

    # Those of the base are not tried again.
    test_a_rule_is_made_acts_and_is_found_in_the_history = None
    test_the_form_goes_without_a_trace = None
    test_what_another_program_saves_can_be_chosen_and_goes_again = None

    def focus_list(self):
        wait_until(self.focused_in_editor, "the window has not the keyboard")
        self.tab_to(self.row(self.name))

    def test_a_rule_is_duplicated_renamed_deleted_and_had_back(self):
        self.focus_list()
        xdotool("key", "ctrl+d")
        copy = self.name + " copy"
        self.expect_rows(self.name, copy)
        wait_until(lambda: self.row(copy).focused, "the copy is not selected")
        xdotool("key", "F2")
        xdotool("type", "Second")
        xdotool("key", "Return")
        wait_until(lambda: "Second" in self.rows(), lambda: f"the list is {self.rows()}; there is {self.editor().overview()}")
        wait_until(lambda: self.row("Second").focused, "the list has not got the keyboard back")
        xdotool("key", "space")
        wait_until(lambda: not self.row("Second").checked, "it was not switched off")
        xdotool("key", "space")
        self.editor().find("label", WARNING)
        wait_until(lambda: self.row("Second").checked and not self.row(self.name).checked, "both are on")
        xdotool("key", "Delete")
        self.expect_rows(self.name)
        wait_until(lambda: self.editor().has("button", "Undo"), "nothing says so")
        xdotool("key", "ctrl+z")
        wait_until(lambda: sorted(self.rows()) == sorted([self.name, "Second"]), lambda: f"the list is {self.rows()}; there is {self.editor().overview()}")
        self.assertTrue(self.row("Second").checked, "as it was")

    def test_return_opens_the_form_and_saves_it(self):
        self.focus_list()
        xdotool("key", "Return")
        wait_until(lambda: self.focused_in_editor() == "Name", "the form has not the keyboard")
        xdotool("key", "ctrl+a")
        xdotool("type", "Renamed")
        xdotool("key", "Return")
        self.expect_rows("Renamed")
        self.assertTrue(self.row("Renamed").checked, "its switch stays")


if __name__ == "__main__":
    unittest.main(verbosity=2)
