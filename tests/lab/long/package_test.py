# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The Debian package, and a later version of it: used, upgraded, removed, and in turns with the helper that the program
installs by itself. `tools/package --next` makes both."""
import glob
import os
import subprocess
import sys
import unittest

HERE = os.path.dirname(os.path.realpath(__file__))
sys.path.insert(0, os.path.join(HERE, ".."))

from guest import HELPER, WIRED, address, bus, call, ipv4, leases, run, wait_until  # noqa: E402
from program import Program  # noqa: E402

SOURCE = os.path.dirname(os.path.dirname(os.path.dirname(HERE)))
PACKAGES = os.path.join(SOURCE, "build", "package")
STAGE = "/run/lab/stage"
UNIT = "quillon4-helper.service"
PACKAGED = "/usr/libexec/quillon4/Quillon4HelperTool"
SEED = "/usr/local/libexec/quillon4/seed/Quillon4HelperTool"
INSTALLED = "/usr/local/libexec/quillon4/Quillon4HelperTool"
OWN_FILES = (INSTALLED, "/usr/local/libexec/quillon4/folders",
             f"/usr/local/share/dbus-1/system-services/{HELPER}.service",
             f"/usr/local/share/dbus-1/system-services/{HELPER}.Removal.service",
             "/etc/systemd/system/quillon4-helper.service", "/etc/systemd/system/quillon4-helper-removal.service",
             f"/etc/dbus-1/system.d/{HELPER}.conf")
NEW, NEWER = "02:00:00:00:58:11", "02:00:00:00:58:12"
# What others write when a package comes or goes: its lists, logs and caches, and the copies of the lists of users.
OTHERS = ("/dev", "/proc", "/sys", "/run", "/tmp", "/home", "/var/lib/dpkg", "/var/log", "/var/cache", "/var/tmp",
          "/var/lib/systemd", SOURCE)
COPIES = {f"/etc/{name}-" for name in ("passwd", "group", "shadow", "gshadow", "subuid", "subgid")}


def package(*folder):
    found = glob.glob(os.path.join(PACKAGES, *folder, "quillon_*.deb"))
    if len(found) != 1:
        raise AssertionError(f"{os.path.join(PACKAGES, *folder)} has {len(found)} packages; "
                             "tools/package --next makes both")
    return found[0]


def install(*folder):
    run("dpkg", "--install", package(*folder))


def version():
    return run("dpkg-query", "--show", "--showformat=${Version}", "quillon")


def unit(name):
    return run("systemctl", "show", "--property", name, "--value", UNIT)


def helper():
    """The process that answers now, and its program."""
    bus("system", HELPER, "GetVersion")
    process = int(unit("MainPID"))
    # Its name as it was started: the file may be another one by now.
    with open(f"/proc/{process}/cmdline") as file:
        return process, file.read().split("\0")[0]


def everything():
    pruned = []
    for path in OTHERS:
        pruned += ["-path", path, "-prune", "-o"]
    return set(run("find", "/", "-xdev", *pruned, "-print").splitlines()) - COPIES


def hide_the_build():
    """What `cmake --install` has put below /usr/local goes, but for the seed: the package's is to be used."""
    for folder, _folders, names in os.walk(STAGE):
        for name in names:
            path = os.path.join(folder, name)[len(STAGE):]
            if path != SEED and os.path.lexists(path):
                os.remove(path)
    run("systemctl", "reload", "dbus")
    run("as-user", "busctl", "--user", "call", "org.freedesktop.DBus", "/", "org.freedesktop.DBus", "ReloadConfig")


class PackageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        hide_the_build()

    def setUp(self):
        self.forget()
        self.addCleanup(self.forget)
        self.factory = address(WIRED)
        self.addCleanup(self.put_back)

    def put_back(self):
        if address(WIRED) != self.factory:
            run("nmcli", "device", "set", WIRED, "managed", "no")
            run("ip", "link", "set", WIRED, "address", self.factory)
            run("nmcli", "device", "set", WIRED, "managed", "yes")

    def forget(self):
        if os.path.exists(INSTALLED):
            run(INSTALLED, "uninstall")
        run("dpkg", "--purge", "quillon")
        call("userdel", "quillon4-helper")

    def program(self):
        program = Program()
        self.addCleanup(program.end)
        return program

    def expect_own_files(self, are_there):
        self.assertEqual([path for path in OWN_FILES if os.path.lexists(path)], list(OWN_FILES) if are_there else [])

    def expect_helper(self, program, folder):
        _process, started = helper()
        self.assertEqual(started, program)
        self.assertEqual(os.path.realpath(os.path.dirname(unit("FragmentPath"))), os.path.realpath(folder))

    def expect_packaged(self):
        self.expect_own_files(False)
        self.expect_helper(PACKAGED, "/usr/lib/systemd/system")

    def expect_in_use(self, new):
        wait_until(lambda: address(WIRED) == new and ipv4(WIRED) and leases().get(ipv4(WIRED)) == new,
                   lambda: f"{WIRED} has {address(WIRED)} and {ipv4(WIRED)}, and no lease for {new}")

    def test_its_own_tests_hold(self):
        install()
        for name in ("change-address", "session"):
            with self.subTest(name):
                code, said = call(os.path.join(SOURCE, "debian", "tests", name))
                self.assertEqual(code, 0, said)
        self.assertEqual(address(WIRED), self.factory)

    def test_somebody_in_front_of_the_machine_changes_an_address(self):
        install()
        self.expect_packaged()
        program = self.program()
        self.assertTrue(program.change(WIRED, NEW).in_place)
        self.expect_in_use(NEW)
        self.assertTrue(program.change(WIRED, self.factory).in_place)
        # Nothing is to be installed, so nobody is asked for a password.
        self.assertTrue(program.press("install"))
        self.expect_packaged()

    def test_an_upgrade_while_the_program_runs(self):
        install()
        before = version()
        program = self.program()
        quillon = subprocess.Popen(("as-user", "env", "QT_QPA_PLATFORM=offscreen", "/usr/bin/quillon"),
                                   stdin=subprocess.DEVNULL)
        self.addCleanup(quillon.wait)
        self.addCleanup(quillon.terminate)
        self.assertTrue(program.change(WIRED, NEW).in_place)
        old, _started = helper()
        install("next")
        self.assertEqual(version(), before + "+next")
        self.assertEqual(address(WIRED), NEW, "the upgrade has changed the address")
        wait_until(lambda: helper()[0] != old, "the helper of before goes on")
        self.assertTrue(program.change(WIRED, NEWER).in_place)
        self.expect_in_use(NEWER)
        self.assertIsNone(quillon.poll(), "the program has ended")
        self.assertTrue(program.change(WIRED, self.factory).in_place)
        self.expect_packaged()

    def test_removal_and_purge_leave_nothing(self):
        before = everything()
        install()
        program = self.program()
        self.assertTrue(program.change(WIRED, NEW).in_place)
        process, _started = helper()
        run("dpkg", "--remove", "quillon")
        self.assertFalse(os.path.exists(f"/proc/{process}"), "the helper goes on")
        # What somebody has chosen holds, and works, until the machine is restarted.
        self.expect_in_use(NEW)
        self.assertFalse(program.change(WIRED, NEWER).in_place)
        self.assertEqual(address(WIRED), NEW)
        self.assertEqual(everything(), before)
        self.assertEqual(call("getent", "passwd", "quillon4-helper")[0], 0)
        run("dpkg", "--purge", "quillon")
        self.assertEqual(everything(), before)
        self.assertNotEqual(call("getent", "passwd", "quillon4-helper")[0], 0)
        self.assertNotEqual(call("getent", "group", "quillon4-helper")[0], 0)
        self.assertEqual(unit("LoadState"), "not-found")
        code, said = call("busctl", "call", HELPER, "/" + HELPER.replace(".", "/"), HELPER, "GetVersion")
        self.assertNotEqual(code, 0, said)

    def test_it_takes_over_from_a_helper_that_installed_itself(self):
        run(SEED, "install")
        self.expect_own_files(True)
        self.expect_helper(INSTALLED, "/etc/systemd/system")
        install()
        wait_until(lambda: helper()[1] == PACKAGED, "the helper of before goes on")
        self.expect_packaged()
        program = self.program()
        self.assertTrue(program.change(WIRED, NEW).in_place)
        self.assertTrue(program.change(WIRED, self.factory).in_place)
        # And no second one comes beside it.
        run(SEED, "install")
        self.expect_packaged()
        self.assertEqual(run("dpkg", "--verify", "quillon"), "")

    def test_a_helper_that_installs_itself_takes_over_from_it(self):
        install()
        self.expect_packaged()
        run("dpkg", "--remove", "quillon")
        run(SEED, "install")
        self.expect_own_files(True)
        self.expect_helper(INSTALLED, "/etc/systemd/system")
        # Its user stays where it is needed.
        run("dpkg", "--purge", "quillon")
        run("getent", "passwd", "quillon4-helper")
        self.expect_helper(INSTALLED, "/etc/systemd/system")
        self.assertEqual(call("as-user", "busctl", "call", HELPER, "/" + HELPER.replace(".", "/"), HELPER,
                              "ChangeAddressOfDevice", "ssbay", WIRED, NEW, "false", "32", *["0"] * 32)[0], 0)
        self.assertEqual(address(WIRED), NEW)


if __name__ == "__main__":
    unittest.main(verbosity=2)
