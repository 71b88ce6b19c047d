#!/usr/bin/env python3
"""Runs what the documentation shows: the worked examples of the reference, and the first call in every language.

    docs/examples_test.py LIBRARY

A language that this machine lacks is named at the end; those of `--languages` must be there.
"""
import argparse
import doctest
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

DOCS = pathlib.Path(__file__).resolve().parent
ROOT = DOCS.parent
PRINTED = "DF575430"

# What a language asks for, and how its program is built and run in a directory of its own.
LANGUAGES = {
    "C": ("first.c", [["cc", "-Wall", "-Wextra", "-Werror", "first.c", "-I", "{root}/include", "-L", "{where}", "-ltessaro", "-o",
                       "first"], ["./first"]]),
    "C++": ("first.cpp", [["c++", "-std=c++17", "-Wall", "-Wextra", "-Werror", "first.cpp", "-I", "{root}/include", "-L", "{where}",
                           "-ltessaro", "-o", "first"], ["./first"]]),
    "Python": ("first.py", [[sys.executable, "first.py"]]),
    "Lua": ("first.lua", [["luajit", "first.lua"]]),
    "C#": ("first.cs", [["mcs", "first.cs"], ["mono", "first.exe"]]),
    "JavaScript": ("first.js", [["node", "first.js"]]),
    "Pascal": ("first.pas", [["fpc", "-v0", "-Fl{where}", "first.pas"], ["./first"]]),
}


def examples():
    """Every heading's example by itself, since a page shows no more than one."""
    text = (DOCS / "reference/examples.md").read_text()
    begin, *parts = re.split(r"^## ", text, flags=re.M)
    before = {}
    exec("\n".join(re.findall(r"^    >>> (.*)$", begin, flags=re.M)), before)
    runner = doctest.DocTestRunner()
    for part in parts:
        heading, code = part.split("\n", 1)
        code = code.replace("```", "")
        runner.run(doctest.DocTestParser().get_doctest(code, dict(before), heading, "examples.md", 0))
    return runner.summarize()


def first_calls(library):
    """For each language nothing, or what went wrong; for one that is not here a text that begins with `not here`."""
    blocks = re.findall(r"```\{code-block\} \w+\n:caption: (.+?)\n\n(.*?)\n```", (DOCS / "guide/first-call.md").read_text(), re.S)
    for language, code in blocks:
        name, commands = LANGUAGES[language]
        where = library.parent
        environment = os.environ | {"LD_LIBRARY_PATH": str(where), "PYTHONPATH": str(ROOT / "bindings/python"),
                                    "TESSARO_LIBRARY": str(library)}
        with tempfile.TemporaryDirectory() as directory:
            (pathlib.Path(directory) / name).write_text(code + "\n")
            for command in commands:
                command = [word.format(root=ROOT, where=where) for word in command]
                if not shutil.which(command[0], path=f"{directory}:{os.environ['PATH']}") and command[0] != "./first":
                    yield language, f"not here: {command[0]}"
                    break
                done = subprocess.run(command, cwd=directory, env=environment, capture_output=True, text=True)
                if "Cannot find module 'koffi'" in done.stderr:
                    yield language, "not here: koffi"
                    break
                if done.returncode:
                    yield language, done.stdout + done.stderr
                    break
            else:
                yield language, "" if done.stdout.strip() == PRINTED else f"printed {done.stdout}"


def main():
    arguments = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    arguments.add_argument("library", type=pathlib.Path)
    arguments.add_argument("--languages", nargs="*", default=["C", "Python"])
    chosen = arguments.parse_args()
    library = chosen.library.resolve()
    os.environ["TESSARO_LIBRARY"] = str(library)
    sys.path.insert(0, str(ROOT / "bindings/python"))
    failed, tried = examples()
    print(f"{tried} lines of examples, {failed} differ")
    for language, fault in first_calls(library):
        print(f"{language}: {fault or 'as printed'}")
        failed += bool(fault) and (language in chosen.languages or not fault.startswith("not here"))
    return bool(failed)


if __name__ == "__main__":
    sys.exit(main())
