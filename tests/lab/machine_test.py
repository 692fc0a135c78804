# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The machine is as promised: a session, an owner of both interfaces, networks to join."""
import subprocess
import unittest

from guest import (ACCESS_POINTS, CHANGE, NEAR, NOBODY, WIRED, WIRELESS, as_user, call, ipv4, leases, links, network,
                   run, wait_until)

CONTROL = "org.freedesktop.NetworkManager.network-control"
RELOAD = "org.freedesktop.NetworkManager.reload"


def display():
    return run("loginctl", "show-user", "quillon", "--property=Display", "--value")


class SessionTest(unittest.TestCase):
    def allowed(self, action, *prefix):
        """Whether polkit allows it to a process that is started like this, without asking anybody."""
        process = subprocess.Popen([*prefix, "sh", "-c", "echo; exec sleep 600"], stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE)
        try:
            process.stdout.readline()  # it has become who it shall be
            code, text = call("pkcheck", "--action-id", action, "--process", str(process.pid))
            self.assertIn(code, (0, 2), text)  # 2: an administrator would have to agree
            return code == 0
        finally:
            process.kill()
            process.wait()
            process.stdout.close()

    def test_the_user_is_in_an_active_local_session(self):
        text = run("loginctl", "show-session", display(), *(
            f"--property={name}" for name in ("Active", "Remote", "Seat", "State", "Class")))
        self.assertEqual(set(text.split()), {"Active=yes", "Remote=no", "Seat=seat0", "State=active", "Class=user"})

    def test_what_as_user_runs_is_in_that_session(self):
        self.assertIn(f"/session-{display()}.scope", as_user("cat", "/proc/self/cgroup"))
        self.assertEqual(as_user("id", "-nu"), "quillon")
        self.assertEqual(as_user("id", "-nG"), "quillon", "an ordinary user is in no other group")

    def test_polkit_allows_what_an_active_session_may_and_no_more(self):
        self.assertTrue(self.allowed(CHANGE, "as-user"))
        self.assertTrue(self.allowed(CONTROL, "as-user"))
        self.assertFalse(self.allowed(RELOAD, "as-user"))

    def test_polkit_allows_nothing_outside_a_session(self):
        self.assertFalse(self.allowed(CHANGE, *NOBODY))
        self.assertFalse(self.allowed(CONTROL, *NOBODY))


class OwnerTest(unittest.TestCase):
    def test_networkmanager_manages_both_interfaces(self):
        text = run("nmcli", "--terse", "--fields", "DEVICE,TYPE,STATE", "device")
        devices = {line.split(":")[0]: line.split(":")[1:] for line in text.splitlines()}
        self.assertEqual(devices[WIRED], ["ethernet", "connected"])
        self.assertEqual(devices[WIRELESS], ["wifi", "connected"])

    def test_nothing_of_the_far_side_is_to_be_seen(self):
        cards = {name for name, link in links().items() if link["link_type"] == "ether"}
        self.assertEqual(cards, set(NEAR))

    def test_both_interfaces_have_addresses_from_the_server(self):
        for device in NEAR:
            self.assertEqual(leases()[ipv4(device)], links()[device]["address"])


class WireTest(unittest.TestCase):
    def carrier(self):
        with open(f"/sys/class/net/{WIRED}/carrier") as file:
            return file.read().strip() == "1"

    def test_its_plug_can_be_pulled_and_put_in(self):
        run("plug", "out")
        wait_until(lambda: not self.carrier(), "the carrier stayed")
        wait_until(lambda: ipv4(WIRED) is None, "NetworkManager did not give it up")
        run("plug", "in")
        wait_until(lambda: ipv4(WIRED), "NetworkManager did not take it up again")
        self.assertTrue(self.carrier())
        self.assertEqual(leases()[ipv4(WIRED)], links()[WIRED]["address"])


class AirTest(unittest.TestCase):
    def test_the_user_joins_each_network_in_turn(self):
        for name in ("lab-open", "lab-wpa3", "lab-wpa2"):
            with self.subTest(name):
                as_user("nmcli", "--wait", "60", "connection", "up", name)
                self.assertEqual(network(), name)
                self.assertTrue(ipv4(WIRELESS).startswith(ACCESS_POINTS[name].subnet), ipv4(WIRELESS))
                self.assertEqual(leases()[ipv4(WIRELESS)], links()[WIRELESS]["address"])

    def test_the_networks_are_protected_as_they_say(self):
        wanted = {name: point.security for name, point in ACCESS_POINTS.items()}
        wait_until(lambda: self.scan() == wanted, lambda: f"a scan shows {self.scan()}")

    def scan(self):
        text = as_user("nmcli", "--terse", "--fields", "SSID,SECURITY", "device", "wifi", "list", "--rescan", "yes")
        return dict(line.split(":") for line in text.splitlines())


if __name__ == "__main__":
    unittest.main(verbosity=2)
