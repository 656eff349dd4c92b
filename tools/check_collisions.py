#!/usr/bin/env python3
"""Checks that every unit stays reachable by what a user types, per locale.

Parse looks typed unit text up in one dictionary per process (longest match,
case-sensitive). Texts go in as the symbol tables are built: the fixed texts of
the parser first ("/", " ", "·", "²", "³", the parentheses, "^", "°", the
compass letters N E S W, "d", "g", the primes, double primes and dashes), then,
group by group, unit by unit and symbol index by symbol index, each symbol's
display text followed by its alternates 1 to 10. The first symbol that adds a
text keeps it; a later symbol with the same text is silently never found.

So a translation that looks harmless can take a text away from another unit:
an alternate "min" on the imperial minim would turn every "5 min" typed into a
volume, because the volume group is built before the time group. This tool
replays the build for a locale from the translation sources (.ts) and the
catalogue tables, and reports every text that symbols of different units claim:

- across groups: the text reaches a unit of the wrong quantity. That is a real
  fault, unless the winner is one of the parser's own letters or marks
  (N E S W d g, the degree sign, primes, double primes): the newton, watt,
  siemens, day, gram, degree, foot, inch, minute and second share them on
  purpose, and the parser reads them by context;
- within a group: one unit shadows another of the same quantity. Acceptable
  when the common unit comes first and the loser keeps a text of its own.

It also reports violations: a group, unit type or number-format name or a symbol
key without its translation, or a message in a context where it is never looked up; an alternate equal to a fixed parser text,
starting with a digit (the number reader takes it first, so it can never
match), or starting or ending with white space; an alternate filed under a key
that names no symbol, the wrong context or a number outside 1..10; a message
given twice or carrying a disambiguation comment (never looked up); a .ts file
that is not well-formed.

The display text of a kind-1 symbol is its unit's name, translated in the
"UnitType" context of KxCoreUnitsUI.ts (the English name where that has no
entry). A keyed symbol without a translation shows its key, as the runtime
does.

Usage:
    check_collisions.py TRANSLATIONS_DIR DATA_DIR LOCALE [LOCALE ...] [--check]

The last line per locale sums it up: the number of texts the locale's symbols
put into the dictionary, the collisions of each kind and the violations. With
--check the exit status is 1 when there is a violation, an across-groups
collision not won by a fixed letter or mark, or a within-group collision whose
loser is the index-1 or index-2 symbol of a unit left with no text at all.
"""
import argparse
import collections
import os
import sys
import xml.etree.ElementTree as ET

SYMBOLS_MODULE = "KxCoreUnitsUI_units_symbols"
ALTERNATES_MODULE = "KxCoreUnitsUI_units_parsing_alternate_symbols"
NAMES_MODULE = "KxCoreUnitsUI"
MAX_ALTERNATES = 10

PRIMES = "\u2032\u0027\u02B9\u2019\u02BC\u2018"
DOUBLE_PRIMES = "\u2033\u0022\u02BA\u201D\u201C"
DASHES = "\u2010\u2012\u2013\u2014\u2015\u002D\u2043"
# In the order the parser adds them; all are single characters.
FIXED_TEXTS = ["/", " ", "\u00B7", "\u00B2", "\u00B3", "(", "\uFF08", ")", "\uFF09",
               *PRIMES, *DOUBLE_PRIMES, *DASHES, "^", "\u00B0",
               "N", "E", "S", "W", "d", "g"]
# Fixed texts that also serve as unit symbols on purpose: the parser reads them
# by context (gram or grad, day or degrees, newton or north, feet or minutes).
CONTEXT_TEXTS = set("NESWdg\u00B0" + PRIMES + DOUBLE_PRIMES)

FIXED = "fixed"   # owner of the fixed texts, a group and unit of its own


NUMBER_FORMATS = ("Exponential", "exponential", "Fixed Point", "General", "general", "Number", "Fraction")


def read_rows(path):
    with open(path, encoding="utf-8") as f:
        for line in f:
            line = line.rstrip("\n")
            if not line.strip() or line.startswith(("#", "=")):
                continue
            yield line.split("\t")


class Catalogue:
    def __init__(self, data_dir):
        group_rows = list(read_rows(os.path.join(data_dir, "groups.tsv")))
        self.groups = {int(r[0], 16): r[1] for r in group_rows}
        self.group_names = [r[9] for r in group_rows]
        self.units = {}
        for r in read_rows(os.path.join(data_dir, "units.tsv")):
            self.units[int(r[0], 16)] = (r[1], r[4])
        self.symbols = []
        for r in read_rows(os.path.join(data_dir, "symbols.tsv")):
            self.symbols.append((int(r[0], 16), int(r[1]), r[2]))
        # Table build order: group, unit, then symbol index (index 1 first).
        self.symbols.sort(key=lambda s: (s[0] & 0xFFFFF, s[0] >> 20))

    def context(self, sid):
        return "UnitSymbol_" + self.groups.get(sid & 0xFF000, "?")

    def unit_name(self, sid):
        return self.units.get(sid & 0xFFFFF, ("?", "?"))[1]


