# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Windows that close and come back, a second start, quitting, and the task bar's entry."""
import os
import plistlib
import subprocess
import unittest

from gi.repository import Gio, GLib
from program import (DEADLINE, NAME, PROGRAM, TITLE, ProgramTest, accessibility, start, trayclient, wait_until,
                     xdotool)

import pictures

SETTINGS = os.path.expanduser("~/.config/Quillon/com.orvandel.Quillon4.plist")
APPLICATION = """
<node><interface name="org.freedesktop.Application">
  <method name="Activate"><arg type="a{sv}" name="platform_data" direction="in"/></method>
</interface></node>
"""


def change_setting(key, value):
    """As another program changes it: the file is replaced whole."""
    with open(SETTINGS, "rb") as file:
        settings = plistlib.load(file)
    settings[key] = value
    with open(SETTINGS + ".new", "wb") as file:
        plistlib.dump(settings, file)
    os.replace(SETTINGS + ".new", SETTINGS)


def window_states():
    """The states of our window that the window manager knows."""
    identifier = subprocess.run(["xdotool", "search", "--name", f"^{TITLE}$"], check=True,
                                capture_output=True, text=True).stdout.split()[-1]
    answer = subprocess.run(["xprop", "-id", identifier, "_NET_WM_STATE"], check=True,
                            capture_output=True, text=True)
    return answer.stdout


class LifecycleTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.item = trayclient.only_item()

    def press_keys(self, keys):
        self.field.click()
        wait_until(lambda: self.field.focused, "the window did not get the keyboard")
        xdotool("key", keys)

    def hide(self):
        self.press_keys("ctrl+w")
        wait_until(lambda: not accessibility.has_window(NAME, TITLE), "the window stayed")
        self.assertIsNone(self.program.poll(), "the status item is there: closing does not end it")

    def test_a_closed_window_comes_back_from_the_status_item(self):
        self.hide()
        self.item.click("Open Quillon")
        accessibility.window(NAME, TITLE)

    def test_a_click_on_the_status_item_opens_the_window(self):
        self.hide()
        self.item.activate()
        accessibility.window(NAME, TITLE)

    def open_file_menu(self):
        # A menu of a button is in no tree of accessible objects: what its keys do is what is seen of it.
        self.press_keys("F10")
        pictures.wait_for_still_screen()

    def go_up_in_menu(self, count):
        """From no entry to one counted from the end, before the Edit menu; each interface has three."""
        xdotool("key", "Up", *(["Up"] * count))
        xdotool("key", "Return")

    def test_the_file_menu_closes_the_window(self):
        self.open_file_menu()
        self.go_up_in_menu(3 * len(self.addresses) + 1)
        wait_until(lambda: not accessibility.has_window(NAME, TITLE), "the window stayed")
        self.assertIsNone(self.program.poll())

    def test_an_interface_is_selected_in_the_file_menu_by_keyboard(self):
        titles = [entry.label for entry in self.item.menu().entries if entry.visible and entry.enabled]
        devices = [title.split(" · ")[1] for title in titles if " · " in title and not title.startswith(" ")]
        other = next(name for name in devices if name != self.selector.name)
        self.open_file_menu()
        self.go_up_in_menu(3 * (len(devices) - devices.index(other)))
        self.expect_shown(self.addresses[other])

    def test_a_second_start_brings_the_first_to_the_front(self):
        self.hide()
        self.assertEqual(start().wait(DEADLINE), 0)
        accessibility.window(NAME, TITLE)
        self.assertIsNone(self.program.poll())
        self.assertEqual(len(trayclient.items()), 1)

    def test_the_quit_command_ends_the_program(self):
        self.press_keys("ctrl+q")
        self.assertEqual(self.program.wait(DEADLINE), 0)

    def test_without_status_item_closing_ends_the_program(self):
        self.addCleanup(change_setting, "showInMenu", True)
        change_setting("showInMenu", False)
        wait_until(lambda: not trayclient.items(), "the status item stayed")
        self.press_keys("ctrl+w")
        self.assertEqual(self.program.wait(DEADLINE), 0)

    def test_the_task_bar_entry_follows_the_setting(self):
        self.addCleanup(change_setting, "hideDock", False)
        self.assertNotIn("_NET_WM_STATE_SKIP_TASKBAR", window_states())
        change_setting("hideDock", True)
        wait_until(lambda: "_NET_WM_STATE_SKIP_TASKBAR" in window_states(), "the entry stayed")
        self.hide()
        self.item.activate()
        accessibility.window(NAME, TITLE)
        wait_until(lambda: "_NET_WM_STATE_SKIP_TASKBAR" in window_states(), "the entry came back")
        self.press_keys("ctrl+q")
        wait_until(lambda: not accessibility.has_window(NAME, TITLE), "the window stayed")
        self.assertIsNone(self.program.poll(), "without Dock icon the quit command only hides")
        change_setting("hideDock", False)
        self.item.activate()
        accessibility.window(NAME, TITLE)
        wait_until(lambda: "_NET_WM_STATE_SKIP_TASKBAR" not in window_states(), "no entry came")


def program_in_use(activations):
    """Makes us the program as far as the session knows, for as long as the bus that it returns is kept, and
    notes how we are activated."""
    node = Gio.DBusNodeInfo.new_for_xml(APPLICATION)
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)

    def called(_bus, _sender, _path, _interface, _method, arguments, invocation):
        activations.append(arguments.unpack()[0])
        invocation.return_value(None)

    bus.register_object("/com/orvandel/Quillon4", node.interfaces[0], called, None, None)
    bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                  GLib.Variant("(su)", ("com.orvandel.Quillon4", 4)), None, Gio.DBusCallFlags.NONE, -1, None)
    return bus


class SecondStartTest(unittest.TestCase):
    def test_it_hands_on_what_the_desktop_gave_it(self):
        activations = []
        bus = program_in_use(activations)
        self.addCleanup(bus.close_sync)
        given = {"DESKTOP_STARTUP_ID": "panel-1_TIME4711", "XDG_ACTIVATION_TOKEN": "token-17"}
        second = subprocess.Popen([PROGRAM], stdin=subprocess.DEVNULL, env={**os.environ, **given})
        self.addCleanup(second.wait)
        self.addCleanup(second.kill)

        def ended():
            while GLib.MainContext.default().iteration(False):
                pass
            return second.poll() is not None
        wait_until(ended, "the second start stayed")
        self.assertEqual(second.returncode, 0)
        self.assertEqual(activations, [{"desktop-startup-id": "panel-1_TIME4711",
                                        "activation-token": "token-17"}])


if __name__ == "__main__":
    unittest.main(verbosity=2)
