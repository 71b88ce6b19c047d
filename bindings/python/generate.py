#!/usr/bin/env python3
"""Makes the generated modules of the package from api/tessaro.json.

    generate.py            write them
    generate.py --check    fail if they are not what the description says
"""

import ast
import json
import re
import sys
import textwrap
from pathlib import Path

here = Path(__file__).resolve().parent
package = here / "tessaro"
description = here.parents[1] / "api" / "tessaro.json"
head = '"""{}\n\nMade by generate.py from the description of the library; changes here are lost.\n"""\n'

unit_bytes = {"bytes": 1, "halfwords": 2, "words": 4, "floats": 4, "doubles": 8}
c_types = {
    "int32_t": "_i32", "uint32_t": "_u32", "uint16_t": "_u16", "intptr_t": "_word", "uintptr_t": "_uword",
    "float": "_f32", "double": "_f64", "void": "None", "void*": "_pointer",
}  # fmt: skip
converters = {"int32_t": "signed", "uint32_t": "unsigned", "intptr_t": "word"}


def names_in(expression):
    return {
        node.id
        for node in ast.walk(ast.parse(expression.replace("\n", " "), mode="eval"))
        if isinstance(node, ast.Name)
    }


def python_of(expression):
    """An expression of the description in Python."""
    builtins = {
        "min": "_min",
        "max": "_max",
        "abs": "_abs",
        "ceil_div": "_a.ceil_div",
        "bytes_of": "_a.bytes_of",
    }

    def walk(node):
        if isinstance(node, ast.BinOp):
            left, right = walk(node.left), walk(node.right)
            if isinstance(node.op, ast.Div):
                return f"_a.div({left}, {right})"
            sign = {ast.Add: "+", ast.Sub: "-", ast.Mult: "*"}[type(node.op)]
            if sign == "*":
                left, right = (f"({x})" if re.search(r" [+-] ", strip_calls(x)) else x for x in (left, right))
            elif sign == "-" and re.search(r" [+-] ", strip_calls(right)):
                right = f"({right})"
            return f"{left} {sign} {right}"
        if isinstance(node, ast.UnaryOp) and isinstance(node.op, ast.USub):
            return f"-({walk(node.operand)})"
        if isinstance(node, ast.Call):
            return f"{builtins[node.func.id]}({', '.join(map(walk, node.args))})"
        if isinstance(node, ast.Attribute):
            return f"{node.value.id}_.{node.attr}"
        if isinstance(node, ast.Name):
            return node.id
        return repr(int(node.value))

    def strip_calls(text):
        while "(" in text:
            text = re.sub(r"\([^()]*\)", "", text)
        return text

    return walk(ast.parse(" ".join(expression.split()), mode="eval").body)


def in_bytes(expression, unit):
    size = unit_bytes[unit]
    if size == 1:
        return python_of(expression)
    if expression.isdigit():
        return str(int(expression) * size)
    return python_of(f"{size} * ({expression})")


