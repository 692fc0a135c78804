# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The interfaces of the private machine, named as on a real one; their far ends are elsewhere."""
import os
import signal
import subprocess

import namespaces
from common import SandboxError, wait_until

# Addresses from the ranges that are reserved for documentation.
HERE = """\
link set lo up
link add enp1s0 address 00:00:5e:00:53:01 type veth peer name port1 netns {far}
link add enp2s0 address 00:00:5e:00:53:02 type veth peer name port2 netns {far}
link add br0 address 00:00:5e:00:53:10 type bridge
link set enp2s0 addrgenmode none
link set enp1s0 up
link set enp2s0 up
link set br0 up
addr add 192.0.2.10/24 broadcast + dev enp1s0
route add default via 192.0.2.1
"""
THERE = """\
link set lo up
link set port1 up
link set port2 up
addr add 192.0.2.1/24 dev port1
"""
HERE_6 = "addr add fd00:db8::10/64 dev enp1s0 nodad\n"
THERE_6 = "addr add fd00:db8::1/64 dev port1 nodad\n"


def quiet_ipv6():
    """No probing and soliciting: its late messages would be changes that no test has made."""
    for name, value in (("accept_dad", "0"), ("router_solicitations", "0"), ("accept_ra", "0")):
        for kind in ("all", "default"):
            try:
                with open(f"/proc/sys/net/ipv6/conf/{kind}/{name}", "w") as file:
                    file.write(value)
            except OSError:
                pass  # /proc/sys is read-only in some containers: then the messages come


def open_low_ports():
    """An ordinary user may stand in for a web server, on the ports of web servers."""
    try:
        with open("/proc/sys/net/ipv4/ip_unprivileged_port_start", "w") as file:
            file.write("0")
    except OSError:
        pass  # /proc/sys is read-only in some containers: then only root may


def hold_far_namespace():
    """A process that does nothing but keep the namespace of the far ends."""
    ready_read, ready_write = os.pipe()
    process = os.fork()
    if process == 0:
        try:
            namespaces.unshare(namespaces.CLONE_NEWNET)
            quiet_ipv6()
            signal.signal(signal.SIGTERM, signal.SIG_IGN)
            os.write(ready_write, b"!")
            for descriptor in (0, 1, 2, ready_read, ready_write):
                os.close(descriptor)
            while True:
                signal.pause()
        finally:
            os._exit(1)
    os.close(ready_write)
    ready = os.read(ready_read, 1)
    os.close(ready_read)
    if ready != b"!":
        raise SandboxError("the namespace for the far ends could not be made")
    return process


def batch(commands, prefix=()):
    result = subprocess.run([*prefix, "ip", "-batch", "-"], input=commands.encode(),
                            stderr=subprocess.PIPE, stdout=subprocess.DEVNULL)
    if result.returncode != 0:
        raise SandboxError("the interfaces could not be made (does the kernel have veth and bridge?):\n"
                           + result.stderr.decode(errors="replace").strip())


def make():
    far = hold_far_namespace()
    quiet_ipv6()
    open_low_ports()
    ipv6 = os.path.isdir("/proc/sys/net/ipv6")
    batch(HERE.format(far=far) + (HERE_6 if ipv6 else ""))
    batch(THERE + (THERE_6 if ipv6 else ""), ("nsenter", "-t", str(far), "-n"))


def wait_until_up():
    def up():
        for name in ("enp1s0", "enp2s0"):
            with open(f"/sys/class/net/{name}/operstate") as file:
                if file.read().strip() != "up":
                    return False
        return True
    wait_until(up, "the carrier of the interfaces")
