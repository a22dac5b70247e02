#!/usr/bin/env python3
"""Compares what quillmere-driver prints with oracles of its own: os.scandir, lstat, the real du and the real stat.

Usage: driver_test.py PATH-OF-THE-DRIVER [SEED]

The trees are random, with hostile names, links, hidden entries, holes and hard links. The seed is printed, and the
tree is kept when a test fails.
"""

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


class DriverTest(unittest.TestCase):
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


def main():
    global DRIVER, SEED # pylint: disable=global-statement
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    DRIVER = os.path.abspath(sys.argv[1])
    SEED = int(sys.argv[2]) if len(sys.argv) == 3 else random.SystemRandom().randrange(2**32)
    print("seed:", SEED, flush=True)
    unittest.main(argv=sys.argv[:1], verbosity=2)


if __name__ == "__main__":
    main()
