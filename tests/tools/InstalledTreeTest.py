# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What an installation consists of, for /usr and for another prefix, and that its files name each other rightly.

The programs are not compiled for it: stand-ins lie where the build would have put them."""
import os
import re
import shutil
import subprocess
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))
COMPILED = ("src/quillon", "helper/Quillon4HelperTool", "service/quillon-xpc-service-installed",
            "login/QuillonHelper-installed")
EVERYWHERE = {
    "bin/quillon",
    "libexec/quillon4/QuillonHelper",
    "libexec/quillon4/quillon-xpc-service",
    "share/applications/com.orvandel.Quillon4.desktop",
    "share/dbus-1/services/com.orvandel.Quillon4XPCService.service",
    "share/icons/hicolor/scalable/apps/com.orvandel.Quillon4.svg",
    "share/icons/hicolor/symbolic/apps/com.orvandel.Quillon4-symbolic.svg",
    "share/man/man1/quillon.1",
    "share/man/man8/Quillon4HelperTool.8",
    "share/man/man8/quillon-xpc-service.8",
    "share/metainfo/com.orvandel.Quillon4.metainfo.xml",
    "share/quillon4/LICENSE",
    "share/quillon4/oui.db",
}
OF_A_PACKAGE = {
    "lib/systemd/system/quillon4-helper.service",
    "lib/sysusers.d/quillon4-helper.conf",
    "libexec/quillon4/Quillon4HelperTool",
    "share/dbus-1/system-services/com.orvandel.Quillon4HelperTool.service",
    "share/dbus-1/system.d/com.orvandel.Quillon4HelperTool.conf",
    "share/polkit-1/actions/com.orvandel.quillon4.policy",
}
SEED = "libexec/quillon4/seed/Quillon4HelperTool"
SEED_ACTION = "/usr/share/polkit-1/actions/com.orvandel.quillon4.seed.policy"
# Where files name programs by their full paths.
NAMED = (re.compile(r"^Exec(?:Start)?=(/\S+)", re.MULTILINE), re.compile(r'policykit\.exec\.path">(/[^<]+)<'))


class Installed:
    """Everything under a stage, from a build that is configured for the prefix."""

    def __init__(self, folder, prefix):
        build, self.stage = os.path.join(folder, "build"), os.path.join(folder, "stage")
        self.done = subprocess.run(["cmake", "-S", ROOT, "-B", build, "-G", "Ninja", "-DBUILD_TESTING=OFF",
                                    f"-DCMAKE_INSTALL_PREFIX={prefix}"], capture_output=True, text=True)
        if self.done.returncode != 0:
            raise AssertionError(self.done.stderr)
        for path in COMPILED:
            shutil.copy("/bin/true", os.path.join(build, path))
        with open(os.path.join(build, "data", "oui.db"), "w"):
            pass
        self.done = subprocess.run(["cmake", "--install", build], env={**os.environ, "DESTDIR": self.stage},
                                   capture_output=True, text=True)
        if self.done.returncode != 0:
            raise AssertionError(self.done.stderr)

    def files(self):
        return {os.path.join(where, name)[len(self.stage):] for where, _folders, names in os.walk(self.stage)
                for name in names}

    def text(self, path):
        with open(self.stage + path, "rb") as file:
            return file.read().decode(errors="replace")

    def mode(self, path):
        return os.stat(self.stage + path).st_mode & 0o7777


class InstalledTreeTest(unittest.TestCase):
    def install(self, prefix):
        folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, folder)
        return Installed(folder, prefix)

    def expect_whole(self, installed, expected):
        self.assertEqual(installed.files(), expected)
        named = {}
        for path in expected:
            text = installed.text(path)
            if not path.endswith(("/quillon", "/oui.db")) and "/libexec/" not in path:
                self.assertIsNone(re.search(r"@[A-Z_]+@", text), path)
                for pattern in NAMED:
                    named.update((program, path) for program in pattern.findall(text))
            self.assertEqual(installed.mode(path), 0o755 if "/bin/" in path or "/libexec/" in path else 0o644, path)
        self.assertTrue(named)
        for program, path in named.items():
            self.assertIn(program, expected, path)

    def test_a_package_brings_everything(self):
        self.expect_whole(self.install("/usr"), {f"/usr/{path}" for path in EVERYWHERE | OF_A_PACKAGE})

    def test_under_another_prefix_the_helper_waits_to_be_installed(self):
        self.expect_whole(self.install("/opt/quillon"),
                          {f"/opt/quillon/{path}" for path in EVERYWHERE | {SEED}} | {SEED_ACTION})


if __name__ == "__main__":
    unittest.main()