def read_ts(path, problems):
    """Returns {(context, source): translation} of the messages lrelease compiles."""
    messages = {}
    if not os.path.exists(path):
        return None
    try:
        root = ET.parse(path).getroot()
    except ET.ParseError as e:
        problems.append(f"{os.path.basename(path)}: not well-formed XML: {e}")
        return messages
    for context in root.iter("context"):
        cname = context.findtext("name", "")
        for message in context.iter("message"):
            source = message.findtext("source", "")
            translation = message.find("translation")
            if translation is None or translation.get("type") in ("vanished", "obsolete"):
                continue
            if message.find("comment") is not None:
                problems.append(f"{cname}/{source}: has a disambiguation comment and is never looked up")
                continue
            key = (cname, source)
            if key in messages:
                problems.append(f"{cname}/{source}: given twice")
            messages[key] = translation.text or ""
    return messages


Claim = collections.namedtuple("Claim", "sid unit group what")


def describe(cat, claim):
    if claim.unit == FIXED:
        return "parser's fixed text"
    index = claim.sid >> 20
    return (f"0x{claim.sid:06X} {cat.unit_name(claim.sid)} [{cat.groups[claim.group]}] "
            f"index {index} {claim.what}")


def show(text):
    return '"' + text + '"' if text.isprintable() else repr(text)


def check_locale(cat, translations_dir, locale, strict):
    folder = os.path.join(translations_dir, locale)
    notes, violations = [], []
    names = read_ts(os.path.join(folder, NAMES_MODULE + ".ts"), violations)
    symbols = read_ts(os.path.join(folder, SYMBOLS_MODULE + ".ts"), violations)
    alternates = read_ts(os.path.join(folder, ALTERNATES_MODULE + ".ts"), violations)
    for module, table in ((NAMES_MODULE, names), (SYMBOLS_MODULE, symbols),
                          (ALTERNATES_MODULE, alternates)):
        if table is None:
            notes.append(f"{module}.ts is missing")
    names, symbols, alternates = names or {}, symbols or {}, alternates or {}

    # Every name and symbol key has its translation, in its own context, and nothing
    # stands in a context where it is never looked up.
    expected_names = {("UnitGroup", n) for n in cat.group_names}
    expected_names |= {("UnitType", u[1]) for u in cat.units.values()}
    expected_names |= {("NumberFormat", n) for n in NUMBER_FORMATS}
    expected_symbols = {(cat.context(sid), "eS" + name) for sid, kind, name in cat.symbols if kind == 0}
    for module, table, expected in ((NAMES_MODULE, names, expected_names),
                                    (SYMBOLS_MODULE, symbols, expected_symbols)):
        if not table:
            continue
        for context, source in sorted(expected - {k for k, v in table.items() if v}):
            violations.append(f"{module}: {context}/{source} has no translation")
        for context, source in sorted(set(table) - expected):
            violations.append(f"{module}: {context}/{source} is never looked up there")

    # Alternate keys that the runtime never asks for.
    wanted = set()
    for sid, kind, name in cat.symbols:
        for n in range(1, MAX_ALTERNATES + 1):
            wanted.add((cat.context(sid), f"eS{name}_Alternate{n}"))
    for key, text in sorted(alternates.items()):
        if key not in wanted and text:
            violations.append(f"{key[0]}/{key[1]} {show(text)}: no such symbol, context or number")

    claims = collections.OrderedDict()   # text -> [Claim], in the order added
    for text in FIXED_TEXTS:
        claims.setdefault(text, []).append(Claim(0, FIXED, FIXED, "fixed"))
    missing_names = missing_symbols = alt_count = alt_symbols = 0
    for sid, kind, name in cat.symbols:
        unit, group, context = sid & 0xFFFFF, sid & 0xFF000, cat.context(sid)
        if kind == 1:
            english = cat.unit_name(sid)
            text = names.get(("UnitType", english)) or english
            missing_names += ("UnitType", english) not in names
        else:
            key = "eS" + name
            text = symbols.get((context, key)) or key
            missing_symbols += not symbols.get((context, key))
        claims.setdefault(text, []).append(Claim(sid, unit, group, "text"))
        had = False
        for n in range(1, MAX_ALTERNATES + 1):
            alt = alternates.get((context, f"eS{name}_Alternate{n}"))
            if not alt:
                continue
            had, alt_count = True, alt_count + 1
            where = f"0x{sid:06X} {context}/eS{name}_Alternate{n} {show(alt)}"
            if alt in FIXED_TEXTS:
                violations.append(f"{where}: equals a fixed parser text")
            if alt[0].isdigit():
                violations.append(f"{where}: starts with a digit, the number reader takes it")
            if alt != alt.strip():
                violations.append(f"{where}: starts or ends with white space")
            claims.setdefault(alt, []).append(Claim(sid, unit, group, f"alternate {n}"))
        alt_symbols += had
    if missing_names and names:
        notes.append(f"{missing_names} unit names have no UnitType translation (English used)")
    if missing_symbols and symbols:
        notes.append(f"{missing_symbols} keyed symbols have no translation (the key shows)")

    # A unit is reachable when it wins at least one text.
    reachable = {c[0].unit for c in claims.values()}
    across, within, failures = [], [], []
    for text, owners in claims.items():
        winner = owners[0]
        losers = [c for c in owners[1:] if c.unit != winner.unit]
        if not losers:
            continue
        lines = [f"{show(text)}: {describe(cat, winner)} wins over"]
        lines += [f"    {describe(cat, c)}" for c in losers]
        if any(c.group != winner.group for c in losers):
            across.append(lines)
            if not (winner.unit == FIXED and text in CONTEXT_TEXTS):
                failures.append(f"{show(text)} reaches a unit of another quantity")
        else:
            within.append(lines)
            for c in losers:
                if c.unit not in reachable and (c.sid >> 20) in (1, 2):
                    failures.append(f"{show(text)}: {cat.unit_name(c.sid)} can no longer be typed")

    out = [f"== {locale}"]
    out += [f"note: {n}" for n in notes]
    out.append(f"alternates: {alt_count} on {alt_symbols} symbols")
    for title, items in (("Collisions across groups", across), ("Collisions within a group", within)):
        out.append(f"{title} ({len(items)}):")
        for lines in items:
            out.extend("  " + line for line in lines)
    out.append(f"Violations ({len(violations)}):")
    out.extend("  " + v for v in violations)
    unreachable = sorted(u for u in cat.units if u not in reachable)
    if unreachable:
        out.append(f"Units no text reaches ({len(unreachable)}):")
        out.extend(f"  0x{u:X} {cat.units[u][1]}" for u in unreachable)
    failures += [f"violation: {v}" for v in violations]
    if strict and failures:
        out.append(f"Check failed ({len(failures)}):")
        out.extend("  " + f for f in failures)
    texts = sum(1 for owners in claims.values() if any(c.unit != FIXED for c in owners))
    winners = {text: owners[0] for text, owners in claims.items() if owners[0].unit != FIXED}
    out.append(f"{locale}: {texts} texts, {len(across)} collisions across groups, "
               f"{len(within)} within groups, {len(violations)} violations")
    return out, bool(failures), winners


