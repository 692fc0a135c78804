# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a person does at one of several computers, each in a sandbox of its own: as a test wants it, which is outside
(computers.py). Every method of Person can be asked for; its answer is what JSON can carry."""
import json
import os
import socket
import sqlite3
import subprocess
import sys
import traceback

import cleartext
from gi.repository import Gio, GLib
from preferences import stored, write_settings
from program import (DEADLINE, FOLDER, NAME, RECORDS, TITLE, accessibility, forget_everything, kernel_addresses, start,
                     trayclient, wait_until, xdotool)

KEYRING = "org.freedesktop.secrets"
PANES = ("General", "Advanced", "Rules")  # that are used here
SWITCH = "Sync settings, rules and history"


def rows(table):
    """Whoever has the file open. What counts on this computer alone is left out."""
    if not os.path.exists(RECORDS):
        return []
    connection = sqlite3.connect(f"file:{RECORDS}?mode=ro", uri=True, timeout=DEADLINE)
    try:
        connection.row_factory = sqlite3.Row
        found = [dict(row) for row in connection.execute(f'SELECT * FROM "{table}"')]
    finally:
        connection.close()
    kept = [{name: value.hex() if isinstance(value, bytes) else value for name, value in row.items()
             if name not in ("pk", "active")} for row in found]
    return sorted(kept, key=lambda row: row["uuid"])


class Person:
    def __init__(self):
        self.program = self.window = None
        # As the log-in unlocks it. Its passphrase is the log-in's, of no account.
        self.keyring = subprocess.Popen(["gnome-keyring-daemon", "--foreground", "--components=secrets", "--unlock"],
                                        stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        with self.keyring.stdin as unlocking:
            unlocking.write(b"the log-in password")
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        wait_until(lambda: self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                     "NameHasOwner", "(s)", KEYRING)[0], "the keyring did not come")

    def call(self, name, path, interface, method, kinds, *arguments):
        return self.bus.call_sync(name, path, interface, method, GLib.Variant(kinds, arguments), None,
                                  Gio.DBusCallFlags.NONE, DEADLINE * 1000, None).unpack()

    # The program

    def start(self):
        self.program = start()
        self.window = accessibility.window(NAME, TITLE)
        wait_until(lambda: self.window.find("entry", "Address").text, "the window showed no address")

    def end(self):
        self.program.terminate()
        return self.program.wait(DEADLINE)

    def kill(self):
        self.program.kill()
        self.program.wait(DEADLINE)

    def forget(self):
        forget_everything()

    # The account

    def pane(self, name="General"):
        """Of the preferences, which are one window with the name of the pane."""
        if not accessibility.has_window(NAME, name):
            shown = next((other for other in PANES if accessibility.has_window(NAME, other)), None)
            if shown is None:
                trayclient.only_item().click("Preferences")
                shown = "General"
            if shown != name:
                accessibility.window(NAME, shown).find("page tab", name).press()
        return accessibility.window(NAME, name)

    def says(self, text):
        """Below the switch, or below the account."""
        wait_until(lambda: any(text in label.name for label in self.pane().all("label")),
                   lambda: f"nothing says “{text}”; there is {self.pane().overview()}")

    def says_not(self, text):
        wait_until(lambda: not any(text in label.name for label in self.pane().all("label")),
                   lambda: f"it still says “{text}”")

    def open_account(self):
        self.pane().find("button", "Account…").press()
        return accessibility.window(NAME, "Sync Account")

    def fill_in(self, account, passphrase):
        """`account` is as DavServer.account, or {"folder": path}. A fingerprint that it has is compared and accepted."""
        dialog = self.open_account()
        if "folder" in account:
            dialog.find("page tab", "Folder").press()
            dialog.find("entry", "Folder").set_text(account["folder"])
        else:
            dialog.find("entry", "Server").set_text(account["address"])
            dialog.find("entry", "User name").set_text(account["user"])
            dialog.find("password", "App password").set_text(account["password"])
        dialog.find("password", "Passphrase").type(passphrase)
        xdotool("key", "Return")
        if account.get("fingerprint"):
            accept = dialog.find("button", "Accept Certificate")
            dialog.find("label", account["fingerprint"])
            accept.press()
        return dialog

    def sign_in(self, account, passphrase, is_new):
        dialog = self.fill_in(account, passphrase)
        if is_new:
            dialog.find("password", "Repeat passphrase").type(passphrase)
            xdotool("key", "Return")
        wait_until(lambda: not accessibility.has_window(NAME, "Sync Account"),
                   lambda: f"the dialog stays: {dialog.overview()}")
        self.says("Signed in")
        wait_until(lambda: self.pane().find("check box", SWITCH).checked, "sync is not switched on")

    def sign_in_in_vain(self, account, passphrase, why):
        dialog = self.fill_in(account, passphrase)
        dialog.find("label", why)
        dialog.find("button", "Cancel").press()
        wait_until(lambda: not accessibility.has_window(NAME, "Sync Account"), "the dialog stays")

    def sign_out(self):
        self.pane().find("button", "Sign Out").press()
        self.says("Signed out. Rules, history and settings stay on this computer.")

    def secrets(self):
        """What the keyring holds of the program, by the names under which it does."""
        service = (KEYRING, "/org/freedesktop/secrets", "org.freedesktop.Secret.Service")
        _, session = self.call(*service, "OpenSession", "(sv)", "plain", GLib.Variant("s", ""))
        unlocked, _ = self.call(*service, "SearchItems", "(a{ss})", {"server": NAME})
        found = {}
        for item in unlocked:
            name = self.call(KEYRING, item, "org.freedesktop.DBus.Properties", "Get", "(ss)",
                             "org.freedesktop.Secret.Item", "Attributes")[0]["user"]
            secret = self.call(KEYRING, item, "org.freedesktop.Secret.Item", "GetSecret", "(o)", session)[0]
            found[name] = bytes(secret[2]).decode()
        return found

    # What there is to be made equal

    def editor(self):
        """The list of rules, in the same window."""
        if not accessibility.has_window(NAME, "Rules"):
            trayclient.only_item().click("Rules")
        return accessibility.window(NAME, "Rules")

    def make_rule(self, name, device):
        """One that gives the interface a random address; it is off."""
        editor = self.editor()
        editor.find("button", "Network Rule").press()
        editor.find("entry", "Name").type(name)
        editor.labelled("Interface", "combo box").choose(f"Ethernet · {device}")
        editor.labelled("Action", "combo box").choose("Change Address")
        editor.find("label", f"On any network, give Ethernet · {device} a random address once.")
        editor.find("button", "Save Rule").press()
        editor.find("list item", name)

    def select_rule(self, name):
        row = self.editor().find("list item", name)
        row.click()
        wait_until(lambda: row.focused, "the row did not get the keyboard")
        return row

    def switch_rule(self, name):
        """On when it is off, and off when it is on."""
        row = self.select_rule(name)
        was = row.checked
        xdotool("key", "space")
        wait_until(lambda: self.editor().find("list item", name).checked != was, f"“{name}” was not switched")

    def delete_rule(self, name):
        self.select_rule(name)
        xdotool("key", "Delete")
        wait_until(lambda: not self.shows_rule(name), "the rule was not deleted")

    def randomize(self):
        """An address that is told of in the history, which is returned."""
        before = {row["uuid"] for row in rows("Connection")}
        self.window.find("button", "Randomize address").press()
        return wait_until(lambda: [row for row in rows("Connection") if row["uuid"] not in before],
                          "the history has no change")[0]

    def toggle(self, box):
        self.pane().find("check box", box).press()

    def set_minutes(self, minutes):
        field = self.pane("Advanced").find("entry", "Repeat every … minutes by default")
        field.type(str(minutes))
        xdotool("key", "Return")
        wait_until(lambda: stored().get("defaultTimerMinutes") == minutes, "the minutes were not stored")

    def write_setting(self, key, value):
        """While the program does not run: of two who write the file at the same moment one loses."""
        write_settings(**{key: value})

    # What has become of it

    def records(self):
        return {"rules": rows("Rule"), "history": rows("Connection")}

    def settings(self):
        return {key: value for key, value in stored().items() if isinstance(value, (bool, int, str, dict))}

    def shows_rule(self, name):
        return self.editor().has("list item", name)

    def addresses(self):
        return kernel_addresses()

    def listen(self, port):
        """A socket on this computer's loopback, for whoever stands behind it."""
        listener = socket.create_server(("127.0.0.1", port))
        return listener

    def has_written(self, *secrets):
        """Which of them, each in hexadecimal digits, are in which file of this computer's, and which files it has."""
        files = {}
        for place in (os.path.expanduser("~"), os.environ["XDG_RUNTIME_DIR"], "/tmp", "/var/tmp"):
            files |= cleartext.files_in(place)
        found = cleartext.find([bytes.fromhex(secret) for secret in secrets], files, packed=False)
        return [(secret.hex(), path) for secret, path in found], sorted(files)


def main(path):
    wire = socket.socket(socket.AF_UNIX)
    wire.connect(path)
    person = Person()
    with wire.makefile("r", encoding="utf-8") as orders:
        for order in orders:
            name, arguments = json.loads(order)
            passed = []
            try:
                answer = getattr(person, name)(*arguments)
                if isinstance(answer, socket.socket):
                    passed, answer = [answer], None
                line = [answer, None]
            except BaseException:
                line = [None, traceback.format_exc()]
            data = (json.dumps(line) + "\n").encode()
            if passed:
                socket.send_fds(wire, [data], [listener.fileno() for listener in passed])
                for listener in passed:
                    listener.close()
            else:
                wire.sendall(data)
    # The sandbox ends what is left.


if __name__ == "__main__":
    main(sys.argv[1])
