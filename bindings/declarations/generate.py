#!/usr/bin/env python3
"""Makes bindings/declarations.txt, for hosts that call a library by names, from api/tessaro.json.

    bindings/declarations/generate.py            write it
    bindings/declarations/generate.py --check    fail if it is not what the description says
"""
import sys
from pathlib import Path

here = Path(__file__).resolve().parent
sys.path.insert(0, str(here.parent))
from description import Description, finish  # noqa: E402

head = """\
# Made by bindings/declarations/generate.py from the description of the functions. Do not edit.
#
# Lines are words with a tab between them.
#   function  name  result  bytes of its arguments on 32-bit Windows  the function that it is a second name of, or -
#   argument  name  type  bytes on 32-bit Windows  direction or -  what it is  memory that is needed at least, or -
# An argument is a number, an image (the address of an image record), a sound (that of a wave buffer), memory, an address
# (memory whose size nobody knows), a function or a handle. Needed memory: an expression over arguments and its unit, and
# behind "at" where it begins, seen from the pointer.
"""


def size_of(c_type):
    return 8 if c_type == "double" else 4


def main():
    lines = []
    for f in Description().functions:
        total = sum(size_of(p.type) for p in f.parameters)
        lines.append(f"function\t{f.name}\t{f.result}\t{total}\t{f.alias_of or '-'}")
        for p in f.parameters:
            direction = "-" if p.kind in ("number", "function", "handle") else ("in,out" if p.read else "out") if p.written else "in"
            needed = p.stated + (f" at {p.begin} bytes" if p.begin else "") if p.size else "-"
            lines.append(f"argument\t{p.name}\t{p.type}\t{size_of(p.type)}\t{direction}\t{p.kind}\t{needed}")
    finish({here.parent / "declarations.txt": head + "\n".join(lines) + "\n"}, __file__)


if __name__ == "__main__":
    main()
