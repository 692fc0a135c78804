# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""In the machine: what lasts of a change under the owner that it has. Prints a line of JSON for each interface: its
name, what every case came to, and whether each could be looked at. `tools/lab all` makes a table of them."""
import json
import os
import subprocess
import sys
import time

from guest import WIRED, WIRELESS, address, call, ipv4_addresses, leases, links, network, run
from program import Program

NEW = {WIRED: "02:00:00:00:55:11", WIRELESS: "02:00:00:00:55:22"}
PATIENCE = 120  # seconds that an owner has to come back
OWNERS = os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "..", "tools", "lab.d", "guest", "owners")


def becomes(condition):
    """Seconds until it holds; None when it does not in time."""
    begin = time.monotonic()
    while not condition():
        if time.monotonic() - begin > PATIENCE:
            return None
        time.sleep(0.1)
    return time.monotonic() - begin


def seconds(time_taken):
    return "no" if time_taken is None else f"{time_taken:.1f} s"


def yes(condition):
    return "yes" if condition else "no"


def has_lease(device):
    return call("has-lease", device)[0] == 0


def is_connected(device):
    return device in links() and has_lease(device) and (device == WIRED or network(device) is not None)


def leased_addresses(device):
    """The link-layer addresses for which the IPv4 addresses of the interface were given out."""
    return {leases().get(one) for one in ipv4_addresses(device)}


def ipv6(device):
    return run("ip", "-6", "-oneline", "address", "show", "dev", device)


def told(program):
    """What the program gave for missing."""
    time.sleep(2)  # messages go their own way, and there may be none
    titles = [title for title in program.messages() if not title.endswith("Address Changed")]
    return "; ".join(titles) or "nothing"


def interface_identifier(link_address):
    """As the kernel shows it in an address: RFC 4291, appendix A."""
    octets = [int(octet, 16) for octet in link_address.split(":")]
    octets = [octets[0] ^ 2, *octets[1:3], 0xFF, 0xFE, *octets[3:]]
    return ":".join(f"{octets[i] << 8 | octets[i + 1]:x}" for i in range(0, 8, 2))


def units(owner):
    """The services that an owner consists of, with those of the owners that it is made of."""
    found = []
    for name in ("based-on", "units"):
        path = os.path.join(OWNERS, owner, name)
        words = []
        if os.path.exists(path):
            with open(path) as file:
                words = [line.strip() for line in file if line.strip() and not line.startswith("#")]
        for word in words:
            found += units(word) if name == "based-on" else [word]
    return list(dict.fromkeys(found))


def lose_link(device):
    if device == WIRED:
        run("plug", "out")
        time.sleep(2)
        run("plug", "in")
    else:
        run("systemctl", "stop", "lab-access-points.service")
        becomes(lambda: network(device) is None)
        run("systemctl", "start", "lab-access-points.service")


def restart_owner():
    for unit in units(os.environ["QUILLON_LAB"]):
        if call("systemctl", "is-active", unit)[0] == 0:
            run("systemctl", "restart", unit)


def look_at(device):
    """What each case came to, in order."""
    if becomes(lambda: has_lease(device)) is None:
        return {"change": "no lease any more"}
    factory = address(device)
    new = NEW[device]
    # For comparison: what the owner and the machine do by themselves.
    lose_link(device)
    by_itself = seconds(becomes(lambda: is_connected(device)))
    program = Program()
    try:
        changed = program.change(device, new)
        if not changed.in_place:
            return {"change": "no"}
        found = {"change": f"{changed.seconds:.1f} s",
                 "told": told(program),
                 "network again": seconds(becomes(lambda: is_connected(device))),
                 "lease for it": yes(becomes(lambda: new in leased_addresses(device)) is not None),
                 "none of before": yes(factory not in leased_addresses(device)),
                 "IPv6 of before gone": yes(interface_identifier(factory) not in ipv6(device)),
                 "back after a loss": by_itself}
        for case, act in (("link lost", lambda: lose_link(device)), ("owner restarted", restart_owner)):
            act()
            back = seconds(becomes(lambda: is_connected(device)))
            # Given time to put an address of its own back.
            time.sleep(5)
            found[case] = yes(device in links() and address(device) == new) + f", back: {back}"
        restored = program.change(device, factory) if device in links() else None
        found["factory again"] = yes(restored and restored.in_place) + f", told: {told(program)}"
        return found
    finally:
        program.end()


def main():
    code = 0
    # Asked before anything is done to the owner, who has all of its interfaces to see to.
    owned = [device for device in (WIRED, WIRELESS) if has_lease(device)]
    for device in (WIRED, WIRELESS):
        try:
            found = look_at(device) if device in owned else {"change": "nobody's here"}
        except (AssertionError, OSError, KeyError, ValueError, subprocess.SubprocessError) as problem:
            found = {"change": f"could not be looked at: {problem}"}
            code = 1
        print("lasting " + json.dumps({"device": device, "cases": found}), flush=True)
    return code


sys.exit(main())
