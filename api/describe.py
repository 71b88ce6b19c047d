#!/usr/bin/env python3
"""Makes api/tessaro.json from the headers in include/tessaro/, in the form that api/README.md states.

    api/describe.py               write api/tessaro.json
    api/describe.py --check       fail if api/tessaro.json is not what the headers say
    api/describe.py --header X.h  only look for mistakes in one header, and write nothing

Types and names come from Clang, texts from the comments themselves, whose line breaks Clang drops. What a header lacks
is listed as file:line: text, and the exit status is 1.
"""
import argparse
import ast
import json
import os
import re
import shutil
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
INCLUDE = os.path.join(ROOT, "include")
EXPORTS = os.path.join(ROOT, "src", "exports", "exports.txt")
JSON = os.path.join(ROOT, "api", "tessaro.json")
SCHEMA = os.path.join(ROOT, "api", "tessaro.schema.json")

FIRST_VERSION = "0.1"  # what has no @since is there from the beginning
MEMORY_UNITS = {"bytes", "halfwords", "words", "floats", "doubles"}
NUMBER_UNITS = set("pixels rows frames samples bytes words bits doubles colour alpha level factor opacity flag radians "
                   "degrees hertz milliseconds count index value".split())
CALLS = {"min", "max", "abs", "bytes_of", "ceil_div"}
FIELDS = {"ImageRecord": {"width", "height", "pitch"}, "WaveBuffer": {"format", "count"}}
COMMANDS = {"file", "brief", "defgroup", "param", "retval", "return", "since", "see", "{", "}"}


class Comment:
    """One documentation comment: its text, and its @ commands with the lines they stand on."""

    def __init__(self, header, start, end, raw):
        self.start, self.end = start, end
        self.trailing = raw.startswith("/**<")
        self.line = header.text.count("\n", 0, start) + 1
        self.text, self.items = [], []  # items: [command, argument text, line]
        item = None
        for number, line in enumerate(raw[4 if self.trailing else 3:-2].split("\n")):
            line = re.sub(r"^\s*\* ?", "", line) if number else line.strip()
            command = re.match(r"\s*@([a-z]+|[{}])(.*)", line)
            if command:
                item = [command[1], command[2].strip(), self.line + number]
                self.items.append(item)
                if command[1] not in COMMANDS:
                    header.problem(self.line + number, f"unknown command @{command[1]}")
            elif item and line.strip():  # a command lasts until the next one or an empty line
                item[1] += ("\n" if re.match(r"\s*(- |\|)", line) else " " if item[1] else "") + line.strip()
            else:
                item = None
                self.text.append(line.rstrip())
        self.text = "\n".join(self.text).strip()
        if not special(self):  # there @brief is only another way to begin
            self.text = f"{self.argument('brief')}\n\n{self.text}".strip()
        prose = re.sub(r"`[^`]*`", "", "\n".join([self.text] + [item[1] for item in self.items]))
        if re.search(r"[<>]", prose):
            header.problem(self.line, "< and > have to stand in backticks")

    def has(self, command):
        return any(item[0] == command for item in self.items)

    def argument(self, command):
        return next((item[1] for item in self.items if item[0] == command), "")


