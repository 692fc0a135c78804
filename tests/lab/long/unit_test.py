# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The helper's real unit under the real systemd: what it denies is denied, and its life is as promised."""
import lzma
import os
import re
import shutil
import signal
import subprocess
import sys
import time
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), ".."))

from guest import HELPER, WIRED, address, bus, call, run, wait_until  # noqa: E402
from program import Program  # noqa: E402

UNIT, REMOVAL = "quillon4-helper.service", "quillon4-helper-removal.service"
DROP_IN = f"/run/systemd/system/{UNIT}.d"
PROBE, MODULE = "/usr/local/libexec/quillon4/lab-probe", "/usr/local/libexec/quillon4/lab-module.ko"
UNUSED_MODULE = "dummy"
SAID = "/run/lab-probe-said"
GREATEST_EXPOSURE = 1.3  # as helper_unit_exposure_… has it
BEFORE, NEW = "02:00:00:00:56:11", "02:00:00:00:56:12"


def unit(name):
    return run("systemctl", "show", "--property", name, "--value", UNIT)


def version():
    return bus("system", HELPER, "GetVersion")


class Overheard:
    """What goes to the helper by the bus, from now on."""

    def __init__(self):
        self.said = ""
        self.monitor = subprocess.Popen(("busctl", "--system", "monitor", HELPER), stdout=subprocess.PIPE,
                                        stderr=subprocess.STDOUT, text=True, bufsize=1)
        self.wait_for("Monitoring bus message stream")

    def wait_for(self, text):
        # Once the monitor has it the helper has it, too: it lies in its queue.
        while text not in self.said:
            line = self.monitor.stdout.readline()
            if not line:
                raise AssertionError(f"the monitor ended: {self.said}")
            self.said += line

    def end(self):
        self.monitor.kill()
        self.monitor.wait()
        self.monitor.stdout.close()


def put_module():
    """A module that is not loaded, uncompressed, where the unit can read it."""
    path = run("/sbin/modinfo", "--field", "filename", UNUSED_MODULE)
    with (lzma.open if path.endswith(".xz") else open)(path, "rb") as module, open(MODULE, "wb") as file:
        shutil.copyfileobj(module, file)


class DeniedTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.copy(os.path.join(os.environ["QUILLON_BUILD"], "tests", "lab", "long", "lab-probe"), PROBE)
        put_module()
        victim = subprocess.Popen(("sleep", "infinity"))
        cls.addClassCleanup(victim.wait)
        cls.addClassCleanup(victim.kill)
        cls.environment = {"LAB_MODULE": MODULE, "LAB_PROCESS": str(victim.pid)}
        cls.names = run(PROBE, "list").split()

    def said(self, word):
        with open(SAID) as file:
            return re.findall(rf"^(\S+) {word}", file.read(), re.MULTILINE)

    def try_in_unit(self):
        """Its program alone is another one; everything else of the unit is in force."""
        run("systemctl", "stop", UNIT)
        with open(SAID, "w"):
            pass
        os.makedirs(DROP_IN)
        self.addCleanup(run, "systemctl", "daemon-reload")
        self.addCleanup(shutil.rmtree, DROP_IN)
        with open(os.path.join(DROP_IN, "probe.conf"), "w") as file:
            file.write(f"[Service]\nType=oneshot\nStandardOutput=append:{SAID}\nExecStart=\n")
            file.writelines(f"Environment={name}={value}\n" for name, value in self.environment.items())
            file.writelines(f"ExecStart=-{PROBE} execute {name}\n" for name in self.names)
        run("systemctl", "daemon-reload")
        # It ends by the unit's limit of memory, if by nothing else.
        call("systemctl", "start", UNIT)
        call("systemctl", "reset-failed", UNIT)

    def test_everything_that_is_tried_is_possible_without_the_unit(self):
        for name in self.names:
            with self.subTest(name):
                result = subprocess.run((PROBE, "execute", name), env=self.environment, stdin=subprocess.DEVNULL,
                                        stdout=subprocess.PIPE, text=True)
                self.assertIn(f"{name} done\n", result.stdout)
        call("rmmod", UNUSED_MODULE)
        os.unlink("/tmp/lab-device")

    def test_nothing_of_it_is_possible_within(self):
        self.try_in_unit()
        self.assertEqual(self.said("begun"), self.names, "not everything was tried")
        self.assertEqual(self.said("done"), [], "done within the unit")
        # These two have no answer: the kernel ends who tries.
        self.assertEqual(set(self.names) - set(self.said("refused")), {"other-architecture", "memory"})

    def test_the_exposure_is_small(self):
        for name in (UNIT, REMOVAL):
            with self.subTest(name):
                said = call("systemd-analyze", "--no-pager", "security", name)[1]
                exposure = float(re.search(r"Overall exposure level for \S+: ([\d.]+)", said)[1])
                self.assertLessEqual(exposure, GREATEST_EXPOSURE)


