# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The way to a helper: the hint, its button, and an administrator who agrees or not.

Runs as root, who is the administrator; the program and its user are ordinary.
"""
import json
import os
import plistlib
import subprocess
import sys
import tempfile
import unittest

from program import NAME, SANDBOX_TOOLS, SETTINGS, ProgramTest, accessibility, wait_until

GROUP = os.path.join(SETTINGS, "orvandel.com.orvandel.Quillon4.plist")
USER = "quillon"
AGENT = os.path.join(SANDBOX_TOOLS, "sandbox-polkit-agent")


class InstallationCase(ProgramTest):
    def answer(self, answer):
        with open(os.environ["QUILLON_ANSWER"], "w") as file:
            file.write(answer)

    def asked(self):
        """The actions that an administrator was asked about, in order."""
        with open(os.environ["QUILLON_PROMPTS"]) as file:
            entries = [json.loads(line) for line in file]
        return [entry["action"] for entry in entries if "action" in entry]


class InstallationTest(InstallationCase):
    def test_the_helper_is_installed_from_the_window(self):
        self.window.find("button", "Helper hint")
        self.assertFalse(self.field.enabled)
        self.assertFalse(self.button("Randomize address").enabled)
        self.assertFalse(self.button("Apply address").enabled)

        self.answer("dismiss")
        self.button("Install helper").press()
        wait_until(lambda: len(self.asked()) == 1, "nobody was asked")
        wait_until(lambda: self.button("Install helper").enabled, "the button did not come back")
        self.assertFalse(self.field.enabled, "nobody agreed, and yet there is a helper")

        self.answer("grant")
        self.button("Install helper").press()
        wait_until(lambda: self.field.enabled, "the field is still disabled")
        wait_until(lambda: not self.window.has("button", "Helper hint"), "the hint is still there")
        # Before the first installation polkit knows no action of ours.
        self.assertEqual(self.asked(), ["org.freedesktop.policykit.exec"] * 2)

        self.button("Randomize address").press()
        self.expect_shown(self.expect_only_changed(self.selector.name))


class PreferencesInstallationTest(InstallationCase):
    """The buttons of the pane “Advanced”. Comes after the window's own, which leaves a helper."""

    def setUp(self):
        os.makedirs(SETTINGS, exist_ok=True)
        with open(GROUP, "wb") as file:
            plistlib.dump({"success": True, "device": "enp1s0", "version": "2.0", "another": "kept"}, file)
        super().setUp()
        self.button("Preferences").press()
        accessibility.window(NAME, "General").find("page tab", "Advanced").press()
        self.pane = accessibility.window(NAME, "Advanced")

    def press(self, name, answer):
        asked = len(self.asked())
        self.answer(answer)
        wait_until(lambda: self.pane.find("button", name).enabled, f"“{name}” cannot be pressed")
        self.pane.find("button", name).press()
        wait_until(lambda: len(self.asked()) == asked + 1, "nobody was asked")

    def expect(self, status, installed):
        self.pane.find("label", status)
        wait_until(lambda: self.pane.find("button", "Uninstall").enabled == installed
                   and self.pane.find("button", "Install").enabled != installed, "the buttons say otherwise")
        wait_until(lambda: self.field.enabled == installed, "the main window says otherwise")

    def test_the_helper_is_taken_out_and_put_in_again(self):
        if not self.field.enabled:
            self.press("Install", "grant")
        self.expect("Helper: installed, version 2.0", True)

        self.press("Uninstall", "dismiss")
        self.expect("Helper: installed, version 2.0", True)
        self.assertEqual(self.group().keys(), {"success", "device", "version", "another"})
        self.press("Uninstall", "grant")
        self.expect("Helper: not installed", False)
        wait_until(lambda: self.group() == {"another": "kept"}, lambda: f"the shared settings hold {self.group()}")
        self.window.find("button", "Helper hint")

        self.press("Install", "dismiss")
        self.expect("Helper: not installed", False)
        self.press("Install", "grant")
        self.expect("Helper: installed, version 2.0", True)
        self.button("Randomize address").press()
        self.expect_shown(self.expect_only_changed(self.selector.name))

    @staticmethod
    def group():
        with open(GROUP, "rb") as file:
            return plistlib.load(file)


def as_administrator():
    """Sits at the password prompt, and has this script's tests run by the ordinary user."""
    with tempfile.TemporaryDirectory() as folder:
        os.chmod(folder, 0o755)
        files = {name: os.path.join(folder, name) for name in ("ready", "control", "prompts")}
        for name in ("control", "prompts"):
            open(files[name], "w").close()
        os.chmod(files["control"], 0o666)
        agent = subprocess.Popen([AGENT, "--ready", files["ready"], "--control", files["control"],
                                  "--log", files["prompts"], "refuse"], stdin=subprocess.DEVNULL)
        try:
            wait_until(lambda: os.path.exists(files["ready"]), "the agent did not start")
            environment = {**os.environ, "HOME": os.path.expanduser("~" + USER), "USER": USER, "LOGNAME": USER,
                           "QUILLON_ANSWER": files["control"], "QUILLON_PROMPTS": files["prompts"]}
            return subprocess.run(["runuser", "-u", USER, "--", sys.executable, "-B", os.path.realpath(__file__)],
                                  env=environment).returncode
        finally:
            agent.terminate()
            agent.wait()


if __name__ == "__main__":
    if os.getuid() == 0:
        sys.exit(as_administrator())
    unittest.main(verbosity=2)
