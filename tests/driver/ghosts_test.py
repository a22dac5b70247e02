#!/usr/bin/env python3
"""Compares what quillmere-driver takes for left behind by applications that are gone with an oracle of its own.

Usage: ghosts_test.py PATH-OF-THE-DRIVER [SEED]
"""

import os
import plistlib
import re
import unicodedata
import unittest

import driver_test
from driver_test import display, du

FOLDERS = [("Caches", "Cache"), ("Application Support", "Support"), ("Containers", "Container"),
           ("Group Containers", "Container"), ("Saved Application State", "Other"), ("HTTPStorages", "Other"),
           ("WebKit", "Other")]
PREFIXES = ("com.apple.", "com.apple-", "apple.", "group.com.apple.", "group.is.workflow.", "groups.com.apple.")
LIBRARIES = ("com.crashlytics.", "io.branch.", "com.bugsnag.", "org.swift.swiftpm")
NAMES = ("crashreporter", "syncservices", "quick look", "icloud", "app store", "compressor", "motion", "diskimages",
         "videosubscriptionsd", "networkserviceproxy", "animoji", "caches", ".ds_store", ".localized", "mozilla",
         "io.branch")

# What random names are made of: few words, so that they meet often.
DOMAINS = ["com", "org", "io", "apple", "COM"]
VENDORS = ["acme", "Acmesoft", "north", "nor", "lo", "fern", "sky-high", "glow_worm", "apple", "branch", "caf\u00e9s",
           "cafe\u0301s", "app"]
PRODUCTS = ["editor", "Editor-beta", "photo_works", "notes", "ab", "player-2-x", "Reader", "swiftpm", "", "-tail"]
TAILS = ["", "", "", ".helper", ".Updater-2", ".ShipIt", ".savedState", ".binarycookies", ".savedState.binarycookies"]
TEAMS = ["", "", "", "group.", "Groups.", "ABCDE12345.", "a1b2c3.", "A1B2C.", "ABCDEFGHIJ.", "group.ABCDE12345."]
TITLES = ["Acme", "Photo Works", "Editor", "Sky", "Glow", "Fern Notes", "No-Name", "X_Y z", "Caf\u00e9",
          "Cafe\u0301 Bar", "Ab", "Old Thing", "Motion", "Mozilla", "Northern Lights", "Quiet  Hours", "Player 2"]


def comparable(text):
    return unicodedata.normalize("NFC", text.lower())


def normalised(text):
    parts = text.split(".")
    team = parts[0]
    if len(parts) >= 3 and (team.lower() in ("group", "groups")
                            or re.fullmatch(r"(?=.*[0-9])(?=.*[A-Za-z])[0-9A-Za-z]{6,}", team)):
        return ".".join(parts[1:])
    return text


def exclusion(text):
    """Why the name says nothing about an application; none where it may."""
    lower = comparable(text)
    norm = normalised(lower)
    if len(lower) <= 4:
        return "short"
    if lower in NAMES or any(name.startswith(prefix) for name in (norm, lower) for prefix in PREFIXES):
        return "system"
    return "library" if any(norm.startswith(prefix) for prefix in LIBRARIES) else None


