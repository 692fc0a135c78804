# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A real panel in the sandbox: xfce4-panel with its tray, in the place of tray-host; and its menus, read and clicked
as a person does.

GTK's menus are in no window's tree of accessible objects: they are found by what they announce when they open. The
name of an entry stays what it was when the entry was made, whatever is on the screen: what it says later only its
picture tells.
"""
import os
import signal
import subprocess
import tempfile

from gi.repository import Atspi, Gio, GLib

import pictures
import trayclient
from accessibility import Control, wait_until, xdotool

WATCHER = "org.kde.StatusNotifierWatcher"
HEIGHT = 32
# One tray at the right end of a panel along the upper edge.
CONFIGURATION = f"""<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="{HEIGHT}"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/><value type="int" value="2"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-2" type="string" value="systray"/>
  </property>
</channel>
"""
TRY_AGAIN = 60  # looks
MENU_ITEMS = (Atspi.Role.MENU_ITEM, Atspi.Role.CHECK_MENU_ITEM, Atspi.Role.MENU)


def ask_bus(method, name):
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    return bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
                         GLib.Variant("(s)", (name,)), None, Gio.DBusCallFlags.NONE, -1, None).unpack()[0]


def has_tray():
    return ask_bus("NameHasOwner", WATCHER)


def end_tray():
    """Ends whatever tray there is."""
    if has_tray():
        os.kill(ask_bus("GetConnectionUnixProcessID", WATCHER), signal.SIGTERM)
        wait_until(lambda: not has_tray(), "the tray did not end")


class Panel:
    """The panel, with our status item as the only one in its tray."""

    def __init__(self):
        end_tray()
        folder = os.path.expanduser("~/.config/xfce4/xfconf/xfce-perchannel-xml")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "xfce4-panel.xml"), "w") as file:
            file.write(CONFIGURATION)
        self.process = None
        self.start()

    def start(self):
        self.process = subprocess.Popen(["xfce4-panel", "--disable-wm-check"], stdin=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        wait_until(has_tray, "the panel has no tray")

    def crash(self):
        self.process.kill()
        self.process.wait()
        wait_until(lambda: not has_tray(), "the panel's tray stayed")

    def end(self):
        self.process.terminate()
        self.process.wait()
        # Its tray is a process of its own, which ends after it.
        wait_until(lambda: not has_tray(), "the panel's tray stayed")

    def open_menu(self):
        """Right-clicks the status item when the panel shows it, and gives the menu when it is open."""
        wait_until(trayclient.items, "the panel has no status item")
        pictures.wait_for_still_screen()
        announced = []
        listener = Atspi.EventListener.new(lambda event: event.detail1 and announced.append(event.source))
        listener.register("object:state-changed:showing")
        main_loop = GLib.MainContext.default()
        width = pictures.screen_size()[0]
        tries = 0

        def look():
            nonlocal tries
            # The icon may come later still; what else was clicked then is closed again.
            if tries % TRY_AGAIN == 0:
                Menu.close()
                announced.clear()
                xdotool("mousemove", str(width - HEIGHT // 2), str(HEIGHT // 2), "click", "3")
            tries += 1
            while main_loop.iteration(False):
                pass
            return outermost(announced)

        menu = wait_until(look, "the panel showed no menu")
        listener.deregister("object:state-changed:showing")
        return Menu(menu)


def outermost(announced):
    """The menu that all items which were announced are in, directly or by way of submenus."""
    for accessible in announced:
        if accessible.get_role() in MENU_ITEMS and accessible.get_application().get_name() != "Quillon":
            above = accessible.get_parent()
            while above is not None and above.get_parent() is not None and above.get_parent().get_role() in MENU_ITEMS:
                above = above.get_parent()
            if above is not None:
                return above
    return None


class Menu:
    """A menu of the panel that is open."""

    def __init__(self, accessible):
        self.control = Control(accessible)

    @property
    def items(self):
        """Its entries as they are now, without separators."""
        return [child for child in self.control.children if child.role in MENU_ITEMS and child.name]

    @property
    def titles(self):
        return [item.name for item in self.items if item.showing]

    def item(self, *titles):
        """The entry that the titles lead to, from the outermost inwards."""
        items = self.items
        for title in titles[:-1]:
            items = [child for item in items if item.name == title for child in item.children if child.name]
        found = [item for item in items if item.name == titles[-1]]
        return found[0] if found else None

    def picture(self, *titles):
        """What is on the screen where the entry is."""
        x, y, width, height = self.wait_for(*titles).extents
        # The pointer would mark the entry under it.
        xdotool("mousemove", "1", "300")
        pictures.wait_for_still_screen()
        with tempfile.NamedTemporaryFile(suffix=".ppm") as file:
            pictures.take_area(x, y, width, height, file.name)
            return file.read()

    def wait_for(self, *titles):
        return wait_until(lambda: self.item(*titles), lambda: f"{titles} is not in {self.titles}")

    def click(self, *titles):
        """Goes through the submenus with the pointer, and clicks."""
        for depth in range(1, len(titles)):
            xdotool("mousemove", *map(str, middle(self.wait_for(*titles[:depth]))))
        item = self.wait_for(*titles)
        wait_until(lambda: item.showing and item.enabled, f"{titles} cannot be clicked")
        if len(titles) > 1:
            # Straight to the right first: on its way the pointer must not choose another entry.
            x, _ = middle(item)
            xdotool("mousemove", str(x), str(middle(self.wait_for(*titles[:-1]))[1]))
        xdotool("mousemove", *map(str, middle(item)), "click", "1")

    @staticmethod
    def close():
        xdotool("key", "Escape", "Escape")


def middle(control):
    wait_until(lambda: control.extents[2] > 0, f"“{control.name}” was not on the screen")
    x, y, width, height = control.extents
    return x + width // 2, y + height // 2
