# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Two computers with the built program that are signed in to one account on a real web server."""
import os
import subprocess

from computers import Network, TwoComputers
from davserver import PORT, Lighttpd
from program import wait_until

PASSPHRASE = "correct horse battery staple"
ROOM = 512 * 1024  # bytes, on the server


class SignedIn(TwoComputers):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.server = Lighttpd(trusted=True)
        cls.addClassCleanup(cls.server.remove)
        cls.server.stop()
        # A disk of its own, so that it can be full.
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={ROOM}", "disk", cls.server.files], check=True)
        cls.addClassCleanup(subprocess.run, ["umount", cls.server.files], check=True)
        cls.addClassCleanup(cls.server.stop)
        cls.server.start()
        cls.network = Network(cls.computers, PORT)
        cls.addClassCleanup(cls.network.unplug)
        for computer in cls.computers:
            computer.start()
            cls.addClassCleanup(computer.end)
            computer.sign_in(cls.server.account, PASSPHRASE, computer is cls.a)

    def restart(self, computer):
        """What has failed is tried again after a while, and by a start at once."""
        self.assertEqual(computer.end(), 0)
        computer.start()

    def expect_on(self, computer, record):
        self.wait_on(computer, lambda: record in computer.records()["history"],
                     lambda: f"there are {computer.records()['history']}")

    def expect_equal(self):
        self.wait_on(self.b, lambda: self.a.records() == self.b.records(),
                     lambda: f"{self.a.records()} is not {self.b.records()}")

    def path(self, name=""):
        """In the account."""
        return os.path.join(self.server.files, "Quillon", name)

    def in_account(self):
        """Whole files of ours and their sizes: a server may write them under other names first."""
        names = [name for name in os.listdir(self.path()) if name in ("key", "head") or name.endswith(".change")]
        return {name: os.stat(self.path(name)).st_size for name in names}

    def send_from_a(self):
        names = set(self.in_account())
        record = self.a.randomize()
        self.wait_for_new(names)
        return record

    def wait_for_new(self, names):
        wait_until(lambda: set(self.in_account()) - names, "nothing was sent")
