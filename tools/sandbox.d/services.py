# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The daemons of the private machine: buses, and with a display what belongs to one.

polkitd, the helper and the service are started by the buses when first asked for.
"""
import os
import subprocess

from common import (DEADLINE, QUILLON, STATE, SandboxError, log_folder, runtime_folder,
                    wait_until)

HERE = os.path.dirname(os.path.realpath(__file__))
PATH = "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin"
DISPLAY = ":0"  # the X sockets are ours alone, so the number is always free
SYSTEM_BUS = "/run/dbus/system_bus_socket"

# As the distribution's own file, without <user> (the machine has one root, us) and without
# <servicehelper> (the bus starts services itself, for want of a systemd).
SYSTEM_BUS_CONFIG = """\
<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>system</type>
  <listen>unix:path=%s</listen>
  <auth>EXTERNAL</auth>
  <servicedir>/usr/local/share/dbus-1/system-services</servicedir>
  <servicedir>/usr/share/dbus-1/system-services</servicedir>
  <policy context="default">
    <allow user="*"/>
    <deny own="*"/>
    <deny send_type="method_call"/>
    <allow send_type="signal"/>
    <allow send_requested_reply="true" send_type="method_return"/>
    <allow send_requested_reply="true" send_type="error"/>
    <allow receive_type="method_call"/>
    <allow receive_type="method_return"/>
    <allow receive_type="error"/>
    <allow receive_type="signal"/>
    <allow send_destination="org.freedesktop.DBus" send_interface="org.freedesktop.DBus"/>
    <allow send_destination="org.freedesktop.DBus"
           send_interface="org.freedesktop.DBus.Introspectable"/>
    <allow send_destination="org.freedesktop.DBus"
           send_interface="org.freedesktop.DBus.Properties"/>
    <deny send_destination="org.freedesktop.DBus" send_interface="org.freedesktop.DBus"
          send_member="UpdateActivationEnvironment"/>
    <deny send_destination="org.freedesktop.DBus"
          send_interface="org.freedesktop.DBus.Debug.Stats"/>
  </policy>
  <policy user="root">
    <allow send_destination="org.freedesktop.DBus"
           send_interface="org.freedesktop.DBus.Monitoring"/>
  </policy>
  <includedir>/usr/share/dbus-1/system.d</includedir>
  <includedir>/etc/dbus-1/system.d</includedir>
