#!/usr/bin/env python3
"""Writes unit names of a locale from Unicode CLDR into its translation sources.

The translation sources (translations/<locale>/*.ts) stay the committed, reviewed
texts; this tool only fills and refreshes the unit names that CLDR knows, and
reports how well a locale agrees with CLDR.

Input:
- tools/cldr_units.tsv, reviewed by hand: which CLDR unit (or composition of CLDR
  units, prefixes and compound patterns) names each catalogue unit, where a locale
  deliberately differs from CLDR and why, and per locale the CLDR files to read and
  the symbol practice of the language;
- CLDR's locale data (Debian package unicode-cldr-core): common/main/<lang>.xml;
- the catalogue (src/KxCoreUnits/data) for the English source names.

A name CLDR does not carry as a unit of its own is composed the way CLDR composes
it: an SI or binary prefix pattern ("kilo{0}"), a power pattern ("square {0}",
"cubic {0}"), the "per" pattern ("{0} per {1}") or the "times" pattern ("{0}-{1}"),
each filled with the singular name of its part.

Generated messages carry a translator comment "CLDR: <text>" holding the text the
tool wrote (lrelease ignores translator comments). On a refresh a message is
rewritten only while its translation still equals that text; a message without the
comment, or edited since, is a hand-made translation and is kept. With --adopt
hand-made names that differ from CLDR are replaced too, unless the table lists the
difference as deliberate.

Commands:
    gen_translations.py refresh LOCALE [...] [--adopt]
    gen_translations.py check LOCALE [...]
    gen_translations.py names LOCALE

check prints, per locale, the share of mapped units whose name equals CLDR's
(after normalisation: case folded, every kind of space and the hyphen read as one
space, typographic apostrophes as "'") and the share of all unit names that are
translated (differ from the English name, or equal CLDR's). It fails (exit 1) when
a locale other than en-US agrees for less than 95 %, translates less than 90 %, or
differs from CLDR where the table lists no reason. Without CLDR data it exits 77,
which the test driver reports as skipped.
"""
import argparse
import collections
import os
import re
import sys
import xml.etree.ElementTree as ET

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(HERE)
DEFAULT_CLDR = "/usr/share/unicode/cldr/common/main"
DEFAULT_TABLE = os.path.join(HERE, "cldr_units.tsv")
NAMES_MODULE = "KxCoreUnitsUI"
UNIT_CONTEXT = "UnitType"
MARK = "CLDR: "
SKIP = 77
MIN_AGREEMENT = 0.95
MIN_TRANSLATED = 0.90
# en-US names are the source texts every other locale translates.
SOURCE_LOCALE = "en-US"


# ---------------------------------------------------------------- the table

# "no-prefix-patterns": the locale's CLDR prefix patterns are not usable (zh_Hant's
# spell out the whole prefixed meter, "{0} 佑米"), so prefixed units CLDR does not
# carry itself are named by hand there.
LOCALE_OPTIONS = {"no-prefix-patterns"}

Table = collections.namedtuple("Table", "units differences locales")
LocaleRow = collections.namedtuple("LocaleRow", "files symbols options")


def read_table(path):
    units, differences, locales = {}, {}, {}
    section = None
    with open(path, encoding="utf-8") as f:
        for number, line in enumerate(f, 1):
            line = line.rstrip("\n")
            if not line.strip() or line.startswith("#"):
                continue
            if line.startswith("[") and line.endswith("]"):
                section = line[1:-1]
                continue
            cells = line.split("\t")
            where = f"{path}:{number}"
            if section == "units" and len(cells) == 2:
                if cells[0] in units:
                    raise ValueError(f"{where}: {cells[0]} mapped twice")
                units[cells[0]] = cells[1]
            elif section == "differences" and len(cells) == 3:
                differences[(cells[0], cells[1])] = cells[2]
            elif section == "locales" and len(cells) in (3, 4):
                options = set(cells[3].split(",")) if len(cells) == 4 else set()
                unknown = options - LOCALE_OPTIONS
                if unknown:
                    raise ValueError(f"{where}: unknown option {', '.join(sorted(unknown))}")
                locales[cells[0]] = LocaleRow(cells[1].split(), cells[2], options)
            else:
                raise ValueError(f"{where}: not a row of section [{section}]")
    return Table(units, differences, locales)


