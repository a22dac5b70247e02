#!/usr/bin/env python3
"""Reads the two exports of quillmere-driver back with Python's csv, and compares them with what its verbs tell as JSON.

Usage: export_test.py PATH-OF-THE-DRIVER [SEED]
"""

import csv
import os
import plistlib
import random

import driver_test

INSTALLED = ["Name", "Version", "Bundle ID", "App Size", "Cache Size", "Support Size", "Preferences Size",
             "Container Size", "Total Size", "Last Used", "Path"]
GHOSTS = ["App Name", "Bundle ID", "Category", "Size", "File Path"]

# A reader takes a lone carriage return for the end of a line, and the format leaves it bare: none stands here.
PIECES = ['"', ",", "\n", "a", "Bc", " ", "\t", ";", "'", "\\", "\u00fc", "\U0001f30a", "=1+1", '""', "\n\n"]


class ExportTest(driver_test.DriverCase):
    def setUp(self):
        super().setUp()
        self.root = os.path.realpath(self.root)
        self.home = self.at(b"home")
        self.applications = self.at(b"Applications")
        self.random = random.Random(driver_test.SEED)
        for folder in (self.home, self.applications):
            os.mkdir(folder)

    def write(self, path, content):
        os.makedirs(os.path.dirname(path), exist_ok=True)
        driver_test.write(path, content)

    def name(self):
        return "".join(self.random.choice(PIECES) for _ in range(self.random.randrange(1, 8)))

    def bundle(self, file, description):
        contents = os.path.join(self.applications, file, b"Contents")
        self.write(os.path.join(contents, b"Info.plist"), plistlib.dumps(description))
        self.write(os.path.join(contents, b"program"), b"x" * self.random.randrange(50000))

    def leave(self, folder, name):
        self.write(os.path.join(self.home, b"Library", folder, name, b"data"), b"x" * self.random.randrange(2000, 30000))

    def make(self):
        for number in range(30):
            identifier = "net.maker%d.app" % number
            self.bundle(b"%d\xff %s.app" % (number, self.name().encode()),
                        {"CFBundleName": self.name(), "CFBundleIdentifier": identifier + self.name().replace("/", ""),
                         "CFBundleShortVersionString": self.name()})
            self.leave(b"Caches", (identifier + "x").encode())
        for number in range(30):
            self.leave(b"Application Support", b"gone%d \xfe " % number + self.name().encode())
            self.leave(b"WebKit", b"org.gone%d." % number + self.name().encode())

    def export(self):
        self.driven("export", self.home, "--applications", self.applications, "--installed", self.at(b"installed"),
                    "--ghosts", self.at(b"ghosts"))
        return self.read(b"installed"), self.read(b"ghosts")

    def driven(self, *arguments):
        self.assertEqual(driver_test.drive(*arguments), (0, b"", b""))

    def content(self, name):
        with open(self.at(name), "rb") as file:
            return file.read()

    def read(self, name):
        text = self.content(name).decode("utf-8")
        self.assertFalse(text.startswith("\ufeff"))
        self.assertTrue(text.endswith("\n"))
        with open(self.at(name), encoding="utf-8", newline="") as file:
            return list(csv.reader(file, strict=True))

    def test_installed_apps_are_read_back(self):
        self.make()
        rows, _ = self.export()
        apps = self.result("apps", self.home, "--applications", self.applications)
        self.assertEqual(len(apps), 30)
        self.assertEqual(rows[0], INSTALLED)
        self.assertEqual(rows[1:], [[app["name"], app["version"], app["bundleID"]]
                                    + [str(size) for size in self.sizes(app)] + ["Today", app["path"]] for app in apps])

    def sizes(self, app):
        sizes = [app[key] for key in ("size", "cacheSize", "supportSize", "preferencesSize", "containerSize")]
        return sizes + [sum(sizes)]

    def test_ghosts_are_read_back(self):
        self.make()
        _, rows = self.export()
        ghosts = self.result("ghosts", self.home, "--applications", self.applications)
        files = [[ghost["inferredName"], ghost["bundleID"], file["category"], str(file["size"]), file["path"]]
                 for ghost in ghosts for file in ghost["files"]]
        self.assertGreaterEqual(len(files), 30)
        self.assertEqual(rows[0], GHOSTS)
        self.assertEqual(rows[1:], files)

    def test_a_bare_home_gives_headers_alone(self):
        self.export()
        self.assertEqual(self.content(b"installed"), ",".join(INSTALLED).encode() + b"\n")
        self.assertEqual(self.content(b"ghosts"), ",".join(GHOSTS).encode() + b"\n")

    def test_quotes_stand_where_they_are_needed_alone(self):
        self.bundle(b"a.app", {"CFBundleName": 'The "Best", Plain', "CFBundleShortVersionString": "1.0",
                               "CFBundleIdentifier": "x"})
        self.export()
        line = self.content(b"installed").split(b"\n")[1]
        self.assertTrue(line.startswith(b'"The ""Best"", Plain",1.0,x,'), line)

    def test_an_unwritable_place_leaves_the_old_file(self):
        driver_test.write(self.at(b"installed"), b"old")
        self.refused("export", self.home, "--applications", self.applications, "--installed",
                     self.at(b"installed") + b"/below", "--ghosts", self.at(b"ghosts"))
        self.assertEqual(self.content(b"installed"), b"old")

    def test_bad_usage_is_refused(self):
        for arguments in (["export"], ["export", self.home], ["export", self.home, "--installed", self.at(b"x")],
                          ["export", self.home, "--ghosts", self.at(b"x")]):
            self.refused(*arguments)


if __name__ == "__main__":
    driver_test.main(__doc__)
