#!/usr/bin/python3
"""Makes the packages of a release from what was built.

    build.py [--out out/packages]

Reads the folders of the targets in build and out/docs, which `./run package` builds first, and says what it
leaves out. Nothing of the moment or of the machine gets into an archive: entries are sorted, belong to nobody and have the
time of the last commit (or SOURCE_DATE_EPOCH), so that the same sources give the same bytes.
"""

import argparse
import gzip
import hashlib
import io
import json
import os
import re
import shutil
import subprocess
import sys
import tarfile
import tempfile
import time
import zipfile
from pathlib import Path

root = Path(__file__).resolve().parents[1]
papers = ("README.md", "CHANGELOG.md")  # that every archive has
version = json.loads((root / "api" / "tessaro.json").read_text())["version"]


def run(*command, **options):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, **{"text": True, **options}).stdout


def moment():
    """Seconds since 1970 that stand in the archives."""
    return int(os.environ.get("SOURCE_DATE_EPOCH") or run("git", "log", "-1", "--format=%ct", cwd=root))


def tracked(*folders):
    return [root / name for name in run("git", "ls-files", "-z", "--", *folders, cwd=root).split("\0") if name]


def mode_of(path):
    return 0o755 if path.is_dir() or os.access(path, os.X_OK) and path.suffix not in (".dll", ".so") else 0o644


def below(folder):
    return sorted(folder.rglob("*"), key=lambda path: path.relative_to(folder).parts)


def write_tar(out, name, folder):
    """out/<name>.tar.gz with the contents of a folder below <name>/."""
    made = io.BytesIO()
    with tarfile.open(fileobj=made, mode="w", format=tarfile.PAX_FORMAT) as tar:
        for path in [folder, *below(folder)]:
            entry = tar.gettarinfo(path, str(Path(name) / path.relative_to(folder)))
            entry.mtime, entry.uid, entry.gid, entry.uname, entry.gname = moment(), 0, 0, "", ""
            if not entry.issym():
                entry.mode = mode_of(path)
            with open(path, "rb") if entry.isfile() else io.BytesIO() as content:
                tar.addfile(entry, content if entry.isfile() else None)
    with open(out / f"{name}.tar.gz", "wb") as file:
        with gzip.GzipFile("", "wb", 9, file, mtime=moment()) as packed:
            packed.write(made.getvalue())


def write_zip(out, name, folder):
    """out/<name>.zip with the contents of a folder below <name>/."""
    when = time.gmtime(moment())[:6]
    with zipfile.ZipFile(out / f"{name}.zip", "w", zipfile.ZIP_DEFLATED, compresslevel=9) as made:
        for path in below(folder):
            if path.is_file():
                entry = zipfile.ZipInfo((Path(name) / path.relative_to(folder)).as_posix(), when)
                entry.create_system, entry.compress_type = 3, zipfile.ZIP_DEFLATED
                entry.external_attr = (0o100000 | mode_of(path)) << 16
                made.writestr(entry, path.read_bytes())


def copy(paths, to, base=root):
    """Copies files to a folder, at the paths that they have below another one."""
    for path in paths:
        goal = to / path.relative_to(base)
        goal.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(path, goal, follow_symlinks=False)


def sources(out, _):
    archive = run("git", "archive", "--format=tar", f"--prefix=tessaro-{version}/", "HEAD", cwd=root, text=False)
    with open(out / f"tessaro-{version}-source.tar.gz", "wb") as file:
        with gzip.GzipFile("", "wb", 9, file, mtime=moment()) as packed:
            packed.write(archive)


def linux(out, folder):
    """The same installation as an archive for any prefix and as a package for Debian and its kin, for each processor."""
    for preset, processor, debian in (("native", "x86_64", "amd64"), ("linux-arm64", "aarch64", "arm64")):
        place = folder / debian
        prefix = place / "usr"
        run("cmake", "--install", root / "build" / preset, "--prefix", prefix, "--strip")
        for library in (prefix / "lib").glob("*.so*"):
            library.chmod(0o644)
        copy([root / paper for paper in papers], prefix / "share" / "doc" / "tessaro")
        write_tar(out, f"tessaro-{version}-linux-{processor}", prefix)
        write_deb(out, place, debian)


def write_deb(out, folder, architecture):
    # What the libraries need, as Debian names it. Pictures need more than the rest, and are not everybody's.
    (folder / "debian").mkdir()
    (folder / "debian" / "control").write_text("Source: tessaro\n\nPackage: tessaro\nArchitecture: any\n")
    needs = run("dpkg-shlibdeps", "-O", "-dDepends", "usr/lib/libtessaro.so.0", "-dRecommends",
                "usr/lib/libtessaro-pictures.so.0", cwd=folder, stderr=subprocess.DEVNULL,
                env=dict(os.environ, DEB_HOST_ARCH=architecture))  # fmt: skip
    shutil.rmtree(folder / "debian")
    needs = re.sub(r"^shlibs:(\w+)=", r"\1: ", needs, flags=re.M)
    size = sum(path.lstat().st_size for path in below(folder)) // 1024
    about = folder / "DEBIAN"
    about.mkdir()
    (about / "control").write_text(
        f"Package: tessaro\nVersion: {version}\nArchitecture: {architecture}\nSection: libs\nPriority: optional\n"
        f"Maintainer: The tessaro developers <tessaro@example.invalid>\nInstalled-Size: {size}\n{needs}"
        "Description: raster images, byte-stream codecs and audio waveforms\n"
        " The library, its reader of picture files, its headers for C and C++, and what\n"
        " CMake and pkg-config ask for.\n"
    )
    (about / "triggers").write_text("activate-noawait ldconfig\n")
    for path in [folder, *below(folder)]:
        if not path.is_symlink():
            path.chmod(mode_of(path))
        os.utime(path, (moment(), moment()), follow_symlinks=False)
    run("dpkg-deb", "--root-owner-group", "-Zxz", "--build", folder, out / f"tessaro_{version}_{architecture}.deb",
        env=dict(os.environ, SOURCE_DATE_EPOCH=str(moment())))  # fmt: skip


