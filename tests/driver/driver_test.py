#!/usr/bin/env python3
"""Compares what quillmere-driver prints with oracles of its own: os.scandir, lstat, hashlib, the real du and stat.

Usage: driver_test.py PATH-OF-THE-DRIVER [SEED]

The trees are random, with hostile names, links, hidden entries, holes and hard links. The seed is printed, and the
tree is kept when a test fails.
"""

import hashlib
import json
import math
import os
import random
import shutil
import subprocess
import sys
import tempfile
import unittest

DRIVER = ""
SEED = 0

HOSTILE_NAMES = [
    b"plain", b"with space", b" leading", b"trailing ", b"new\nline", b"tab\there", b"quote\"s'", b"back\\slash",
    b"-sk", b"--hidden", b"--", b"*", b"$HOME", b"~", b"\x01\x7f", b"caf\xc3\xa9", b"cafe\xcc\x81",
    b"\xf0\x9f\x98\x80 smile", b"\xff\xfe", b"half \xe2\x82", b"surrogate \xed\xa0\x80", b"overlong \xc0\xaf",
    b"beyond \xf5\x80\x80\x80", b"x" * 255, b"dot.", b"...", b"..two", b"a.b.c", b"PHOTO.JPG", b"picture.TIFF",
    b"text.rtf", b"clip.wmv", b"archive.zip", b"code.py", b"page.html", b"odd.\xff", b"Thing.app", b".hidden",
    b".hidden.txt", b".\xff", b"5\tx", b"\xd8\xb9\xd8\xb1\xd8\xa8\xd9\x8a",
]

ICONS = {
    "jpg": "photo.fill", "tiff": "photo.fill", "wmv": "film.fill", "rtf": "doc.text.fill", "zip": "doc.zipper",
    "txt": "doc.text.fill", "py": "chevron.left.forwardslash.chevron.right",
    "c": "chevron.left.forwardslash.chevron.right", "html": "curlybraces",
    "app": "app.fill",
}
COLORS = {"jpg": "3fb950", "txt": "d29922", "zip": "da3633", "py": "39d2c0", "html": "39d2c0"}


def display(name):
    """The bytes as JSON carries them: U+FFFD for each one that is not UTF-8."""
    text = name.decode("utf-8", "surrogateescape")
    return "".join("\ufffd" if 0xDC80 <= ord(character) <= 0xDCFF else character for character in text)


def drive(*arguments, stdin=b""):
    """Runs the driver and gives its exit code, standard output and standard error."""
    done = subprocess.run([DRIVER, *arguments], input=stdin, capture_output=True, timeout=110, check=False)
    return done.returncode, done.stdout, done.stderr


