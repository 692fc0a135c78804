# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the parts of the sandbox share: its users, its folders and how to wait."""
import os
import time
from collections import namedtuple

User = namedtuple("User", "name id home")
# Outside every range that Debian gives to people, system users, containers or dynamic services.
QUILLON = User("quillon", 61001, "/home/quillon")
MALLORY = User("mallory", 61002, "/home/mallory")
USERS = (QUILLON, MALLORY)

STATE = "/run/quillon-sandbox"
# Only a hang takes that long, however busy the machine is.
DEADLINE = 120.0


class SandboxError(Exception):
    """The machine could not be made; the text says why."""


def log_folder():
    return os.path.join(STATE, "log")


def runtime_folder(user):
    return f"/run/user/{user.id}"


def user_switch(user):
    os.setgroups([])
    os.setgid(user.id)
    os.setuid(user.id)


def wait_until(condition, what, seconds=DEADLINE):
    """Asks at short distances, growing to 20 ms; raises SandboxError with `what` when time is up."""
    end = time.monotonic() + seconds
    pause = 0.001
    while not condition():
        if time.monotonic() > end:
            raise SandboxError(f"{what} did not happen within {seconds:.0f} s")
        time.sleep(pause)
        pause = min(pause * 1.5, 0.02)