</busconfig>
""" % SYSTEM_BUS


class Services:
    def __init__(self, options, passed_on):
        self.options = options
        self.passed_on = passed_on
        self.processes = {}
        self.ready = []
        self.window_manager = os.path.join(runtime_folder(QUILLON), "window-manager")

    def environment(self, root=False):
        """A log-in's environment, made anew; root gets the user's session, into which it may step."""
        environment = {
            "PATH": PATH,
            "LANG": "C.UTF-8",
            **self.passed_on,
            # What is started here is found by its English texts, whatever language the caller has.
            "LANGUAGE": "en",
            "HOME": "/root" if root else QUILLON.home,
            "USER": "root" if root else QUILLON.name,
            "LOGNAME": "root" if root else QUILLON.name,
            "SHELL": "/bin/bash",
            "XDG_RUNTIME_DIR": runtime_folder(QUILLON),
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={runtime_folder(QUILLON)}/bus",
            "QUILLON_SANDBOX": "1",
            "QUILLON_BUILD": self.options.build,
        }
        if self.options.display:
            environment |= {
                "DISPLAY": DISPLAY,
                "XDG_SESSION_TYPE": "x11",
                "QT_QPA_PLATFORM": "xcb",
                # Qt otherwise waits for a screen reader before it shows itself to one.
                "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            }
        return environment

    def spawn(self, name, command, user=None, descriptors=(), environment=None):
        log = os.path.join(log_folder(), f"{name}.log")
        switch = {"user": user.id, "group": user.id, "extra_groups": []} if user else {}
        try:
            with open(log, "ab") as output:
                self.processes[name] = subprocess.Popen(
                    command, env=environment or self.environment(), stdin=subprocess.DEVNULL,
                    stdout=output, stderr=output, pass_fds=descriptors, cwd="/", **switch)
        except OSError as error:
            raise SandboxError(f"{name} cannot be started: {error} (tools/setup installs it)") from error

    def spawn_and_wait(self, name, command, user=None, environment=None):
        """For programs that write a line to the descriptor "{fd}" once they listen; wait() reads it."""
        reader, writer = os.pipe()
        self.spawn(name, [part.replace("{fd}", str(writer)) for part in command], user, (writer,),
                   environment)
        os.close(writer)
        self.ready.append((name, reader))

    def wait_for(self, wanted):
        for name, reader in [entry for entry in self.ready if entry[0] in wanted]:
            with open(reader, "rb") as pipe:
                if not pipe.readline().endswith(b"\n"):
                    raise SandboxError(f"{name} did not start")
            self.ready.remove((name, reader))

    def start(self):
        self.start_buses()
        if self.options.display:
            self.start_display()
        self.wait_for(("system-bus", "session-bus"))
        if self.options.display:
            self.spawn_and_wait("tray-host", [os.path.join(HERE, "tray-host"), "--ready", "{fd}"], QUILLON)
            self.wait_for(("display",))
            self.spawn("window-manager", [
                "openbox", "--sm-disable", "--startup", f"touch {self.window_manager}"], QUILLON)
            self.spawn("notifications", ["dunst"], QUILLON)
            # Programs that start before it is there never tell it of themselves.
            self.spawn("accessibility", ["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"],
                       QUILLON)

    def start_buses(self):
        os.makedirs(os.path.dirname(SYSTEM_BUS))
        config = os.path.join(STATE, "system-bus.conf")
        with open(config, "w") as file:
            file.write(SYSTEM_BUS_CONFIG)
        self.spawn_and_wait("system-bus", [
            "dbus-daemon", f"--config-file={config}", "--nofork", "--nopidfile", "--print-address={fd}"],
            environment={"PATH": PATH})
        self.spawn_and_wait("session-bus", [
            "dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address={fd}",
            f"--address=unix:path={runtime_folder(QUILLON)}/bus"], QUILLON)

    def start_display(self):
        os.mkdir("/tmp/.X11-unix")
        os.chmod("/tmp/.X11-unix", 0o1777)
        self.spawn_and_wait("display", [
            "Xvfb", DISPLAY, "-screen", "0", f"{self.options.screen}x24", "-nolisten", "tcp", "-noreset",
            "-displayfd", "{fd}"], QUILLON)

    def install_helper(self):
        """Installs the built helper as an administrator would; the bus then reads its files."""
        tool = os.path.join(self.options.build, "helper", "Quillon4HelperTool")
        if not os.access(tool, os.X_OK):
            return
        log = os.path.join(log_folder(), "helper-install.log")
        environment = {"PATH": PATH, "LANG": "C.UTF-8", "HOME": "/root", "USER": "root"}
        with open(log, "ab") as output:
            for command in ([tool, "install"],
                            ["dbus-send", "--system", "--print-reply", "--dest=org.freedesktop.DBus", "/",
                             "org.freedesktop.DBus.ReloadConfig"]):
                if subprocess.run(command, env=environment, stdin=subprocess.DEVNULL, stdout=output,
                                  stderr=output, cwd="/", timeout=DEADLINE).returncode != 0:
                    raise SandboxError(f"{' '.join(command)} failed")

    def window_manager_runs(self):
        if self.processes["window-manager"].poll() is not None:
            raise SandboxError("the window manager did not start")
        return os.path.exists(self.window_manager)

    def wait(self):
        self.wait_for([name for name, _ in self.ready])
        if self.options.display:
            wait_until(self.window_manager_runs, "the window manager's start")
            self.wait_for_names("org.freedesktop.Notifications", "org.a11y.Bus")

    def wait_for_names(self, *names):
        waiting = [(name, subprocess.Popen(
            ["gdbus", "wait", "--session", "--timeout", str(int(DEADLINE)), name],
            env=self.environment(), user=QUILLON.id, group=QUILLON.id, extra_groups=[],
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
            for name in names]
        for name, process in waiting:
            if process.wait() != 0:
                raise SandboxError(f"{name} did not come to the session bus")