def du(path):
    """The allocated bytes of everything at and below the path."""
    done = subprocess.run([b"du", b"-sk", path], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
    first = done.stdout.split(b"\t")[0]
    return int(first) * 1024 if first.isdigit() else 0


def birth_times(folder, names):
    """The birth times as the stat program writes them, in UTC; none where the file system keeps none."""
    if not names:
        return []
    paths = [os.path.join(folder, name) for name in names]
    environment = dict(os.environ, TZ="UTC", LC_ALL="C")
    output = subprocess.run([b"stat", b"--printf=%w\\n", b"--", *paths], env=environment, capture_output=True,
                            check=True).stdout.decode()
    return [None if line == "-" else line.removesuffix(" +0000").replace(" ", "T") + "Z"
            for line in output.splitlines()]


def utc(nanoseconds):
    """The moment in the driver's form, worked out without the calendar of any library."""
    seconds, rest = divmod(nanoseconds, 10**9)
    days, of_day = divmod(seconds, 86400)
    year = 1970
    while days < 0:
        year -= 1
        days += 365 + leap(year)
    while days >= 365 + leap(year):
        days -= 365 + leap(year)
        year += 1
    month = 1
    for length in (31, 28 + leap(year), 31, 30, 31, 30, 31, 31, 30, 31, 30, 31):
        if days < length:
            break
        days -= length
        month += 1
    return (f"{year:04}-{month:02}-{days + 1:02}T{of_day // 3600:02}:{of_day // 60 % 60:02}:{of_day % 60:02}"
            f".{rest:09}Z")


def leap(year):
    return int(year % 4 == 0 and (year % 100 != 0 or year % 400 == 0))


class TreeMaker:
    """Fills a folder with a random tree."""

    def __init__(self, seed):
        self.random = random.Random(seed)

    def file(self, path):
        kind = self.random.randrange(5)
        with open(path, "wb") as stream:
            if kind == 0:
                stream.truncate(self.random.randrange(1 << 40))
            elif kind > 1:
                stream.write(b"q" * int(math.exp(self.random.uniform(0, 11))))
        moment = self.random.randrange(-2 * 10**18, 4 * 10**18)
        os.utime(path, ns=(moment, moment))

    def folder(self, path, depth, most=14):
        names = self.random.sample(HOSTILE_NAMES, self.random.randrange(most + 1))
        made = []
        for name in names:
            entry = os.path.join(path, name)
            kind = self.random.randrange(12)
            if kind < 4 and depth > 0:
                os.mkdir(entry)
                self.folder(entry, depth - 1, most)
            elif kind == 4:
                os.symlink(self.random.choice([b"nowhere", b".", b"..", b"/usr", entry, *(names[:1])]), entry)
            elif kind == 5:
                os.mkfifo(entry)
            elif kind == 6 and made:
                os.link(self.random.choice(made), entry)
            else:
                self.file(entry)
                made.append(entry)


class CopyMaker:
    """Fills a folder with a random tree in which many files are equal, and many others nearly so."""

    LENGTHS = [0, 1, 2, 6, 99, 100, 4095, 4096, 4097, 8192, 8193, 70000]
    LARGE_LENGTHS = [(1 << 20) - 1, 1 << 20, (1 << 20) + 1, (1 << 20) + 20000]
    NAMES = HOSTILE_NAMES + [b"node_modules", b"Node_modules", b".git", b"Library", b"LIBRARY", b"DerivedData",
                             b"__pycache__", b".build", b"build", b".Trash", b"Libraryx", b"DerivedData "]

    def __init__(self, seed):
        self.random = random.Random(seed)
        self.contents = {length: self.random.randbytes(length) for length in self.LENGTHS + self.LARGE_LENGTHS}
        self.loops = 2 # links to a folder above multiply what there is to walk

    def content(self):
        """The bytes of one of few lengths, with at most one byte changed, where a reader may overlook it."""
        lengths = self.LARGE_LENGTHS if self.random.randrange(12) == 0 else self.LENGTHS
        content = bytearray(self.contents[self.random.choice(lengths)])
        place = self.random.choice([None, None, 0, 4095, 4096, 8191, 8192, len(content) // 2, len(content) - 8193,
                                    len(content) - 8192, len(content) - 1])
        if place is not None and 0 <= place < len(content):
            content[place] ^= 1
        return content

    def link(self, path, names):
        targets = [b"nowhere", *names[:4]]
        if self.loops > 0:
            targets += [b".", b".."]
        target = self.random.choice(targets)
        self.loops -= target in (b".", b"..")
        os.symlink(target, path)

    def folder(self, path, depth):
        names = self.random.sample(self.NAMES, self.random.randrange(2, 12))
        for name in names:
            entry = os.path.join(path, name)
            kind = self.random.randrange(12)
            if kind < 3 and depth > 0:
                os.mkdir(entry)
                self.folder(entry, depth - 1)
            elif kind == 3:
                self.link(entry, names)
            elif kind == 4 and self.random.randrange(4) == 0:
                os.mkfifo(entry)
            else:
                write(entry, self.content())


class DuplicateOracle:
    """The groups of equal files as a plain walk and hashlib find them, with no thought of cost."""

    BARE_RULES = (b"node_modules", b".git", b"DerivedData", b".build", b"__pycache__")
    LARGEST_READ_WHOLE = 1 << 20
    SAMPLE = 8192

    def __init__(self, home, minimum):
        self.locked = [home + name for name in (b"/Library", b"/.Trash", b"/DerivedData")]
        self.minimum = minimum
        self.buckets = {}

    @staticmethod
    def covers(rule, path):
        return path == rule or path.startswith(rule + b"/")

    def walk(self, folder, depth, locked):
        if depth >= 8 or folder.rsplit(b"/", 1)[1] in self.BARE_RULES or any(
                self.covers(rule, folder) for rule in locked):
            return
        try:
            names = [entry.name for entry in os.scandir(folder)]
        except OSError:
            return
        for name in names:
            path = folder + b"/" + name
            if name.startswith(b".") or not os.path.exists(path):
                continue
            if os.path.isdir(path):
                self.walk(path, depth + 1, locked)
            elif os.lstat(path).st_size >= self.minimum: # of a link the link's own
                self.buckets.setdefault(os.lstat(path).st_size, []).append(path)

    def digest(self, path, size):
        with open(path, "rb") as stream:
            if size <= self.LARGEST_READ_WHOLE:
                return hashlib.sha256(stream.read(size)).hexdigest()
            first = stream.read(self.SAMPLE)
            stream.seek(size - self.SAMPLE)
            return hashlib.sha256(first + stream.read(self.SAMPLE) + size.to_bytes(8, "little")).hexdigest()

    def groups(self, *roots):
        for root in roots:
            self.walk(root, 0, [rule for rule in self.locked if not self.covers(rule, root)])
        result = []
        for size, paths in self.buckets.items():
            equal = {}
            for path in paths:
                if os.path.isfile(path): # no pipe
                    equal.setdefault(self.digest(path, size), []).append(display(path))
            result += [{"hash": digest, "size": size, "paths": shared} for digest, shared in equal.items()
                       if len(shared) > 1]
        return result


def write(path, content):
    with open(path, "wb") as stream:
        stream.write(content)


def waste(group):
    return group["size"] * (len(group["paths"]) - 1)


class DriverCase(unittest.TestCase):
    """A folder of the test's own and the driver to be run over it."""

    maxDiff = 4000

    def setUp(self):
        self.root = os.fsencode(tempfile.mkdtemp(prefix="quillmere-driver-"))
        self.maker = TreeMaker(SEED)

    def tearDown(self):
        if not self._outcome.success:
            print("kept:", self.root, "seed:", SEED, file=sys.stderr)
            return
        shutil.rmtree(self.root)

    def at(self, *names):
        return os.path.join(self.root, *names)

    def succeed(self, *arguments, stdin=b""):
        code, output, errors = drive(*arguments, stdin=stdin)
        self.assertEqual((code, errors), (0, b""), arguments)
        self.assertTrue(output.endswith(b"\n"))
        return output.decode("utf-8")

    def result(self, *arguments, stdin=b""):
        return json.loads(self.succeed(*arguments, stdin=stdin))

    def refused(self, *arguments, stdin=b""):
        code, output, errors = drive(*arguments, stdin=stdin)
        self.assertEqual((code, output), (2, b""), arguments)
        self.assertTrue(errors.startswith(b"quillmere-driver: "), errors)


class DriverTest(DriverCase):
    # list

    def expected_items(self, folder, hidden):
        names = [entry.name for entry in os.scandir(folder) if hidden or not entry.name.startswith(b".")]
        items = []
        for name, created in zip(names, birth_times(folder, names), strict=True):
            path = os.path.join(folder, name)
            status = os.lstat(path)
            directory = (status.st_mode & 0o170000) == 0o040000
            # The last dot begins the extension, unless it begins the name.
            dot = display(name).rfind(".")
            extension = display(name)[dot + 1:].lower() if dot > 0 else ""
            items.append({
                "name": display(name), "path": display(path), "size": status.st_size, "isDirectory": directory,
                "modified": utc(status.st_mtime_ns), "created": created, "ext": extension,
                "isHidden": name.startswith(b"."),
                "iconName": "folder.fill" if directory else ICONS.get(extension, "doc.fill"),
                "colorHex": "58a6ff" if directory else COLORS.get(extension, "8b949e"),
            })
        return items

    def test_list_tells_every_entry_as_the_system_does(self):
        self.maker.folder(self.root, 2, len(HOSTILE_NAMES))
        folders = [folder for folder, _, _ in os.walk(self.root)]
        for folder in folders:
            for hidden in (False, True):
                options = ["--hidden"] if hidden else []
                expected = self.expected_items(folder, hidden)
                self.assertEqual(self.result("list", *options, "--", folder), expected)
                self.assertEqual(self.succeed("list", *options, "--count", folder), f"{len(expected)}\n")

    def test_list_of_every_hostile_name(self):
        for name in HOSTILE_NAMES:
            self.maker.file(self.at(name))
        self.assertEqual(self.result("list", self.root, "--hidden"), self.expected_items(self.root, True))

    def test_list_of_what_is_no_folder_is_empty(self):
        self.maker.file(self.at(b"file"))
        self.assertEqual(self.result("list", self.at(b"file")), [])
        self.assertEqual(self.result("list", self.at(b"missing")), [])
        self.assertEqual(self.succeed("list", self.at(b"missing"), "--count"), "0\n")

    # scantree

    def expected_tree(self, path, depth, deepest):
        tree = {"name": display(os.path.basename(path)), "path": display(path), "size": 0, "isDirectory": True,
                "children": None}
        if depth >= deepest:
            tree["size"] = du(path)
            return tree
        try:
            entries = list(os.scandir(path))
        except OSError:
            return tree
        children = []
        for entry in entries:
            if entry.name.startswith(b"."):
                continue
            if entry.is_dir(follow_symlinks=False):
                children.append(self.expected_tree(entry.path, depth + 1, deepest))
            else:
                children.append({"name": display(entry.name), "path": display(entry.path), "isDirectory": False,
                                 "size": entry.stat(follow_symlinks=False).st_size, "children": None})
        tree["size"] = sum(child["size"] for child in children)
        tree["children"] = sorted(children, key=lambda child: -child["size"])[:30]
        return tree

    def test_scantree_measures_as_scandir_and_du_do(self):
        self.maker.folder(self.root, 4)
        for depth, deepest in ((0, 0), (0, 1), (0, 2), (0, 3), (1, 2), (2, 1)):
            self.assertEqual(self.result("scantree", self.root, str(depth), str(deepest)),
                             self.expected_tree(self.root, depth, deepest))

    def test_scantree_keeps_thirty_children_and_counts_all(self):
        for number in range(200):
            with open(self.at(b"file %d" % number), "wb") as stream:
                stream.truncate(number % 7 * 1000)
        tree = self.result("scantree", self.root, "0", "2")
        self.assertEqual(len(tree["children"]), 30)
        self.assertEqual(tree, self.expected_tree(self.root, 0, 2))

    @unittest.skipIf(os.geteuid() == 0, "nothing is locked for root")
    def test_scantree_counts_a_locked_folder_as_nothing(self):
        os.mkdir(self.at(b"locked"))
        self.maker.file(self.at(b"locked", b"file"))
        os.chmod(self.at(b"locked"), 0)
        try:
            self.assertEqual(self.result("scantree", self.root, "0", "2"), self.expected_tree(self.root, 0, 2))
        finally:
            os.chmod(self.at(b"locked"), 0o700)

    # breakdown and largest

    def allocated_file(self, path, size):
        with open(path, "wb") as stream:
            os.posix_fallocate(stream.fileno(), 0, size)

    def make_mac_home(self):
        home, applications = self.at(b"home"), self.at(b"Apps")
        for folder in (b"Documents", b"Library", b"Downloads", b"Pictures", b"Desktop", b"Movies"):
            os.makedirs(os.path.join(home, folder))
            self.maker.folder(os.path.join(home, folder), 2)
        os.mkdir(applications)
        self.maker.folder(applications, 1)
        places = [(home, b"Downloads"), (home, b"Movies"), (home, b"Documents"), (applications, b"")]
        for number in range(10): # two of each size, so that the order of equal ones shows
            path = os.path.join(*places[number % len(places)], b"big %d \xff" % number)
            if number % 3:
                self.allocated_file(path, (10 + number // 2) * 1000 * 1000)
            else:
                os.mkdir(path)
                self.allocated_file(os.path.join(path, b".inner"), (10 + number // 2) * 1000 * 1000)
        self.allocated_file(os.path.join(home, b"Downloads", b".big but hidden"), 30 * 1000 * 1000)
        os.symlink(b"nowhere", os.path.join(home, b"Downloads", b"broken"))
        os.symlink(b"big 0 \xff", os.path.join(home, b"Downloads", b"way to a big one"))
        return home, applications

    def expected_largest(self, roots):
        entries = []
        for root in roots:
            try:
                names = [entry.name for entry in os.scandir(root)]
            except OSError:
                continue
            for name in names:
                path = os.path.join(root, name)
                if name.startswith(b".") or not os.path.exists(path):
                    continue
                size = du(path)
                if size > 10**7:
                    entries.append({"name": display(name), "path": display(path), "size": size})
        return sorted(entries, key=lambda entry: -entry["size"])[:8]

    def test_breakdown_is_du_of_the_main_folders(self):
        home, applications = self.make_mac_home()
        rows = [("Applications", applications, "58a6ff", "app.fill"), ("Documents", b"Documents", "a371f7", "doc.fill"),
                ("Library", b"Library", "3fb950", "books.vertical.fill"),
                ("Downloads", b"Downloads", "da3633", "arrow.down.circle.fill"),
                ("Pictures", b"Pictures", "d29922", "photo.fill"), ("Music", b"Music", "39d2c0", "music.note"),
                ("Desktop", b"Desktop", "f778ba", "desktopcomputer")]
        expected = [{"name": name, "size": du(os.path.join(home, folder)), "color": color, "icon": icon,
                     "children": []} for name, folder, color, icon in rows]
        self.assertGreater(expected[3]["size"], 10**7)
        self.assertEqual(self.result("breakdown", home, "--applications", applications), expected)
        self.assertEqual(self.result(b"--applications=" + applications, "breakdown", home + b"/"), expected)

    def test_largest_are_the_biggest_entries_of_the_roots(self):
        home, applications = self.make_mac_home()
        folders = (b"Library", b"Documents", b"Downloads", b"Pictures", b"Music", b"Desktop", b"Movies")
        expected = self.expected_largest([applications] + [os.path.join(home, folder) for folder in folders])
        self.assertEqual(len(expected), 8)
        self.assertEqual(self.result("largest", home, "--applications", applications), expected)

    def test_linux_layout_asks_the_users_own_folders(self):
        home = self.at(b"home")
        for folder in (b".config", b".cache/deep", b".local/share", b"Bilder", b"Musik"):
            os.makedirs(os.path.join(home, folder))
            self.maker.folder(os.path.join(home, folder), 1)
        with open(os.path.join(home, b".config", b"user-dirs.dirs"), "wb") as stream:
            stream.write(b'XDG_PICTURES_DIR="$HOME/Bilder"\nXDG_MUSIC_DIR="$HOME/"\n')
        library = sum(du(os.path.join(home, folder)) for folder in (b".config", b".cache", b".local/share"))
        sizes = {row["name"]: row["size"] for row in self.result("--layout", "linux", "breakdown", home)}
        del sizes["Applications"] # the system's own, and as large as it likes
        self.assertEqual(sizes, {"Documents": 0, "Library": library, "Downloads": 0,
                                 "Pictures": du(os.path.join(home, b"Bilder")), "Music": 0, "Desktop": 0})

    # dup

    def groups(self, minimum, home, *roots):
        return self.result("dup", "--min", str(minimum), "--home", home, "--", *roots)

    def assert_groups(self, groups, expected):
        """Of groups that waste as much as each other any may come first."""
        self.assertEqual([waste(group) for group in groups], sorted(map(waste, expected), reverse=True))
        self.assertEqual(*(sorted(either, key=lambda group: (group["size"], group["hash"], group["paths"]))
                           for either in (groups, expected)))

    def assert_paths(self, groups, *expected):
        """Exactly these groups, in any order, by the names of their files below the test's folder."""
        self.assertEqual(*(sorted(sorted(paths) for paths in either) for either in (
            [group["paths"] for group in groups], [[display(self.at(name)) for name in names] for names in expected])))

    def write(self, name, content):
        os.makedirs(os.path.dirname(self.at(name)), exist_ok=True)
        write(self.at(name), content)

    def test_dup_finds_the_groups_that_hashlib_finds(self):
        found = 0
        for number in range(6):
            home = self.at(b"home %d" % number)
            os.mkdir(home)
            CopyMaker(SEED + number).folder(home, 4)
            for minimum in (-1, 0, 1, 100, 4097, 1 << 20, (1 << 20) + 1):
                expected = DuplicateOracle(home, minimum).groups(home)
                self.assert_groups(self.groups(minimum, home), expected)
                found += len(expected)
        self.assertGreater(found, 6)

    def test_dup_walks_its_roots_in_their_order(self):
        home, other = self.at(b"home"), self.at(b"other \xff")
        for number, folder in enumerate((home, other)):
            os.mkdir(folder)
            CopyMaker(SEED).folder(folder, 2) # the same twice
            library = os.path.join(folder, b"Library")
            if os.path.lexists(library) and not os.path.isdir(library):
                os.unlink(library) # a name that the maker gives to files and links too
            self.write(os.path.join(library, b"copy"), b"a copy")
            self.write(os.path.join(folder, b"Library %d" % number, b"copy"), b"a copy")
        for roots in ((other, home), (home, other), (home, other, home + b"/Library"), (home + b"/Library", home),
                      (other, self.at(b"missing")), (home, home + b"/Library 0", home + b"/Library 0/copy")):
            expected = DuplicateOracle(home, 1).groups(*roots)
            self.assertGreater(len(expected), 0)
            self.assert_groups(self.groups(1, home, *roots), expected)

    def test_dup_lists_a_file_twice_that_two_roots_hold(self):
        self.write(b"outer/inner/file", b"the only one")
        outer, inner = self.at(b"outer"), self.at(b"outer/inner")
        self.assert_paths(self.groups(1, self.root, outer, inner), [b"outer/inner/file", b"outer/inner/file"])
        self.assertEqual(self.groups(1, self.root, outer, outer), []) # one root, named twice

    def test_dup_takes_relative_roots(self):
        self.write(b"a", b"same")
        self.write(b"b", b"same")
        relative = os.path.relpath(self.root)
        expected = [display(os.path.join(os.getcwdb(), relative, name)) for name in (b"a", b"b")]
        groups = self.groups(1, self.root, relative)
        self.assertEqual([sorted(group["paths"]) for group in groups], [expected])

    def test_dup_compares_up_to_a_mebibyte_whole_and_samples_beyond(self):
        for extra in (0, 1):
            content = bytearray(random.Random(SEED).randbytes((1 << 20) + extra))
            for place in (None, 0, 8191, 8192, 1 << 19, len(content) - 8193, len(content) - 8192, len(content) - 1):
                changed = bytearray(content)
                if place is not None:
                    changed[place] ^= 0x80
                self.write(b"%d/%s" % (extra, str(place).encode()), changed)
        groups = self.groups(1, self.root)
        middles = (None, 8192, 1 << 19, (1 << 20) + 1 - 8193)
        self.assert_paths(groups, [b"1/" + str(place).encode() for place in middles])
        self.assert_groups(groups, DuplicateOracle(self.root, 1).groups(self.root))

    def test_dup_considers_files_from_the_minimum_on(self):
        for size in (0, 99, 100, 101):
            self.write(b"a%d" % size, b"x" * size)
            self.write(b"b%d" % size, b"x" * size)
        of_size = {size: [b"a%d" % size, b"b%d" % size] for size in (0, 99, 100, 101)}
        self.assert_paths(self.groups(100, self.root), of_size[100], of_size[101])
        self.assert_paths(self.groups(101, self.root), of_size[101])
        self.assert_paths(self.groups(1, self.root), of_size[99], of_size[100], of_size[101])
        self.assert_paths(self.groups(0, self.root), *of_size.values())
        self.assertEqual(self.succeed("dup", "--home", self.root, "--min=102"), "[]\n")

    def test_dup_stays_out_of_the_folders_that_are_ignored(self):
        seen = [b"seen", b"Libraryx/file", b"deep/Library/file", b"library/file", b"a.git/file", b"x/node_modules"]
        for name in seen:
            self.write(name, b"everywhere")
        for folder in (b"Library", b".Trash", b"DerivedData", b"node_modules", b"x/y/node_modules", b".git", b".build",
                       b"x/y/DerivedData", b"x/y/__pycache__/z", b".hidden/folder"):
            self.write(folder + b"/file", b"everywhere")
        self.write(b".file", b"everywhere")
        self.assert_paths(self.groups(1, self.root), seen)
        self.assert_paths(self.groups(1, self.root + b"//"), seen)

    def test_dup_enters_a_locked_folder_that_is_a_root(self):
        for name in (b"Library/one", b"Library/Mail/two", b"Library/Mail/.three", b"DerivedData/four"):
            self.write(name, b"everywhere")
        library, mail = self.at(b"Library"), self.at(b"Library/Mail")
        self.assert_paths(self.groups(1, self.root, library), [b"Library/one", b"Library/Mail/two"])
        self.write(b"outside", b"everywhere")
        self.assert_paths(self.groups(1, self.root, self.root, mail), [b"outside", b"Library/Mail/two"])
        # The name alone locks that one too.
        self.assertEqual(self.groups(1, self.root, self.at(b"DerivedData"), self.at(b"outside")), [])
        # Beside another home nothing but names is locked.
        self.assert_paths(self.groups(1, b"/nowhere", self.root), [b"Library/one", b"Library/Mail/two", b"outside"])

    def test_dup_goes_seven_folders_deep(self):
        seventh = b"/".join(b"%d" % level for level in range(1, 8))
        for name in (b"top", seventh + b"/file", seventh + b"/8/file"):
            self.write(name, b"everywhere")
        self.assert_paths(self.groups(1, self.root), [b"top", seventh + b"/file"])

    def test_dup_follows_links_yet_sizes_them_themselves(self):
        self.write(b"folder/file", b"12345678 and more")
        self.write(b"elsewhere/file", b"12345678 and more")
        os.symlink(b"elsewhere", self.at(b"way"))
        os.symlink(b"missing", self.at(b"broken"))
        self.write(b"eleven", b"12345678 an") # as long as the link's text, and as what is read of its target
        os.symlink(b"folder/file", self.at(b"link"))
        self.assert_paths(self.groups(1, self.root), [b"folder/file", b"elsewhere/file", b"way/file"],
                          [b"eleven", b"link"])

    @unittest.skipIf(os.geteuid() == 0, "nothing is locked for root")
    def test_dup_passes_over_what_it_may_not_read(self):
        for name in (b"a", b"b", b"locked file", b"locked/c"):
            self.write(name, b"everywhere")
        os.chmod(self.at(b"locked file"), 0)
        os.chmod(self.at(b"locked"), 0)
        try:
            self.assert_paths(self.groups(1, self.root), [b"a", b"b"])
        finally:
            os.chmod(self.at(b"locked"), 0o700)

    def test_dup_puts_the_most_waste_first(self):
        counts = {(10, b"x"): 9, (79, b"x"): 2, (41, b"x"): 3, (41, b"y"): 2, (1, b"x"): 30, (1000, b"x"): 1}
        for (size, letter), count in counts.items():
            for number in range(count):
                self.write(b"%d%s%d" % (size, letter, number), letter * size)
        groups = self.groups(1, self.root)
        self.assertEqual([(group["size"], len(group["paths"])) for group in groups],
                         [(41, 3), (10, 9), (79, 2), (41, 2), (1, 30)])

    def test_dup_prints_one_line_with_names_in_any_bytes(self):
        names = [name for name in HOSTILE_NAMES if not name.startswith(b".")]
        for name in names:
            self.write(name, b"one content")
        text = self.succeed("dup", "--min", "1", "--home", self.root)
        paths = [display(self.at(entry.name)) for entry in os.scandir(self.root) if entry.name in names]
        digest = hashlib.sha256(b"one content").hexdigest()
        expected = [{"hash": digest, "paths": paths, "size": 11}]
        self.assertEqual(text.count("\n"), 1)
        self.assertEqual(json.loads(text, object_pairs_hook=list), [list(group.items()) for group in expected])
        self.assertEqual(sum("\ufffd" in path for path in paths), 6)

    def test_dup_refuses_bad_usage(self):
        home = ["--home", self.root]
        for arguments in ([], ["--min", "1"], home, [*home, "--min"], ["--min", "1", "--home"],
                          *([*home, "--min", text] for text in ("", "x", "1.5", "1k", " 1", str(2**63))),
                          ["--min", "1", "--home", ""], ["--min", "1", *home, ""], ["--min", "1", *home, "--count"],
                          ["--min", "1", *home, *home], ["--min", "1", "--min", "1", *home],
                          ["--min", "1", *home, "--layout", "other"],
                          ["--min", "1", *home, "--layout", "linux", "--applications", "/"]):
            self.refused("dup", *arguments)

    # The other verbs

    def test_probe_goes_round_the_folders(self):
        sizes = []
        for name in (b"a", b".b", b"c\xff"):
            os.mkdir(self.at(name))
            self.maker.folder(self.at(name), 1)
        self.maker.file(self.at(b"no folder"))
        os.symlink(b"a", self.at(b"no folder either"))
        sizes = [du(self.at(name)) for name in (b".b", b"a", b"c\xff")]
        expected = {"folders": 3, "probes": 7, "bytes": 2 * sum(sizes) + sizes[0]}
        self.assertEqual(self.result("probe", self.root, "7"), expected)

    def test_treemap_shares_the_area_by_size(self):
        source = random.Random(SEED)
        entries = [{"name": f"n{number}", "size": source.choice([0, 5, 5, 70, source.randrange(10**12)]),
                    "color": f"{number:06x}"} for number in range(30)]
        items = self.result("treemap", "640", "480.5", stdin=json.dumps(entries).encode())
        expected = sorted((entry for entry in entries if entry["size"]), key=lambda entry: -entry["size"])
        self.assertEqual([{key: item[key] for key in ("name", "size", "color")} for item in items], expected)
        total = sum(entry["size"] for entry in entries)
        for item in items:
            left, top, width, height = item["rect"]
            self.assertAlmostEqual(width * height / (640 * 480.5), item["size"] / total, places=9)
            self.assertGreaterEqual(min(left, top), 0)
            self.assertLessEqual(left + width, 640 + 1e-6)
            self.assertLessEqual(top + height, 480.5 + 1e-6)

    def test_bytes_have_the_told_texts(self):
        counts = [0, 1, 9, 10, 1023, 1024, 1536, 10239, 10240, 1048575, 1048576, 2**50 - 1]
        counts += [int(2**random.Random(SEED + number).uniform(0, 49.9)) for number in range(200)]
        expected = []
        for count in counts:
            power = min(int(math.log(count) / 6.931471805599453), 4) if count else 0 # 2**50 - 1 rounds up to 5
            scaled = count / 1024**power
            text = f"{scaled:.1f}" if scaled < 10 else f"{scaled:.0f}"
            expected.append(f"{text} {('B', 'KB', 'MB', 'GB', 'TB')[power]}" if count else "0 B")
        self.assertEqual(self.succeed("bytes", *map(str, counts)).splitlines(), expected)

    def test_colours_are_read_as_components(self):
        lines = self.succeed("colour", "58a6ff", "#8058a6FF", "58a6f", "none", "").splitlines()
        values = [[float(part) for part in line.split(" ")] for line in lines]
        blue = [0x58 / 255, 0xa6 / 255, 1]
        self.assertEqual(values, [[*blue, 1], [*blue, 0x80 / 255], [0, 0, 0, 1], [0, 0, 0, 1], [0, 0, 0, 1]])

    def test_defaults_are_the_five(self):
        self.assertEqual(self.result("defaults"), {
            "settings.confirmBeforeDelete": True, "settings.showHiddenFilesDefault": False,
            "settings.cleanupRequireReview": True, "settings.duplicateMinSize": 102400,
            "settings.diskCacheLifetimeMinutes": 5})

    def test_bad_usage_is_refused(self):
        for arguments in (["nothing"], ["list"], ["list", "a", "b"], ["list", "/", "--nothing"], ["list", ""],
                          ["list", "/", "--layout", "linux"], ["list", "/", "--count=1"],
                          ["scantree", "/", "0"], ["scantree", "/", "0", "x"], ["scantree", "/", "0", "99999999999"],
                          ["probe", self.root, "-1"], ["probe", self.root, "1"], ["bytes"], ["bytes", "1", "x"],
                          ["bytes", "-1"], ["bytes", str(2**50)], ["bytes", str(2**64)], ["defaults", "x"],
                          ["breakdown", "/", "--layout", "other"], ["breakdown", "/", "--applications"],
                          ["largest", "/", "--layout", "linux", "--applications", "/"],
                          ["list", "/", "--count", "--count"]):
            self.refused(*arguments)
        code, output, errors = drive()
        self.assertEqual((code, output), (2, b""))
        self.assertIn(b"scantree PATH DEPTH MAXDEPTH", errors)

    def test_bad_json_is_refused(self):
        for text in (b"", b"{", b"{}", b"[1]", b'[{"name":"a","size":1}]', b'[{"name":1,"size":1,"color":""}]',
                     b'[{"name":"a","size":"1","color":""}]', b'[{"name":"a","size":1.5,"color":""}]',
                     b'[{"name":"a","size":-1,"color":""}]', b'[{"name":"a","size":1e30,"color":""}]', b"\xff" * 9,
                     b"[" * 100000):
            self.refused("treemap", "10", "10", stdin=text)
        for width in ("nan", "inf", "x", ""):
            self.refused("treemap", width, "10", stdin=b"[]")


def main(usage=__doc__):
    global DRIVER, SEED # pylint: disable=global-statement
    if len(sys.argv) not in (2, 3):
        sys.exit(usage)
    DRIVER = os.path.abspath(sys.argv[1])
    SEED = int(sys.argv[2]) if len(sys.argv) == 3 else random.SystemRandom().randrange(2**32)
    print("seed:", SEED, flush=True)
    unittest.main(argv=sys.argv[:1], verbosity=2)


if __name__ == "__main__":
    main()
