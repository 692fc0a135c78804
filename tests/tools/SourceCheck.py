# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the tests of the checks of sources share: a folder of sources, and what the check says of it."""
import os
import subprocess
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))


class SourceCheckTest(unittest.TestCase):
    """A test names its `check`, a program in tools/."""

    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def write(self, path, *lines):
        path = os.path.join(self.folder.name, path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w") as file:
            file.write("\n".join(lines) + "\n")

    def problems(self):
        """The lines that the check prints, after a look at its exit code."""
        result = subprocess.run([os.path.join(ROOT, "tools", self.check), self.folder.name],
                                text=True, capture_output=True, stdin=subprocess.DEVNULL)
        self.assertEqual(result.stderr, "")
        lines = result.stdout.splitlines()
        self.assertEqual(result.returncode, 1 if lines else 0)
        return lines
