# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Several computers of one person, for a test outside them: each is a sandbox within the test's own, with a home, buses,
a keyring, a display, a helper, interfaces and a loopback of its own (the outer one is made with --root --no-display
--no-helper). What the test serves is reached at the loopback of each of them (Network)."""
import json
import os
import shutil
import socket
import struct
import subprocess
import tempfile
import threading
import time

from program import DEADLINE, SANDBOX_TOOLS, accessibility, wait_until

HERE = os.path.dirname(os.path.realpath(__file__))
SANDBOX = os.path.join(os.path.dirname(SANDBOX_TOOLS), "sandbox")
USER = 61001  # who sits at the computers
PIECE = 65536
LOOK = 4  # seconds; from an edit to the end of the look that it brings, where nothing else goes on


class Computer:
    """Does what a person does there: computer.start() is Person.start() (person.py)."""

    def __init__(self, process, wire):
        self._process = process
        self._wire = wire
        self._rest = b""
        # As it is numbered here, whatever its number is inside.
        self._number = struct.unpack("3i", wire.getsockopt(socket.SOL_SOCKET, socket.SO_PEERCRED, 12))[0]

    def __getattr__(self, name):
        return lambda *arguments: self._ask(name, arguments)[0]

    def listener(self, port):
        """A socket that listens on its loopback."""
        return socket.socket(fileno=self._ask("listen", [port])[1][0])

    def ip(self, *words):
        """What is done to its interfaces from outside, as by a cable."""
        subprocess.run(["nsenter", f"--net=/proc/{self._number}/ns/net", "ip", *words], check=True,
                       stdin=subprocess.DEVNULL)

    def _ask(self, name, arguments):
        self._wire.sendall((json.dumps([name, arguments]) + "\n").encode())
        passed = []
        while b"\n" not in self._rest:
            data, descriptors, _, _ = socket.recv_fds(self._wire, PIECE, 1)
            if not data:
                raise AssertionError(f"the computer is gone: {self._process.wait(DEADLINE)}")
            passed += descriptors
            self._rest += data
        line, _, self._rest = self._rest.partition(b"\n")
        answer, problem = json.loads(line)
        if problem is not None:
            raise AssertionError(f"{name}: {problem}")
        return answer, passed

    def switch_off(self):
        self._wire.close()
        self._process.wait(DEADLINE)


def shared_folder():
    """One that the test and all computers see under the same path."""
    folder = tempfile.mkdtemp(prefix="shared-")
    os.chown(folder, USER, USER)
    os.chmod(folder, 0o755)
    return folder


def switch_on(count, shared):
    """So many computers, at the same time."""
    starting = []
    for number in range(count):
        path = os.path.join(shared, f"computer-{number}")
        server = socket.socket(socket.AF_UNIX)
        server.bind(path)
        server.listen()
        server.settimeout(DEADLINE)
        os.chown(path, USER, USER)
        process = subprocess.Popen(
            [SANDBOX, "--build", os.environ["QUILLON_BUILD"], "--bind", shared, "/usr/bin/python3", "-B",
             "-W", "ignore::DeprecationWarning", os.path.join(HERE, "person.py"), path], stdin=subprocess.DEVNULL)
        starting.append((process, server, path))
    computers = []
    for process, server, path in starting:
        computers.append(Computer(process, server.accept()[0]))
        server.close()
        os.unlink(path)
    return computers


class Network:
    """Carries what is sent to the loopback of a computer on to the test's own, where the server is."""

    def __init__(self, computers, port):
        self.computers, self.port = computers, port
        self.sockets, self.lock = [], threading.Lock()
        self.answers = threading.Event()
        self.answers.set()
        self.asked = {}
        self.plug()

    def plug(self):
        for computer in self.computers:
            listener = computer.listener(self.port)
            self._keep(listener)
            threading.Thread(target=self._serve, args=(computer, listener), daemon=True).start()

    def unplug(self):
        """Nobody listens any more, and what was under way is over."""
        with self.lock:
            sockets, self.sockets = self.sockets, []
        for used in sockets:
            try:
                used.shutdown(socket.SHUT_RDWR)  # wakes who waits for it, as close() does not
            except OSError:
                pass
            used.close()

    def hold_answers(self):
        """What the server says from now on does not arrive until let_through()."""
        self.answers.clear()
        self.asked = {}

    def let_through(self):
        self.answers.set()

    def wait_until_asked(self, computer):
        wait_until(lambda: self.asked.get(computer), "nothing was asked")

    def _keep(self, used):
        with self.lock:
            self.sockets.append(used)

    def _serve(self, computer, listener):
        while True:
            try:
                near = listener.accept()[0]
            except OSError:
                return
            try:
                far = socket.create_connection(("127.0.0.1", self.port))
            except OSError:
                near.close()
                continue
            self._keep(near)
            self._keep(far)
            threading.Thread(target=self._carry, args=(near, far, computer), daemon=True).start()
            threading.Thread(target=self._carry, args=(far, near, None), daemon=True).start()

    def _carry(self, source, target, asking):
        try:
            while data := source.recv(PIECE):
                if asking is not None:
                    self.asked[asking] = True
                else:
                    self.answers.wait()
                target.sendall(data)
            target.shutdown(socket.SHUT_WR)
        except OSError:
            pass


class TwoComputers:
    """For a unittest.TestCase: there are two, for all of its tests."""

    @classmethod
    def setUpClass(cls):
        cls.shared = shared_folder()
        cls.addClassCleanup(shutil.rmtree, cls.shared)
        cls.computers = cls.a, cls.b = switch_on(2, cls.shared)
        for computer in cls.computers:
            cls.addClassCleanup(computer.switch_off)

    def wait_on(self, computer, condition, what):
        """Until it is so there. A computer looks every three minutes, and at once when it has something to tell: so it
        is given that, again and again, for what it looks for may not have been sent yet."""
        end = time.monotonic() + DEADLINE
        while True:
            self.give_to_tell(computer)
            try:
                return wait_until(condition, what, LOOK)
            except accessibility.NotThere:
                if time.monotonic() > end:
                    raise

    def give_to_tell(self, computer):
        """Whether a hot key that has no keys is on."""
        computer.toggle("Randomize address")

    @staticmethod
    def rules_of(computer):
        return {rule["name"]: bool(rule["enabled"]) for rule in computer.records()["rules"]}