def read_catalogue(data_dir):
    """Returns [(global name, English name)] in catalogue order."""
    units = []
    with open(os.path.join(data_dir, "units.tsv"), encoding="utf-8") as f:
        for line in f:
            if line.startswith(("#", "=")) or not line.strip():
                continue
            cells = line.rstrip("\n").split("\t")
            units.append((cells[1], cells[4]))
    return units


# ---------------------------------------------------------------- CLDR

class Cldr:
    """Long unit names and compound patterns of one locale, with CLDR inheritance
    flattened: the first file of the chain that has an item wins.

    Names are composed as CLDR specifies (supplemental grammaticalFeatures.xml): each
    part of a compound takes the grammatical case its structure asks for (Polish
    "funt na stopę sześcienną": the denominator of "per" is accusative), a power
    agrees with the gender of its unit, and a compound takes its gender from the
    part the language's rules name."""

    NOMINATIVE = "nominative"

    def __init__(self, main_dir, files, options=()):
        self.singular, self.plural, self.forms = {}, {}, {}
        self.patterns = {}   # (kind, gender or None, case) -> pattern, for count "one" or all counts
        self.cases = {}      # (unit type, case) -> singular in that case
        self.gender = {}     # unit type -> grammatical gender, where the language has them
        self.per_unit = {}   # unit type -> CLDR's own "per" form ("{0} all'ora", "{0}/メートル")
        for name in files:
            path = os.path.join(main_dir, name + ".xml")
            if not os.path.exists(path):
                raise FileNotFoundError(path)
            for length in ET.parse(path).getroot().iter("unitLength"):
                if length.get("type") == "long":
                    self._read(length)
        self.rules = read_derivations(main_dir, files[0].split("_")[0])
        if "no-prefix-patterns" in options:
            self.patterns = {k: v for k, v in self.patterns.items() if not re.fullmatch(r"10p-?\d+|1024p\d+", k[0])}

    def _read(self, length):
        for compound in length.iter("compoundUnit"):
            kind = compound.get("type")
            for tag in ("unitPrefixPattern", "compoundUnitPattern", "compoundUnitPattern1"):
                # The pattern for "one" composes a singular name; a bare pattern serves all counts.
                for e in sorted(compound.findall(tag), key=lambda e: e.get("count") != "one"):
                    if e.get("count") not in (None, "one"):
                        continue
                    key = (kind, e.get("gender"), e.get("case") or self.NOMINATIVE)
                    self.patterns.setdefault(key, e.text)
        for unit in length.iter("unit"):
            kind = unit.get("type")
            # A pattern that writes digits into the number ("{0}0 年", tens of years) holds
            # no name to take.
            patterns = [p for p in unit.findall("unitPattern")
                        if not p.get("gender") and not re.search(r"\{0\}\d", p.text or "")]
            bare = {p.get("count"): strip_placeholder(p.text) for p in patterns if not p.get("case")}
            if bare and kind not in self.singular:
                self.singular[kind] = bare.get("one") or bare.get("other") or next(iter(bare.values()))
                self.forms[kind] = sorted(set(bare.values()))
            for p in patterns:
                if p.get("case") and p.get("count") in ("one", None if "one" not in bare else "one"):
                    self.cases.setdefault((kind, p.get("case")), strip_placeholder(p.text))
            if unit.findtext("perUnitPattern") and kind not in self.per_unit:
                self.per_unit[kind] = unit.findtext("perUnitPattern")
            if unit.findtext("gender") and kind not in self.gender:
                self.gender[kind] = unit.findtext("gender")
            display = unit.findtext("displayName")
            if display and kind not in self.plural:
                self.plural[kind] = display.strip()

    def compose(self, expression, case=NOMINATIVE):
        """Singular name of a table expression, or None when CLDR lacks a part."""
        composed = self._compose(expression, case)
        return composed[0] if composed else None

    def _part_case(self, structure, index, case):
        wanted = self.rules.get(("case", structure, index), "compound")
        return case if wanted == "compound" else wanted

    def _compose(self, expression, case):
        """Returns (name, gender) or None."""
        for structure, word in (("per", " per "), ("times", " times ")):
            if word not in expression:
                continue
            first_expr, second_expr = expression.split(word, 1)
            first = self._compose(first_expr, self._part_case(structure, 0, case))
            second_case = self._part_case(structure, 1, case)
            second = self._compose(second_expr, second_case)
            if first is None or second is None:
                return None
            gender = (first, second)[int(self.rules.get(("gender", structure), "0") == "1")][1]
            # A unit's own per form wins over the generic pattern, as CLDR specifies:
            # it carries elisions and cases ("metro cubo all'ora", not "al ora").
            if structure == "per" and second_expr in self.per_unit and case == self.NOMINATIVE:
                return self.per_unit[second_expr].replace("{0}", first[0]), gender
            pattern = self._pattern(structure, None, case)
            if pattern is None:
                return None
            return pattern.replace("{0}", first[0]).replace("{1}", second[0]), gender
        words = expression.split()
        base = words[-1]
        name = self.cases.get((base, case)) if case != self.NOMINATIVE else None
        name = name or self.singular.get(base)
        # A prefix keeps the gender of its unit, and a power agrees with it
        # (French "mètre carré", "unité astronomique carrée").
        gender = self.gender.get(base)
        for word in reversed(words[:-1]):
            if name is None:
                return None
            kind = {"square": "power2", "cubic": "power3"}.get(word, word)
            pattern = self._pattern(kind, gender, case)
            if pattern is None:
                return None
            name = apply_pattern(pattern, name)
        return (name, gender) if name is not None else None

    def _pattern(self, kind, gender, case):
        for key in ((kind, gender, case), (kind, None, case), (kind, gender, self.NOMINATIVE), (kind, None, self.NOMINATIVE)):
            if key in self.patterns:
                return self.patterns[key]
        return None

    def names(self, expression):
        """Every CLDR label a shipped name may equal: the singular, and for a unit
        CLDR carries itself, its plural display name and its other plural forms."""
        found = [self.compose(expression)]
        if re.fullmatch(r"[a-z]+(-[a-z0-9]+)+", expression):
            found += [self.plural.get(expression)] + self.forms.get(expression, [])
        return [n for n in found if n]


