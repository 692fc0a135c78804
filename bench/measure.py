#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Measures everything, as root inside one sandbox, and prints the table. Started by tools/bench.

usage: bench/measure.py BUILD SETTINGS-FOLDER ROUNDS STARTS IDLE-SECONDS PART
"""
import json
import os
import random
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

import end_to_end
import history_window
import idle
import menu
import peers
import records
import sync
import vendors
from report import Report
from workers import USER, Failed, Worker, in_turns, processes_of

DEVICE = "enp2s0"
WARM_UP = 20
MANY = 1000
COLD_STARTS = 20


def address():
    return "02:" + ":".join(f"{random.randrange(256):02x}" for _ in range(5))


class Bench:
    def __init__(self, build, settings, rounds, starts, idle_seconds, part):
        self.build, self.settings = build, settings
        self.rounds, self.starts, self.idle_seconds = int(rounds), int(starts), int(idle_seconds)
        self.part = part
        self.folder = os.path.join(build, "bench")
        self.report = Report()
        self.ip = shutil.which("ip")
        self.macchanger = shutil.which("macchanger")

    def user_worker(self, program, *arguments):
        # The cold starts make connections break, and each is logged.
        return Worker(self.folder, program, *arguments, user=USER, log=subprocess.DEVNULL)

    def run(self):
        parts = {
            "change": self.change,
            "end-to-end": self.end_to_end,
            "start": self.start_and_idle,
            "menu": self.menu,
            "peers": self.peers,
            "interfaces": self.many_interfaces,
            "history": self.history,
            "history-window": self.history_window,
            "sync": self.sync,
            "vendors": self.vendors,
            "in-process": self.in_process,
        }
        for measure in parts.values() if self.part == "all" else (parts[self.part],):
            measure()
        self.report.print()

    # One address change

    def change(self):
        link = self.user_worker("measure-link", os.path.join(self.settings, "change.plist"))
        first = link.times("change", DEVICE, address())
        link.ask("connect")
        caller = link.ask("name")[0]
        helper = Worker(self.folder, "measure-helper")
        command = Worker(self.folder, "measure-command")
        whole = []

        def change():
            readback, announced = link.times("change", DEVICE, address())
            whole.append(announced)
            return readback

        taken = in_turns({
            "link": change,
            "macchanger": lambda: command.times(self.macchanger, "-r", DEVICE)[0],
            "ip": lambda: command.times(self.ip, "link", "set", DEVICE, "address", address())[0],
            "direct": lambda: link.times("direct", DEVICE, address())[0],
            "version": lambda: link.times("version")[0],
            "connect": lambda: link.times("connect")[0],
            "authorize": lambda: helper.times("authorize", caller)[0],
            "callers": lambda: helper.times("callers", caller)[0],
            "kernel": lambda: helper.times("kernel", DEVICE, address())[0],
        }, self.rounds, WARM_UP)
        taken["whole"] = whole[WARM_UP:]
        cold = self.cold(link)
        for worker in (link, helper, command):
            worker.end()
        self.report_change(taken, first, cold)

    def cold(self, link):
        """Changes for which the bus has to start the service and the helper."""
        taken = []
        for _ in range(COLD_STARTS):
            for program in ("Quillon4HelperTool", "quillon-xpc-service"):
                end_and_wait(program)
            # The program hears of it in its own time; that is no part of the next change.
            time.sleep(0.05)
            taken.append(link.times("change", DEVICE, address())[0])
        return taken

    def report_change(self, taken, first, cold):
        report = self.report
        report.section("One address change on a veth", f"{self.rounds} rounds in turns, after "
                       f"{WARM_UP} to warm up; service and helper are running unless said otherwise")
        ours = report.times("request to read-back, whole link", taken["link"])
        theirs = report.times("macchanger -r, a process", taken["macchanger"])
        ip = report.times("ip link set address, a process", taken["ip"])
        report.goal("whole link / macchanger", ours / theirs, 2)
        own = statistics.median(taken["direct"]) - statistics.median(taken["version"])
        report.row("helper's share, with polkit's decision", f"{own:.2f} ms")
        report.goal("helper's share / ip link set", own / ip, 1)
        # polkit's time varies by more than all the rest: a difference of medians would be chance.
        rest = min(taken["direct"]) - min(taken["version"]) - min(taken["authorize"])
        report.row("helper's share, without that decision", "", f"{rest:.2f} ms")
        report.row("  / ip link set", "", f"{rest / min(taken['ip']):.2f}x")
        report.section("Where it goes", "helper's share: a call of ChangeAddressOfDevice less one of GetVersion")
        report.times("service: endpoint and authorization", taken["connect"])
        report.times("helper: GetVersion, there and back", taken["version"])
        report.times("helper: ChangeAddressOfDevice, same way", taken["direct"])
        report.times("  of it polkit's CheckAuthorization", taken["authorize"])
        report.times("  of it the bus's two answers on the caller", taken["callers"])
        report.times("  of it the kernel: find, set, read back", taken["kernel"])
        report.times("request to stored and announced", taken["whole"])
        report.times("cold: service and helper are started", cold)
        report.row("the very first, polkit not running either", f"{first[0]:.2f} ms")

    # End to end

    def end_to_end(self):
        with tempfile.TemporaryDirectory(dir=self.settings) as folder:
            shutil.chown(folder, USER, USER)
            end_to_end.measure(self.report, self.user_worker, self.build, folder, max(10, self.rounds // 4))

    # The menus

    def menu(self):
        starter = self.user_worker("measure-start")
        menu.measure(self.report, starter, os.path.join(self.build, "src", "quillon"), max(10, self.rounds // 4))
        starter.end()

    # Other programs' windows

    def peers(self):
        programs = {"Quillon": os.path.join(self.build, "src", "quillon"),
                    peers.REFERENCE: os.path.join(self.folder, "reference-window")}
        write_rule = os.path.join(self.build, "tests", "integration", "app", "write-rule")
        peers.measure(self.report, self.user_worker, programs, write_rule, DEVICE, self.starts, self.idle_seconds)

    # Many interfaces

    def many_interfaces(self):
        before = len(os.listdir("/sys/class/net"))
        lines = []
        for number in range(MANY // 2):
            names = (f"enp{number}s7", f"eth{number}n7")
            lines.append(f"link add {names[0]} type veth peer name {names[1]}")
            for end, name in enumerate(names):
                host = 2 * number + end
                lines.append(f"addr add 10.{host // 256}.{host % 256}.1/24 dev {name}")
        subprocess.run([self.ip, "-batch", "-"], input="\n".join(lines) + "\n", text=True, check=True)
        link = self.user_worker("measure-link", os.path.join(self.settings, "many.plist"))
        command = Worker(self.folder, "measure-command")
        kept = set()

        def ports():
            nanoseconds, count = link.ask("ports")
            kept.add(count)
            return int(nanoseconds) / 1e6

        taken = in_turns({
            "ports": ports,
            "ip": lambda: command.times(self.ip, "-j", "addr")[0],
        }, self.rounds, WARM_UP)
        refreshes = in_turns({"refresh": lambda: link.times("refresh")[0]}, max(3, self.rounds // 40), 1)
        link.end()
        command.end()
        self.report.section(f"Reading {MANY} interfaces (and {before} others)",
                            f"{self.rounds} rounds in turns; {', '.join(kept)} ports kept")
        ours = self.report.times("NetlinkHost::ports(), a call", taken["ports"])
        theirs = self.report.times("ip -j addr, a process", taken["ip"])
        self.report.goal("our call / ip -j addr", ours / theirs, 0.5)
        self.report.times("updateNetWorkInterfaces(), settings on disk", refreshes["refresh"])

    # A long history

    def history(self):
        command = Worker(self.folder, "measure-command")
        with tempfile.TemporaryDirectory(dir=self.settings) as folder:
            records.measure(self.report, lambda path: Worker(self.folder, "measure-records", path),
                            command, folder, max(5, self.rounds // 20))
        command.end()

    def history_window(self):
        with tempfile.TemporaryDirectory(dir=self.settings) as folder:
            history_window.measure(self.report, lambda path: Worker(self.folder, "measure-history", path),
                                   lambda path: Worker(self.folder, "measure-records", path),
                                   folder, max(5, self.rounds // 20))

    # The vendor registry

    def sync(self):
        sync.measure(self.report, lambda: Worker(self.folder, "measure-sync"))

    def vendors(self):
        command = Worker(self.folder, "measure-command")
        with tempfile.TemporaryDirectory(dir=self.settings) as folder:
            vendors.measure(self.report, lambda path: Worker(self.folder, "measure-vendors", path),
                            command, folder, max(10, self.rounds // 4))
        command.end()

    def in_process(self):
        answer = subprocess.run([os.path.join(self.folder, "in-process"), "--benchmark_format=json"],
                                stdout=subprocess.PIPE, check=True)
        self.report.section("Within one process (Google Benchmark)", columns=("mean",))
        for row in json.loads(answer.stdout)["benchmarks"]:
            name = row["name"]
            if "big_o" in row:
                self.report.row(name, f"{row['big_o']}")
            elif "rms" not in row:
                self.report.row(name, f"{row['real_time']:.4g} {row['time_unit']}")

    # Start, memory, wake-ups

    def start_and_idle(self):
        starter = self.user_worker("measure-start")
        programs = {"Quillon": os.path.join(self.build, "src", "quillon"),
                    "the smallest Qt window": os.path.join(self.folder, "reference-window")}

        def start(path):
            nanoseconds, _ = starter.ask("start", path)
            # It has more to do than to show its window: let that end before the next one.
            time.sleep(0.3)
            starter.ask("end")
            time.sleep(0.2)
            return int(nanoseconds) / 1e6

        taken = in_turns({name: lambda path=path: start(path) for name, path in programs.items()},
                         self.starts, 3)
        self.report.section("Start to the first window on the display", f"{self.starts} starts in turns")
        medians = {name: self.report.times(name, times) for name, times in taken.items()}
        self.report.goal("Quillon / the smallest Qt window", medians["Quillon"] / medians["the smallest Qt window"], 1.8)
        starter.end()
        idle.measure(self.report, programs, self.user_worker, self.idle_seconds)


def end_and_wait(program):
    for process in processes_of(program):
        os.kill(process, signal.SIGTERM)
    deadline = time.monotonic() + 10
    while processes_of(program):
        if time.monotonic() > deadline:
            raise Failed(f"{program} does not end")
        time.sleep(0.005)


if __name__ == "__main__":
    try:
        Bench(*sys.argv[1:]).run()
    except Failed as problem:
        sys.exit(f"bench: {problem}")
