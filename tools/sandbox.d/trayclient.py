# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The other half of a tray: reads status items and their exported menus over the bus, and clicks them."""
from dataclasses import dataclass, field

from gi.repository import Gio, GLib

from accessibility import wait_until

WATCHER = ("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher", "org.kde.StatusNotifierWatcher")
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
TIMEOUT_MS = 120_000


@dataclass
class Entry:
    """One entry of a menu as it was when read. Labels are without their mnemonic marks."""
    number: int
    label: str = ""
    enabled: bool = True
    visible: bool = True
    separator: bool = False
    checked: bool = False
    entries: list = field(default_factory=list)

    def lines(self, indent=0):
        for entry in self.entries:
            if entry.visible:
                marks = ("" if entry.enabled else " (off)") + (" (checked)" if entry.checked else "")
                yield "  " * indent + ("--" if entry.separator else entry.label + marks)
                yield from entry.lines(indent + 1)


def _without_mnemonic(label):
    return label.replace("__", "\0").replace("_", "").replace("\0", "_")


def _entry(layout):
    number, properties, children = layout
    return Entry(number, _without_mnemonic(properties.get("label", "")), properties.get("enabled", True),
                 properties.get("visible", True), properties.get("type") == "separator",
                 properties.get("toggle-state", 0) == 1, [_entry(child) for child in children])


class StatusItem:
    def __init__(self, bus, name):
        self._bus = bus
        self._owner, slash, path = name.partition("/")
        self._path = slash + path

    def _call(self, path, interface, method, arguments, owner=None):
        return self._bus.call_sync(owner or self._owner, path, interface, method, arguments, None,
                                   Gio.DBusCallFlags.NONE, TIMEOUT_MS, None).unpack()

    @property
    def owner(self):
        return self._owner

    def value_of(self, name):
        return self._call(self._path, "org.freedesktop.DBus.Properties", "Get",
                          GLib.Variant("(ss)", (ITEM, name)))[0]

    @property
    def title(self):
        return self.value_of("Title")

    def activate(self):
        """A plain click on the item."""
        self._call(self._path, ITEM, "Activate", GLib.Variant("(ii)", (0, 0)))

    @property
    def menu_path(self):
        return self.value_of("Menu")

    def menu(self):
        """The menu as a host shows it: announced first, then read whole."""
        path = self.menu_path
        self._call(path, MENU, "AboutToShow", GLib.Variant("(i)", (0,)))
        layout = self._call(path, MENU, "GetLayout", GLib.Variant("(iias)", (0, -1, [])))[1]
        return _entry(layout)

    def menu_text(self):
        return "\n".join(self.menu().lines())

    def click(self, *labels):
        """Clicks the entry that the labels lead to, from the outermost inwards, once it is there and not off."""
        def look():
            entry = self.menu()
            for label in labels:
                found = [child for child in entry.entries if child.visible and child.label == label]
                if not found:
                    return None
                entry = found[0]
            return entry.enabled and entry
        entry = wait_until(look, lambda: f"nothing to click at {labels} came to the menu; there is\n{self.menu_text()}")
        self._call(self.menu_path, MENU, "Event",
                   GLib.Variant("(isvu)", (entry.number, "clicked", GLib.Variant("i", 0), 0)))


def items():
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    answer = bus.call_sync(*WATCHER[:2], "org.freedesktop.DBus.Properties", "Get",
                           GLib.Variant("(ss)", (WATCHER[2], "RegisteredStatusNotifierItems")), None,
                           Gio.DBusCallFlags.NONE, TIMEOUT_MS, None)
    return [StatusItem(bus, name) for name in answer.unpack()[0]]


def only_item():
    """The one status item there is, when there is one."""
    return wait_until(items, "no status item came")[0]
