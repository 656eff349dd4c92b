#!/usr/bin/env python3
"""The CLDR name generator on a small CLDR of its own: composition, the refresh rules
that protect hand-made translations, and the agreement check's verdicts."""
import contextlib
import io
import os
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools"))
import gen_translations as gen  # noqa: E402

# "xx" inherits from "base": the first file that has an item wins.
XX = """<ldml><units>
<unitLength type="long">
  <compoundUnit type="10p3"><unitPrefixPattern>Kilo{0}</unitPrefixPattern></compoundUnit>
  <compoundUnit type="power2">
    <compoundUnitPattern1 count="one">{0} carré</compoundUnitPattern1>
    <compoundUnitPattern1 count="one" gender="feminine">{0} carrée</compoundUnitPattern1>
    <compoundUnitPattern1 count="other">{0} carrés</compoundUnitPattern1>
    <compoundUnitPattern1 count="one" gender="feminine" case="accusative">{0} carrą</compoundUnitPattern1>
  </compoundUnit>
  <unit type="length-meter"><gender>masculine</gender><displayName>Meter</displayName>
    <unitPattern count="one">{0} Meter</unitPattern>
    <unitPattern count="one" case="dative">{0} Metern</unitPattern>
    <unitPattern count="other">{0}\u00a0Meter</unitPattern></unit>
  <unit type="duration-hour"><displayName>ore</displayName><unitPattern count="one">{0} ora</unitPattern>
    <perUnitPattern>{0} all’ora</perUnitPattern></unit>
  <unit type="length-fathom"><gender>feminine</gender><displayName>Brassen</displayName>
    <unitPattern count="one">{0} Brasse</unitPattern><unitPattern count="other">{0} Brassen</unitPattern>
    <unitPattern count="one" case="accusative">{0} Brassę</unitPattern></unit>
</unitLength>
<unitLength type="short">
  <unit type="length-meter"><displayName>m</displayName><unitPattern count="one">{0} m</unitPattern></unit>
</unitLength>
</units></ldml>"""
BASE = """<ldml><units><unitLength type="long">
  <compoundUnit type="per"><compoundUnitPattern>{0} pro {1}</compoundUnitPattern></compoundUnit>
  <unit type="length-meter"><displayName>metres</displayName><unitPattern count="one">{0} metre</unitPattern></unit>
  <unit type="duration-second"><displayName>Sekunden</displayName><unitPattern count="one">{0} Sekunde</unitPattern></unit>
</unitLength></units></ldml>"""
# The denominator of "per" takes the accusative in "xx", as in Polish.
GRAMMAR = """<supplementalData><grammaticalDerivations locales="root">
  <deriveComponent feature="case" structure="per" value0="compound" value1="nominative"/>
</grammaticalDerivations><grammaticalDerivations locales="xx">
  <deriveComponent feature="case" structure="per" value0="compound" value1="accusative"/>
</grammaticalDerivations></supplementalData>"""
TABLE = """[units]
Meter\tlength-meter
Kilometer\t10p3 length-meter
SquareFathom\tsquare length-fathom
MeterPerSecond\tlength-meter per duration-second
Mile\tlength-mile
[differences]
xx-XX\tKilometer\tkept on purpose
[locales]
xx-XX\txx base\tinternational symbols
"""
UNITS = "# header\n=inch\t0.0254\tconstant\n" + "".join(
    f"0x{20 + i:X}\t{g}\t1\t\t{e}\tnote\n" for i, (g, e) in enumerate([
        ("Meter", "meter"), ("Kilometer", "kilometer"), ("SquareFathom", "square fathom"),
        ("MeterPerSecond", "meter per second"), ("Mile", "mile"), ("Rod", "rod")]))


def message(source, translation, note=None, kind=None):
    comment = f"\n        <translatorcomment>{note}</translatorcomment>" if note else ""
    kind = f' type="{kind}"' if kind else ""
    return (f"    <message>\n        <source>{source}</source>{comment}\n"
            f"        <translation{kind}>{translation}</translation>\n    </message>\n")


def ts(*messages):
    return ('<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n<TS version="2.1" language="xx_XX">\n'
            "<context>\n    <name>UnitType</name>\n" + "".join(messages) + "</context>\n</TS>\n")


