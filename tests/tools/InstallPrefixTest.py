# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""cmake --install puts everything under the prefix that the build was made for, or nothing anywhere."""
import os
import subprocess
import tempfile
import unittest

BUILD = os.environ["QUILLON_BUILD"]


class InstallPrefixTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        # Whatever is installed wrongly does not reach the system.
        self.stage = os.path.join(self.folder, "stage")
        os.mkdir(self.stage)

    def install(self, *arguments):
        return subprocess.run(["cmake", "--install", BUILD, *arguments], text=True, capture_output=True,
                              env=os.environ | {"DESTDIR": self.stage})

    def configured_prefix(self):
        with open(os.path.join(BUILD, "CMakeCache.txt")) as file:
            return next(line.partition("=")[2].strip() for line in file if line.startswith("CMAKE_INSTALL_PREFIX:"))

    def test_another_prefix_than_the_builds_is_refused_before_anything_is_installed(self):
        for arguments in ((), ("--component", "helper")):
            result = self.install("--prefix", os.path.join(self.folder, "elsewhere"), *arguments)
            self.assertNotEqual(result.returncode, 0, arguments)
            self.assertIn(f"-DCMAKE_INSTALL_PREFIX={self.folder}/elsewhere", result.stderr)
            self.assertEqual(os.listdir(self.stage), [], arguments)

    def test_the_builds_own_prefix_may_be_named(self):
        prefix = self.configured_prefix()
        result = self.install("--prefix", prefix + "/", "--component", "helper")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertTrue(os.path.isdir(self.stage + prefix))


if __name__ == "__main__":
    unittest.main()
