# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Every dependency has a lowest version: stated, asked for by the build and by the package, and the documents agree."""
import os
import re
import subprocess
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))
FOUND = re.compile(r"^\s*find_package\((\w+)\s+(\S+)", re.MULTILINE)
CHECKED = re.compile(r"^\s*pkg_check_modules\(\w+ REQUIRED IMPORTED_TARGET ([\w+.-]+?)(?:>=([\d.]+))?\)", re.MULTILINE)
# What comes with something else that has a version: CMake, or the C library.
WITHOUT = ("PkgConfig", "Threads")
# Debian's packages of what the program is built of; those of the tests alone are not asked for by the package.
PACKAGES = {"Qt6": "qt6-base-dev", "Qt6Keychain": "qtkeychain-qt6-dev", "libnl-3.0": "libnl-3-dev",
            "SQLite3": "libsqlite3-dev", "SQLiteCpp": "libsqlitecpp-dev", "ZLIB": "zlib1g-dev", "LibCsv": "libcsv-dev",
            "sdbus-c++": "libsdbus-c++-dev", "libsystemd": "libsystemd-dev", "xcb": "libxcb1-dev",
            "libcap-ng": "libcap-ng-dev", "libsodium": "libsodium-dev"}
FOR_TESTS = {"GTest", "libplist-2.0", "benchmark"}
LOWEST_CMAKE = re.compile(r"cmake_minimum_required\(VERSION ([\d.]+)\)")


def read(*path):
    with open(os.path.join(ROOT, *path), encoding="utf-8") as file:
        return file.read()


def lists():
    """The texts of our CMakeLists.txt."""
    paths = subprocess.run([os.path.join(ROOT, "tools", "own-files"), "*CMakeLists.txt"], check=True,
                           capture_output=True, text=True).stdout.splitlines()
    return [read(path) for path in paths]


def dependencies():
    """What the build asks for, with the lowest version or None."""
    found = {}
    for text in lists():
        for name, version in FOUND.findall(text) + CHECKED.findall(text):
            if name not in WITHOUT:
                found[name] = version if version[:1].isdigit() else None
    return found


def build_depends():
    field = re.search(r"^Build-Depends:((?:.*\n)(?: .*\n)*)", read("debian", "control"), re.MULTILINE)[1]
    found = {}
    for entry in field.split(","):
        match = re.match(r"\s*([\w+.-]+)(?: \(>= ([^)]+)\))?", entry)
        found[match[1]] = match[2]
    return found


class VersionsTest(unittest.TestCase):
    def test_every_dependency_has_a_lowest_version(self):
        self.assertEqual(set(dependencies()), set(PACKAGES) | FOR_TESTS)
        self.assertEqual([name for name, version in dependencies().items() if version is None], [])

    def test_the_package_asks_for_the_same(self):
        asked = build_depends()
        wanted = {PACKAGES[name]: version for name, version in dependencies().items() if name in PACKAGES}
        wanted["cmake"] = LOWEST_CMAKE.search(read("CMakeLists.txt"))[1]
        self.assertEqual({name: (asked.get(name) or "").removeprefix("1:") for name in wanted}, wanted)

    def test_the_documents_tell_the_same(self):
        table = read("docs", "dependencies.md").partition("### Lowest versions")[2].partition("\n### ")[0]
        told = dict(re.findall(r"^\| ([\w+.-]+) \| ([\d.]+) \|", table, re.MULTILINE))
        self.assertEqual(told, {**dependencies(), "CMake": LOWEST_CMAKE.search(read("CMakeLists.txt"))[1]})

    def test_an_older_library_is_refused(self):
        with tempfile.TemporaryDirectory() as folder:
            with open(os.path.join(folder, "libnl-3.0.pc"), "w") as file:
                file.write("Name: libnl\nDescription: an old one\nVersion: 3.6.9\n")
            done = subprocess.run(["cmake", "-S", ROOT, "-B", os.path.join(folder, "build"), "-DBUILD_TESTING=OFF"],
                                  env={**os.environ, "PKG_CONFIG_PATH": folder}, capture_output=True, text=True)
        self.assertNotEqual(done.returncode, 0)
        said = done.stdout + done.stderr
        self.assertIn("libnl-3.0", said)
        self.assertIn("3.6.9", said)

    def test_the_package_has_the_programs_version(self):
        programs = re.search(r"project\(quillon VERSION ([\d.]+) ", read("CMakeLists.txt"))[1]
        self.assertTrue(read("debian", "changelog").startswith(f"quillon ({programs}) "))
        self.assertIn(f'<release version="{programs}" ', read("data", "com.orvandel.Quillon4.metainfo.xml"))


if __name__ == "__main__":
    unittest.main()
