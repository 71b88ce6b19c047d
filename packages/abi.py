#!/usr/bin/env python3
"""Holds what a release promised: no export lost, no signature, constant or record changed within a minor version.

    abi.py              compare the description with the last release
    abi.py --release    write down what this version promises, abi/<version>.json
"""

import json
import sys
from pathlib import Path

here = Path(__file__).resolve().parent


def numbers(version):
    return tuple(map(int, version.split(".")))


def signature(result, parameters):
    return f"{result} ({', '.join(one['type'] for one in parameters)})"


def promise(description):
    """What programs that were compiled against a version rely on."""
    types = {}
    for one in description["types"]:
        if one["kind"] == "record":
            types[one["name"]] = "; ".join(f"{field['type']} {field['name']}" for field in one["fields"])
        else:
            types[one["name"]] = f"{one['convention']}: {signature(one['result'], one['parameters'])}"
    return {
        "functions": {one["name"]: signature(one["returns"]["type"], one["parameters"]) for one in description["functions"]},
        "constants": {one["name"]: one["value"] for enum in description["enums"] for one in enum["constants"]},
        "types": types,
    }


def broken(version, now, release, then):
    """What a version breaks of an older release's promise. A step of the minor version may break it."""
    if numbers(version)[:2] > numbers(release)[:2]:
        return []
    found = [] if numbers(version) >= numbers(release) else [f"version {version} is older than the release {release}"]
    for kind, promised in then.items():
        for name, value in promised.items():
            if name not in now[kind]:
                found.append(f"{name} is lost")
            elif now[kind][name] != value:
                found.append(f"{name} was {value} in {release} and is {now[kind][name]}")
    return found


def main():
    description = json.loads((here.parent / "api" / "tessaro.json").read_text())
    version, now = description["version"], promise(description)
    if "--release" in sys.argv[1:]:
        (here / "abi" / f"{version}.json").write_text(json.dumps(now, indent=1, sort_keys=True) + "\n")
        return 0
    release = max((path.stem for path in (here / "abi").glob("*.json")), key=numbers)
    found = broken(version, now, release, json.loads((here / "abi" / f"{release}.json").read_text()))
    if found:
        print(f"What {release} promised is broken; take it back, or step the minor version:", *found, sep="\n  ")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
