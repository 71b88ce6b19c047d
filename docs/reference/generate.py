#!/usr/bin/env python3
"""Makes the pages of the reference: a page a function, a family and a header, the indexes, and the guide beside them.

Everything that lists functions comes from `api/tessaro.json`; pictures and sounds from the gallery's manifest, speeds
from `bench/RESULTS.md`, declarations in other languages from the generated bindings, worked examples and the words of
the index by task from the files beside this one. The pages are Markdown for Sphinx, whose C domain links the names.

    docs/reference/generate.py OUTPUT [--gallery DIRECTORY]
"""
import argparse
import collections
import html
import itertools
import json
import pathlib
import re
import shutil
import struct

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent

# How the bindings declare a function: what a page calls the language, its highlighter, the files below bindings/, and what a
# declaration looks like there. A language that has no binding is left out.
LANGUAGES = [
    ("Python", "python", "*.pyi", r"^def NAME\(.*?\) -> [^:\n]*"),
    ("Lua", "c", "*.lua", r"^[^\n(]*\bNAME\([^;]*;"),
    ("C#", "csharp", "*.cs", r"^ *public static (?:extern |unsafe )*[^\n(]*\bNAME\([^;{=]*"),
    ("JavaScript", "typescript", "*.d.ts", r"^ *(?:export )?(?:function )?NAME\(.*?;"),
    ("Pascal", "pascal", "*.pas", r"^ *(?:function|procedure) NAME\b[^;(]*(?:\([^)]*\))?[^;]*;"),
]
EXAMPLES_BEGIN = "In Python, after `from array import array`, `from tessaro import Image, constants`, `from tessaro.functions import *`."
MOST_FIGURES = 6  # on the page of a function that many entries of the gallery call


def unwrap(text):
    """Joins lines inside `code`, where a line may begin with what Markdown takes for a list."""
    lines, open_code, fenced = [], False, False
    for line in text.split("\n"):
        if line.startswith("```"):
            fenced = not fenced
        if open_code and line.strip():
            lines[-1] += " " + line.strip()
        else:
            lines.append(line)
            open_code = False
        if not fenced:
            open_code = lines[-1].count("`") % 2 == 1
    return "\n".join(lines)


def one_line(text):
    return " ".join(text.split())


