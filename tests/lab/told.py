# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What an interface tells others on the wire beside its link-layer address. As a program, started by Listener: told.py
writes a line of JSON for each thing that somebody tells, until it is interrupted."""
import json
import os
import signal
import socket
import struct
import subprocess
import sys
import tempfile
import time
from collections import namedtuple

from capture import ALL_FRAMES, PACKET_ADD_MEMBERSHIP, PROMISCUOUS, SOL_PACKET, WIRE
from guest import wait_until

Told = namedtuple("Told", "time sender kind value")
NAME, IDENTIFIER, PARAMETERS, DUID, IPV6, MDNS, LLMNR = (
    "DHCP name", "DHCP identifier", "DHCP parameters", "DUID", "IPv6", "mDNS", "LLMNR")
ETHERNET, IPV4, VERSION6, UDP, ICMPV6 = 14, 0x0800, 0x86DD, 17, 58
DHCP_SERVER, DHCPV6_SERVER, MDNS_PORT, LLMNR_PORT = 67, 547, 5353, 5355
NEIGHBOR_SOLICITATION = 135
DHCP_HEADER, COOKIE = 240, b"\x63\x82\x53\x63"
HOST_NAME, PARAMETER_LIST, CLIENT_IDENTIFIER, FULL_NAME = 12, 55, 61, 81
NO_ADDRESS = bytes(16)


def dhcp_options(message):
    """Code and content of each option of a message for a DHCP server (RFC 2131)."""
    if message[DHCP_HEADER - 4:DHCP_HEADER] != COOKIE:
        return
    rest = message[DHCP_HEADER:]
    while len(rest) > 1 and rest[0] != 255:
        if rest[0] == 0:
            rest = rest[1:]
            continue
        yield rest[0], rest[2:2 + rest[1]]
        rest = rest[2 + rest[1]:]


def of_dhcp(message):
    for code, content in dhcp_options(message):
        if code == HOST_NAME:
            yield NAME, content.decode(errors="replace")
        elif code == FULL_NAME:  # after three octets of flags
            yield NAME, content[3:].decode(errors="replace")
        elif code == CLIENT_IDENTIFIER:
            yield IDENTIFIER, content.hex(":")
        elif code == PARAMETER_LIST:
            yield PARAMETERS, content.hex(":")


def of_dhcpv6(message):
    rest = message[4:]
    while len(rest) >= 4:
        code, length = struct.unpack_from(">HH", rest)
        if code == 1:
            yield DUID, rest[4:4 + length].hex(":")
        rest = rest[4 + length:]


def of_names(kind, message):
    """The names of questions and answers that are somebody's own: of their answers and proposals."""
    _, flags, questions, answers, proposals, _ = struct.unpack_from(">6H", message)
    if flags & 0x8000 and answers or proposals:
        yield kind, message[12:].hex()


def of_udp(segment):
    port, message = struct.unpack_from(">H", segment, 2)[0], segment[8:]
    if port == DHCP_SERVER:
        yield from of_dhcp(message)
    elif port == DHCPV6_SERVER:
        yield from of_dhcpv6(message)
    elif port in (MDNS_PORT, LLMNR_PORT) and len(message) >= 12:
        yield from of_names(MDNS if port == MDNS_PORT else LLMNR, message)


def of_frame(frame):
    """What a frame tells, each a kind and a value; damaged ones end in struct.error."""
    kind, packet = struct.unpack_from(">H", frame, 12)[0], frame[ETHERNET:]
    if kind == IPV4 and packet[9] == UDP:
        yield from of_udp(packet[(packet[0] & 15) * 4:])
    elif kind == VERSION6:
        source, content = packet[8:24], packet[40:]
        if source != NO_ADDRESS:
            yield IPV6, socket.inet_ntop(socket.AF_INET6, source)
        if packet[6] == UDP:
            yield from of_udp(content)
        elif packet[6] == ICMPV6 and content[0] == NEIGHBOR_SOLICITATION and source == NO_ADDRESS:
            # It asks whether anybody has the address that it is about to take.
            yield IPV6, socket.inet_ntop(socket.AF_INET6, content[8:24])


def listen():
    with socket.socket(socket.AF_PACKET, socket.SOCK_RAW, socket.htons(ALL_FRAMES)) as listener:
        listener.bind((WIRE, 0))
        listener.setsockopt(SOL_PACKET, PACKET_ADD_MEMBERSHIP,
                            struct.pack("iHH8x", socket.if_nametoindex(WIRE), PROMISCUOUS, 0))
        signal.signal(signal.SIGTERM, signal.default_int_handler)
        print("listening", flush=True)
        try:
            while True:
                frame, address = listener.recvfrom(4096)
                if address[2] == socket.PACKET_OUTGOING:
                    continue  # the far side's
                try:
                    for kind, value in of_frame(frame):
                        print(json.dumps([time.time(), frame[6:12].hex(":"), kind, value]), flush=True)
                except (struct.error, IndexError, ValueError):
                    continue
        except KeyboardInterrupt:
            pass


class Listener:
    """From when it is made until end()."""

    def __init__(self):
        self.folder = tempfile.TemporaryDirectory()
        self.path = os.path.join(self.folder.name, "told")
        with open(self.path, "w") as output:
            self.process = subprocess.Popen(
                ("ip", "netns", "exec", "far", sys.executable, "-B", os.path.realpath(__file__)),
                stdin=subprocess.DEVNULL, stdout=output)
        wait_until(lambda: self.lines() or self.process.poll() is not None, "nobody listens on the wire")

    def lines(self):
        with open(self.path) as file:
            return file.read().splitlines()

    def told(self, sender, since=0.0):
        """The values of each kind that this address has told since then, in order, each once."""
        found = {}
        for line in self.lines()[1:]:
            told = Told(*json.loads(line))
            values = found.setdefault(told.kind, []) if told.sender == sender and told.time >= since else []
            if told.value not in values:
                values.append(told.value)
        return found

    def end(self):
        self.process.terminate()
        self.process.wait()
        self.folder.cleanup()


if __name__ == "__main__":
    listen()
