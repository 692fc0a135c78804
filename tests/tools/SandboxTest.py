# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/sandbox keeps what it promises."""
import glob
import json
import os
import re
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))
SANDBOX = os.path.join(ROOT, "tools/sandbox")
BUILD = os.environ["QUILLON_BUILD"]
DEADLINE = 300  # only a hang takes that long


def sandbox(*arguments):
    return [SANDBOX, "--build", BUILD, *arguments]


def run(*arguments):
    return subprocess.run(sandbox(*arguments), text=True, capture_output=True, stdin=subprocess.DEVNULL,
                          timeout=DEADLINE)


def interfaces():
    """Those outside that could be ours; others may come and go as the machine likes."""
    return sorted({"enp1s0", "enp2s0", "br0", "port1", "port2"}.intersection(os.listdir("/sys/class/net")))


def mounts():
    """The sandbox's mounts, which are seen outside when they leak."""
    with open("/proc/self/mountinfo") as file:
        return [line for line in file if "quillon-sandbox" in line or " sandbox " in line]


def processes_with(text):
    """Processes whose command line has the text."""
    found = []
    for pid in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open(f"/proc/{pid}/cmdline", "rb") as file:
                if text.encode() in file.read() and int(pid) != os.getpid():
                    found.append(int(pid))
        except OSError:
            pass
    return found


def wait_until(condition, what):
    end = time.monotonic() + DEADLINE
    while not condition():
        if time.monotonic() > end:
            raise AssertionError(f"{what} did not happen")
        time.sleep(0.02)


def send(process, number):
    """As root, or through sudo, to whom the sandbox belongs then."""
    try:
        process.send_signal(number)
    except PermissionError:
        subprocess.run(["sudo", "-n", "kill", f"-{int(number)}", str(process.pid)], check=True)


