#!/usr/bin/env python3
"""Compares what quillmere-driver tells of installed applications with an oracle of its own: os.scandir, plistlib, the real
du. Python writes the property lists too.

Usage: apps_test.py PATH-OF-THE-DRIVER [SEED]
"""

import datetime
import os
import plistlib
import random
import uuid

import driver_test
from driver_test import display, du, utc

CANDIDATES = [("Caches", "bundleID", "", "Cache", "cacheSize"),
              ("Preferences", "bundleID", ".plist", "Preferences", "preferencesSize"),
              ("Application Support", "name", "", "Support", "supportSize"),
              ("Application Support", "bundleID", "", "Support", "supportSize"),
              ("Containers", "bundleID", "", "Container", "containerSize"),
              ("Group Containers", "bundleID", "", "Container", "containerSize"),
              ("Saved Application State", "bundleID", ".savedState", "Other", None),
              ("HTTPStorages", "bundleID", "", "Other", None),
              ("WebKit", "bundleID", "", "Other", None)]
SIZES = ("cacheSize", "preferencesSize", "supportSize", "containerSize")

# What applications are called in the lists; the last ones lead out of the folders where their files are looked for.
NAMES = ["Notes", "Tide Tables", "caf\u00e9 \U0001f30a", "com.example.notes", " ", "a\\b", "-sk", "n" * 200]
IDENTIFIERS = ["com.example.notes", "com.Example.Tides", "unknown", "\u043e\u0440\u0433.example.x", "x"]
HOSTILE = ["", ".", "..", "../../Documents", "a/b", "/", "Notes/", "../Caches/com.example.notes", "n" * 100000]
OTHERS = {"CFBundleVersion": "12", "LSEnvironment": {"A": ["b", {"c": 1.5}]}, "Data": b"\0\xff" * 40, "Yes": True,
          "When": datetime.datetime(2024, 2, 29, 12), "Number": -(1 << 40), "CFBundleDocumentTypes": [{"Name": "x"}] * 20}


def bundles_below(root, depth=0):
    found = []
    try:
        listing = list(os.scandir(root))
    except OSError:
        return []
    for entry in listing:
        if entry.name.endswith(b".app"):
            found.append(entry.path)
        elif depth == 0 and not entry.name.startswith(b".") and entry.is_dir() and not entry.is_symlink():
            found += bundles_below(entry.path, 1)
    return found