def read_derivations(main_dir, language):
    """CLDR's rules for compounds: {("case", structure, 0 or 1): case or "compound",
    ("gender", structure): "0" or "1"}, the language's own over root's."""
    path = os.path.join(os.path.dirname(main_dir.rstrip("/")), "supplemental", "grammaticalFeatures.xml")
    rules = {}
    if not os.path.exists(path):
        return rules
    blocks = {}
    for block in ET.parse(path).getroot().iter("grammaticalDerivations"):
        for locale in block.get("locales", "").split():
            blocks[locale] = block
    for locale in ("root", language):
        block = blocks.get(locale)
        if block is None:
            continue
        for e in block.iter("deriveComponent"):
            if e.get("feature") == "case":
                rules[("case", e.get("structure"), 0)] = e.get("value0")
                rules[("case", e.get("structure"), 1)] = e.get("value1")
        for e in block.iter("deriveCompound"):
            if e.get("feature") == "gender":
                rules[("gender", e.get("structure"))] = e.get("value")
    return rules


def strip_placeholder(text):
    return re.sub(r"\s+", " ", text.replace("{0}", "").replace("\u00A0", " ").replace("\u202F", " ")).strip()


def apply_pattern(pattern, name):
    """Fills a prefix or power pattern. Where the pattern glues its text straight to
    the name ("Kilo{0}", "Quadrat{0}"), the name joins one word and loses its capital:
    German "Kilo" + "Meter" is "Kilometer"."""
    before = pattern.split("{0}", 1)[0]
    if before and before[-1].isalpha() and name[:1].isupper() and name[1:2].islower():
        name = name[0].lower() + name[1:]
    return pattern.replace("{0}", name).strip()


