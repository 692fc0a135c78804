# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Networks of other kinds than the lab's own: an access point on the far side, and the radio joins it without an owner."""
import os
import subprocess

from guest import WIRELESS, call, run, wait_until

FOLDER = "/run/radio-networks"
FAR = ("ip", "netns", "exec", "far")
POINT = "wpa2"  # the far radio that is the access point
PASS_PHRASE = "quillon lab"


class Network:
    """What hostapd and wpa_supplicant are told. `point` and `station` are lines of their configurations."""

    def __init__(self, point, station=("key_mgmt=NONE",), country="UZ", ssid=b"lab-other"):
        self.point, self.station, self.country, self.ssid = point, station, country, ssid


def write(name, lines):
    path = os.path.join(FOLDER, name)
    with open(path, "w") as file:
        file.write("\n".join(lines) + "\n")
    return path


def is_associated():
    return call("iw", "dev", WIRELESS, "link")[1].startswith("Connected to")


def set_country(code):
    run("iw", "reg", "set", code)
    wait_until(lambda: f"country {code}:" in run("iw", "reg", "get").split("phy#")[0], f"the country is not {code}")


class Air:
    """The radio without an owner, and at most one access point."""

    def __init__(self):
        os.makedirs(FOLDER, exist_ok=True)
        run("nmcli", "device", "set", WIRELESS, "managed", "no")
        wait_until(lambda: not is_associated(), "NetworkManager does not let the radio go")
        run("systemctl", "stop", "lab-access-points.service")
        self.processes = []

    def start(self, name, *command):
        log = open(os.path.join(FOLDER, f"{name}.log"), "wb")
        with log:
            process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=log, stderr=log)
        self.processes.append(process)
        return process

    @staticmethod
    def log(name):
        with open(os.path.join(FOLDER, f"{name}.log"), errors="replace") as file:
            return file.read()

    def come_up(self, network):
        """The access point; returns its process."""
        set_country(network.country)
        path = write("hostapd.conf", (
            f"interface={POINT}", "driver=nl80211", f"ctrl_interface={FOLDER}/hostapd",
            f"country_code={network.country}", "ieee80211d=1", "wmm_enabled=1",
            f"ssid2={network.ssid.hex()}", *network.point))
        point = self.start("hostapd", *FAR, "/usr/sbin/hostapd", path)
        wait_until(lambda: "AP-ENABLED" in self.log("hostapd") or point.poll() is not None,
                   lambda: f"no access point: {self.log('hostapd')}")
        if point.poll() is not None:
            raise AssertionError(f"no access point: {self.log('hostapd')}")
        return point

    def join(self, network):
        point = self.come_up(network)
        path = write("wpa_supplicant.conf", (
            f"ctrl_interface={FOLDER}/wpa_supplicant", "sae_pwe=2", "network={", f"ssid={network.ssid.hex()}", "scan_ssid=1",
            *network.station, "}"))
        station = self.start("wpa_supplicant", "/usr/sbin/wpa_supplicant", "-D", "nl80211", "-i", WIRELESS, "-c", path)
        wait_until(lambda: "CTRL-EVENT-CONNECTED" in self.log("wpa_supplicant") or station.poll() is not None,
                   lambda: "not joined: " + self.log("wpa_supplicant") + self.log("hostapd"))
        return point

    def switch_channel(self, *words):
        run(*FAR, "hostapd_cli", "-p", f"{FOLDER}/hostapd", "-i", POINT, "chan_switch", *words)

    def leave(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait()
        self.processes = []
        wait_until(lambda: not is_associated(), "the radio stays associated")

    def end(self):
        self.leave()
        set_country("UZ")
        run("systemctl", "start", "lab-access-points.service")
        run("nmcli", "device", "set", WIRELESS, "managed", "yes")
        wait_until(lambda: call("as-user", "nmcli", "--wait", "60", "connection", "up", "lab-wpa2")[0] == 0,
                   "the radio does not come back")
