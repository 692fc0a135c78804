# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The file system of the private machine.

Everything is read-only except what is named visible. Folders into which things are installed are
copies in memory (not overlays: those do not work on every file system that containers use), homes and
run-time folders are new and empty.
"""
import os
import re
import shutil
import subprocess

import namespaces
from common import QUILLON, STATE, USERS, SandboxError, log_folder, runtime_folder
from namespaces import MS_BIND, MS_NOEXEC, MS_NOSUID, MS_NODEV, MS_RDONLY, MS_REMOUNT

COPIED = ("/etc", "/usr/share/dbus-1", "/usr/share/polkit-1")
# In /usr/local only these parts matter here; the rest may be gigabytes and is shown as it is.
LOCAL_COPIED = ("etc", "libexec", "share/dbus-1", "share/polkit-1", "lib/systemd")
LOCAL_FOLDERS = ("", "bin", "lib", "sbin", "share")
NEW_FOLDERS = (("/tmp", "1777"), ("/var/tmp", "1777"), ("/run", "0755"), ("/home", "0755"),
               ("/root", "0700"), ("/dev/shm", "1777"))

RULES = """// The sandbox has no log-in sessions, in which an active user may change addresses unasked.
polkit.addRule(function(action, subject) {
    if (action.id == "com.orvandel.quillon4.change-address" && subject.user == "quillon")
        return polkit.Result.YES;
});
// One administrator whatever the machine's own rules say, so that prompts name the same person.
polkit.addAdminRule(function(action, subject) { return ["unix-user:root"]; });
"""


def make(options, folder):
    namespaces.mount("proc", "/proc", "proc", MS_NOSUID | MS_NODEV | MS_NOEXEC)
    namespaces.mount("sysfs", "/sys", "sysfs", MS_RDONLY | MS_NOSUID | MS_NODEV | MS_NOEXEC)
    visible = open_visible([options.source, options.build, folder, *options.binds,
                            *([options.logs] if options.logs else [])])
    originals = {path: os.open(path, os.O_PATH) for path in (*COPIED, "/usr/local")
                 if os.path.isdir(path)}
    for path, mode in NEW_FOLDERS:
        if os.path.isdir(path):
            namespaces.tmpfs(path, mode)
    make_readable_parents(visible)
    for path, descriptor in visible.items():
        os.makedirs(path, exist_ok=True)
        namespaces.bind(f"/proc/self/fd/{descriptor}", path)
    os.makedirs(log_folder())
    if options.logs:
        namespaces.bind(options.logs, log_folder())
    copy_folders(originals)
    make_local(originals)
    add_users()
    install_rules(options)
    seal([*visible, *COPIED, "/usr/local", *(path for path, _ in NEW_FOLDERS)])
    for descriptor in (*visible.values(), *originals.values()):
        os.close(descriptor)


def open_visible(paths):
    """Makes each a mount of its own, which stays writable, and opens it before it may be covered."""
    visible = {}
    for path in sorted({path for path in paths if os.path.isdir(path)}):
        if path == "/" or any(path.startswith(other + "/") for other in visible):
            continue
        namespaces.bind(path, path)
        visible[path] = os.open(path, os.O_PATH | os.O_DIRECTORY)
    return visible


def make_readable_parents(visible):
    """A checkout in somebody's closed folder must be reached by our users: its parents become empty
    folders, through which only the checkout is seen."""
    for path in visible:
        parent = ""
        for part in path.split("/")[1:-1]:
            parent += "/" + part
            if os.path.isdir(parent) and not os.stat(parent).st_mode & 0o001:
                namespaces.tmpfs(parent)
        os.makedirs(path, exist_ok=True)


def copy_folders(originals):
    staging = os.path.join(STATE, "copies")
    copies = []
    for number, path in enumerate(path for path in COPIED if path in originals):
        copy = os.path.join(staging, str(number))
        os.makedirs(copy)
        copies.append((path, copy, subprocess.Popen(
            ["/bin/cp", "-a", path + "/.", copy], stdin=subprocess.DEVNULL)))
    for path, copy, process in copies:
        if process.wait() != 0:
            raise SandboxError(f"copying {path} failed")
        # No bind-mount of a file inside (as containers make for resolv.conf) comes along.
        namespaces.bind(copy, path)


def make_local(originals):
    """/usr/local with real folders where things are installed, and links to the rest."""
    if "/usr/local" not in originals:
        return
    original = os.path.join(STATE, "usr-local")
    os.mkdir(original)
    namespaces.bind(f"/proc/self/fd/{originals['/usr/local']}", original)
    remount_read_only(original)
    namespaces.tmpfs("/usr/local")
    for folder in LOCAL_FOLDERS:
        os.makedirs(os.path.join("/usr/local", folder), exist_ok=True)
    for copied in LOCAL_COPIED:
        source = os.path.join(original, copied)
        if os.path.isdir(source):
            shutil.copytree(source, os.path.join("/usr/local", copied), symlinks=True)
    for folder in LOCAL_FOLDERS:
        source = os.path.join(original, folder)
        for name in os.listdir(source) if os.path.isdir(source) else []:
            target = os.path.join("/usr/local", folder, name)
            if not os.path.lexists(target):
                os.symlink(os.path.join(source, name), target)


def add_users():
    names = {user.name for user in USERS}
    ids = {str(user.id) for user in USERS}
    lines = {
        "passwd": [f"{user.name}:x:{user.id}:{user.id}:{user.name.title()}:{user.home}:/bin/bash"
                   for user in USERS],
        "group": [f"{user.name}:x:{user.id}:" for user in USERS],
        "shadow": [f"{user.name}:*:19700:0:99999:7:::" for user in USERS],
    }
    for name, added in lines.items():
        path = os.path.join("/etc", name)
        with open(path) as file:
            kept = [line for line in file.read().splitlines()
                    if line.split(":")[0] not in names and line.split(":")[2:3] != ids]
        with open(path, "w") as file:
            file.write("\n".join([*kept, *added]) + "\n")
    for user in USERS:
        for folder, mode in ((user.home, 0o700), (runtime_folder(user), 0o700)):
            os.makedirs(folder)
            os.chmod(folder, mode)
            os.chown(folder, user.id, user.id)
    if not os.path.exists("/etc/machine-id") or os.path.getsize("/etc/machine-id") == 0:
        with open("/etc/machine-id", "w") as file:
            file.write(os.urandom(16).hex() + "\n")


def install_rules(options):
    os.makedirs("/etc/polkit-1/rules.d", exist_ok=True)
    with open("/etc/polkit-1/rules.d/10-sandbox.rules", "w") as file:
        file.write(RULES)
    services = os.path.join(QUILLON.home, ".local/share/dbus-1/services")
    os.makedirs(services)
    with open(os.path.join(services, "com.orvandel.Quillon4XPCService.service"), "w") as file:
        file.write("[D-BUS Service]\nName=com.orvandel.Quillon4XPCService\n"
                   f"Exec={options.build}/service/quillon-xpc-service\n")
    for part in (".local", ".local/share", ".local/share/dbus-1", ".local/share/dbus-1/services"):
        os.chown(os.path.join(QUILLON.home, part), QUILLON.id, QUILLON.id)


def remount_read_only(path):
    flags = os.statvfs(path).f_flag
    kept = flags & (MS_NOSUID | MS_NODEV | MS_NOEXEC)
    namespaces.mount(None, path, None, MS_REMOUNT | MS_BIND | MS_RDONLY | kept)


def seal(writable):
    """Makes every mount read-only that is not in the list: nothing in here can change the machine."""
    system = ("/proc", "/sys", "/dev")
    with open("/proc/self/mountinfo") as file:
        points = [re.sub(r"\\([0-7]{3})", lambda match: chr(int(match[1], 8)), line.split()[4])
                  for line in file]
    for point in points:
        if not any(point == path or point.startswith(path + "/") for path in (*system, *writable)):
            try:
                remount_read_only(point)
            except OSError as error:
                if point == "/":
                    raise SandboxError(f"cannot make / read-only: {error.strerror}") from error
