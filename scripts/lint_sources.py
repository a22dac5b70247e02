#!/usr/bin/env python3
"""Runs clang-tidy over every C++ file of ours that is compiled somewhere.

Most of a file's time goes into reading Qt's headers. So the files of a folder that are compiled with the same flags
are put together into one unit, which reads them once. They are copied into it, not included: several checks look at the
main file only, and find nothing in what it includes. The price is that two files of a folder may not use one name for
something of their own; where they do, the unit does not compile, and one of them has to be renamed.

A unit that was found clean leaves a stamp, and is passed over as long as nothing changes that its findings depend on:
the tool, its configuration, the flags, the unit's files, and any header of ours. Stamps lie in build/lint/stamps, or in
the folder that QUILLMERE_LINT_STAMPS names, for a machine that keeps one folder between fresh clones.
"""

import argparse
import concurrent.futures
import contextlib
import hashlib
import io
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[1]
SOURCE_FOLDERS = ("src", "tests", "tools", "benchmarks")
STAMP_LIFE_SECONDS = 30 * 24 * 3600
# Beyond this a unit of a large folder is divided, so that the last one running does not leave the other cores idle.
UNIT_BYTES = 150_000
# In a unit a local name would be said to hide one that stands in another file. The compiler, which reads each file by
# itself, makes every name that hides another an error.
UNIT_FLAGS = ("-Wno-shadow",)
NOISE = re.compile(r"^(\d+ (warnings?|errors?)( and \d+ errors?)? (generated|treated).*"
                   r"|Suppressed .*|Use -header-filter=.*|Error while processing .*|)$")


@dataclass
class Unit:
    """Files of one folder with the flags they share. The name is unique, and a file name."""
    name: str
    folder: Path
    flags: list
    files: list


def flags_of(entry):
    """What a compile command says about a file's meaning: neither the compiler, nor the file, nor the output. The
    folders of what moc makes are left out: no source includes it, and each target has its own."""
    words = shlex.split(entry["command"])[1:]
    flags, skip = [], False
    for word in words:
        if not skip and word not in ("-o", "-c", entry["file"]) and not re.fullmatch(r"-I.*_autogen/include", word):
            flags.append(word)
        skip = word == "-o"
    return flags


