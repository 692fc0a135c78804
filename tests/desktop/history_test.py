# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The history: searched with the keyboard, annotated, undone, saved, copied and exported. Its file is of version 1."""
import csv
import os
import plistlib
import shutil
import sqlite3
import unittest

from program import (FOLDER, NAME, RECORDS, SETTINGS, ProgramTest, accessibility, forget_everything, trayclient,
                     wait_until, xdotool)

HERE = os.path.dirname(os.path.realpath(__file__))
OLD_FILE = os.path.join(HERE, "..", "data", "records", "version-1.sqlite")
PREFERENCES = os.path.join(SETTINGS, "com.orvandel.Quillon4.plist")
ADDRESS = "62:68:66:48:DC:27"


def in_file(query):
    connection = sqlite3.connect(f"file:{RECORDS}?mode=ro", uri=True)
    try:
        return connection.execute(query).fetchall()
    finally:
        connection.close()


class HistoryTest(ProgramTest):
    def setUp(self):
        forget_everything()
        os.makedirs(FOLDER)
        shutil.copy(OLD_FILE, RECORDS)
        super().setUp()

    def open(self):
        trayclient.only_item().click("History")
        window = accessibility.window(NAME, "History")
        search = window.find("entry", "Search All Fields")
        wait_until(lambda: search.focused, "the search did not get the keyboard")
        return window

    def expect_label(self, window, text):
        wait_until(lambda: window.has("label", text), lambda: f"no “{text}”; there is {window.overview()}")

    def saved(self, key):
        with open(PREFERENCES, "rb") as file:
            return plistlib.load(file).get(key, {})

    def notes(self):
        return in_file('SELECT notes FROM "Connection" WHERE pk = 1')[0][0]

    def test_a_file_of_version_1_is_brought_up_to_date(self):
        window = self.open()
        self.expect_label(window, "3 records")
        self.assertEqual(in_file("PRAGMA user_version"), [(3,)])
        self.assertEqual(in_file("SELECT count(*) FROM sqlite_master WHERE type = 'index' AND sql NOT NULL"), [(1,)])

    def test_searched_annotated_undone_and_saved_with_the_keyboard(self):
        window = self.open()
        xdotool("type", "harbor")
        self.expect_label(window, "0 of 3 records")
        window.find("button", "Clear Search")
        xdotool("key", "Escape")
        self.expect_label(window, "3 records")
        xdotool("type", "Harbor")
        self.expect_label(window, "1 of 3 records")
        xdotool("key", "Down")
        wait_until(lambda: any(ADDRESS in label.text for label in window.all("label")), "nothing is said of the record")
        # An editor within a table is no child of it for assistive technology, so it is not looked for.
        xdotool("key", "F2", "ctrl+a")
        xdotool("type", "by the door")
        xdotool("key", "Return", "ctrl+s")
        wait_until(lambda: self.notes() == "by the door", lambda: f"the file says {self.notes()}")
        xdotool("key", "ctrl+z", "ctrl+s")
        wait_until(lambda: self.notes() == "by the window", lambda: f"the file says {self.notes()}")

    def test_a_deletion_is_undone_and_else_saved_at_the_end(self):
        window = self.open()
        self.expect_label(window, "3 records")
        xdotool("key", "Down", "Delete")
        self.expect_label(window, "2 records")
        xdotool("key", "ctrl+z")
        self.expect_label(window, "3 records")
        xdotool("key", "Home", "Delete")
        self.expect_label(window, "2 records")
        self.end_program()
        self.assertEqual(in_file('SELECT count(*) FROM "Connection"'), [(2,)])

    def test_what_is_selected_is_saved_as_the_record_holds_it(self):
        window = self.open()
        xdotool("type", "Harbor")
        self.expect_label(window, "1 of 3 records")
        xdotool("key", "Down")
        window.find("button", "Save Addresses").press()
        wait_until(lambda: self.saved("savedAddresses") == {ADDRESS: {"address": ADDRESS, "name": ADDRESS}},
                   "the address was not saved")
        wait_until(lambda: not window.find("button", "Save Addresses").enabled, "it can be saved twice")
        window.find("button", "Save Networks").press()
        wait_until(lambda: list(self.saved("savedNetworks")) == ["a4:2b:b0:11:22:33"], "the network was not saved")

    def test_the_type_of_the_search_is_chosen_with_the_keyboard(self):
        window = self.open()
        xdotool("key", "alt+Down", "Up", "Return")
        wait_until(lambda: self.saved("historySearchType") == "notes", "the type was not stored")
        window.find("entry", "Search Notes")
        xdotool("type", "Harbor")
        self.expect_label(window, "0 of 3 records")

    def test_what_is_shown_is_exported(self):
        window = self.open()
        xdotool("type", "e")
        self.expect_label(window, "2 of 3 records")
        window.find("button", "Export…").press()
        dialog = accessibility.window(NAME, "Export History")
        path = os.path.join(os.path.expanduser("~"), "out.csv")
        wait_until(lambda: any(entry.focused for entry in dialog.all("entry")), "no field for the name")
        xdotool("key", "ctrl+a")
        xdotool("type", path)
        xdotool("key", "Return")
        wait_until(lambda: os.path.exists(path), "there is no file")
        with open(path, encoding="utf-8", newline="") as file:
            rows = list(csv.reader(file))
        self.assertEqual(rows[0], ["Date", "Interface", "Device", "Address", "Network", "BSSID", "Notes"])
        self.assertEqual([row[3] for row in rows[1:]], ["02:00:5e:00:53:01", ADDRESS])
        self.expect_label(window, "2 records exported")

    def test_an_address_that_is_given_is_there_at_once(self):
        window = self.open()
        self.expect_label(window, "3 records")
        self.button("Randomize address").press()
        self.expect_label(window, "4 records")


if __name__ == "__main__":
    unittest.main(verbosity=2)
