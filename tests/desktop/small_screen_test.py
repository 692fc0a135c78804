# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The window on low screens: with everything in it, and when something is added later, it stays on the screen."""
import os
import subprocess
import unittest

from program import DEADLINE, TITLE, accessibility, wait_until

import pictures

SCENES = os.path.join(os.environ["QUILLON_BUILD"], "tests", "face", "quillon-face-scenes")
SCREEN = tuple(int(length) for length in os.environ["QUILLON_SCREEN"].split("x"))
SCALES = os.environ["QUILLON_SCALES"].split()


class SmallScreenTest(unittest.TestCase):
    def start(self, scale):
        program = subprocess.Popen([SCENES], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
                                   env={**os.environ, "QT_SCALE_FACTOR": scale})
        self.addCleanup(program.stdout.close)
        self.addCleanup(self.end, program)
        return program

    def end(self, program):
        program.stdin.close()
        self.assertEqual(program.wait(DEADLINE), 0, "the program did not end in order")

    def ask(self, program, line):
        program.stdin.write(line + "\n")
        program.stdin.flush()
        return program.stdout.readline().split()

    def expect_on_screen(self, program):
        """With its frame."""
        def place():
            return [int(number) for number in self.ask(program, "?")[1:]]

        def is_on_screen():
            x, y, width, height = place()
            return x >= 0 and y >= 0 and x + width <= SCREEN[0] and y + height <= SCREEN[1]
        wait_until(is_on_screen, lambda: f"it takes {place()} of {SCREEN}")
        x, y, width, height = pictures.geometry(pictures.find_window(TITLE))
        self.assertTrue(x >= 0 and y >= 0 and x + width <= SCREEN[0] and y + height <= SCREEN[1],
                        (x, y, width, height))

    def version(self):
        """What is last in the window."""
        return accessibility.window(TITLE, TITLE).find("label", "Version")

    def test_the_window_with_all_its_rows_and_the_strip_that_comes_later(self):
        for scale in SCALES:
            with self.subTest(scale=scale):
                program = self.start(scale)
                self.assertEqual(self.ask(program, "countdown"), ["shown"])
                self.expect_on_screen(program)
                before = accessibility.window(TITLE, TITLE).extents
                self.assertEqual(self.ask(program, "helper-lost"), ["shown"])
                window = accessibility.window(TITLE, TITLE)
                window.find("button", "Install helper")
                self.expect_on_screen(program)
                x, y, width, height = window.extents
                self.assertEqual(width, before[2], "it is as wide as before")
                for control in (self.version(), window.find("button", "Randomize address")):
                    left, top, wide, high = control.extents
                    self.assertTrue(left >= x and top >= y and left + wide <= x + width and top + high <= y + height,
                                    f"{control.name} is at {control.extents} of {window.extents}")
                self.doCleanups()


if __name__ == "__main__":
    unittest.main(verbosity=2)
