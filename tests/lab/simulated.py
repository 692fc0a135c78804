# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Takes the simulated radio away, as if it were unplugged, and puts it in again: by the netlink family of
mac80211_hwsim (drivers/net/wireless/virtual/mac80211_hwsim.h)."""
import os
import socket
import struct

from guest import WIRELESS, links, run

NETLINK_GENERIC = 16
REQUEST, ACK = 1, 4
ERROR = 2
CONTROL, GET_FAMILY, FAMILY_ID, FAMILY_NAME = 0x10, 3, 1, 2
NEW_RADIO, DEL_RADIO = 4, 5
SUPPORTS_P2P, RADIO_NAME, PERMANENT_ADDRESS = 14, 17, 22


def attribute(kind, value=b""):
    padding = b"\0" * (-len(value) % 4)
    return struct.pack("=HH", 4 + len(value), kind) + value + padding


def ask(family, command, *attributes):
    """The answer's attributes, by their kind; an error of the kernel's is raised."""
    payload = struct.pack("=BBH", command, 1, 0) + b"".join(attributes)
    with socket.socket(socket.AF_NETLINK, socket.SOCK_RAW, NETLINK_GENERIC) as connection:
        connection.settimeout(60)
        connection.send(struct.pack("=IHHII", 16 + len(payload), family, REQUEST | ACK, 1, 0) + payload)
        answer = connection.recv(65536)
    if struct.unpack_from("=H", answer, 4)[0] == ERROR:
        code, = struct.unpack_from("=i", answer, 16)
        if code < 0:
            raise OSError(-code, os.strerror(-code))
        return {}  # done; the kernel answers with the number of a new radio in the place of the error
    found, offset = {}, 20
    while offset < len(answer):
        size, kind = struct.unpack_from("=HH", answer, offset)
        found[kind] = answer[offset + 4:offset + size]
        offset += (size + 3) & ~3
    return found


def radios():
    """The family's number."""
    return struct.unpack("=H", ask(CONTROL, GET_FAMILY, attribute(FAMILY_NAME, b"MAC80211_HWSIM\0"))[FAMILY_ID])[0]


def unplug():
    phy = os.path.basename(os.path.realpath(f"/sys/class/net/{WIRELESS}/phy80211"))
    ask(radios(), DEL_RADIO, attribute(RADIO_NAME, phy.encode() + b"\0"))


def plug_in(address):
    """A radio with that factory address, under the name that it had before."""
    ask(radios(), NEW_RADIO, attribute(PERMANENT_ADDRESS, bytes.fromhex(address.replace(":", ""))),
        attribute(SUPPORTS_P2P))
    new, = (link for link in links().values() if link.get("permaddr", link["address"]) == address)
    if new["ifname"] != WIRELESS:
        run("ip", "link", "set", new["ifname"], "down")
        run("ip", "link", "set", new["ifname"], "name", WIRELESS)
