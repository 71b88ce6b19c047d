"""The wheel: the same bytes twice, the right platform, and all tests pass where nothing else is installed.

    wheel_test.py LIBRARY
"""

import os
import struct
import subprocess
import sys
import tempfile
import unittest
import zipfile
from pathlib import Path

here = Path(__file__).resolve().parent
library = Path(sys.argv.pop()).resolve() if len(sys.argv) > 1 else None


def builder():
    """An interpreter that has what builds wheels: this one, or the system's."""
    for python in (sys.executable, "/usr/bin/python3"):
        if (
            subprocess.run(
                [python, "-c", "import setuptools, wheel, venv, ensurepip"], capture_output=True
            ).returncode
            == 0
        ):
            return python
    raise RuntimeError(
        "wheels are built with setuptools and wheel (Debian: python3-setuptools python3-wheel python3-venv)"
    )


def build(out, library, **environment):
    command = [builder(), here / "build_wheel.py", "--library", library, "--out", out]
    run = subprocess.run(
        command, env=dict(os.environ, **environment), check=True, stdout=subprocess.PIPE, text=True
    )
    return Path(run.stdout.strip())


class Wheel(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def test_built_twice_it_is_the_same(self):
        first = build(self.folder / "first", library, SOURCE_DATE_EPOCH="1700000000")
        second = build(self.folder / "second", library, SOURCE_DATE_EPOCH="1700000000")
        self.assertEqual(first.read_bytes(), second.read_bytes())
        moments = {entry.date_time for entry in zipfile.ZipFile(first).infolist()}
        self.assertEqual(moments, {(2023, 11, 14, 22, 13, 20)})
        self.assertRegex(first.name, r"^tessaro-[0-9.]+-py3-none-manylinux_2_\d+_\w+\.whl$")

    def test_libraries_of_windows(self):
        for machine, tag in ((0x8664, "win_amd64"), (0x14C, "win32")):
            dll = self.folder / "tessaro.dll"
            dll.write_bytes(struct.pack("<2s58xI4sH", b"MZ", 64, b"PE", machine))
            wheel = build(self.folder / tag, dll)
            self.assertTrue(wheel.name.endswith(f"-py3-none-{tag}.whl"), wheel.name)
            self.assertIn("tessaro/tessaro.dll", zipfile.ZipFile(wheel).namelist())

    def test_it_works_where_nothing_else_is(self):
        wheel = build(self.folder, library)
        place = self.folder / "venv"
        subprocess.run([builder(), "-m", "venv", place], check=True)
        python = place / "bin" / "python"
        subprocess.run([python, "-m", "pip", "-q", "install", "--no-index", wheel], check=True)
        alone = {
            name: value for name, value in os.environ.items() if not name.startswith(("PYTHON", "TESSARO"))
        }
        tests = [python, "-B", "-m", "unittest", "discover", "-s", here / "tests"]
        run = subprocess.run(tests, cwd=place, env=alone, capture_output=True, text=True)
        self.assertEqual(run.returncode, 0, run.stderr)
        if any("libtessaro-pictures" in name for name in zipfile.ZipFile(wheel).namelist()):
            (place / "libgif.so.7").touch()  # stands for one that is not there
            said = subprocess.run(
                [python, "-c", "import sys, tessaro; print(tessaro.Image(2, 2)); tessaro.Image.open(sys.argv[1])",
                 here.parents[1] / "gallery" / "media" / "cat.png"],
                cwd=place, env=dict(alone, LD_LIBRARY_PATH=str(place)), capture_output=True, text=True,
            )  # fmt: skip
            self.assertIn("2 x 2", said.stdout, said.stderr)
            self.assertRegex(said.stderr, "a library for picture files is missing .*libgif")


if __name__ == "__main__":
    unittest.main()
