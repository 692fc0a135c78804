# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Saved networks and addresses: where they are edited, with the keyboard and with the pointer, and had back."""
import os
import plistlib
import shutil
import unittest

from program import FOLDER, NAME, RECORDS, ProgramTest, accessibility, trayclient, wait_until, xdotool

HISTORY = os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "data", "records", "version-1.sqlite")

SETTINGS = os.path.expanduser("~/.config/Quillon/com.orvandel.Quillon4.plist")
SAVED_ITEMS, WINDOW = "Saved Networks and Addresses", "Rules"
HOME, OFFICE = "a4:2b:b0:00:00:01", "b8:27:eb:44:55:66"
PRINTER = "a4:83:e7:01:02:03"
FRESH = "02:00:5e:10:00:01"
# What the history of three records knows.
KNOWN = ["02:00:5e:00:53:01", "62:68:66:48:DC:27"]
GUEST = "a4:2b:b0:11:22:33"


def network(bssid, name):
    return {"BSSID": bssid, "SSID": name, "name": name}


class SavedItemsTest(ProgramTest):
    def setUp(self):
        os.makedirs(os.path.dirname(SETTINGS), exist_ok=True)
        with open(SETTINGS, "wb") as file:
            plistlib.dump({"savedNetworks": {HOME: network(HOME, "Home"), OFFICE: network(OFFICE, "Office")},
                           "savedAddresses": {PRINTER: {"address": PRINTER, "name": "Printer"}}}, file)
        os.makedirs(FOLDER, exist_ok=True)
        shutil.copy(HISTORY, RECORDS)
        super().setUp()

    def saved(self, key):
        """What the file holds."""
        with open(SETTINGS, "rb") as file:
            return plistlib.load(file)[key]

    def open_by_menu(self):
        trayclient.only_item().click(SAVED_ITEMS)
        return accessibility.window(NAME, WINDOW)

    def popover_of(self, items, title, name):
        """That of a token, opened with the keyboard."""
        token = items.find("button", name)
        token._fresh.get_component_iface().grab_focus()
        wait_until(lambda: token.focused, f"“{name}” did not get the keyboard")
        xdotool("key", "Return")
        return wait_until(lambda: next((child for child in items.find("list", title).children
                                        if child.has("entry", "Name")), None), f"“{name}” opened nothing")

    def test_the_menu_opens_them_and_the_keyboard_renames_one(self):
        items = self.open_by_menu()
        popover = self.popover_of(items, "Networks", "Home")
        name = popover.find("entry", "Name")
        wait_until(lambda: name.focused, "the name did not get the keyboard")
        self.assertEqual(name.text, "Home")
        xdotool("type", "Office")
        xdotool("key", "Return")
        token = items.find("button", "Office (2)")
        wait_until(lambda: token.focused, "the token has not got the keyboard back")
        wait_until(lambda: self.saved("savedNetworks")[HOME]["name"] == "Office (2)", "the name was not saved")
        self.assertEqual(self.saved("savedNetworks")[OFFICE]["name"], "Office")

    def test_escape_closes_and_saves_nothing(self):
        items = self.open_by_menu()
        self.popover_of(items, "Addresses", "Printer")
        xdotool("type", "Scanner")
        xdotool("key", "Escape")
        token = items.find("button", "Printer")
        wait_until(lambda: token.focused, "the token has not got the keyboard back")
        xdotool("key", "Escape")
        self.assertTrue(items.showing, "Escape closes no window")
        self.assertEqual(self.saved("savedAddresses")[PRINTER]["name"], "Printer")
        xdotool("key", "ctrl+w")
        wait_until(lambda: not accessibility.has_window(NAME, WINDOW), "Ctrl+W did not close it")
        self.assertIsNone(self.program.poll(), "the program goes on")

    def test_a_network_is_recognized_by_its_name(self):
        items = self.open_by_menu()
        popover = self.popover_of(items, "Networks", "Office")
        self.assertTrue(popover.find("radio button", "Access point " + OFFICE).checked)
        xdotool("key", "Tab", "Up")
        wait_until(lambda: popover.find("radio button", "Name Office").checked, "the arrow key did not choose")
        wait_until(lambda: self.saved("savedNetworks")[OFFICE].get("ssidDefined") is True, "it was not saved")
        self.assertNotIn("ssidDefined", self.saved("savedNetworks")[HOME])

    def test_what_is_removed_can_be_had_back(self):
        items = self.open_by_menu()
        before = self.saved("savedNetworks")
        popover = self.popover_of(items, "Networks", "Home")
        popover.find("button", "Remove").click()
        wait_until(lambda: HOME not in self.saved("savedNetworks"), "it was not removed")
        toast = wait_until(lambda: next((control for control in items.everything_below()
                                         if control.showing and control.name == "Favorite removed"), None),
                           lambda: f"nothing said so; there is {items.overview()}")
        self.assertTrue(toast.has("button", "Undo"))
        token = items.find("button", "Office")
        wait_until(lambda: token.focused, "the next token has not got the keyboard")
        xdotool("key", "ctrl+z")
        items.find("button", "Home")
        wait_until(lambda: self.saved("savedNetworks") == before, "it is not what it was")
        wait_until(lambda: not items.has("button", "Undo"), "the message stays")

    def focus(self, control):
        control._fresh.get_component_iface().grab_focus()
        wait_until(lambda: control.focused, f"“{control.name}” did not get the keyboard")

    def form_of(self, items, opener, first):
        """What a card's button opens, by the keyboard; its first field has it then."""
        button = items.find("button", opener)
        self.focus(button)
        xdotool("key", "Return")
        form = wait_until(lambda: next((child for child in button.children if child.has("entry", first)), None),
                          f"“{opener}” opened nothing")
        wait_until(lambda: form.find("entry", first).focused, "its first field did not get the keyboard")
        return button, form

    def test_an_address_is_saved_by_hand_with_the_keyboard(self):
        items = self.open_by_menu()
        button, form = self.form_of(items, "Address…", "Address")
        xdotool("type", "02:00:5ezz")
        self.assertEqual(form.find("entry", "Address").text, "02:00:5e")
        xdotool("key", "Return")
        form.find("label", "This is not a MAC address.")
        xdotool("type", ":10:00:01")
        xdotool("key", "Tab")
        wait_until(lambda: form.find("entry", "Name (optional)").focused, "Tab did not lead to the name")
        xdotool("type", "Printer")
        xdotool("key", "Return")
        items.find("button", "Printer (2)")
        wait_until(lambda: button.focused, "the button has not got the keyboard back")
        wait_until(lambda: self.saved("savedAddresses").get(FRESH) == {"address": FRESH, "name": "Printer (2)"},
                   "it was not saved")

    def test_a_network_is_saved_by_hand_with_the_keyboard(self):
        items = self.open_by_menu()
        button, form = self.form_of(items, "Network…", "Network name")
        xdotool("type", "Harbor")
        xdotool("key", "Tab")
        xdotool("type", HOME.upper())
        form.find("label", "Home is saved already.")
        xdotool("key", "ctrl+a")
        xdotool("type", FRESH.upper())
        xdotool("key", "Tab")
        wait_until(lambda: form.find("button", "Add").focused, "Tab did not lead to the button")
        xdotool("key", "space")
        items.find("button", "Harbor")
        wait_until(lambda: button.focused, "the button has not got the keyboard back")
        wait_until(lambda: self.saved("savedNetworks").get(FRESH) == network(FRESH, "Harbor"), "it was not saved")

    def test_the_history_is_imported_and_taken_back(self):
        items = self.open_by_menu()
        networks, addresses = self.saved("savedNetworks"), self.saved("savedAddresses")
        self.focus(items.find("button", "Import from History"))
        xdotool("key", "space")

        def said(text):
            return wait_until(lambda: next((control for control in items.everything_below()
                                            if control.showing and control.name == text), None),
                              lambda: f"nothing said “{text}”; there is {items.overview()}")

        toast = said("2 addresses and 1 network added.")
        items.find("button", "Harbor-Guest")
        wait_until(lambda: sorted(self.saved("savedAddresses")) == sorted([PRINTER, *KNOWN]), "they were not saved")
        wait_until(lambda: self.saved("savedNetworks").get(GUEST) == network(GUEST, "Harbor-Guest"),
                   "the network was not saved")
        self.assertTrue(toast.has("button", "Undo"))
        xdotool("key", "ctrl+z")
        wait_until(lambda: self.saved("savedAddresses") == addresses, "the addresses are not what they were")
        wait_until(lambda: self.saved("savedNetworks") == networks, "the networks are not what they were")
        xdotool("key", "space")
        said("2 addresses and 1 network added.")
        self.focus(items.find("button", "Import from History"))
        xdotool("key", "space")
        said("Nothing in the history that is not saved.")

    def test_the_saved_addresses_lead_there(self):
        popover = self.popover("Saved addresses")
        popover.find("button", "Edit Saved Items").click()
        items = accessibility.window(NAME, WINDOW)
        items.find("button", "Printer")
        wait_until(lambda: not self.has_popover("Saved addresses"), "the popover stays open")

    def test_the_heart_is_undone_in_the_main_window(self):
        self.field.click()
        xdotool("key", "ctrl+d")
        address = self.field.text.lower()
        wait_until(lambda: address in self.saved("savedAddresses"), "the address was not saved")
        xdotool("key", "ctrl+d")
        wait_until(lambda: address not in self.saved("savedAddresses"), "the address was not removed")
        self.button("Undo")
        # The field has the keyboard; the message has the key first.
        xdotool("key", "ctrl+z")
        wait_until(lambda: address in self.saved("savedAddresses"), "the address did not come back")
        self.assertEqual(self.field.text.lower(), address)


if __name__ == "__main__":
    unittest.main(verbosity=2)
