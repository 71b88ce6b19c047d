#!/usr/bin/env python3
"""Makes Functions.cs, Constants.cs and Codecs.cs from api/tessaro.json.

    bindings/csharp/generate.py              write them
    bindings/csharp/generate.py --check      fail if they are not what the description says
    bindings/csharp/generate.py --calls FILE write what the test calls functions by their names with
"""
import re
import sys
from pathlib import Path

here = Path(__file__).resolve().parent
sys.path.insert(0, str(here.parent))
from description import Description, finish, results_of, short_constants, short_name, spelled, width_of, wrapped  # noqa: E402

head = "// Made by bindings/csharp/generate.py from the description of the functions. Do not edit.\n"
plain = {"int32_t": "int", "uint32_t": "uint", "uint16_t": "ushort", "intptr_t": "IntPtr", "uintptr_t": "UIntPtr", "float": "float",
         "double": "double", "void": "void", "void*": "IntPtr"}
builtin = {"min": "Math.Min", "max": "Math.Max", "abs": "Math.Abs", "ceil_div": "Check.CeilDiv", "bytes_of": "Check.BytesOf"}


def identifier(name):
    return "@" + name if name in ("base", "out", "ref", "params", "in") else name


def element(p):
    """What the items of memory are."""
    base = p.type.replace("const ", "").rstrip("*")
    return plain[base] if base != "void" else "byte"


def parameter(p):
    name = identifier(p.name)
    if p.kind in ("memory", "address"):
        if p.single:
            return f"ref {element(p)} {name}"
        return f"{'Span' if p.written else 'ReadOnlySpan'}<{element(p)}> {name}"
    return {"image": "Image", "sound": "Sound", "handle": "IntPtr"}.get(p.kind, plain.get(p.type, p.type)) + " " + name


def native(p):
    if p.kind in ("memory", "address", "image", "sound"):
        return f"{element(p)}* {identifier(p.name)}" if p.kind == "memory" else f"void* {identifier(p.name)}"
    return parameter(p)


def sized(expression, f):
    """A size as a long; names are those of parameters."""
    return spelled(expression, lambda call, inner: f"{builtin[call]}({', '.join(inner)})",
                   lambda record, field: f"{record}_.{field.capitalize()}",
                   lambda name: f"(long){identifier(name)}" if f.named(name).type in ("int32_t", "uint32_t") else name)


