# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The status item in a real panel (xfce4-panel): its menu read from the screen and clicked with the pointer."""
import os
import shutil
import subprocess
import unittest

from program import DEADLINE, NAME, TITLE, ProgramTest, accessibility, dunst, kernel_addresses, wait_until, xdotool

import panel

FOLDER = os.path.expanduser("~/.local/share/Quillon")
SETTINGS = os.path.expanduser("~/.config/Quillon")
RECORDS = os.path.join(FOLDER, "Quillon.sqlite")
WRITE_RULE = os.path.join(os.environ["QUILLON_BUILD"], "tests", "integration", "app", "write-rule")
FACTORY, CURRENT = "    Hardware Address · ", "    Current Address · "
FIXED = ["Open Quillon", "Overview", "History", "Rules", "Saved Networks and Addresses", "Preferences",
         "About Quillon"]
COUNTDOWN = "    ...changing MAC Address in "


class PanelTest(ProgramTest):
    def setUp(self):
        self.panel = panel.Panel()
        self.addCleanup(self.panel.end)
        super().setUp()

    def open_menu(self):
        return self.panel.open_menu()

    def close_message(self):
        """The message of an address change would lie over the menu."""
        wait_until(lambda: int(dunst("count", "displayed")), "the change was not told")
        dunst("close-all")


class ReadingTest(PanelTest):
    def test_the_menu_reads_as_it_is(self):
        menu = self.open_menu()
        titles = menu.titles
        self.assertEqual(titles[:7], FIXED)
        self.assertEqual(titles[-1], "Quit Quillon")
        self.assertTrue(menu.item("Open Quillon").enabled)
        self.assertTrue(menu.item("Overview").enabled)
        for device, address in self.addresses.items():
            place = next(place for place, title in enumerate(titles) if title.endswith(" · " + device))
            self.assertEqual(titles[place + 1:place + 3], [FACTORY + address, CURRENT + address])
            self.assertEqual(menu.item(titles[place]).checked, device == self.selector.name)
            self.assertFalse(menu.item(FACTORY + address, "Restore").enabled)
            self.assertTrue(menu.item(CURRENT + address, "Randomize").enabled)
        menu.close()

    def test_an_address_is_randomized_and_restored(self):
        device = next(name for name in self.addresses if name != self.selector.name)
        before = self.addresses[device]
        menu = self.open_menu()
        factory, current = menu.picture(FACTORY + before), menu.picture(CURRENT + before)
        menu.click(CURRENT + before, "Randomize")
        self.expect_only_changed(device)
        self.close_message()

        menu = self.open_menu()
        self.assertEqual(menu.picture(FACTORY + before), factory)
        self.assertNotEqual(menu.picture(CURRENT + before), current, "the panel shows the old address")
        menu.click(FACTORY + before, "Restore")
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")
        self.close_message()
        menu = self.open_menu()
        self.assertEqual(menu.picture(CURRENT + before), current)
        self.assertFalse(menu.item(FACTORY + before, "Restore").enabled)

    def test_an_interface_is_selected_and_the_window_opened(self):
        device = next(name for name in self.addresses if name != self.selector.name)
        menu = self.open_menu()
        menu.click(next(title for title in menu.titles if title.endswith(" · " + device)))
        self.expect_shown(self.addresses[device])
        self.field.click()
        wait_until(lambda: self.field.focused, "the window did not get the keyboard")
        xdotool("key", "ctrl+w")
        wait_until(lambda: not accessibility.has_window(NAME, TITLE), "the window stayed")
        self.open_menu().click("Open Quillon")
        accessibility.window(NAME, TITLE)

    def test_opened_and_closed_in_haste_it_opens_again_and_is_up_to_date(self):
        device = next(name for name in self.addresses if name != self.selector.name)
        width = panel.pictures.screen_size()[0]
        self.open_menu().close()
        for _ in range(5):
            xdotool("mousemove", width - panel.HEIGHT // 2, panel.HEIGHT // 2, "click", "3", "click", "3")
        panel.Menu.close()
        self.open_menu().click(CURRENT + self.addresses[device], "Randomize")
        self.expect_only_changed(device)
        self.close_message()
        self.open_menu().click(FACTORY + self.addresses[device], "Restore")
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")

    def test_a_panel_that_crashes_finds_the_item_again(self):
        self.panel.crash()
        self.panel.start()
        self.open_menu().click("Quit Quillon")
        self.assertEqual(self.program.wait(DEADLINE), 0)


class TimerTest(PanelTest):
    def setUp(self):
        shutil.rmtree(FOLDER, ignore_errors=True)
        os.makedirs(FOLDER)
        self.addCleanup(shutil.rmtree, FOLDER)
        # The first interface is selected, not the one of the test before.
        shutil.rmtree(SETTINGS, ignore_errors=True)
        subprocess.run([WRITE_RULE, RECORDS, "every-minute", "enp1s0"], check=True, stdin=subprocess.DEVNULL,
                       timeout=DEADLINE)
        super().setUp()
        self.assertEqual(self.selector.name, "enp1s0")

    def test_a_timer_ticks_in_the_open_menu_and_is_paused_and_resumed(self):
        self.open_menu().close()
        wait_until(lambda: self.button("Pause").enabled, "there is no countdown")
        # Its items come into a menu that the panel has read long ago.
        menu = self.open_menu()
        self.assertTrue(menu.wait_for("    Pause Timer").enabled)
        countdown = next(title for title in menu.titles if title.startswith(COUNTDOWN))
        self.assertFalse(menu.item(countdown).enabled)
        first = menu.picture(countdown)
        wait_until(lambda: menu.picture(countdown) != first, "the countdown stands still")
        menu.click("    Pause Timer")

        wait_until(lambda: self.button("Resume").enabled, "it was not paused")
        menu = self.open_menu()
        self.assertTrue(menu.wait_for("    Resume Timer").enabled)
        self.assertNotIn("    Pause Timer", menu.titles)
        menu.click("    Resume Timer")
        wait_until(lambda: self.button("Pause").enabled, "it was not resumed")


if __name__ == "__main__":
    unittest.main(verbosity=2)
