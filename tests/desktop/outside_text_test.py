# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Names that somebody else gave look like HTML, like mnemonics, like signs: they are shown as they are, in the
window, its tool tips, the status item's menu and the user's messages, and nothing that they name is opened.

Runs as root, who names an interface; the program and its user are ordinary.
"""
import errno
import html
import os
import re
import shutil
import subprocess
import sys
import time
import unittest

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402
from program import NAME, ProgramTest, accessibility, messages, trayclient, wait_until, xdotool  # noqa: E402
from webserver import REGISTRY, Web  # noqa: E402

USER = "quillon"
INTERFACE = "en<i>&a&b_c"
ADDRESS = "00:00:5e:00:53:07"
# Whoever opens it to read waits for somebody who writes, for ever.
PIPE = "/tmp/pipe"
MAKER = f'<img src="{PIPE}">&Co_<b>'
CONFIGURATION = os.path.expanduser("~/<b>&amp;_x")
SETTINGS = os.path.join(CONFIGURATION, "Quillon", "com.orvandel.Quillon4.plist")


def tool_tips():
    """What the tool tips of the program say, as a person reads it."""
    shown = [control.text for entry in accessibility.applications(NAME) for control in entry.children
             if control.role == Atspi.Role.TOOL_TIP and control.showing]
    return [html.unescape(re.sub("^<p style='white-space:[a-z-]+'>|</p>$", "", text)) for text in shown]


class OutsideTextTest(ProgramTest):
    def setUp(self):
        shutil.rmtree(os.path.expanduser("~/.local/share/Quillon"), ignore_errors=True)
        os.makedirs(os.path.dirname(SETTINGS))
        with open(SETTINGS, "w") as file:
            file.write("<plist><dict><key>lowerCaseHEX</key></dict>")
        os.environ["XDG_CONFIG_HOME"] = CONFIGURATION
        os.mkfifo(PIPE)
        self.web = Web()
        self.addCleanup(self.web.end)
        super().setUp()

    def expect_tool_tip(self, control, text):
        x, y, width, height = control.extents
        moved = 0

        def hover():
            # A tool tip comes when the pointer rests; from time to time it comes anew.
            nonlocal moved
            if time.monotonic() > moved + 5:
                moved = time.monotonic()
                xdotool("mousemove", x + width // 3, y + height // 2 + 2, "mousemove", x + width // 3, y + height // 2)
            return text in tool_tips()
        wait_until(hover, lambda: f"the tool tips are {tool_tips()}")

    def expect_pipe_alone(self):
        # It can be opened to write only while somebody has it open to read, or waits in doing so.
        with self.assertRaises(OSError) as refused:
            os.close(os.open(PIPE, os.O_WRONLY | os.O_NONBLOCK))
        self.assertEqual(refused.exception.errno, errno.ENXIO)

    def choose_maker(self):
        quoted = MAKER.replace('"', '""')
        self.web.serve({REGISTRY: {"body": "Registry,Assignment,Organization Name,Organization Address\r\n"
                                           f'MA-L,0000FE,"{quoted}","1 Long Road"\r\n'}})
        self.button("Preferences").press()
        accessibility.window(NAME, "General").find("page tab", "Vendor Data").press()
        pane = accessibility.window(NAME, "Vendor Data")
        pane.find("button", "Update database").press()
        wait_until(lambda: pane.has("label", "1 Vendor Identifiers"), lambda: f"there is {pane.overview()}")
        pane.find("button", "Update database")
        xdotool("key", "ctrl+w")
        wait_until(lambda: not accessibility.has_window(NAME, "Vendor Data"), "the preferences stayed")
        field = self.window.find("entry", "Vendor of random addresses")
        field.type("<img")
        row = self.window.find("list item", f"{MAKER} (0000FE)")
        self.expect_tool_tip(row, f"{MAKER} (0000FE)")
        xdotool("key", "Down", "Return")
        wait_until(lambda: field.text == f"{MAKER} (0000FE)", lambda: f"{field.text} was chosen")
        self.expect_tool_tip(field, f"{MAKER} (0000FE)")

    def test_they_are_shown_as_they_are(self):
        title, text = wait_until(messages, "nobody told of the damaged settings")[0]
        self.assertEqual(title, "Settings were damaged")
        self.assertIn(SETTINGS + ".damaged-", html.unescape(text))

        self.selector.choose(INTERFACE)
        self.expect_shown(ADDRESS.upper())
        labels = [entry.label for entry in trayclient.only_item().menu().entries]
        self.assertIn("Ethernet · " + INTERFACE, labels)

        self.choose_maker()
        self.expect_pipe_alone()


def as_administrator():
    """Names an interface, and has this script's test run by the ordinary user."""
    subprocess.run(["ip", "link", "add", INTERFACE, "address", ADDRESS, "type", "veth", "peer", "name", "far7"],
                   check=True, stdin=subprocess.DEVNULL)
    environment = {**os.environ, "HOME": os.path.expanduser("~" + USER), "USER": USER, "LOGNAME": USER}
    return subprocess.run(["runuser", "-u", USER, "--", sys.executable, "-B", os.path.realpath(__file__)],
                          env=environment).returncode


if __name__ == "__main__":
    if os.getuid() == 0:
        sys.exit(as_administrator())
    unittest.main(verbosity=2)