class Header:
    """A header's text and its comments in order."""

    def __init__(self, name, problems):
        self.name, self.problems = name, problems
        with open(os.path.join(INCLUDE, "tessaro", name), encoding="utf-8") as file:
            self.text = file.read()
        self.comments = [Comment(self, match.start(), match.end(), match[0])
                         for match in re.finditer(r"/\*\*(?!/).*?\*/", self.text, re.S)]
        # Without comments, to see what lies between one and a name.
        self.code = re.sub(r"/\*.*?\*/", lambda match: re.sub(r"[^\n]", " ", match[0]), self.text, flags=re.S)
        for number, line in enumerate(self.text.split("\n"), 1):
            if not line.isascii():  # Clang counts bytes
                self.problem(number, "a character that is not ASCII")
            if len(line) > 110 and not line.startswith(" * |"):
                self.problem(number, "over 110 columns")
        self.file = next((comment for comment in self.comments if comment.has("file")), None)
        if self.file is None:
            self.problem(1, "no @file comment")
        self.groups = list(self.read_groups())

    def read_groups(self):
        """The comment of each group, and the offset of its end."""
        opened = None
        for comment in self.comments:
            if comment.has("{"):
                if opened:
                    self.problem(comment.line, "a group inside another")
                opened = comment
            elif comment.has("}"):
                if opened:
                    yield opened, comment.start
                else:
                    self.problem(comment.line, "the end of no group")
                opened = None
        if opened:
            self.problem(opened.line, "the group has no end")

    def problem(self, line, text):
        self.problems.append((f"include/tessaro/{self.name}:{line}", text))

    def line(self, offset):
        return self.text.count("\n", 0, offset) + 1

    def comment_of(self, offset, member=False):
        """The comment of the name at an offset: right before its declaration, or behind it as /**<."""
        stop = "[;{},]" if member else "[;{}]"
        for comment in self.comments:
            if comment.trailing and member and comment.start > offset:
                if not re.search(r"[{}\n]", self.code[offset:comment.start]):
                    return comment
        before = [c for c in self.comments if c.end <= offset and not c.trailing]
        if before and not special(before[-1]) and not re.search(stop, self.code[before[-1].end:offset]):
            return before[-1]
        return None

    def group_of(self, offset):
        """The comment of the group that is open at an offset."""
        return next((group for group, end in self.groups if group.end <= offset < end), None)


def special(comment):
    return comment.has("file") or comment.has("defgroup") or comment.has("}")


def sentence(text):
    """Splits text into its first sentence and the rest."""
    code = [match.span() for match in re.finditer(r"`[^`]*`", text)]
    for match in re.finditer(r"[.!?](?=\s|$)|\n\s*\n", text):
        if not any(start < match.start() < end for start, end in code):
            return " ".join(text[:match.end()].split()), text[match.end():].strip()
    return " ".join(text.split()), ""


class Bad(Exception):
    """What a bracket or a command says that cannot be."""


def expression(text, names):
    """Checks an expression over parameters; returns those that it uses."""
    source = text.strip()
    try:
        tree = ast.parse(source, mode="eval").body
    except SyntaxError:
        raise Bad(f"'{source}' is no expression")
    used = set()

    def visit(node):
        operators = (ast.Add, ast.Sub, ast.Mult, ast.Div, ast.Mod, ast.LShift, ast.RShift, ast.BitAnd, ast.BitOr,
                     ast.BitXor)
        if isinstance(node, ast.BinOp) and isinstance(node.op, operators):
            visit(node.left), visit(node.right)
        elif isinstance(node, ast.UnaryOp) and isinstance(node.op, (ast.USub, ast.Invert)):
            visit(node.operand)
        elif isinstance(node, ast.Constant) and isinstance(node.value, int):
            pass
        elif isinstance(node, ast.Name) and node.id in names:
            if names[node.id].endswith("*"):
                raise Bad(f"'{node.id}' is a pointer")
            used.add(node.id)
        elif isinstance(node, ast.Attribute) and isinstance(node.value, ast.Name) and node.value.id in names:
            record = names[node.value.id].replace("const ", "").rstrip("*")
            if node.attr not in FIELDS.get(record, ()):
                raise Bad(f"'{ast.unparse(node)}' is no field of an image or a sound")
        elif isinstance(node, ast.Call) and isinstance(node.func, ast.Name) and node.func.id in CALLS:
            for argument in node.args:
                visit(argument)
        else:
            raise Bad(f"'{ast.unparse(node)}' in '{source}' is neither a parameter nor an operation that is known")

    visit(tree)
    return used


def measure(text, names):
    """EXPR UNIT -> {size, unit}, and the parameters in it."""
    size, _, unit = text.strip().rpartition(" ")
    if unit not in MEMORY_UNITS or not size:
        raise Bad(f"'{text.strip()}' has no size with one of the units {', '.join(sorted(MEMORY_UNITS))}")
    return {"size": size.strip(), "unit": unit}, expression(size, names)


def bound(text, names):
    """An end of a range: a number, an expression, or nothing where the range is open."""
    text = text.strip()
    if text == "":
        return None
    try:
        return int(text, 0)
    except ValueError:
        pass
    try:
        return float(text)
    except ValueError:
        expression(text, names)
        return text


