#!/usr/bin/env python3
"""Makes a table for the library's tests from api/tessaro.json: what may be called with what, and what it may touch.

    api/calls_table.py calls.inc    write it; tests/library/calls.hpp declares its types

Sizes, offsets and ranges become C++ functions of a call's arguments.
"""
import ast
import json
import os
import sys

JSON = os.path.join(os.path.dirname(os.path.abspath(__file__)), "tessaro.json")
BYTES = {"bytes": 1, "halfwords": 2, "words": 4, "floats": 4, "doubles": 8}


def formula(text, places):
    """An expression of the description as a function of a call's arguments."""

    class Arguments(ast.NodeTransformer):
        def visit_Attribute(self, node):
            return ast.Name(f"of.{node.attr}({places[node.value.id]})")

        def visit_Call(self, node):
            return ast.Call(ast.Name(f"formula::{node.func.id}"), [self.visit(one) for one in node.args], [])

        def visit_Name(self, node):
            return ast.Name(f"of[{places[node.id]}]")

    body = ast.unparse(Arguments().visit(ast.parse(text, mode="eval")))
    return f"FORMULA({body})"


def limits(about, places, enums):
    """The initialisers of a number's or a result's range and constants."""
    for end in ("low", "high"):
        limit = about.get("range", {}).get(end)
        if limit is not None and limit != float("inf"):
            yield f".{end} = {formula(limit, places) if isinstance(limit, str) else float(limit)}"
    if "enum" in about:
        yield f".constants = {{{', '.join(map(str, enums[about['enum']]))}}}"


def parameter(one, places, enums):
    kind, direction = one["kind"], one.get("direction", "")
    yield f'.name = "{one["name"]}", .type = "{one["type"]}", .kind = Kind::{kind}'
    if "in" in direction.split(","):
        yield ".in = true"
    if "out" in direction.split(","):
        yield ".out = true"
    if "size" in one:
        yield f".size = {formula('(%s) * %d' % (one['size'], BYTES[one['unit']]), places)}"
    elif "unit" in one:
        yield f'.unit = "{one["unit"]}"'
    if "at" in one:
        yield f".offset = {formula('(%s) * %d' % (one['at']['offset'], BYTES[one['at']['unit']]), places)}"
    if one.get("trusted"):
        yield ".trusted = true"
    yield from limits(one, places, enums)


def row(function, enums):
    name = function["name"]
    places = {one["name"]: place for place, one in enumerate(function["parameters"])}
    listed = [f"{{{', '.join(parameter(one, places, enums))}}}" for one in function["parameters"]]
    returns = function["returns"]
    cases = [f"{{{case['value']}, {'true' if case['untouched'] else 'false'}}}" for case in returns.get("cases", ())]
    value = ", ".join(limits(returns["value"], places, enums)) if "value" in returns else None
    results = f"{{.type = \"{returns['type']}\", .is_value = {'false' if value is None else 'true'}, .cases = {{{', '.join(cases)}}}, " \
              f".value = {{{value or ''}}}}}"
    parameters = ",\n    ".join(listed)
    return f'{{"{name}", "{function.get("alias_of", name)}", caller({name}),\n   {{{parameters}}},\n   {results}}},\n'


def main():
    with open(JSON, encoding="utf-8") as file:
        description = json.load(file)
    enums = {one["name"]: [constant["value"] for constant in one["constants"]] for one in description["enums"]}
    with open(sys.argv[1], "w", encoding="utf-8") as file:
        file.write("// Made by api/calls_table.py from api/tessaro.json.\n")
        file.writelines(row(function, enums) for function in description["functions"])


if __name__ == "__main__":
    main()