class Function:
    def __init__(self, data, api):
        self.data, self.api = data, api
        self.name = data["name"]
        self.parameters = data["parameters"]
        # A decoder that trusts its stream has a twin that is told the stream's size.
        self.twin = api.functions.get(self.name + "Safe")
        self.sizes = (
            set().union(*(names_in(p["size"]) for p in self.parameters if "size" in p))
            if self.parameters
            else set()
        )

    def c_type(self, type_name):
        if type_name.endswith("*"):
            return "_pointer"
        return c_types.get(type_name) or f"_{type_name}"

    def hint(self, p):
        kind = p["kind"]
        if kind == "number":
            return "float" if p["type"] in ("float", "double") else "int"
        writable = "out" in p.get("direction", "")
        if p["name"] == "stream" and self.twin:
            return "Buffer"
        return {
            "image": "WritableImage" if writable else "AnyImage",
            "sound": "AnySound",
            "memory": "WritableBuffer" if writable else "Buffer",
            "address": "Union[int, WritableBuffer]" if writable else "Union[int, Buffer]",
            "function": "Union[int, Callable[..., Any]]",
            "handle": "Optional[int]",
        }[kind]

    def signature(self):
        result = {"void": "None"}.get(self.data["returns"]["type"], "int")
        arguments = ", ".join(f"{p['name']}: {self.hint(p)}" for p in self.parameters)
        line = f"def {self.name}({arguments}) -> {result}:"
        if len(line) > 110:
            line = f"def {self.name}(\n" + textwrap.fill(
                arguments, 106, initial_indent="    ", subsequent_indent="    ", break_long_words=False
            ) + f"\n) -> {result}:"  # fmt: skip
        return line

    def meaning(self, p):
        """What stands behind a parameter's name."""
        kind, written = p["kind"], p.get("direction", "in")
        role = {"in": "", "out": ", written", "in,out": ", changed"}[written]
        if kind in ("image", "sound"):
            least = f", {p['size']} {p['unit']} of samples" if "size" in p else ""
            return kind + least + role
        if kind == "memory":
            return "buffer of " + " ".join(f"{p['size']} {p['unit']}".split()) + role
        if kind == "address":
            return ("buffer" if p["name"] == "stream" and self.twin else "address or buffer") + role
        if kind == "function":
            return "callable or address"
        if kind == "handle":
            return "handle"
        if "enum" in p:
            return ("flags of " if p.get("flags") else "") + class_name(p["enum"])
        told = ["float" if p["type"] in ("float", "double") else "int"]
        if p.get("unit"):
            told.append(p["unit"])
        if "range" in p:
            low, high = (
                ("" if v is None else f"{v:g}" if isinstance(v, float) else str(v))
                for v in (p["range"]["low"], p["range"]["high"])
            )
            told.append(f"{low}..{high}")
        return ", ".join(told)

    def docstring(self):
        d = self.data
        lines = [d["brief"]]
        if d["text"]:
            lines += ["", *d["text"].splitlines()]
        if self.twin:
            lines += [
                "",
                f"A buffer has an end, so the work is done by `{self.name}Safe`: a stream that is damaged or cut off returns",
                "1 here, and nothing behind it is read.",
            ]
        if any("at" in p for p in self.parameters):
            lines += [
                "",
                "Each buffer is the whole block from its lowest address on: where rows go upwards, its last row comes first.",
            ]
        if self.parameters:
            lines += ["", "Parameters", "----------"]
            for p in self.parameters:
                lines.append(f"{p['name']} : {self.meaning(p)}")
                text = p["text"]
                if p["name"] == "stream" and self.twin:
                    text = "The stream."
                elif p["kind"] == "address":
                    text += " In a buffer the word has to lie inside it; at an address nothing is checked."
                lines += textwrap.wrap(text, 104, initial_indent="    ", subsequent_indent="    ")
        returns = d["returns"]
        if returns["type"] != "void":
            lines += ["", "Returns", "-------", "int"]
            if "value" in returns:
                lines += textwrap.wrap(
                    returns["value"]["text"], 104, initial_indent="    ", subsequent_indent="    "
                )
            for case in returns.get("cases", ()):
                lines += textwrap.wrap(
                    f"{case['value']}: {case['text']}", 104, initial_indent="    ", subsequent_indent="      "
                )
        if d["see"]:
            lines += ["", "See Also", "--------", ", ".join(d["see"])]
        if d.get("alias_of"):
            lines += ["", f"A second name of `{d['alias_of']}`."]
        text = "\n".join(("    " + line).rstrip() for line in lines).strip()
        text = text.replace("\\", "\\\\")
        return '    """' + text + ('"""' if "\n" not in text else '\n    """')

    def arguments(self):
        """Statements that check, and what is passed for each parameter."""
        checks, passed = [], {}
        numbers = [p for p in self.parameters if p["kind"] == "number"]
        others = [p for p in self.parameters if p["kind"] != "number"]
        for p in numbers:
            name = p["name"]
            if p["type"] in ("float", "double"):
                passed[name] = f"float({name})"
                continue
            convert = f'_a.{converters[p["type"]]}("{name}", {name})'
            believed = p.get("trusted") and name not in self.sizes
            if name in self.sizes or believed or any(o["kind"] == "address" for o in others):
                checks.append(f"{name} = {convert}")
                passed[name] = name
                if believed and "range" in p:
                    low, high = p["range"]["low"], p["range"]["high"]
                    checks.append(f'_a.within("{name}", {name}, {low!r}, {high!r})')
            else:
                passed[name] = convert
        measured = {
            n.split(".")[0]
            for p in others
            for e in (p.get("size"), p.get("at", {}).get("offset"))
            if e
            for n in re.findall(r"\w+\.\w+", e)
        }
        for p in sorted(others, key=lambda p: p["name"] not in measured):
            name, written = p["name"], "out" in p.get("direction", "")
            if p["kind"] == "image":
                call = f'_a.image("{name}", {name}, {written})'
                if p["type"] == "void*":
                    passed[name] = f'_a.image_or_device("{name}", {name}, {written})'
                elif name in measured:
                    checks.append(f"{name}_ = {call}")
                    passed[name] = f"{name}_.pointer"
                else:
                    passed[name] = call + ".pointer"
            elif p["kind"] == "sound":
                least = f", {in_bytes(p['size'], p['unit'])}" if "size" in p else ""
                passed[name] = f'_a.sound("{name}", {name}, {written}{least}).pointer'
            elif p["kind"] == "memory":
                size = in_bytes(p["size"], p["unit"])
                at = f", {in_bytes(p['at']['offset'], p['at']['unit'])}" if "at" in p else ""
                if (name, p["unit"]) == ("text", "bytes") and not written:
                    passed[name] = f'_a.text("{name}", {name}, {size})'
                else:
                    passed[name] = f'_a.memory("{name}", {name}, {size}, {written}{at})'
            elif p["kind"] == "address":
                width = {"uint16_t": 2, "uint32_t": 4}[self.data["returns"]["type"]]
                passed[name] = f'_a.address("{name}", {name}, index, {width}, {written})'
            elif p["kind"] == "function":
                lasting = ", True" if p["type"] == "TessaroHook" else ""
                passed[name] = f'_a.function("{name}", {name}, _{p["type"]}{lasting})'
            else:
                passed[name] = name
        return checks, passed

    def call(self, target, passed):
        line = f"    return {target}({', '.join(passed)})"
        if len(line) > 110:
            line = f"    return {target}(\n" + "".join(f"        {one},\n" for one in passed) + "    )"
        return line

    def body(self):
        if self.twin:
            # What the twin is given beside the stream is what this function is given too.
            twin = [p["name"] for p in self.twin["parameters"]]
            stream, destination, size, count = twin
            return "\n".join([
                f'    {count} = _a.unsigned("{count}", {count})',
                f'    view = _a.view_of("{stream}", {stream})',
                f'    {destination} = _a.memory("{destination}", {destination}, {count}, True)',
                f"    if not {count}:",
                f"        return _{self.name}(_a.scratch, {destination}, 0)",
                f"    {size} = _min(view.nbytes, 0xFFFFFFFF)",
                f'    return _{self.name}Safe(_a.memory("{stream}", view, {size}, False), {destination}, {size}, {count})',
            ])  # fmt: skip
        checks, passed = self.arguments()
        lines = ["    " + check for check in checks]
        lines.append(self.call("_" + self.name, [passed[p["name"]] for p in self.parameters]))
        return "\n".join(lines)

    def binding(self):
        types = [self.c_type(self.data["returns"]["type"])] + [
            self.c_type(p["type"]) for p in self.parameters
        ]
        line = f'_{self.name} = _function("{self.name}", {", ".join(types)})'
        if len(line) > 110:
            line = f'_{self.name} = _function(\n' + textwrap.fill(
                f'"{self.name}", ' + ", ".join(types), 106, initial_indent="    ", subsequent_indent="    ") + "\n)"  # fmt: skip
        return line

    def text(self):
        return f"{self.signature()}\n{self.docstring()}\n{self.body()}\n"