def number(text, names, enums):
    """The bracket of a number or of a result."""
    found = {}
    for part in re.split(r"\s*,\s*(?![^(]*\))", text):
        choice = re.fullmatch(r"(one|flags) of (\w+)", part)
        if choice:
            if choice[2] not in enums:
                raise Bad(f"there is no enumeration {choice[2]}")
            found["enum"], found["flags"] = choice[2], choice[1] == "flags"
        elif ".." in part:
            low, high = part.split("..", 1)
            found["range"] = {"low": bound(low, names), "high": bound(high, names)}
        elif part == "trusted":
            found["trusted"] = True
        elif part in NUMBER_UNITS:
            found["unit"] = part
        else:
            raise Bad(f"'{part}' is no unit, range, enumeration or 'trusted'")
    if not found.keys() & {"unit", "range", "enum"}:
        raise Bad("neither a unit nor a range nor an enumeration")
    return found


def pointer(text, c_type, names, callbacks):
    """The bracket of a pointer, and the parameters that its size believes."""
    if text.startswith("sound,"):  # its data is larger than its record says
        found, used = measure(text.removeprefix("sound,"), names)
        return {**pointer("sound", c_type, names, callbacks)[0], **found}, used
    record = c_type.replace("const ", "").rstrip("*").strip()
    wanted = {"ImageRecord": "image", "WaveBuffer": "sound"}.get(record)
    if record in callbacks:
        wanted = "function"
    if wanted or text in ("image", "sound", "function"):
        if text != wanted and c_type != "void*":
            raise Bad(f"[{text}] for a {c_type}")
        return {"kind": text}, set()
    if text in ("address", "handle"):
        return {"kind": text}, set()
    size, _, offset = text.partition(" at ")
    found, used = measure(size, names)
    if offset:
        place, _ = measure(offset, names)
        found["at"] = {"offset": place["size"], "unit": place["unit"]}
    return {"kind": "memory", **found}, used


class Entry:
    """A @param, @return or @retval as written: direction, bracket, text, and where."""

    def __init__(self, header, item):
        match = re.match(r"(\[(?:in|out|in,out)\])?\s*(.*)", item[1], re.S)
        self.header, self.line = header, item[2]
        self.direction = (match[1] or "").strip("[]")
        self.names = []
        rest = match[2]
        if item[0] == "param":
            names = re.match(r"(\w+(?:\s*,\s*\w+)*)\s*(.*)", rest, re.S)
            self.names, rest = (re.split(r"\s*,\s*", names[1]), names[2]) if names else ([], rest)
        elif item[0] == "retval":
            self.value, _, rest = rest.partition(" ")
        bracket = re.match(r"\[([^\]]*)\]\s*(.*)", rest.strip(), re.S)
        self.bracket, self.text = (" ".join(bracket[1].split()), bracket[2]) if bracket else ("", rest.strip())
        self.used = False


