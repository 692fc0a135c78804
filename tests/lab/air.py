# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What happens to a radio's network: it roams, loses its access points, is blocked."""
import glob
import os

from case import ACTIVATED, state
from guest import ACCESS_POINTS, WIRELESS, call, run, wait_until

# Both of lab-wpa2, under lab-two-access-points.service.
TWO_ACCESS_POINTS = (ACCESS_POINTS["lab-wpa2"].bssid, "02:00:00:00:04:00")
SUPPLICANT = "fi.w1.wpa_supplicant1"
ONE, TWO = "lab-access-points.service", "lab-two-access-points.service"


def access_point():
    """The BSSID of the one that the radio is associated with, or None."""
    words = run("iw", "dev", WIRELESS, "link").split()
    return words[2] if words[:2] == ["Connected", "to"] else None


def use(unit):
    """ONE access point for each network, or TWO for lab-wpa2. The radio loses its own meanwhile."""
    run("systemctl", "start", unit)
    wait_until(lambda: access_point() and state(WIRELESS) == ACTIVATED, "the radio does not come back")


def roam():
    """To the other access point of lab-wpa2, on which it is. Returns its BSSID."""
    target, = set(TWO_ACCESS_POINTS) - {access_point()}

    def is_there():
        if access_point() == target:
            return True
        code, text = call("busctl", "call", SUPPLICANT, "/fi/w1/wpa_supplicant1", SUPPLICANT, "GetInterface", "s", WIRELESS)
        if code != 0:
            return False  # a rule of the program has just had the radio let go
        interface = text.split('"')[1]
        # It must have seen the other one first.
        call("nmcli", "device", "wifi", "list", "ifname", WIRELESS, "--rescan", "yes")
        call("busctl", "call", SUPPLICANT, interface, f"{SUPPLICANT}.Interface", "Roam", "s", target)
        return access_point() == target
    wait_until(is_there, f"the radio does not roam to {target}")
    return target


def block(is_blocked):
    """As the key for flight mode does it."""
    phy = os.path.basename(os.path.realpath(f"/sys/class/net/{WIRELESS}/phy80211"))
    switch, = glob.glob(f"/sys/class/ieee80211/{phy}/rfkill*/soft")
    with open(switch, "w") as file:
        file.write(str(int(is_blocked)))
