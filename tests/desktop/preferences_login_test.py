# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Start at login: the entry in the autostart folder, and what a desktop starts by it."""
import os
import shutil
import subprocess
import tempfile
import unittest

from gi.repository import Gio, GLib
from preferences import PreferencesTest, wait_for_stored, write_settings
from program import DEADLINE, NAME, PROGRAM, TITLE, accessibility, start, wait_until

FOLDER = os.path.expanduser("~/.config/autostart")
ENTRY = os.path.join(FOLDER, "com.orvandel.Quillon4Helper.desktop")
HELPER = os.path.join(os.environ["QUILLON_BUILD"], "login", "QuillonHelper")
BUS_NAME = "com.orvandel.Quillon4Helper"
START = "Start Quillon at login"
SWITCHED_OFF = "The desktop has Quillon switched off in its own list. Switch this off and on again to have it started."


def has_login_item():
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    return bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "NameHasOwner",
                         GLib.Variant("(s)", (BUS_NAME,)), None, Gio.DBusCallFlags.NONE, -1, None).unpack()[0]


def write_entry(text):
    os.makedirs(FOLDER, exist_ok=True)
    with open(ENTRY + ".new", "w") as file:
        file.write(text)
    os.replace(ENTRY + ".new", ENTRY)


def read_entry():
    with open(ENTRY) as file:
        return file.read()


class LoginFixture(PreferencesTest):
    def setUp(self):
        if os.path.exists(ENTRY):
            os.remove(ENTRY)
        super().setUp()

    def switch_on(self):
        self.toggle(START)
        wait_until(lambda: os.path.exists(ENTRY), "there is no entry")
        wait_for_stored("loginStart", True)


class LoginTest(LoginFixture):
    def test_the_entry_comes_and_goes(self):
        self.switch_on()
        entry = Gio.DesktopAppInfo.new_from_filename(ENTRY)
        self.assertIsNotNone(entry, "the desktop does not take it for an entry")
        self.assertEqual(entry.get_executable(), HELPER)
        self.assertEqual(os.listdir(FOLDER), [os.path.basename(ENTRY)])
        self.toggle(START)
        wait_until(lambda: not os.path.exists(ENTRY), "the entry stayed")
        wait_for_stored("loginStart", False)

    def test_another_programs_change_of_the_setting_acts_as_well(self):
        write_settings(loginStart=True)
        wait_until(lambda: os.path.exists(ENTRY), "there is no entry")
        self.expect_checked(START, True)
        write_settings(loginStart=False)
        wait_until(lambda: not os.path.exists(ENTRY), "the entry stayed")

    def test_the_entry_starts_the_program_which_ends_the_login_item(self):
        self.switch_on()
        self.program.terminate()
        self.assertEqual(self.program.wait(DEADLINE), 0)
        wait_until(lambda: not accessibility.has_window(NAME, TITLE), "the window stayed")
        entry = Gio.DesktopAppInfo.new_from_filename(ENTRY)
        started = []
        flags = GLib.SpawnFlags.DO_NOT_REAP_CHILD
        entry.launch_uris_as_manager([], None, flags, None, None, lambda _entry, pid, _data: started.append(pid), None)
        self.assertEqual(len(started), 1)
        try:
            accessibility.window(NAME, TITLE)
            # Told by the program that it is not needed any more, it ends by itself, in order.
            _, status = os.waitpid(started[0], 0)
            self.assertEqual(status, 0)
            wait_until(lambda: not has_login_item(), "the login item stayed on the bus")
            self.assertTrue(accessibility.has_window(NAME, TITLE), "the program went with it")
        finally:
            self.end_started()

    def end_started(self):
        """The program that the login item started: the one that has its name on the bus."""
        bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        pid = bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                            "GetConnectionUnixProcessID", GLib.Variant("(s)", ("com.orvandel.Quillon4",)), None,
                            Gio.DBusCallFlags.NONE, -1, None).unpack()[0]
        os.kill(pid, 15)
        wait_until(lambda: not os.path.exists(f"/proc/{pid}"), "the program did not end")

    def test_what_the_desktop_switches_off_is_respected_and_shown(self):
        self.switch_on()
        off = read_entry().replace("X-GNOME-Autostart-enabled=true", "X-GNOME-Autostart-enabled=false")
        write_entry(off)
        self.go_to("About")
        self.go_to("General")
        self.expect_label(SWITCHED_OFF)
        self.assertEqual(read_entry(), off)
        self.toggle(START)
        wait_until(lambda: not os.path.exists(ENTRY), "the entry stayed")
        self.toggle(START)
        wait_until(lambda: os.path.exists(ENTRY), "there is no entry")
        self.expect_no_label(SWITCHED_OFF)

    def test_an_entry_of_the_users_own_is_left_alone(self):
        own = "[Desktop Entry]\nType=Application\nName=Mine\nExec=sh -c 'sleep 9; quillon'\n"
        write_entry(own)
        self.toggle(START)
        wait_for_stored("loginStart", True)
        self.expect_label("There is an autostart entry of your own: it is left as it is.")
        self.toggle(START)
        wait_for_stored("loginStart", False)
        self.assertEqual(read_entry(), own)

    def test_it_says_that_nobody_knows_of_this_desktop(self):
        # The sandbox has a window manager that says of itself nothing that is known.
        self.switch_on()
        self.expect_label("Whether this desktop starts programs at login cannot be told from here.")


