# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the window shows of the radio's network is what iw says of it at the same moment, field by field."""
import os
import subprocess
import sys
import time
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), ".."))

import radio_networks  # noqa: E402
from guest import ACCESS_POINTS, DEADLINE, WIRELESS, as_user, call, run, wait_until  # noqa: E402
from program import Program  # noqa: E402
from radio_networks import PASS_PHRASE, Air, Network, set_country  # noqa: E402
from radio_words import NOT_CONNECTED, iw, shown  # noqa: E402

LEGACY = ("ieee80211n=0", "wmm_enabled=0")
HT40 = ("hw_mode=a", "channel=36", "ieee80211n=1", "ht_capab=[HT40+]")
VHT80 = (*HT40, "ieee80211ac=1", "vht_oper_chwidth=1", "vht_oper_centr_freq_seg0_idx=42")
HE80 = (*VHT80, "ieee80211ax=1", "he_oper_chwidth=1", "he_oper_centr_freq_seg0_idx=42")
CHANNEL_1 = ("hw_mode=g", "channel=1", "ieee80211n=1")
PSK = f'psk="{PASS_PHRASE}"'
PHRASE = f"wpa_passphrase={PASS_PHRASE}"


class RadioCase(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.program = Program()
        cls.addClassCleanup(cls.program.end)

    def expect_the_same(self):
        """iw, asked before and after, must agree with itself: then that moment is looked at. Returns the fields."""
        end = time.monotonic() + DEADLINE
        while True:
            before, told, after = shown(), self.program.wifi(), shown()
            # These radios forget the noise when a scan begins, and know it again a moment later.
            if before == after and (told.get("noise") or not before.get("noise") or time.monotonic() > end):
                break
            self.assertLess(time.monotonic(), end, f"iw does not settle: {before} and {after}")
        told.pop("device", None)  # of several radios only
        self.assertEqual(told, before, "the window shows what iw does not say")
        return told

    def expect(self, **wanted):
        """The same as iw, and these fields of it. Returns all."""
        told = self.expect_the_same()
        self.assertEqual({name: told[name] for name in wanted}, wanted)
        return told


class LabNetworksTest(RadioCase):
    def setUp(self):
        self.join("lab-wpa2")

    def join(self, name):
        # NetworkManager must have seen the access point first.
        wait_until(lambda: call("as-user", "nmcli", "--wait", "60", "connection", "up", name)[0] == 0,
                   f"{name} is not joined")

    def test_each(self):
        fields = {"lab-open": ("1 (2.4 GHz, 20 MHz)", "None", "802.11n"),
                  "lab-wpa3": ("6 (2.4 GHz, 20 MHz)", "Unknown", "802.11n"),
                  "lab-wpa2": ("36 (5 GHz, 80 MHz)", "WPA2 Personal", "802.11ac")}
        noises = set()
        for name, (channel, security, mode) in fields.items():
            with self.subTest(name):
                self.join(name)
                told = self.expect(SSID=name, channel=channel, security=security, phyMode=mode, country="UZ")
                noises.add(told["noise"])
                self.assertTrue(self.program.wifi()["ipAddress"].startswith(ACCESS_POINTS[name].subnet))
        # Of a channel that the last scan left out these radios know none.
        self.assertIn("-92 dBm", noises)

    def test_while_it_scans(self):
        told = self.begin_scan()
        looked = 0
        end = time.monotonic() + DEADLINE
        while "scan finished" not in (events := told()) and "scan aborted" not in events:
            self.assertLess(time.monotonic(), end, f"after {looked} looks the scan has not ended: {events}")
            self.expect(SSID="lab-wpa2", channel="36 (5 GHz, 80 MHz)")
            looked += 1
        self.assertGreater(looked, 0, "the scan had ended before the first look")
        self.expect(SSID="lab-wpa2", channel="36 (5 GHz, 80 MHz)")

    def begin_scan(self):
        """Returns what tells the radio's events since the scan began. NetworkManager may be at it at that moment."""
        # iw's own "scan" listens only after it has asked, and waits for ever where the answer was quicker.
        read, write = os.pipe()
        os.set_blocking(read, False)
        listener = subprocess.Popen(("iw", "event"), stdout=write)
        os.close(write)
        self.addCleanup(os.close, read)
        self.addCleanup(listener.wait)
        self.addCleanup(listener.kill)
        events = ""

        def told():
            nonlocal events
            try:
                events += os.read(read, 65536).decode()
            except BlockingIOError:
                pass
            return events

        def began():
            nonlocal events
            told()
            events = ""
            end = time.monotonic() + 5
            if call("iw", "dev", WIRELESS, "scan", "trigger")[0] != 0:
                return False
            while "scan started" not in told() and time.monotonic() < end:
                time.sleep(0.05)
            return "scan started" in events  # not, when the listener came too late

        wait_until(began, "no scan can begin")
        return told

    def test_on_no_network(self):
        as_user("nmcli", "device", "disconnect", WIRELESS)
        self.assertEqual(self.expect_the_same(), NOT_CONNECTED)
        # All radios are switched off, those of the access points as well.
        self.addCleanup(run, "systemctl", "restart", "lab-access-points")
        run("nmcli", "radio", "wifi", "off")
        self.addCleanup(run, "nmcli", "radio", "wifi", "on")
        self.assertEqual(self.expect_the_same(), NOT_CONNECTED)
        wait_until(lambda: self.program.network() == "Wi-Fi is switched off.",
                   lambda: f"the window says “{self.program.network()}”")
        run("nmcli", "radio", "wifi", "on")
        wait_until(lambda: self.program.network() != "Wi-Fi is switched off.", "it still says that it is switched off")

    def test_in_other_countries(self):
        self.addCleanup(set_country, "UZ")
        for code in ("DE", "US", "00"):
            with self.subTest(code):
                set_country(code)
                self.expect(country="" if code == "00" else code)


class KindsTest(RadioCase):
    """Networks of every kind that these radios can have."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.air = Air()
        cls.addClassCleanup(cls.air.end)

    def tearDown(self):
        self.air.leave()

    def look_at(self, network, **wanted):
        self.air.join(network)
        self.expect(**wanted)

    def test_802_11b(self):
        self.look_at(Network(("hw_mode=b", "channel=3", *LEGACY)),
                     channel="3 (2.4 GHz, 20 MHz)", phyMode="802.11b", mcs="", security="None")

    def test_802_11g(self):
        self.look_at(Network(("hw_mode=g", "channel=11", *LEGACY)),
                     channel="11 (2.4 GHz, 20 MHz)", phyMode="802.11g", mcs="")

    def test_802_11a(self):
        self.look_at(Network(("hw_mode=a", "channel=40", *LEGACY)), channel="40 (5 GHz, 20 MHz)", phyMode="802.11a")

    def test_802_11n_at_40_mhz(self):
        self.look_at(Network(HT40), channel="36 (5 GHz, 40 MHz)", phyMode="802.11n")

    def test_802_11ax_with_older_rates(self):
        # The rate control of this radio, the kernel's own, has no rates of 802.11ax: what is in use is shown.
        self.look_at(Network(HE80), channel="36 (5 GHz, 80 MHz)", phyMode="802.11ac")

    def test_6_ghz(self):
        self.look_at(self.at_6_ghz("op_class=131", "he_oper_chwidth=0"),
                     channel="5 (6 GHz, 20 MHz)", phyMode="802.11ax", security="Unknown", country="DE")

    def test_6_ghz_at_160_mhz(self):
        self.look_at(self.at_6_ghz("op_class=134", "he_oper_chwidth=2", "he_oper_centr_freq_seg0_idx=15"),
                     channel="5 (6 GHz, 160 MHz)", phyMode="802.11ax", country="DE")

    @staticmethod
    def at_6_ghz(*width):
        return Network(("hw_mode=a", "channel=5", *width, "ieee80211ax=1", "wpa=2", "wpa_key_mgmt=SAE",
                        "rsn_pairwise=CCMP", "ieee80211w=2", "sae_pwe=1", f"sae_password={PASS_PHRASE}"),
                       ("key_mgmt=SAE", "ieee80211w=2", f'sae_password="{PASS_PHRASE}"', "scan_freq=5975"),
                       country="DE")

    def test_channel_13(self):
        self.look_at(Network(("hw_mode=g", "channel=13", "ieee80211n=1")), channel="13 (2.4 GHz, 20 MHz)")

    def test_channel_14(self):
        self.look_at(Network(("hw_mode=b", "channel=14", *LEGACY), country="JP"),
                     channel="14 (2.4 GHz, 20 MHz)", phyMode="802.11b", country="JP")

    def test_wep(self):
        self.look_at(Network(("hw_mode=g", "channel=1", "wep_default_key=0", 'wep_key0="quill"'),
                             ("key_mgmt=NONE", 'wep_key0="quill"')), security="WEP", phyMode="802.11g")

    def test_wpa(self):
        self.look_at(Network((*CHANNEL_1, "wpa=1", "wpa_key_mgmt=WPA-PSK", "wpa_pairwise=TKIP", PHRASE),
                             ("key_mgmt=WPA-PSK", "proto=WPA", PSK)), security="WPA Personal")

    def test_wpa_and_wpa2(self):
        self.look_at(Network((*CHANNEL_1, "wpa=3", "wpa_key_mgmt=WPA-PSK", "wpa_pairwise=TKIP", "rsn_pairwise=CCMP",
                              PHRASE), ("key_mgmt=WPA-PSK", PSK)), security="WPA Personal Mixed")

    def test_wpa2_and_wpa3(self):
        self.look_at(Network((*CHANNEL_1, "wpa=2", "wpa_key_mgmt=WPA-PSK SAE", "rsn_pairwise=CCMP", "ieee80211w=1",
                              PHRASE), ("key_mgmt=WPA-PSK", PSK)), security="Unknown")

    def test_owe(self):
        self.look_at(Network((*CHANNEL_1, "wpa=2", "wpa_key_mgmt=OWE", "rsn_pairwise=CCMP", "ieee80211w=2"),
                             ("key_mgmt=OWE", "ieee80211w=2")), security="Unknown")

    def test_enterprise(self):
        # The way in that needs no certificate.
        users = radio_networks.write("users", (f'"quillon" PWD "{PASS_PHRASE}"',))
        for versions, name in ((2, "WPA2 Enterprise"), (3, "WPA Enterprise Mixed"), (1, "WPA Enterprise")):
            with self.subTest(name):
                self.look_at(Network(
                    (*CHANNEL_1, f"wpa={versions}", "wpa_key_mgmt=WPA-EAP", "wpa_pairwise=TKIP", "rsn_pairwise=CCMP",
                     "ieee8021x=1", "eap_server=1", f"eap_user_file={users}", "pwd_group=19"),
                    ("key_mgmt=WPA-EAP", "eap=PWD", 'identity="quillon"', f'password="{PASS_PHRASE}"')),
                    security=name)
            self.air.leave()

    def test_hidden(self):
        self.look_at(Network((*CHANNEL_1, "ignore_broadcast_ssid=1"), ssid=b"Behind the curtain"),
                     SSID="Behind the curtain")

    def test_names_beyond_ascii(self):
        for name in ("Gästenetz", "カフェ", "a b\\c", "# = '\""):
            with self.subTest(name):
                self.look_at(Network(CHANNEL_1, ssid=name.encode()), SSID=name)
            self.air.leave()

    def test_through_a_change_of_channel(self):
        self.air.join(Network(CHANNEL_1))
        self.expect(channel="1 (2.4 GHz, 20 MHz)")
        self.air.switch_channel("5", "2457", "ht")
        wait_until(lambda: self.expect_the_same()["channel"] == "10 (2.4 GHz, 20 MHz)",
                   lambda: f"no change of channel: {iw('dev', WIRELESS, 'link')}")

    def test_until_the_access_point_is_given_up(self):
        point = self.air.join(Network(VHT80))
        self.expect(channel="36 (5 GHz, 80 MHz)")
        point.kill()
        run(*radio_networks.FAR, "ip", "link", "set", radio_networks.POINT, "down")
        self.addCleanup(run, *radio_networks.FAR, "ip", "link", "set", radio_networks.POINT, "up")
        wait_until(lambda: self.expect_the_same() == NOT_CONNECTED,
                   lambda: f"it is not given up: {iw('dev', WIRELESS, 'link')}")

    def test_by_the_second_of_two_interfaces(self):
        # One that joins nothing, and one that only listens.
        for name, kind in (("second", "managed"), ("listener", "monitor")):
            run("iw", "dev", WIRELESS, "interface", "add", name, "type", kind)
            self.addCleanup(run, "iw", "dev", name, "del")
            run("ip", "link", "set", name, "up")
        self.look_at(Network(HE80), channel="36 (5 GHz, 80 MHz)")


if __name__ == "__main__":
    unittest.main(verbosity=2)
