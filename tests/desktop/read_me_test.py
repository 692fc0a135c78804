# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Without a helper: the strip that says so, and what explains it."""
import unittest

from program import ProgramTest, wait_until, xdotool

HINT = "Helper hint"


class ReadMeTest(ProgramTest):
    @property
    def hint(self):
        return self.button(HINT)

    def explanation(self):
        return next(iter(self.hint.children), None)

    def open(self):
        self.hint.press()
        return wait_until(self.explanation, "the hint opened nothing")

    def expect_closed(self):
        wait_until(lambda: not self.explanation(), "it stays open")
        wait_until(lambda: self.hint.focused, "the hint has not the keyboard again")

    def test_the_hint_opens_what_explains_it(self):
        self.assertFalse(self.field.enabled)
        popover = self.open()
        text = popover.find("label", "About the helper").description
        self.assertIn("administrator", text)
        self.assertTrue(popover.find("button", "Install helper").enabled)
        xdotool("key", "Escape")
        self.expect_closed()

    def test_the_hint_closes_it_again(self):
        self.hint.click()
        wait_until(self.explanation, "the hint opened nothing")
        self.hint.click()
        self.expect_closed()

    def test_a_press_outside_closes_it(self):
        self.open()
        self.row("External address").click()
        self.expect_closed()


if __name__ == "__main__":
    unittest.main(verbosity=2)
