#!/usr/bin/python3
"""Makes the symbol font and its C++ table from one list of names and a set of 16 x 16 SVG drawings.

Each row of the list gives a symbol's name, the drawing it is made from and its code point. The 16 x 16 view
box of a drawing is the whole em square, so a text with a font of N pixels shows a symbol of N x N pixels.
The same input gives the same bytes: dates in the font are fixed.
"""

import argparse
import re
import sys
from pathlib import Path

from fontTools.fontBuilder import FontBuilder
from fontTools.misc.transform import Transform
from fontTools.pens.cu2quPen import Cu2QuPen
from fontTools.pens.ttGlyphPen import TTGlyphPen

from svg_outline import SvgError, read_outline

FAMILY = "Quillmere Symbols"
UNITS_PER_EM = 2048
VIEW_BOX = 16
# Largest distance, in font units, between a curve of the drawing and the quadratic curves that stand for it.
MAX_CURVE_ERROR = 0.5
# Seconds from 1904-01-01 to 2024-01-01, the font format's own epoch: a fixed date keeps builds reproducible.
FONT_DATE = 3786912000
FIRST_CODE_POINT, LAST_CODE_POINT = 0xE000, 0xF8FF

NAME_PATTERN = re.compile(r"[a-z][a-z0-9]*(\.[a-z0-9]+)*")
SOURCE_PATTERN = re.compile(r"(bootstrap|own):([a-z0-9-]+)")


class TableError(Exception):
    """The table or a drawing it names cannot be used; the text says where and why."""


class Symbol:
    """One row of the table."""

    def __init__(self, name, source, code_point, line):
        self.name = name
        self.source = source
        self.code_point = code_point
        self.line = line


def parse_row(text, line):
    """Reads one tab-separated row: name, source, code point in hex."""
    fields = text.split("\t")
    if len(fields) != 3:
        raise TableError(f"line {line}: three fields separated by tabs are needed, found {len(fields)}")
    name, source, code = fields
    if not NAME_PATTERN.fullmatch(name):
        raise TableError(f"line {line}: '{name}' is no symbol name (lower-case words joined by dots)")
    if not SOURCE_PATTERN.fullmatch(source):
        raise TableError(f"line {line}: source '{source}' is neither bootstrap:NAME nor own:NAME")
    if not re.fullmatch(r"[0-9A-F]{4}", code):
        raise TableError(f"line {line}: code point '{code}' is not four upper-case hex digits")
    code_point = int(code, 16)
    if not FIRST_CODE_POINT <= code_point <= LAST_CODE_POINT:
        raise TableError(f"line {line}: code point {code} is outside the private use area E000 to F8FF")
    return Symbol(name, source, code_point, line)


def read_table(path):
    """Reads the whole table; the rows are checked to be sorted and free of repeated names and code points."""
    symbols = []
    owners = {}
    for line, text in enumerate(path.read_text(encoding="utf-8").splitlines(), start=1):
        if not text.strip() or text.startswith("#"):
            continue
        symbol = parse_row(text, line)
        if symbols and symbol.name == symbols[-1].name:
            raise TableError(f"line {line}: the name '{symbol.name}' stands twice")
        if symbols and symbol.name < symbols[-1].name:
            raise TableError(f"line {line}: '{symbol.name}' must stand before '{symbols[-1].name}': "
                             "rows are sorted by name")
        if symbol.code_point in owners:
            raise TableError(f"line {line}: code point {symbol.code_point:04X} is taken by "
                             f"'{owners[symbol.code_point]}'")
        owners[symbol.code_point] = symbol.name
        symbols.append(symbol)
    if not symbols:
        raise TableError("the table has no rows")
    return symbols


def drawing_of(symbol, folders):
    """The SVG file that a row names."""
    origin, name = SOURCE_PATTERN.fullmatch(symbol.source).groups()
    path = folders[origin] / f"{name}.svg"
    if not path.is_file():
        raise TableError(f"line {symbol.line}: '{symbol.name}' needs {path}, which does not exist")
    return path


def draw_contours(contours, pen):
    """Sends contours, each a list of (pen command, points), to a pen."""
    for contour in contours:
        for command, points in contour:
            getattr(pen, command)(*points)


def make_glyph(contours):
    """A TrueType glyph of contours that are given in font units."""
    pen = TTGlyphPen(None)
    draw_contours(contours, Cu2QuPen(pen, MAX_CURVE_ERROR))
    glyph = pen.glyph()
    glyph.recalcBounds(None)
    return glyph


