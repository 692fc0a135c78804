# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the window must show of the radio's network, by what iw and ip say of it."""
import json
import re
import time

from guest import WIRELESS, run

# The texts that stand in the window, in no order.
FIELDS = ("name", "SSID", "BSSID", "ipAddress", "noise", "RSSI", "security", "txRate", "channel", "country", "phyMode",
          "mcs")
NOT_CONNECTED = {**dict.fromkeys(FIELDS, ""), "name": "Not currently connected..."}
BANDS = ((2400, 2500, "2.4 GHz"), (4900, 5925, "5 GHz"), (5925, 7125, "6 GHz"))
WIDTHS = {"20 MHz (no HT)": "20 MHz", "20 MHz": "20 MHz", "40 MHz": "40 MHz", "80 MHz": "80 MHz", "160 MHz": "160 MHz",
          "80+80 MHz": "160 MHz"}
# By the first word of an index in a rate, newest last.
GENERATIONS = (("MCS", "802.11n"), ("VHT-MCS", "802.11ac"), ("HE-MCS", "802.11ax"))
CAPABILITIES = (("HT capabilities", "802.11n"), ("VHT capabilities", "802.11ac"), ("HE capabilities", "802.11ax"))


def iw(*words):
    return run("iw", *words)


def value(text, name):
    """What stands behind a name at the beginning of a line; None when no line begins with it."""
    found = re.search(rf"^\s*{re.escape(name)}:[ \t]*(.*?)\s*$", text, re.MULTILINE)
    return found and found[1]


def name_of(escaped):
    """iw writes octets that are not printable ASCII as \\xNN."""
    octets = re.sub(rb"\\x([0-9a-f]{2})", lambda found: bytes([int(found[1], 16)]), escaped.encode())
    return octets.decode()


def channel(device):
    """As the window shows it, and its frequency; None when the interface has none any more."""
    words = re.search(r"channel (\d+) \(([\d.]+) MHz\), width: (.*?), center1", iw("dev", device, "info"))
    if words is None:
        return None
    number, frequency, width = words[1], float(words[2]), words[3]
    band = next((name for low, high, name in BANDS if low <= frequency < high), "Unknown")
    return f"{number} ({band}, {WIDTHS.get(width, 'Unknown')})", frequency


def noise(device, frequency):
    here = [entry for entry in iw("dev", device, "survey", "dump").split("Survey data from")
            if (told := value(entry, "frequency")) and float(told.split()[0]) == frequency]
    used = [entry for entry in here if "[in use]" in entry] or here
    return next((text for entry in used if (text := value(entry, "noise"))), "")


def index_of(rate):
    """The word of its generation and its index; none for a rate of before 802.11n."""
    found = re.search(r"(?:^|\s)((?:VHT-|HE-|EHT-)?MCS) (\d+)", rate or "")
    return (found[1], found[2]) if found else (None, "")


def joined_network(device):
    """What a scan has of the network that it is on."""
    entries = re.split(r"^BSS ", iw("dev", device, "scan", "dump"), flags=re.MULTILINE)
    return next((entry for entry in entries if "-- associated" in entry.split("\n", 1)[0]), "")


def suites(network, kind):
    """The authentications that an element RSN or WPA offers; none where there is no such element."""
    found = re.search(rf"^\t{kind}:(.*?)(?=^\t\S|\Z)", network, re.MULTILINE | re.DOTALL)
    words = found and value(found[1].replace("*", ""), "Authentication suites")
    return {"802.1X" if word.startswith("802.1X") else word.split("/")[0]
            for word in (words or "").replace("IEEE 802.1X", "802.1X").replace("FT/", "").split()}


def security(network):
    by_wpa, by_rsn = suites(network, "WPA"), suites(network, "RSN")
    if not by_wpa and not by_rsn:
        return "WEP" if "Privacy" in (value(network, "capability") or "") else "None"
    known = {("PSK", ""): "WPA Personal", ("PSK", "PSK"): "WPA Personal Mixed", ("", "PSK"): "WPA2 Personal",
             ("802.1X", ""): "WPA Enterprise", ("802.1X", "802.1X"): "WPA Enterprise Mixed",
             ("", "802.1X"): "WPA2 Enterprise"}
    return known.get((" ".join(sorted(by_wpa)), " ".join(sorted(by_rsn))), "Unknown")


def has_orthogonal_rate(network):
    rates = " ".join(value(network, name) or "" for name in ("Supported rates", "Extended supported rates"))
    return any(float(rate.rstrip("*")) in (6, 9, 12, 18, 24, 36, 48, 54) for rate in rates.split())


def mode(rates, network, band, is_old_channel):
    """By the newest rate in use; before there was one, by what the network offers."""
    words = [index_of(rate)[0] for rate in rates]
    if any(word == "EHT-MCS" for word in words):
        return "None"
    used = [name for word, name in GENERATIONS if word in words]
    offered = [] if is_old_channel else [name for word, name in CAPABILITIES if f"\t{word}:" in network]
    if used or offered:
        return (used or offered)[-1]
    if band != "2.4 GHz":
        return "802.11a"
    return "802.11g" if has_orthogonal_rate(network) else "802.11b"


def country():
    """The domain of all radios: they have none of their own here."""
    code = re.search(r"^global\s+country (\w\w):", iw("reg", "get"), re.MULTILINE)[1]
    return code if code.isalpha() else ""


def last_ipv4(device):
    found = json.loads(run("ip", "-json", "-4", "address", "show", "dev", device))
    return [entry["local"] for link in found for entry in link.get("addr_info", ())][-1:]


def shown(device=WIRELESS):
    """The fields, as they must be shown at this moment."""
    link = iw("dev", device, "link")
    if not link.startswith("Connected to"):
        return NOT_CONNECTED
    name = name_of(value(link, "SSID"))
    tuned = channel(device)
    station = iw("dev", device, "station", "dump")
    rates = [value(station, "tx bitrate"), value(station, "rx bitrate")]
    if tuned is None or rates[0] is None:
        # The access point was lost since the first question: these answers are of no one moment.
        return {"torn": time.monotonic()}
    place, frequency = tuned
    network = joined_network(device)
    is_old_channel = "(no HT)" in iw("dev", device, "info")
    return {
        "name": name,
        "SSID": name,
        "BSSID": link.split()[2].lower(),
        "ipAddress": "".join(last_ipv4(device)),
        "noise": noise(device, frequency),
        "RSSI": value(link, "signal"),
        "security": security(network),
        "txRate": f"{float(rates[0].split()[0]):g} Mbps",
        "channel": place,
        "country": country(),
        "phyMode": mode(rates, network, place.split("(")[1].split(",")[0], is_old_channel),
        "mcs": index_of(rates[0])[1],
    }
