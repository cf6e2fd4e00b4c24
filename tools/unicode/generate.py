#!/usr/bin/env python3
"""Writes the Unicode tables of the library from the Unicode Character Database.

    generate.py             write source/co/co_unicode_tables.{hpp,cpp} and source/nx/nx_idna_tables.{hpp,cpp}
    generate.py --check     write nothing; exit 1 when one of them is not what would be written

The database is Debian's package unicode-data. Its version is fixed here, so that another one is a decision.
"""

import argparse
import pathlib
import re
import sys

VERSION = "15.0.0"
LAST = 0x10FFFF
ROOT = pathlib.Path(__file__).resolve().parents[2]


# The database.


class Database:
    """What the tables need of the data files, by code point."""

    def __init__(self, directory):
        self.directory = directory
        self.category = {}
        self.combining = {}
        self.decomposition = {}  # (type or None, code points), one step
        self.upper = {}
        self.lower = {}
        self._read_unicode_data()
        self.full_upper, self.full_lower = self._read_special_casing()
        self.fold = self._read_case_folding()
        self.script = self._ranges("Scripts.txt")
        self.joining = self._ranges("extracted/DerivedJoiningType.txt")
        self.bidi = self._ranges("extracted/DerivedBidiClass.txt")
        self.hangul = self._ranges("HangulSyllableType.txt")
        self.properties = {
            name: self._property(file, name)
            for file, name in (
                ("DerivedCoreProperties.txt", "Default_Ignorable_Code_Point"),
                ("PropList.txt", "White_Space"),
                ("PropList.txt", "Noncharacter_Code_Point"),
                ("PropList.txt", "Join_Control"),
                ("DerivedNormalizationProps.txt", "Full_Composition_Exclusion"),
            )
        }
        self._full = {}
        self.compositions = self._compositions()

    def _lines(self, name):
        """The fields of each line, comments and blank lines left out."""
        with open(self.directory / name, encoding="utf-8") as file:
            first = file.readline()
            versioned = re.search(r"-(\d+\.\d+\.\d+)\.txt", first)
            if versioned and versioned[1] != VERSION:
                sys.exit(f"{name} is of version {versioned[1]}, not {VERSION}")
            for line in [first, *file]:
                line = line.split("#")[0].strip()
                if line:
                    yield [field.strip() for field in line.split(";")]

    def _ranges(self, name):
        values = {}
        for span, value, *_ in self._lines(name):
            for code in span_of(span):
                values[code] = value
        return values

    def _property(self, name, wanted):
        return {code for span, value, *_ in self._lines(name) if value == wanted for code in span_of(span)}

    def _read_unicode_data(self):
        first = None
        for code, name, category, combining, _, decomposition, *_, upper, lower, _ in self._lines("UnicodeData.txt"):
            code = int(code, 16)
            if name.endswith(", First>"):
                first = code
                continue
            for each in range(first if name.endswith(", Last>") else code, code + 1):
                self.category[each] = category
            if combining != "0":
                self.combining[code] = int(combining)
            if decomposition:
                kind, codes = re.fullmatch(r"(?:<(\w+)> )?(.*)", decomposition).groups()
                self.decomposition[code] = (kind, codes_of(codes))
            if upper:
                self.upper[code] = int(upper, 16)
            if lower:
                self.lower[code] = int(lower, 16)

    def _read_special_casing(self):
        """The full mappings that depend on neither language nor context."""
        upper = {code: (mapped,) for code, mapped in self.upper.items()}
        lower = {code: (mapped,) for code, mapped in self.lower.items()}
        for code, to_lower, _, to_upper, condition, *_ in self._lines("SpecialCasing.txt"):
            if condition == "":
                upper[int(code, 16)] = codes_of(to_upper)
                lower[int(code, 16)] = codes_of(to_lower)
        drop_identities = lambda mapping: {code: to for code, to in mapping.items() if to != (code,)}
        return drop_identities(upper), drop_identities(lower)

    def _read_case_folding(self):
        return {
            int(code, 16): codes_of(mapped)
            for code, status, mapped, *_ in self._lines("CaseFolding.txt")
            if status in "CF"
        }

    def _compositions(self):
        """Primary composites by the pair they compose from; those of Hangul syllables are computed."""
        excluded = self.properties["Full_Composition_Exclusion"]
        return {
            codes: code
            for code, (kind, codes) in self.decomposition.items()
            if kind is None and len(codes) == 2 and code not in excluded
        }

    # Normalisation (Unicode, 3.11; UAX #15).

    def decomposed(self, code, compatible=False):
        """The full decomposition of one code point, not reordered."""
        key = (code, compatible)
        if key not in self._full:
            kind, codes = self.decomposition.get(code, (None, None))
            if 0xAC00 <= code < 0xAC00 + 11172:
                index = code - 0xAC00
                trail = index % 28
                result = (0x1100 + index // 588, 0x1161 + index % 588 // 28) + ((0x11A7 + trail,) if trail else ())
            elif codes is None or (kind and not compatible):
                result = (code,)
            else:
                result = tuple(each for part in codes for each in self.decomposed(part, compatible))
            self._full[key] = result
        return self._full[key]

    def nfkc(self, codes):
        codes = [each for code in codes for each in self.decomposed(code, compatible=True)]
        return self._composed(self._reordered(codes))

    def _reordered(self, codes):
        result, run = [], []
        for code in codes:
            if code in self.combining:
                run.append(code)
                continue
            result += sorted(run, key=self.combining.get)
            run = []
            result.append(code)
        return result + sorted(run, key=self.combining.get)

    def _composed(self, codes):
        result = []
        starter = None
        last_class = 0
        for code in codes:
            combining = self.combining.get(code, 0)
            if starter is not None and (last_class < combining or last_class == 0):
                composite = self._composite(result[starter], code)
                if composite is not None:
                    result[starter] = composite
                    continue
            if combining == 0:
                starter = len(result)
            last_class = combining
            result.append(code)
        return tuple(result)

    def _composite(self, first, second):
        if 0x1100 <= first < 0x1113 and 0x1161 <= second < 0x1176:
            return 0xAC00 + ((first - 0x1100) * 21 + second - 0x1161) * 28
        if 0xAC00 <= first < 0xAC00 + 11172 and (first - 0xAC00) % 28 == 0 and 0x11A7 < second < 0x11C3:
            return first + second - 0x11A7
        return self.compositions.get((first, second))


def span_of(text):
    first, _, last = text.partition("..")
    return range(int(first, 16), int(last or first, 16) + 1)


def codes_of(text):
    return tuple(int(code, 16) for code in text.split())


# IDNA.

# RFC 5892, 2.6.
EXCEPTIONS = {
    **dict.fromkeys((0x00DF, 0x03C2, 0x06FD, 0x06FE, 0x0F0B, 0x3007), "pvalid"),
    **dict.fromkeys((0x00B7, 0x0375, 0x05F3, 0x05F4, 0x30FB, *range(0x660, 0x66A), *range(0x6F0, 0x6FA)), "contextO"),
    **dict.fromkeys((0x0640, 0x07FA, 0x302E, 0x302F, *range(0x3031, 0x3036), 0x303B), "disallowed"),
}
# RFC 5892, 2.4: Combining Diacritical Marks for Symbols, Musical Symbols, Ancient Greek Musical Notation.
IGNORABLE_BLOCKS = (range(0x20D0, 0x2100), range(0x1D100, 0x1D200), range(0x1D200, 0x1D250))
SCRIPTS = ("Greek", "Hebrew", "Hiragana", "Katakana", "Han")
BIDI_CLASSES = ("L", "R", "AL", "AN", "EN", "ES", "CS", "ET", "ON", "BN", "NSM")


def derived_property(data, code):
    """RFC 5892, 3; BackwardCompatible (2.7) is empty."""
    category = data.category.get(code, "Cn")
    if code in EXCEPTIONS:
        return EXCEPTIONS[code]
    if category == "Cn" and code not in data.properties["Noncharacter_Code_Point"]:
        return "unassigned"
    if code == 0x2D or 0x30 <= code <= 0x39 or 0x61 <= code <= 0x7A:
        return "pvalid"
    if code in data.properties["Join_Control"]:
        return "contextJ"
    if data.hangul.get(code) in ("L", "V", "T"):
        return "disallowed"
    normal = data.nfkc((code,))
    folded = [each for part in normal for each in data.fold.get(part, (part,))]
    if data.nfkc(folded) != (code,):
        return "disallowed"
    if any(code in data.properties[name] for name in IGNORABLE_PROPERTIES):
        return "disallowed"
    if any(code in block for block in IGNORABLE_BLOCKS):
        return "disallowed"
    return "pvalid" if category in ("Ll", "Lu", "Lo", "Nd", "Lm", "Mn", "Mc") else "disallowed"


IGNORABLE_PROPERTIES = ("Default_Ignorable_Code_Point", "White_Space", "Noncharacter_Code_Point")  # RFC 5892, 2.3


def mapping(data, code, derived):
    """Steps 1 and 2 of RFC 5895, 2, lower case and width, and canonical decomposition, the first half of step 3.

    What IDNA2008 permits as it is keeps its case: the capital letters of Cherokee, the stable ones of that script."""
    codes = (code,)
    if derived in ("disallowed", "unassigned"):
        codes = data.full_lower.get(code, codes)
        codes = tuple(each for part in codes for each in width(data, part))
    return tuple(each for part in codes for each in data.decomposed(part))


def width(data, code):
    kind, codes = data.decomposition.get(code, (None, None))
    return codes if kind in ("wide", "narrow") else (code,)


# Tables.


class Trie:
    """A table in two stages: `values` by code point, in blocks that are stored once each.

    Code points beyond the last block have the value of an unassigned one, which is 0."""

    def __init__(self, values):
        size = max(code for code in range(len(values)) if values[code]) + 1
        self.shift = min(range(4, 9), key=lambda shift: self._cost(values[:size], shift))
        self.starts, self.values = self._split(values[:size], self.shift)
        self.end = len(self.starts) << self.shift

    @staticmethod
    def _split(values, shift):
        blocks = {}
        starts = []
        for start in range(0, len(values), 1 << shift):
            block = tuple(values[start : start + (1 << shift)])
            block += (0,) * ((1 << shift) - len(block))
            starts.append(blocks.setdefault(block, len(blocks)))
        return starts, [value for block in blocks for value in block]

    @classmethod
    def _cost(cls, values, shift):
        starts, stored = cls._split(values, shift)
        return len(starts) * width_of(starts) + len(stored) * width_of(stored)


def width_of(values):
    return 1 if max(values) < 0x100 else 2 if max(values) < 0x10000 else 4


def type_of(values):
    return f"uint{8 * width_of(values)}_t"


class Unit:
    """A header with declarations and a source with the arrays, under construction."""

    def __init__(self, path, sentence, namespace):
        self.path = path
        notice = f"// Made by tools/unicode/generate.py from the Unicode Character Database, version {VERSION}.\n"
        self.header = f"// {sentence}\n{notice}#pragma once\n\n"
        self.source = f"// {sentence}\n{notice}\n"
        self.namespace = namespace
        include = self.path.replace("source/", "")
        self.header += f"#include <co/co_types.h>\n\nnamespace {namespace} {{\n"
        self.source += f"#include <{include}.hpp>\n\n// clang-format off\n\nnamespace {namespace} {{\n"

    def declare(self, text):
        self.header += f"\n{text}\n"

    def array(self, kind, name, values, comment=None):
        """Values are numbers, or the texts of initialisers."""
        if comment:
            self.header += f"\n// {comment}\n"
        self.header += f"extern {kind} const {name}[{len(values)}];\n"
        self.source += f"\nconstexpr {kind} {name}[{len(values)}] = {{\n{wrapped(values)}}};\n"

    def trie(self, name, trie, comment):
        self.header += f"\n// {comment}\n"
        self.declare_constant(f"{name}End", f"{trie.end:#x}")
        self.declare_constant(f"{name}Shift", trie.shift)
        self.array(type_of(trie.starts), f"{name}Blocks", trie.starts)
        self.array(type_of(trie.values), f"{name}Values", trie.values)

    def declare_constant(self, name, value):
        self.header += f"constexpr coChar {name} = {value};\n"

    def files(self):
        end = f"\n}} // namespace {self.namespace}\n"
        return {
            f"{self.path}.hpp": self.header + end,
            f"{self.path}.cpp": self.source + end,
        }


def wrapped(values):
    text = ""
    line = ""
    for value in values:
        piece = f"{value},"
        if line and len(line) + 1 + len(piece) > 116:
            text += f"    {line}\n"
            line = ""
        line += (" " if line else "") + piece
    return text + f"    {line}\n"


def hexadecimal(values):
    return [f"{value:#x}" for value in values]


def case_unit(data):
    unit = Unit("source/co/co_unicode_tables", "Case mappings of code points.", "co::unicode")
    records = {(0, 0): 0}
    values = []
    for code in range(LAST + 1):
        record = (data.upper.get(code, code) - code, data.lower.get(code, code) - code)
        values.append(records.setdefault(record, len(records)))
    unit.declare("// What to add to a code point for its simple mappings.\n"
                 "struct SimpleCase {\n    int32_t toUpper;\n    int32_t toLower;\n};")
    unit.trie("simpleCase", Trie(values), "Which of the records below a code point has: 0 is the one without mappings.")
    unit.array("SimpleCase", "simpleCases", [f"{{{upper}, {lower}}}" for upper, lower in records])

    # Beyond the simple ones, a full mapping is one of several code points.
    several = {code: to for code, to in data.full_upper.items() if len(to) > 1}
    for code, to in data.full_upper.items():
        assert len(to) > 1 or data.upper[code] == to[0]
    single = sorted({to[0] for to in data.full_upper.values() if len(to) == 1})
    unit.array("coChar", "upperCases", hexadecimal(single), "Every simple upper-case mapping once, ascending.")
    unit.declare("struct FullUpperCase {\n    coChar from;\n    int32_t count;\n    coChar to[3];\n};")
    unit.array(
        "FullUpperCase",
        "fullUpperCases",
        [f"{{{code:#x}, {len(to)}, {{{', '.join(hexadecimal(to))}}}}}" for code, to in sorted(several.items())],
        "The upper-case mappings to several code points, ascending.",
    )
    return unit


def idna_unit(data):
    unit = Unit("source/nx/nx_idna_tables", "Properties of code points for internationalised domain names.",
                "nx::unicode")
    unit.declare("// RFC 5892, 1.\nenum class Derived : uint8_t { unassigned, disallowed, pvalid, contextJ, contextO };")
    unit.declare("enum class Joining : uint8_t { U, C, D, L, R, T };")
    unit.declare(f"// The classes that RFC 5893 names.\nenum class Bidi : uint8_t {{ other, {', '.join(BIDI_CLASSES)} }};")
    unit.declare(f"// The scripts that RFC 5892, appendix A, names.\n"
                 f"enum class Script : uint8_t {{ other, {', '.join(SCRIPTS)} }};")
    unit.declare("struct Properties {\n    Derived derived;\n    Joining joining;\n    Bidi bidi;\n    Script script;\n"
                 "    uint8_t combiningClass;\n    bool mark; // General_Category M\n};")

    records = {("unassigned", "U", "other", "other", 0, "false"): 0}
    values = []
    maps = {}
    for code in range(LAST + 1):
        derived = derived_property(data, code)
        assigned = derived != "unassigned"
        bidi = data.bidi.get(code)
        script = data.script.get(code)
        record = (
            derived,
            data.joining.get(code, "U"),
            bidi if assigned and bidi in BIDI_CLASSES else "other",
            script if script in SCRIPTS else "other",
            data.combining.get(code, 0),
            "true" if data.category.get(code, "Cn").startswith("M") else "false",
        )
        values.append(records.setdefault(record, len(records)))
        to = mapping(data, code, derived)
        if to != (code,) and not 0xAC00 <= code < 0xAC00 + 11172:
            maps[code] = to
    unit.trie("properties", Trie(values), "Which of the records below a code point has: 0 is the one of no character.")
    unit.array(
        "Properties",
        "properties",
        [
            f"{{Derived::{derived}, Joining::{joining}, Bidi::{bidi}, Script::{script}, {combining}, {mark}}}"
            for derived, joining, bidi, script, combining, mark in records
        ],
    )

    pool = [0]
    places = {}
    values = [0] * (LAST + 1)
    for code, to in maps.items():
        if to not in places:
            places[to] = len(pool)
            pool += [len(to), *to]
        values[code] = places[to]
    unit.trie("mapping", Trie(values), "Where in the array below the mapping of a code point is, or 0.")
    unit.array(
        "coChar",
        "mappings",
        hexadecimal(pool),
        "A count and that many code points: lower case, then the decomposition of wide and narrow forms, then the\n"
        "// canonical one, but for Hangul syllables. What is permitted as it is keeps its case.",
    )
    unit.declare_constant("longestMapping", max(len(to) for to in maps.values()))

    unit.declare("struct Composition {\n    coChar first;\n    coChar second;\n    coChar composite;\n};")
    unit.array(
        "Composition",
        "compositions",
        [f"{{{first:#x}, {second:#x}, {code:#x}}}" for (first, second), code in sorted(data.compositions.items())],
        "The primary composites but for Hangul syllables, ascending by what they are composed of.",
    )
    return unit


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true", help="compare with the committed files, write nothing")
    parser.add_argument("--data", type=pathlib.Path, default="/usr/share/unicode", help="the data files")
    arguments = parser.parse_args()

    data = Database(arguments.data)
    failed = False
    for unit in (case_unit(data), idna_unit(data)):
        for name, text in unit.files().items():
            path = ROOT / name
            if not arguments.check:
                path.write_text(text, encoding="ascii")
            elif not path.exists() or path.read_text(encoding="ascii") != text:
                print(f"{name} is not what tools/unicode/generate.py makes of Unicode {VERSION}", file=sys.stderr)
                failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