class StartedForAllTest(LoginFixture):
    """A package, or an administrator, has the program started for all users."""

    def start_program(self):
        folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, folder)
        os.makedirs(os.path.join(folder, "autostart"))
        with open(os.path.join(folder, "autostart", os.path.basename(ENTRY)), "w") as file:
            file.write(f"[Desktop Entry]\nType=Application\nName=Quillon\nExec={HELPER}\n")
        return start(XDG_CONFIG_DIRS=folder, XDG_CURRENT_DESKTOP="GNOME")

    def test_it_is_told_and_can_be_switched_off(self):
        self.expect_label("There still is an autostart entry. Switch this on and off again to have it taken out.")
        self.toggle(START)
        wait_for_stored("loginStart", True)
        self.expect_no_label("There still is an autostart entry. Switch this on and off again to have it taken out.")
        self.assertFalse(os.path.exists(ENTRY), "there is one already")
        self.toggle(START)
        wait_until(lambda: os.path.exists(ENTRY), "nothing hides the one for all users")
        entry = Gio.DesktopAppInfo.new_from_filename(ENTRY)
        self.assertTrue(entry is None or entry.get_is_hidden())
        self.expect_no_label("There still is an autostart entry. Switch this on and off again to have it taken out.")
        self.toggle(START)
        wait_until(lambda: not os.path.exists(ENTRY), "it is still hidden")

    def test_an_entry_for_other_desktops_is_told(self):
        write_entry(f"[Desktop Entry]\nType=Application\nName=Quillon\nExec={HELPER}\nOnlyShowIn=KDE;\n")
        write_settings(loginStart=True)
        self.expect_label("The autostart entry is for other desktops only. "
                          "Switch this off and on again to have it act here.")


class MissingProgramTest(LoginFixture):
    """The program alone, without the one that the desktop would start."""

    def start_program(self):
        folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, folder)
        return subprocess.Popen([shutil.copy(PROGRAM, folder)], stdin=subprocess.DEVNULL)

    def test_it_says_so_and_the_setting_has_no_effect(self):
        self.expect_label("The program that starts Quillon at login is not installed.")
        self.assertFalse(self.box(START).enabled)
        write_settings(loginStart=True)
        self.expect_checked(START, True)
        # Something that comes later is seen.
        self.toggle("Do not open the window at login")
        wait_for_stored("hideOnLaunch", True)
        self.assertFalse(os.path.exists(ENTRY))


class IgnoringDesktopTest(LoginFixture):
    """A plain window manager, as it names itself."""

    def start_program(self):
        return start(XDG_CURRENT_DESKTOP="sway")

    def test_it_says_that_nothing_is_started(self):
        self.switch_on()
        self.expect_label("This desktop does not start programs at login by itself.")


if __name__ == "__main__":
    unittest.main(verbosity=2)
