# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The plug of the wire: the machine asks by a file for it to be pulled or put in, since only QEMU can."""
import json
import os
import socket

from common import LabError

CARD = "wire"  # the machine's own card, by the name that QEMU has for it
WISH = "plug"  # what guest/bin/plug writes


class Plug:
    def __init__(self, job):
        self.wish = os.path.join(job, WISH)
        self.folder = os.open(job, os.O_PATH | os.O_DIRECTORY)
        self.answers = None

    def connect(self):
        self.connection = socket.socket(socket.AF_UNIX)
        self.connection.settimeout(30)
        # By a short name, as in machine.py.
        self.connection.connect(f"/proc/self/fd/{self.folder}/qmp")
        self.answers = self.connection.makefile("r")
        self.answers.readline()  # who it is
        self.ask("qmp_capabilities")

    def ask(self, command, **arguments):
        self.connection.sendall(json.dumps({"execute": command, "arguments": arguments}).encode() + b"\n")
        while "return" not in (answer := json.loads(self.answers.readline() or '{"error": "QEMU is gone"}')):
            if "error" in answer:
                raise LabError(f"QEMU cannot {command}: {answer['error']}")

    def look(self):
        """Does what the machine wishes, if it wishes anything; the wish goes when it is fulfilled."""
        try:
            with open(self.wish) as file:
                wish = file.read().strip()
        except FileNotFoundError:
            return
        if self.answers is None:
            self.connect()
        self.ask("set_link", name=CARD, up=wish == "in")
        os.unlink(self.wish)