def function(f):
    parameters, result = ", ".join(map(parameter, f.parameters)), plain[f.result]
    lines = [f"public static {result} {f.name}({parameters})", "{"]
    if f.twin:
        stream, destination, size, count = (identifier(p.name) for p in f.twin.parameters)
        lines += [f"    if ({count} == 0) return 0;  // it asks for nothing, not even a stream",
                  f"    return {f.twin.name}({stream}, {destination}, (uint){stream}.Length, {count});", "}"]
        return lines
    pins, passed = [], []
    for p in f.parameters:
        name, own = identifier(p.name), p.name + "_"
        if f.asks_range(p):
            low, high = p.range["low"], p.range["high"]
            lines.append(f'    Check.Within("{p.name}", {name}, {"long.MinValue" if low is None else low}, '
                         f'{"long.MaxValue" if high is None else high});')
        if p.kind == "image":
            lines.append(f'    {f"var {own} = " if p.name in f.measures else ""}Check.Image("{p.name}", {name});')
            pins.append(f"byte* {own}p = {name}.Memory")
            passed.append(f"{own}p + {name}.Offset")
        elif p.kind == "sound":
            lines.append(f'    Check.Sound("{p.name}", {name}, {p.size or 0});')
            pins.append(f"byte* {own}p = {name}.Data")
            passed.append(f"&{own}")
        elif p.kind == "memory" and p.single:
            pins.append(f"{element(p)}* {own} = &{name}")
            passed.append(own)
        elif p.kind in ("memory", "address"):
            pins.append(f"{element(p)}* {own} = &MemoryMarshal.GetReference({name})")
            begin = ""
            if p.kind == "address":
                lines.append(f'    Check.Word("{p.name}", {name}.Length, index, {f.word});')
            if p.begin:
                begin = f" - Check.Begin({name}.Length, {sized(p.begin, f)})"
            passed.append(own + begin)
        else:
            passed.append(name)
    for p in f.parameters:  # when all images are known
        if p.kind == "memory" and not p.single:
            name, width = identifier(p.name), width_of(p.type)
            if (p.name, p.type) == ("text", "const void*"):
                lines.append(f"    {name} = Check.Text({name}, {p.size});")
                continue
            length = f"{name}.Length" if width == 1 else f"{width}L * {name}.Length"
            lines.append(f'    Check.Memory("{p.name}", {length}, {sized(p.size, f)});')
    inner = "    "
    for i, pin in enumerate(pins):
        lines.append(f"    fixed ({pin})")
    if pins:
        lines.append("    {")
        inner = "        "
    for p in f.parameters:
        if p.kind == "sound":
            name = identifier(p.name)
            lines.append(f"{inner}var {p.name}_ = new WaveBuffer {{ Format = {name}.Format, Count = {name}.Count, "
                         f"Data = (IntPtr){p.name}_p }};")
    if any(p.type == "TessaroHook" for p in f.parameters):
        lines.append(f"{inner}Check.Keep({', '.join(p.name for p in f.parameters if p.type == 'TessaroHook')});")
    call = f"Native.{f.name}({', '.join(passed)});"
    callbacks = [p.name for p in f.parameters if p.kind == "function"]
    if callbacks:
        lines += [f"{inner}var result = {call}", *(f"{inner}GC.KeepAlive({name});" for name in callbacks), f"{inner}return result;"]
    else:
        lines.append(f"{inner}{'' if result == 'void' else 'return '}{call}")
    if pins:
        lines.append("    }")
    return lines + ["}"]


def xml(text):
    text = text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")
    return re.sub(r"`([^`]*)`", r"<c>\1</c>", text)


def documented(f):
    lines = wrapped(xml(f.brief), 104, "/// ")
    lines = ["/// <summary>", *lines, "/// </summary>"]
    about = f.text
    if f.twin:
        about += f"\n\nA span has an end, so the work is done by `{f.twin.name}`: a stream that is damaged or cut off returns 1 here, " \
                 "and nothing behind it is read."
    if about.strip():
        lines += ["/// <remarks>", *wrapped(xml(about.strip()), 104, "/// "), "/// </remarks>"]
    for p in f.parameters:
        size = f" At least {p.stated}." if p.kind == "memory" and not p.single else ""
        text = "The stream." if f.twin and p.name == "stream" else p.text
        lines += wrapped(f'<param name="{p.name}">{xml(text + size)}</param>', 104, "/// ", "/// ")
    results = results_of(f)
    if results:
        lines += wrapped(f"<returns>{xml(' '.join(results))}</returns>", 104, "/// ", "/// ")
    return lines


def functions(api):
    out = [head + "using System;\nusing System.Runtime.InteropServices;\n\nnamespace Tessaro\n{\n"]
    for one in api.callbacks.values():
        convention = "Cdecl" if one["convention"] == "cdecl" else "Winapi"
        arguments = ", ".join(f"{plain[p['type']]} {p['name']}" for p in one["parameters"])
        out.append(f"    /// <summary>{xml(one['brief'])}</summary>\n"
                   f"    [UnmanagedFunctionPointer(CallingConvention.{convention})]\n"
                   f"    public delegate {plain[one['result']]} {one['name']}({arguments});\n\n")
    out.append("    /// <summary>All functions of the library by name. Memory is measured before a call: what is too short raises\n"
               "    /// <see cref=\"ArgumentException\"/>. Results are returned as they are.</summary>\n"
               "    public static unsafe class Functions\n    {\n")
    for f in api.functions:
        out += [f"        {line}".rstrip() + "\n" for line in documented(f) + function(f)] + ["\n"]
    out.append("        // On 32-bit Windows the library removes its arguments itself, as Winapi says; elsewhere there is one convention.\n"
               "        private static class Native\n        {\n            private const string Library = \"tessaro\";\n\n")
    for f in api.functions:
        arguments = ", ".join(map(native, f.parameters))
        out.append("            [DllImport(Library, ExactSpelling = true)]\n"
                   f"            internal static extern {plain[f.result]} {f.name}({arguments});\n\n")
    return "".join(out).rstrip() + "\n        }\n    }\n}\n"


