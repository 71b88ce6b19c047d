"""The layer made from the description: nothing gets by that would corrupt memory, and everything else does."""

import ctypes
import json
import re
import struct
import threading
import time
import unittest
from array import array
from pathlib import Path

from tessaro import constants, functions

api = json.loads((Path(__file__).resolve().parents[3] / "api" / "tessaro.json").read_text())
blocking = {"ThreadBegin", "ThreadKill"}


def record(width=8, height=6, pitch=None, pixels=10, dims=4, room=0):
    """A buffer with an image record at its start."""
    pitch = 4 * width if pitch is None else pitch
    head = struct.pack("<hh", dims, pixels).ljust(max(dims, 4), b"\0") + struct.pack(
        "<hhh", width, height, pitch
    )
    return bytearray(head.ljust(pixels, b"\0") + bytes(4 * width * height + room))


def plain(p):
    """An argument that does no harm: counts are small, images and sounds have a few pixels and frames."""
    kind = p["kind"]
    if kind == "image":
        return record()
    if kind == "sound":
        return (44100 * 256 + 16 + 2, 32, bytearray(8 << 20))
    if kind == "memory":
        return bytearray()
    if kind == "address":
        return bytearray(64)
    if kind == "function":
        return lambda *arguments: 0
    if kind == "handle":
        return None
    return {"bits": 16, "format": 565, "index": 1}.get(p["name"], 2)


class Sizes(unittest.TestCase):
    def test_every_stated_size_is_the_limit(self):
        checked = 0
        for f in api["functions"]:
            if f["name"] in blocking:
                continue
            call = getattr(functions, f["name"])
            arguments = [plain(p) for p in f["parameters"]]
            memories = [
                k for k, p in enumerate(f["parameters"]) if p["kind"] == "memory" and p["name"] != "text"
            ]
            wanted = {}
            for _ in memories:  # each call tells of the first buffer that is too short
                try:
                    call(*arguments)
                except ValueError as error:
                    name, size = re.match(r"(\w+): (\d+) bytes are needed", str(error)).groups()
                    at = [p["name"] for p in f["parameters"]].index(name)
                    wanted[at] = int(size)
                    arguments[at] = bytearray(int(size))
            with self.subTest(f["name"]):
                self.assertLessEqual(set(wanted), set(range(len(arguments))))
                call(*arguments)
                for at, size in wanted.items():
                    p = f["parameters"][at]
                    less = arguments[:at] + [bytearray(size - 1)] + arguments[at + 1 :]
                    with self.assertRaisesRegex(
                        ValueError, rf"^{p['name']}: {size} bytes are needed, {size - 1} given"
                    ):
                        call(*less)
                    if "out" in p["direction"]:
                        sealed = arguments[:at] + [bytes(size)] + arguments[at + 1 :]
                        with self.assertRaisesRegex(ValueError, p["name"] + " is written"):
                            call(*sealed)
                    checked += 1
                if memories and not f["name"].startswith("BBIColorPalette"):
                    self.assertTrue(wanted or any(p["name"] == "written" for p in f["parameters"]))
        self.assertGreater(checked, 150)

    def test_images_that_lie_are_refused(self):
        good = record()
        self.assertEqual(functions.BBIClear(good, 1, 2, 3, 4), 0)
        self.assertEqual(good[-4:], bytes([3, 2, 1, 4]))
        lies = [
            good[:-1],  # a byte too short
            record(pixels=4),  # pixels over the dimensions
            record(height=7)[: len(good)],
            record(pitch=33),
            record(pitch=-32),  # rows upwards from the first, before the memory
            record(dims=-6),
            good[:8],
            b"",
        ]
        for lie in lies:
            with self.subTest(lie=bytes(lie[:10])), self.assertRaisesRegex(ValueError, "image"):
                functions.BBIClear(lie, 0, 0, 0, 0)
        with self.assertRaisesRegex(ValueError, "read-only"):
            functions.BBIClear(bytes(good), 0, 0, 0, 0)
        self.assertEqual(functions.BBIColorCount(bytes(good), 0), 1)  # but it can be read
        with self.assertRaises(TypeError):
            functions.BBIClear(None, 0, 0, 0, 0)

    def test_sounds_that_lie_are_refused(self):
        stereo16 = 44100 * 256 + 16 + 2
        with self.assertRaisesRegex(ValueError, "dst: 10 frames need 40 bytes, 39 given"):
            functions.waveClear64((stereo16, 10, bytearray(39)), 0, 10)
        self.assertEqual(functions.waveClear64((7, 10, bytearray(1)), 0, 10), 1)  # no format, no memory
        ring = (44100 * 256 + 64 + 1, 524288, bytearray(524288 * 8))
        with self.assertRaisesRegex(ValueError, "ring: 8388608 bytes"):  # one channel, but always used as two
            place = bytearray(4)
            sound = (stereo16, 10, bytearray(40))
            functions.waveEffectReverbA1(sound, place, ring, place, 10, 1.0, 10, 1, 1, bytes(240000))

    def test_frames_of_unknown_widths_are_measured_as_the_library_takes_them(self):
        left, right = array("i", [7]), array("i", [7])
        for bits, channels, size in ((8, 1, 4), (16, 2, 16), (12, 2, 24), (64, 7, 12), (-1, -2, 12)):
            with self.subTest(bits=bits, channels=channels):
                self.assertEqual(functions.GetWave(bytes(size), 3, bits, channels, 4, left, right), 0)
                with self.assertRaises(ValueError):
                    functions.GetWave(bytes(size - 1), 3, bits, channels, 4, left, right)


