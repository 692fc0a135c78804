# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The system calls that Python 3.11 does not have, straight from libc."""
import ctypes
import os

CLONE_NEWNS = 0x00020000
CLONE_NEWPID = 0x20000000
CLONE_NEWNET = 0x40000000
MS_RDONLY, MS_NOSUID, MS_NODEV, MS_NOEXEC, MS_REMOUNT = 1, 2, 4, 8, 32
MS_BIND, MS_REC, MS_PRIVATE = 4096, 16384, 1 << 18
PR_SET_PDEATHSIG, SIGKILL = 1, 9

_libc = ctypes.CDLL(None, use_errno=True)


def _check(result, what):
    if result != 0:
        number = ctypes.get_errno()
        raise OSError(number, os.strerror(number), what)


def unshare(flags):
    _check(_libc.unshare(flags), "unshare")


def setns(descriptor, kind):
    _check(_libc.setns(descriptor, kind), "setns")


def die_with_parent():
    _check(_libc.prctl(PR_SET_PDEATHSIG, SIGKILL, 0, 0, 0), "prctl")


def mount(source, target, kind=None, flags=0, data=None):
    text = [None if value is None else os.fsencode(value) for value in (source, target, kind, data)]
    _check(_libc.mount(text[0], text[1], text[2], ctypes.c_ulong(flags), text[3]), target)


def tmpfs(target, mode="0755"):
    mount("sandbox", target, "tmpfs", MS_NODEV, f"mode={mode}")


def bind(source, target):
    mount(source, target, None, MS_BIND | MS_REC)


def private_mount_namespace():
    """A mount namespace of which nothing gets out, and whose root folder is a mount point.

    In a chroot the root folder need not be one, and then nothing could be said about its propagation.
    Entering our own namespace anew puts us at its true root, where it can be said for the whole tree;
    then back into the folder.
    """
    unshare(CLONE_NEWNS)
    inside = os.open("/", os.O_PATH | os.O_DIRECTORY)
    namespace = os.open("/proc/self/ns/mnt", os.O_RDONLY)
    before = os.fstat(inside)
    setns(namespace, CLONE_NEWNS)
    os.close(namespace)
    mount(None, "/", None, MS_REC | MS_PRIVATE)
    here = os.stat("/")
    if (before.st_dev, before.st_ino) != (here.st_dev, here.st_ino):
        os.fchdir(inside)
        path = os.getcwd()
        bind(path, path)
        os.chdir(path)
        os.chroot(".")
    os.close(inside)
