# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a build is told of new versions: the options of CMake, and what of them reaches the program."""
import os
import re
import shutil
import subprocess
import tempfile
import unittest
import unittest.mock

ROOT = os.path.realpath(os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", ".."))
FEED = "https://updates.example/appcast.xml"
KEY = "A6EHv/POEL4dcN0Y50vAmWfk1jCbpQ1fHdyGZBJVMbg="


class UpdateOptionsTest(unittest.TestCase):
    def configure(self, **options):
        """CMake's exit code, what it said, and the two values that the program is compiled with."""
        folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, folder)
        words = [f"-D{name}={value}" for name, value in options.items()]
        done = subprocess.run(["cmake", "-S", ROOT, "-B", folder, "-G", "Ninja", "-DBUILD_TESTING=OFF", *words],
                              stdin=subprocess.DEVNULL, capture_output=True, text=True)
        values = set()
        if done.returncode == 0:
            with open(os.path.join(folder, "build.ninja")) as file:
                values = set(re.findall(r'QUILLON_UPDATE_(FEED|KEY)=\\"([^"\\]*)', file.read()))
        return done.returncode, " ".join(done.stderr.split()), dict(values)

    def test_a_build_knows_nobody_unless_it_is_told(self):
        self.assertEqual(self.configure(), (0, unittest.mock.ANY, {"FEED": "", "KEY": ""}))

    def test_both_reach_the_program(self):
        self.assertEqual(self.configure(QUILLON_UPDATE_FEED=FEED, QUILLON_UPDATE_KEY=KEY)[2],
                         {"FEED": FEED, "KEY": KEY})

    def test_a_package_switches_it_off(self):
        self.assertEqual(
            self.configure(QUILLON_UPDATES="OFF", QUILLON_UPDATE_FEED=FEED, QUILLON_UPDATE_KEY=KEY)[2],
            {"FEED": "", "KEY": ""})

    def expect_refused(self, why, **options):
        code, said, _ = self.configure(**options)
        self.assertEqual(code, 1)
        self.assertIn(why, said)

    def test_what_cannot_be_is_refused(self):
        self.expect_refused("is an https address", QUILLON_UPDATE_FEED="http://updates.example/appcast.xml",
                            QUILLON_UPDATE_KEY=KEY)
        self.expect_refused("needs QUILLON_UPDATE_KEY", QUILLON_UPDATE_FEED=FEED)
        self.expect_refused("has 44 characters", QUILLON_UPDATE_KEY="abc=")
        self.expect_refused("a key in Base64", QUILLON_UPDATE_KEY=KEY[:-1])


if __name__ == "__main__":
    unittest.main(verbosity=2)
