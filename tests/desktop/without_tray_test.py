# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Life on a desktop without a tray, or one whose panel crashes: the program stays within reach."""
import os
import plistlib
import subprocess
import unittest

from gi.repository import Gio, GLib
from program import (DEADLINE, NAME, SANDBOX_TOOLS, TITLE, ProgramTest, accessibility, messages, start, trayclient,
                     wait_until, xdotool)

import panel

SETTINGS = os.path.expanduser("~/.config/Quillon/com.orvandel.Quillon4.plist")
LOGIN_ITEM = "com.orvandel.Quillon4Helper"
TOLD = "Quillon is not in the status bar"


def window_state():
    """What the window manager does with our window: "Normal", "Iconic" (minimized), or "" for a hidden one."""
    found = subprocess.run(["xdotool", "search", "--name", f"^{TITLE}$"], capture_output=True, text=True)
    for identifier in found.stdout.split():
        answer = subprocess.run(["xprop", "-id", identifier, "WM_STATE"], capture_output=True, text=True).stdout
        if "window state: " in answer:
            state = answer.split("window state: ")[1].split()[0]
            if state != "Withdrawn":
                return state
    return ""


def times_told():
    return sum(title == TOLD for title, _ in messages())


class WithoutTrayTest(unittest.TestCase):
    def setUp(self):
        panel.end_tray()
        if os.path.exists(SETTINGS):
            os.remove(SETTINGS)

    def run_program(self):
        program = start()
        self.addCleanup(program.wait)
        self.addCleanup(program.terminate)
        return program

    def start_tray(self):
        host = subprocess.Popen([os.path.join(SANDBOX_TOOLS, "tray-host")], stdin=subprocess.DEVNULL)
        self.addCleanup(host.wait)
        self.addCleanup(host.terminate)
        wait_until(panel.has_tray, "the tray did not come")

    def hide(self):
        field = accessibility.window(NAME, TITLE).find("entry", "Address")
        field.click()
        wait_until(lambda: field.focused, "the window did not get the keyboard")
        xdotool("key", "ctrl+w")

    def test_it_is_told_once_and_closing_ends_the_program(self):
        before = times_told()
        program = self.run_program()
        accessibility.window(NAME, TITLE)
        wait_until(lambda: times_told() > before, "nobody was told that there is no status bar")
        self.hide()
        self.assertEqual(program.wait(DEADLINE), 0)

        again = self.run_program()
        accessibility.window(NAME, TITLE)
        with open(SETTINGS, "rb") as file:
            self.assertTrue(plistlib.load(file)["statusItemAbsenceTold"])
        again.terminate()
        again.wait()
        self.assertEqual(times_told(), before + 1)

    def test_a_panel_that_goes_for_good_leaves_the_window_in_the_task_bar(self):
        self.start_tray()
        self.run_program()
        accessibility.window(NAME, TITLE)
        trayclient.only_item()
        self.hide()
        wait_until(lambda: not window_state(), "the window stayed")

        panel.end_tray()
        wait_until(lambda: window_state() == "Iconic", "the window is nowhere to be found")
        self.assertEqual(start().wait(DEADLINE), 0)
        wait_until(lambda: window_state() == "Normal", "a second start does not bring it to the front")

    def test_it_leaves_the_task_bar_when_the_panel_is_back(self):
        self.start_tray()
        program = self.run_program()
        accessibility.window(NAME, TITLE)
        trayclient.only_item()
        self.hide()
        wait_until(lambda: not window_state(), "the window stayed")
        panel.end_tray()
        wait_until(lambda: window_state() == "Iconic", "the window is nowhere to be found")
        self.start_tray()
        wait_until(lambda: not window_state(), "the window stayed in the task bar")
        trayclient.only_item().activate()
        accessibility.window(NAME, TITLE)
        self.assertIsNone(program.poll())

    def test_started_hidden_at_login_it_goes_to_the_task_bar(self):
        bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                      GLib.Variant("(su)", (LOGIN_ITEM, 4)), None, Gio.DBusCallFlags.NONE, -1, None)
        self.addCleanup(bus.call_sync, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                        "ReleaseName", GLib.Variant("(s)", (LOGIN_ITEM,)), None, Gio.DBusCallFlags.NONE, -1, None)
        os.makedirs(os.path.dirname(SETTINGS), exist_ok=True)
        with open(SETTINGS, "wb") as file:
            plistlib.dump({"hideOnLaunch": True}, file)
        self.run_program()
        wait_until(lambda: window_state() == "Iconic", "the program is nowhere to be found")


class SwitchedOffTest(ProgramTest):
    def test_a_hidden_window_goes_to_the_task_bar_when_the_status_item_is_switched_off(self):
        if not panel.has_tray():
            host = subprocess.Popen([os.path.join(SANDBOX_TOOLS, "tray-host")], stdin=subprocess.DEVNULL)
            self.addCleanup(host.wait)
            self.addCleanup(host.terminate)
        trayclient.only_item()
        self.field.click()
        wait_until(lambda: self.field.focused, "the window did not get the keyboard")
        xdotool("key", "ctrl+w")
        wait_until(lambda: not window_state(), "the window stayed")
        with open(SETTINGS, "rb") as file:
            settings = plistlib.load(file)
        with open(SETTINGS + ".new", "wb") as file:
            plistlib.dump({**settings, "showInMenu": False}, file)
        os.replace(SETTINGS + ".new", SETTINGS)
        self.addCleanup(os.remove, SETTINGS)
        wait_until(lambda: window_state() == "Iconic", "the program is nowhere to be found")


if __name__ == "__main__":
    unittest.main(verbosity=2)
