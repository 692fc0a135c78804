# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""polkit's authentication agent of a session: what a desktop has to show prompts. Run in the session, it writes every
prompt as a line of JSON, and takes the answer as a line: "cancel", or "password" and the password."""
import json
import os
import subprocess
import sys

POLKIT = "org.freedesktop.PolicyKit1"
PATH = "/lab/agent"
ASKER = "/usr/lib/polkit-1/polkit-agent-helper-1"  # polkit's own, which asks PAM
INTERFACE = """<node><interface name="org.freedesktop.PolicyKit1.AuthenticationAgent">
<method name="BeginAuthentication"><arg type="s"/><arg type="s"/><arg type="s"/><arg type="a{ss}"/><arg type="s"/>
<arg type="a(sa{sv})"/></method><method name="CancelAuthentication"><arg type="s"/></method></interface></node>"""


def is_right(cookie, password):
    """What PAM says of root's password."""
    asker = subprocess.Popen((ASKER, "root"), stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, bufsize=1)
    asker.stdin.write(cookie + "\n")
    for line in asker.stdout:
        if line.startswith("PAM_PROMPT_ECHO_OFF"):
            asker.stdin.write(password + "\n")
        elif line.strip() in ("SUCCESS", "FAILURE"):
            return line.strip() == "SUCCESS"
    return False


def answer(parameters, invocation):
    action, message, _icon, details, cookie, identities = parameters.unpack()
    print(json.dumps({"action": action, "message": message, "details": details,
                      "users": [values["uid"] for _kind, values in identities]}), flush=True)
    kind, _, password = sys.stdin.readline().rstrip("\n").partition(" ")
    if kind == "cancel":
        invocation.return_dbus_error(f"{POLKIT}.Error.Cancelled", "cancelled")
    elif is_right(cookie, password):
        invocation.return_value(None)
    else:
        invocation.return_dbus_error(f"{POLKIT}.Error.Failed", "the password was wrong")


def main():
    from gi.repository import Gio, GLib

    def called(_bus, _sender, _path, _interface, method, parameters, invocation):
        if method == "BeginAuthentication":
            answer(parameters, invocation)
        else:
            invocation.return_value(None)

    bus = Gio.bus_get_sync(Gio.BusType.SYSTEM)
    bus.register_object(PATH, Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0], called, None, None)
    session = {"session-id": GLib.Variant("s", os.environ["XDG_SESSION_ID"])}
    bus.call_sync(POLKIT, f"/{POLKIT.replace('.', '/')}/Authority", f"{POLKIT}.Authority", "RegisterAuthenticationAgent",
                  GLib.Variant("((sa{sv})ss)", (("unix-session", session), "C", PATH)), None, 0, -1)
    print(json.dumps("ready"), flush=True)
    GLib.MainLoop().run()


class Agent:
    """That program in the user's session."""

    def __init__(self):
        self.process = subprocess.Popen(("as-user", sys.executable, "-B", os.path.realpath(__file__)),
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, bufsize=1)
        if self.prompt() != "ready":
            raise AssertionError("no agent")

    def prompt(self):
        """The next one; waits for it."""
        return json.loads(self.process.stdout.readline())

    def cancel(self):
        self.process.stdin.write("cancel\n")

    def type(self, password):
        self.process.stdin.write(f"password {password}\n")

    def end(self):
        self.process.kill()
        self.process.wait()
        self.process.stdin.close()
        self.process.stdout.close()


if __name__ == "__main__":
    main()
