#!/usr/bin/env python3
"""Makes tessaro/functions.lua and tessaro/constants.lua from api/tessaro.json.

    bindings/lua/generate.py            write them
    bindings/lua/generate.py --check    fail if they are not what the description says
"""
import sys
from pathlib import Path

here = Path(__file__).resolve().parent
sys.path.insert(0, str(here.parent))
from description import Description, finish, results_of, short_constants, short_name, spelled, wrapped  # noqa: E402

head = "-- Made by bindings/lua/generate.py from the description of the functions. Do not edit.\n"
builtin = {"min": "math.min", "max": "math.max", "abs": "math.abs", "ceil_div": "check.ceil_div", "bytes_of": "check.bytes_of"}


def native(c_type):
    return "const WaveBuffer*" if "WaveBuffer" in c_type else "void*" if c_type.endswith("*") else c_type


def sized(expression):
    return spelled(expression, lambda f, inner: f"{builtin[f]}({', '.join(inner)})", lambda record, field: f"{record}_{field}",
                   div=lambda x, y: f"check.div({x}, {y})")


def argument(f, p):
    name = p.name
    if p.kind == "number":
        if p.real:
            return f'check.real("{name}", {name})'
        return name if f.asks_range(p) or name in f.measures else f'check.{p.type}("{name}", {name})'
    if p.kind == "image":
        return f"{name}_" if name in f.measures else f'(check.image("{name}", {name}, {str(p.written).lower()}))'
    if p.kind == "sound":
        return f'check.sound("{name}", {name}, {p.size or 0})'
    if p.kind == "memory":
        if (name, p.type) == ("text", "const void*"):
            return f'check.text("{name}", {name}, {p.size})'
        return f'check.memory("{name}", {name}, {sized(p.size)}, {sized(p.begin) if p.begin else 0}, {str(p.written).lower()})'
    if p.kind == "address":
        return f'check.word("{name}", {name}, index, {f.word}, {str(p.written).lower()})'
    return f"{name}_" if p.kind == "function" else name


def function(f):
    names = ", ".join(p.name for p in f.parameters)
    lines = [f"function functions.{f.name}({names})"]
    if f.twin:
        stream, destination, size, count = (p.name for p in f.twin.parameters)
        lines += [f"  if {count} == 0 then return 0 end  -- it asks for nothing, not even a stream",
                  f'  return functions.{f.twin.name}({stream}, {destination}, check.size("{stream}", {stream}), {count})', "end"]
        return "\n".join(lines) + "\n"
    functions = [p for p in f.parameters if p.kind == "function"]
    for p in f.parameters:
        if f.asks_range(p):
            low, high = (("nil" if end is None else end) for end in (p.range["low"], p.range["high"]))
            lines.append(f'  {p.name} = check.within("{p.name}", check.{p.type}("{p.name}", {p.name}), {low}, {high})')
        elif p.name in f.measures and p.kind == "number":
            lines.append(f'  {p.name} = check.{p.type}("{p.name}", {p.name})')
        elif p.name in f.measures:
            written = str(p.written).lower()
            lines.append(f'  local {p.name}_, {p.name}_width, {p.name}_height = check.image("{p.name}", {p.name}, {written})')
        elif p.kind == "function":
            lines.append(f'  local {p.name}_, {p.name}_made = check.callback("{p.name}", {p.name}, "{p.type}")')
    passed = [argument(f, p) for p in f.parameters]
    call = f"library.{f.name}({', '.join(passed)})"
    if len(call) > 100:
        call = f"library.{f.name}(\n    " + ",\n    ".join(passed) + ")"
    if f.result == "intptr_t":
        call = f"tonumber({call})"
    if functions:
        lines += [f"  local result = {call}", *(f"  check.release({p.name}_made, \"{p.type}\")" for p in functions), "  return result"]
    elif f.result == "void":
        lines.append(f"  {call}")
    else:
        lines.append(f"  return {call}")
    lines.append("end")
    if functions:
        lines.append(f"jit.off(functions.{f.name})  -- compiled code cannot be called back")
    return "\n".join(lines) + "\n"


def documented(f):
    lines = wrapped(f.brief, 106, "--- ")
    about = f.text
    if f.twin:
        about += f"\n\nA buffer has an end, so the work is done by `{f.twin.name}`: a stream that is damaged or cut off returns 1 here, " \
                 "and nothing behind it is read."
    if about.strip():
        lines += ["---", *wrapped(about.strip(), 106, "--- ")]
    kinds = {"image": "tessaro.Image|tessaro.Buffer", "sound": "tessaro.Sound", "memory": "tessaro.Buffer", "address": "tessaro.Buffer",
             "function": "function|ffi.cdata*", "handle": "ffi.cdata*?"}
    for p in f.parameters:
        kind = kinds.get(p.kind) or ("number" if p.real else "integer")
        size = f" At least {p.stated}." if p.kind == "memory" else ""
        text = "The stream." if f.twin and p.name == "stream" else p.text
        lines += wrapped(f"---@param {p.name} {kind} {text}{size}", 106, "", "---  ")
    for i, text in enumerate(results_of(f)):
        lines += wrapped(("---@return integer " if i == 0 else "---  ") + text, 106, "", "---  ")
    return "\n".join(lines) + "\n"


def declarations(api):
    out = ["typedef struct { int32_t format, count; void* data; } WaveBuffer;\n"]
    for one in api.callbacks.values():
        convention = "CDECL" if one["convention"] == "cdecl" else "CALL"
        out.append(f"typedef {one['result']} ({convention} *{one['name']})({', '.join(p['type'] for p in one['parameters']) or 'void'});\n")
    for f in api.functions:
        out.append(f"{f.result} CALL {f.name}({', '.join(native(p.type) for p in f.parameters) or 'void'});\n")
    return "".join(out)


def main():
    api = Description()
    functions = (head + "local check = require(\"tessaro.check\")\n\nlocal library = check.load[[\n" + declarations(api) + "]]\n\n"
                 "local functions = {}\n\n" + "\n".join(documented(f) + function(f) for f in api.functions) +
                 "\nfunctions.codecs = {\n" + "".join(
                     f"  {name} = {{ encoder = functions.{encoder.name}, decoder = functions.{decoder} }},\n"
                     for name, encoder, decoder in api.codecs()) + "}\n\nreturn functions\n")
    constants = head + "return {\n" + "".join(
        f"  -- {e['brief']}\n  {short_name(e)} = {{\n" +
        "".join(f"    {n} = {v},  -- {text}\n" for n, v, text in short_constants(e)) + "  },\n" for e in api.enums) + "}\n"
    finish({here / "tessaro" / "functions.lua": functions, here / "tessaro" / "constants.lua": constants}, __file__)


if __name__ == "__main__":
    main()