class LifeTest(unittest.TestCase):
    def setUp(self):
        run("systemctl", "stop", UNIT)

    def start(self):
        self.assertEqual(version(), 's "2.0"')
        return int(unit("MainPID"))

    def expect_told(self, program, title):
        """That next, of the wired interface."""
        told = []
        wait_until(lambda: told.extend(one for one in program.messages() if one.startswith("Ethernet")) or told,
                   f"not told: {title}")
        self.assertEqual(told, [title])

    def overhear(self):
        overheard = Overheard()
        self.addCleanup(overheard.end)
        return overheard

    def test_it_ends_when_nobody_asks_and_comes_when_somebody_does(self):
        first = self.start()
        asked = time.monotonic()
        wait_until(lambda: unit("ActiveState") == "inactive", "it stays")
        # The 30 seconds are its own, beginning a little before the answer was here.
        self.assertGreater(time.monotonic() - asked, 25)
        self.assertEqual(unit("Result"), "success")
        self.assertFalse(os.path.exists(f"/proc/{first}"))
        self.assertFalse(os.path.exists("/run/quillon4-helper"), "its root folder stays behind")
        asked = time.monotonic()
        self.assertNotEqual(self.start(), first)
        self.assertLess(time.monotonic() - asked, 30)

    def test_it_comes_again_however_often_it_is_killed(self):
        for _ in range(12):
            os.kill(self.start(), signal.SIGKILL)

    def test_a_call_that_it_is_killed_in_ends_with_an_error(self):
        os.kill(helper := self.start(), signal.SIGSTOP)
        overheard = self.overhear()
        asking = subprocess.Popen(("as-user", "busctl", "call", HELPER, "/" + HELPER.replace(".", "/"), HELPER,
                                   "ChangeAddressOfDevice", "ssbay", WIRED, NEW, "false", "32", *["0"] * 32),
                                  stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
        overheard.wait_for("Member=ChangeAddressOfDevice")
        os.kill(helper, signal.SIGKILL)
        said = asking.communicate(timeout=120)[1]
        self.assertNotEqual(asking.returncode, 0)
        self.assertIn("disconnected from message bus without replying", said)
        self.start()
        self.assertNotEqual(address(WIRED), NEW)

    def test_the_program_says_so_and_its_next_change_succeeds(self):
        factory = address(WIRED)
        program = Program()
        self.addCleanup(program.end)
        # What it asks at its start is answered, too, when this has been.
        self.assertTrue(program.change(WIRED, BEFORE).in_place)
        self.expect_told(program, "Ethernet Address Changed")
        os.kill(helper := self.start(), signal.SIGSTOP)
        overheard = self.overhear()
        program.begin_change(WIRED, NEW)
        overheard.wait_for("Type=method_call")
        os.kill(helper, signal.SIGKILL)
        self.expect_told(program, "Ethernet Address was not Changed")
        self.assertEqual(address(WIRED), BEFORE)
        self.assertTrue(program.change(WIRED, NEW).in_place)
        self.assertTrue(program.change(WIRED, factory).in_place)


if __name__ == "__main__":
    unittest.main(verbosity=2)