class Reader:
    def __init__(self, clang, problems):
        self.headers = {}
        self.enums, self.types, self.callbacks, self.functions, self.entries = {}, [], {}, [], {}
        tree = self.parse(clang)
        for name in ["tessaro.h"] + sorted(os.listdir(os.path.join(INCLUDE, "tessaro"))):
            if not name.endswith(".h"):  # what is made from the description
                continue
            if name not in self.headers:
                self.headers[name] = Header(name, problems)
        self.nodes = []
        for node in tree["inner"]:
            place = node.get("loc", {})
            place = place.get("expansionLoc", place)
            name = os.path.relpath(place.get("file", "/"), "include/tessaro")
            if name in self.headers:
                self.nodes.append((self.headers[name], place["offset"], node))

    @staticmethod
    def parse(clang):
        """Clang's tree, with the file of every place filled in: Clang names it only where it changes."""
        command = [clang, "-fsyntax-only", "-ffreestanding", "-x", "c", "-std=c11", "-Iinclude", "-Wdocumentation",
                   "-Werror", "-Xclang", "-ast-dump=json", "include/tessaro/tessaro.h"]
        done = subprocess.run(command, cwd=ROOT, stdout=subprocess.PIPE, check=False)
        if done.returncode:
            sys.exit(done.returncode)
        last = {"file": "/"}

        def fill(pairs):
            found = dict(pairs)
            if "offset" in found:
                last["file"] = found.setdefault("file", last["file"])
            return found

        return json.loads(done.stdout, object_pairs_hook=fill)

    def text_of(self, header, offset, what, member=False):
        comment = header.comment_of(offset, member)
        if comment is None or not comment.text:
            header.problem(header.line(offset), f"{what} has no description")
            return ""
        return comment.text

    def read_types(self):
        for header, offset, node in self.nodes:
            kind = node["kind"]
            if kind == "EnumDecl" and "name" in node:
                self.read_enum(header, offset, node)
            elif kind == "RecordDecl" and node.get("completeDefinition"):
                text = self.text_of(header, offset, node["name"])
                fields = []
                for field in (inner for inner in node["inner"] if inner["kind"] == "FieldDecl"):
                    about = self.text_of(header, field["loc"]["offset"], f"{node['name']}.{field['name']}", True)
                    fields.append({"name": field["name"], "type": plain(field["type"]["qualType"]),
                                   "text": " ".join(about.split())})
                self.types.append({"name": node["name"], "kind": "record", "header": header.name,
                                   **split(text), "fields": fields})
            elif kind == "TypedefDecl" and "(*)" in node["type"]["qualType"]:
                self.read_callback(header, offset, node)

    def read_enum(self, header, offset, node):
        text = self.text_of(header, offset, node["name"])
        constants, value = [], -1
        for constant in (inner for inner in node["inner"] if inner["kind"] == "EnumConstantDecl"):
            given = next((inner for inner in constant.get("inner", ()) if "value" in inner), None)
            value = int(given["value"]) if given else value + 1
            about = self.text_of(header, constant["loc"]["offset"], constant["name"], True)
            constants.append({"name": constant["name"], "value": value, "text": " ".join(about.split())})
        self.enums[node["name"]] = {"name": node["name"], "header": header.name, **split(text),
                                    "constants": constants}

    def read_callback(self, header, offset, node):
        text = self.text_of(header, offset, node["name"])
        rest = header.code[offset:header.code.index(";", offset)]
        parameters = [] if "(void)" in rest else [
            dict(zip(("type", "name"), re.fullmatch(r"\s*(.*?)\s*(\w+)\s*", one, re.S).groups()))
            for one in rest[rest.index("(") + 1:rest.rindex(")")].split(",")]
        before = header.code[:offset].rstrip()
        self.callbacks[node["name"]] = {
            "name": node["name"], "kind": "function", "header": header.name, **split(text),
            "convention": "cdecl" if "TESSARO_CDECL" in before[before.rindex("typedef"):] else "library",
            "result": plain(node["type"]["qualType"].split("(*)")[0]), "parameters": parameters}

    def listed(self, header, comment, command):
        """The entries of a kind in a comment, made once."""
        if comment is None:
            return []
        key = (header.name, comment.start, command)
        if key not in self.entries:
            self.entries[key] = [Entry(header, item) for item in comment.items if item[0] == command]
        return self.entries[key]

    def read_functions(self, aliases):
        found = {node["name"]: (header, offset, node) for header, offset, node in self.nodes
                 if node["kind"] == "FunctionDecl"}
        for name, (header, offset, node) in found.items():
            own = header.comment_of(offset)
            described = (header, own, header.group_of(offset))
            if own is None and aliases.get(name) in found:  # a second name is described by the first
                first, place, _ = found[aliases[name]]
                described = (first, first.comment_of(place), first.group_of(place))
            self.functions.append(self.function(name, header, offset, node, described, aliases))
        for entries in self.entries.values():
            for entry in entries:
                if entry.names and not entry.used:
                    entry.header.problem(entry.line, f"no function has a parameter {', '.join(entry.names)} that is "
                                                     "described here")

    def function(self, name, header, offset, node, described, aliases):
        place = header.line(offset)
        source, own, group = described
        here = header.group_of(offset)
        if own is None or not own.text:
            header.problem(place, f"{name} has no description")
        if here is None:
            header.problem(place, f"{name} stands in no group")
        levels = [own, group, source.file]
        parameters = [inner for inner in node.get("inner", ()) if inner["kind"] == "ParmVarDecl"]
        names = {one["name"]: plain(one["type"]["qualType"]) for one in parameters}
        for entry in self.listed(source, own, "param"):
            for stray in [one for one in entry.names if one not in names]:
                header.problem(entry.line, f"{name} has no parameter {stray}")

        listed, believed = [], set()
        for one, c_type in names.items():
            entry = next((entry for level in levels for entry in self.listed(source, level, "param")
                          if one in entry.names), None)
            if entry is None:
                header.problem(place, f"{name}: nothing says what {one} is")
                continue
            entry.used = True
            try:
                listed.append(self.parameter(one, c_type, names, entry, believed))
            except Bad as bad:
                entry.header.problem(entry.line, f"{name}, {one}: {bad}")
        for one in listed:
            if one["name"] in believed and not one.keys() & {"trusted", "enum"}:
                header.problem(place, f"{name}: memory is measured by {one['name']}, which is not said to be trusted")

        result = plain(node["type"]["qualType"].split("(")[0])
        about = {"name": name, "header": header.name, "group": here.argument("defgroup").split()[0] if here else "",
                 **split(own.text if own else ""),
                 "signature": f"{result} {name}({', '.join(f'{t} {n}' for n, t in names.items()) or 'void'})",
                 "returns": {"type": result, **self.results(name, source, place, levels, names, result)},
                 "parameters": listed,
                 "since": (own.argument("since") if own else "") or FIRST_VERSION,
                 "see": [one for item in (own.items if own else ()) if item[0] == "see"
                         for one in re.split(r"[\s,]+", item[1])]}
        second = [alias for alias, first in aliases.items() if first == name]
        if second:
            about["aliases"] = second
        if name in aliases:
            about["alias_of"] = aliases[name]
        return about

    def parameter(self, name, c_type, names, entry, believed):
        found = {"name": name, "type": c_type}
        if not entry.text:
            raise Bad("no meaning")
        if not entry.bracket:
            raise Bad("no bracket with unit or size")
        if not c_type.endswith("*") and c_type not in self.callbacks:
            if entry.direction:
                raise Bad("a number has no direction")
            return {**found, "kind": "number", **number(entry.bracket, names, self.enums), "text": entry.text}
        about, used = pointer(entry.bracket, c_type, names, self.callbacks)
        believed |= used
        if about["kind"] in ("function", "handle"):
            return {**found, **about, "text": entry.text}
        if not entry.direction:
            raise Bad("no direction")
        # A sound's record is never written, its samples may be.
        if about["kind"] != "sound" and c_type.startswith("const ") != (entry.direction == "in"):
            raise Bad(f"[{entry.direction}] for a {c_type}")
        return {**found, "direction": entry.direction, **about, "text": entry.text}

    def results(self, name, source, place, levels, names, c_type):
        if c_type == "void":
            return {}
        level = next((level for level in levels
                      if self.listed(source, level, "return") or self.listed(source, level, "retval")), None)
        found = {}
        if c_type == "void":  # the results of its group are not its own
            return found
        if level is None:
            source.problem(place, f"{name}: nothing says what it returns")
            return found
        for entry in self.listed(source, level, "return"):
            try:
                found["value"] = {**number(entry.bracket, names, self.enums), "text": entry.text}
            except Bad as bad:
                entry.header.problem(entry.line, f"{name}: {bad}")
        cases = []
        for entry in self.listed(source, level, "retval"):
            if entry.bracket not in ("", "untouched"):
                entry.header.problem(entry.line, f"'{entry.bracket}' is nothing that a result can be")
            try:
                cases.append({"value": int(entry.value, 0), "untouched": entry.bracket == "untouched",
                              "text": entry.text})
            except ValueError:
                entry.header.problem(entry.line, f"'{entry.value}' is no number")
            if not entry.text:
                entry.header.problem(entry.line, "a result without a meaning")
        if cases:
            found["cases"] = cases
        return found

    def description(self, version, aliases):
        self.read_types()
        self.read_functions(aliases)
        groups = []
        for header in self.headers.values():
            for comment in (comment for comment in header.comments if comment.has("defgroup")):
                identifier, _, title = comment.argument("defgroup").partition(" ")
                if not title or not comment.has("brief"):
                    header.problem(comment.line, "a group needs an identifier, a title and a @brief")
                if identifier in {group["id"] for group in groups}:
                    header.problem(comment.line, f"there is another group {identifier}")
                groups.append({"id": identifier, "title": title.strip(), "header": header.name,
                               "brief": " ".join(comment.argument("brief").split()), "text": comment.text})
        return {
            "version": version,
            "headers": [{"name": header.name,
                         "brief": " ".join(header.file.argument("brief").split()) if header.file else "",
                         "text": header.file.text if header.file else ""} for header in self.headers.values()],
            "groups": groups,
            "functions": self.functions,
            "enums": list(self.enums.values()),
            "types": self.types + list(self.callbacks.values()),
        }


