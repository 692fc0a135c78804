# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/check-tidy looks at a source again when something that its verdict depends on has changed."""
import json
import os
import shutil
import subprocess
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))


class CheckTidyTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.cache = os.path.join(os.path.realpath(folder.name), "cache")
        self.make_checkout(os.path.join(os.path.realpath(folder.name), "first"))

    def make_checkout(self, root):
        # The tool looks at the tree that it stands in.
        self.root = root
        for path in ("tools/check-tidy", ".clang-tidy"):
            os.makedirs(os.path.dirname(os.path.join(self.root, path)), exist_ok=True)
            shutil.copy(os.path.join(ROOT, path), os.path.join(self.root, path))
        self.build = os.path.join(self.root, "build/dev")
        self.source = self.write("src/devices/Table.cpp", '#include "contract/Interfaces.h"\n#include "base/Error.h"\n')
        self.write("src/base/Error.h", "struct Error {};\n")
        self.write("build/dev/generated/contract/Interfaces.h", "struct Method {};\n")
        folders = [f"-I{os.path.join(self.root, folder)}" for folder in ("src", "build/dev/generated")]
        entry = {"directory": self.build, "file": self.source,
                 "arguments": ["/usr/bin/c++", "-std=c++20", *folders, "-c", self.source]}
        self.write("build/dev/compile_commands.json", json.dumps([entry]))

    def write(self, path, text):
        path = os.path.join(self.root, path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w") as file:
            file.write(text)
        return path

    def looks_at(self):
        result = subprocess.run([os.path.join(self.root, "tools/check-tidy"), self.build], text=True,
                                capture_output=True, stdin=subprocess.DEVNULL,
                                env={**os.environ, "XDG_CACHE_HOME": self.cache})
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        return int(result.stdout.split(" sources, ")[1].split()[0])

    def test_looks_at_a_source_once(self):
        self.assertEqual(self.looks_at(), 1)
        self.assertEqual(self.looks_at(), 0)

    def test_looks_once_also_when_files_are_written_anew(self):
        self.looks_at()
        self.write("src/base/Error.h", "struct Error {};\n")
        shutil.rmtree(self.build)
        self.make_checkout(self.root)
        self.assertEqual(self.looks_at(), 0)

    def test_looks_once_also_in_another_checkout(self):
        self.looks_at()
        self.make_checkout(self.root + "-second")
        self.assertEqual(self.looks_at(), 0)
        self.write("src/base/Error.h", "struct Error { int code; };\n")
        self.assertEqual(self.looks_at(), 1)

    def test_looks_again_when_the_checks_change(self):
        self.looks_at()
        with open(os.path.join(self.root, ".clang-tidy"), "a") as file:
            file.write("# another word\n")
        self.assertEqual(self.looks_at(), 1)

    def test_looks_again_when_a_header_changes(self):
        self.looks_at()
        self.write("src/base/Error.h", "struct Error { int code; };\n")
        self.assertEqual(self.looks_at(), 1)

    def test_looks_again_when_a_header_that_the_build_makes_changes(self):
        self.looks_at()
        self.write("build/dev/generated/contract/Interfaces.h", "struct Method { int number; };\n")
        self.assertEqual(self.looks_at(), 1)


if __name__ == "__main__":
    unittest.main()
