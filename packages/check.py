#!/usr/bin/python3
"""Tries the packages as their users would: installs each where nothing of the project is, and follows README.md to the letter.

    check.py [PACKAGES] [unittest argument]...

Every heading below "First picture" is a language: its code is saved under the name above it, its commands are run, and the
pictures that come of it are compared. Linux is this machine with a layer in memory above it (clean_root); Windows is Wine.
"""

import json
import os
import re
import shutil
import subprocess
import sys
import tarfile
import tempfile
import unittest
import zipfile
from pathlib import Path

from PIL import Image

here = Path(__file__).resolve().parent
root = here.parent
packages = Path(sys.argv.pop(1) if len(sys.argv) > 1 and not sys.argv[1].startswith("-") else root / "out" / "packages").resolve()
version = json.loads((root / "api" / "tessaro.json").read_text())["version"]
readme = (root / "README.md").read_text()


def run(*command, **options):
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace", **options)
    if done.returncode:
        raise AssertionError(f"{' '.join(map(str, command))}\n{done.stdout[-4000:]}")
    return done.stdout


class Language:
    """What the README says of one: a file and the commands that make a picture of it."""

    def __init__(self, section):
        self.name = section.split("\n")[0]
        self.file = re.search(r"`(\w+\.\w+)`", section)[1]
        self.code = re.search(r"```(?!sh)\w+\n(.*?)```", section, re.S)[1]
        self.commands = re.search(r"```sh\n(.*?)```", section, re.S)[1]

    def save(self, folder):
        folder.mkdir(parents=True, exist_ok=True)
        (folder / self.file).write_text(self.code)
        return folder


chapter = re.search(r"^## First picture\n(.*?)^## ", readme, re.S | re.M)[1]
languages = [Language(section) for section in re.split(r"^### ", chapter, flags=re.M)[1:] if "```sh" in section]


pictures = {}  # what came of each program: the same in all languages, on all systems