class Fixture(unittest.TestCase):
    def setUp(self):
        self.dir = tempfile.TemporaryDirectory()
        root = self.dir.name
        self.cldr = os.path.join(root, "cldr", "main")
        os.makedirs(self.cldr)
        os.makedirs(os.path.join(root, "cldr", "supplemental"))
        with open(os.path.join(root, "cldr", "supplemental", "grammaticalFeatures.xml"), "w", encoding="utf-8") as f:
            f.write(GRAMMAR)
        for name, text in (("xx.xml", XX), ("base.xml", BASE)):
            with open(os.path.join(self.cldr, name), "w", encoding="utf-8") as f:
                f.write(text)
        self.table = os.path.join(root, "table.tsv")
        with open(self.table, "w", encoding="utf-8") as f:
            f.write(TABLE)
        self.data = os.path.join(root, "data")
        os.makedirs(self.data)
        with open(os.path.join(self.data, "units.tsv"), "w", encoding="utf-8") as f:
            f.write(UNITS)
        self.translations = os.path.join(root, "translations")
        self.ts_path = os.path.join(self.translations, "xx-XX", "KxCoreUnitsUI.ts")

    def tearDown(self):
        self.dir.cleanup()

    def write_ts(self, text):
        os.makedirs(os.path.dirname(self.ts_path), exist_ok=True)
        with open(self.ts_path, "w", encoding="utf-8") as f:
            f.write(text)

    def run_tool(self, *args, cldr=None):
        out = io.StringIO()
        with contextlib.redirect_stdout(out):
            status = gen.main([*args, "--cldr", cldr or self.cldr, "--table", self.table,
                               "--data", self.data, "--translations", self.translations])
        return status, out.getvalue()

    def unit_names(self):
        t = gen.TsFile(self.ts_path, "xx_XX")
        return {s: (m.translation, m.kind, m.note) for s, m in t.contexts["UnitType"].items()}


class Composition(Fixture):
    def test_names_follow_cldr_patterns(self):
        cldr = gen.Cldr(self.cldr, ["xx", "base"])
        cases = [
            ("length-meter", "Meter"),                   # xx wins over base's "metre"
            ("10p3 length-meter", "Kilometer"),          # glued prefix lowers the capital
            ("square length-fathom", "Brasse carrée"),   # power agrees with a feminine unit
            ("square length-meter", "Meter carré"),
            ("length-meter per duration-second", "Meter pro Sekunde"),  # per pattern from base
            ("length-meter per duration-hour", "Meter all’ora"),  # the unit's own per form wins
            ("10p3 length-meter per duration-hour", "Kilometer all’ora"),
            # The denominator in the accusative, its power agreeing in case and gender.
            ("length-meter per square length-fathom", "Meter pro Brassę carrą"),
            ("length-meter per length-fathom", "Meter pro Brassę"),
            ("length-mile", None),                       # CLDR lacks the unit
            ("10p6 length-meter", None),                 # ... or the prefix
        ]
        for expression, expected in cases:
            with self.subTest(expression):
                self.assertEqual(cldr.compose(expression), expected)

    def test_locale_option_drops_unusable_prefix_patterns(self):
        cldr = gen.Cldr(self.cldr, ["xx", "base"], {"no-prefix-patterns"})
        self.assertIsNone(cldr.compose("10p3 length-meter"))
        self.assertEqual(cldr.compose("square length-fathom"), "Brasse carrée")

    def test_labels_hold_plural_forms_of_units_cldr_carries(self):
        cldr = gen.Cldr(self.cldr, ["xx", "base"])
        self.assertEqual(set(cldr.names("length-fathom")), {"Brasse", "Brassen"})
        self.assertEqual(cldr.names("10p3 length-meter"), ["Kilometer"])

    def test_normalisation_ignores_case_spaces_hyphens_and_apostrophes(self):
        for a, b in [("Minute d’arc", "minute d'arc"), ("kilowatt-heure", "Kilowatt heure"),
                     ("1\u202Fm", "1 m"), ("  Meter\u00A0 pro  Sekunde ", "meter pro sekunde")]:
            with self.subTest(a):
                self.assertEqual(gen.normalise(a), gen.normalise(b))
        self.assertNotEqual(gen.normalise("Meter"), gen.normalise("Metre"))


