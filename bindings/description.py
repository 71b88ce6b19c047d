"""What the generators of the bindings have in common: the description, and its sizes in another language's words."""
import ast
import json
import re
import sys
import textwrap
from pathlib import Path

root = Path(__file__).resolve().parent.parent
unit_bytes = {"bytes": 1, "halfwords": 2, "words": 4, "floats": 4, "doubles": 8}


class Parameter:
    """One of a function's. `size` and `begin` are bytes, as expressions; names in them are those of parameters."""

    def __init__(self, data):
        self.name, self.type, self.kind, self.text = data["name"], data["type"], data["kind"], data["text"]
        self.written = "out" in data.get("direction", "")
        self.read = "in" in data.get("direction", "in").split(",")
        self.unit, self.enum, self.flags = data.get("unit"), data.get("enum"), data.get("flags", False)
        self.trusted, self.range = data.get("trusted", False), data.get("range")
        self.size = self.begin = None
        if "size" in data:
            self.size = in_bytes(data["size"], data["unit"])
            self.stated = " ".join(f"{data['size']} {data['unit']}".split())
        if "at" in data:
            self.begin = in_bytes(data["at"]["offset"], data["at"]["unit"])

    @property
    def real(self):
        return self.type in ("float", "double")

    @property
    def single(self):
        """One number that is read or written through a pointer."""
        return self.kind == "memory" and self.size and self.size.isdigit() and int(self.size) == width_of(self.type)


class Function:
    def __init__(self, data, functions):
        self.name, self.group, self.brief, self.text = data["name"], data["group"], data["brief"], data["text"]
        self.result, self.returns, self.since = data["returns"]["type"], data["returns"], data["since"]
        self.alias_of, self.aliases, self.see = data.get("alias_of"), data.get("aliases", []), data["see"]
        self.parameters = [Parameter(one) for one in data["parameters"]]
        # Numbers by which memory is measured, and records.
        self.measures = {name for p in self.parameters for e in (p.size, p.begin) if e
                         for name in re.findall(r"[a-z_]\w*(?=\W*)", re.sub(r"\.\w+", "", e))}
        # A decoder that trusts its stream has a twin that is told the stream's size.
        self.twin = None
        if data["name"] + "Safe" in functions:
            self.twin = Function(functions[data["name"] + "Safe"], functions)

    def named(self, name):
        return next(p for p in self.parameters if p.name == name)

    @property
    def word(self):
        """The bytes of what lies at an address and an index."""
        return {"uint16_t": 2, "uint32_t": 4}[self.result]

    def asks_range(self, p):
        """A number that is believed although no buffer's size shows it has to keep its range."""
        return p.kind == "number" and p.trusted and p.range and p.name not in self.measures


class Description:
    def __init__(self):
        data = json.loads((root / "api" / "tessaro.json").read_text(encoding="utf-8"))
        by_name = {one["name"]: one for one in data["functions"]}
        self.version, self.enums = data["version"], data["enums"]
        self.functions = [Function(one, by_name) for one in data["functions"]]
        self.groups = {one["id"]: one for one in data["groups"]}
        self.records = [one for one in data["types"] if one["kind"] == "record"]
        self.callbacks = {one["name"]: one for one in data["types"] if one["kind"] == "function"}
        self.flags = {p.enum for f in self.functions for p in f.parameters if p.flags}

    def codecs(self):
        """(name, encoder, decoder) of each stream format; the decoder is the one that is told both sizes."""
        names = {f.name for f in self.functions}
        for f in self.functions:
            match = re.fullmatch(r"(\w+?)Encoder(Ex)?", f.name)
            if f.group == "streams" and match:
                decoder = f"{match[1]}Decoder{match[2] or ''}"
                yield match[1] + ("_ex" if match[2] else ""), f, decoder + "Safe" * (decoder + "Safe" in names)


def width_of(c_type):
    """Bytes of what a pointer points to, or of a number."""
    base = c_type.replace("const ", "").rstrip("*").strip()
    return {"int32_t": 4, "uint32_t": 4, "float": 4, "uint16_t": 2, "double": 8}.get(base, 1)


def in_bytes(expression, unit):
    expression, size = " ".join(expression.split()), unit_bytes[unit]
    if size == 1:
        return expression
    return str(int(expression) * size) if expression.isdigit() else f"{size} * ({expression})"


def spelled(expression, call, field, name=str, number=str, div=None):
    """An expression of the description in another language: of calls, fields and names the caller tells the spelling."""

    def walk(node):
        if isinstance(node, ast.BinOp):
            left, right = walk(node.left), walk(node.right)
            if isinstance(node.op, ast.Div) and div:
                return div(left, right)
            sign = {ast.Add: "+", ast.Sub: "-", ast.Mult: "*", ast.Div: "/"}[type(node.op)]
            weight = lambda one: (2 if isinstance(one.op, (ast.Mult, ast.Div)) else 1) if isinstance(one, ast.BinOp) else 3
            if weight(node.left) < weight(node):
                left = f"({left})"
            if weight(node.right) < weight(node) or (weight(node.right) == weight(node) and sign != "+"):
                right = f"({right})"
            return f"{left} {sign} {right}"
        if isinstance(node, ast.UnaryOp):
            return f"-{walk(node.operand)}"
        if isinstance(node, ast.Call):
            return call(node.func.id, [walk(one) for one in node.args])
        if isinstance(node, ast.Attribute):
            return field(node.value.id, node.attr)
        return name(node.id) if isinstance(node, ast.Name) else number(node.value)

    return walk(ast.parse(expression, mode="eval").body)


def short_name(enum):
    return enum["name"].removeprefix("Tessaro")


def short_constants(enum):
    """(name, value, text) without what all the names of an enumeration begin with, as long as names are left."""
    words = [one["name"].split("_") for one in enum["constants"]]
    shared = 1
    while all(len(w) > shared + 1 and w[:shared + 1] == words[0][:shared + 1] and w[shared + 1][0].isalpha() for w in words):
        shared += 1
    return [("_".join(w[shared:]), one["value"], one["text"]) for w, one in zip(words, enum["constants"])]


def wrapped(text, width, first="", rest=None):
    """Markdown in lines; those of lists and tables stay."""
    lines = []
    for line in text.splitlines() or [""]:
        lines += textwrap.wrap(line, width, break_long_words=False, break_on_hyphens=False) or [""]
    rest = first if rest is None else rest
    return [((rest if i else first) + line).rstrip() for i, line in enumerate(lines)]


def results_of(function):
    """What is said of the result, in lines."""
    lines = []
    if "value" in function.returns:
        lines.append(function.returns["value"]["text"])
    lines += [f"{case['value']}: {case['text']}" for case in function.returns.get("cases", ())]
    return lines


def finish(files, generator):
    """Writes files, or with --check fails when one is not what the description says."""
    stale = []
    for path, text in files.items():
        if "--check" not in sys.argv[1:]:
            path.write_text(text, encoding="utf-8", newline="\n")
        elif not path.exists() or path.read_text(encoding="utf-8") != text:
            stale.append(path.name)
    if stale:
        where = Path(generator).resolve().parent.relative_to(root)
        sys.exit(f"{where}: {', '.join(stale)}: not what the description says; run {where}/generate.py")
