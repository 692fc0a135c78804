# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The vendor database that the program is shipped with, against the registry as Python reads it."""
import csv
import filecmp
import os
import sqlite3
import subprocess
import tempfile
import unittest

BUILD = os.environ["QUILLON_BUILD"]
REGISTRY = os.environ["QUILLON_REGISTRY_CSV"]
SEED = os.path.join(BUILD, "data", "oui.db")
MAKE_SEED = os.path.join(BUILD, "src", "vendors", "quillon-make-seed")
COLUMNS = ("Assignment", "Organization Address", "Organization Name", "Registry")

# Whatever a registry has shown in some version or other, in the order of COLUMNS.
ODDITIES = [
    ("080030", "1 Short Road", "First of three", "MA-L"),
    ("080030", "2 Short Road", "Second of three", "MA-L"),
    ("0001C8", "3, Short Road, Town", "Commas, Inc.", "MA-L"),
    ("000001", "4 Short Road", 'Maker of "Quotes"', "MA-L"),
    ("000002", '"', '""', "MA-L"),
    ("000003", "5 Short Road\nTown", "A line\nbreak", "MA-L"),
    ("000004", "6 Short Road\r\nTown\r\n", "Windows' line\r\nbreak", "MA-L"),
    ("000005", "", "Without an address", "MA-L"),
    ("000006", "", "", "MA-L"),
    ("000007", "  7 Short Road  ", " Padded ", "MA-L"),
    ("000008", "Straße 8, 東京", "Größe ’n’ Söhne GmbH 株式会社 \U0001f50c", "MA-L"),
    ("000009", "9 Short Road", "Tab\tand & <b>signs</b>; 100% 'quoted'", "MA-L"),
    ("080030", "x" * 4000, "Third of three, " + "y" * 1000, "MA-L"),
]


def rows_of(database):
    return database.execute(
        "SELECT Assignment, Organization_Address, Organization_Name, Registry FROM vendor ORDER BY id").fetchall()


class Seed(unittest.TestCase):
    def setUp(self):
        with open(REGISTRY, encoding="utf-8", newline="") as file:
            self.records = [tuple(record[column] for column in COLUMNS) for record in csv.DictReader(file)]
        self.database = self.opened(SEED)

    def opened(self, path):
        database = sqlite3.connect(f"file:{path}?mode=ro", uri=True)
        self.addCleanup(database.close)
        return database

    def test_holds_every_record_in_the_order_of_the_registry(self):
        self.assertEqual(rows_of(self.database), self.records)
        ids = self.database.execute("SELECT min(id), max(id), count(*) FROM vendor").fetchone()
        self.assertEqual(ids, (1, len(self.records), len(self.records)))

    def test_is_made_of_a_whole_registry(self):
        self.assertGreater(len(self.records), 30000)

    def test_is_tried_by_a_registry_with_every_oddity(self):
        """Which of them the shipped registry has differs from one version to the next."""
        with tempfile.TemporaryDirectory() as folder:
            registry = os.path.join(folder, "registry.csv")
            made = os.path.join(folder, "made.db")
            with open(registry, "w", encoding="utf-8", newline="") as file:
                writer = csv.writer(file, lineterminator="\r\n")
                writer.writerow(("Registry", "Assignment", "Organization Name", "Organization Address"))
                writer.writerows((record[3], record[0], record[2], record[1]) for record in ODDITIES)
            subprocess.run([MAKE_SEED, registry, made], check=True)
            self.assertEqual(rows_of(self.opened(made)), ODDITIES)

    def test_has_exactly_the_one_table(self):
        found = self.database.execute("SELECT type, name, sql FROM sqlite_master WHERE name NOT LIKE 'sqlite_%'")
        self.assertEqual(found.fetchall(), [(
            "table", "vendor",
            "CREATE TABLE vendor (id integer primary key autoincrement not null, Assignment text, "
            "Organization_Address text, Organization_Name text, Registry text)")])
        self.assertEqual(self.database.execute("PRAGMA integrity_check").fetchone(), ("ok",))

    def test_is_the_same_bytes_whenever_it_is_made(self):
        with tempfile.TemporaryDirectory() as folder:
            again = os.path.join(folder, "again.db")
            subprocess.run([MAKE_SEED, REGISTRY, again], check=True)
            self.assertTrue(filecmp.cmp(SEED, again, shallow=False))
            self.assertEqual(os.listdir(folder), ["again.db"])

    def test_is_not_made_of_what_is_no_registry(self):
        with tempfile.TemporaryDirectory() as folder:
            wrong = os.path.join(folder, "wrong.csv")
            made = os.path.join(folder, "made.db")
            for content in ("", "Assignment\n", 'Assignment\n1\n"2'):
                with open(wrong, "w", encoding="utf-8") as file:
                    file.write(content)
                for source in (wrong, os.path.join(folder, "nowhere.csv")):
                    result = subprocess.run([MAKE_SEED, source, made], stderr=subprocess.PIPE, check=False)
                    self.assertEqual(result.returncode, 1)
                    self.assertIn(b"no vendor database from", result.stderr)
                    self.assertFalse(os.path.exists(made))


if __name__ == "__main__":
    unittest.main()
