# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A countdown is paused and resumed in one place, and everywhere else follows: window, its keys, the status item's
menu. What a real panel shows of it is in panel_test."""
import unittest

from program import ProgramTest, forget_everything, trayclient, wait_until, write_rule, xdotool

COUNTDOWN = "...changing MAC Address in "
PAUSED = " (paused)"
INDENT = "    "


class TimersTest(ProgramTest):
    def setUp(self):
        forget_everything()
        write_rule("every-minute", "enp1s0")
        super().setUp()
        self.assertEqual(self.selector.name, "enp1s0")
        self.item = trayclient.only_item()
        self.expect_running()

    def label(self):
        return next((label.name for label in self.window.all("label") if label.name.startswith(COUNTDOWN)), "")

    def entries(self):
        """Of the menu: what it says of the countdown."""
        titles = [entry.label for entry in self.item.menu().entries if entry.visible]
        return [title for title in titles if COUNTDOWN in title or "Timer" in title]

    def button_states(self):
        return [self.button(name).enabled for name in ("Pause", "Resume")]

    def expect(self, buttons, command, is_paused):
        """Both views; for the menu a tick may have to pass."""
        wait_until(lambda: self.button_states() == buttons, lambda: f"the buttons are {self.button_states()}")
        wait_until(lambda: self.label() and self.label().endswith(PAUSED) == is_paused,
                   lambda: f"the window says “{self.label()}”")

        def menu_follows():
            told = self.entries()
            return (told[-1:] == [INDENT + command]
                    and all(title.endswith(PAUSED) == is_paused for title in told[:-1]))
        wait_until(menu_follows, lambda: f"the menu says {self.entries()}")

    def expect_running(self):
        self.expect([True, False], "Pause Timer", False)
        before = self.label()
        wait_until(lambda: self.label() not in ("", before), "the countdown stands still")

    def expect_paused(self):
        self.expect([False, True], "Resume Timer", True)

    def test_the_status_items_menu(self):
        self.item.click(INDENT + "Pause Timer")
        self.expect_paused()
        self.item.click(INDENT + "Resume Timer")
        self.expect_running()

    def test_the_windows_buttons(self):
        self.button("Pause").press()
        self.expect_paused()
        self.button("Resume").press()
        self.expect_running()

    def test_the_windows_key(self):
        xdotool("key", "ctrl+t")
        self.expect_paused()
        xdotool("key", "ctrl+t")
        self.expect_running()

    def test_what_one_place_pauses_another_resumes(self):
        self.item.click(INDENT + "Pause Timer")
        self.expect_paused()
        xdotool("key", "ctrl+t")
        self.expect_running()
        self.button("Pause").press()
        self.expect_paused()
        self.item.click(INDENT + "Resume Timer")
        self.expect_running()


if __name__ == "__main__":
    unittest.main(verbosity=2)
