# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The panes of the preferences and the file of the settings: what is switched in one is so in the other, also while
another program writes the file."""
import os
import shutil
import tempfile
import unittest

from preferences import PreferencesTest, stored, wait_for_stored, write_settings
from program import DEADLINE, start, wait_until, xdotool

# What another program saves.
SAVED = {"savedNetworks": {"a4:2b:b0:00:00:01": {"BSSID": "a4:2b:b0:00:00:01", "SSID": "Harbor", "name": "Harbor"}},
         "savedAddresses": {"a4:83:e7:01:02:03": {"address": "a4:83:e7:01:02:03", "name": "Printer"}}}


class GeneralTest(PreferencesTest):
    BOXES = {"hideOnLaunch": "Do not open the window at login", "showInMenu": "Show in the status bar",
             "displayNotifications": "Show notifications", "showKeyEnabled": "Show window",
             "randomKeyEnabled": "Randomize address"}

    def test_what_is_switched_is_stored(self):
        for key, name in self.BOXES.items():
            before = self.box(name).checked
            self.toggle(name)
            wait_for_stored(key, not before)
            self.expect_checked(name, not before)

    def test_what_another_program_writes_is_shown(self):
        for key, name in self.BOXES.items():
            before = self.box(name).checked
            write_settings(**{key: not before})
            self.expect_checked(name, not before)
            write_settings(**{key: before})
            self.expect_checked(name, before)

    def test_a_value_of_another_type_is_off(self):
        write_settings(hideOnLaunch=True)
        self.expect_checked("Do not open the window at login", True)
        write_settings(hideOnLaunch="yes", showKeyCombo=17)
        self.expect_checked("Do not open the window at login", False)
        self.toggle("Do not open the window at login")
        wait_for_stored("hideOnLaunch", True)

    def test_without_the_status_item_the_task_bar_is_not_left(self):
        name = "Hide from the task bar"
        wait_until(lambda: self.box(name).enabled, "it cannot be used beside a tray")
        self.toggle(name)
        wait_for_stored("hideDock", True)
        write_settings(showInMenu=False)
        self.expect_label("Only with the icon in the status bar.")
        self.expect_checked(name, False)
        self.assertFalse(self.box(name).enabled)
        wait_for_stored("hideDock", False)

    def test_the_cloud_can_be_switched(self):
        self.assertTrue(self.box("Sync settings, rules and history").enabled)


class DisplayTest(PreferencesTest):
    PANE = "Display"

    def test_the_letters_are_those_of_the_file_and_of_the_window(self):
        small = self.preferences.find("radio button", "Small letters, 62:ab")
        capital = self.preferences.find("radio button", "Capital letters, 62:AB")
        address = self.field.text
        self.assertEqual(address, address.upper())
        small.press()
        wait_for_stored("lowerCaseHEX", True)
        self.expect_shown(address.lower())
        write_settings(lowerCaseHEX=False)
        wait_until(lambda: capital.checked and not small.checked, "the capital letters are not chosen")
        self.expect_shown(address)

    def test_the_look_up_of_the_external_address(self):
        write_settings(shouldUpdateExternalIP=True)
        self.expect_checked("Look up the external address", True)
        self.toggle("Look up the external address")
        wait_for_stored("shouldUpdateExternalIP", False)


class AdvancedTest(PreferencesTest):
    PANE = "Advanced"

    def test_minutes_and_the_drift_alarm(self):
        field = self.preferences.find("entry", "Repeat every … minutes by default")
        self.assertEqual(field.text, "30")
        write_settings(defaultTimerMinutes=90)
        wait_until(lambda: field.text == "90", lambda: f"the field shows {field.text}")
        field.click()
        wait_until(lambda: field.focused, "the field did not get the keyboard")
        xdotool("key", "ctrl+a")
        xdotool("type", "4x567")
        wait_until(lambda: field.text == "456", lambda: f"the field shows {field.text}")
        xdotool("key", "Return")
        wait_for_stored("defaultTimerMinutes", 456)
        self.toggle("Ask when another program replaces an address")
        wait_for_stored("driftAlarm", False)
        write_settings(driftAlarm=None)
        self.expect_checked("Ask when another program replaces an address", True)

    def test_minutes_that_are_typed_count_when_the_program_ends(self):
        field = self.preferences.find("entry", "Repeat every … minutes by default")
        field.click()
        wait_until(lambda: field.focused, "the field did not get the keyboard")
        xdotool("key", "ctrl+a")
        xdotool("type", "45")
        wait_until(lambda: field.text == "45", lambda: f"the field shows {field.text}")
        xdotool("key", "ctrl+q")
        self.assertEqual(self.program.wait(DEADLINE), 0)
        self.assertEqual(stored().get("defaultTimerMinutes"), 45)

    def test_the_helper_and_who_manages_the_interfaces(self):
        self.expect_label("Helper: installed, version 2.0")
        self.assertFalse(self.preferences.find("button", "Install").enabled)
        self.assertTrue(self.preferences.find("button", "Uninstall").enabled)
        for device in ("enp1s0", "enp2s0"):
            self.preferences.find("list item", f"{device} · no program that is known")


class VendorDataTest(PreferencesTest):
    PANE = "Vendor Data"

    def test_what_another_program_writes_is_not_believed(self):
        count = next(label.name for label in self.preferences.all("label") if "Vendor Identifiers" in label.name)
        address = self.field.text
        write_settings(vendorCountValue=12345, vendorIDUpdatedDate=["no date"], lowerCaseHEX=True)
        # What it wrote has come.
        self.expect_shown(address.lower())
        self.assertTrue(self.has_label(count), "the registry is counted by the program alone")
        self.assertTrue(self.preferences.find("button", "Update database").enabled)


class SavedItemsPaneTest(PreferencesTest):
    PANE = "Rules"

    def test_what_another_program_saves_is_shown(self):
        write_settings(**SAVED)
        self.preferences.find("button", "Harbor")
        self.preferences.find("button", "Printer")
        write_settings(savedAddresses={})
        wait_until(lambda: not self.preferences.has("button", "Printer"), "the address is still there")
        self.preferences.find("button", "Harbor")


class AboutTest(PreferencesTest):
    PANE = "About"

    def start_program(self):
        # Whatever is handed to the desktop goes to this program.
        self.folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.folder)
        self.opened = os.path.join(self.folder, "opened")
        opener = os.path.join(self.folder, "xdg-open")
        with open(opener, "w") as file:
            file.write('#!/bin/sh\necho "$@" >>"%s"\n' % self.opened)
        os.chmod(opener, 0o755)
        return start(PATH=self.folder + ":" + os.environ["PATH"])

    def pages_opened(self):
        if not os.path.exists(self.opened):
            return []
        with open(self.opened) as file:
            return file.read().split()

    def test_its_links_open(self):
        opened = []
        for title, page in (("The License on the Web", "https://www.gnu.org/licenses/gpl-3.0.html"),
                            ("Where Vendors Are Registered", "https://standards-oui.ieee.org/")):
            self.preferences.find("button", title).press()
            opened.append(page)
            wait_until(lambda: self.pages_opened() == opened, lambda: f"opened: {self.pages_opened()}")
        self.preferences.find("button", "Read the License").press()
        wait_until(lambda: len(self.pages_opened()) == 3, "the license was not opened")
        with open(self.pages_opened()[2].removeprefix("file://")) as file:
            self.assertIn("GNU GENERAL PUBLIC LICENSE", file.read(1000))

    def test_version_and_license_are_there(self):
        self.assertTrue(any(label.name.startswith("Version ") for label in self.preferences.all("label")))
        self.preferences.find("button", "Read the License")
        self.assertEqual(stored().get("customTabIndex"), None)


if __name__ == "__main__":
    unittest.main(verbosity=2)