def normalise(text):
    text = text.casefold().replace("\u2019", "'").replace("\u02BC", "'")
    text = re.sub(r"[\s\u00A0\u202F\-\u2010\u2011]+", " ", text)
    return text.strip()


# ---------------------------------------------------------------- .ts files

Message = collections.namedtuple("Message", "source translation kind note")


class TsFile:
    """A Qt translation source, read and written in the layout of this repository
    (contexts and messages in their order, four-space indent)."""

    def __init__(self, path, language):
        self.path, self.language = path, language
        self.contexts = collections.OrderedDict()   # name -> OrderedDict(source -> Message)
        if os.path.exists(path):
            root = ET.parse(path).getroot()
            self.language = root.get("language", language)
            for context in root.iter("context"):
                messages = self.contexts.setdefault(context.findtext("name", ""), collections.OrderedDict())
                for message in context.iter("message"):
                    translation = message.find("translation")
                    messages[message.findtext("source", "")] = Message(
                        message.findtext("source", ""),
                        (translation.text or "") if translation is not None else "",
                        translation.get("type") if translation is not None else None,
                        message.findtext("translatorcomment"))

    def get(self, context, source):
        return self.contexts.get(context, {}).get(source)

    def put(self, context, message):
        self.contexts.setdefault(context, collections.OrderedDict())[message.source] = message

    def render(self):
        out = ['<?xml version="1.0" encoding="utf-8"?>', "<!DOCTYPE TS>",
               f'<TS version="2.1" language="{self.language}">']
        for name, messages in self.contexts.items():
            out += ["<context>", f"    <name>{escape(name)}</name>"]
            for m in messages.values():
                out.append("    <message>")
                out.append(f"        <source>{escape(m.source)}</source>")
                if m.note is not None:
                    out.append(f"        <translatorcomment>{escape(m.note)}</translatorcomment>")
                kind = f' type="{m.kind}"' if m.kind else ""
                out.append(f"        <translation{kind}>{escape(m.translation)}</translation>")
                out.append("    </message>")
            out.append("</context>")
        out.append("</TS>")
        return "\n".join(out) + "\n"

    def save(self):
        os.makedirs(os.path.dirname(self.path), exist_ok=True)
        with open(self.path, "w", encoding="utf-8", newline="\n") as f:
            f.write(self.render())


def escape(text):
    return (text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")
            .replace("'", "&apos;").replace('"', "&quot;"))


# ---------------------------------------------------------------- commands

def open_cldr(args, table, locale):
    row = table.locales.get(locale)
    if row is None:
        raise SystemExit(f"{locale}: no row in the [locales] section of the table")
    return Cldr(args.cldr, row.files, row.options)


def refresh(args, table, catalogue, locale):
    """Fills the unit names of one locale; returns counts of what happened."""
    cldr = open_cldr(args, table, locale)
    ts = TsFile(os.path.join(args.translations, locale, NAMES_MODULE + ".ts"), locale.replace("-", "_"))
    counts = collections.Counter()
    for global_name, english in catalogue:
        old = ts.get(UNIT_CONTEXT, english)
        expression = table.units.get(global_name)
        generated = cldr.compose(expression) if expression else None
        if generated is None:
            if old is None:
                ts.put(UNIT_CONTEXT, Message(english, "", "unfinished", None))
                counts["left to translate"] += 1
            continue
        note = MARK + generated
        hand_made = old is not None and old.translation and (old.note is None or old.note != MARK + old.translation)
        deliberate = (locale, global_name) in table.differences
        if old is None or not old.translation:
            counts["added"] += 1
        elif hand_made and (not args.adopt or deliberate):
            if old.note is not None:  # edited since it was generated: hand-made from now on
                ts.put(UNIT_CONTEXT, old._replace(note=None))
            counts["kept (hand-made)"] += 1
            continue
        elif old.translation == generated:
            counts["unchanged"] += 1
        else:
            counts["replaced" if hand_made else "refreshed"] += 1
        ts.put(UNIT_CONTEXT, Message(english, generated, None, note))
    ts.save()
    return counts