def missing_glyph():
    """A hollow box, so that a code point without a symbol is seen."""
    low, high, thickness = 256, 1792, 128
    outer = [(low, low), (low, high), (high, high), (high, low)]
    low, high = low + thickness, high - thickness
    inner = [(low, low), (high, low), (high, high), (low, high)]
    return make_glyph([polygon_contour(outer), polygon_contour(inner)])


def polygon_contour(corners):
    return [("moveTo", corners[:1])] + [("lineTo", (corner,)) for corner in corners[1:]] + [("closePath", ())]


def symbol_glyph(symbol, folders):
    """The glyph of a row. The em square is the view box: y grows upwards from its lower edge."""
    scale = UNITS_PER_EM / VIEW_BOX
    path = drawing_of(symbol, folders)
    try:
        contours = read_outline(path, VIEW_BOX, Transform(scale, 0, 0, -scale, 0, UNITS_PER_EM))
    except SvgError as error:
        raise TableError(f"line {symbol.line}: '{symbol.name}': {path}: {error}") from error
    return make_glyph(contours)


def build_font(symbols, folders):
    """The font of all symbols, each as wide as the em."""
    glyphs = {".notdef": missing_glyph()}
    for symbol in symbols:
        glyphs[symbol.name] = symbol_glyph(symbol, folders)

    builder = FontBuilder(UNITS_PER_EM, isTTF=True)
    builder.font.recalcTimestamp = False
    builder.setupGlyphOrder(list(glyphs))
    builder.setupCharacterMap({symbol.code_point: symbol.name for symbol in symbols})
    builder.setupGlyf(glyphs)
    builder.setupHorizontalMetrics({name: (UNITS_PER_EM, glyph.xMin) for name, glyph in glyphs.items()})
    # All of the em is ascent: the two parts of a split em are rounded apart, and lines would be a pixel off.
    builder.setupHorizontalHeader(ascent=UNITS_PER_EM, descent=0, lineGap=0)
    builder.setupNameTable({
        "familyName": FAMILY, "styleName": "Regular", "uniqueFontIdentifier": "QuillmereSymbols-1",
        "fullName": FAMILY, "psName": "QuillmereSymbols", "version": "Version 1.000",
        "copyright": "Parts are made from Bootstrap Icons, Copyright The Bootstrap Authors, MIT License.",
    })
    # fsSelection: REGULAR, and USE_TYPO_METRICS so that every reader takes the same line height.
    builder.setupOS2(sTypoAscender=UNITS_PER_EM, sTypoDescender=0, sTypoLineGap=0, usWinAscent=UNITS_PER_EM,
                     usWinDescent=0, fsSelection=0x40 | 0x80, version=4, achVendID="QLMR")
    builder.setupPost()
    builder.updateHead(created=FONT_DATE, modified=FONT_DATE)
    return builder.font


def header_text(symbols):
    """The C++ table of names and code points."""
    rows = "\n".join(f'    {{"{symbol.name}", u\'\\u{symbol.code_point:04X}\'}},' for symbol in symbols)
    return f"""// Generated by make_symbol_font.py from symbols.tsv; changes belong there.
#pragma once

#include <array>
#include <string_view>

/// A symbol of the font "{FAMILY}": the name the data uses, and its code point.
struct SymbolEntry {{
    std::string_view name;
    char16_t codePoint;
}};

/// All symbols, sorted by name in byte order, so that a name is found by binary search.
inline constexpr std::array<SymbolEntry, {len(symbols)}> symbolTable{{{{
{rows}
}}}};
"""


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--table", type=Path, required=True, help="symbols.tsv")
    parser.add_argument("--bootstrap-dir", type=Path, required=True, help="folder of bootstrap-icons' SVGs")
    parser.add_argument("--own-dir", type=Path, required=True, help="folder of our own SVGs")
    parser.add_argument("--font-out", type=Path, required=True, help="the font to write")
    parser.add_argument("--header-out", type=Path, required=True, help="the C++ header to write")
    return parser.parse_args()


def main():
    arguments = parse_arguments()
    try:
        symbols = read_table(arguments.table)
        font = build_font(symbols, {"bootstrap": arguments.bootstrap_dir, "own": arguments.own_dir})
        for target in (arguments.font_out, arguments.header_out):
            target.parent.mkdir(parents=True, exist_ok=True)
        font.save(arguments.font_out)
        arguments.header_out.write_text(header_text(symbols), encoding="utf-8")
    except TableError as error:
        print(f"{arguments.table}: {error}", file=sys.stderr)
        return 1
    except OSError as error:
        print(f"make_symbol_font: {error}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
