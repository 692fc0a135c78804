# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the rest of the system does around a change, under NetworkManager: it sleeps, a portal wants a log-in, another
user is in front, somebody logs in from afar."""
import os
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), ".."))

from case import NEW, ProgramCase, connect_radio, factory_address, is_managed, join  # noqa: E402
from guest import ACCESS_POINTS, WIRED, WIRELESS, address, call, network, run, wait_until  # noqa: E402
from program import Program  # noqa: E402
from sleep import sleep  # noqa: E402

PORTAL = "/etc/NetworkManager/conf.d/lab-portal.conf"
SERVER = """
import http.server, os
class Portal(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        is_open = os.path.exists("/run/lab-logged-in")
        body = b"NetworkManager is online\\n" if is_open else b"Who are you?\\n"
        self.send_response(200 if is_open else 302)
        if not is_open:
            self.send_header("Location", "http://192.0.2.1/log-in")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)
    def log_message(self, *_):
        pass
http.server.HTTPServer(("", 80), Portal).serve_forever()
"""


class SleepTest(ProgramCase):
    def test_an_address_holds_over_a_sleep(self):
        for device in (WIRED, WIRELESS):
            self.change(device, NEW[device])
        for _ in range(2):
            sleep()
            for device in (WIRED, WIRELESS):
                with self.subTest(device):
                    self.expect_in_use(device, NEW[device])

    def test_a_rules_change_holds_over_a_sleep(self):
        for device in (WIRED, WIRELESS):
            self.program.switch(self.program.make_rule(device), True)
        new = {device: self.wait_for_change(device, 1) for device in (WIRED, WIRELESS)}
        sleep()
        with self.subTest(WIRELESS):
            self.expect_in_use(WIRELESS, new[WIRELESS])
            self.assertEqual(self.program.history(WIRELESS), [new[WIRELESS]])
        with self.subTest(WIRED):
            # NetworkManager takes the link down for the sleep: when it is back, the cable may be another.
            self.expect_in_use(WIRED, self.wait_for_change(WIRED, 2))

    def test_a_change_that_a_sleep_interrupts(self):
        self.program.begin_change(WIRELESS, NEW[WIRELESS])
        sleep()
        # NetworkManager may have gone to sleep before it let go of the radio.
        told = []
        wait_until(lambda: told.extend(self.program.messages()) or told, "nothing is told")
        expected = {"Wi-Fi Address Changed": NEW, "Wi-Fi Address was not Changed": self.factory}
        self.assertIn(told[0], expected)
        self.expect_in_use(WIRELESS, expected[told[0]][WIRELESS])
        self.assertTrue(is_managed(WIRELESS))


class PortalTest(ProgramCase):
    interface = WIRELESS

    def setUp(self):
        super().setUp()
        self.addCleanup(connect_radio)
        server = subprocess.Popen(("ip", "netns", "exec", "far", "/usr/bin/python3", "-c", SERVER),
                                  stdin=subprocess.DEVNULL)
        self.addCleanup(server.wait)
        self.addCleanup(server.kill)
        with open(PORTAL, "w") as file:
            file.write("[connectivity]\nuri=http://192.0.2.1/check\ninterval=20\n")
        self.addCleanup(run, "nmcli", "general", "reload")
        self.addCleanup(os.unlink, PORTAL)
        run("nmcli", "general", "reload")
        # The wire leads around the portal.
        run("nmcli", "device", "disconnect", WIRED)
        self.addCleanup(run, "nmcli", "--wait", "90", "device", "connect", WIRED)
        self.addCleanup(lambda: os.path.exists("/run/lab-logged-in") and os.unlink("/run/lab-logged-in"))

    @staticmethod
    def connectivity():
        return run("nmcli", "networking", "connectivity", "check")

    def test_a_rule_waits_for_the_log_in_and_acts_once(self):
        wait_until(lambda: self.connectivity() == "portal", lambda: f"connectivity is {self.connectivity()}")
        # A rule that is switched on for the network that it is on would act at once.
        self.program.switch(self.program.make_rule(WIRELESS, ACCESS_POINTS["lab-open"].bssid), True)
        join("lab-open")
        wait_until(lambda: self.connectivity() == "portal", lambda: f"connectivity is {self.connectivity()}")
        time.sleep(10)
        self.assertEqual(self.program.history(WIRELESS), [], "it did not wait")
        with open("/run/lab-logged-in", "w"):
            pass
        wait_until(lambda: self.connectivity() == "full", lambda: f"connectivity is {self.connectivity()}")
        new = self.wait_for_change(WIRELESS, 1)
        self.expect_in_use(WIRELESS, new)
        self.assertEqual(network(), "lab-open")
        time.sleep(10)
        self.assertEqual(self.program.history(WIRELESS), [new])


class ProfileTest(ProgramCase):
    interface = WIRELESS

    def test_one_that_does_not_connect_by_itself(self):
        run("nmcli", "connection", "modify", "lab-wpa2", "connection.autoconnect", "no")
        self.addCleanup(run, "nmcli", "connection", "modify", "lab-wpa2", "connection.autoconnect", "yes")
        self.change(WIRELESS, NEW[WIRELESS])
        self.expect_in_use(WIRELESS, NEW[WIRELESS])
        self.assertEqual(network(), "lab-wpa2")


class LogInTest(ProgramCase):
    """Only an active local session may change addresses and control networks."""

    def log_in(self, *properties):
        """Another session; its number."""
        before = set(self.sessions())
        unit = f"lab-other-{time.monotonic_ns()}"
        run("systemd-run", f"--unit={unit}", "--property=PAMName=login", *properties, "sleep", "infinity")
        self.addCleanup(run, "systemctl", "stop", unit)
        wait_until(lambda: set(self.sessions()) - before, "there is no other session")
        return (set(self.sessions()) - before).pop()

    @staticmethod
    def sessions():
        return [line.split()[0] for line in run("loginctl", "list-sessions", "--no-legend").splitlines()]

    def expect_refusal(self):
        for device in (WIRED, WIRELESS):
            with self.subTest(device):
                changed = self.program.change(device, NEW[device])
                kind = "Ethernet" if device == WIRED else "Wi-Fi"
                self.assertEqual((changed.in_place, changed.address), (False, self.factory[device]))
                self.expect_among_told(f"{kind} Address was not Changed")
                self.expect_untouched(device)

    def expect_untouched(self, device):
        wait_until(lambda: call("has-lease", device)[0] == 0, f"{device} is without a network")
        self.assertTrue(is_managed(device))
        self.assertEqual(address(device), factory_address(device))

    def test_from_afar(self):
        session = self.log_in("--property=User=quillon")
        self.program.end()
        self.program = Program(session=session)
        self.expect_refusal()
        self.restart_program()

    def test_another_user_is_in_front(self):
        own = run("loginctl", "show-user", "quillon", "--property=Display", "--value")
        other = self.log_in("--property=User=root", "--property=TTYPath=/dev/tty2", "--property=TTYReset=yes",
                            "--property=StandardInput=tty-force", "--setenv=XDG_SEAT=seat0", "--setenv=XDG_VTNR=2",
                            "--setenv=XDG_SESSION_CLASS=user", "--setenv=XDG_SESSION_TYPE=tty")
        run("loginctl", "activate", other)
        self.addCleanup(run, "loginctl", "activate", own)
        wait_until(lambda: not self.is_active(own), "the session stays in front")
        self.expect_refusal()
        run("loginctl", "activate", own)
        wait_until(lambda: self.is_active(own), "the session does not come back to the front")
        self.change(WIRED, NEW[WIRED])

    @staticmethod
    def is_active(session):
        return run("loginctl", "show-session", session, "--property=Active", "--value") == "yes"


if __name__ == "__main__":
    from suite import main
    sys.exit(main(os.path.dirname(os.path.realpath(__file__)), os.path.basename(__file__)))
