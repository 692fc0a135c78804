# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The overview: opened from everywhere, and what its rows do to real interfaces, by keyboard and as assistive
technology does it.

Runs as root, who plugs an interface in; the program and its user are ordinary.
"""
import os
import subprocess
import sys
import time
import unittest

from gi.repository import GLib
from program import (NAME, TITLE, ProgramTest, accessibility, forget_everything, kernel_addresses, trayclient, wait_until,
                     write_rule, xdotool)

import pictures

USER = "quillon"
OVERVIEW = "Overview"
WISH = "/tmp/plug-in"  # made by whoever wants another interface
PLUGGED, PLUGGED_ADDRESS = "enp7s0", "00:00:5e:00:53:77"
COUNTDOWN = "...changing MAC Address in "
PAUSED = " (paused)"


class OverviewTest(ProgramTest):
    def setUp(self):
        forget_everything()
        self.prepare()
        super().setUp()
        self.assertEqual(self.selector.name, "enp1s0")

    def prepare(self):
        """Before the start."""

    def open(self):
        xdotool("key", "ctrl+o")
        return self.opened()

    def opened(self):
        overview = accessibility.window(NAME, OVERVIEW)
        wait_until(lambda: self.place_in(overview), "the overview did not get the keyboard")
        return overview

    @staticmethod
    def rows(overview):
        """Of each row: which interface it is."""
        return [row.name.partition(", ")[0].rpartition(" · ")[2] for row in overview.all("list item")]

    @staticmethod
    def place_in(overview):
        """What has the keyboard."""
        try:
            return next((control.name for control in overview.everything_below() if control.focused), "")
        except GLib.Error:
            return ""

    def press(self, overview, key, place):
        """Waits until the key has led to what begins like that."""
        xdotool("key", key)
        wait_until(lambda: self.place_in(overview).startswith(place),
                   lambda: f"{key} led to {self.place_in(overview)}, not to {place}")

    def label(self, window, text):
        """What is said there that begins so."""
        return next((label.name for label in window.all("label") if label.name.startswith(text)), "")


class WaysTest(OverviewTest):
    def test_keys_the_footer_and_the_menu_open_it(self):
        overview = self.open()
        self.assertEqual(self.rows(overview)[:2], ["enp1s0", "enp2s0"])
        xdotool("key", "ctrl+w")
        wait_until(lambda: not accessibility.has_window(NAME, OVERVIEW), "Ctrl+W did not close it")
        self.button(OVERVIEW).press()
        self.opened()
        xdotool("key", "ctrl+w")
        wait_until(lambda: not accessibility.has_window(NAME, OVERVIEW), "Ctrl+W did not close it again")
        trayclient.only_item().click(OVERVIEW)
        self.assertEqual(self.rows(self.opened())[:2], ["enp1s0", "enp2s0"])

    def test_it_is_moved_by_its_ground(self):
        self.open()
        window = pictures.find_window(OVERVIEW)
        # The display's word: the program hears a moment later where its window was put.
        left, top, width, height = pictures.geometry(window)
        x, y = left + 6, top + height // 2
        xdotool("mousemove", x, y, "mousedown", 1)

        def follows():
            # The pointer rests at either of two places for a second: at one of them the window has moved.
            away = int(time.monotonic()) % 2
            xdotool("mousemove", x + 12 * away, y + 8 * away)
            return pictures.geometry(window)[:2] != [left, top]
        wait_until(follows, "the overview does not follow the pointer")
        xdotool("mouseup", 1)
        self.assertEqual(pictures.geometry(window)[2:], [width, height])

    def test_return_shows_a_row_in_the_main_window(self):
        overview = self.open()
        self.press(overview, "Down", "Ethernet · enp2s0")
        xdotool("key", "Return")
        wait_until(lambda: self.selector.name == "enp2s0", lambda: f"the window shows {self.selector.name}")
        # The overview has the keyboard again: its keys go on in it.
        self.press(overview, "Up", "Ethernet · enp1s0")
        self.assertEqual(kernel_addresses(), self.addresses)


class ChangesTest(OverviewTest):
    def test_the_keyboard_randomizes_and_restores_a_row(self):
        overview = self.open()
        shown = self.field.text
        self.press(overview, "Down", "Ethernet · enp2s0")
        self.press(overview, "Tab", "Rules of enp2s0")
        self.press(overview, "Tab", "Randomize enp2s0")
        xdotool("key", "Return")
        now = self.expect_only_changed("enp2s0")
        wait_until(lambda: self.label(overview, f"The address is now {now}."),
                   lambda: f"nothing says so; there is {overview.overview()}")
        # Its own address stays as it was read.
        self.assertTrue(self.label(overview, self.addresses["enp2s0"]))
        self.assertEqual(self.field.text, shown)
        self.press(overview, "Tab", "Restore the hardware address of enp2s0")
        xdotool("key", "space")
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")

    def test_a_row_is_read_anew_when_the_overview_is_asked_for_again(self):
        overview = self.open()
        overview.find("button", "Randomize enp2s0").press()
        now = self.expect_only_changed("enp2s0")
        wait_until(lambda: self.label(overview, f"The address is now {now}."), "nothing says so")
        xdotool("key", "ctrl+o")
        wait_until(lambda: self.label(overview, now), lambda: f"there is {overview.overview()}")
        wait_until(lambda: not self.label(overview, "The address is now "), "it is still out of date")
        overview.find("button", "Restore the hardware address of enp2s0").press()
        wait_until(lambda: kernel_addresses() == self.addresses, "the address was not restored")

    def test_an_interface_that_is_plugged_in_is_listed_by_reloading(self):
        overview = self.open()
        with open(WISH, "w"):
            pass
        wait_until(lambda: self.label(overview, "There are interfaces that are not listed here yet."),
                   lambda: f"nothing says so; there is {overview.overview()}")
        self.assertNotIn(PLUGGED, self.rows(overview))
        overview.find("button", "Reload").press()
        wait_until(lambda: PLUGGED in self.rows(overview), lambda: f"there is {self.rows(overview)}")
        self.assertEqual(self.label(overview, PLUGGED_ADDRESS.upper()), PLUGGED_ADDRESS.upper())


class CountdownTest(OverviewTest):
    def prepare(self):
        write_rule("every-minute", "enp1s0")

    def told(self, window):
        return self.label(window, COUNTDOWN)

    def expect_paused(self, overview, is_paused):
        """In its row, and in the main window."""
        for window in (overview, self.window):
            wait_until(lambda: self.told(window) and self.told(window).endswith(PAUSED) == is_paused,
                       lambda: f"“{self.told(window)}” is told")

    def test_a_countdown_is_paused_and_resumed_in_its_row(self):
        overview = self.open()
        before = wait_until(lambda: self.told(overview), lambda: f"there is {overview.overview()}")
        wait_until(lambda: self.told(overview) not in ("", before), "the countdown stands still")
        overview.find("button", "Pause the countdown of enp1s0").press()
        self.expect_paused(overview, True)
        resume = overview.find("button", "Resume the countdown of enp1s0")
        resume._fresh.get_component_iface().grab_focus()
        wait_until(lambda: resume.focused, "the button did not get the keyboard")
        xdotool("key", "space")
        self.expect_paused(overview, False)
        wait_until(lambda: self.place_in(overview) == "Pause the countdown of enp1s0",
                   lambda: f"the keyboard is at {self.place_in(overview)}")

    def test_it_ticks_while_the_main_window_is_closed(self):
        xdotool("key", "ctrl+w")
        wait_until(lambda: not accessibility.has_window(NAME, TITLE), "the window was not closed")
        trayclient.only_item().click(OVERVIEW)
        overview = accessibility.window(NAME, OVERVIEW)
        before = wait_until(lambda: self.told(overview), lambda: f"there is {overview.overview()}")
        wait_until(lambda: self.told(overview) not in ("", before), "the countdown stands still")


def as_administrator():
    """Has this script's tests run by the ordinary user, and plugs an interface in when they wish it."""
    environment = {**os.environ, "HOME": os.path.expanduser("~" + USER), "USER": USER, "LOGNAME": USER}
    tests = subprocess.Popen(["runuser", "-u", USER, "--", sys.executable, "-B", "-W", "ignore::DeprecationWarning",
                              os.path.realpath(__file__)], env=environment)
    while tests.poll() is None and not os.path.exists(WISH):
        time.sleep(0.1)
    if tests.poll() is None:
        subprocess.run(["ip", "link", "add", PLUGGED, "address", PLUGGED_ADDRESS, "type", "veth", "peer", "name",
                        "far7"], check=True, stdin=subprocess.DEVNULL)
    return tests.wait()


if __name__ == "__main__":
    if os.getuid() == 0:
        sys.exit(as_administrator())
    unittest.main(verbosity=2)
