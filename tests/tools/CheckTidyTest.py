# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/check-tidy looks at a source again when something that its verdict depends on has changed."""
import json
import os
import shutil
import subprocess
import tempfile
import time
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))


class CheckTidyTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.cache = os.path.join(os.path.realpath(folder.name), "cache")
        self.programs = os.path.join(os.path.realpath(folder.name), "bin")
        self.make_checkout(os.path.join(os.path.realpath(folder.name), "first"))

    def make_checkout(self, root, build="build/dev"):
        # The tool looks at the tree that it stands in.
        self.root = root
        for path in ("tools/check-tidy", ".clang-tidy"):
            os.makedirs(os.path.dirname(os.path.join(self.root, path)), exist_ok=True)
            shutil.copy(os.path.join(ROOT, path), os.path.join(self.root, path))
        self.build = os.path.join(self.root, build)
        self.source = self.write("src/devices/Table.cpp", '#include "contract/Interfaces.h"\n#include "base/Error.h"\n')
        self.write("src/base/Error.h", "struct Error {};\n")
        self.write(f"{self.build}/generated/contract/Interfaces.h", "struct Method {};\n")
        folders = [f"-I{os.path.join(self.root, 'src')}", f"-I{self.build}/generated"]
        entry = {"directory": self.build, "file": self.source,
                 "arguments": ["/usr/bin/c++", "-std=c++20", *folders, "-c", self.source]}
        self.write(f"{self.build}/compile_commands.json", json.dumps([entry]))

    def write(self, path, text):
        path = os.path.join(self.root, path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w") as file:
            file.write(text)
        return path

    def looks_at(self):
        result = subprocess.run([os.path.join(self.root, "tools/check-tidy"), self.build], text=True,
                                capture_output=True, stdin=subprocess.DEVNULL,
                                env={**os.environ, "XDG_CACHE_HOME": self.cache,
                                     "PATH": self.programs + ":" + os.environ["PATH"]})
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

    def test_looks_once_also_in_another_build_folder(self):
        self.looks_at()
        for build in ("build/other", self.root + "-build"):
            self.make_checkout(self.root, build)
            self.assertEqual(self.looks_at(), 0)
            self.write(f"{self.build}/generated/contract/Interfaces.h", f"struct Method {{ int of{len(build)}; }};\n")
            self.assertEqual(self.looks_at(), 1)

    def test_looks_again_when_a_package_of_headers_changes(self):
        self.looks_at()
        os.chmod(self.write(f"{self.programs}/dpkg-query", "#!/bin/sh\necho libc6-dev 99\n"), 0o755)
        self.assertEqual(self.looks_at(), 1)

    def test_forgets_what_nobody_asked_for_in_months(self):
        self.looks_at()
        folder = os.path.join(self.cache, "quillon-check-tidy")
        old = self.write(os.path.join(folder, "old"), "")
        os.utime(old, (0, 0))
        used = os.path.join(folder, next(name for name in os.listdir(folder) if name != "old"))
        month_ago = time.time() - 30 * 24 * 3600
        os.utime(used, (month_ago, month_ago))
        self.assertEqual(self.looks_at(), 0)
        self.assertFalse(os.path.exists(old))
        self.assertGreater(os.stat(used).st_mtime, month_ago + 1)

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