class Refresh(Fixture):
    def test_hand_made_and_hand_edited_names_are_kept(self):
        self.write_ts(ts(
            message("meter", "Hand-Meter"),                                        # hand-made
            message("square fathom", "Quadratbrasse", note="CLDR: Brasse carré"),  # edited since
            message("meter per second", "Meter pro Sek", note="CLDR: Meter pro Sek"),  # stale, untouched
        ))
        status, out = self.run_tool("refresh", "xx-XX")
        self.assertEqual(status, 0, out)
        names = self.unit_names()
        self.assertEqual(names["meter"], ("Hand-Meter", None, None))
        self.assertEqual(names["square fathom"], ("Quadratbrasse", None, None))  # mark dropped
        self.assertEqual(names["meter per second"], ("Meter pro Sekunde", None, "CLDR: Meter pro Sekunde"))
        self.assertEqual(names["kilometer"], ("Kilometer", None, "CLDR: Kilometer"))
        # Neither CLDR nor a translator named these yet: left for a translator.
        self.assertEqual(names["mile"], ("", "unfinished", None))
        self.assertEqual(names["rod"], ("", "unfinished", None))

    def test_adopt_replaces_hand_made_names_unless_the_difference_is_deliberate(self):
        self.write_ts(ts(message("meter", "Hand-Meter"), message("kilometer", "Hand-Kilometer")))
        status, _ = self.run_tool("refresh", "xx-XX", "--adopt")
        self.assertEqual(status, 0)
        names = self.unit_names()
        self.assertEqual(names["meter"][0], "Meter")
        self.assertEqual(names["kilometer"][0], "Hand-Kilometer")

    def test_source_locale_is_never_generated(self):
        status, out = self.run_tool("refresh", "en-US")
        self.assertEqual(status, 2, out)

    def test_unchanged_file_is_written_back_byte_for_byte(self):
        text = ts(message("rod", "perche &amp; &apos;x&apos; &lt;&quot;y&quot;&gt;"),
                  message("mile", "", kind="unfinished"), message("meter", "Meter", note="CLDR: Meter"))
        self.write_ts(text)
        self.assertEqual(gen.TsFile(self.ts_path, "xx_XX").render(), text)


class Check(Fixture):
    def test_verdicts(self):
        complete = [message("meter", "Meter"), message("kilometer", "Kilometer"),
                    message("square fathom", "Brasse carrée"), message("meter per second", "Meter pro Sekunde"),
                    message("mile", "Meile"), message("rod", "Rute")]
        cases = [
            # title, messages, exit status, text the report must (+) or must not (-) hold
            ("agrees", complete, 0, "+4 of 4 mapped"),
            ("unlisted difference", [message("meter", "Metre")] + complete[1:], 1, "+differs: Meter"),
            # A listed difference needs no more reason, but still counts against the share.
            ("listed difference", complete[:1] + [message("kilometer", "Hand")] + complete[2:], 1, "-differs"),
            ("untranslated: English name", complete[:5] + [message("rod", "rod")], 1, "+translated share"),
            ("unfinished counts as English", complete[:5] + [message("rod", "", kind="unfinished")], 1,
             "+translated share"),
        ]
        for title, messages, expected, text in cases:
            with self.subTest(title):
                self.write_ts(ts(*messages))
                status, out = self.run_tool("check", "xx-XX")
                self.assertEqual(status, expected, out)
                self.assertEqual(text[1:] in out, text[0] == "+", out)

    def test_missing_cldr_is_a_skip(self):
        status, out = self.run_tool("check", "xx-XX", cldr=os.path.join(self.dir.name, "absent"))
        self.assertEqual(status, gen.SKIP)
        self.assertIn("unicode-cldr-core", out)

    def test_table_naming_an_unknown_unit_fails(self):
        with open(self.table, encoding="utf-8") as f:
            text = f.read()
        with open(self.table, "w", encoding="utf-8") as f:
            f.write(text.replace("[differences]", "Furlong\tlength-furlong\n[differences]"))
        status, out = self.run_tool("check", "xx-XX")
        self.assertEqual(status, 1)
        self.assertIn("Furlong", out)


if __name__ == "__main__":
    unittest.main()