class Arguments(unittest.TestCase):
    def test_numbers(self):
        image = record()
        for colour in (0xFFFF0000, -0x10000):
            self.assertEqual(functions.BBIDrawColorFill(image, 0, 0, 1, 1, 0, colour), 0)
            self.assertEqual(image[10:14], b"\0\0\xff\xff")
        with self.assertRaisesRegex(OverflowError, "x does not fit"):
            functions.BBIDrawColorFill(image, 1 << 32, 0, 1, 1, 0, 0)
        with self.assertRaises(TypeError):
            functions.BBIDrawColorFill(image, 0.5, 0, 1, 1, 0, 0)
        with self.assertRaises(ValueError):  # not wrapped to a huge one behind the check's back
            functions.iwave11Encoder(b"ab", bytearray(2), -1, bytearray(4))
        with self.assertRaisesRegex(ValueError, "n must be at least 1"):  # 0 would fault
            functions.GetRandom(0)
        self.assertEqual(functions.GetRandom(1), 0)

    def test_buffers_of_every_kind(self):
        source = bytes(range(200))
        for made in (
            source,
            bytearray(source),
            memoryview(source)[0:200],
            array("B", source),
            (ctypes.c_ubyte * 200)(*source),
        ):
            out, written = array("B", bytes(200)), ctypes.c_uint32()
            self.assertEqual(functions.iwave11Encoder(made, out, 200, written), 0)
            self.assertEqual(written.value, 200)
            back = bytearray(200)
            functions.iwave11Decoder(memoryview(out), back, 200)
            self.assertEqual(back, source)
        with self.assertRaisesRegex(ValueError, "contiguous"):
            functions.iwave11Decoder(memoryview(source)[::2], bytearray(9), 9)

    def test_upward_blocks(self):
        block, other = bytearray(12), bytes(range(12))
        self.assertEqual(functions.CopyMemoryEx(block, other, 1, 3, -4), 0)
        self.assertEqual(block, other)
        with self.assertRaisesRegex(ValueError, "12 bytes are needed"):
            functions.CopyMemoryEx(block[1:], other, 1, 3, -4)

    def test_peeks_stay_inside_a_buffer(self):
        memory = bytearray(b"\1\0\2\0\3\0")
        self.assertEqual(functions.GetWORD(memory, 2), 3)
        for index in (3, -1):
            with self.assertRaisesRegex(ValueError, "outside"):
                functions.SetWORD(memory, index, 1)
        kept = ctypes.c_uint32(0x12345678)
        self.assertEqual(functions.GetLong(ctypes.addressof(kept), 0), 0x12345678)

    def test_texts(self):
        self.assertEqual(functions.hash32A(b""), 0xA82976E5)
        long = b"x" * 64
        self.assertEqual(functions.hash32A(long), functions.hash32A(long + b"y"))
        self.assertNotEqual(functions.hash32A(b"a"), functions.hash32A(b"b"))

    def test_trusting_decoders_read_no_further_than_their_buffer(self):
        source = bytes(4096)
        twins = [f["name"][:-7] for f in api["functions"] if f["name"].endswith("Decoder")]
        twins = [t for t in twins if hasattr(functions, t + "DecoderSafe")]
        self.assertEqual(len(twins), 8)
        for name in twins:
            stream, written, back = bytearray(4096), ctypes.c_uint32(), bytearray(4096)
            self.assertEqual(getattr(functions, name + "Encoder")(source, stream, 4096, written), 0)
            decode = getattr(functions, name + "Decoder")
            self.assertEqual(decode(stream[: written.value], back, 4096), 0, name)
            self.assertEqual(back, source)
            self.assertEqual(decode(stream[: written.value // 2], back, 4096), 1, name)
            self.assertEqual(decode(b"", bytearray(), 0), 0 if "ib18" in name or "inabe" in name else 1, name)

    def test_functions_of_the_host(self):
        self.assertEqual(functions.dllMethod1(lambda a: a + 1, 41), 42)
        self.assertEqual(functions.dllMethod4(lambda a, b, c, d: a + b + c + d, 1, 2, 3, -4), 2)
        self.assertEqual(functions.StdCallBack(lambda a, b: a - b, 50, 8), 42)
        self.assertEqual(functions.ThreadKill(), 1)
        calls = []
        worker = threading.Thread(
            target=functions.ThreadBegin, args=(lambda: calls.append(time.sleep(0.001)),)
        )
        worker.start()
        while not calls:
            time.sleep(0.001)
        self.assertEqual(functions.ThreadKill(), 0)
        worker.join()


class Form(unittest.TestCase):
    def test_all_are_there_and_described(self):
        names = [f["name"] for f in api["functions"]]
        self.assertEqual(functions.__all__, names)
        for f in api["functions"]:
            self.assertTrue(
                getattr(functions, f["name"]).__doc__.startswith(f["brief"].split("`")[0].split("\\")[0])
            )
        named = {c["value"] for e in api["enums"] for c in e["constants"]}
        made = {m.value for n in constants.__all__ for m in getattr(constants, n).__members__.values()}
        self.assertEqual(named, made)


if __name__ == "__main__":
    unittest.main()
