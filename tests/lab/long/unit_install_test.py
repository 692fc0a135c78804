# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A person installs and removes the helper from the program, and is asked by polkit for an administrator's password."""
import os
import subprocess
import sys
import unittest
from concurrent.futures import ThreadPoolExecutor

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), ".."))

from guest import DEADLINE, HELPER, WIRED, address, bus, call, run  # noqa: E402
from program import Program  # noqa: E402
from unit_agent import Agent  # noqa: E402

SEED = "/usr/local/libexec/quillon4/seed/Quillon4HelperTool"
TOOL = "/usr/local/libexec/quillon4/Quillon4HelperTool"
INSTALLED = (TOOL, "/usr/local/libexec/quillon4/folders",
             f"/usr/local/share/dbus-1/system-services/{HELPER}.service",
             f"/usr/local/share/dbus-1/system-services/{HELPER}.Removal.service",
             "/etc/systemd/system/quillon4-helper.service", "/etc/systemd/system/quillon4-helper-removal.service",
             f"/etc/dbus-1/system.d/{HELPER}.conf", "/usr/share/polkit-1/actions/com.orvandel.quillon4.policy")
PASSWORD, WRONG = "open sesame", "open barley"
INSTALL = f"Authentication is required to install the helper that changes MAC addresses for Quillon, from {SEED}"
UNINSTALL = "Authentication is required to remove the helper that changes MAC addresses for Quillon"
NEW = "02:00:00:00:57:11"


def files_around():
    """Everything in the folders that an installation writes to, with owners and modes."""
    folders = {os.path.dirname(os.path.dirname(path)) for path in INSTALLED}
    return run("find", *sorted(folders), "-newermt", "2000-01-01", "-printf", "%p %u:%g %m\\n").splitlines()


class InstallTest(unittest.TestCase):
    def setUp(self):
        subprocess.run(("chpasswd",), input=f"root:{PASSWORD}\n", text=True, check=True)
        run(TOOL, "uninstall")
        self.addCleanup(run, SEED, "install")
        self.clean = set(files_around())
        self.agent = Agent()
        self.addCleanup(self.agent.end)
        self.program = Program()
        self.addCleanup(self.program.end)
        self.hands = ThreadPoolExecutor(1)
        self.addCleanup(self.hands.shutdown)

    def press(self, button, answer, prompt):
        """Presses it, and gives that answer at the prompt. Whether it was done."""
        pressed = self.hands.submit(self.program.press, button)
        asked = self.agent.prompt()
        self.assertEqual((asked["action"], asked["message"], asked["users"]), (*prompt, [0]))
        answer()
        return pressed.result(DEADLINE)

    def install(self, answer):
        return self.press("install", answer, ("com.orvandel.quillon4.install-seed", INSTALL))

    def uninstall(self, answer):
        return self.press("uninstall", answer, ("com.orvandel.quillon4.uninstall", UNINSTALL))

    def expect_nothing_there(self):
        self.assertEqual([path for path in INSTALLED if os.path.lexists(path)], [])
        self.assertEqual(set(files_around()), self.clean)
        code, said = call("as-user", "busctl", "call", HELPER, "/" + HELPER.replace(".", "/"), HELPER, "GetVersion")
        self.assertNotEqual(code, 0, said)
        self.assertEqual(call("systemctl", "cat", "quillon4-helper.service")[0], 1)

    def expect_all_there(self):
        new = {line.split()[0]: line.split()[1:] for line in set(files_around()) - self.clean}
        self.assertEqual([path for path in INSTALLED if path not in new], [])
        self.assertEqual({owner for owner, _mode in new.values()}, {"root:root"})
        self.assertEqual([path for path, (_owner, mode) in new.items() if int(mode, 8) & 0o022], [])
        self.assertEqual(bus("system", HELPER, "GetVersion"), 's "2.0"')

    def test_by_a_prompt_that_is_cancelled_or_answered(self):
        factory = address(WIRED)
        self.expect_nothing_there()
        self.assertFalse(self.install(self.agent.cancel))
        self.expect_nothing_there()
        self.assertFalse(self.install(lambda: self.agent.type(WRONG)))
        self.expect_nothing_there()
        self.assertTrue(self.install(lambda: self.agent.type(PASSWORD)))
        self.expect_all_there()
        self.assertTrue(self.program.change(WIRED, NEW).in_place)
        self.assertTrue(self.program.change(WIRED, factory).in_place)
        self.assertFalse(self.uninstall(self.agent.cancel))
        self.expect_all_there()
        self.assertFalse(self.uninstall(lambda: self.agent.type(WRONG)))
        self.expect_all_there()
        self.assertTrue(self.uninstall(lambda: self.agent.type(PASSWORD)))
        self.expect_nothing_there()

    def test_without_anybody_to_show_the_prompt(self):
        self.agent.end()
        self.assertFalse(self.program.press("install"))
        self.expect_nothing_there()


if __name__ == "__main__":
    unittest.main(verbosity=2)
