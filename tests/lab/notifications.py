# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The desktop's notifications in the user's session. As a program it is their server: a line of JSON for each message;
"ID KEY" on its input is the user who chooses an action. It needs nothing of the machine's tests then."""
import json
import subprocess
import sys
import threading
import time
from collections import namedtuple

NAME = "org.freedesktop.Notifications"
Shown = namedtuple("Shown", "id title body actions seconds")


class Notifications:
    """A server and what it was asked to show. `seconds` are of time.monotonic()."""

    def __init__(self):
        self.process = subprocess.Popen(("as-user", "/usr/bin/python3", "-B", __file__), stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, text=True, bufsize=1)
        if self.process.stdout.readline() != "ready\n":
            raise AssertionError("the notification server does not start")
        self.shown = []
        self.reader = threading.Thread(target=self.read)
        self.reader.start()

    def read(self):
        for line in self.process.stdout:
            self.shown.append(Shown(*json.loads(line), time.monotonic()))

    def find(self, title):
        """The last message with that title."""
        return next((one for one in reversed(self.shown) if one.title == title), None)

    def choose(self, shown, label):
        key = next(key for key, name in zip(shown.actions[::2], shown.actions[1::2]) if name == label)
        self.process.stdin.write(f"{shown.id} {key}\n")

    def end(self):
        self.process.stdin.close()
        self.reader.join()
        self.process.wait()
        self.process.stdout.close()


def serve():
    import gi
    gi.require_version("Gio", "2.0")
    from gi.repository import Gio, GLib

    interface = Gio.DBusNodeInfo.new_for_xml(f"""<node><interface name="{NAME}">
        <method name="GetCapabilities"><arg type="as" direction="out"/></method>
        <method name="Notify"><arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
          <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
          <arg type="a{{sv}}" direction="in"/><arg type="i" direction="in"/><arg type="u" direction="out"/></method>
        <method name="CloseNotification"><arg type="u" direction="in"/></method>
        <signal name="NotificationClosed"><arg type="u"/><arg type="u"/></signal>
        <signal name="ActionInvoked"><arg type="u"/><arg type="s"/></signal>
        </interface></node>""").interfaces[0]
    path = "/" + NAME.replace(".", "/")
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    last = 0

    def emit(signal, arguments):
        bus.emit_signal(None, path, NAME, signal, arguments)

    def called(_bus, _sender, _path, _interface, method, arguments, invocation):
        nonlocal last
        if method == "GetCapabilities":
            invocation.return_value(GLib.Variant("(as)", (["body", "actions"],)))
        elif method == "Notify":
            _name, replaced, _icon, title, body, actions, _hints, _timeout = arguments.unpack()
            if not replaced:
                last += 1
            number = replaced or last
            print(json.dumps([number, title, body, actions]), flush=True)
            invocation.return_value(GLib.Variant("(u)", (number,)))
        else:
            emit("NotificationClosed", GLib.Variant("(uu)", (arguments.unpack()[0], 3)))
            invocation.return_value(None)

    loop = GLib.MainLoop()

    def read(source, _condition):
        line = source.readline()
        if not line:
            loop.quit()
            return False
        number, key = line.split()
        emit("ActionInvoked", GLib.Variant("(us)", (int(number), key)))
        return True

    bus.register_object(path, interface, called, None, None)
    Gio.bus_own_name_on_connection(bus, NAME, Gio.BusNameOwnerFlags.NONE,
                                   lambda *_: print("ready", flush=True), lambda *_: loop.quit())
    GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IO_IN | GLib.IO_HUP, read)
    loop.run()


if __name__ == "__main__":
    serve()
