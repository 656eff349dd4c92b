#!/usr/bin/env python3
"""Turns the unit catalogue tables (groups.tsv, units.tsv, symbols.tsv) into C++.

Factors are written in the tables as exact expressions (0.3048, 1200/3937,
231*inch**3, pi/180) over rationals and named constants; each double is derived
once here from the exact value, so no rounding piles up in the library.

Usage: gen_catalogue.py DATA_DIR --core OUT.inc --enums OUT.h --names OUT.inc
       gen_catalogue.py DATA_DIR --check
"""
import argparse
import ast
import collections
import fractions
import operator
import re
import sys

Fraction = fractions.Fraction

# pi to 50 places; every angle factor is derived from it exactly before rounding.
PI = Fraction("3.14159265358979323846264338327950288419716939937510")

MAX_SYMBOL_INDEX = 10


class TableError(Exception):
    pass


def read_rows(path):
    """Yields (line number, fields) for every data line; '#' starts a comment line."""
    with open(path, encoding="utf-8") as f:
        for number, line in enumerate(f, 1):
            line = line.rstrip("\n")
            if not line.strip() or line.lstrip().startswith("#"):
                continue
            yield number, line.split("\t")


_BINOPS = {ast.Add: operator.add, ast.Sub: operator.sub, ast.Mult: operator.mul,
           ast.Div: operator.truediv}


def evaluate(text, names, where):
    """Evaluates an exact expression: decimal literals, + - * / **, parentheses, names."""
    try:
        tree = ast.parse(text.strip(), mode="eval")
    except SyntaxError as e:
        raise TableError(f"{where}: cannot read expression {text!r}: {e}") from None

    def walk(node):
        if isinstance(node, ast.Expression):
            return walk(node.body)
        if isinstance(node, ast.Constant) and isinstance(node.value, (int, float)):
            # Re-read the literal from the source so 0.3048 stays exactly 3048/10000.
            return Fraction(ast.get_source_segment(text.strip(), node))
        if isinstance(node, ast.Name):
            if node.id not in names:
                raise TableError(f"{where}: unknown name {node.id!r} in {text!r}")
            return names[node.id]
        if isinstance(node, ast.UnaryOp) and isinstance(node.op, (ast.USub, ast.UAdd)):
            v = walk(node.operand)
            return -v if isinstance(node.op, ast.USub) else v
        if isinstance(node, ast.BinOp):
            if isinstance(node.op, ast.Pow):
                exponent = walk(node.right)
                if exponent.denominator != 1:
                    raise TableError(f"{where}: only whole powers are exact: {text!r}")
                return walk(node.left) ** int(exponent)
            op = _BINOPS.get(type(node.op))
            if op:
                return op(walk(node.left), walk(node.right))
        raise TableError(f"{where}: unsupported expression {text!r}")

    return walk(tree)


def load(data_dir):
    errors = []
    names = {"pi": PI}
    constants = []
    groups = []
    for line, row in read_rows(f"{data_dir}/groups.tsv"):
        if len(row) != 10:
            errors.append(f"groups.tsv:{line}: expected 10 columns, got {len(row)}")
            continue
        gid = int(row[0], 16)
        groups.append({"id": gid, "global": row[1], "dims": [int(x) for x in row[2:9]],
                       "name": row[9]})

    units = []
    for line, row in read_rows(f"{data_dir}/units.tsv"):
        where = f"units.tsv:{line}"
        if row[0].startswith("="):
            # =name<TAB>expression<TAB>source : a named constant for later rows.
            if len(row) < 2:
                errors.append(f"{where}: constant without expression")
                continue
            try:
                names[row[0][1:]] = evaluate(row[1], names, where)
                constants.append(row[0][1:])
            except TableError as e:
                errors.append(str(e))
            continue
        if len(row) < 5:
            errors.append(f"{where}: expected id, global name, factor, offset, name[, note]")
            continue
        try:
            factor = evaluate(row[2], names, where)
            offset = evaluate(row[3], names, where) if row[3].strip() else Fraction(0)
        except TableError as e:
            errors.append(str(e))
            continue
        if factor <= 0:
            errors.append(f"{where}: factor must be positive")
        units.append({"id": int(row[0], 16), "global": row[1], "factor": factor,
                      "offset": offset, "name": row[4], "line": line})

    symbols = []
    for line, row in read_rows(f"{data_dir}/symbols.tsv"):
        if len(row) != 3:
            errors.append(f"symbols.tsv:{line}: expected id, kind, global name")
            continue
        symbols.append({"id": int(row[0], 16), "kind": int(row[1]), "global": row[2]})

    check(groups, units, symbols, errors)
    if errors:
        raise TableError("\n".join(errors))
    groups.sort(key=lambda g: g["id"])
    units.sort(key=lambda u: u["id"])
    symbols.sort(key=lambda s: s["id"])
    return groups, units, symbols


