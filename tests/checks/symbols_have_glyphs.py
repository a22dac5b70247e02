#!/usr/bin/python3
"""Fails when the code names a symbol for which the symbol font has no glyph.

Read are all C++ and QML files below src/. A string literal counts as a symbol's name in three cases:

1. By its look: it is made of lower-case words joined by dots, and its first word begins a dotted name of the
   table ("folder.badge.plus" does, "settings.showAdvanced" or "com.example.app" do not).
2. By its place: it is given to something whose name ends in "symbol" or "icon" (or in "symbolName",
   "iconName" and the like) by ":", "=", or "{", as in `symbol: open ? "eye" : "pencil"` or `.icon = "globe"`;
   or it is what a function of such a name returns. Literals that are compared with == or != are not symbols.
3. By its column: it is a field of a row in braces, and another row beside it has a symbol by its look in the
   same field, as in `{{"pdf", "doc.fill"}, {"html", "curlybraces"}}`.

A line with a literal that only looks like a symbol says so in a comment: "not a symbol".
"""

import argparse
import contextlib
import io
import re
import sys
import tempfile
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
TABLE = Path("src/controls/symbols/symbols.tsv")
SUFFIXES = {".cpp", ".h", ".qml"}
EXEMPTION = "not a symbol"

DOTTED = re.compile(r"[a-z][a-z0-9]*(\.[a-z0-9]+)+")
PLAIN = re.compile(r"[a-z][a-z0-9]*")
# Comments and literals, whichever begins first: so "//" in a text is no comment.
TOKEN = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'', re.DOTALL)
INCLUDE = re.compile(r"^[ \t]*(?:#[ \t]*include|import)\b[^\n]*", re.MULTILINE)
LITERAL = re.compile(r'"((?:\\.|[^"\\\n])*)"')
SYMBOL_WORD = r"(?:\w*(?:[sS]ymbol|[iI]con))(?:Name)?"
# A field of a row that holds one literal and nothing else, in any of its spellings.
LITERAL_FIELD = re.compile(r'\s*(?:\w+\()?(?:u8|u|L)?"((?:\\.|[^"\\\n])*)"(?:_\w+)?\)?\s*')
# A member, property or variable that takes a symbol, up to the value that it is given.
GIVEN = re.compile(rf"\b{SYMBOL_WORD}\s*(?::(?!:)|=(?!=)|\{{)")
# The head of a function or QML function that gives a symbol; its body follows.
FUNCTION = re.compile(rf"\b{SYMBOL_WORD}(?:For\w*|Of\w*)?\s*\([^;{{}}]*\)[^;{{}}()]*\{{")
RETURN = re.compile(r"\breturn\b")
COMPARED_BEFORE = re.compile(r"[=!]==?\s*(?:\w+\()?(?:u8|u|L)?$")
COMPARED_AFTER = re.compile(r"(?:_\w+)?\)?\s*[=!]==?")


class Finding:
    """A symbol named in the code: where, and the name."""

    def __init__(self, path, line, name):
        self.path = path
        self.line = line
        self.name = name


def read_names(table):
    rows = table.read_text(encoding="utf-8").splitlines()
    return {row.split("\t")[0] for row in rows if row.strip() and not row.startswith("#")}


def blank_comments(text):
    """The text with comments and includes replaced by spaces, every other character in its place."""
    def blank(match):
        token = match.group()
        return re.sub(r"[^\n]", " ", token) if token.startswith("/") else token
    text = TOKEN.sub(blank, text)
    return INCLUDE.sub(lambda match: " " * len(match.group()), text)


def blank_literals(text):
    """The text with the inside of every literal blank, so that brackets in texts do not count."""
    def blank(match):
        token = match.group()
        return token[0] + re.sub(r"[^\n]", " ", token[1:-1]) + token[-1]
    return TOKEN.sub(blank, text)


def value_end(shape, start):
    """Where the value that begins at start ends: at a comma, semicolon or bracket of the outside, or at the
    end of a line that does not go on (QML needs no semicolon)."""
    depth = 0
    for position in range(start, len(shape)):
        character = shape[position]
        if character in "([{":
            depth += 1
        elif character in ")]}":
            depth -= 1
        if depth < 0 or (depth == 0 and character in ",;"):
            return position
        if depth == 0 and character == "\n" and shape[start:position].strip():
            before, after = shape[:position].rstrip()[-1], shape[position:].lstrip()[:1]
            if before not in "?:=(+|&" and after not in ("?", ":", "|", "&", "+", '"'):
                return position
    return len(shape)


