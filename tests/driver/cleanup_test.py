#!/usr/bin/env python3
"""Compares what quillmere-driver finds to clean and cleans with oracles of its own: os.scandir, lstat and the real du.

Usage: cleanup_test.py PATH-OF-THE-DRIVER [SEED]
"""

import os
import time
import urllib.parse

import driver_test
from driver_test import display, du

MONTH = 30 * 24 * 60 * 60
TOOLS = (b".git", b".svn", b"node_modules", b".build", b"__pycache__", b"DerivedData")
NO_CONTENT = (b".DS_Store", b".localized", b"Icon\r", b"Icon\r\r")
PACKAGES = (b"app", b"framework", b"photoslibrary", b"pkg")

CATALOGUE = [
    ("browser-cache", "Browser Caches", "Chrome, Safari, Firefox cache files", "globe", True,
     [b"Library/Caches/Google/Chrome", b"Library/Caches/com.apple.Safari", b"Library/Caches/org.mozilla.firefox"]),
    ("logs", "Log Files", "System & application logs", "doc.text.fill", True, [b"Library/Logs"]),
    ("xcode-derived", "Xcode Derived Data", "Build artifacts & caches (will rebuild on next project open)",
     "hammer.fill", True, [b"Library/Developer/Xcode/DerivedData"]),
    ("npm-cache", "npm / yarn Cache", "Package manager caches (will re-download on next install)",
     "shippingbox.fill", True, [b".npm/_cacache", b"Library/Caches/Yarn"]),
    ("empty-folders", "Empty Folders", "Completely empty folders in Downloads, Desktop, and Documents",
     "folder.badge.minus", False, None),
    ("old-downloads", "Old Downloads", "Files older than 30 days in Downloads", "arrow.down.circle.fill", False,
     [b"Downloads"]),
    ("trash", "Trash", "Permanently delete items in Trash", "trash.fill", False, [b".Trash"]),
]


def entries(folder):
    try:
        return list(os.scandir(folder))
    except OSError:
        return []


def file_count(folder, level=1):
    """What find and wc count: files down to the third level, one more for each line break in a path."""
    count = 0
    for entry in entries(folder):
        if entry.is_file(follow_symlinks=False):
            count += 1 + entry.path.count(b"\n")
        elif entry.is_dir(follow_symlinks=False) and level < 3:
            count += file_count(entry.path, level + 1)
    return min(count, 10000)


def empty_folders(folder, depth=0, root=None):
    """As a walk finds them that looks through no link out of its root, none in a circle and none below another."""
    root = root or os.path.realpath(folder)
    listing = entries(folder)
    if depth > 0 and all(entry.name in NO_CONTENT for entry in listing):
        return [folder]
    found = []
    for entry in listing if depth < 6 else []:
        if entry.name in TOOLS or entry.name.startswith(b".") or not os.path.isdir(entry.path):
            continue
        if entry.is_symlink():
            target = os.path.realpath(entry.path)
            above = os.path.realpath(folder)
            if not inside(target, root) or inside(above, target) or above != folder:
                continue
        found += empty_folders(entry.path, depth + 1, root)
    return found


def inside(path, folder):
    return path == folder or path.startswith(folder + b"/")


def preview_files(folder, cutoff):
    for entry in entries(folder):
        if entry.is_dir(follow_symlinks=False):
            if os.path.splitext(entry.name)[1][1:].lower() not in PACKAGES:
                yield from preview_files(entry.path, cutoff)
        elif entry.is_file(follow_symlinks=False):
            status = entry.stat(follow_symlinks=False)
            if cutoff is None or status.st_mtime_ns < cutoff:
                yield {"name": display(entry.name), "size": status.st_size, "path": display(entry.path)}