class Reference:
    def __init__(self, gallery):
        self.api = json.loads((ROOT / "api/tessaro.json").read_text())
        self.functions = {f["name"]: f for f in self.api["functions"]}
        self.groups = {g["id"]: g for g in self.api["groups"]}
        self.members = collections.defaultdict(list)
        for function in self.api["functions"]:
            self.members[function["group"]].append(function)
        self.figures = self.read_gallery(gallery)
        self.speeds, self.machine = self.read_speeds()
        self.tasks = self.read_tasks()
        self.examples = read_examples()
        self.gallery = gallery
        self.declarations = [(title, highlighter, "\n".join(f.read_text() for f in sorted((ROOT / "bindings").rglob(files))
                                                            if "node_modules" not in f.parts), pattern)
                             for title, highlighter, files, pattern in LANGUAGES]
        # What text may name, and where that is described.
        self.places = {name: f"../functions/{name}.md" for name in self.functions}
        self.places |= {t["name"]: f"../types.md#{t['name'].lower()}" for t in self.api["types"]}
        self.places |= {e["name"]: f"../types.md#{e['name'].lower()}" for e in self.api["enums"]}
        for header in self.api["headers"]:
            self.places[header["name"]] = f"../{self.header_page(header)}.md"
        self.places["docs/formats.md"] = "../formats.md"
        self.name = re.compile("|".join(re.escape(n) for n in sorted(self.places, key=len, reverse=True)))

    # What is read.

    def read_gallery(self, directory):
        manifest = directory / "gallery.json"
        figures = collections.defaultdict(list)
        if manifest.exists():
            for entry in json.loads(manifest.read_text()):
                for name in entry["functions"]:
                    figures[name].append(entry)
        for name, entries in figures.items():  # those first that are about this function
            entries.sort(key=lambda e: (name not in e["title"], len(e["functions"])))
        return figures

    def read_speeds(self):
        lines = (ROOT / "bench/RESULTS.md").read_text().splitlines()
        speeds = collections.defaultdict(list)
        for line in lines:
            cells = [cell.strip() for cell in line.strip("|").split("|")]
            match = re.match(r"(\w+)(?:[/,] *(.*))?$", cells[0])
            if len(cells) == 5 and match and match[1] in self.functions:
                speeds[match[1]].append([match[2] or ""] + cells[1:])
        return speeds, lines[2]

    def read_tasks(self):
        """Sections of (words, functions): the words that a user may think of."""
        sections = []
        for number, line in enumerate((HERE / "tasks.txt").read_text().splitlines(), 1):
            if line.startswith("## "):
                sections.append((line[3:], []))
            elif line and not line.startswith("#"):
                words, names = line.split(":")
                names = names.split()
                unknown = [n for n in names if n not in self.functions]
                if unknown:
                    raise SystemExit(f"tasks.txt:{number}: no such function: {', '.join(unknown)}")
                sections[-1][1].append(([w.strip() for w in words.split(",")], names))
        return sections

    # Pieces of text.

    def header_page(self, header):
        if any(g["header"] == header["name"] for g in self.api["groups"]):
            return "headers/" + header["name"].removesuffix(".h")
        return {"tessaro.h": "conventions", "types.h": "types"}[header["name"]]

    def markdown(self, text, own=None, up="../"):
        """The text with the names in it made links, but for that of the page itself."""
        def link(match):
            code, bare = match["code"], match["bare"]
            name = code or bare
            # Bare words such as `wave` are English as a rule.
            if name == own or (bare and not re.search(r".[A-Z]|\.", bare)) or (bare and len(bare) < 4):
                return match[0]
            return f"[{f'`{name}`' if code else name}]({self.places[name].replace('../', up, 1)})"
        pieces = re.split(r"(^```.*?^```$)", unwrap(text), flags=re.S | re.M)
        names = self.name.pattern
        pattern = re.compile(rf"`(?P<code>{names})`|`[^`]*`|(?<![\w/])(?P<bare>{names})(?!\w)")
        pieces[::2] = [pattern.sub(lambda m: link(m) if m["code"] or m["bare"] else m[0], p) for p in pieces[::2]]
        return "".join(pieces)

    def link(self, name, up="../"):
        return f"[`{name}`]({up}functions/{name}.md)"

    def figure(self, entry, up="../"):
        """An entry of the gallery: what it shows or plays, and the call that made it."""
        parts = []
        for file in entry["files"]:
            source, name = f"{up}_static/gallery/{file}", html.escape(entry["title"], quote=True)
            if file.endswith(".wav"):
                parts.append(f'<audio controls preload="none" src="{source}" title="{name}"></audio>')
            else:
                parts.append(f'<img loading="lazy" src="{source}" alt="{name}"{size_of(self.gallery / file)}>')
        note = self.markdown(entry.get("text", ""), up=up)
        call = f"\n```cpp\n{entry['call'].strip()}\n```\n" if entry.get("call") else ""
        return (f":::{{container}} entry\n```{{raw}} html\n{''.join(parts)}\n```\n"
                f"**{entry['title']}.** {note}\n{call}:::\n")

    # Pages.

    def function_page(self, function):
        name = function["name"]
        group = self.groups[function["group"]]
        text = [f"# {name}\n"]
        words = [word for _, entries in self.tasks for ws, names in entries if name in names for word in ws]
        if words:
            text.append("```{index} " + ", ".join(words) + "\n```\n")
        text.append(f"{self.markdown(function['brief'], name)}\n")
        text.append(f"```{{c:function}} {function['signature']}\n```\n")
        if "alias_of" in function:
            text.append(f"A second name of {self.link(function['alias_of'])}.\n")
        if function.get("aliases"):
            text.append("Has a second name: " + ", ".join(self.link(a) for a in function["aliases"]) + ".\n")
        text.append(self.in_languages(name))
        text.append(self.markdown(function["text"], name) + "\n")
        text.append(self.shared_with(group, own=False))
        if function["parameters"]:
            text.append("## Parameters\n")
            text.append(self.parameters(function))
        text.append("## Result\n")
        text.append(self.results(function))
        text.append(self.shown(name))
        example = self.examples.get(function.get("alias_of", name))
        if example:
            text.append(f"## Example\n\n{example}\n\n{EXAMPLES_BEGIN}\n")
        if self.speeds[name]:
            text.append("## Measured\n\n" + table(["case", "unit", "tessaro", "limit of the memory", "others"],
                                               self.speeds[name]) + f"\n{self.machine}\n")
        text.append("## Related\n")
        if words:
            text.append("Found under: " + ", ".join(f"*{w}*" for w in words) + ".\n")
        others = [f["name"] for f in self.members[group["id"]] if f["name"] != name]
        if function["see"]:
            text.append("See also " + ", ".join(self.link(n) for n in function["see"]) + ".\n")
        if others:
            text.append(f"[{group['title']}](../families/{group['id']}.md): "
                        + ", ".join(self.link(n) for n in others) + ".\n")
        text.append(f"Declared in `tessaro/{function['header']}`; since version {function['since']}.\n")
        return "\n".join(text)

    def shared_with(self, group, own):
        """Where to read on about clipping, order, scales and the like: from a family's own page, or a function's."""
        header = next(h for h in self.api["headers"] if h["name"] == group["header"])
        places = [] if own or not group["text"] else [(group["title"], f"families/{group['id']}")]
        if header["text"]:
            places.append((title_of(header), self.header_page(header)))
        places.append(("Conventions of every call", "conventions"))
        return "What holds " + ("besides: " if own else "for this one as for others: ") + ", ".join(
            f"[{title}](../{page}.md)" for title, page in places) + ".\n"

    def in_languages(self, name):
        found = []
        for title, highlighter, source, pattern in self.declarations:
            match = re.search(pattern.replace("NAME", re.escape(name)), source, re.S | re.M)
            if match:
                declaration = re.sub(r"\n +", "\n    ", match[0].strip())
                found.append(f"```{{code-block}} {highlighter}\n:caption: {title}\n\n{declaration}\n```\n")
        return ":::{container} languages\n" + "\n".join(found) + ":::\n" if found else ""

    def parameters(self, function):
        lines = []
        described = itertools.groupby(function["parameters"], key=lambda p: {k: v for k, v in p.items() if k != "name"})
        for what, parameters in described:
            names = ", ".join(f"`{p['name']}`" for p in parameters)
            text = self.markdown(what["text"], function["name"]).replace("\n", "\n  ")
            lines.append(f"{names} <span class=\"kind\">{self.kind(what)}</span>\n: {text}\n")
        return "\n".join(lines)

    def kind(self, parameter):
        """What a machine would need to know, in words."""
        access = {"in": "read", "out": "written", "in,out": "read and written"}.get(parameter.get("direction"))
        size = f"{parameter['size']} {parameter['unit']}" if "size" in parameter else ""
        if "at" in parameter:
            size += f" at {parameter['at']['offset']} {parameter['at']['unit']}"
        if parameter["kind"] in ("image", "sound"):
            words = [parameter["kind"], access] + ([f"at least {size}"] if size else [])
        elif parameter["kind"] == "memory":
            words = [access, size]
        elif parameter["kind"] == "address":
            words = ["any memory", access]
        elif parameter["kind"] == "number":
            words = self.number(parameter)
        else:
            words = [parameter["kind"]]
        return ", ".join(words)

    def number(self, number):
        words = [f"`{number['type']}`"] if "type" in number else []
        if "unit" in number:
            words.append(number["unit"])
        if "enum" in number:
            many = "flags of " if number.get("flags") else ""
            words.append(f"{many}[{number['enum']}](../types.md#{number['enum'].lower()})")
        if "range" in number:
            low, high = number["range"]["low"], number["range"]["high"]
            words.append(f"{'' if low is None else low}..{'' if high is None else high}")
        if number.get("trusted"):
            words.append("[trusted](../guide/trust.md)")
        return words

    def results(self, function):
        returns, own = function["returns"], function["name"]
        if "cases" in returns and returns["type"] != "void":
            return table([f"`{returns['type']}`", "meaning"], [
                [f"`{case['value']}`", self.markdown(one_line(case["text"]), own)
                 + (" *No memory has changed.*" if case["untouched"] else "")] for case in returns["cases"]])
        if "value" in returns:
            words = ", ".join(self.number(returns["value"] | {"type": returns["type"]}))
            return f"<span class=\"kind\">{words}</span> {self.markdown(returns['value']['text'], own)}\n"
        return "None.\n"

    def shown(self, name):
        entries = self.figures[name]
        if not entries:
            return ""
        text = "## Seen and heard\n\n" + "\n".join(self.figure(e) for e in entries[:MOST_FIGURES])
        if len(entries) > MOST_FIGURES:
            text += "\nAlso in: " + "; ".join(e["title"] for e in entries[MOST_FIGURES:]) + ".\n"
        return text

    def thumbnails(self, functions, up="../"):
        """A grid of the functions' first pictures."""
        cells = []
        for function in functions:
            pictures = [f for e in self.figures[function["name"]] for f in e["files"] if not f.endswith(".wav")]
            if pictures:
                cells.append(f'<a href="{up}functions/{function["name"]}.html"><img loading="lazy" '
                             f'src="{up}_static/gallery/{pictures[0]}" alt="">{function["name"]}</a>')
        return f"```{{raw}} html\n<div class=\"thumbnails\">{''.join(cells)}</div>\n```\n" if cells else ""

    def family_page(self, group):
        functions = self.members[group["id"]]
        rows = [[self.link(f["name"]), self.markdown(one_line(f["brief"]), f["name"])] for f in functions]
        shared = self.markdown(group["text"]) + "\n\n" + self.shared_with(group, own=True)
        return "\n".join([f"# {group['title']}\n", self.markdown(group["brief"]) + "\n", table(["function", "does"], rows),
                          self.thumbnails(functions), "## What the family shares\n", shared,
                          toctree([f"../functions/{f['name']}" for f in functions])])

    def header_text(self, header):
        groups = [g for g in self.api["groups"] if g["header"] == header["name"]]
        text = [f"# {title_of(header)}\n", self.markdown(header["brief"]) + "\n"]
        for group in groups:
            text.append(f"[**{group['title']}**](../families/{group['id']}.md)\n: {one_line(self.markdown(group['brief']))} "
                        + " ".join(self.link(f["name"]) for f in self.members[group["id"]]) + "\n")
        if header["text"]:
            text += ["## What the families share\n", self.markdown(header["text"]) + "\n"]
        text.append(toctree([f"../families/{g['id']}" for g in groups]))
        return "\n".join(text)

    def types_page(self):
        text = ["# Types and constants\n", self.markdown(next(h for h in self.api["headers"] if h["name"] == "types.h")["text"],
                                                         up="") + "\n"]
        for kind in self.api["types"]:
            text.append(f"({kind['name'].lower()})=\n## {kind['name']}\n")
            if kind["kind"] == "record":
                members = "".join(f"\n````{{c:member}} {f['type']} {f['name']}\n{self.markdown(f['text'], up='')}\n````\n"
                                  for f in kind["fields"])
                text.append(f"`````{{c:struct}} {kind['name']}\n{members}\n`````\n")
            else:
                arguments = ", ".join(f"{a['type']} {a['name']}" for a in kind["parameters"]) or "void"
                text.append(f"```{{c:type}} {kind['result']} (*{kind['name']})({arguments})\n```\n")
            text += [self.markdown(kind["brief"], up="") + "\n", self.markdown(kind["text"], up="") + "\n"]
        for enum in self.api["enums"]:
            text += [f"({enum['name'].lower()})=\n## {enum['name']}\n", self.markdown(enum["brief"], up="") + "\n",
                     self.markdown(enum["text"], up="") + "\n"]
            users = [f["name"] for f in self.api["functions"]
                     if enum["name"] in [p.get("enum") for p in f["parameters"]] + [f["returns"].get("value", {}).get("enum")]]
            text.append(f"```{{c:enum}} {enum['name']}\n```\n")
            text.append(table(["constant", "value", "meaning"], [
                [f"`{c['name']}`", f"{c['value']}", self.markdown(one_line(c["text"]), up="")] for c in enum["constants"]]))
            if users:
                text.append("Used by " + ", ".join(self.link(n, "") for n in users) + ".\n")
        return "\n".join(text)

    def tasks_page(self):
        text = ["# By task\n", "What a user may want, and the functions that do it. The search knows these words too.\n"]
        for title, entries in self.tasks:
            text.append(f"## {title}\n")
            for words, names in entries:
                does = "\n".join(f"  - {self.link(n, '')}: {one_line(self.markdown(self.functions[n]['brief'], n, up=''))}"
                                 for n in names)
                text.append(f"- **{', '.join(words)}**\n{does}\n")
        return "\n".join(text)

    def names_page(self):
        rows = [[self.link(f["name"], ""), self.markdown(one_line(f["brief"]), f["name"], up="")]
                for f in sorted(self.api["functions"], key=lambda f: f["name"].lower())]
        return f"# By name\n\nAll {len(rows)} functions.\n\n" + table(["function", "does"], rows)

    def families_grid(self):
        """The front page's picture of each family."""
        first = [next((f for f in self.members[g["id"]] if any(not x.endswith(".wav") for e in self.figures[f["name"]]
                                                              for x in e["files"])), None) for g in self.api["groups"]]
        cells = []
        for group, function in zip(self.api["groups"], first):
            if function:
                picture = next(x for e in self.figures[function["name"]] for x in e["files"] if not x.endswith(".wav"))
                cells.append(f'<a href="families/{group["id"]}.html"><img loading="lazy" src="_static/gallery/{picture}" '
                             f'alt="">{group["title"]}</a>')
        return f"```{{raw}} html\n<div class=\"thumbnails\">{''.join(cells)}</div>\n```\n" if cells else ""

    def pages(self):
        for function in self.api["functions"]:
            yield f"functions/{function['name']}.md", self.function_page(function)
        for group in self.api["groups"]:
            yield f"families/{group['id']}.md", self.family_page(group)
        with_families = [h for h in self.api["headers"] if self.header_page(h).startswith("headers/")]
        for header in with_families:
            yield f"{self.header_page(header)}.md", self.header_text(header)
        general = next(h for h in self.api["headers"] if h["name"] == "tessaro.h")
        yield "conventions.md", "# Conventions of every call\n\n" + self.markdown(general["text"], up="") + "\n"
        yield "types.md", self.types_page()
        yield "tasks.md", self.tasks_page()
        yield "names.md", self.names_page()
        yield "formats.md", (ROOT / "docs/formats.md").read_text()
        everything = "\n".join(
            f"[**{title_of(h)}**]({self.header_page(h)}.md)\n: " + ", ".join(
                f"[{g['title']}](families/{g['id']}.md)" for g in self.api["groups"] if g["header"] == h["name"]) + "\n"
            for h in with_families)
        contents = {"families": self.families_grid(), "everything": everything, "headers": "\n".join(self.header_page(h) for h in with_families),
                    "count": str(len(self.functions)), "version": self.api["version"]}
        for source, page in [(HERE / "conf.py", "conf.py"), (ROOT / "docs/guide/index.md", "index.md")]:
            yield page, re.sub(r"@(\w+)@", lambda m: contents[m[1]], source.read_text())
        for page in sorted((ROOT / "docs/guide").iterdir()):
            if page.name != "index.md":
                yield f"guide/{page.name}", page.read_text()
        yield "static/briefs.js", f"const briefs = {json.dumps(self.briefs(), indent=0)};\n"
        for page in sorted((HERE / "static").iterdir()):
            yield f"static/{page.name}", page.read_text()

    def briefs(self):
        """What each page is about, for the results of a search."""
        briefs = {f"functions/{f['name']}.html": f["brief"] for f in self.api["functions"]}
        briefs |= {f"families/{g['id']}.html": g["brief"] for g in self.api["groups"]}
        briefs |= {f"{self.header_page(h)}.html": h["brief"] for h in self.api["headers"]}
        return {page: one_line(text).replace("`", "") for page, text in briefs.items()}


