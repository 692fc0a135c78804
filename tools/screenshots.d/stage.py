# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The program's windows in one state after the other, on the screen of the sandbox, and pictures of them."""
import os
import subprocess

import accessibility
import panel
import pictures
from accessibility import wait_until, xdotool

HERE = os.path.dirname(os.path.realpath(__file__))
PORTAL = os.path.join(os.path.dirname(HERE), "sandbox.d", "desktop-portal")
MENU_SIZE = (360, 480)


def set_up():
    """A compositor, as a desktop has one; its ground is gray. The pointer is out of the way."""
    subprocess.Popen(["xcompmgr"], stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    width, height = pictures.screen_size()
    xdotool("mousemove", width - 1, height - 1)


class Stage:
    """The program that shows the states (tests/face)."""

    def __init__(self, build, words, environment):
        self.process = subprocess.Popen([os.path.join(build, "tests", "face", "quillon-face-scenes"), *words],
                                        env={**os.environ, **environment}, text=True,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.stdin.close()
        self.process.wait(20)

    def take(self, scene, path, alone=False):
        """All windows, or the one in use alone."""
        self.ask(scene, "shown")
        pictures.wait_for_still_screen()
        pictures.take_area(*map(int, self.ask("!" if alone else "?", "at")), path)

    def ask(self, line, answer):
        """The words that follow the answer."""
        self.process.stdin.write(line + "\n")
        self.process.stdin.flush()
        words = self.process.stdout.readline().split()
        if words[:1] != [answer]:
            raise SystemExit(f"screenshots: “{line}” was answered with {words}")
        return words[1:]


def take_tray_menu(build, scheme, path):
    """The menu of the status item in a real panel, with an address that was changed."""
    portal = subprocess.Popen([PORTAL, scheme], stdin=subprocess.DEVNULL)
    real = panel.Panel()
    program = subprocess.Popen([os.path.join(build, "src", "quillon")], stdin=subprocess.DEVNULL)
    window = accessibility.window("Quillon", "Quillon")
    field = window.find("entry", "Address")
    before = wait_until(lambda: field.text, "the window showed no address")
    window.find("button", "Randomize address").press()
    wait_until(lambda: field.text != before, "the address did not change")
    # The notification of the change would lie over the menu.
    wait_until(lambda: int(dunst("count", "displayed")), "no notification came")
    dunst("close-all")
    real.open_menu()
    pictures.wait_for_still_screen()
    width = pictures.screen_size()[0]
    pictures.take_area(width - MENU_SIZE[0], 0, *MENU_SIZE, path)
    for process in (program, real.process, portal):
        process.terminate()
        process.wait(20)


def dunst(*words):
    return subprocess.run(["dunstctl", *words], check=True, capture_output=True, stdin=subprocess.DEVNULL).stdout
