# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The status item: its menu as a tray host reads it over the bus, and what clicks in it do."""
import unittest

from program import DEADLINE, ProgramTest, kernel_addresses, trayclient, wait_until

FACTORY, CURRENT = "    Hardware Address · ", "    Current Address · "


class StatusItemTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.item = trayclient.only_item()
        self.selected = self.selector.name
        self.other = next(name for name in ("enp2s0", "enp1s0") if name != self.selected)

    def section(self, device):
        """The device's item and the two below it."""
        entries = self.item.menu().entries
        for place, entry in enumerate(entries):
            if entry.label.endswith(" · " + device):
                return entries[place:place + 3]
        return self.fail(f"no section for {device} in\n{self.item.menu_text()}")

    def test_it_has_a_name_and_a_picture(self):
        self.assertEqual(self.item.value_of("Id"), "Quillon")
        self.assertEqual(self.item.value_of("Category"), "ApplicationStatus")
        sizes = {(width, height): pixels for width, height, pixels in self.item.value_of("IconPixmap")}
        self.assertTrue(sizes, "it has no picture")
        for (width, height), pixels in sizes.items():
            self.assertEqual(len(pixels), width * height * 4)
            self.assertTrue(any(pixels), "the picture is empty")

    def test_every_interface_has_its_section(self):
        for device, address in self.addresses.items():
            title, factory, current = self.section(device)
            self.assertTrue(title.enabled)
            self.assertEqual(title.checked, device == self.selected)
            self.assertEqual(current.label, CURRENT + address)
            self.assertEqual(factory.label, FACTORY + address)
            self.assertEqual([(entry.label, entry.enabled) for entry in factory.entries], [("Restore", False)])
            self.assertEqual([(entry.label, entry.enabled) for entry in current.entries], [("Randomize", True)])

    def test_randomize_and_restore_another_interface(self):
        before = self.addresses[self.other]
        self.item.click(CURRENT + before, "Randomize")
        new = self.expect_only_changed(self.other)
        wait_until(lambda: self.section(self.other)[2].label == CURRENT + new, "the menu kept the old address")
        self.assertEqual(self.field.text, self.addresses[self.selected], "the window shows another interface")

        wait_until(lambda: self.section(self.other)[1].entries[0].enabled, "it cannot be restored")
        self.item.click(FACTORY + before, "Restore")
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")

    def test_entries_keep_their_numbers(self):
        """A host shows the menu from what it read before: a number must go on meaning the same."""
        numbers = [entry.number for entry in self.section(self.other)]
        self.item.click(CURRENT + self.addresses[self.other], "Randomize")
        new = self.expect_only_changed(self.other)
        wait_until(lambda: self.section(self.other)[2].label == CURRENT + new, "the menu kept the old address")
        self.assertEqual([entry.number for entry in self.section(self.other)], numbers)
        self.item.click(self.section(self.other)[1].label, "Restore")
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")

    def test_an_interface_is_selected(self):
        self.item.click(self.section(self.other)[0].label)
        self.expect_shown(self.addresses[self.other])
        wait_until(lambda: self.section(self.other)[0].checked, "the menu ticks it")
        self.assertFalse(self.section(self.selected)[0].checked)
        self.item.click(self.section(self.selected)[0].label)
        self.expect_shown(self.addresses[self.selected])

    def test_the_windows_come_first_and_quit_last(self):
        entries = [entry for entry in self.item.menu().entries if entry.visible]
        windows = ["Open Quillon", "Overview", "History", "Rules", "Saved Networks and Addresses", "Preferences",
                   "About Quillon"]
        self.assertEqual([entry.label for entry in entries[:7]], windows)
        self.assertTrue(all(entry.enabled for entry in entries[:7]), "each window is there")
        self.assertTrue(entries[7].separator)
        self.assertEqual(entries[-1].label, "Quit Quillon")
        self.assertNotIn("Close Window", [entry.label for entry in entries])

    def test_quit_ends_the_program(self):
        self.item.click("Quit Quillon")
        self.assertEqual(self.program.wait(DEADLINE), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