def divided(files):
    """The files in as few parts of about equal size as keep each part below the bound, in their order."""
    sizes = [file.stat().st_size for file in files]
    wanted = -(-sum(sizes) // UNIT_BYTES)
    parts, so_far = [[] for _ in range(wanted)], 0
    for file, size in zip(files, sizes):
        parts[min(wanted - 1, (so_far + size // 2) * wanted // sum(sizes))].append(file)
        so_far += size
    return [part for part in parts if part]


def units_of(entries, root):
    """The units that a list of compile commands falls into."""
    groups = {}
    for entry in entries:
        file = Path(entry["file"])
        if any(file.is_relative_to(root / folder) for folder in SOURCE_FOLDERS):
            groups.setdefault((file.parent, tuple(flags_of(entry))), set()).add(file)
    units, names = [], {}
    for (folder, flags), files in sorted(groups.items()):
        for part in divided(sorted(files)):
            stem = "-".join(folder.relative_to(root).parts)
            names[stem] = names.get(stem, 0) + 1
            units.append(Unit(f"{stem}-{names[stem]}", folder, list(flags), part))
    return units


def unit_text(unit, root):
    """The unit's source, and for each of its lines the file and line that it came from. The #undef between two files
    makes the check for includes that stand twice begin anew."""
    lines, origins = [], []
    for file in unit.files:
        own = file.read_text(encoding="utf-8").splitlines()
        lines += ["#undef QUILLMERE_NEXT_FILE", *own]
        origins += [(file.relative_to(root), number) for number in range(len(own) + 1)]
    return "\n".join(lines) + "\n", origins


def with_origins(report, unit_file, origins):
    """A report with the unit's lines replaced by those that they came from, and without what only counts."""
    def origin(match):
        file, line = origins[int(match.group(1)) - 1]
        return f"{file}:{line}:"
    place = re.compile(re.escape(str(unit_file)) + r":(\d+):")
    return "\n".join(place.sub(origin, line) for line in report.splitlines() if not NOISE.match(line))


def config_of(folder, root):
    """The configuration nearest to a folder, as clang-tidy finds it for a file there."""
    return next(place / ".clang-tidy" for place in (folder, *folder.parents)
                if (place / ".clang-tidy").exists() or place == root)


class Linter:
    def __init__(self, root, build, stamps, tool="clang-tidy"):
        self.root = root
        self.units_folder = build / "units"
        self.stamps = stamps
        self.tool = tool
        self.surroundings = self.digest_of_surroundings(build)

    def digest_of_surroundings(self, build):
        """What the findings of every unit depend on: the tool and this file, all configurations, all headers of ours
        and what the build makes of them."""
        digest = hashlib.sha256(subprocess.run([self.tool, "--version"], check=True, capture_output=True).stdout)
        folders = [self.root / folder for folder in SOURCE_FOLDERS]
        headers = [file for folder in (*folders, build / "generated") for file in folder.rglob("*.h")]
        configs = [file for folder in folders for file in folder.rglob(".clang-tidy")]
        for file in sorted([Path(__file__), self.root / ".clang-tidy", *configs, *headers]):
            digest.update(f"{os.path.relpath(file, self.root)}\0".encode() + file.read_bytes() + b"\0")
        return digest.digest()

    def stamp_of(self, unit, text):
        # Without the project's own place, so that a clone elsewhere finds the same stamps.
        flags = "\0".join(unit.flags).replace(str(self.root), "")
        key = self.surroundings + f"\0{unit.folder.relative_to(self.root)}\0{flags}\0{text}".encode()
        return self.stamps / hashlib.sha256(key).hexdigest()

    def lint(self, unit):
        """Checks a unit unless its stamp stands. Gives whether it was passed over, and its findings."""
        text, origins = unit_text(unit, self.root)
        stamp = self.stamp_of(unit, text)
        if stamp.exists():
            stamp.touch()
            return True, ""
        unit_file = self.units_folder / f"{unit.name}.cpp"
        unit_file.write_text(text, encoding="utf-8")
        own_headers = f"^{re.escape(str(self.root))}/({'|'.join(SOURCE_FOLDERS)})/"
        result = subprocess.run(
            [self.tool, "--quiet", f"--config-file={config_of(unit.folder, self.root)}",
             f"--header-filter={own_headers}", str(unit_file),
             "--", "-iquote", str(unit.folder), *unit.flags, *UNIT_FLAGS],
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace", check=False)
        if result.returncode == 0:
            stamp.touch()
            return False, ""
        findings = with_origins(result.stdout, unit_file, origins)
        return False, findings or f"{unit.name}: {self.tool} ended with {result.returncode} and said nothing"

    def run(self, units, jobs):
        """Checks all units, the largest first, and prints what is found. Gives the exit code."""
        self.units_folder.mkdir(parents=True, exist_ok=True)
        self.stamps.mkdir(parents=True, exist_ok=True)
        units = sorted(units, key=lambda unit: -sum(file.stat().st_size for file in unit.files))
        passed_over, bad = 0, 0
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            for stamped, findings in pool.map(self.lint, units):
                passed_over += stamped
                bad += bool(findings)
                if findings:
                    print(findings, flush=True)
        files = sum(len(unit.files) for unit in units)
        print(f"{files} files in {len(units)} units, {passed_over} of them unchanged since they were clean, "
              f"{bad} with findings")
        return 1 if bad else 0


def forget_old_stamps(stamps):
    oldest = time.time() - STAMP_LIFE_SECONDS
    for stamp in stamps.iterdir():
        if stamp.stat().st_mtime < oldest:
            stamp.unlink(missing_ok=True)


# Stands in for clang-tidy: finds every line that says "bad", and notes down each file that it is given.
SELF_TEST_TOOL = """#!/bin/sh
[ "$1" = --version ] && exec cat "$(dirname "$0")/version"
for word; do case $word in --*) ;; *) break ;; esac; done
printf '%s\\n' "$word" >> "$(dirname "$0")/calls"
grep -q bad "$word" || exit 0
grep -Hn bad "$word" | sed 's/:[^:]*$/: bad/'
echo "1 warning generated."
exit 1
"""


class SelfTest:
    """A small project in a temporary folder, with a stand-in for the tool."""

    def __init__(self, root):
        self.root = root
        self.failures = []
        self.entries = []
        self.write("tool/version", "1")
        self.write("tool/tool", SELF_TEST_TOOL).chmod(0o755)
        self.write(".clang-tidy", "Checks: all")
        self.write("tests/.clang-tidy", "Checks: some")
        self.write("src/a/Shared.h", "int shared;\n")
        for name in ("src/a/One.cpp", "src/a/Two.cpp", "tests/a/Test.cpp", "build/generated.cpp"):
            self.compile(name, "-DX")
        self.compile("src/a/Other.cpp", "-DY")

    def write(self, name, text):
        file = self.root / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text, encoding="utf-8")
        return file

    def compile(self, name, flag):
        file = self.write(name, "int first;\nint second;\n")
        moc = f"-I{self.root}/build/{Path(name).stem}_autogen/include"
        self.entries.append({"file": str(file), "command": f"c++ {moc} {flag} -o {name}.o -c {file}"})

    def expect(self, what, found, expected):
        if found != expected:
            self.failures.append(f"{what}: expected {expected!r}, found {found!r}")

    def run(self):
        """The exit code of a run, what it prints, and how many units the tool was given."""
        calls = self.root / "tool" / "calls"
        calls.unlink(missing_ok=True)
        output = io.StringIO()
        linter = Linter(self.root, self.root / "build", self.root / "stamps", str(self.root / "tool" / "tool"))
        with contextlib.redirect_stdout(output):
            code = linter.run(units_of(self.entries, self.root), 1)
        return code, output.getvalue(), len(calls.read_text().splitlines()) if calls.exists() else 0

    def test_units(self):
        units = [[file.name for file in unit.files] for unit in units_of(self.entries, self.root)]
        self.expect("units", units, [["One.cpp", "Two.cpp"], ["Other.cpp"], ["Test.cpp"]])
        self.expect("a configuration", config_of(self.root / "tests" / "a", self.root), self.root / "tests/.clang-tidy")
        self.expect("another", config_of(self.root / "src" / "a", self.root), self.root / ".clang-tidy")
        for number in range(4):
            self.write(f"src/b/{number}.cpp", "x" * (UNIT_BYTES // 2))
        parts = divided(sorted((self.root / "src" / "b").iterdir()))
        self.expect("parts of a large folder", [len(part) for part in parts], [2, 2])

    def test_findings(self):
        self.write("src/a/Two.cpp", "int first;\nint bad;\n")
        for _ in range(2):  # what was not clean leaves no stamp
            code, output, _ = self.run()
            self.expect("a run with a finding", (code, output.splitlines()[0]), (1, "src/a/Two.cpp:2: bad"))
            self.expect("what only counts", "generated" in output, False)
        self.write("src/a/Two.cpp", "int first;\nint second;\n")
        self.expect("the run after it", self.run()[::2], (0, 1))

    def test_stamps(self):
        self.run()
        self.expect("a run with nothing new", self.run()[::2], (0, 0))
        changes = [("a source", "src/a/One.cpp", 1), ("a header", "src/a/Shared.h", 3),
                   ("a new header", "tests/New.h", 3), ("the configuration", "tests/.clang-tidy", 3),
                   ("the tool", "tool/version", 3)]
        for what, name, units in changes:
            self.write(name, "int changed;\n")
            self.expect(f"a run after a change of {what}", self.run()[::2], (0, units))
        self.entries[-1]["command"] += " -DZ"
        self.expect("a run after a change of flags", self.run()[::2], (0, 1))

    def test_old_stamps(self):
        old, new = self.write("stamps/old", ""), self.write("stamps/new", "")
        os.utime(old, (0, 0))
        forget_old_stamps(self.root / "stamps")
        self.expect("stamps that stay", (old.exists(), new.exists()), (False, True))


def self_test():
    """Proves that findings come out with their places, and that a stamp holds until something changes."""
    failures = []
    for test in (SelfTest.test_units, SelfTest.test_findings, SelfTest.test_stamps, SelfTest.test_old_stamps):
        with tempfile.TemporaryDirectory() as folder:
            project = SelfTest(Path(folder).resolve())
            test(project)
            failures += project.failures
    for failure in failures:
        print(f"self-test: {failure}")
    print(f"self-test: {'FAILED' if failures else 'passed'}")
    return 1 if failures else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--self-test", action="store_true", help="prove that the check fails where it should")
    parser.add_argument("folders", nargs="*", help="check only what lies below these (src/disk)")
    arguments = parser.parse_args()
    if arguments.self_test:
        return self_test()
    build = PROJECT / "build" / "lint"
    # Brings the compile commands up to date too. The table of symbols is the one header of ours that a build makes.
    made = subprocess.run(["ninja", "-C", str(build), "quillmere_symbol_font"], stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, check=False)
    if made.returncode != 0:
        print(f"{made.stdout}\nno preset to go by: cmake --preset lint")
        return 1
    entries = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    wanted = [Path(folder).resolve() for folder in arguments.folders] or [PROJECT]
    units = [unit for unit in units_of(entries, PROJECT)
             if any(unit.folder.is_relative_to(folder) for folder in wanted)]
    if not units:
        print("no compile command found to lint with")
        return 1
    stamps = Path(os.environ.get("QUILLMERE_LINT_STAMPS") or build / "stamps")
    status = Linter(PROJECT, build, stamps).run(units, arguments.jobs)
    forget_old_stamps(stamps)
    return status


if __name__ == "__main__":
    sys.exit(main())
