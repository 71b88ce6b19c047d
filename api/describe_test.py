#!/usr/bin/env python3
"""Plants mistakes in a copy of the headers, one at a time, and expects describe.py to find each at its place."""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
PIXEL, EXPORTS, JSON = "include/tessaro/pixel.h", "src/exports/exports.txt", "api/tessaro.json"

MISTAKES = [  # file, what stands there, what is put there, what is said of it
    (PIXEL, "@param[in] bits", "@param bits", "bits: no direction"),
    (PIXEL, "@param[in] a [count words]", "@param[out] a [count words]", "a: [out] for a const uint32_t*"),
    (PIXEL, "[count words] The pixels.", "The pixels.", "src: no bracket"),
    (PIXEL, "[count words] The pixels.", "[count] The pixels.", "'count' has no size"),
    (PIXEL, "[count words] The pixels.", "[(count words] The pixels.", "'(count' is no expression"),
    (PIXEL, "[count words] The pixels.", "[2 * n words] The pixels.", "'n' in '2 * n' is neither"),
    (PIXEL, "[pixels, trusted] How many.", "[pixel, trusted] How many.", "'pixel' is no unit"),
    (PIXEL, "[pixels, trusted] How many.", "[pixels] How many.", "measured by count"),
    (PIXEL, "[pixels, trusted] How many.", "[pixels, trusted]", "count: no meaning"),
    (PIXEL, "[one of TessaroFormat]", "[one of TessaroForms]", "no enumeration TessaroForms"),
    (PIXEL, "@param[in,out] dst [image]", "@param[in,out] dst [sound]", "dst: [sound] for a ImageRecord*"),
    (PIXEL, "@param level ", "@param lewel ", "lewel"),
    (PIXEL, "@param level ", "", "nothing says what level is"),
    (PIXEL, "@retval 2 ", "@retval two ", "'two' is no number"),
    (PIXEL, "@retval 2 ", "@result 2 ", "unknown command @result"),
    (PIXEL, "@see BBIPaintChoose", "@see BBIPaintChose", "BBIPaintChose, which is no function"),
    (PIXEL, "/** Adds: `min", "/* Adds: `min", "BBIBltAdd has no description"),
    (PIXEL, "/** Copies: `s`. */", "/** Copies s < d. */", "have to stand in backticks"),
    (PIXEL, "/**< The alpha of `a` is 0. */", "", "TESSARO_COMPARE_TRANSPARENT has no description"),
    (PIXEL, "/** @} */", "", "a group inside another"),
    (EXPORTS, "\nBBIBltMul\n", "\n", "BBIBltMul is not listed"),
    (EXPORTS, "\nBBIBltMul\n", "\nBBIBltMul\nBBIBltDiv\n", "BBIBltDiv is in no header"),
    (EXPORTS, "wave = BBI", "wave", "wave has no description"),
    (JSON, '"unit": "words"', '"unit": "bytes"', "not what the headers say"),
]


class Mistakes(unittest.TestCase):
    def test_each_is_found(self):
        with tempfile.TemporaryDirectory() as copy:
            for part in ("api", "include", "src/exports"):
                shutil.copytree(os.path.join(ROOT, part), os.path.join(copy, part))
            shutil.copy(os.path.join(ROOT, "CMakeLists.txt"), copy)
            for file, right, wrong, message in MISTAKES:
                with self.subTest(message):
                    path = os.path.join(copy, file)
                    with open(path, encoding="utf-8") as source:
                        text = source.read()
                    self.assertIn(right, text)
                    with open(path, "w", encoding="utf-8") as source:
                        source.write(text.replace(right, wrong, 1))
                    run = subprocess.run([sys.executable, os.path.join(copy, "api", "describe.py"), "--check"],
                                         stderr=subprocess.PIPE, text=True, check=False)
                    with open(path, "w", encoding="utf-8") as source:
                        source.write(text)
                    self.assertEqual(run.returncode, 1)
                    self.assertTrue(any(line.startswith(file + ":") and message in line or
                                        file == EXPORTS and message in line for line in run.stderr.splitlines()),
                                    run.stderr[-2000:])


if __name__ == "__main__":
    unittest.main()
