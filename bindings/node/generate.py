#!/usr/bin/env python3
"""Makes lib/functions.js, lib/functions.d.ts, lib/constants.js and lib/constants.d.ts from api/tessaro.json, and
puts its version into package.json.

    bindings/node/generate.py            write them
    bindings/node/generate.py --check    fail if they are not what the description says
"""
import re
import sys
from pathlib import Path

here = Path(__file__).resolve().parent
sys.path.insert(0, str(here.parent))
from description import Description, finish, results_of, short_constants, short_name, spelled, wrapped  # noqa: E402

head = "// Made by bindings/node/generate.py from the description of the functions. Do not edit.\n"
builtin = {"min": "Math.min", "max": "Math.max", "abs": "Math.abs", "ceil_div": "check.ceilDiv", "bytes_of": "check.bytesOf"}


def sized(expression):
    return spelled(expression, lambda f, inner: f"{builtin[f]}({', '.join(inner)})",
                   lambda record, field: f"{record}_.{field}", div=lambda x, y: f"Math.trunc({x} / {y})")


def native(c_type):
    """A type as koffi has it."""
    if "WaveBuffer" in c_type:
        return "WaveBuffer *"
    return "void *" if c_type.endswith("*") else f"{c_type} *" if c_type.startswith("Tessaro") else c_type


def javascript(p):
    if p.kind == "number":
        return "number"
    return {"image": "ImageLike", "sound": "Sound", "memory": "Memory", "address": "Memory", "handle": "bigint | null",
            "function": p.type}[p.kind]


def argument(f, p):
    name, written = p.name, str(p.written).lower()
    if p.kind == "number":
        if p.real:
            return f"check.real('{name}', {name})"
        return name if f.asks_range(p) or name in f.measures else f"check.{p.type}('{name}', {name})"
    if p.kind == "image":
        return f"{name}_.pointer" if name in f.measures else f"check.image('{name}', {name}).pointer"
    if p.kind == "sound":
        return f"check.sound('{name}', {name}{', ' + p.size if p.size else ''})"
    if p.kind == "memory":
        begin = f", {sized(p.begin)}" if p.begin else ""
        if (name, p.type) == ("text", "const void*"):
            return f"check.text('{name}', {name}, {p.size})"
        return f"check.memory('{name}', {name}, {sized(p.size)}{begin})"
    if p.kind == "address":
        return f"check.word('{name}', {name}, index, {f.word})"
    return f"check.callback({name}, '{p.type}')" if p.kind == "function" else name


def function(f):
    names = ", ".join(p.name for p in f.parameters)
    types = ", ".join(f"'{native(p.type)}'" for p in f.parameters)
    lines = [f"const {f.name}_ = declare('{f.name}', '{f.result}', [{types}]);", f"exports.{f.name} = ({names}) => {{"]
    if f.twin:
        stream, destination, size, count = (p.name for p in f.twin.parameters)
        lines += [f"  if ({count} === 0) return {f.name}_(check.nothing, check.memory('{destination}', {destination}, 0), 0);",
                  f"  return exports.{f.twin.name}({stream}, {destination}, {stream}.byteLength, {count});"]
    else:
        for p in f.parameters:
            if f.asks_range(p):
                low, high = (("null" if end is None else end) for end in (p.range["low"], p.range["high"]))
                lines.append(f"  {p.name} = check.within('{p.name}', check.{p.type}('{p.name}', {p.name}), {low}, {high});")
            elif p.name in f.measures and p.kind == "number":
                lines.append(f"  {p.name} = check.{p.type}('{p.name}', {p.name});")
            elif p.name in f.measures:
                lines.append(f"  const {p.name}_ = check.image('{p.name}', {p.name});")
        passed, callee = [argument(f, p) for p in f.parameters], f"{f.name}_("
        if f.group == "worker":  # its functions wait for a thread that calls into this one
            passed, callee = [f"{f.name}_", *passed], "check.promise("
        line = f"  return {callee}{', '.join(passed)});"
        lines.append(line if len(line) <= 110 else f"  return {callee}\n    " + ",\n    ".join(passed) + ");")
    return "\n".join(lines) + "\n};\n"


def comment(f, indent=""):
    lines = wrapped(f.brief, 108)
    if f.text:
        lines += [""] + wrapped(f.text, 108)
    if f.twin:
        lines += [""] + wrapped(f"An array has an end, so the work is done by `{f.twin.name}`: a stream that is damaged or cut off "
                                "returns 1 here, and nothing behind it is read.", 108)
    for p in f.parameters:
        size = f" (at least {p.stated})" if p.kind == "memory" else ""
        text = "The stream." if f.twin and p.name == "stream" else p.text
        lines += wrapped(f"{p.name}{size} {text}", 100, "@param ", "  ")
    results = results_of(f)
    for i, line in enumerate(results):
        lines += wrapped(line, 98, "@returns " if i == 0 else "  ", "  ")
    return f"{indent}/**\n" + "".join(f"{indent} * {line}".rstrip() + "\n" for line in lines).replace("*/", "* /") + f"{indent} */\n"


def declaration(f):
    result = "void" if f.result == "void" else "number"
    if f.group == "worker":
        result = f"Promise<{result}>"
    parameters = ", ".join(f"{p.name}: {javascript(p)}" for p in f.parameters)
    return comment(f) + f"export function {f.name}({parameters}): {result};\n"


def prototype(one):
    types = ", ".join(f"'{p['type']}'" for p in one["parameters"])
    return f"prototype('{one['name']}', '{one['convention']}', '{one['result']}', [{types}]);\n"


def main():
    api = Description()
    modules = {
        "functions.js": head + "'use strict';\n\nconst check = require('./arguments.js');\n"
                        "const { declare, prototype } = require('./library.js');\n\n" +
                        "".join(map(prototype, api.callbacks.values())) + "\n" + "\n".join(map(function, api.functions)) +
                        "\nexports.codecs = {\n" + "".join(
                            f"  {name}: {{ encoder: exports.{encoder.name}, decoder: exports.{decoder} }},\n"
                            for name, encoder, decoder in api.codecs()) + "};\n",
        "functions.d.ts": head + "import { ImageLike, Memory, Sound } from '..';\n\n" + "".join(
            f"/** {one['brief']} */\nexport type {one['name']} = ("
            f"{', '.join(p['name'] + ': number' for p in one['parameters'])}) => "
            f"{'void' if one['result'] == 'void' else 'number'};\n" for one in api.callbacks.values()) + "\n" +
                          "\n".join(map(declaration, api.functions)) +
                          "\n/** Lossless stream formats. */\nexport type Codec =" +
                          "".join(f"\n  | '{name}'" for name, _, _ in api.codecs()) + ";\n",
        "constants.js": head + "'use strict';\n\n" + "\n".join(
            f"exports.{short_name(e)} = Object.freeze({{\n" + "".join(f"  {n}: {v},\n" for n, v, _ in short_constants(e)) + "});\n"
            for e in api.enums),
        "constants.d.ts": head + "\n".join(
            f"/** {e['brief']} */\nexport declare const {short_name(e)}: {{\n" +
            "".join(f"  /** {text} */\n  readonly {n}: {v};\n" for n, v, text in short_constants(e)) + "};\n"
            for e in api.enums),
    }
    package = here / "package.json"
    version = re.sub(r'("version": )"[^"]*"', rf'\1"{api.version}"', package.read_text(encoding="utf-8"))
    finish({**{here / "lib" / name: text for name, text in modules.items()}, package: version}, __file__)


if __name__ == "__main__":
    main()