def check(groups, units, symbols, errors):
    ident = re.compile(r"^[A-Za-z][A-Za-z0-9_]*$")
    group_ids = {g["id"] for g in groups}
    for g in groups:
        if g["id"] & ~0xFF000 or not g["id"]:
            errors.append(f"group 0x{g['id']:X} is not a pure group identifier")
    unit_ids = set()
    for u in units:
        if u["id"] & 0xFF000 not in group_ids or not u["id"] & 0xFFF or u["id"] & ~0xFFFFF:
            errors.append(f"units.tsv:{u['line']}: 0x{u['id']:X} is no unit of a known group")
        if u["id"] in unit_ids:
            errors.append(f"units.tsv:{u['line']}: duplicate id 0x{u['id']:X}")
        unit_ids.add(u["id"])
    for s in symbols:
        index = s["id"] >> 20
        if s["id"] & 0xFFFFF not in unit_ids or not 1 <= index <= MAX_SYMBOL_INDEX:
            errors.append(f"symbol 0x{s['id']:X} has no unit or a bad index")
        if s["kind"] not in (0, 1):
            errors.append(f"symbol 0x{s['id']:X}: kind must be 0 (keyed) or 1 (unit name)")
        if index == 1 and s["kind"] != 1:
            errors.append(f"symbol 0x{s['id']:X}: a unit's first symbol is named by its unit")
    for unit in unit_ids:
        if unit | 0x100000 not in {s["id"] for s in symbols}:
            errors.append(f"unit 0x{unit:X} has no default symbol")
    for kind, rows in (("group", groups), ("unit", units), ("symbol", symbols)):
        seen = collections.Counter(r["global"] for r in rows)
        for name, count in seen.items():
            if count > 1:
                errors.append(f"{kind} global name {name!r} is used {count} times")
            if not ident.match(name):
                errors.append(f"{kind} global name {name!r} is not an identifier")
        ids = collections.Counter(r["id"] for r in rows)
        errors.extend(f"{kind} id 0x{i:X} is listed twice" for i, c in ids.items() if c > 1)


def cpp_string(text):
    out = []
    for ch in text:
        if ch in '\\"':
            out.append("\\" + ch)
        elif 32 <= ord(ch) < 127:
            out.append(ch)
        else:
            out.append(f"\\U{ord(ch):08X}")
    return '"' + "".join(out) + '"'


HEADER = """// Generated by tools/gen_catalogue.py from {inputs}.
// Do not edit: change the tables and rebuild.
"""


