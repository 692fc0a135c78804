# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/setup installs what is missing, by the names that the release has, and is silent otherwise."""
import os
import shutil
import subprocess
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))
PACKAGES = """\
# A list.

# build
# A remark: it heads no chapter.
compiler          builds
new-icons|icons   pictures

# fuzz: only with `tools/setup fuzz`
fuzzer            looks for mistakes
"""
# Stand-ins: what is installed, what the lists have, and what was asked for are files beside them.
DPKG_QUERY = 'while read -r package; do echo "installed $package"; done <installed; echo "config-files removed"'
APT_CACHE = """\
shift
while read -r package; do
    for name in "$@"; do
        if [ "$package" = "$name" ]; then printf '%10s | %10s | %s\\n' "$name" 1.0-1 "http://example.org main"; fi
    done
done <lists
"""
APT_GET = """\
for word in "$@"; do
    case $word in
        update) cp archive lists ;;
        install) echo "${@#-*}" >>asked ;;
    esac
done
"""
OLD, NEW = ("compiler", "icons", "fuzzer"), ("compiler", "icons", "new-icons", "fuzzer")


class SetupTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        shutil.copy(os.path.join(ROOT, "tools/setup"), self.folder)
        self.write("packages", PACKAGES)
        for name, body in (("dpkg-query", DPKG_QUERY), ("apt-cache", APT_CACHE), ("apt-get", APT_GET),
                           ("sudo", 'exec "$@"')):
            self.write(name, f'#!/bin/sh\ncd "{self.folder}"\n{body}\n')
            os.chmod(os.path.join(self.folder, name), 0o755)

    def write(self, name, text):
        with open(os.path.join(self.folder, name), "w") as file:
            file.write(text)

    def lines(self, name, words):
        self.write(name, "".join(f"{word}\n" for word in words))

    def installs(self, *arguments, installed, archive, lists=None, status=0):
        """The packages that it asks for: None when it is silent and asks for none."""
        self.lines("installed", installed)
        self.lines("archive", archive)
        self.lines("lists", archive if lists is None else lists)
        asked = os.path.join(self.folder, "asked")
        result = subprocess.run([os.path.join(self.folder, "setup"), *arguments], text=True, capture_output=True,
                                stdin=subprocess.DEVNULL,
                                env={**os.environ, "PATH": f"{self.folder}:{os.environ['PATH']}"})
        self.assertEqual(result.returncode, status, result.stderr)
        if not os.path.exists(asked):
            return result.stdout + result.stderr or None
        with open(asked) as file:
            words = file.read().split()
        os.unlink(asked)
        return set(words) & {"compiler", "icons", "new-icons", "fuzzer", "removed"}

    def test_is_silent_when_nothing_is_missing(self):
        self.assertIsNone(self.installs(installed=("compiler", "new-icons"), archive=NEW))
        self.assertIsNone(self.installs(installed=("compiler", "icons"), archive=OLD))

    def test_installs_what_is_missing(self):
        self.assertEqual(self.installs(installed=("icons",), archive=OLD), {"compiler"})

    def test_takes_the_first_alternative_that_the_release_has(self):
        self.assertEqual(self.installs(installed=("compiler",), archive=NEW), {"new-icons"})
        self.assertEqual(self.installs(installed=("compiler",), archive=OLD), {"icons"})

    def test_an_alternative_that_the_release_would_not_choose_is_not_enough(self):
        self.assertEqual(self.installs(installed=("compiler", "icons"), archive=NEW), {"new-icons"})

    def test_chooses_after_the_lists_have_been_fetched(self):
        self.assertEqual(self.installs(installed=("compiler",), archive=NEW, lists=()), {"new-icons"})
        self.assertEqual(self.installs(installed=("compiler", "icons"), archive=NEW, lists=()), {"new-icons"})
        self.assertEqual(self.installs(installed=(), archive=OLD, lists=()), {"compiler", "icons"})

    def test_says_when_the_release_has_no_alternative(self):
        said = self.installs(installed=("compiler",), archive=("compiler",), status=1)
        self.assertIn("none of new-icons|icons", said)

    def test_installs_what_only_a_tool_needs_for_that_tool(self):
        self.assertEqual(self.installs("fuzz", installed=("compiler", "icons"), archive=OLD), {"fuzzer"})
        self.assertIsNone(self.installs("bench", installed=("compiler", "icons"), archive=OLD))


if __name__ == "__main__":
    unittest.main()