def windows(out, folder):
    names = [function["name"] for function in json.loads((root / "api" / "tessaro.json").read_text())["functions"]]
    copy([root / paper for paper in papers] + tracked("include/tessaro"), folder)
    (folder / "tessaro.def").write_text("LIBRARY tessaro.dll\nEXPORTS\n" + "".join(f"  {name}\n" for name in names))
    for target, machine, tools in (("x64", "i386:x86-64", "x86_64"), ("x86", "i386", "i686")):
        built, to = root / "build" / f"windows-{target}", folder / target
        to.mkdir()
        for name in ("tessaro.dll", "libtessaro.dll.a"):
            shutil.copy(built / name, to)
        run(f"{tools}-w64-mingw32-strip", "--preserve-dates", "--strip-unneeded", to / "tessaro.dll")
        # The linkers of Microsoft and LLVM look for _Name@bytes on x86, and the library has Name.
        decorated = built / "libtessaro.dll.a.def"
        run("llvm-dlltool", "-m", machine, "--kill-at", "-d", decorated if target == "x86" else folder / "tessaro.def",
            "-l", to / "tessaro.lib")  # fmt: skip
    write_zip(out, f"tessaro-{version}-windows", folder)


def python(out, _):
    for library in ("native/libtessaro.so", "linux-arm64/libtessaro.so", "windows-x64/tessaro.dll", "windows-x86/tessaro.dll"):
        run(sys.executable, "-B", root / "bindings/python/build_wheel.py", "--library", root / "build" / library, "--out", out,
            env=dict(os.environ, SOURCE_DATE_EPOCH=str(moment())))  # fmt: skip


def javascript(out, folder):
    package = root / "bindings" / "node"
    if not package.exists():
        return "no package for JavaScript: bindings/node is not there"
    copy(tracked("bindings/node"), folder, package)
    for library, target in (("native/libtessaro.so", "linux-x64"), ("native/libtessaro-pictures.so.0", "linux-x64"),
                            ("linux-arm64/libtessaro.so", "linux-arm64"), ("linux-arm64/libtessaro-pictures.so.0", "linux-arm64"),
                            ("windows-x64/tessaro.dll", "win32-x64"), ("windows-x86/tessaro.dll", "win32-ia32")):  # fmt: skip
        (folder / "lib" / target).mkdir(exist_ok=True)
        shutil.copyfile(root / "build" / library, folder / "lib" / target / Path(library).name)
    for path in below(folder):
        path.chmod(mode_of(path))
    run("npm", "pack", "--silent", "--pack-destination", out, cwd=folder)


def other_languages(out, folder):
    """Files that a program takes into its own folder."""
    made = ("cpp", "python", "node")  # have packages of their own, or are headers
    copy(tracked(":(glob)bindings/*.md", "bindings/declarations.txt"), folder, root / "bindings")
    parts = {path.relative_to(root / "bindings").parts[0] for path in tracked("bindings/*/*")} - set(made)
    if not parts:
        return "no files for other languages: bindings/ has none"
    hidden = ("generate.py", "CMakeLists.txt", "test.cmake", "tests")
    for part in parts:
        inside = root / "bindings" / part
        copy([path for path in tracked(f"bindings/{part}") if path.relative_to(inside).parts[0] not in hidden], folder,
             root / "bindings")  # fmt: skip
    write_zip(out, f"tessaro-{version}-bindings", folder)


def reference(out, _):
    if not (root / "out" / "docs" / "index.html").exists():
        return "no reference: out/docs is not there"
    write_zip(out, f"tessaro-{version}-reference", root / "out" / "docs")


def conformance(out, folder):
    calls = root / "build" / "native" / "tests" / "conformance" / "calls.txt"
    if not calls.exists():
        return "no conformance set: build/native/tests/conformance/calls.txt is not there"
    copy([path for path in tracked("tests/conformance") if path.suffix in (".md", ".py")], folder, root / "tests/conformance")
    shutil.copy(calls, folder)
    shutil.copy(root / "docs" / "formats.md", folder)
    write_tar(out, f"tessaro-{version}-conformance", folder)


steps = (sources, linux, windows, python, javascript, other_languages, reference, conformance)


def main():
    parser = argparse.ArgumentParser(description="Makes the packages of a release from what was built.")
    parser.add_argument("--out", type=Path, default=root / "out" / "packages")
    out = parser.parse_args().out.resolve()
    shutil.rmtree(out, ignore_errors=True)
    out.mkdir(parents=True)
    for step in steps:
        with tempfile.TemporaryDirectory() as folder:
            place = Path(folder) / "package"
            place.mkdir()
            lacking = step(out, place)
            if lacking:
                print(f"Left out: {lacking}")
    sums = [f"{hashlib.sha256(path.read_bytes()).hexdigest()}  {path.name}\n" for path in sorted(out.iterdir())]
    (out / "SHA256SUMS").write_text("".join(sums))
    for path in sorted(out.iterdir()):
        print(f"{path.stat().st_size:>10}  {path.name}")


if __name__ == "__main__":
    main()
