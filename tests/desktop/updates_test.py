# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""New versions: told by a list over HTTPS that is signed rightly, wrongly or not at all, and handed to the desktop."""
import datetime
import os
import subprocess
import tempfile
import time
import unittest

from preferences import stored, write_settings
from program import DEADLINE, NAME, TITLE, ProgramTest, accessibility, forget_everything, messages, wait_until
from webserver import Web

WITH_UPDATES = os.path.join(os.environ["QUILLON_BUILD"], "tests", "desktop", "quillon-with-updates")
ROOT = os.path.realpath(os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", ".."))
SIGN_FEED = os.path.join(ROOT, "tools", "sign-feed")
TEST_KEY = os.path.join(ROOT, "tests", "data", "updates", "test-key.pem")
PATH = "/appcast.xml"
PAGE = "https://trusted.test/quillon-4.1"
LIST = """<?xml version="1.0" encoding="UTF-8"?>
<rss version="2.0" xmlns:quillon="urn:quillon:appcast:1">
  <channel>
    <quillon:application>com.orvandel.Quillon4</quillon:application>
    <quillon:issued>%s</quillon:issued>
    <item>
      <quillon:version>%s</quillon:version>
      <link>%s</link>
      <description>The window opens &lt;b&gt;faster&lt;/b&gt;.</description>
    </item>
  </channel>
</rss>
"""


def expect_settings_shown(pane):
    """The controls show what another program writes, while they are in sight."""
    boxes = {"SUEnableAutomaticChecks": "Check for new versions", "SUAutomaticallyUpdate": "Open a new version's page"}
    for value in (True, False):
        for key, name in boxes.items():
            write_settings(**{key: value})
            wait_until(lambda: pane.find("check box", name).checked == value, f"“{name}” is not {value}")
    often = pane.labelled("How often", "combo box")
    # Without a selection its name is that of the label.
    for seconds, shown in ((86400, "Daily"), (2592000, "Monthly"), (5, "How often"), (604800, "Weekly")):
        write_settings(SUScheduledCheckInterval=seconds)
        wait_until(lambda: often.name == shown, lambda: f"“How often” shows “{often.name}”, not “{shown}”")


class UpdatesCase(ProgramTest):
    def setUp(self):
        forget_everything()
        self.folder = tempfile.mkdtemp()
        self.opened = os.path.join(self.folder, "opened")
        self.web = Web()
        self.addCleanup(self.web.end)
        super().setUp()

    def preferences(self):
        """The window with the pane in sight."""
        self.button("Preferences").press()

        def windows():
            return [window for entry in accessibility.applications(NAME) for window in entry.children
                    if window.showing and window.has("page tab", "Updates")]
        window = wait_until(windows, "no preferences with a pane “Updates”")[0]
        window.find("page tab", "Updates").press()
        return accessibility.window(NAME, "Updates")

    def serve(self, text, **rule):
        self.web.serve({PATH: {"body": text, "headers": {"Content-Type": "application/rss+xml"}, **rule}})

    def list_of(self, version, minutes_ago=1):
        moment = datetime.datetime.now(datetime.timezone.utc) - datetime.timedelta(minutes=minutes_ago)
        return LIST % (moment.strftime("%Y-%m-%dT%H:%M:%SZ"), version, PAGE)

    def signed(self, text):
        plain, signed = (os.path.join(self.folder, name) for name in ("plain.xml", "signed.xml"))
        with open(plain, "w") as file:
            file.write(text)
        subprocess.run([SIGN_FEED, "sign", TEST_KEY, plain, signed], check=True, stdin=subprocess.DEVNULL,
                       timeout=DEADLINE)
        with open(signed) as file:
            return file.read()


class WithUpdatesCase(UpdatesCase):
    """The program of somebody who publishes a list."""

    def start_program(self):
        # Whatever is handed to the desktop goes here.
        program = os.path.join(self.folder, "xdg-open")
        with open(program, "w") as file:
            file.write('#!/bin/sh\necho "$@" >>"%s"\n' % self.opened)
        os.chmod(program, 0o755)
        return subprocess.Popen([WITH_UPDATES], stdin=subprocess.DEVNULL,
                                env={**os.environ, "PATH": self.folder + ":" + os.environ["PATH"]})

    def pages_opened(self):
        if not os.path.exists(self.opened):
            return []
        with open(self.opened) as file:
            return file.read().split()


class UpdatesTest(WithUpdatesCase):
    def check_now(self, pane, result):
        asked = len(self.web.requests(PATH))
        pane.find("button", "Check Now").press()
        wait_until(lambda: len(self.web.requests(PATH)) > asked, "the server was not asked")
        pane.find("label", result)

    def test_a_list_that_is_signed_rightly_offers_its_version(self):
        self.serve(self.signed(self.list_of("4.1")))
        pane = self.preferences()
        self.check_now(pane, "Quillon 4.1 is available")
        pane.find("label", "This is version 4.0.0.")
        pane.find("label", "The window opens <b>faster</b>.")
        pane.find("label", PAGE)
        self.assertEqual(self.pages_opened(), [])
        pane.find("button", "Open Page").press()
        wait_until(lambda: self.pages_opened() == [PAGE], lambda: f"opened: {self.pages_opened()}")
        # Nothing else was fetched, and the list is all that is kept.
        self.assertEqual(len(self.web.requests("/quillon-4.1")), 0)
        wait_until(lambda: stored().get("updateToldVersion") == "4.1", "the version was not noted")

    def test_a_list_that_is_signed_wrongly_or_not_at_all_changes_nothing(self):
        pane = self.preferences()
        refused = "What came is not from the authors of Quillon and was not used."
        text = self.list_of("9.0")
        for body in (text, self.signed(text).replace("9.0", "9.1"), self.signed(text) + "\n",
                     "<html>Please log in</html>"):
            self.serve(body)
            self.check_now(pane, refused)
            # Another result comes in between, so that the next one is seen to come.
            self.web.serve({})
            self.check_now(pane, "The list of versions could not be fetched.")
        self.assertFalse(pane.has("button", "Open Page"))
        self.assertFalse({"updateFeed", "updateToldVersion"} & stored().keys())

    def test_a_list_of_this_or_an_older_version_offers_nothing(self):
        pane = self.preferences()
        self.serve(self.signed(self.list_of("4.0")))
        self.check_now(pane, "Quillon 4.0.0 is the newest version.")
        self.assertFalse(pane.has("button", "Open Page"))

    def test_an_older_list_does_not_replace_a_newer_one(self):
        older = self.signed(self.list_of("4.0.5", minutes_ago=60))
        pane = self.preferences()
        self.serve(self.signed(self.list_of("4.1")))
        self.check_now(pane, "Quillon 4.1 is available")
        self.serve(older)
        self.check_now(pane, "The list of versions that came is out of date and was not used.")
        pane.find("label", "Quillon 4.1 is available")

    def test_a_redirect_to_http_is_not_followed(self):
        pane = self.preferences()
        self.web.serve({PATH: {"redirect": "http://trusted.test/plain.xml"},
                        "/plain.xml": {"body": self.signed(self.list_of("9.0")),
                                       "headers": {"Content-Type": "application/xml"}}})
        self.check_now(pane, "The list of versions could not be fetched.")
        self.assertEqual(self.web.requests("/plain.xml"), [])

    def test_what_is_chosen_is_stored_and_nothing_is_asked_before(self):
        pane = self.preferences()
        self.assertEqual(self.web.requests(PATH), [])
        pane.find("check box", "Check for new versions").press()
        wait_until(lambda: stored().get("SUEnableAutomaticChecks") is True, "it was not stored")
        pane.labelled("How often", "combo box").choose("Daily")
        wait_until(lambda: stored().get("SUScheduledCheckInterval") == 86400, "it was not stored")
        pane.find("check box", "Open a new version's page").press()
        wait_until(lambda: stored().get("SUAutomaticallyUpdate") is True, "it was not stored")
        pane.find("check box", "Check for new versions").press()
        wait_until(lambda: stored().get("SUEnableAutomaticChecks") is False, "it was not stored")
        self.assertFalse(pane.find("check box", "Open a new version's page").enabled)


    def test_what_another_program_writes_is_shown(self):
        pane = self.preferences()
        expect_settings_shown(pane)


class ScheduledTest(WithUpdatesCase):
    """Looks by itself: a minute after the start, as an earlier run asked two hours ago."""

    def start_program(self):
        before = datetime.datetime.now(datetime.timezone.utc) - datetime.timedelta(hours=2)
        write_settings(SUEnableAutomaticChecks=True, SUScheduledCheckInterval=1,
                       updateCheckDate=before.replace(tzinfo=None, microsecond=0))
        return super().start_program()

    def test_it_tells_of_a_version_and_asks_no_more_within_the_hour_not_even_when_started_again(self):
        self.serve(self.signed(self.list_of("4.1")))
        wait_until(lambda: len(self.web.requests(PATH)) == 1, "the server was not asked")
        wait_until(lambda: stored().get("updateToldVersion") == "4.1", "the version was not noted")
        # Nothing in the notes is markup.
        told = "The window opens &lt;b&gt;faster&lt;/b&gt;.\nWhat is new is in Preferences › Updates."
        wait_until(lambda: ("Quillon 4.1 is available", told) in messages(), lambda: f"the user was told {messages()}")
        self.assertEqual(self.pages_opened(), [])
        self.end_program()
        # The settings of before, with the moment of the look.
        self.program = super().start_program()
        accessibility.window(NAME, TITLE)
        time.sleep(75)
        self.assertEqual(len(self.web.requests(PATH)), 1)


class WithoutUpdatesTest(UpdatesCase):
    """The program of this build, which nobody told whom to ask."""

    def test_the_pane_says_that_it_does_not_look(self):
        pane = self.preferences()
        pane.find("label", "This copy of Quillon does not look for new versions.")
        pane.find("label", "It was built without a list of versions to ask for. "
                           "Nothing is asked, whatever is chosen here.")
        self.assertFalse(pane.has("button", "Check Now"))
        expect_settings_shown(pane)


if __name__ == "__main__":
    unittest.main(verbosity=2)