class CleanupDriverTest(driver_test.DriverCase):
    def setUp(self):
        super().setUp()
        self.root = os.path.realpath(self.root)
        self.home = self.at(b"it's home")
        self.trash = os.path.join(self.home, b".local/share/Trash")
        os.mkdir(self.home)

    def place(self, name):
        return os.path.join(self.home, name)

    def write(self, name, content=b"content", age=0):
        path = self.place(name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        driver_test.write(path, content)
        moment = time.time() - age
        os.utime(path, (moment, moment))
        return path

    def fill(self, name, depth=3):
        os.makedirs(self.place(name), exist_ok=True)
        self.maker.folder(self.place(name), depth)

    def names(self, name):
        return sorted(os.listdir(self.place(name)))

    def trashed(self):
        """What lies in the home's Trash, by where it was; nothing may lack its note, nor a note its item."""
        origins = {}
        files, info = (os.path.join(self.trash, name) for name in (b"files", b"info"))
        for name in os.listdir(files):
            with open(os.path.join(info, name + b".trashinfo"), "rb") as stream:
                lines = stream.read().split(b"\n")
            path = next(line[5:] for line in lines if line.startswith(b"Path="))
            origins[urllib.parse.unquote_to_bytes(path)] = os.path.join(files, name)
        self.assertEqual(len(os.listdir(info)), len(origins))
        return origins

    # cleanup

    def make_mac_home(self):
        for name in (b"Library/Logs", b"Library/Caches/Google/Chrome", b"Library/Caches/org.mozilla.firefox",
                     b"Library/Developer/Xcode/DerivedData", b".npm/_cacache", b"Downloads", b"Desktop", b"Documents",
                     b".Trash"):
            self.fill(name)

    def expected_categories(self, applications=None):
        expected = []
        for identifier, name, description, icon, safe, places in CATALOGUE:
            if identifier == "xcode-derived" and applications is None:
                continue
            if places is None:
                paths = sum((empty_folders(self.place(root)) for root in (b"Downloads", b"Desktop", b"Documents")), [])
                size = count = len(paths)
            else:
                paths = [self.place(place) for place in places]
                if identifier == "npm-cache":
                    paths = [path for path in paths if os.path.exists(path)]
                full = [path for path in paths if entries(path) and not os.path.islink(path)]
                size, count = sum(map(du, full)), sum(map(file_count, full))
            expected.append({"id": identifier, "name": name, "description": description, "icon": icon,
                             "paths": list(map(display, paths)), "size": size, "fileCount": count, "safe": safe,
                             "checked": False})
        return sorted((category for category in expected if category["size"] > 0),
                      key=lambda category: -category["size"])

    def test_cleanup_finds_what_scandir_and_du_find(self):
        self.make_mac_home()
        applications = self.at(b"Apps")
        os.makedirs(os.path.join(applications, b"Xcode.app"))
        expected = self.expected_categories(applications)
        self.assertGreater(len(expected), 3)
        self.assertEqual(self.result("cleanup", self.home, "--applications", applications), expected)
        os.rmdir(os.path.join(applications, b"Xcode.app"))
        self.assertEqual(self.result("cleanup", self.home + b"/", "--applications", applications),
                         self.expected_categories())

    def test_cleanup_of_a_home_with_nothing_but_empty_places_is_empty(self):
        for name in (b"Library/Logs", b"Downloads", b"Desktop", b".Trash", b".npm/_cacache"):
            os.makedirs(self.place(name))
        self.assertEqual(self.result("cleanup", self.home), [])
        self.assertEqual(self.result("cleanup", self.at(b"missing")), [])

    def test_linux_layout_knows_this_systems_places(self):
        for name in (b".cache/mozilla", b".cache/editor/logs", b".local/state/tool/log", b".npm/_cacache", b".cache/yarn",
                     b"Downloads", b".local/share/Trash/files"):
            self.write(name + b"/file", b"x" * 9000)
        os.mkdir(self.place(b"Desktop"))
        os.mkdir(self.place(b"Desktop/empty"))
        found = {category["id"]: category for category in self.result("cleanup", self.home, "--layout", "linux")}
        self.assertEqual(set(found), {"browser-cache", "logs", "npm-cache", "old-downloads", "trash", "empty-folders"})
        self.assertEqual(found["trash"]["paths"], [display(self.place(b".local/share/Trash/files"))])
        self.assertEqual(found["logs"]["paths"],
                         [display(self.place(name)) for name in (b".cache/editor/logs", b".local/state/tool/log")])
        for category in found.values():
            if category["id"] != "empty-folders":
                held = [os.fsencode(path) for path in category["paths"] if entries(os.fsencode(path))]
                self.assertEqual(category["size"], sum(map(du, held)), category)

    # cleanup-preview

    def test_preview_lists_what_a_walk_finds(self):
        self.make_mac_home()
        cutoff = time.time_ns() - MONTH * 10**9
        for identifier, _, _, _, _, places in CATALOGUE:
            if identifier == "xcode-derived":
                continue
            if places is None:
                roots = (b"Downloads", b"Desktop", b"Documents")
                expected = [{"name": display(os.path.basename(path)), "size": 0, "path": display(path)}
                            for root in roots for path in empty_folders(self.place(root))]
                if not expected:
                    continue
            else:
                limit = cutoff if identifier == "old-downloads" else None
                files = [file for place in places for file in preview_files(self.place(place), limit)]
                expected = sorted(files, key=lambda file: -file["size"])
            self.assertEqual(self.result("cleanup-preview", self.home, identifier), expected)

    def test_preview_of_downloads_holds_the_old_ones(self):
        self.write(b"Downloads/old", age=MONTH + 60)
        self.write(b"Downloads/deep/older", b"larger than the other", age=3 * MONTH)
        self.write(b"Downloads/new", age=MONTH - 3600)
        self.write(b"Downloads/Thing.app/inside", age=3 * MONTH)
        found = self.result("cleanup-preview", self.home, "old-downloads")
        self.assertEqual([file["name"] for file in found], ["older", "old"])

    # clean

    def test_clean_moves_the_content_of_a_place_to_the_trash(self):
        self.fill(b"Library/Logs", 2)
        os.makedirs(self.at(b"kept"))
        driver_test.write(self.at(b"kept", b"file"), b"kept")
        os.symlink(self.at(b"kept"), self.place(b"Library/Logs/way out"))
        self.write(b"Library/Logs/file")
        before = {self.place(b"Library/Logs/" + name) for name in self.names(b"Library/Logs")}
        size = du(self.place(b"Library/Logs"))
        self.assertEqual(self.result("clean", self.home, "logs"),
                         {"title": "Cleaned 1 category", "detail": "Log Files", "bytesAffected": size})
        self.assertEqual(self.names(b"Library/Logs"), [])
        self.assertEqual(set(self.trashed()), before)
        self.assertEqual(os.listdir(self.at(b"kept")), [b"file"])

    def test_clean_takes_picked_files_alone(self):
        picked = [self.write(b"Library/Logs/folder/" + name) for name in (b"one\n", b"two's \xff")]
        self.write(b"Library/Logs/folder/stays")
        outside = self.write(b"stays too")
        result = self.result("clean", self.home, "logs", "--", *picked, outside)
        self.assertEqual(result["bytesAffected"], 2 * len(b"content"))
        self.assertEqual(self.names(b"Library/Logs/folder"), [b"stays"])
        self.assertEqual(set(self.trashed()), set(picked))
        self.assertTrue(os.path.exists(outside))

    def test_clean_leaves_downloads_alone_unless_they_are_picked(self):
        old = self.write(b"Downloads/old", age=2 * MONTH)
        self.write(b"Downloads/new")
        self.result("clean", self.home, "old-downloads")
        self.assertEqual(self.names(b"Downloads"), [b"new", b"old"])
        self.assertFalse(os.path.exists(self.trash))
        self.result("clean", self.home, "old-downloads", old)
        self.assertEqual(self.names(b"Downloads"), [b"new"])
        self.assertEqual(set(self.trashed()), {old})

    def test_clean_moves_empty_folders_as_a_whole(self):
        self.write(b"Documents/full/file")
        folders = [self.place(b"Documents/" + name) for name in (b"one", b"two", b"three")]
        for folder in folders:
            os.makedirs(folder)
        self.result("clean", self.home, "empty-folders", folders[1])
        self.assertEqual(self.names(b"Documents"), [b"full", b"one", b"three"])
        self.result("clean", self.home, "empty-folders")
        self.assertEqual(self.names(b"Documents"), [b"full"])
        self.assertEqual(set(self.trashed()), set(folders))

    def trash_something(self):
        """Three items with their notes, by what moves things there."""
        for name in (b"one", b"two\n\xff", b"folder/inner"):
            self.write(b"Library/Logs/" + name)
        self.result("clean", self.home, "logs")
        self.assertEqual(len(self.trashed()), 3)

    def test_clean_empties_the_trash_with_its_notes(self):
        self.trash_something()
        os.symlink(self.home, os.path.join(self.trash, b"files", b"without a note"))
        self.write(b"kept")
        self.result("clean", self.home, "trash", "--layout", "linux")
        self.assertEqual(self.trashed(), {})
        self.assertEqual(os.listdir(os.path.join(self.trash, b"info")), [])
        self.assertTrue(os.path.exists(self.place(b"kept")))
        self.assertEqual([category["id"] for category in self.result("cleanup", self.home, "--layout", "linux")], [])

    def test_clean_of_picked_trash_takes_notes_of_whole_items_alone(self):
        self.trash_something()
        files = os.path.join(self.trash, b"files")
        self.result("clean", self.home, "trash", "--layout", "linux", os.path.join(files, b"folder/inner"),
                    os.path.join(files, b"one"))
        self.assertEqual(set(self.trashed()), {self.place(b"Library/Logs/two\n\xff"), self.place(b"Library/Logs/folder")})
        self.assertEqual(os.listdir(os.path.join(files, b"folder")), [])

    def test_clean_leaves_a_place_alone_that_is_a_link(self):
        self.write(b"elsewhere/file")
        os.makedirs(self.place(b".local/share/Trash/info"))
        os.symlink(self.place(b"elsewhere"), self.place(b".local/share/Trash/files"))
        self.refused("clean", self.home, "trash", "--layout", "linux") # it is not offered
        self.assertEqual(self.names(b"elsewhere"), [b"file"])

    def test_clean_takes_nothing_from_behind_a_trash_that_is_a_link(self):
        self.write(b"elsewhere/files/file")
        self.write(b"elsewhere/info/file.trashinfo")
        os.makedirs(os.path.dirname(self.trash))
        os.symlink(self.place(b"elsewhere"), self.trash)
        self.result("clean", self.home, "trash", "--layout", "linux")
        self.assertEqual(self.names(b"elsewhere/files"), [b"file"])
        self.assertEqual(self.names(b"elsewhere/info"), [b"file.trashinfo"])

    def test_cleaned_everything_is_clean(self):
        for name in (b".cache/mozilla", b".cache/editor/logs", b".npm/_cacache"):
            self.fill(name, 2)
            self.write(name + b"/file")
        os.makedirs(self.place(b"Desktop/empty"))
        for identifier in ("browser-cache", "logs", "npm-cache", "empty-folders", "trash"):
            self.result("clean", self.home, identifier, "--layout", "linux")
        self.assertEqual(self.result("cleanup", self.home, "--layout", "linux"), [])
        self.assertEqual(self.trashed(), {})

    def test_bad_usage_is_refused(self):
        for arguments in (["cleanup"], ["cleanup", "a", "b"], ["cleanup-preview", self.home],
                          ["cleanup-preview", self.home, "nothing"], ["cleanup-preview", self.home, "xcode-derived"],
                          ["clean", self.home], ["clean", self.home, "nothing"], ["clean", self.home, "logs"],
                          ["clean", self.home, "logs", "--layout", "other"], ["cleanup", ""]):
            self.refused(*arguments)


if __name__ == "__main__":
    driver_test.main(__doc__)
