# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Opening the menus of the program with many interfaces."""
import json
import os
import subprocess
import sys
import time

from gi.repository import Gio, GLib

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "tools", "sandbox.d"))
import trayclient  # noqa: E402
from workers import USER  # noqa: E402

INTERFACES = 50
GOAL = 50  # milliseconds


def opened_by_panel(bus, owner, path):
    """What a panel does before it can show the menu: announces it, and reads it whole."""
    begin = time.monotonic()
    for method, arguments in (("AboutToShow", GLib.Variant("(i)", (0,))),
                              ("GetLayout", GLib.Variant("(iias)", (0, -1, [])))):
        bus.call_sync(owner, path, trayclient.MENU, method, arguments, None, Gio.DBusCallFlags.NONE, -1, None)
    return (time.monotonic() - begin) * 1000


def as_panel(rounds):
    """The number of entries, and how long each opening took."""
    item = trayclient.only_item()
    # The start has more to do than to show the window.
    time.sleep(3)
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    entries = [entry for entry in item.menu().entries if entry.visible]
    return len(entries), [opened_by_panel(bus, item.owner, item.menu_path) for _ in range(rounds)]


def measure(report, starter, program, rounds):
    subprocess.run(["ip", "-batch", "-"], text=True, check=True,
                   input="".join(f"link add br{number} type bridge\n" for number in range(100, 100 + INTERFACES)))
    starter.ask("start", program)
    # The session's bus is its user's.
    answer = subprocess.run([sys.executable, __file__, str(rounds)], user=USER, group=USER, extra_groups=[],
                            env={**os.environ, "HOME": f"/home/{USER}"}, check=True, stdout=subprocess.PIPE)
    count, panel = json.loads(answer.stdout)
    window = []
    for _ in range(rounds):
        window += starter.times("menu", "xdotool", "key", "F10")
        subprocess.run(["xdotool", "key", "Escape"], check=True)
        time.sleep(0.2)
    starter.ask("end")
    report.section(f"Opening a menu, with {INTERFACES} interfaces more than before",
                   f"{rounds} rounds; {count} entries in the status menu")
    in_panel = report.times("status menu: announced and read by a panel", panel)
    in_window = report.times("File menu: xdotool's start, F10, on the display", window)
    report.goal(f"status menu / {GOAL} ms", in_panel / GOAL, 1)
    report.goal(f"File menu / {GOAL} ms", in_window / GOAL, 1)


if __name__ == "__main__":
    print(json.dumps(as_panel(int(sys.argv[1]))))
