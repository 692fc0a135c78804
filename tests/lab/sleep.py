# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Has the machine suspended, by logind, as a user does it. Its processes sleep for five seconds, while its devices do
not: the host's folders, in which the machine's output is, do not survive that (docs/lab.md)."""
import time

from guest import call, run, wait_until


def ended():
    """How often systemd has suspended the machine so far."""
    with open("/sys/power/suspend_stats/success") as file:
        return int(file.read())


def sleep():
    with open("/sys/power/pm_test", "w") as file:
        file.write("freezer")
    before = ended()
    run("systemctl", "suspend")
    wait_until(lambda: ended() > before, "the machine was not suspended")
    wait_until(lambda: call("systemctl", "is-active", "systemd-suspend.service")[0] != 0, "it does not wake up")
    time.sleep(1)