class SandboxTest(unittest.TestCase):
    def output(self, *arguments):
        result = run(*arguments)
        self.assertEqual(result.returncode, 0, result.stderr)
        return result.stdout

    def test_passes_the_exit_code_through(self):
        self.assertEqual(run("--no-display", "sh", "-c", "exit 37").returncode, 37)
        self.assertEqual(run("--no-display", "true").returncode, 0)

    def test_reports_the_signal_that_ended_the_command(self):
        self.assertEqual(run("--no-display", "sh", "-c", "kill -SEGV $$").returncode, 128 + signal.SIGSEGV)

    def test_says_that_a_command_does_not_exist(self):
        self.assertEqual(run("--no-display", "no-such-command").returncode, 127)

    def test_runs_the_command_as_an_ordinary_user(self):
        self.assertEqual(self.output("--no-display", "id", "-un"), "quillon\n")
        self.assertEqual(self.output("--no-display", "id", "-Gn"), "quillon\n")
        self.assertRegex(self.output("--no-display", "grep", "CapEff", "/proc/self/status"), r"\t0{16}\n")

    def test_lets_root_act_as_another_user(self):
        self.assertEqual(self.output("--root", "--no-display", "sh", "-c", "id -un; runuser -u mallory -- id -un"),
                         "root\nmallory\n")

    def test_has_interfaces_named_as_on_a_real_machine(self):
        text = self.output("--no-display", "ip", "-brief", "address")
        self.assertEqual(re.findall(r"^\w+", text, re.MULTILINE), ["lo", "enp1s0", "enp2s0", "br0"])
        self.assertRegex(text, r"enp1s0\S* +UP +192\.0\.2\.10/24 ")
        self.assertRegex(text, r"enp2s0\S* +UP *\n")
        self.assertIn("default via 192.0.2.1 dev enp1s0", self.output("--no-display", "ip", "route"))

    def test_may_change_its_own_interfaces_only(self):
        before = interfaces()
        text = self.output("--root", "--no-display", "sh", "-c",
                           "ip link set enp1s0 address 02:00:00:00:00:77 && cat /sys/class/net/enp1s0/address")
        self.assertEqual(text, "02:00:00:00:00:77\n")
        self.assertEqual(interfaces(), before)

    def test_has_a_system_bus_at_the_usual_place_that_an_ordinary_user_reaches(self):
        call = "gdbus call --system -d org.freedesktop.DBus -o / -m org.freedesktop.DBus.ListActivatableNames"
        self.assertIn("org.freedesktop.PolicyKit1", self.output("--no-display", *call.split()))

    def test_has_a_system_bus_that_denies_by_default(self):
        result = run("--no-display", "gdbus", "call", "--system", "-d", "org.freedesktop.DBus", "-o", "/",
                     "-m", "org.freedesktop.DBus.RequestName", "com.example.Mine", "0")
        self.assertIn("AccessDenied", result.stderr)

    def test_grants_the_change_to_quillon_and_not_to_mallory(self):
        if not os.access(os.path.join(BUILD, "helper/Quillon4HelperTool"), os.X_OK):
            self.fail("the helper is not built")
        check = "pkcheck --action-id com.orvandel.quillon4.change-address --process $$; echo $?"
        text = self.output("--root", "--no-display", "sh", "-c",
                           f"runuser -u quillon -- sh -c '{check}'; runuser -u mallory -- sh -c '{check}'")
        self.assertRegex(text, r"^0\n(.*\n)*[1-9]\n$")

    def test_starts_the_helper_when_it_is_asked_for(self):
        start = ("gdbus call --system -d org.freedesktop.DBus -o / -m org.freedesktop.DBus.StartServiceByName "
                 "com.orvandel.Quillon4HelperTool 0")
        self.assertEqual(self.output("--no-display", *start.split()), "(uint32 1,)\n")

    def test_asks_the_agent_for_a_password(self):
        agent = os.path.join(ROOT, "tools/sandbox.d/sandbox-polkit-agent")
        script = f"""
            {agent} --control /tmp/answer --log /tmp/log --ready /tmp/ready grant &
            while [ ! -e /tmp/ready ]; do sleep 0.01; done
            for answer in grant refuse dismiss; do
                echo $answer > /tmp/answer
                runuser -u quillon -- sh -c 'sleep 0.3; pkexec id -un; echo $?' 2>/dev/null
            done
            grep -c org.freedesktop.policykit.exec /tmp/log"""
        self.assertEqual(self.output("--root", "--no-display", "sh", "-c", script), "root\n0\n127\n126\n3\n")

    def test_shows_windows_notifications_and_a_tray(self):
        text = self.output("sh", "-c", "xprop -root _NET_SUPPORTING_WM_CHECK && busctl --user --no-legend list")
        self.assertIn("window id", text)
        for name in ("org.freedesktop.Notifications", "org.kde.StatusNotifierWatcher"):
            self.assertRegex(text, re.escape(name) + r" +\d+|" + re.escape(name) + r" +- - +- +- ")

    def test_cannot_change_the_machine_around_it(self):
        name = f"quillon-test-{os.getpid()}"
        own = [f"{folder}/{name}" for folder in ("/etc", "/usr/local/libexec", "/usr/local/share/dbus-1", "/tmp", "/home")]
        others = [f"{folder}/{name}" for folder in ("/usr/bin", "/var/lib")]
        script = f"mkdir -p {' '.join(own)}; for path in {' '.join(others)}; do ! touch $path 2>/dev/null || exit 1; done"
        self.output("--root", "--no-display", "sh", "-c", script)
        for path in own + others:
            self.assertFalse(os.path.lexists(path), path)

    def test_reaches_a_build_in_a_closed_folder(self):
        # Beside the new folders of the sandbox, where an ordinary user's checkout can only be in /home.
        with tempfile.TemporaryDirectory(dir="/opt" if os.geteuid() == 0 else None) as closed:
            build = os.path.join(closed, "a", "build")
            os.makedirs(build)
            with open(os.path.join(build, "file"), "w") as file:
                file.write("seen")
            result = subprocess.run([SANDBOX, "--no-display", "--build", build, "cat", f"{build}/file"],
                                    text=True, capture_output=True, timeout=DEADLINE)
            self.assertEqual(result.stdout, "seen", result.stderr)

    def test_keeps_the_daemons_logs_where_it_is_told(self):
        with tempfile.TemporaryDirectory() as logs:
            self.output("--no-display", "--logs", logs, "true")
            self.assertIn("system-bus.log", os.listdir(logs))

    def test_works_without_standard_input(self):
        result = subprocess.run(["sh", "-c", 'exec "$@" <&-', "sh", *sandbox("--no-display", "id", "-un")],
                                text=True, capture_output=True, timeout=DEADLINE)
        self.assertEqual((result.returncode, result.stdout), (0, "quillon\n"), result.stderr)

    def test_works_for_a_person_with_a_strict_umask(self):
        result = subprocess.run(["sh", "-c", 'umask 077; exec "$@"', "sh", *sandbox("--no-display", "id", "-un")],
                                text=True, capture_output=True, stdin=subprocess.DEVNULL, timeout=DEADLINE)
        self.assertEqual((result.returncode, result.stdout), (0, "quillon\n"), result.stderr)

    def test_two_run_side_by_side(self):
        with tempfile.TemporaryDirectory() as shared:
            os.chmod(shared, 0o777)
            # Each waits for the other, so both are there at once; each must see its own change only.
            script = ("touch {0}/{1}; while [ ! -e {0}/{2} ]; do sleep 0.01; done;"
                      "ip link set enp1s0 address 02:00:00:00:00:0{1}; touch {0}/done{1};"
                      "while [ ! -e {0}/done{2} ]; do sleep 0.01; done;"
                      "cat /sys/class/net/enp1s0/address; xprop -root _NET_WM_NAME >/dev/null && echo display")
            both = [subprocess.Popen(sandbox("--root", "--bind", shared, "sh", "-c", script.format(shared, me, other)),
                                     text=True, stdout=subprocess.PIPE, stdin=subprocess.DEVNULL)
                    for me, other in (("1", "2"), ("2", "1"))]
            self.assertEqual([process.communicate(timeout=DEADLINE)[0] for process in both],
                             ["02:00:00:00:00:01\ndisplay\n", "02:00:00:00:00:02\ndisplay\n"])