def block_end(shape, start):
    """The closing brace of the block whose inside begins at start."""
    depth = 1
    for position in range(start, len(shape)):
        depth += {"{": 1, "}": -1}.get(shape[position], 0)
        if depth == 0:
            return position
    return len(shape)


def symbol_places(shape):
    """The ranges of the text whose literals are symbols by their place."""
    ranges = [(match.end(), value_end(shape, match.end())) for match in GIVEN.finditer(shape)]
    for head in FUNCTION.finditer(shape):
        end = block_end(shape, head.end())
        for match in RETURN.finditer(shape, head.end(), end):
            ranges.append((match.end(), value_end(shape, match.end())))
    return ranges


def row_fields(shape, start, end):
    """The ranges between the commas of a row in braces."""
    fields, depth, first = [], 0, start
    for position in range(start, end):
        depth += {"(": 1, "[": 1, "{": 1, ")": -1, "]": -1, "}": -1}.get(shape[position], 0)
        if depth == 0 and shape[position] == ",":
            fields.append((first, position))
            first = position + 1
    return fields + [(first, end)]


def sibling_rows(shape):
    """The groups of rows in braces that stand side by side, each row as the ranges of its fields."""
    rows, open_braces = {}, [-1]
    for position, character in enumerate(shape):
        if character == "{":
            open_braces.append(position)
        elif character == "}" and len(open_braces) > 1:
            start = open_braces.pop()
            rows.setdefault(open_braces[-1], []).append(row_fields(shape, start + 1, position))
    return rows.values()


def column_places(text, shape, first_words):
    """The ranges of fields that are symbols because the same field of a row beside them is one."""
    ranges = []
    for rows in sibling_rows(shape):
        literals = [(column, start, end, match.group(1))
                    for row in rows for column, (start, end) in enumerate(row)
                    if (match := LITERAL_FIELD.fullmatch(text, start, end))]
        columns = {column for column, _, _, name in literals if looks_like_symbol(name, first_words)}
        ranges += [(start, end) for column, start, end, _ in literals if column in columns]
    return ranges


def looks_like_symbol(name, first_words):
    return bool(DOTTED.fullmatch(name)) and name.split(".")[0] in first_words


def is_compared(text, match):
    return bool(COMPARED_BEFORE.search(text[:match.start()][-40:]) or COMPARED_AFTER.match(text, match.end()))


def find_symbols(source, path, names):
    """All symbols that a file names."""
    first_words = {name.split(".")[0] for name in names if "." in name}
    text = blank_comments(source)
    shape = blank_literals(text)
    places = symbol_places(shape) + column_places(text, shape, first_words)
    lines = source.splitlines()
    findings = []
    for match in LITERAL.finditer(text):
        name, line = match.group(1), text.count("\n", 0, match.start()) + 1
        by_look = looks_like_symbol(name, first_words)
        by_place = ((DOTTED.fullmatch(name) or PLAIN.fullmatch(name)) and not is_compared(text, match)
                    and any(start <= match.start() < end for start, end in places))
        if (by_look or by_place) and EXEMPTION not in lines[line - 1]:
            findings.append(Finding(path, line, name))
    return findings


def check(root):
    """Prints every symbol below root's src/ that the table lacks; returns the exit code."""
    names = read_names(root / TABLE)
    files = sorted(path for path in (root / "src").rglob("*") if path.suffix in SUFFIXES)
    findings = [finding for path in files
                for finding in find_symbols(path.read_text(encoding="utf-8"), path.relative_to(root), names)]
    missing = [finding for finding in findings if finding.name not in names]
    for finding in missing:
        print(f"{finding.path}:{finding.line}: the symbol '{finding.name}' has no glyph; add it to {TABLE}")
    if not findings:
        print(f"no symbol found in {len(files)} files: this check no longer fits the code")
        return 1
    print(f"{len(findings)} uses of symbols in {len(files)} files, {len(missing)} without a glyph")
    return 1 if missing else 0


