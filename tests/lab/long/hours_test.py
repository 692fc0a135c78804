# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Many changes, rules, roams and owner's restarts in one run of the program, in an order that a number seeds: it does
not grow, leaves nothing behind, and every address holds. The environment's QUILLON_LAB_MINUTES says how long, and
QUILLON_LAB_SEED what seeds."""
import os
import plistlib
import random
import sys
import time
from collections import Counter, namedtuple

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), ".."))

import air  # noqa: E402
from case import ACTIVATED, ProgramCase, connect_radio, is_managed, join, state  # noqa: E402
from guest import NEAR, address, call, ipv4, leases, run, wait_until  # noqa: E402
from program import FOLDER  # noqa: E402
from sleep import sleep  # noqa: E402

MINUTES = float(os.environ.get("QUILLON_LAB_MINUTES", "5"))
SEED = int(os.environ.get("QUILLON_LAB_SEED", "1"))
WARM_UP = 6  # acts after which the program has loaded what it needs
# Of the program: kB of memory that it alone has, descriptors, threads, and the processes that it has started.
Size = namedtuple("Size", "memory descriptors threads children")
# What may come on top: history records, and what an allocator keeps for a while.
GROWTH = Size(6144, 4, 2, 0)


def size_of(process):
    def lines(path):
        with open(path) as file:
            return dict(line.split(":", 1) for line in file if ":" in line)
    folder = f"/proc/{process}"
    memory = lines(f"{folder}/smaps_rollup")
    kilobytes = sum(int(memory[kind].split()[0]) for kind in ("Private_Clean", "Private_Dirty"))
    children = call("pgrep", "--parent", str(process))[1].split()
    return Size(kilobytes, len(os.listdir(f"{folder}/fd")), int(lines(f"{folder}/status")["Threads"]), len(children))


class HoursTest(ProgramCase):
    speed = 5

    def setUp(self):
        air.use(air.TWO)
        self.addCleanup(air.use, air.ONE)
        super().setUp()
        self.addCleanup(connect_radio)
        self.random = random.Random(SEED)
        self.begin = time.monotonic()
        self.every = {}  # the rules of each interface that act every minute

    def log(self, text):
        print(f"    {time.monotonic() - self.begin:7.1f} s  {text}", file=sys.stderr, flush=True)

    def one_of(self, *choices):
        return self.random.choice(choices)

    # What may happen: each says what it did.

    def change_by_hand(self):
        device = self.one_of(*NEAR)
        new = f"02:00:00:{':'.join(f'{self.random.randrange(256):02x}' for _ in range(3))}"
        changed = self.program.change(device, new)
        self.assertEqual((changed.in_place, changed.address), (True, new))
        return f"{device} changed to {new} in {changed.seconds:.1f} s"

    def toggle_every_minute(self):
        device = self.one_of(*NEAR)
        if device not in self.every:
            self.every[device] = [self.program.make_rule(device, minutes=1), False]
        rule, is_on = self.every[device]
        self.program.switch(rule, not is_on)
        self.every[device][1] = not is_on
        return f"the rule of {device} is {'off' if is_on else 'on'}"

    def roam(self):
        if not air.access_point() in air.TWO_ACCESS_POINTS:
            join("lab-wpa2")
        return f"roamed to {air.roam()}"

    def join_another(self):
        name = self.one_of("lab-open", "lab-wpa2", "lab-wpa3")
        join(name)
        return f"joined {name}"

    def reconnect(self):
        device = self.one_of(*NEAR)
        # A rule may have it let go at that moment.
        call("as-user", "nmcli", "--wait", "90", "device", "disconnect", device)
        call("as-user", "nmcli", "--wait", "90", "device", "connect", device)
        return f"{device} reconnected"

    def restart_owner(self):
        run("systemctl", "restart", "NetworkManager.service")
        return "NetworkManager restarted"

    def kill_owner(self):
        # Killed before it has noted what it connected, it only looks at the interfaces the next time.
        self.expect_at_rest()
        run("systemctl", "kill", "--signal=KILL", "NetworkManager.service")
        wait_until(lambda: call("nmcli", "general")[0] == 0, "NetworkManager does not come back")
        return "NetworkManager killed"

    def pull_plug(self):
        run("plug", "out")
        time.sleep(2)
        run("plug", "in")
        return "plug pulled"

    def block(self):
        air.block(True)
        time.sleep(2)
        air.block(False)
        return "radio blocked and not"

    def sleep(self):
        sleep()
        return "slept"

    def idle(self):
        time.sleep(20)
        return "idle"

    def is_at_rest(self):
        """Both interfaces are on their networks, each with a lease for the address that it has."""
        return all(state(device) == ACTIVATED and is_managed(device) and
                   leases().get(ipv4(device)) == address(device) for device in NEAR)

    def expect_at_rest(self):
        wait_until(self.is_at_rest, lambda: f"not at rest: { {device: (state(device), address(device)) for device in NEAR} }")

    def released(self):
        """What the program has had its owner let go of and not taken back, by its settings."""
        with open(os.path.join(FOLDER, "settings.plist"), "rb") as file:
            return plistlib.load(file).get("releasedDevices", [])

    def test_it_neither_grows_nor_leaves_anything_behind(self):
        acts = [self.change_by_hand] * 4 + [self.toggle_every_minute, self.roam, self.roam, self.join_another,
                                            self.join_another, self.reconnect, self.restart_owner, self.kill_owner,
                                            self.pull_plug, self.block, self.sleep, self.idle]
        process = int(run("pgrep", "--newest", "--full", f"lab-program {FOLDER}"))
        done, before = Counter(), None
        while sum(done.values()) <= WARM_UP or time.monotonic() - self.begin < MINUTES * 60:
            act = self.random.choice(acts)
            self.log(act())
            done[act.__name__] += 1
            if not any(is_on for _, is_on in self.every.values()):
                self.expect_at_rest()
            if sum(done.values()) == WARM_UP:
                before = size_of(process)
                self.log(f"{before}")
        for rule, is_on in self.every.values():
            if is_on:
                self.program.switch(rule, False)
        self.expect_at_rest()
        after = size_of(process)
        changes = sum(len(self.program.history(device)) for device in NEAR)
        self.log(f"{after}; {changes} addresses set, {sum(done.values())} acts: {dict(done)}")
        for before_of, after_of, growth, name in zip(before, after, GROWTH, Size._fields):
            with self.subTest(name):
                self.assertLessEqual(after_of, before_of + growth, f"{name} has grown")
        self.assertEqual(self.released(), [])
        self.assertEqual(call("pgrep", "--full", "--", "--take-back")[1], "", "guards are left")
        self.assertEqual([line for line in run("ps", "-axo", "state,args").splitlines()
                          if line.startswith("Z") and "lab-program" in line], [], "zombies are left")


if __name__ == "__main__":
    from suite import main
    sys.exit(main(os.path.dirname(os.path.realpath(__file__)), os.path.basename(__file__)))
