# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Manufacturers: their registry is refreshed over the web, one is chosen, and its prefix is in the kernel."""
import csv
import os
import re
import shutil
import unittest

from program import NAME, ProgramTest, accessibility, kernel_addresses, messages, wait_until, xdotool
from webserver import REGISTRY, REGISTRY_FILE, Web

FOLDER = os.path.expanduser("~/.local/share/Quillon")
FIELD = "Vendor of random addresses"
SETTINGS = os.path.expanduser("~/.config/Quillon")
# A locale's date and time, whichever it is: with digits, and short.
LAST_UPDATED = r"^Last Updated: \S.*\d\d"


def registry():
    """Identifier and name of each row, as the public registry has them."""
    with open(REGISTRY_FILE, newline="", encoding="utf-8") as file:
        return [(row["Assignment"], row["Organization Name"].strip()) for row in csv.DictReader(file)]


class VendorTest(ProgramTest):
    def setUp(self):
        self.web = Web()
        self.addCleanup(self.web.end)
        for folder in (FOLDER, SETTINGS):
            shutil.rmtree(folder, ignore_errors=True)
        super().setUp()

    def open_pane(self):
        """That of the vendor data, where the registry is refreshed."""
        self.button("Preferences").press()
        accessibility.window(NAME, "General").find("page tab", "Vendor Data").press()
        self.pane = accessibility.window(NAME, "Vendor Data")

    def label(self, pattern):
        """The label of the pane whose whole text fits; None when there is none."""
        for control in self.pane.all("label"):
            if re.search(pattern, control.name):
                return control
        return None

    def expect_label(self, pattern):
        return wait_until(lambda: self.label(pattern),
                          lambda: f"no label “{pattern}”; there is {self.pane.overview()}")

    def rows(self):
        """What the list of manufacturers shows; other lists of the window have no identifiers in them."""
        return [item for item in self.window.all("list item") if item.name.endswith(")")]


class RefreshTest(VendorTest):
    def setUp(self):
        super().setUp()
        self.count = len(registry())
        self.open_pane()
        self.expect_label(rf"^{self.count} Vendor Identifiers$")

    def test_the_first_start_counts_the_seed(self):
        self.assertIsNone(self.label(r"null"), "a date that is not known is not shown")
        self.assertIsNone(self.label(r"added"))

    def test_the_registry_is_downloaded_and_counted(self):
        with open(REGISTRY_FILE, encoding="utf-8") as file:
            text = file.read()
        more = 'MA-L,FEED01,"Quoted, ""Maker""","1 Long Road"\r\nMA-L,FEED02,Another Maker,"2 Long Road"\r\n'
        path = os.path.join(self.web.folder, "longer.csv")
        with open(path, "w", encoding="utf-8", newline="") as file:
            file.write(text.rstrip("\n") + "\n" + more)
        # It stops on the way until a person has seen how far it is.
        seen = os.path.join(self.web.folder, "seen")
        self.web.serve({REGISTRY: {"file": path, "cut": 500000, "then": "wait", "until": seen}})
        self.pane.find("button", "Update database").press()
        size = re.escape(f"{os.path.getsize(path) / 1e6:.1f}MB")
        self.expect_label(rf"^Downloading\.\.\. \d+\.\d{{3}}% of {size}$")
        self.pane.find("button", "Cancel download...")
        with open(seen, "x"):
            pass
        self.expect_label(r"^\S.* \(added 2 new Identifiers\)$")
        self.expect_label(rf"^{self.count + 2} Vendor Identifiers$")
        self.pane.find("button", "Update database")
        request = self.web.requests(REGISTRY)[0]
        self.assertTrue(request["secure"])

        field = self.window.find("entry", FIELD)
        field.type("quoted")
        wait_until(lambda: [row.name for row in self.rows()] == ['Quoted, "Maker" (FEED01)'],
                   lambda: f"the list shows {[row.name for row in self.rows()]}")

    def test_what_was_there_before_is_brought_back(self):
        self.assertFalse(self.pane.find("button", "Restore previous").enabled)
        self.web.serve({REGISTRY: {"body": "<html>\n<body>Log in,\nhere, please\n"}})
        self.pane.find("button", "Update database").press()
        self.expect_label(r"^2 Vendor Identifiers$")
        restore = self.pane.find("button", "Restore previous")
        wait_until(lambda: restore.enabled, "there is nothing to restore")
        restore.press()
        self.expect_label(rf"^{self.count} Vendor Identifiers$")
        self.expect_label(LAST_UPDATED)
        self.pane.find("button", "Update database")

    def test_the_same_registry_again_tells_the_date_alone(self):
        self.web.serve({REGISTRY: {"file": REGISTRY_FILE}})
        self.pane.find("button", "Update database").press()
        self.expect_label(LAST_UPDATED)
        self.expect_label(rf"^{self.count} Vendor Identifiers$")

    def test_a_download_is_cancelled(self):
        self.web.serve({REGISTRY: {"file": REGISTRY_FILE, "cut": 500000, "then": "stall"}})
        self.pane.find("button", "Update database").press()
        self.expect_label(r"^Downloading\.\.\. ")
        self.pane.find("button", "Cancel download...").press()
        self.pane.find("button", "Update database")
        self.expect_label(r"^Download cancelled\.\.\.$")
        self.expect_label(rf"^{self.count} Vendor Identifiers$")

    def test_without_an_answer_the_pane_stays_usable(self):
        self.web.end()
        self.pane.find("button", "Update database").press()
        self.expect_label(r"^Getting download information\.\.\.$")
        self.pane.find("button", "Cancel download...").press()
        self.expect_label(r"^Download cancelled\.\.\.$")
        self.pane.find("button", "Update database")

    def test_what_is_no_registry_fails_and_changes_nothing(self):
        self.web.serve({REGISTRY: {"status": 404, "body": "Not found\n"}})
        self.pane.find("button", "Update database").press()
        self.expect_label(r"^Parsing file failed\.\.\.$")
        self.expect_label(rf"^{self.count} Vendor Identifiers$")