def read_examples():
    """The text below each heading of examples.md, by the names in the heading."""
    examples = {}
    for part in re.split(r"^## ", (HERE / "examples.md").read_text(), flags=re.M)[1:]:
        heading, text = part.split("\n", 1)
        for name in heading.split(","):
            examples[name.strip()] = text.strip()
    return examples


def title_of(header):
    return header["brief"].split(":")[0].removesuffix(".").removeprefix("The ").capitalize()


def table(head, rows):
    lines = [head, ["---"] * len(head)] + rows
    return "".join("| " + " | ".join(cell.replace("|", "\\|") for cell in line) + " |\n" for line in lines) + "\n"


def toctree(pages):
    return "```{toctree}\n:hidden:\n\n" + "\n".join(pages) + "\n```\n"


def size_of(picture):
    """The attributes that keep a page from moving when its pictures arrive."""
    with picture.open("rb") as file:
        head = file.read(24)
    if head[:8] != b"\x89PNG\r\n\x1a\n":
        return ""
    return ' width="{}" height="{}"'.format(*struct.unpack(">II", head[16:24]))


def main():
    arguments = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    arguments.add_argument("output", type=pathlib.Path)
    arguments.add_argument("--gallery", type=pathlib.Path, default=ROOT / "out/gallery")
    chosen = arguments.parse_args()
    chosen.output.mkdir(parents=True, exist_ok=True)
    made = set()
    for name, text in Reference(chosen.gallery).pages():
        path = chosen.output / name
        path.parent.mkdir(parents=True, exist_ok=True)
        made.add(path)
        path.write_text(text)
    for path in chosen.output.rglob("*.md"):
        if path not in made:
            path.unlink()
    shown = chosen.output / "static/gallery"
    shutil.rmtree(shown, ignore_errors=True)
    if chosen.gallery.is_dir():
        shutil.copytree(chosen.gallery, shown, ignore=shutil.ignore_patterns("*.html", "*.json"))
    print(f"{len(made)} pages in {chosen.output}")


if __name__ == "__main__":
    main()
