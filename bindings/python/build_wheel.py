#!/usr/bin/env python3
"""Builds a wheel with a library inside, without a network.

    build_wheel.py --library build/native/libtessaro.so [--platform TAG] [--out out/packages]

The platform is read from the library: on Linux the oldest C library that its symbols allow. The same library and
SOURCE_DATE_EPOCH (1980 unless it is set) give the same bytes. Needs setuptools and wheel (Debian: python3-setuptools,
python3-wheel), and readelf for Linux.
"""

import argparse
import os
import re
import shutil
import struct
import subprocess
import sys
import tempfile
from pathlib import Path

here = Path(__file__).resolve().parent
first_moment = "315532800"  # 1980-01-01: earlier ones do not fit into an archive


def platform_of(library):
    """The tag of the platform that a library is for."""
    data = library.read_bytes()
    if data[:2] == b"MZ":
        machine = struct.unpack_from("<H", data, struct.unpack_from("<I", data, 0x3C)[0] + 4)[0]
        return {0x8664: "win_amd64", 0x14C: "win32"}[machine]
    if data[:4] != b"\x7fELF":
        sys.exit(f"{library} is no library of Linux or Windows")
    machine = {62: "x86_64", 183: "aarch64"}[struct.unpack_from("<H", data, 18)[0]]
    asked = subprocess.run(["readelf", "-VWd", library], check=True, capture_output=True, text=True).stdout
    for needed in re.findall(r"\(NEEDED\).*\[(.*)\]", asked):
        if not re.match(r"lib(c|m|pthread|dl|rt|gcc_s|stdc\+\+)\.so|ld-linux", needed):
            print(f"{library.name} needs {needed}, which may be missing elsewhere", file=sys.stderr)
    minor = max(int(version) for version in re.findall(r"GLIBC_2\.(\d+)", asked))
    return f"manylinux_2_{max(minor, 17)}_{machine}"


def build(library, platform, out):
    """Builds the wheel and returns its path."""
    inside = "tessaro.dll" if platform.startswith("win") else "libtessaro.so"
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder)
        package = root / "tessaro"
        shutil.copytree(
            here / "tessaro", package, ignore=shutil.ignore_patterns("__pycache__", "*.so*", "*.dll")
        )
        for name in ("pyproject.toml", "setup.py", "README.md"):
            shutil.copy(here / name, root)
        shutil.copyfile(library, package / inside)
        for pictures in library.parent.glob("libtessaro-pictures.so*"):
            if not pictures.is_symlink() and not platform.startswith("win"):
                shutil.copyfile(pictures, package / pictures.name)
        for path in root.rglob("*"):
            path.chmod(0o755 if path.is_dir() else 0o644)
        environment = dict(os.environ, TESSARO_WHEEL_PLATFORM=platform)
        environment.setdefault("SOURCE_DATE_EPOCH", first_moment)
        command = [sys.executable, "setup.py", "-q", "bdist_wheel", "--dist-dir", root / "dist"]
        run = subprocess.run(
            command, cwd=root, env=environment, umask=0o022, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True
        )
        if run.returncode:
            sys.exit(run.stdout)
        (wheel,) = (root / "dist").glob("*.whl")
        out.mkdir(parents=True, exist_ok=True)
        return Path(shutil.copy(wheel, out))


def main():
    parser = argparse.ArgumentParser(description="Builds a wheel with a library inside.")
    parser.add_argument("--library", type=Path, required=True)
    parser.add_argument(
        "--platform", help="the tag of the platform, where it is not to be read from the library"
    )
    parser.add_argument("--out", type=Path, default=Path("out/packages"))
    given = parser.parse_args()
    library = given.library.resolve()
    print(build(library, given.platform or platform_of(library), given.out))


if __name__ == "__main__":
    main()
