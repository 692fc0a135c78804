# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Who sends on the air or on the wire. As a program, started by Capture: capture.py DEVICE ADDRESS writes a line for
each frame, with the kernel's time, its sender, its kind and whether it names ADDRESS behind its sender, until it is
interrupted; then how many frames it lost."""
import os
import signal
import socket
import struct
import subprocess
import sys
import tempfile
import time
from collections import Counter, namedtuple

from guest import run, wait_until

AIR, WIRE = "hwsim0", "wire"  # in the machine, and in the namespace "far"
ALL_FRAMES = 0x0003  # ETH_P_ALL
SOL_PACKET, PACKET_ADD_MEMBERSHIP, PACKET_STATISTICS = 263, 1, 6
PROMISCUOUS = 1  # PACKET_MR_PROMISC: also what is for groups that nobody here is in
SO_TIMESTAMPNS = 35
SO_RCVBUFFORCE = 33
MANAGEMENT, CONTROL, DATA = 0, 1, 2
WITHOUT_SENDER = (0xC, 0xD)  # CTS and acknowledgment
SUBTYPES = {(0, 0): "association", (0, 2): "reassociation", (0, 4): "probe", (0, 8): "beacon", (0, 10): "disassociation",
            (0, 11): "authentication", (0, 12): "deauthentication", (0, 13): "action", (2, 4): "empty", (2, 12): "empty"}
Frame = namedtuple("Frame", "time sender kind names_it")


def on_the_air(frame):
    """Sender and kind of a frame with its radiotap header; the sender is None where it is not told."""
    header = frame[struct.unpack_from("<H", frame, 2)[0]:]
    kind, subtype = header[0] >> 2 & 3, header[0] >> 4
    if len(header) < 16 or kind == CONTROL and subtype in WITHOUT_SENDER:
        return None, "control"
    name = {CONTROL: "control", DATA: "data"}.get(kind, "management")
    return header[10:16].hex(":"), SUBTYPES.get((kind, subtype), name)


def on_the_wire(frame):
    return frame[6:12].hex(":"), frame[12:14].hex()


def listen(device, wanted):
    read = on_the_air if device == AIR else on_the_wire
    wanted = bytes.fromhex(wanted.replace(":", ""))
    # In an IPv6 address that is made of it: RFC 4291, appendix A.
    identifier = bytes([wanted[0] ^ 2]) + wanted[1:3] + b"\xff\xfe" + wanted[3:]
    with socket.socket(socket.AF_PACKET, socket.SOCK_RAW, socket.htons(ALL_FRAMES)) as listener:
        listener.setsockopt(socket.SOL_SOCKET, SO_RCVBUFFORCE, 16 << 20)
        listener.setsockopt(socket.SOL_SOCKET, SO_TIMESTAMPNS, 1)
        listener.bind((device, 0))
        listener.setsockopt(SOL_PACKET, PACKET_ADD_MEMBERSHIP,
                            struct.pack("iHH8x", socket.if_nametoindex(device), PROMISCUOUS, 0))
        signal.signal(signal.SIGTERM, signal.default_int_handler)
        print("listening", flush=True)
        try:
            while True:
                frame, more, _, address = listener.recvmsg(4096, 64)
                sender, kind = read(frame)
                if sender is None or kind == "beacon" or address[2] == socket.PACKET_OUTGOING:
                    continue  # nobody's, or the far side's
                seconds, nanoseconds = struct.unpack("qq", more[0][2][:16])
                # On the air much is encrypted, and an address like 02:00:00:00:00:00 may be anything.
                names_it = device == WIRE and (wanted in frame[12:] or identifier in frame)
                print(f"{seconds}.{nanoseconds:09d} {sender} {kind} {names_it}")
        except KeyboardInterrupt:
            pass
        _, lost = struct.unpack("II", listener.getsockopt(SOL_PACKET, PACKET_STATISTICS, 8))
    print(f"lost {lost}", flush=True)


class Capture:
    """From when it is made until end()."""

    def __init__(self, device, address):
        inside = ("ip", "netns", "exec", "far") if device == WIRE else ()
        if device == AIR:
            run("ip", "link", "set", device, "up")
        self.folder = tempfile.TemporaryDirectory()
        self.path = os.path.join(self.folder.name, "frames")
        with open(self.path, "w") as output:
            self.process = subprocess.Popen(
                (*inside, sys.executable, "-B", os.path.realpath(__file__), device, address),
                stdin=subprocess.DEVNULL, stdout=output)
        wait_until(lambda: self.read() or self.process.poll() is not None, f"nothing captures on {device}")

    def read(self):
        with open(self.path) as file:
            return file.read().splitlines()

    def end(self):
        """All frames, and how many were lost."""
        time.sleep(1)  # what was sent is taken in
        self.process.terminate()
        self.process.wait()
        first, *lines, last = self.read()
        self.folder.cleanup()
        word, lost = last.split()
        if (first, word) != ("listening", "lost"):
            raise RuntimeError(f"the capture did not end well: {last}")
        frames = [Frame(float(at), sender, kind, names_it == "True")
                  for at, sender, kind, names_it in map(str.split, lines)]
        return frames, int(lost)


def count(frames, sender, begin=0.0, end=float("inf")):
    """The kinds of what it sent in a time, each with how often."""
    return Counter(frame.kind for frame in frames if frame.sender == sender and begin <= frame.time < end)


if __name__ == "__main__":
    listen(*sys.argv[1:])