def plain(c_type):
    return re.sub(r"\s*\*", "*", c_type.strip())


def split(text):
    brief, rest = sentence(text)
    return {"brief": brief, "text": rest}


def read_exports():
    """The exported names, and which are second names of which."""
    names, aliases = [], {}
    with open(EXPORTS, encoding="utf-8") as file:
        for line in (line.split("#")[0].strip() for line in file):
            if line:
                name, _, first = (part.strip() for part in line.partition("="))
                names.append(name)
                if first:
                    aliases[name] = first
    return names, aliases


def mismatch(value, schema, root, path="description"):
    """The first place where a value is not what a JSON schema says: the few keywords that ours uses."""
    schema = root["$defs"][schema["$ref"].rsplit("/", 1)[1]] if "$ref" in schema else schema
    kinds = {"object": dict, "array": list, "string": str, "integer": int, "boolean": bool, "number": (int, float),
             "null": type(None)}
    allowed = schema.get("type", [])
    allowed = [allowed] if isinstance(allowed, str) else allowed
    if allowed and not any(isinstance(value, kinds[kind]) and (kind == "boolean" or not isinstance(value, bool))
                           for kind in allowed):
        return f"{path}: {value!r} is no {' or '.join(allowed)}"
    if "enum" in schema and value not in schema["enum"]:
        return f"{path}: {value!r} is none of {schema['enum']}"
    if isinstance(value, dict):
        known = schema.get("properties", {})
        for key in schema.get("required", ()):
            if key not in value:
                return f"{path}: {key} is missing"
        for key, inner in value.items():
            if key not in known:
                return f"{path}: {key} is not known"
            wrong = mismatch(inner, known[key], root, f"{path}.{key}")
            if wrong:
                return wrong
    if isinstance(value, list):
        for place, inner in enumerate(value):
            wrong = mismatch(inner, schema.get("items", {}), root, f"{path}[{place}]")
            if wrong:
                return wrong
    return None


