# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the cases in the lab's machine use: commands as root and as the user, and what the kernel says."""
import json
import subprocess
import time
from collections import namedtuple

WIRED, WIRELESS = "enp0s5", "wlan0"
NEAR = (WIRED, WIRELESS)
HELPER = "com.orvandel.Quillon4HelperTool"
SERVICE = "com.orvandel.Quillon4XPCService"
CHANGE = "com.orvandel.quillon4.change-address"
NOBODY = ("setpriv", "--reuid=nobody", "--regid=nogroup", "--clear-groups")  # a user without a session
# As tools/lab.d/guest/air makes them: the beginning of the addresses there, and what NetworkManager calls it.
AccessPoint = namedtuple("AccessPoint", "subnet security bssid")
ACCESS_POINTS = {"lab-open": AccessPoint("198.51.100.", "", "02:00:00:00:01:00"),
                 "lab-wpa2": AccessPoint("198.51.100.", "WPA2", "02:00:00:00:02:00"),
                 "lab-wpa3": AccessPoint("203.0.113.", "WPA3", "02:00:00:00:03:00")}
DEADLINE = 120  # seconds; only a hang takes that long, however busy the machine is


def call(*command):
    """A command's exit code and everything that it said."""
    result = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, text=True)
    return result.returncode, result.stdout.strip()


def run(*command):
    """What a command said, which must succeed."""
    code, text = call(*command)
    if code != 0:
        raise AssertionError(f"{' '.join(command)} ended with {code}:\n{text}")
    return text


def as_user(*command):
    """In the active local session of the ordinary user."""
    return run("as-user", *command)


def bus(where, name, member, *arguments):
    """A method of an object of ours, all of which are named like their interface; called by the user."""
    return as_user("busctl", f"--{where}", "call", name, "/" + name.replace(".", "/"), name, member, *arguments)


def wait_until(condition, what, seconds=DEADLINE):
    end = time.monotonic() + seconds
    while not (answer := condition()):
        if time.monotonic() > end:
            raise AssertionError(f"{what() if callable(what) else what} within {seconds} s")
        time.sleep(0.05)
    return answer


def links():
    return {link["ifname"]: link for link in json.loads(run("ip", "-json", "link"))}


def address(device):
    """The link-layer address in use, as the kernel says it."""
    return links()[device]["address"]


def ipv4_addresses(device):
    found = json.loads(run("ip", "-json", "-4", "address", "show", "dev", device))
    return [entry["local"] for link in found for entry in link.get("addr_info", ())]


def ipv4(device):
    """The first IPv4 address, or None."""
    return next(iter(ipv4_addresses(device)), None)


def network(device=WIRELESS):
    """The name of the network that the radio is associated with, by the kernel; None when with none."""
    for line in run("iw", "dev", device, "link").splitlines():
        if line.strip().startswith("SSID: "):
            return line.split(": ", 1)[1]
    return None


def leases():
    """What the DHCP server has given out: IPv4 address and the link-layer address that asked for it."""
    with open("/run/lab-leases") as file:
        return {fields[2]: fields[1] for fields in map(str.split, file) if len(fields) > 3}
