# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The program in the user's language: its window, its menu, its keys and its messages."""
import unittest

from program import NAME, TITLE, ProgramTest, accessibility, kernel_addresses, messages, start, trayclient, \
    wait_until, xdotool

CURRENT, FACTORY = "    Aktuelle Adresse · ", "    Hardware-Adresse · "


class GermanTest(ProgramTest):
    def setUp(self):
        self.addresses = kernel_addresses()
        # A dialect of which there is no table, then one that there is, though not for its country.
        self.program = start(LANGUAGE="nds:de_AT:en")
        self.addCleanup(self.end_program)
        self.window = accessibility.window(NAME, TITLE)
        self.field = self.window.find("entry", "Adresse")
        wait_until(lambda: self.field.text, "the window showed no address")
        wait_until(lambda: self.field.focused, "the window did not get the keyboard")
        self.selected = self.selector.name

    @property
    def selector(self):
        return self.window.labelled("Schnittstelle", "combo box")

    def test_the_window_speaks_german(self):
        for name in ("Adresse anwenden", "Adresse zufällig ändern"):
            self.window.find("button", name)
        self.popover("Hardware-Adresse").find("button", "Hardware-Adresse wiederherstellen")
        self.assertEqual(self.value_of("Regeln"), "Keine Regeln")
        self.assertEqual(self.window.find("entry", "Hersteller zufälliger Adressen").text, "Zufällige Adresse")

    def test_a_key_of_the_german_text_randomizes(self):
        xdotool("key", "alt+z")
        self.expect_shown(self.expect_only_changed(self.selected))
        wait_until(lambda: any(title.endswith(": Adresse geändert") for title, _ in messages()),
                   "no message of the change in German")

    def test_the_menu_randomizes_and_restores(self):
        item = trayclient.only_item()
        other = next(name for name in ("enp2s0", "enp1s0") if name != self.selected)
        before = self.addresses[other]
        item.click(CURRENT + before, "Zufällig ändern")
        new = self.expect_only_changed(other)
        wait_until(lambda: CURRENT + new in item.menu_text(), "the menu kept the old address")
        item.click(FACTORY + before, "Wiederherstellen")
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")

    def test_the_menu_ends_the_program(self):
        trayclient.only_item().click("Quillon beenden")
        wait_until(lambda: self.program.poll() is not None, "it went on")


class ArabicTest(ProgramTest):
    """From right to left, but for addresses."""

    def setUp(self):
        self.addresses = kernel_addresses()
        self.program = start(LANGUAGE="ar")
        self.addCleanup(self.end_program)
        self.window = accessibility.window(NAME, TITLE)
        self.field = self.window.find("entry", "العنوان")
        wait_until(lambda: self.field.text, "the window showed no address")
        wait_until(lambda: self.field.focused, "the window did not get the keyboard")

    def test_the_window_is_mirrored(self):
        field = self.field.extents[0]
        button = self.window.find("button", "تطبيق العنوان").extents[0]
        self.assertLess(button, field, "what follows the field stands on its left")
        self.assertIn(self.field.text, self.addresses.values(), "the address itself has no marks")

    def test_the_menu_randomizes_and_restores(self):
        current, factory = "    العنوان الحالي · ⁨%s⁩", "    عنوان العتاد · ⁨%s⁩"
        item = trayclient.only_item()
        before = self.addresses["enp2s0"]
        item.click(current % before, "تغيير عشوائي")
        new = self.expect_only_changed("enp2s0")
        wait_until(lambda: current % new in item.menu_text(), "the menu kept the old address")
        item.click(factory % before, "استعادة")
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")


class EnglishFirstTest(unittest.TestCase):
    def test_english_needs_no_table(self):
        program = start(LANGUAGE="en_GB:de")
        self.addCleanup(program.wait)
        self.addCleanup(program.terminate)
        accessibility.window(NAME, TITLE).find("entry", "Address")


if __name__ == "__main__":
    unittest.main(verbosity=2)
