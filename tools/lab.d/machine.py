# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The virtual machine: how it is started, watched and ended."""
import json
import os
import subprocess
import sys
import time

from common import GUEST, SOURCE, LabError
from namespaces import die_with_parent
from plug import CARD, Plug

MEMORY = "1024"
TIMED_OUT = 124
# The emulated processor: acceleration by the host's is not there on every machine that tests, and a test
# that passes with it may not without.
PROCESSOR = ["-accel", "tcg,thread=multi,tb-size=512", "-cpu", "max", "-smp", "2", "-m", MEMORY]
NOTHING_ELSE = ["-nodefaults", "-no-user-config", "-display", "none", "-monitor", "none", "-no-reboot"]
# The wire: two cards on one hub. Their places on the bus give them their names: enp0s5 is the machine's own,
# and guest/air/make-far-side takes the other one away.
WIRE = ["-netdev", "hubport,id=near,hubid=0", "-netdev", "hubport,id=far,hubid=0",
        "-device", f"virtio-net-pci,id={CARD},netdev=near,addr=5,mac=52:54:00:00:53:01,romfile=",
        "-device", "virtio-net-pci,netdev=far,addr=6,mac=52:54:00:00:53:02,romfile="]


def shares(build):
    """What of the host is seen inside, by the names under which QEMU gives it."""
    inside = os.path.commonpath([SOURCE, build]) == SOURCE
    return {"source": SOURCE} if inside else {"source": SOURCE, "build": build}


def prepare(options, job, passed_on):
    """What the machine reads at its start."""
    def write(name, text):
        with open(os.path.join(job, name), "w") as file:
            file.write(text)
    write("guest", f"{GUEST}\n")
    write("owner", f"{options.owner}\n")
    write("shares", "".join(f"{name} {path}\n" for name, path in shares(options.build).items()))
    write("command", json.dumps({"command": options.command, "folder": os.getcwd(), "source": SOURCE,
                                 "build": options.build, "environment": passed_on,
                                 "logs": options.logs is not None}))
    for name in ("stdout", "stderr"):
        write(name, "")


def command(image, options, job):
    def share(name, path, more):
        return ["-fsdev", f"local,id={name},path={path.replace(',', ',,')},security_model=none{more}",
                "-device", f"virtio-9p-pci,fsdev={name},mount_tag={name}"]
    line = ["qemu-system-x86_64", "-machine", "q35", *PROCESSOR, *NOTHING_ELSE,
            "-kernel", image.path("kernel.image"), "-initrd", image.path("initramfs"),
            "-append", "console=ttyS0 panic=-1 quiet net.ifnames=1 systemd.show_status=0 "
                       "systemd.log_target=journal random.trust_cpu=1 mitigations=off audit=0",
            "-qmp", "unix:qmp,server=on,wait=off",  # in the job's folder: the path of a socket may not be long
            "-serial", f"file:{os.path.join(job, 'console').replace(',', ',,')}",
            # What is written goes to a file without a name, and away with the machine.
            "-drive", f"if=virtio,format=raw,snapshot=on,file={image.path('disk').replace(',', ',,')}",
            "-device", "virtio-rng-pci", *WIRE, *share("job", job, "")]
    for name, path in shares(options.build).items():
        line += share(name, path, ",readonly=on")
    return line


class Output:
    """What the command writes, as it comes."""

    def __init__(self, path, stream):
        self.file = open(path, "rb")
        self.stream = stream

    def pass_on(self):
        while piece := self.file.read(65536):
            self.stream.buffer.write(piece)
            self.stream.flush()


def run(image, options, job):
    """Starts the machine and waits for the command's end. Returns its exit code."""
    started = time.monotonic()
    with open(os.path.join(job, "qemu.log"), "wb") as log:
        try:
            process = subprocess.Popen(command(image, options, job), cwd=job, stdin=subprocess.DEVNULL, stdout=log,
                                       stderr=log, preexec_fn=die_with_parent)
        except OSError as error:
            raise LabError(f"QEMU cannot be started: {error} (tools/setup installs it)") from error
    outputs = [Output(os.path.join(job, "stdout"), sys.stdout), Output(os.path.join(job, "stderr"), sys.stderr)]
    done = os.path.join(job, "rc")
    plug = Plug(job)
    try:
        while not (finished := os.path.exists(done)) and process.poll() is None:
            if time.monotonic() - started > options.limit:
                print(f"lab: the machine was ended after {options.limit:.0f} s", file=sys.stderr)
                return TIMED_OUT
            for output in outputs:
                output.pass_on()
            plug.look()
            time.sleep(0.03)
        # It may have said its last word and ended since we looked.
        finished = finished or os.path.exists(done)
        for output in outputs:
            output.pass_on()
    finally:
        process.kill()
        process.wait()
    if not finished:
        raise LabError("the machine ended before the command did")
    if os.path.exists(broken := os.path.join(job, "broken")):
        with open(broken) as file:
            raise LabError(file.read().strip())
    with open(done) as file:
        return int(file.read())
