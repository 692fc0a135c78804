# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The order in which the private machine is made, and its first process, which runs the command."""
import os
import signal
import subprocess
import sys
import time

import filesystem
import namespaces
import network
import services
import web
from common import QUILLON, SandboxError, log_folder, user_switch

__all__ = ["SandboxError", "run"]


def run(options, passed_on):
    """Makes the machine, runs the command and returns its exit code. This is process 1."""
    folder = os.getcwd()
    namespaces.private_mount_namespace()
    namespaces.unshare(namespaces.CLONE_NEWNET)
    filesystem.make(options, folder)
    web.install(options.build)
    try:
        started = services.Services(options, passed_on)
        network.make()
        started.start()
        network.wait_until_up()
        if options.helper:
            started.install_helper()
        started.wait()
    except SandboxError:
        show_logs()
        raise
    code = run_command(options, started.environment(options.root), folder)
    if code != 0:
        show_logs()
    return code


def run_command(options, environment, folder):
    """Runs the command one generation down: some programs (pkexec) refuse to be children of process 1."""
    session = os.fork()
    if session == 0:
        code = 126
        try:
            if not options.root:
                user_switch(QUILLON)
            try:
                os.chdir(folder)
            except OSError:
                os.chdir(environment["HOME"])
            process = subprocess.Popen(options.command, env=environment, restore_signals=True)
            code = process.wait()
            code = code if code >= 0 else 128 - code
        except FileNotFoundError as error:
            print(f"sandbox: {error}", file=sys.stderr)
            code = 127
        except OSError as error:
            print(f"sandbox: {error}", file=sys.stderr)
        finally:
            os._exit(code)
    while True:
        process, status = os.wait()  # process 1 also buries every orphan
        if process == session:
            code = os.waitstatus_to_exitcode(status)
            end_politely()
            return code if code >= 0 else 128 - code


def end_politely():
    """Lets programs under test end as they would at log-out, so that their last words reach the logs."""
    signal.signal(signal.SIGTERM, signal.SIG_IGN)
    try:
        os.kill(-1, signal.SIGTERM)
    except ProcessLookupError:
        return
    deadline = time.monotonic() + 0.05
    while time.monotonic() < deadline:
        try:
            process, _ = os.waitpid(-1, os.WNOHANG)
        except ChildProcessError:
            return
        if process == 0:
            time.sleep(0.002)


def show_logs():
    for name in sorted(os.listdir(log_folder())):
        with open(os.path.join(log_folder(), name), errors="replace") as log:
            lines = log.readlines()[-15:]
        if lines:
            print(f"--- sandbox: end of {name}", file=sys.stderr)
            sys.stderr.writelines(lines)
    sys.stderr.flush()