SELF_TEST_NAMES = ["app.fill", "doc.fill", "eye", "folder", "folder.badge.plus", "globe", "info.circle",
                   "pencil", "trash"]

# File name, text, and the names without a glyph that must be found in it, with their lines.
SELF_TEST_FILES = [
    ("Dotted.cpp", 'auto a = QStringLiteral("folder.badge.pluss");\nauto b = u"doc.fill"_s;\n',
     [(1, "folder.badge.pluss")]),
    ("Row.cpp", '{"Home", "folder.home", home},\n', [(1, "folder.home")]),
    ("Column.cpp", 'constexpr std::array rows{Row{"pdf", 1, "doc.fill"}, Row{"trush", f("a", 2), "curly"},\n'
                   '    Row{"x", 2, u"globbe"_s}};\n'
                   'void f() { g("plain", "doc.fill"); }\nvoid h() { g("other"); }\n',
     [(1, "curly"), (2, "globbe")]),
    ("Member.cpp", 'Row{.name = "other", .icon = "glob", .paths = {"list"}};\n', [(1, "glob")]),
    ("Variable.h", 'std::string_view symbol{"trsh"};\nQString iconName = QStringLiteral("pencl");\n',
     [(1, "trsh"), (2, "pencl")]),
    ("Function.cpp", 'QString kindIcon(Kind kind)\n{\n    if (kind == "{") {\n        return "eye";\n    }\n'
                     '    return QStringLiteral("sparkels");\n}\nQString title() { return "title"; }\n',
     [(6, "sparkels")]),
    ("Ternary.qml", 'Symbol {\n    symbol: model.kind === "open"\n        ? "eye"\n        : "pensil"\n'
                    '    objectName: "other"\n}\n', [(4, "pensil")]),
    ("OneLine.qml", 'IconButton { symbol: "trasch"; text: "delete" }\n', [(1, "trasch")]),
    ("Unknown.qml", 'Symbol { symbol: "nothing.like.it" }\n', [(1, "nothing.like.it")]),
    ("Good.qml", '// symbol: "nonsense"\nSymbol { symbol: open ? "eye" : "folder" }\n', []),
    ("Others.cpp", '#include "app.h"\nauto key = "settings.showAdvanced"; auto id = "com.example.app";\n'
                   'auto url = "qrc:/app.fil"; auto text = "Folder.fil"; /* "doc.fil" */\n', []),
    ("Exempt.cpp", 'auto name = "info.plist";  // not a symbol: a file\n', []),
    ("Chain.cpp", 'auto x = a ? Icon::none : b;\nif (icon == "whatever") {\n}\n', []),
]


def self_test():
    """Proves that the rule finds bad names and only those, and that a whole run fails because of one."""
    failures = []
    for name, text, expected in SELF_TEST_FILES:
        found = [(finding.line, finding.name) for finding in find_symbols(text, name, set(SELF_TEST_NAMES))
                 if finding.name not in SELF_TEST_NAMES]
        if found != expected:
            failures.append(f"{name}: expected {expected}, found {found}")
    for text, expected in (('symbol: "pencil"\n', 0), ('symbol: "pencli"\n', 1), ('text: "nothing"\n', 1)):
        with tempfile.TemporaryDirectory() as folder:
            table = Path(folder) / TABLE
            table.parent.mkdir(parents=True)
            table.write_text("# name\n" + "".join(f"{name}\town:x\tE000\n" for name in SELF_TEST_NAMES))
            (Path(folder) / "src" / "Screen.qml").write_text(text)
            with contextlib.redirect_stdout(io.StringIO()):
                result = check(Path(folder))
            if result != expected:
                failures.append(f"a run over {text!r} should end with {expected}")
    for failure in failures:
        print(f"self-test: {failure}")
    print(f"self-test: {'FAILED' if failures else 'passed'}")
    return 1 if failures else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--root", type=Path, default=PROJECT, help="the project's folder")
    parser.add_argument("--self-test", action="store_true", help="prove that the check fails where it should")
    arguments = parser.parse_args()
    return self_test() if arguments.self_test else check(arguments.root)


if __name__ == "__main__":
    sys.exit(main())
