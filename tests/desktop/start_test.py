# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the program does at its start, and on which thread."""
import os
import subprocess
import tempfile
import unittest

from program import PROGRAM, wait_until


def waits_in(process):
    """The place in the kernel where a process or thread waits."""
    try:
        with open(f"{process}/wchan") as file:
            place = file.read()
    except OSError:
        return None  # it has ended
    return place if place != "0" else None  # it runs


class StartTest(unittest.TestCase):
    def start_reading(self, words, fifo, **environment):
        os.mkfifo(fifo)
        program = subprocess.Popen(words, stdin=subprocess.DEVNULL, env={**os.environ, **environment})
        self.addCleanup(program.wait)
        self.addCleanup(program.kill)
        return program

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        # How somebody waits who opens a FIFO for reading that nobody writes to.
        fifo = os.path.join(self.folder, "other")
        reader = self.start_reading(["cat", fifo], fifo)
        self.opening = wait_until(lambda: self.sleeps(reader.pid) and waits_in(f"/proc/{reader.pid}"),
                                  "nobody waits for a writer")

    @staticmethod
    def sleeps(pid):
        with open(f"/proc/{pid}/stat") as file:
            return file.read().rpartition(")")[2].split()[0] == "S"

    def test_the_fonts_are_not_read_by_the_main_thread(self):
        fifo = os.path.join(self.folder, "fonts.conf")
        program = self.start_reading([PROGRAM], fifo, FONTCONFIG_FILE=fifo)
        tasks = f"/proc/{program.pid}/task"
        reader = wait_until(
            lambda: next((task for task in os.listdir(tasks) if waits_in(f"{tasks}/{task}") == self.opening), None),
            "nobody read the fonts' configuration")
        self.assertNotEqual(int(reader), program.pid)


if __name__ == "__main__":
    unittest.main(verbosity=2)