class SandboxWebTest(unittest.TestCase):
    """The hosts that the build asks are inside, trusted, and answer when told to."""

    WEB = os.path.join(ROOT, "tools/sandbox.d/sandbox-web")
    START = f"{WEB} --ready /tmp/ready --log /tmp/log --rules /tmp/rules --root /tmp & " \
            "while [ ! -e /tmp/ready ]; do sleep 0.01; done; "
    # As any program does that knows nothing of a sandbox.
    ASK = ("import sys, urllib.error, urllib.request as web\n"
           "for address in sys.argv[1:]:\n"
           "    try:\n"
           "        answer = web.urlopen(address, timeout=10)\n"
           "    except urllib.error.HTTPError as error:\n"
           "        answer = error\n"
           "    except OSError as error:\n"
           "        print('refused', error)\n"
           "        continue\n"
           "    print(answer.status, answer.read().decode())\n")

    def setUp(self):
        with open(os.path.join(BUILD, "services.txt")) as file:
            services = dict(line.strip().split("=", 1) for line in file)
        self.address = f"https://{services['QUILLON_EXTERNAL_ADDRESS_HOST']}/?format=json"
        self.registry = services["QUILLON_REGISTRY_URL"]

    def asked(self, rules, *addresses, before="", who=("--no-display", "--no-helper")):
        with tempfile.TemporaryDirectory() as shared:
            for name, text in (("rules", json.dumps(rules)), ("ask", self.ASK)):
                with open(os.path.join(shared, name), "w") as file:
                    file.write(text)
            os.chmod(shared, 0o755)
            script = (f"cp {shared}/rules /tmp/rules; {before or self.START}"
                      f"python3 {shared}/ask {' '.join(map(repr, addresses))}")
            result = run(*who, "--bind", shared, "sh", "-c", script)
        self.assertEqual(result.returncode, 0, result.stderr)
        return result.stdout.splitlines()

    def test_stands_in_for_the_hosts_that_the_build_asks(self):
        rules = {self.address.removeprefix("https://"): {"body": '{"ip":"203.0.113.7"}'},
                 self.registry.removeprefix("https://"): {"body": "Registry,Assignment"}}
        self.assertEqual(self.asked(rules, self.address, self.registry),
                         ['200 {"ip":"203.0.113.7"}', "200 Registry,Assignment"])

    def test_stands_in_for_them_when_root_starts_it_too(self):
        rules = {"/": {"body": "here"}}
        self.assertEqual(self.asked(rules, self.address, who=("--root", "--no-display", "--no-helper")), ["200 here"])

    def test_has_nobody_at_them_until_then(self):
        self.assertIn("Connection refused", self.asked({}, self.address, before=":; ")[0])

    def test_trusts_its_own_authority_and_no_other(self):
        lines = self.asked({"/": {"body": "here"}}, *(f"https://{name}.test/" for name in (
            "trusted", "wrong-name", "expired", "untrusted")))
        self.assertEqual(lines[0], "200 here")
        for line, why in zip(lines[1:], ("doesn't match|mismatch", "expired", "unable to get local issuer"), strict=True):
            self.assertRegex(line, f"refused .*({why})")

    def test_its_authority_is_nothing_outside(self):
        self.asked({}, self.address)
        # More than one when the build's hosts, or what is made for them, have changed since the first.
        authorities = glob.glob(os.path.join(BUILD, "sandbox-authority-*/authority.pem"))
        self.assertTrue(authorities)
        for authority in authorities:
            with open(authority) as file, open("/etc/ssl/certs/ca-certificates.crt") as trusted:
                self.assertNotIn(file.read(), trusted.read())
        self.assertFalse(os.path.lexists("/etc/ssl/certs/quillon-sandbox.pem"))
        if os.path.exists("/etc/hosts"):  # a minimal system has none
            with open("/etc/hosts") as file:
                self.assertNotIn("trusted.test", file.read())

    def test_makes_its_authority_once_though_many_start_at_the_same_time(self):
        with tempfile.TemporaryDirectory() as build:
            shutil.copy(os.path.join(BUILD, "services.txt"), build)
            os.chmod(build, 0o755)
            command = [SANDBOX, "--no-display", "--no-helper", "--build", build, "cat",
                       "/run/quillon-sandbox/authority/authority.pem"]
            several = [subprocess.Popen(command, text=True, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE)
                       for _ in range(4)]
            seen = {process.communicate(timeout=DEADLINE)[0] for process in several}
            self.assertEqual(len(seen), 1)
            self.assertIn("BEGIN CERTIFICATE", seen.pop())
            self.assertEqual(len([name for name in os.listdir(build) if "authority" in name]), 1)

    def test_leads_no_other_name_anywhere_and_says_so_at_once(self):
        # Asked in vain, a name server is waited for for five seconds, several times.
        script = ("import subprocess, time; start = time.monotonic(); "
                  "code = subprocess.run(['getent', 'ahosts', 'somewhere.example']).returncode; "
                  "print(code, time.monotonic() - start)")
        code, seconds = run("--no-display", "--no-helper", "python3", "-c", script).stdout.split()
        self.assertEqual(int(code), 2)
        self.assertLess(float(seconds), 5)

    def test_answers_as_the_rules_say(self):
        page = "http://trusted.test"
        rules = {"/gone": {"status": 404, "body": "gone"}, "/away": {"redirect": f"{page}/?a=1"},
                 "/": {"body": "any"}, "/?a=1": {"body": "this", "framing": "chunked", "piece": 1, "pause": 0.01},
                 "trusted.test/host": {"body": "host", "framing": "close"}, "/size": {"size": 5, "piece": 2}}
        self.assertEqual(
            self.asked(rules, *(page + path for path in (
                "/gone", "/away", "/?b=1", "/host", "/size", "/nowhere", "/rules", "/../etc/passwd"))),
            ["404 gone", "200 this", "200 any", "200 host", "200 #####", "404 There is no such page.", "",
             "200 " + json.dumps(rules), "404 There is no such page.", ""])