def main():
    options = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    options.add_argument("--check", action="store_true", help="fail if api/tessaro.json is stale")
    options.add_argument("--header", help="only look for mistakes in this header")
    options.add_argument("--clang", default=os.environ.get("CLANG", ""), help="the compiler, if not the first found")
    given = options.parse_args()
    clang = given.clang or next(filter(shutil.which, ["clang", "clang-19", "clang-16", "clang-14"]), None)
    if not clang:
        sys.exit("describe.py needs Clang")
    with open(os.path.join(ROOT, "CMakeLists.txt"), encoding="utf-8") as file:
        version = re.search(r"project\(tessaro VERSION ([0-9.]+)", file.read())[1]

    problems = []  # places and texts
    exports, aliases = read_exports()
    reader = Reader(clang, problems)
    found = reader.description(version, aliases)
    declared = {function["name"] for function in found["functions"]}
    for name in sorted(declared ^ set(exports)):
        problems.append(("src/exports/exports.txt:1",
                         f"{name} is {'not listed' if name in declared else 'in no header'}"))
    for function in found["functions"]:
        for other in function["see"]:
            if other not in declared:
                problems.append((f"include/tessaro/{function['header']}:1",
                                 f"{function['name']}: @see {other}, which is no function"))
    wrong = mismatch(found, (schema := json.load(open(SCHEMA, encoding="utf-8"))), schema)
    if wrong:
        problems.append(("api/tessaro.schema.json:1", wrong))

    lines = [f"{place}: {text}" for place, text in dict.fromkeys(problems)
             if not given.header or f"/{os.path.basename(given.header)}:" in place]
    if lines:
        print("\n".join(lines), file=sys.stderr)
        print(f"{len(lines)} mistakes in the description", file=sys.stderr)
        return 1
    if given.header:
        return 0
    text = json.dumps(found, indent=1, ensure_ascii=False) + "\n"
    if given.check:
        with open(JSON, encoding="utf-8") as file:
            if file.read() != text:
                print("api/tessaro.json:1: not what the headers say; run api/describe.py", file=sys.stderr)
                return 1
        return 0
    with open(JSON, "w", encoding="utf-8") as file:
        file.write(text)
    return 0


if __name__ == "__main__":
    sys.exit(main())
