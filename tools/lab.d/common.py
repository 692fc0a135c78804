# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the parts of the lab share: its places, its words and how a command is run."""
import contextlib
import fcntl
import glob
import os
import shutil
import subprocess
import tempfile

from namespaces import die_with_parent

HERE = os.path.dirname(os.path.realpath(__file__))
SOURCE = os.path.dirname(os.path.dirname(HERE))
GUEST = os.path.join(HERE, "guest")
KEPT = os.path.join(SOURCE, "build", "lab")  # images and what the last machine said
OWNERS = os.path.join(GUEST, "owners")  # a folder for each owner of the network


class LabError(Exception):
    """The machine could not be made or did not keep its promises; the text says why."""


def owners():
    return sorted(os.listdir(OWNERS))


def words_of(path):
    """The first word of each line of a list whose lines say in the rest what the word is for."""
    with open(path) as file:
        lines = [line.split() for line in file]
    return [line[0] for line in lines if line and not line[0].startswith("#")]


def run(command, log, **more):
    """Runs a command to its end, its words into `log`, an open file; shows the end of them if it failed."""
    try:
        result = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                                preexec_fn=die_with_parent, **more)
    except OSError as error:
        raise LabError(f"{command[0]} cannot be started: {error} (tools/setup installs it)") from error
    if result.returncode != 0:
        with open(log.name, errors="replace") as file:
            end = "".join(file.readlines()[-25:])
        raise LabError(f"{' '.join(command)} failed:\n{end}")


@contextlib.contextmanager
def alone():
    """What two that start together may not do at once."""
    os.makedirs(KEPT, exist_ok=True)
    give_back(KEPT)
    with open(os.path.join(KEPT, "lock"), "w") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        yield


def use(folder, how=fcntl.LOCK_SH):
    """Keeps a folder from remove_unused() as long as we live, or the returned descriptor is open."""
    descriptor = os.open(folder, os.O_RDONLY | os.O_DIRECTORY)
    fcntl.flock(descriptor, how)
    return descriptor


def remove_unused(pattern, but=None):
    """What nobody uses any more, also of those who were killed; to be called alone()."""
    for folder in glob.glob(os.path.join(KEPT, pattern)):
        if folder == but:
            continue
        try:
            descriptor = use(folder, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            continue
        shutil.rmtree(folder)
        os.close(descriptor)


def new_folder(prefix):
    """A folder for one run, and what keeps it."""
    with alone():
        remove_unused(f"{prefix}*")
        folder = tempfile.mkdtemp(dir=KEPT, prefix=prefix)
        return folder, use(folder)


def give_back(path):
    """What root makes in a build folder belongs to whoever owns the sources, who may want to remove it."""
    owner = os.stat(SOURCE)
    os.lchown(path, owner.st_uid, owner.st_gid)