class SandboxCleanUpTest(unittest.TestCase):
    """Nothing is left: no process, interface or mount, however it ends."""

    def setUp(self):
        self.before = (interfaces(), mounts())

    def start(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        os.chmod(self.folder.name, 0o777)
        self.mark = f"sandbox-test-{os.getpid()}-{time.monotonic_ns()}"
        ready = os.path.join(self.folder.name, "ready")
        script = f"setsid sh -c 'sleep 1000; : {self.mark}' & touch {ready}; sleep 1000; : {self.mark}"
        process = subprocess.Popen(sandbox("--bind", self.folder.name, "sh", "-c", script),
                                   stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(lambda: os.path.exists(ready), "the start")
        self.inside = self.descendants(process.pid)
        self.assertGreater(len(self.inside), 8, "the daemons were not seen")
        return process

    @staticmethod
    def descendants(pid):
        parents = {}
        for name in filter(str.isdigit, os.listdir("/proc")):
            try:
                with open(f"/proc/{name}/stat") as file:
                    parents[int(name)] = int(file.read().rpartition(")")[2].split()[1])
            except OSError:
                pass
        found = {pid}
        while True:
            more = {child for child, parent in parents.items() if parent in found} - found
            if not more:
                return found - {pid}
            found |= more

    def assert_nothing_left(self):
        wait_until(lambda: not any(os.path.exists(f"/proc/{pid}") for pid in self.inside), "the end of all processes")
        self.assertEqual(processes_with(self.mark), [])
        self.assertEqual((interfaces(), mounts()), self.before)

    def test_after_its_outermost_process_is_killed(self):
        process = self.start()
        send(process, signal.SIGKILL)
        process.wait()
        self.assert_nothing_left()

    def test_after_it_is_asked_to_end(self):
        process = self.start()
        send(process, signal.SIGTERM)
        self.assertEqual(process.wait(DEADLINE), 128 + signal.SIGTERM)
        self.assert_nothing_left()

    def test_after_the_command_ended_with_programs_in_the_background(self):
        self.mark = f"1000.{time.monotonic_ns()}"
        result = run("--no-display", "sh", "-c", f"setsid sleep {self.mark} & exit 0")
        self.assertEqual(result.returncode, 0)
        self.inside = []
        self.assert_nothing_left()


if __name__ == "__main__":
    unittest.main()