def across_locales(cat, winners_by_locale):
    """Texts that mean different units in different locales.

    The parse dictionary is one per process and keeps the first claim of a text, so
    once one locale is loaded, another locale's different meaning of the same text
    is never found: every such text is a fault.
    """
    lines, first = [], {}
    for locale, winners in winners_by_locale:
        for text, claim in winners.items():
            seen = first.setdefault(text, (locale, claim))
            if seen[1].unit != claim.unit:
                lines.append(f"{show(text)}: {describe(cat, seen[1])} in {seen[0]}, "
                             f"{describe(cat, claim)} in {locale}")
    return lines


def main(argv=None):
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("translations", help="folder holding one subfolder per locale")
    parser.add_argument("data", help="catalogue folder (groups.tsv, units.tsv, symbols.tsv)")
    parser.add_argument("locales", nargs="+", help='locale folder names, e.g. "en-US"')
    parser.add_argument("--check", action="store_true",
                        help="exit 1 on a violation or a collision that hides a unit")
    args = parser.parse_args(argv)
    cat = Catalogue(args.data)
    failed = False
    summaries = []
    winners_by_locale = []
    for locale in args.locales:
        lines, bad, winners = check_locale(cat, args.translations, locale, args.check)
        print("\n".join(lines[:-1]))
        summaries.append(lines[-1])
        winners_by_locale.append((locale, winners))
        failed |= bad
    shared = across_locales(cat, winners_by_locale)
    print(f"== all locales in one parse dictionary\nTexts that change meaning between locales ({len(shared)}):")
    print("\n".join("  " + line for line in shared))
    failed |= bool(shared)
    summaries.append(f"all: {len(shared)} texts change meaning between locales")
    print("\n".join(summaries))
    return 1 if args.check and failed else 0


if __name__ == "__main__":
    sys.exit(main())
