# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The far end of a wire: a DHCP server that gives everybody the same address, and ears.
usage: far_side.py FOLDER DEVICE      FOLDER is tests/lab, whose told.py knows what is heard
Writes "listening", then a line "SENDER KIND VALUE" with tabs for each thing that somebody tells, until its input ends."""
import select
import socket
import struct
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, sys.argv[1])

import told  # noqa: E402

SERVER, GIVEN = bytes((192, 0, 2, 1)), bytes((192, 0, 2, 50))
UDP_HEADER, IP_HEADER, CLIENT_PORT = 8, 20, 68
DISCOVER, OFFER, REQUEST, ACKNOWLEDGMENT = 1, 2, 3, 5
MESSAGE_TYPE = 53


def checksum(header):
    total = sum(struct.unpack(f">{len(header) // 2}H", header))
    return ~(total + (total >> 16)) & 0xFFFF


def answer_to(frame):
    """The frame with which a DHCP server answers, or None."""
    packet = frame[told.ETHERNET:]
    if frame[12:14] != b"\x08\x00" or packet[9] != told.UDP:
        return None
    segment = packet[(packet[0] & 15) * 4:]
    if struct.unpack_from(">H", segment, 2)[0] != told.DHCP_SERVER:
        return None
    asked = segment[UDP_HEADER:]
    kind = {code: content[0] for code, content in told.dhcp_options(asked) if code == MESSAGE_TYPE}.get(MESSAGE_TYPE)
    if kind not in (DISCOVER, REQUEST):
        return None
    message = bytearray(told.DHCP_HEADER)
    message[0:4] = b"\x02\x01\x06\x00"
    message[4:8] = asked[4:8]
    message[10:12] = asked[10:12]
    message[16:20] = GIVEN
    message[20:24] = SERVER
    message[28:44] = asked[28:44]
    message[-4:] = told.COOKIE
    message += bytes((MESSAGE_TYPE, 1, OFFER if kind == DISCOVER else ACKNOWLEDGMENT, 54, 4)) + SERVER
    message += bytes((51, 4, 0, 0, 2, 0x58, 1, 4, 255, 255, 255, 0, 255))
    length = UDP_HEADER + len(message)
    header = struct.pack(">BBHHHBBH4s4s", 0x45, 0, IP_HEADER + length, 0, 0, 64, told.UDP, 0, SERVER, b"\xff" * 4)
    header = header[:10] + struct.pack(">H", checksum(header)) + header[12:]
    udp = struct.pack(">HHHH", told.DHCP_SERVER, CLIENT_PORT, length, 0)
    return b"\xff" * 6 + b"\x02\x00\x00\x00\x00\x01" + b"\x08\x00" + header + udp + bytes(message)


def main():
    with socket.socket(socket.AF_PACKET, socket.SOCK_RAW, socket.htons(told.ALL_FRAMES)) as wire:
        wire.bind((sys.argv[2], 0))
        print("listening", flush=True)
        while True:
            ready, _, _ = select.select([wire, sys.stdin], [], [])
            if sys.stdin in ready:
                return
            frame, address = wire.recvfrom(4096)
            if address[2] == socket.PACKET_OUTGOING:
                continue
            try:
                for kind, value in told.of_frame(frame):
                    print(frame[6:12].hex(":"), kind, value, sep="\t", flush=True)
                answer = answer_to(frame)
            except (struct.error, IndexError, ValueError):
                continue
            if answer:
                wire.send(answer)


main()
