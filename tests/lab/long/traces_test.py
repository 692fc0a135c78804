# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the window says that the network still sees of the wire is what is seen there, before a change of the address and
after it. Under NetworkManager and under systemd-networkd:
tools/lab --owner networkd python3 -B tests/lab/suite.py tests/lab/long 'traces_test.py'"""
import os
import sys
import time
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), ".."))

from guest import WIRED, address, call, run, wait_until  # noqa: E402
from program import Program  # noqa: E402
from told import DUID, IDENTIFIER, IPV6, LLMNR, MDNS, NAME, Listener  # noqa: E402

NEW = "02:00:00:00:56:11"
FOLLOWS = "Changes with the address."
STAYS = ("Stays the same on this network.", "Stays the same on every network.")
GIVES_AWAY = "Gives the hardware address away."
# What the window calls each, and the kind that is heard on the wire.
LABELS = {"Name sent with DHCP": NAME, "DHCP client identifier": IDENTIFIER, "DHCPv6 identifier (DUID)": DUID,
          "IPv6 address": IPV6, "Name told by mDNS": MDNS, "Name told by LLMNR": LLMNR}
NOT_KNOWN = "Not known"


def connect_anew():
    run("plug", "out")
    wait_until(lambda: call("has-lease", WIRED)[0] != 0 or os.environ["QUILLON_LAB"] != "networkmanager",
               "it was not given up")
    time.sleep(2)
    run("plug", "in")
    wait_until(lambda: call("has-lease", WIRED)[0] == 0, "it is not connected again")


def parts(value):
    """Octets of a link-layer address as they stand in an identifier, or in an IPv6 address that is made of it."""
    octets = bytes.fromhex(value.replace(":", ""))
    groups = bytes([octets[0] ^ 2]) + octets[1:3] + b"\xff\xfe" + octets[3:]
    return value, ":".join(f"{groups[i] << 8 | groups[i + 1]:x}" for i in range(0, 8, 2))


def kept(value):
    """What of a DHCP identifier is the machine's: without what is made for the interface (RFC 4361)."""
    return value[15:] if value.startswith("ff:") else value


class TracesTest(unittest.TestCase):
    interface = WIRED

    def setUp(self):
        wait_until(lambda: call("has-lease", WIRED)[0] == 0, "it is not connected")
        self.factory = address(WIRED)
        self.listener = Listener()
        self.addCleanup(self.listener.end)
        self.program = Program()
        self.addCleanup(self.program.end)
        self.addCleanup(lambda: self.program.change(WIRED, self.factory))

    def look(self, when, sender, since):
        """What the window says, by label, and what is heard, by kind; both agree."""
        # A client has asked by then, and so has the kernel.
        wait_until(lambda: {IDENTIFIER, NAME, IPV6} & self.listener.told(sender, since).keys(), "nothing is told")
        time.sleep(5)
        said, heard = self.program.traces(WIRED), self.listener.told(sender, since)
        for row in said:
            print(f"    {when}, said: {' | '.join(row)}", file=sys.stderr)
        for kind, values in heard.items():
            print(f"    {when}, heard: {kind} {values}", file=sys.stderr)
        for label, kind in LABELS.items():
            with self.subTest(f"{when}: {kind}"):
                values = [row.value for row in said if row.label == label]
                if NOT_KNOWN not in values and not any(value.startswith("Made ") for value in values):
                    self.assertLessEqual(set(heard.get(kind, ())), set(values), "something is seen that is not said")
                if kind in (NAME, IDENTIFIER):
                    self.assertEqual(bool(values), bool(heard.get(kind)), "something is said that is not seen")
        return said, heard

    def test_before_and_after_a_change(self):
        begin = time.time()
        connect_anew()
        said, before = self.look("before", self.factory, begin)
        begin = time.time()
        self.assertTrue(self.program.change(WIRED, NEW).in_place)
        said_after, after = self.look("after", NEW, begin)
        for rows, values in ((said, after), (said_after, after)):
            for row in rows:
                kind = LABELS.get(row.label)
                if row.value not in before.get(kind, ()):
                    continue  # it is not seen before, and so nothing can be said of its change
                with self.subTest(f"{row.label} {row.value}"):
                    if row.hint.startswith(FOLLOWS):
                        self.assertNotIn(row.value, values.get(kind, ()))
                    elif row.hint.startswith(STAYS):
                        self.assertIn(kept(row.value), map(kept, values.get(kind, ())))
        for row in said_after:
            if row.hint.startswith(GIVES_AWAY):
                self.assertTrue(any(part in row.value for part in parts(self.factory)), row)
        everything = [value for values in after.values() for value in values]
        named = [value for value in everything if any(part in value for part in parts(self.factory))]
        given_away = [row.value for row in said_after if row.hint.startswith(GIVES_AWAY)]
        self.assertLessEqual(set(named), set(given_away), "the factory address is seen, and not said")


if __name__ == "__main__":
    from suite import main
    sys.exit(main(os.path.dirname(os.path.realpath(__file__)), os.path.basename(__file__)))