def write_core(path, groups, units, symbols):
    with open(path, "w", encoding="utf-8") as f:
        f.write(HEADER.format(inputs="src/KxCoreUnits/data/*.tsv"))
        f.write("// clang-format off\n")
        f.write("static constexpr GroupRow kGroupRows[] = {\n")
        for g in groups:
            dims = ", ".join(f"{d:2d}" for d in g["dims"])
            f.write(f"    {{0x{g['id']:05X}, {{{dims}}}, L{cpp_string(g['global'])}}},\n")
        f.write("};\n\n")
        f.write("static constexpr UnitRow kUnitRows[] = {\n")
        for u in units:
            f.write(f"    {{0x{u['id']:05X}, {float(u['factor'])!r}, {float(u['offset'])!r}, "
                    f"L{cpp_string(u['global'])}}},\n")
        f.write("};\n\n")
        f.write("static constexpr SymbolRow kSymbolRows[] = {\n")
        for s in symbols:
            f.write(f"    {{0x{s['id']:07X}, L{cpp_string(s['global'])}}},\n")
        f.write("};\n")
        f.write("// clang-format on\n")


def write_enums(path, groups, units, symbols):
    with open(path, "w", encoding="utf-8") as f:
        f.write(HEADER.format(inputs="src/KxCoreUnits/data/*.tsv"))
        f.write("// Enumerator lists spliced into the enumerations of UnitsEnums.h.\n")
        f.write("// clang-format off\n")
        f.write("#define KXCOREUNITS_GROUP_ENUMERATORS \\\n")
        f.write("".join(f"    eG{g['global']} = 0x{g['id']:05X}, \\\n" for g in groups))
        f.write("\n#define KXCOREUNITS_TYPE_ENUMERATORS \\\n")
        f.write("".join(f"    eU{u['global']} = 0x{u['id']:05X}, \\\n" for u in units))
        f.write("\n#define KXCOREUNITS_SYMBOL_ENUMERATORS \\\n")
        f.write("".join(f"    eS{s['global']} = 0x{s['id']:07X}, \\\n" for s in symbols))
        f.write("\n// clang-format on\n")


def write_names(path, groups, units, symbols):
    """English source texts of the display-name tables of the UI library."""
    with open(path, "w", encoding="utf-8") as f:
        f.write(HEADER.format(inputs="src/KxCoreUnits/data/*.tsv"))
        f.write("// clang-format off\n")
        f.write("#define KX_GROUP_NAME_ROWS \\\n")
        f.write("".join(f"    {{0x{g['id']:05X}, QT_TRANSLATE_NOOP(\"UnitGroup\", {cpp_string(g['name'])})}}, \\\n"
                        for g in groups))
        f.write("\n#define KX_UNIT_NAME_ROWS \\\n")
        f.write("".join(f"    {{0x{u['id']:05X}, QT_TRANSLATE_NOOP(\"UnitType\", {cpp_string(u['name'])})}}, \\\n"
                        for u in units))
        f.write("\n#define KX_SYMBOL_NAME_ROWS \\\n")
        for s in symbols:
            key = cpp_string("eS" + s["global"]) if s["kind"] == 0 else '""'
            f.write(f"    {{0x{s['id']:07X}, {s['kind']}, {key}}}, \\\n")
        f.write("\n// clang-format on\n")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("data_dir")
    parser.add_argument("--core")
    parser.add_argument("--enums")
    parser.add_argument("--names")
    parser.add_argument("--check", action="store_true",
                        help="only validate the tables and print counts")
    args = parser.parse_args()
    try:
        groups, units, symbols = load(args.data_dir)
    except TableError as e:
        print(e, file=sys.stderr)
        return 1
    if args.check:
        per_index = collections.Counter(s["id"] >> 20 for s in symbols)
        print(f"{len(groups)} groups, {len(units)} units, {len(symbols)} symbols; per index "
              + ", ".join(str(per_index[i]) for i in range(1, MAX_SYMBOL_INDEX + 1)))
    if args.core:
        write_core(args.core, groups, units, symbols)
    if args.enums:
        write_enums(args.enums, groups, units, symbols)
    if args.names:
        write_names(args.names, groups, units, symbols)
    return 0


if __name__ == "__main__":
    sys.exit(main())