class Api:
    def __init__(self, data):
        self.data = data
        self.functions = {f["name"]: f for f in data["functions"]}

    def modules(self):
        made = [Function(f, self) for f in self.data["functions"]]
        yield "functions.py", self.functions_module(made)
        yield "functions.pyi", self.stubs(made)
        yield "constants.py", self.constants()
        yield "_version.py", head.format("The version of the library.") + f'\n__version__ = "{self.data["version"]}"\n'

    def functions_module(self, made):
        out = [
            head.format(
                "All functions of the library by name.\n\nArguments are checked, so that no call reads or writes outside the memory it is given: a buffer that is too\nshort, or read-only where it is written, raises ValueError. Results are returned as they are: what a status\nmeans, its function tells. Images are `tessaro.Image`, or buffers that begin with an image record; sounds are\n`tessaro.Sound`, or tuples of format code, frames and memory; buffers are whatever has the buffer protocol, an\nimage and a sound standing for their pixels and samples."
            )
        ]
        out.append(
            "from __future__ import annotations\n\nimport builtins as _builtins\nimport ctypes as _c\n"
        )
        out.append(
            "from . import _arguments as _a\nfrom ._library import callback as _callback\nfrom ._library import function as _function\n"
        )
        out.append(
            "_i32, _u32, _u16, _f32, _f64 = _c.c_int32, _c.c_uint32, _c.c_uint16, _c.c_float, _c.c_double\n"
            "_word, _uword, _pointer = _c.c_ssize_t, _c.c_size_t, _c.c_void_p"
        )
        out.append("_min, _max, _abs = _builtins.min, _builtins.max, _builtins.abs\n")
        for t in self.data["types"]:
            if t["kind"] == "function":
                types = ", ".join(c_types[x] for x in [t["result"]] + [p["type"] for p in t["parameters"]])
                out.append(f'_{t["name"]} = _callback("{t["convention"]}", {types})')
        out.append("\n")
        titles = {g["id"]: g for g in self.data["groups"]}
        group = None
        for function in made:
            if function.data["group"] != group:
                group = function.data["group"]
                out.append(f"\n# {titles[group]['title']}.\n\n")
            out.append(function.binding() + "\n\n\n" + function.text() + "\n")
        out.append("\n__all__ = [\n" + "".join(f'    "{f.name}",\n' for f in made) + "]")
        return "\n".join(out) + "\n"

    def stubs(self, made):
        out = [head.format("Types of all functions of the library.")]
        out.append(
            "from typing import Any, Callable, Optional, Tuple, Union\n\n"
            "from _typeshed import ReadableBuffer as _Readable\n"
            "from _typeshed import WriteableBuffer as _Writable\n\n"
            "from .image import Image\nfrom .sound import Sound\n\n"
            "Buffer = Union[Image, Sound, _Readable]\nWritableBuffer = Union[Image, Sound, _Writable]\n"
            "AnyImage = Union[Image, _Readable]\nWritableImage = Union[Image, _Writable]\n"
            "AnySound = Union[Sound, Tuple[int, int, _Readable]]\n"
        )
        out += [f.signature() + " ..." for f in made]
        return "\n".join(out) + "\n"

    def constants(self):
        flags = {p["enum"] for f in self.data["functions"] for p in f["parameters"] if p.get("flags")}
        out = [head.format("The named constants of the library."), "from enum import IntEnum, IntFlag\n\n"]
        for enum in self.data["enums"]:
            out.append(
                f"class {class_name(enum['name'])}({'IntFlag' if enum['name'] in flags else 'IntEnum'}):"
            )
            doc = "\n\n".join(filter(None, (enum["brief"], enum["text"])))
            doc = textwrap.indent(doc, "    ").strip()
            out.append(f'    """{doc}' + ('\n    """\n' if "\n" in doc else '"""\n'))
            prefix = common_prefix([c["name"] for c in enum["constants"]])
            for c in enum["constants"]:
                out += textwrap.wrap(c["text"], 104, initial_indent="    #: ", subsequent_indent="    #: ")
                out.append(f"    {c['name'][len(prefix):]} = {c['value']}")
            out.append("\n")
        out.append(
            "__all__ = [\n" + "".join(f'    "{class_name(e["name"])}",\n' for e in self.data["enums"]) + "]"
        )
        return "\n".join(out) + "\n"


def class_name(enum):
    return enum[len("Tessaro") :] if enum.startswith("Tessaro") else enum


def common_prefix(names):
    """What all names begin with, as whole words, as long as what is left are names."""
    words = [n.split("_") for n in names]
    best = "TESSARO_"
    for k in range(1, min(map(len, words))):
        prefix = "_".join(words[0][:k]) + "_"
        if all(n.startswith(prefix) and n[len(prefix) :].isidentifier() for n in names):
            best = prefix
    return best


def main():
    stale = []
    for name, text in Api(json.loads(description.read_text())).modules():
        path = package / name
        if "--check" not in sys.argv[1:]:
            path.write_text(text)
        elif not path.exists() or path.read_text() != text:
            stale.append(name)
    if stale:
        sys.exit(
            f"bindings/python: {', '.join(stale)}: not what the description says; run bindings/python/generate.py"
        )


if __name__ == "__main__":
    main()
