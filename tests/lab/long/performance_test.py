# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""From the request to the interface's being connected with a lease for the new address, under the owner that the
machine has: Quillon beside what else there is, in turns. Prints rows of a table; how long it takes fails nothing."""
import ctypes
import fcntl
import os
import socket
import statistics
import struct
import sys
import time
import unittest
from concurrent.futures import ThreadPoolExecutor

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), ".."))

from guest import DEADLINE, WIRED, WIRELESS, as_user, call, leases, run, wait_until  # noqa: E402
from program import Program  # noqa: E402

ROUNDS = 7
PATIENCE = 30  # seconds to a lease; who needs longer never gets one
OWNER = os.environ["QUILLON_LAB"]
HAS_NETWORK_MANAGER = OWNER.startswith("networkmanager")
SIOCGIFCONF = 0x8912


def read(device, name):
    try:
        with open(f"/sys/class/net/{device}/{name}") as file:
            return file.read().strip()
    except OSError:  # it is down, or being made anew
        return ""


def ipv4_addresses(device):
    """Without a process for each look: here that would be seen in the figures."""
    room = ctypes.create_string_buffer(40 * 64)
    asked = bytearray(struct.pack("iP", len(room), ctypes.addressof(room)))
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as any_socket:
        fcntl.ioctl(any_socket, SIOCGIFCONF, asked)
    entries = room.raw[:struct.unpack("iP", asked)[0]]
    return [socket.inet_ntoa(entries[at + 20:at + 24]) for at in range(0, len(entries), 40)
            if entries[at:at + 16].split(b"\0")[0].decode() == device]


def is_connected(device, address):
    if read(device, "address") != address or read(device, "carrier") != "1":
        return False
    given = leases()
    return any(given.get(one) == address for one in ipv4_addresses(device))


def seconds_until_connected(device, address, begin):
    """None when it does not come to that."""
    while not is_connected(device, address):
        if time.monotonic() - begin > PATIENCE:
            return None
        time.sleep(0.01)
    return time.monotonic() - begin


class Quillon:
    name = "Quillon"

    def __init__(self, device):
        self.device = device
        self.program = Program()
        self.hands = ThreadPoolExecutor(1)

    def change(self, address):
        self.changing = self.hands.submit(self.program.change, self.device, address)

    def finish(self):
        """What it does beyond that must not be in the next one's figures."""
        self.changing.result(DEADLINE)

    def end(self):
        self.hands.shutdown()
        self.program.end()


class Nmcli:
    name = "nmcli, cloned address"

    def __init__(self, device):
        self.profile = run("nmcli", "--get-values", "GENERAL.CONNECTION", "device", "show", device)
        kind = "802-11-wireless" if device == WIRELESS else "802-3-ethernet"
        self.setting = f"{kind}.cloned-mac-address"

    def change(self, address):
        run("nmcli", "connection", "modify", self.profile, self.setting, address)
        run("nmcli", "--wait", str(PATIENCE), "connection", "up", self.profile)

    def finish(self):
        pass

    def let_go(self):
        """The profile's address would win over everybody else's, and is in force until the next activation."""
        run("nmcli", "connection", "modify", self.profile, self.setting, "")
        run("nmcli", "--wait", str(PATIENCE), "connection", "up", self.profile)

    def end(self):
        self.let_go()


class Macchanger:
    name = "macchanger, down and up"

    def __init__(self, device):
        self.device = device

    def change(self, address):
        run("ip", "link", "set", self.device, "down")
        run("macchanger", "--mac", address, self.device)
        run("ip", "link", "set", self.device, "up")

    def finish(self):
        pass

    def end(self):
        pass


def reconnect(device):
    """What happens to every interface: the link is lost, or the person connects it anew."""
    if HAS_NETWORK_MANAGER:
        as_user("nmcli", "--wait", str(PATIENCE), "device", "disconnect", device)
        wait_until(lambda: call("as-user", "nmcli", "--wait", "60", "device", "connect", device)[0] == 0,
                   f"{device} does not come back")
    elif device == WIRED:
        run("plug", "out")
        time.sleep(2)
        run("plug", "in")
    else:
        run("systemctl", "restart", "lab-access-points.service")


def begin_anew(device):
    """A network for the address that there is, whatever went before."""
    if HAS_NETWORK_MANAGER:
        connections = call("nmcli", "--get-values", "GENERAL.CONNECTION", "device", "show", device)[1]
        if not connections:
            reconnect(device)
    elif OWNER == "ifupdown":
        call("ifdown", "--force", device)
        run("ifup", device)
    elif OWNER == "wpa_supplicant":
        run("systemctl", "restart", f"dhclient@{device}.service")
    wait_until(lambda: is_connected(device, read(device, "address")), f"{device} has no network any more")


class Row:
    def __init__(self, device, way, number):
        self.device, self.way, self.number = device, way, number
        self.taken = []
        self.failed = 0

    def round(self, count):
        if self.failed == 2:
            return
        address = f"02:00:00:{0x60 + self.number:02x}:{count:02x}:{0x11 if self.device == WIRED else 0x22:02x}"
        begin = time.monotonic()
        self.way.change(address)
        taken = seconds_until_connected(self.device, address, begin)
        self.way.finish()
        if taken is None:
            self.failed += 1
            begin_anew(self.device)
        else:
            self.taken.append(taken)

    def holds(self):
        """Whether its address is still there after the interface was connected anew."""
        address = f"02:00:00:{0x60 + self.number:02x}:ff:{0x11 if self.device == WIRED else 0x22:02x}"
        self.way.change(address)
        got = seconds_until_connected(self.device, address, time.monotonic())
        self.way.finish()
        reconnect(self.device)
        end = time.monotonic() + PATIENCE
        while not is_connected(self.device, read(self.device, "address")) and time.monotonic() < end:
            time.sleep(0.1)
        here = read(self.device, "address") == address
        return ("yes" if here else "no") + ("" if got else ", and no lease for it")

    def text(self, holds):
        times = [f"{value(self.taken):.2f} s" if self.taken else "never"
                 for value in (min, statistics.median, max)]
        return f"| {OWNER} | {self.device} | {self.way.name} | {' | '.join(times)} | {len(self.taken)} | {holds} |"


class RequestToConnectedTest(unittest.TestCase):
    def measure(self, device):
        if not is_connected(device, read(device, "address")):
            print(f"\n| {OWNER} | {device} | nobody's here | | | | | |", flush=True)
            return
        kinds = (Quillon, Nmcli, Macchanger) if HAS_NETWORK_MANAGER else (Quillon, Macchanger)
        rows = [Row(device, kind(device), number) for number, kind in enumerate(kinds)]
        for row in rows:
            self.addCleanup(row.way.end)
            # It has begun: its first calls are of its start.
            row.way.change(f"02:00:00:{0x60 + row.number:02x}:fe:00")
            row.way.finish()
            if isinstance(row.way, Nmcli):
                row.way.let_go()
            begin_anew(device)
        for count in range(ROUNDS):
            for row in rows:
                row.round(count)
                if isinstance(row.way, Nmcli):
                    row.way.let_go()
        for row in rows:
            holds = row.holds()
            if isinstance(row.way, Nmcli):
                row.way.let_go()
            print("\n" + row.text(holds), flush=True)
            begin_anew(device)
        for row in rows:
            self.assertTrue(row.failed == 2 or len(row.taken) + row.failed == ROUNDS, row.way.name)

    def test_wired(self):
        self.measure(WIRED)

    def test_radio(self):
        self.measure(WIRELESS)


if __name__ == "__main__":
    unittest.main(verbosity=2)
