# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The window of the preferences, and the file that its settings are in, as another program sees it."""
import os
import plistlib

from program import NAME, ProgramTest, accessibility, forget_everything, wait_until

SETTINGS = os.path.expanduser("~/.config/Quillon/com.orvandel.Quillon4.plist")


def stored():
    """What the file holds; nothing while there is none."""
    if not os.path.exists(SETTINGS):
        return {}
    with open(SETTINGS, "rb") as file:
        return plistlib.load(file)


def write_settings(**values):
    """As another program writes them: the file is replaced whole. None takes a value out."""
    os.makedirs(os.path.dirname(SETTINGS), exist_ok=True)
    settings = {key: value for key, value in {**stored(), **values}.items() if value is not None}
    with open(SETTINGS + ".new", "wb") as file:
        plistlib.dump(settings, file)
    os.replace(SETTINGS + ".new", SETTINGS)


def wait_for_stored(key, value):
    wait_until(lambda: stored().get(key) == value, lambda: f"the file holds {stored().get(key)!r} for {key}")


class PreferencesTest(ProgramTest):
    """Opens the preferences on a pane, by the button of the main window."""

    PANE = "General"

    def setUp(self):
        forget_everything()
        super().setUp()
        self.open_preferences()

    def open_preferences(self):
        self.button("Preferences").press()
        wait_until(lambda: accessibility.has_window(NAME, "General"), "the preferences did not come")
        self.preferences = accessibility.window(NAME, "General")
        if self.PANE != "General":
            self.go_to(self.PANE)

    def go_to(self, pane):
        self.preferences.find("page tab", pane).press()
        self.preferences = accessibility.window(NAME, pane)

    def box(self, name):
        return self.preferences.find("check box", name)

    def expect_checked(self, name, checked):
        wait_until(lambda: self.box(name).checked == checked, f"“{name}” is not what it should be")

    def toggle(self, name):
        self.box(name).press()

    def has_label(self, text):
        return self.preferences.has("label", text)

    def expect_label(self, text):
        wait_until(lambda: self.has_label(text), lambda: f"nothing says “{text}”; there is {self.preferences.overview()}")

    def expect_no_label(self, text):
        wait_until(lambda: not self.has_label(text), f"still says “{text}”")
