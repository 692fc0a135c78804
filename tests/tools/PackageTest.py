# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/package: what it has built, under which circumstances, and what it makes of the answers. Debian's tools are
stand-ins: to build really takes long."""
import os
import shutil
import subprocess
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))
CHANGELOG = """\
quillon (4.0.0) unstable; urgency=medium

  * First package.

 -- The Quillon authors <quillon@example.org>  Mon, 23 Nov 2026 12:00:00 +0000
"""
BUILD = """\
version=$(dpkg-parsechangelog -S Version)
echo "$PWD|$version|${TZ:-}|$(umask)|${CCACHE_DISABLE:-}|${FAKED:-}|$(ls | tr '\\n' ' ')" >>"$RECORD"
echo "said"
[ ! -e broken ] || exit 1
for end in .dsc .tar.xz _amd64.deb _amd64.changes; do echo "$version $(cat leak 2>/dev/null && pwd)" >"../quillon_$version$end"; done
cp "../quillon_${version}_amd64.deb" "../quillon-dbgsym_${version}_amd64.deb"
"""
EXTRACT = 'for folder in usr/bin usr/libexec; do mkdir -p "$3/$folder"; for n in 1 2; do echo >"$3/$folder/$n"; ' \
    'chmod +x "$3/$folder/$n"; done; done'
STAND_INS = {"dpkg-buildpackage": BUILD, "faketime": 'shift 2; FAKED=yes exec "$@"', "lintian": "cat tags 2>/dev/null",
             "blhc": "[ ! -e flags-missing ]", "dpkg-deb": EXTRACT, "hardening-check": "[ ! -e soft ]",
             "objdump": 'for n in 1 2 3 4 5 6 7 8 9 10; do echo "  f3 0f 1e fa   endbr64"; done'}


class PackageTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = os.path.realpath(folder.name)
        self.record = os.path.join(self.folder, ".git", "record")
        for name, text in STAND_INS.items():
            self.write(f".git/stand-ins/{name}", "#!/bin/bash\nset -e\n" + text + "\n")
            os.chmod(os.path.join(self.folder, ".git", "stand-ins", name), 0o755)
        self.write(".gitignore", "build/\n")
        self.write("debian/changelog", CHANGELOG)
        self.write("tools/package", "")
        shutil.copy(os.path.join(ROOT, "tools", "package"), os.path.join(self.folder, "tools"))
        self.git("init", "--quiet")
        self.commit()

    def write(self, path, text):
        path = os.path.join(self.folder, path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w") as file:
            file.write(text)

    def git(self, *words):
        subprocess.run(["git", "-c", "user.name=Somebody", "-c", "user.email=somebody@example.org", *words],
                       cwd=self.folder, check=True)

    def commit(self):
        self.git("add", ".")
        self.git("commit", "--quiet", "--message", "More")

    def package(self, *arguments):
        path = os.path.join(self.folder, ".git", "stand-ins") + os.pathsep + os.environ["PATH"]
        done = subprocess.run([os.path.join(self.folder, "tools", "package"), *arguments], cwd=self.folder, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL,
                              env={**os.environ, "PATH": path, "RECORD": self.record, "TZ": "UTC"})
        return done.returncode, done.stdout

    def builds(self):
        with open(self.record) as file:
            return [line.rstrip("\n").split("|") for line in file]

    def made(self, *folder):
        return sorted(name for name in os.listdir(os.path.join(self.folder, "build", "package", *folder))
                      if name.startswith("quillon"))

    def test_it_builds_what_is_committed_and_nothing_else(self):
        self.write("news", "not committed")
        code, said = self.package()
        self.assertEqual(code, 0, said)
        self.assertIn("what is not committed is left out", said)
        self.assertEqual(self.builds()[0][-1].split(), ["debian", "tools"])
        self.assertEqual(self.made(), ["quillon-dbgsym_4.0.0_amd64.deb", "quillon_4.0.0.dsc", "quillon_4.0.0.tar.xz",
                                       "quillon_4.0.0_amd64.changes", "quillon_4.0.0_amd64.deb"])

    def test_the_next_version_is_later_and_built_in_the_same_place(self):
        self.assertEqual(self.package("--next")[0], 0)
        first, second = self.builds()
        self.assertEqual((first[1], second[1]), ("4.0.0", "4.0.0+next"))
        self.assertEqual(first[0], second[0])
        self.assertIn("quillon_4.0.0+next_amd64.deb", self.made("next"))
        self.assertIn("quillon_4.0.0_amd64.deb", self.made())
        self.assertEqual(subprocess.run(["dpkg", "--compare-versions", second[1], "gt", first[1]]).returncode, 0)

    def test_a_build_that_fails_says_why(self):
        self.write("broken", "")
        self.commit()
        code, said = self.package()
        self.assertEqual(code, 1)
        self.assertIn("said", said)

    def test_the_second_build_is_under_other_circumstances(self):
        code, said = self.package("--check")
        self.assertEqual(code, 0, said)
        self.assertIn("4 files are the same in both builds", said)
        for what, other in zip(self.builds()[0][2:6] + self.builds()[0][:1],
                               self.builds()[1][2:6] + self.builds()[1][:1]):
            self.assertNotEqual(what, other)

    def test_what_depends_on_circumstances_is_found(self):
        self.write("leak", "")
        self.commit()
        code, said = self.package("--check")
        self.assertEqual(code, 1)
        self.assertIn("quillon_4.0.0_amd64.deb differ", said)

    def test_what_the_tools_find_is_a_failure(self):
        self.assertEqual(self.package()[0], 0)
        self.assertEqual(self.package("--inspect")[0], 0)
        for name, text in (("tags", "W: quillon: something\n"), ("flags-missing", ""), ("soft", "")):
            path = os.path.join(self.folder, name)
            self.write(name, text)
            self.assertEqual(self.package("--inspect")[0], 1, name)
            os.remove(path)
        self.write(".git/stand-ins/objdump", "#!/bin/bash\necho ret\n")
        code, said = self.package("--inspect")
        self.assertEqual(code, 1)
        self.assertIn("is not compiled with -fcf-protection", said)

    def test_an_unknown_wish_is_wrong_use(self):
        code, said = self.package("--chekc")
        self.assertEqual(code, 2)
        self.assertIn("usage: tools/package", said)


if __name__ == "__main__":
    unittest.main()