class Packages(unittest.TestCase):
    def look(self, place):
        """At the picture that a program left in a folder."""
        (file,) = [*place.glob("first.bmp"), *place.glob("first.png")]
        image = Image.open(file).convert("RGB")
        self.assertEqual(image.size, (320, 200))
        seen = [image.getpixel(at) for at in ((0, 0), (319, 0), (200, 120))]
        self.assertEqual(seen, [(0x1A, 0x2A, 0x52), (0x2A, 0x32, 0x66), (0x33, 0x29, 0x4D)])
        self.assertEqual(image.tobytes(), pictures.setdefault("first", image.tobytes()))

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="tessaro-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.folder.chmod(0o755)

    def unpack(self, name):
        if name.endswith(".zip"):
            zipfile.ZipFile(packages / name).extractall(self.folder)
        else:
            tarfile.open(packages / name).extractall(self.folder)
        (made,) = self.folder.iterdir()
        return made

    def test_readme_from_install_to_picture(self):
        for package in packages.iterdir():
            shutil.copy(package, self.folder)
        (deb,) = re.findall(r"as root: `(apt install .*?)`", readme)
        script = ["if pkg-config --exists tessaro; then exit 1; fi", "export DEBIAN_FRONTEND=noninteractive",
                  deb.replace("install", "install -y") + " >apt.log 2>&1 || { cat apt.log; exit 1; }"]  # fmt: skip
        for language in languages:
            place = language.save(self.folder / language.name)
            script += [f"cd '{place}'", "ln -s ../tessaro* .", language.commands]
        script += ["cd ..", "dpkg -r tessaro", "if ls /usr/lib/libtessaro* /usr/include/tessaro 2>/dev/null; then exit 1; fi"]
        run(here / "clean_root", self.folder, "bash", "-euxc", "\n".join(script))
        for language in languages:
            with self.subTest(language.name):
                self.look(self.folder / language.name)

    def test_any_prefix_by_cmake_and_pkg_config(self):
        prefix = self.unpack(f"tessaro-{version}-linux-x86_64.tar.gz")
        environment = dict(os.environ, PKG_CONFIG_PATH=str(prefix / "lib/pkgconfig"), LD_LIBRARY_PATH=str(prefix / "lib"))
        for language in languages[:2]:
            for how in ("cmake", "pkg-config"):
                with self.subTest(f"{language.name}, {how}"):
                    place = language.save(self.folder / how / language.name)
                    if how == "cmake":
                        (place / "CMakeLists.txt").write_text(
                            f"cmake_minimum_required(VERSION 3.13)\nproject(first)\nadd_executable(first {language.file})\n"
                            f"find_package(tessaro {version} REQUIRED)\ntarget_link_libraries(first PRIVATE tessaro::tessaro)\n"
                        )
                        run("cmake", "-S", place, "-B", place, f"-DCMAKE_PREFIX_PATH={prefix}")
                        run("cmake", "--build", place)
                        run(place / "first", cwd=place)
                    else:
                        run("sh", "-ec", language.commands, cwd=place, env=environment)
                    self.look(place)

    def test_windows(self):
        place = self.unpack(f"tessaro-{version}-windows.zip")
        for target, tools, triple in (("x64", "x86_64", "x86_64"), ("x86", "i686", "i686")):
            (place / target).joinpath("program").mkdir()
            wine = root / "cmake" / "wine" / target
            program = place / target / "program" / "first.exe"
            shutil.copy(place / target / "tessaro.dll", program.parent)
            for language, compiler in zip(languages, ("gcc-posix -std=c11", "g++-posix -std=c++17 -static")):
                with self.subTest(f"{target}, MinGW, {language.name}"):
                    file = language.save(program.parent) / language.file
                    run(*f"{tools}-w64-mingw32-{compiler}".split(), file, "-o", program, f"-I{place / 'include'}",
                        f"-L{place / target}", "-ltessaro")  # fmt: skip
                    run(wine, program, cwd=program.parent)
                    self.look(program.parent)
                    (program.parent / "first.bmp").unlink()
            with self.subTest(f"{target}, a linker in the manner of MSVC"):
                made = program.with_suffix(".obj")
                run("clang", f"--target={triple}-pc-windows-msvc", "-ffreestanding", "-O1", f"-I{place / 'include'}", "-c",
                    here / "calls.c", "-o", made)  # fmt: skip
                run("lld-link", "/entry:start", "/subsystem:console", "/nodefaultlib", "/safeseh:no", f"/out:{program}", made,
                    place / target / "tessaro.lib")  # fmt: skip
                run(wine, program, cwd=program.parent)

    def test_arm64(self):
        """By an emulated processor, which has this machine's libraries beside its own."""
        prefix = self.unpack(f"tessaro-{version}-linux-aarch64.tar.gz")
        place = languages[0].save(self.folder / "first")
        run("aarch64-linux-gnu-gcc", languages[0].file, "-o", "first", f"-I{prefix / 'include'}", f"-L{prefix / 'lib'}", "-ltessaro",
            cwd=place)  # fmt: skip
        run("qemu-aarch64", "first", cwd=place, env=dict(os.environ, LD_LIBRARY_PATH=str(prefix / "lib")))
        self.look(place)
        needs = run("dpkg-deb", "--field", packages / f"tessaro_{version}_arm64.deb", "Architecture", "Depends", "Recommends")
        self.assertRegex(needs, r"arm64\nDepends: libc6 .*\nRecommends: .*libjpeg")

    def test_made_again_they_are_the_same(self):
        again = self.folder / "again"
        environment = dict(os.environ, TZ="Asia/Kathmandu", LC_ALL="C", PYTHONHASHSEED="7")
        run("sh", "-c", 'umask 077 && exec "$@"', "-", sys.executable, "-B", here / "build.py", "--out", again, env=environment)
        self.assertEqual((again / "SHA256SUMS").read_text(), (packages / "SHA256SUMS").read_text())
        run("sha256sum", "--check", "--strict", "SHA256SUMS", cwd=packages)


if __name__ == "__main__":
    unittest.main(verbosity=2)