class ChoiceTest(VendorTest):
    def randomize(self, device):
        """Presses until the address has changed. After a manufacturer's prefix, four of 256 random addresses
        are none (their first octet had one digit): such a change is refused, and the user is told so."""
        def refusals():
            return [title for title, _ in messages()].count("Ethernet Address was not Changed")

        def is_over():
            return kernel_addresses() != self.addresses or refusals() > refused
        while kernel_addresses() == self.addresses:
            refused = refusals()
            self.button("Randomize address").press()
            wait_until(is_over, "the address was neither changed nor refused")
        return self.expect_only_changed(device)

    def test_a_chosen_manufacturers_prefix_is_in_the_kernel(self):
        device = self.selector.name
        field = self.window.find("entry", FIELD)
        wait_until(lambda: field.text == "Random Address", "the field names no choice")
        field.type("appl")
        wait_until(lambda: self.rows() and all(row.name.lower().startswith("appl") for row in self.rows()),
                   lambda: f"the list shows {[row.name for row in self.rows()]}")
        known = {f"{name} ({identifier})" for identifier, name in registry()}
        self.assertLessEqual({row.name for row in self.rows()}, known)

        xdotool("key", "Down", "Down")
        chosen = self.rows()[1].name
        wait_until(lambda: field.text == chosen, lambda: f"{field.text} was chosen")
        xdotool("key", "Return")
        wait_until(lambda: not self.rows(), "the list stayed open")
        wait_until(lambda: field.focused, "the field did not get the keyboard back")

        new = self.randomize(device)
        self.assertEqual(new.replace(":", "")[:6], chosen[-7:-1])
        self.expect_shown(new)

    def test_the_choice_belongs_to_the_interface(self):
        selected = self.selector.name
        other = next(name for name in ("enp2s0", "enp1s0") if name != selected)
        field = self.window.find("entry", FIELD)
        field.type("appl")
        xdotool("key", "Down")
        wait_until(lambda: field.text.endswith(")"), "nothing was chosen")
        chosen = field.text
        xdotool("key", "Escape")
        self.selector.choose(other)
        wait_until(lambda: field.text == "Random Address", lambda: f"{other} shows {field.text}")
        self.selector.choose(selected)
        wait_until(lambda: field.text == chosen, lambda: f"{selected} shows {field.text}")
        self.assertEqual(kernel_addresses(), self.addresses, "choosing changes no address")

    def test_the_list_is_used_with_the_pointer(self):
        field = self.window.find("entry", FIELD)
        size = self.window.extents[2:]
        self.button("Show vendors").click()
        row = wait_until(lambda: self.rows() and self.rows()[2], "the list stayed closed")
        self.assertEqual(self.window.extents[2:], size, "the window keeps its size")
        chosen = row.name
        row.click()
        wait_until(lambda: field.text == chosen, lambda: f"{field.text} was chosen instead of {chosen}")
        self.button("Hide vendors").click()
        wait_until(lambda: not self.rows(), "the list stayed open")


if __name__ == "__main__":
    unittest.main(verbosity=2)
