#!/usr/bin/env python3
"""Writes each C++ block of a Markdown guide into its own file so that the build
compiles it: OUT/sample_01.cpp, sample_02.cpp, ... in the order of the guide.

Usage: extract_guide_samples.py GUIDE.md OUT_DIR

Old sample files in OUT_DIR are removed first, so a deleted block leaves no stale file.
Each file starts with a #line directive that points the compiler's messages at the
guide's own lines."""
import pathlib
import re
import sys


def main() -> int:
    guide = pathlib.Path(sys.argv[1])
    out = pathlib.Path(sys.argv[2])
    out.mkdir(parents=True, exist_ok=True)
    for old in out.glob("sample_*.cpp"):
        old.unlink()
    lines = guide.read_text(encoding="utf-8").splitlines()
    count = 0
    block = None
    start = 0
    for number, line in enumerate(lines, start=1):
        if block is None and re.fullmatch(r"```(cpp|c\+\+)\s*", line):
            block, start = [], number + 1
        elif block is not None and line.strip() == "```":
            count += 1
            text = f'#line {start} "{guide.resolve()}"\n' + "\n".join(block) + "\n"
            (out / f"sample_{count:02d}.cpp").write_text(text, encoding="utf-8")
            block = None
        elif block is not None:
            block.append(line)
    if block is not None:
        print(f"{guide}: a C++ block starting at line {start - 1} is not closed", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