class GhostOracle:
    """The rules one by one, with no thought of cost."""

    def __init__(self, names, identifiers, known):
        self.names = {comparable(name) for name in names}
        self.identifiers = {comparable(identifier) for identifier in identifiers}
        self.vendors = {".".join(identifier.split(".")[:2]) for identifier in self.identifiers
                        if len(identifier.split(".")) >= 3}
        self.known = known

    def resolves(self, candidate):
        parts = candidate.split(".")
        while len(parts) >= 3:
            pieces = parts[-1].split("-")
            for count in range(len(pieces), 0, -1):
                if ".".join([*parts[:-1], "-".join(pieces[:count])]) in self.known:
                    return True
            parts.pop()
        return False

    def vendor_is_taken(self, identifier):
        parts = identifier.split(".")
        return (len(parts) >= 3 and len(parts[1]) >= 4
                and any(parts[1] in installed for installed in self.identifiers))

    def holder(self, entry):
        name = normalised(entry).removesuffix(".binarycookies")
        lower = comparable(name)
        parts = lower.split(".")
        if self.resolves(name) or self.resolves(lower):
            return "known"
        if lower in self.identifiers:
            return "own"
        if any(lower.startswith(installed + ".") for installed in self.identifiers):
            return "helper"
        if any(installed.startswith(lower + ".") for installed in self.identifiers):
            return "parent"
        if len(parts) >= 3 and ".".join(parts[:2]) in self.vendors:
            return "vendor"
        return "word" if self.vendor_is_taken(lower) else None

    def namesake(self, entry):
        lower = comparable(entry)
        if lower in self.names:
            return "name"
        if any(lower in name or (name and name in lower) for name in self.names):
            return "part"
        pieces = [piece for piece in re.split(r"[\s_-]", lower) if len(piece) > 2]
        return "piece" if any(piece in taken for piece in pieces for taken in self.names | self.identifiers) else None

    def reason(self, folder, entry):
        """The rule that spares the entry, by the name that the corpus gives it; none for a ghost's."""
        name = entry.replace(".savedState", "")
        if folder == "Preferences":
            if not entry.endswith(".plist"):
                return "ending"
            name = entry.removesuffix(".plist")
            if len(name.split(".")) < 3:
                return "components"
        elif entry.startswith("."):
            return "hidden"
        if exclusion(name):
            return exclusion(name)
        if folder == "Application Support" and len(name.split(".")) < 3:
            return self.namesake(entry)
        if folder not in ("Application Support", "Preferences") and len(normalised(name).split(".")) < 3:
            return "components"
        return self.holder(name)

    def looks_installed(self, key, inferred):
        inferred = comparable(inferred)
        if inferred in self.names or key in self.identifiers:
            return True
        if inferred and any(inferred in name or (name and name in inferred) for name in self.names):
            return len(inferred) > 3
        return self.vendor_is_taken(key)


def inferred_name(key):
    parts = key.split(".")
    if len(parts) < 3:
        return key
    return " ".join(piece[:1].upper() + piece[1:] for piece in re.split(r"[ _-]", parts[-1]) if piece)


def table(name):
    """The rows of a table of the corpus, each in its columns."""
    path = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "apps", "ghosts", "corpus", name)
    with open(path, encoding="utf-8") as stream:
        return [line.rstrip("\n").split("\t") for line in stream if line.strip() and not line.startswith("#")]


class GhostCorpusTest(unittest.TestCase):
    def test_every_entry_is_spared_by_the_rule_that_it_names(self):
        rows = table("installed.tsv")
        installed = [row for row in rows if row[0] == "applications"]
        oracle = GhostOracle([name for row in installed for name in row[1:3]], [row[3] for row in installed],
                             {row[3] for row in rows if row[0] == "elsewhere"})
        for folder, entry, verdict, why, _ in table("entries.tsv"):
            with self.subTest(folder=folder, entry=entry):
                self.assertEqual(oracle.reason(folder, entry), why if verdict == "spared" else None)


