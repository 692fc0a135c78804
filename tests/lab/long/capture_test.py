# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Once an address is changed, nothing is sent with the factory address any more, whatever happens to the network. The
environment's QUILLON_LAB_RECONNECTS says how often each interface roams and reconnects."""
import os
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), ".."))

import air  # noqa: E402
from capture import AIR, WIRE, Capture, count  # noqa: E402
from case import NEW, ProgramCase, connect_radio, join  # noqa: E402
from guest import WIRED, WIRELESS, as_user, ipv4, run, wait_until  # noqa: E402
from program import UNKNOWN_NETWORK  # noqa: E402
from sleep import sleep  # noqa: E402

RECONNECTS = int(os.environ.get("QUILLON_LAB_RECONNECTS", "20"))


def reconnect(device):
    as_user("nmcli", "device", "disconnect", device)
    as_user("nmcli", "--wait", "90", "device", "connect", device)


class CaptureCase(ProgramCase):
    def setUp(self):
        super().setUp()
        self.capture = Capture(AIR if self.interface == WIRELESS else WIRE, self.factory[self.interface])

    def do(self, times, *acts):
        """Acts in turn, so many times in all; after each the interface is on its network with its address."""
        for i in range(times):
            name, act = acts[i % len(acts)]
            with self.subTest(f"{name}, {i + 1}"):
                act()
                self.expect_in_use(self.interface, self.new)

    def expect_nothing_of_the_factory_address(self, asked, said):
        frames, lost = self.capture.end()
        factory = self.factory[self.interface]
        named = [frame for frame in frames if frame.names_it and frame.time >= said]
        after = count(frames, factory, said)
        own = count(frames, self.new, said)
        for when, found in (("before", count(frames, factory, 0, asked)),
                            ("during", count(frames, factory, asked, said)),
                            ("after", after), ("after, with the new address", own)):
            print(f"    {self.interface}, {when}: {sum(found.values())} frames {dict(found)}", file=sys.stderr)
        for frame in [frame for frame in frames if frame.sender == factory and frame.time >= said][:20]:
            print(f"    {frame.time - said:.2f} s after: {frame.kind}", file=sys.stderr)
        self.assertEqual(lost, 0, "frames were not seen")
        self.assertGreater(sum(own.values()), 0, "the new address sends nothing: the capture sees nothing")
        self.assertEqual(sum(after.values()), 0, f"sent with the factory address: {dict(after)}")
        self.assertEqual(named, [], "frames name the factory address")


class RadioCaptureTest(CaptureCase):
    interface = WIRELESS

    def setUp(self):
        air.use(air.TWO)
        self.addCleanup(air.use, air.ONE)
        super().setUp()
        self.addCleanup(connect_radio)

    def expect_nothing_whatever_happens(self, asked, said):
        def lose_access_points():
            run("systemctl", "restart", air.TWO)
            wait_until(air.access_point, "the radio does not come back")

        def block():
            air.block(True)
            wait_until(lambda: air.access_point() is None and ipv4(WIRELESS) is None, "it is not blocked")
            air.block(False)
            wait_until(air.access_point, "the radio does not come back")
        join("lab-wpa2")
        self.do(RECONNECTS, *[("roam", air.roam)] * 3, ("reconnected", lambda: reconnect(WIRELESS)),
                *((name, lambda name=name: join(name)) for name in ("lab-open", "lab-wpa3", "lab-wpa2")))
        join("lab-wpa2")
        self.do(4, ("slept", sleep), ("access points gone and back", lose_access_points), ("blocked and not", block),
                ("NetworkManager restarted", lambda: run("systemctl", "restart", "NetworkManager.service")))
        self.expect_nothing_of_the_factory_address(asked, said)

    def test_after_a_persons_change(self):
        time.sleep(2)
        asked = time.time()
        self.new = NEW[WIRELESS]
        self.change(WIRELESS, self.new)
        self.expect_nothing_whatever_happens(asked, time.time())

    def test_after_a_rules_change(self):
        self.addCleanup(connect_radio)
        asked = time.time()
        self.program.switch(self.program.make_rule(WIRELESS, UNKNOWN_NETWORK, NEW[WIRELESS]), True)
        self.new = self.wait_for_change(WIRELESS, 1)
        said = time.time()
        self.do(3, *((name, lambda name=name: join(name)) for name in ("lab-open", "lab-wpa3", "lab-wpa2")))
        self.expect_nothing_of_the_factory_address(asked, said)


class WireCaptureTest(CaptureCase):
    interface = WIRED

    def test_after_a_persons_change(self):
        def pull_plug():
            run("plug", "out")
            wait_until(lambda: ipv4(WIRED) is None, "NetworkManager did not give it up")
            run("plug", "in")
        time.sleep(2)
        asked = time.time()
        self.new = NEW[WIRED]
        self.change(WIRED, self.new)
        said = time.time()
        self.do(RECONNECTS, ("reconnected", lambda: reconnect(WIRED)), ("plug pulled", pull_plug),
                ("activated anew", lambda: as_user("nmcli", "--wait", "60", "device", "connect", WIRED)))
        self.do(2, ("slept", sleep), ("NetworkManager restarted", lambda: run("systemctl", "restart", "NetworkManager.service")))
        self.expect_nothing_of_the_factory_address(asked, said)


if __name__ == "__main__":
    from suite import main
    sys.exit(main(os.path.dirname(os.path.realpath(__file__)), os.path.basename(__file__)))