def camel(name):
    name = "".join(word.capitalize() for word in name.split("_"))
    return name if name[0].isalpha() else "_" + name


def constants(api):
    out = [head + "using System;\n\nnamespace Tessaro\n{\n"]
    for e in api.enums:
        out.append(f"    /// <summary>{xml(e['brief'])}</summary>\n" + ("    [Flags]\n" if e["name"] in api.flags else "") +
                   f"    public enum {short_name(e)}\n    {{\n" +
                   "".join(f"        /// <summary>{xml(text)}</summary>\n        {camel(n)} = {v},\n"
                           for n, v, text in short_constants(e)) + "    }\n\n")
    return "".join(out).rstrip() + "\n}\n"


def streams(api):
    rows = list(api.codecs())
    choose = lambda what: "".join(f"                case Codec.{camel(name)}: return {what(encoder, decoder)};\n" for name, encoder, decoder in rows)
    return head + "using System;\n\nnamespace Tessaro\n{\n    /// <summary>Lossless stream formats.</summary>\n    public enum Codec\n    {\n" + \
        "".join(f"        /// <summary>{xml(encoder.brief)}</summary>\n        {camel(name)},\n" for name, encoder, _ in rows) + \
        "    }\n\n    public static partial class Streams\n    {\n" \
        "        private static int Encode(Codec codec, ReadOnlySpan<byte> source, Span<byte> room, ref uint written)\n        {\n" \
        "            switch (codec)\n            {\n" + \
        choose(lambda encoder, _: f"Functions.{encoder.name}(source, room, (uint)source.Length, ref written)") + \
        "                default: throw new ArgumentOutOfRangeException(nameof(codec));\n            }\n        }\n\n" \
        "        private static int Decode(Codec codec, ReadOnlySpan<byte> stream, Span<byte> made)\n        {\n" \
        "            switch (codec)\n            {\n" + \
        choose(lambda _, decoder: f"Functions.{decoder}(stream, made, (uint)stream.Length, (uint)made.Length)") + \
        "                default: throw new ArgumentOutOfRangeException(nameof(codec));\n            }\n        }\n    }\n}\n"


def calls(api):
    def argument(i, p):
        if p.kind in ("memory", "address"):
            span = f"a[{i}].Bytes" if element(p) == "byte" else f"MemoryMarshal.Cast<byte, {element(p)}>(a[{i}].Bytes)"
            return f"ref {span}[0]" if p.single else span
        if p.kind in ("image", "sound"):
            return f"a[{i}].{p.kind.capitalize()}"
        return f"a[{i}].Real" if p.type == "double" else f"(float)a[{i}].Real" if p.type == "float" else \
            f"({plain[p.type]})a[{i}].Number"

    rows = []
    for f in api.functions:
        if not any(p.kind in ("function", "handle") for p in f.parameters):
            call = f"Functions.{f.name}({', '.join(argument(i, p) for i, p in enumerate(f.parameters))});"
            rows.append(f'            case "{f.name}": ' + (f"{call} return 0;\n" if f.result == "void" else f"return {call}\n"))
    return "using System;\nusing System.Runtime.InteropServices;\nusing Tessaro;\n\nstatic class Calls\n{\n" \
           "    public static long Make(string name, Argument[] a)\n    {\n        switch (name)\n        {\n" + "".join(rows) + \
           "            default: throw new MissingMethodException(name);\n        }\n    }\n}\n"


def main():
    api = Description()
    if "--calls" in sys.argv:
        Path(sys.argv[-1]).write_text(calls(api), encoding="utf-8")
    else:
        finish({here / "Functions.cs": functions(api), here / "Constants.cs": constants(api),
                here / "Codecs.cs": streams(api)}, __file__)


if __name__ == "__main__":
    main()
