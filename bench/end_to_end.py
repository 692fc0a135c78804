# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""End to end: from the kernel's report of an event to the helper's request, and what a storm of events does."""
import json
import os
import subprocess
import time

CARD = "eth5"
STORMY = ("eth10", "eth11", "eth12", "eth13")
EVENTS_PER_SECOND = 10_000
STORM_SECONDS = 10
QUIET = 100  # milliseconds without an event that end a burst
RIGHT_WITHIN = 10  # seconds
ON_DISK = "settings and records on disk"


def ip(*commands):
    subprocess.run(["ip", "-batch", "-"], input="\n".join(commands) + "\n", text=True, check=True)


def plug(name):
    ip(f"link add {name} type veth peer name far-{name}", f"link set {name} addrgenmode none",
       f"link set far-{name} addrgenmode none", f"link set {name} up")


def pull(name):
    ip(f"link set far-{name} down")


def connect(name):
    ip(f"link set far-{name} up")


def latency(report, program, rounds):
    taken = []
    for _ in range(rounds):
        pull(CARD)
        program.ask("status", "inactive")
        connect(CARD)
        changes = program.ask("status", "active")[0]
        ip(f"addr add 198.51.100.5/24 dev {CARD}", f"route add default via 198.51.100.1 dev {CARD}")
        taken.append(program.times("latency", changes)[0])
        # A link that goes while a change settles is not taken for a network that was left.
        program.ask("status", "active")
        ip(f"addr flush dev {CARD}")
    report.section("From the kernel's report to the helper's request",
                   f"a lease comes to an interface with a rule, {rounds} times; {ON_DISK}")
    report.times("default route told to change requested", taken)
    report.times(f"  of it beyond the {QUIET} ms that end a burst", [time - QUIET for time in taken])


def kernel_table():
    links = json.loads(subprocess.run(["ip", "-j", "addr"], check=True, capture_output=True).stdout)
    ipv4 = {link["ifname"]: [address["local"] for address in link["addr_info"] if address["family"] == "inet"]
            for link in links}
    return {link["ifname"]: [link["address"], "active" if link["operstate"] == "UP" else "inactive",
                             *(ipv4[link["ifname"]][:1] or [""])]
            for link in links if link["ifname"] in STORMY}


def program_table(program):
    words = program.ask("table")
    entries = {words[place]: words[place + 1:place + 4] for place in range(0, len(words), 4)}
    return {name: entry for name, entry in entries.items() if name in STORMY}


def blow(link_storm, seconds):
    """Milliseconds, and how many messages of links, addresses and routes the kernel sent meanwhile."""
    answer = subprocess.run([link_storm, str(EVENTS_PER_SECOND), str(seconds), *STORMY], check=True,
                            capture_output=True, text=True)
    milliseconds, _requests, links, addresses, routes, lost = map(int, answer.stdout.split())
    return milliseconds, links + addresses, routes, lost


def storm(report, program, link_storm):
    blow(link_storm, 1)  # what grows only once has grown then
    time.sleep(1)
    program.ask("watch")
    milliseconds, events, routes, lost = blow(link_storm, STORM_SECONDS)
    ended = time.monotonic()
    right = kernel_table()
    while program_table(program) != right and time.monotonic() - ended < RIGHT_WITHIN:
        time.sleep(0.01)
    is_right = program_table(program) == right
    until_right = time.monotonic() - ended
    stall, before, after, peak = program.ask("watched")
    report.section(f"A storm of {STORM_SECONDS} s over {len(STORMY)} interfaces",
                   f"messages of links and IPv4 addresses; those of routes come on top; {ON_DISK}",
                   columns=("", "", ""))
    report.row("messages per second", f"{1000 * events / milliseconds:,.0f}")
    report.row("  and of routes", f"{1000 * routes / milliseconds:,.0f}")
    if lost:
        report.line("even the counter lost some: it was more")
    report.row("longest stall of the main thread", f"{int(stall) / 1e6:.0f} ms")
    report.row("resident before, after, at most ever",
               *(f"{int(value) / 1024:.1f} MB" for value in (before, after, peak)))
    report.row("table as the kernel's after the end", f"{until_right:.2f} s" if is_right else "NEVER")


def measure(report, make_worker, build, folder, rounds):
    """`make_worker` makes one of the ordinary user's; `folder` is on the disk to be measured."""
    before = subprocess.run(["ip", "route", "show", "default"], check=True, capture_output=True, text=True)
    subprocess.run(["ip", "route", "flush", "exact", "default"], check=True)
    for name in (CARD, *STORMY):
        plug(name)
    program = make_worker("measure-end-to-end", folder, CARD)
    latency(report, program, rounds)
    for name in STORMY:
        connect(name)
    storm(report, program, os.path.join(build, "tests", "integration", "app", "link-storm"))
    program.end()
    for name in (CARD, *STORMY):
        ip(f"link del {name}")
    if before.stdout.strip():
        ip("route add " + before.stdout.strip())