class AppsDriverTest(driver_test.DriverCase):
    def setUp(self):
        super().setUp()
        self.root = os.path.realpath(self.root)
        self.home = self.at(b"it's home")
        self.library = os.path.join(self.home, b"Library")
        self.applications = self.at(b"Applications")
        self.random = random.Random(driver_test.SEED)
        os.makedirs(self.applications)
        os.mkdir(self.home)

    def write(self, path, content):
        os.makedirs(os.path.dirname(path), exist_ok=True)
        driver_test.write(path, content)

    def fill(self, path):
        self.write(os.path.join(path, b"data"), b"x" * self.random.randrange(60000))

    def described(self):
        """What a property list tells at random, wrong types among it; sometimes there is none."""
        wrong = [5, True, ["com.example.notes"], {"a": "b"}, b"bytes"]
        told = dict(self.random.sample(list(OTHERS.items()), 4))
        for key, texts in (("CFBundleName", NAMES + HOSTILE), ("CFBundleDisplayName", NAMES),
                           ("CFBundleShortVersionString", ["1.0", "2.1 (beta)", ""]),
                           ("CFBundleIdentifier", IDENTIFIERS * 2 + HOSTILE)):
            kind = self.random.randrange(8)
            if kind < 6:
                told[key] = self.random.choice(texts)
            elif kind == 6:
                told[key] = self.random.choice(wrong)
        return told

    def make_bundle(self, name):
        """A bundle with what an oracle may believe of its list: nothing where the list is damaged."""
        path = os.path.join(self.applications, name)
        self.fill(path)
        told = self.described()
        form = self.random.choice([plistlib.FMT_XML, plistlib.FMT_BINARY])
        content = plistlib.dumps(told, fmt=form)
        damage = self.random.randrange(8)
        if damage == 0:
            return path, {}
        if damage == 1:
            content = content[:len(content) // 2]
            told = {}
        elif damage == 2:
            content += b" " * (5 << 20)
            told = {}
        self.write(os.path.join(path, b"Contents/Info.plist"), content)
        return path, told

    def make_home(self):
        told = {}
        folders = [b"", b"Utilities/", b"Utilities/Deep/", b".hidden/", b"Suite/", b"Bundle.app/"]
        for number, name in enumerate(driver_test.HOSTILE_NAMES * 2):
            if len(name) < 200:
                path, texts = self.make_bundle(self.random.choice(folders) + name + b" %d.app" % number)
                told[path] = texts
        os.symlink(self.home, os.path.join(self.applications, b"away"))
        for folder, _, suffix, *_ in CANDIDATES:
            for subject in self.random.sample(NAMES + IDENTIFIERS, 8):
                path = os.path.join(self.library, os.fsencode(folder), os.fsencode(subject + suffix))
                if suffix == ".plist":
                    self.write(path, b"x" * self.random.randrange(3000))
                elif not os.path.exists(path):
                    self.fill(path)
            self.fill(os.path.join(self.library, os.fsencode(folder), b"a/b"))
        self.fill(os.path.join(self.home, b"Documents"))
        return told

    def expected_files(self, app):
        files = []
        for folder, subject, suffix, category, adds_to in CANDIDATES:
            name = app[subject]
            if name in ("", ".", "..") or "/" in name or len(name) > 1000:
                continue
            path = os.path.join(self.library, os.fsencode(folder), os.fsencode(name + suffix))
            if not os.path.exists(path):
                continue
            size = os.lstat(path).st_size if category == "Preferences" else du(path)
            if size < 1:
                continue
            files.append({"path": display(path), "category": category, "size": size, "selected": True})
            if adds_to:
                app[adds_to] += size
        return files

    def expected(self, path, told):
        def text(key):
            return told[key] if isinstance(told.get(key), str) else None
        name = text("CFBundleName")
        if name is None:
            name = text("CFBundleDisplayName")
        if name is None:
            name = display(os.path.basename(path)[:-len(b".app")])
        version, identifier = text("CFBundleShortVersionString"), text("CFBundleIdentifier")
        app = {"name": name, "version": "\u2014" if version is None else version, "size": du(path),
               "bundleID": "unknown" if identifier is None else identifier, "path": display(path),
               "lastUsed": utc(os.lstat(path).st_mtime_ns), "selected": False} | dict.fromkeys(SIZES, 0)
        app["associatedFiles"] = self.expected_files(app)
        return app

    def without_ids(self, apps):
        """The applications without their identifiers, which must all be different."""
        seen = []
        for app in apps:
            seen.append(uuid.UUID(app.pop("id")))
            seen += [uuid.UUID(file.pop("id")) for file in app["associatedFiles"]]
        self.assertEqual(len(set(seen)), len(seen))
        return apps

    def test_apps_are_what_scandir_plistlib_and_du_find(self):
        told = self.make_home()
        found = bundles_below(self.applications)
        self.assertGreater(len(found), 20)
        expected = sorted((self.expected(path, told.get(path, {})) for path in found), key=lambda app: -app["size"])
        self.assertGreater(sum(len(app["associatedFiles"]) for app in expected), 20)
        result = self.result("apps", self.home, "--applications", self.applications)
        self.assertEqual(self.without_ids(result), expected)

    def test_apps_without_an_applications_folder_are_none(self):
        self.assertEqual(self.result("apps", self.home, "--applications", self.at(b"missing")), [])
        self.assertEqual(self.result("apps", self.at(b"missing"), "--applications", self.applications), [])
        self.assertEqual(self.result("apps", self.home, "--layout", "linux"), [])

    def test_files_named_as_bundles_are_none(self):
        self.write(os.path.join(self.applications, b"File.app"), b"content")
        os.symlink(b"nowhere", os.path.join(self.applications, b"Link.app"))
        self.assertEqual(self.result("apps", self.home, "--applications", self.applications), [])

    def test_bad_usage_is_refused(self):
        for arguments in (["apps"], ["apps", self.home, "more"], ["apps", ""], ["apps", self.home, "--layout", "other"]):
            self.refused(*arguments)


if __name__ == "__main__":
    driver_test.main(__doc__)