class GhostDriverTest(driver_test.DriverCase):
    def setUp(self):
        super().setUp()
        self.root = os.path.realpath(self.root)
        self.home = self.at(b"home")
        self.applications = self.at(b"Apps")
        os.mkdir(self.home)
        os.mkdir(self.applications)
        self.random = self.maker.random

    def library(self, *names):
        return os.path.join(os.fsdecode(self.home), "Library", *names)

    def leave(self, folder, entry, size):
        path = self.library(folder, entry)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        if folder == "Preferences" or self.random.randrange(3) == 0:
            driver_test.write(path, b"x" * size)
        else:
            os.makedirs(path, exist_ok=True)
            driver_test.write(os.path.join(path, "data"), b"x" * size)

    def identifier(self):
        pick = self.random.choice
        return f"{pick(TEAMS)}{pick(DOMAINS)}.{pick(VENDORS)}.{pick(PRODUCTS)}{pick(TAILS)}"

    def install(self, name, identifier):
        """Some bundles have no identifier, some no list; they lie in both folders, some one folder deeper."""
        folder = os.fsdecode(self.random.choice([self.applications, os.path.join(self.home, b"Applications")]))
        bundle = os.path.join(folder, *self.random.choice([[], ["Utilities"]]), name + ".app")
        os.makedirs(os.path.join(bundle, "Contents"), exist_ok=True)
        described = {"CFBundleName": name + " Pro"}
        if identifier:
            described["CFBundleIdentifier"] = identifier
        form = self.random.choice([plistlib.FMT_XML, plistlib.FMT_BINARY])
        driver_test.write(os.path.join(bundle, "Contents", "Info.plist"), plistlib.dumps(described, fmt=form))
        return [name, name + " Pro"]

    def make(self):
        """A random home; gives the oracle for it and writes down what the system is to know."""
        names, identifiers = [], []
        for name in self.random.sample(TITLES, self.random.randrange(4)):
            identifier = self.random.choice([None, self.random.choice(["com.", "xy."]) + self.random.choice(VENDORS)
                                             + "." + self.random.choice(PRODUCTS)])
            names += self.install(name, identifier)
            identifiers += [identifier] if identifier else []
        known = {self.identifier() for _ in range(self.random.randrange(4))}
        driver_test.write(self.at(b"known"), "\n".join(known).encode())
        for folder, _ in FOLDERS:
            for _ in range(self.random.randrange(12)):
                entry = self.random.choice([self.identifier, lambda: self.random.choice(TITLES)])()
                if not os.path.lexists(self.library(folder, entry)):
                    self.leave(folder, entry, self.random.choice([0, 1, 5000, 70000]))
        for _ in range(self.random.randrange(20)):
            self.leave("Preferences", self.identifier() + self.random.choice([".plist", ".plist", ".PLIST", ""]),
                       self.random.choice([0, 1, 700, 1024, 1025, 3000]))
        return GhostOracle(names, identifiers, known)

    def expected(self, oracle):
        groups = {}
        for folder, category in FOLDERS:
            for entry in os.listdir(self.library(folder)) if os.path.isdir(self.library(folder)) else []:
                if oracle.reason(folder, entry) is None:
                    key = comparable(normalised(entry.replace(".savedState", ""))).replace(".binarycookies", "")
                    path = self.library(folder, entry)
                    groups.setdefault(key, []).append((path, category, du(os.fsencode(path))))
        folder = self.library("Preferences")
        for entry in os.listdir(folder) if os.path.isdir(folder) else []:
            if oracle.reason("Preferences", entry) is None:
                path = os.path.join(folder, entry)
                key = comparable(entry.removesuffix(".plist"))
                groups.setdefault(key, []).append((path, "Preferences", os.lstat(path).st_size))
        found = []
        for key, files in groups.items():
            files = [file for file in files if file[2] > 0]
            if sum(file[2] for file in files) >= 1025:
                name = inferred_name(key)
                found.append({"bundleID": key, "inferredName": name, "selected": True,
                              "looksInstalled": oracle.looks_installed(key, name),
                              "files": [{"path": display(os.fsencode(path)), "category": category, "size": size,
                                         "selected": True} for path, category, size in files]})
        return sorted(found, key=lambda ghost: -sum(file["size"] for file in ghost["files"]))

    def found(self, *options):
        ghosts = self.result("ghosts", self.home, "--applications", self.applications, *options)
        ids = [record.pop("id") for ghost in ghosts for record in (ghost, *ghost["files"])]
        self.assertEqual(len(set(ids)), len(ids))
        return ghosts

    def test_ghosts_are_those_of_the_rules(self):
        counts = []
        for number in range(25):
            with self.subTest(number=number):
                self.home, self.applications = self.at(b"home %d" % number), self.at(b"Apps %d" % number)
                os.mkdir(self.home)
                os.mkdir(self.applications)
                expected = self.expected(self.make())
                self.assertEqual(self.found("--known", self.at(b"known")), expected)
                counts.append(len(expected))
        self.assertGreater(sum(counts), 50)

    def test_known_identifiers_are_read_a_line_each(self):
        self.leave("Caches", "com.first.tool", 5000)
        self.leave("Caches", "com.second.tool.helper", 5000)
        self.leave("Caches", "com.third.tool", 5000)
        driver_test.write(self.at(b"known"), b"com.first.tool\n\ncom.second.tool\n")
        self.assertEqual(len(self.found()), 3)
        self.assertEqual([ghost["bundleID"] for ghost in self.found("--known", self.at(b"known"))], ["com.third.tool"])

    def test_names_in_any_bytes_are_told(self):
        self.leave("Application Support", "gone \udcff thing", 5000)
        self.assertEqual([ghost["inferredName"] for ghost in self.found()], ["gone \ufffd thing"])

    def test_a_home_without_a_library_has_no_ghosts(self):
        self.assertEqual(self.found(), [])
        self.assertEqual(self.result("ghosts", self.home, "--layout", "linux"), [])

    def test_bad_usage_is_refused(self):
        for arguments in (["ghosts"], ["ghosts", "a", "b"], ["ghosts", self.home, "--known"],
                          ["ghosts", self.home, "--known", self.at(b"missing")],
                          ["ghosts", self.home, "--known", self.home], ["ghosts", self.home, "--min", "1"]):
            self.refused(*arguments)


if __name__ == "__main__":
    driver_test.main(__doc__)
