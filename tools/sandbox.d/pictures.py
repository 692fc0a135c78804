# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Pictures of the virtual screen."""
import re
import subprocess
import time

from accessibility import wait_until


def _run(*command):
    return subprocess.run(command, check=True, capture_output=True, stdin=subprocess.DEVNULL).stdout


def take_screen(path):
    _run("import", "-window", "root", path)


def frame_extents(window):
    """left, right, top, bottom: what the window manager draws around the window."""
    answer = _run("xprop", "-id", window, "_NET_FRAME_EXTENTS").decode()
    numbers = [int(number) for number in re.findall(r"\d+", answer.partition("=")[2])]
    return numbers if len(numbers) == 4 else [0, 0, 0, 0]


def geometry(window):
    """x, y, width, height on the screen, without the frame."""
    answer = _run("xwininfo", "-id", window).decode()
    return [int(re.search(rf"{name}: +(-?\d+)", answer)[1])
            for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]


def find_window(title):
    """The X window with that title; raises when none is on the screen within the deadline."""
    def look():
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{re.escape(title)}$"],
                               capture_output=True, stdin=subprocess.DEVNULL)
        return found.stdout.decode().split()
    return wait_until(look, f"no window “{title}” on the screen")[-1]


def take_window(title, path):
    """The window with its frame, cut out of the screen, as a person sees it."""
    window = find_window(title)
    x, y, width, height = geometry(window)
    left, right, top, bottom = frame_extents(window)
    take_area(x - left, y - top, width + left + right, height + top + bottom, path)


def take_area(x, y, width, height, path):
    _run("import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage", "-strip", path)


def read_area(x, y, width, height):
    """What is on the screen there, to be compared."""
    return _run("import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage", "-depth", "8", "rgb:-")


def wait_for_still_screen(seconds=0.4, deadline=10.0):
    """Until nothing on the screen has moved for a while: animations are over, everything is painted.

    A blinking cursor never lets it be quite still, so at the deadline the picture is taken anyway.
    """
    end = time.monotonic() + deadline
    last, since = None, time.monotonic()
    while time.monotonic() < end:
        now = _run("import", "-window", "root", "-depth", "8", "rgb:-")
        if now != last:
            last, since = now, time.monotonic()
        elif time.monotonic() - since >= seconds:
            return
        time.sleep(0.05)


def screen_size():
    """Width and height in pixels."""
    return tuple(int(number) for number in _run("xdotool", "getdisplaygeometry").split())