Agreement = collections.namedtuple("Agreement", "mapped agree translated total unlisted listed")


def agreement(args, table, catalogue, locale):
    cldr = open_cldr(args, table, locale)
    ts = TsFile(os.path.join(args.translations, locale, NAMES_MODULE + ".ts"), locale)
    mapped = agree = translated = 0
    unlisted, listed = [], []
    for global_name, english in catalogue:
        message = ts.get(UNIT_CONTEXT, english)
        shipped = message.translation if message is not None and message.kind is None and message.translation else english
        expression = table.units.get(global_name)
        labels = {normalise(n) for n in cldr.names(expression)} if expression else set()
        same_as_cldr = normalise(shipped) in labels
        translated += same_as_cldr or normalise(shipped) != normalise(english)
        if not labels:
            continue
        mapped += 1
        if same_as_cldr:
            agree += 1
            continue
        line = f"{global_name}: shipped \"{shipped}\", CLDR \"{cldr.compose(expression)}\""
        if (locale, global_name) in table.differences:
            listed.append(line + f" ({table.differences[(locale, global_name)]})")
        else:
            unlisted.append(line)
    return Agreement(mapped, agree, translated, len(catalogue), unlisted, listed)


def check(args, table, catalogue, locales):
    failed = False
    for locale in locales:
        a = agreement(args, table, catalogue, locale)
        share, translated = a.agree / max(a.mapped, 1), a.translated / a.total
        english = locale.startswith("en-")
        print(f"{locale}: {a.agree} of {a.mapped} mapped units agree with CLDR ({share:.1%}), "
              f"{a.translated} of {a.total} unit names translated ({translated:.1%}), "
              f"{len(a.listed)} deliberate differences")
        if locale == SOURCE_LOCALE:
            continue
        problems = []
        if share < MIN_AGREEMENT:
            problems.append(f"agreement below {MIN_AGREEMENT:.0%}")
        if not english and translated < MIN_TRANSLATED:
            problems.append(f"translated share below {MIN_TRANSLATED:.0%}")
        if a.unlisted:
            problems.append(f"{len(a.unlisted)} differences from CLDR without a reason in the table")
        for line in a.unlisted:
            print("  differs: " + line)
        for problem in problems:
            print(f"  FAILED: {problem}")
        failed |= bool(problems)
    return 1 if failed else 0


def main(argv=None):
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("command", choices=("refresh", "check", "names"))
    parser.add_argument("locales", nargs="+")
    parser.add_argument("--adopt", action="store_true", help="refresh: replace hand-made names that differ from CLDR")
    parser.add_argument("--cldr", default=DEFAULT_CLDR, help="CLDR common/main folder")
    parser.add_argument("--translations", default=os.path.join(ROOT, "translations"))
    parser.add_argument("--data", default=os.path.join(ROOT, "src", "KxCoreUnits", "data"))
    parser.add_argument("--table", default=DEFAULT_TABLE)
    args = parser.parse_args(argv)
    if not os.path.isdir(args.cldr):
        print(f"CLDR locale data not found in {args.cldr} (Debian package unicode-cldr-core): "
              "nothing compared or generated")
        return SKIP
    table = read_table(args.table)
    catalogue = read_catalogue(args.data)
    unknown = sorted(set(table.units) - {g for g, _ in catalogue})
    if unknown:
        print(f"{args.table}: not in the catalogue: {', '.join(unknown)}")
        return 1
    if args.command == "check":
        return check(args, table, catalogue, args.locales)
    if args.command == "refresh" and SOURCE_LOCALE in args.locales:
        print(f"{SOURCE_LOCALE} holds the source texts; it is written by hand only")
        return 2
    for locale in args.locales:
        if args.command == "refresh":
            counts = refresh(args, table, catalogue, locale)
            print(f"{locale}: " + ", ".join(f"{n} {what}" for what, n in sorted(counts.items())))
        else:
            cldr = open_cldr(args, table, locale)
            for global_name, english in catalogue:
                expression = table.units.get(global_name)
                print(f"{global_name}\t{english}\t{cldr.compose(expression) if expression else ''}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
