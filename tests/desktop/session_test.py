# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the session around the program decides: whether there is a tray, and which colors are wanted."""
import os
import signal
import subprocess
import sys
import unittest

from gi.repository import Gio, GLib
from program import DEADLINE, SANDBOX_TOOLS, TITLE, ProgramTest, trayclient, wait_until, xdotool

import pictures

WATCHER = "org.kde.StatusNotifierWatcher"
PORTAL = "org.freedesktop.portal.Desktop"
PORTAL_PATH = "/org/freedesktop/portal/desktop"
SETTINGS = "org.freedesktop.portal.Settings"
INTERFACE = f"""
<node><interface name="{SETTINGS}">
  <method name="Read"><arg type="s" name="group" direction="in"/><arg type="s" name="key" direction="in"/>
    <arg type="v" name="value" direction="out"/></method>
  <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface></node>
"""
APPEARANCE = ("org.freedesktop.appearance", "color-scheme")
DARK, LIGHT = 1, 2


def ask_bus(method, name):
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    return bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
                         GLib.Variant("(s)", (name,)), None, Gio.DBusCallFlags.NONE, -1, None).unpack()[0]


class LateTrayHostTest(ProgramTest):
    """At log-in programs may start before the panel does."""

    def setUp(self):
        if ask_bus("NameHasOwner", WATCHER):
            os.kill(ask_bus("GetConnectionUnixProcessID", WATCHER), signal.SIGTERM)
            wait_until(lambda: not ask_bus("NameHasOwner", WATCHER), "the tray host stayed")
        super().setUp()

    def start_tray_host(self):
        host = subprocess.Popen([os.path.join(SANDBOX_TOOLS, "tray-host")], stdin=subprocess.DEVNULL)
        self.addCleanup(host.wait)
        self.addCleanup(host.terminate)
        wait_until(lambda: ask_bus("NameHasOwner", WATCHER), "the tray host did not come")
        return host

    def test_the_status_item_comes_with_the_tray_host(self):
        self.start_tray_host()
        self.assertIn("Quit Quillon", trayclient.only_item().menu_text())

    def test_the_status_item_comes_back_with_the_tray_host(self):
        host = self.start_tray_host()
        trayclient.only_item()
        host.terminate()
        wait_until(lambda: not ask_bus("NameHasOwner", WATCHER), "the tray host stayed")
        self.start_tray_host()
        trayclient.only_item().click("Quit Quillon")
        self.assertEqual(self.program.wait(DEADLINE), 0)

    def test_without_a_tray_host_it_ends_when_it_is_told_to(self):
        self.program.terminate()
        self.assertEqual(self.program.wait(DEADLINE), 0)

    def test_without_a_tray_host_closing_ends_the_program(self):
        self.field.click()
        wait_until(lambda: self.field.focused, "the window did not get the keyboard")
        xdotool("key", "ctrl+w")
        self.assertEqual(self.program.wait(DEADLINE), 0)


def portal():
    """A desktop that prefers dark, and light from the moment at which it is told so."""
    node = Gio.DBusNodeInfo.new_for_xml(INTERFACE)
    preferred = [DARK]

    def called(_bus, _sender, _path, _interface, _method, arguments, invocation):
        if arguments.unpack() == APPEARANCE:
            # The answer is wrapped twice, as the real one is.
            invocation.return_value(GLib.Variant("(v)", (GLib.Variant("v", GLib.Variant("u", preferred[0])),)))
        else:
            invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "no such setting")

    def connected(bus, _name):
        bus.register_object(PORTAL_PATH, node.interfaces[0], called, None, None)

        def to_light():
            preferred[0] = LIGHT
            bus.emit_signal(None, PORTAL_PATH, SETTINGS, "SettingChanged",
                            GLib.Variant("(ssv)", (*APPEARANCE, GLib.Variant("u", LIGHT))))
            return GLib.SOURCE_CONTINUE
        GLib.unix_signal_add(GLib.PRIORITY_DEFAULT, signal.SIGUSR1, to_light)

    Gio.bus_own_name(Gio.BusType.SESSION, PORTAL, Gio.BusNameOwnerFlags.NONE, connected, None, None)
    GLib.MainLoop().run()


def window_brightness():
    """0 (black) to 1 (white): what stands in the corner of the window, where there is nothing but ground."""
    window = pictures.find_window(TITLE)
    answer = subprocess.run(["import", "-window", window, "-crop", "8x8+4+4", "-colorspace", "Gray",
                             "-format", "%[fx:mean]", "info:"], check=True, capture_output=True)
    return float(answer.stdout)


class ColorSchemeTest(ProgramTest):
    def setUp(self):
        self.portal = subprocess.Popen([sys.executable, "-B", os.path.realpath(__file__), "portal"],
                                       stdin=subprocess.DEVNULL)
        self.addCleanup(self.portal.wait)
        self.addCleanup(self.portal.terminate)
        wait_until(lambda: ask_bus("NameHasOwner", PORTAL), "the portal did not come")
        super().setUp()

    def test_the_window_follows_the_desktop(self):
        wait_until(lambda: window_brightness() < 0.3, lambda: f"still as bright as {window_brightness()}")
        self.portal.send_signal(signal.SIGUSR1)
        wait_until(lambda: window_brightness() > 0.7, lambda: f"still as dark as {window_brightness()}")


if __name__ == "__main__":
    if sys.argv[1:] == ["portal"]:
        portal()
    else:
        unittest.main(verbosity=2)
