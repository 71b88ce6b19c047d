"""Images, sounds and streams as programs use them."""

import ctypes
import os
import struct
import subprocess
import sys
import tempfile
import threading
import time
import unittest
from pathlib import Path
from unittest import mock

import tessaro
from tessaro import Image, Sound, _pictures, functions

media = Path(__file__).resolve().parents[3] / "gallery" / "media"

try:
    import numpy
except ImportError:
    numpy = None
try:
    from PIL import Image as Pillow
except ImportError:
    Pillow = None


def noise(width, height, seed=1):
    image = Image(width, height)
    memory = image._memory()
    for k in range(len(memory)):
        seed = (seed * 1103515245 + 12345) & 0x7FFFFFFF
        memory[k] = seed >> 16 & 255
    return image


class Images(unittest.TestCase):
    def test_pixels_and_views(self):
        image = Image(5, 3, 0x80FF4020)
        self.assertEqual((image.size, image.pitch, image[4, 2]), ((5, 3), 20, 0x80FF4020))
        image.array[1, 2, 0] = 7  # blue
        self.assertEqual(image[2, 1], 0x80FF4007)
        self.assertEqual(memoryview(image.blue).tobytes()[7], 7)
        image[0, 0] = 0xFF000000
        self.assertEqual(memoryview(image.alpha).tobytes()[:2], b"\xff\x80")
        for place in ((5, 0), (0, 3), (-1, 0)):
            with self.assertRaises(IndexError):
                image[place]
        self.assertEqual(len(memoryview(Image(0, 9).array).tobytes()), 0)
        self.assertEqual(functions.BBIClear(image, 1, 2, 3, 300), 0)
        self.assertEqual(image, Image(5, 3, 0xFF010203))

    def test_sizes_that_cannot_be(self):
        with self.assertRaisesRegex(ValueError, "8191 pixels. Cut the picture into strips"):
            Image(8192, 1)
        with self.assertRaisesRegex(ValueError, "32767"):
            Image(1, 32768)
        self.assertEqual(Image(8191, 2).pitch, 32764)

    def test_a_host_s_own_memory(self):
        block = bytearray(2 + 3 * 8 + 10)  # two columns, three rows stored upwards, the record behind them
        struct.pack_into("<hhhhh", block, 26, 4, 2 + 2 * 8 - 26, 2, 3, -8)
        image = Image.from_buffer(block, 26)
        image.fill(0xFF102030, (0, 2, 2, 1))
        self.assertEqual(block[:12], b"\0\0" + b"\x30\x20\x10\xff" * 2 + b"\0\0")
        self.assertEqual(image.copy()[1, 2], 0xFF102030)
        with self.assertRaisesRegex(ValueError, "copy"):
            functions.BBIBltTo8AsAlpha(bytearray(6), image, 6)
        self.assertEqual(len(image.pack(tessaro.Format.FORMAT_565)), 12)
        struct.pack_into("<h", block, 26 + 6, 4)  # one row more than there is
        with self.assertRaisesRegex(ValueError, "lies"):
            image.fill(0)
        with self.assertRaisesRegex(ValueError, "lies"):
            Image.from_buffer(bytearray(3))

    def test_arrays_of_others(self):
        grey = memoryview(bytes(range(6))).cast("B", (2, 3))
        self.assertEqual(Image.from_array(grey)[2, 1], 0xFF050505)
        rgb = memoryview(bytes(range(12))).cast("B", (2, 2, 3))
        self.assertEqual(Image.from_array(rgb)[1, 0], 0xFF030405)
        self.assertEqual(Image.from_array(rgb, "BGR")[1, 0], 0xFF050403)
        rgba = memoryview(bytes(range(16))).cast("B", (2, 2, 4))
        self.assertEqual(Image.from_array(rgba)[0, 1], 0x0B08090A)
        self.assertEqual(memoryview(Image.from_array(rgba).to_rgba()).tobytes(), bytes(range(16)))
        for wrong in (
            memoryview(bytes(8)).cast("B", (2, 2, 2)),
            memoryview(bytes(4)),
            memoryview(bytes(8)).cast("h"),
        ):
            with self.assertRaises((TypeError, ValueError)):
                Image.from_array(wrong)

    @unittest.skipUnless(numpy, "numpy is not installed")
    def test_strides(self):
        rgba = noise(7, 5).to_rgba()
        straight = Image.from_array(rgba)
        self.assertEqual(Image.from_array(rgba[::-1]), straight.copy().flip())
        self.assertEqual(Image.from_array(rgba[:, ::-1]), straight.copy().mirror())
        self.assertEqual(Image.from_array(rgba[1:4, 2:6]), straight.crop(2, 1, 4, 3))
        self.assertEqual(Image.from_array(rgba[::2, :, :3]), Image.from_array(rgba[::2, :, :3].copy()))
        with self.assertRaisesRegex(TypeError, "float64"):
            Image.from_array(numpy.zeros((2, 2)))

    @unittest.skipUnless(Pillow, "Pillow is not installed")
    def test_pillow(self):
        image = noise(9, 4)
        self.assertEqual(Image.from_pillow(image.to_pillow()), image)
        for mode in ("RGB", "L", "P"):
            theirs = image.to_pillow().convert(mode)
            self.assertEqual(
                Image.from_pillow(theirs).to_pillow().tobytes(), theirs.convert("RGBA").tobytes()
            )

    def test_files(self):
        cat = Image.open(media / "cat.png")
        self.assertEqual(cat.size, (451, 300))
        self.assertEqual(cat[0, 0] >> 24, 255)
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "cat.png")
            self.assertEqual(Image.open(cat.save(path).to_png()), Image.open(path))
            self.assertEqual(Image.open(path), cat)
            with self.assertRaisesRegex(ValueError, "to_pillow"):
                cat.save(os.path.join(folder, "cat.jpg"))
        self.assertTrue(cat._repr_png_().startswith(b"\x89PNG"))
        clear = noise(20, 20)
        self.assertEqual(Image.open(clear.to_png()), clear)  # with alpha
        for bad in (b"x" * 100, b""):
            with self.assertRaises(ValueError):
                Image.open(bad)
        with self.assertRaisesRegex(ValueError, "26 times"):
            Image.open(Image(300, 10, 0xFF00FF00).to_png())
        with self.assertRaisesRegex(ValueError, "strips"):
            Image.open(Image.open(_wide_bitmap()).to_png())

    def test_a_device_of_windows(self):
        """There the picture comes by a bitmap of the system's, which is played here."""
        drawn = (ctypes.c_uint32 * 6)(*range(0xFF000001, 0xFF000007))
        asked = []

        def make_bitmap(device, header, usage, bits, section, offset):
            asked.extend(struct.unpack_from("<IiiHH", header._obj))
            bits._obj.value = ctypes.addressof(drawn)
            return 77

        system = mock.MagicMock()
        system.CreateDIBSection.side_effect = make_bitmap
        system.CreateCompatibleDC.return_value, system.SelectObject.return_value = 55, 66
        image = Image(3, 2)
        with mock.patch.object(ctypes, "WinDLL", lambda name: system, create=True):
            with mock.patch.object(functions, "DecodeImage") as decode:
                _pictures._decode_on_windows(image, b"file")
        self.assertEqual(asked, [40, 3, -2, 1, 32])
        self.assertEqual((decode.call_args[0], image[2, 1]), ((55, b"file", 4), 0xFF000006))

    def test_drawing(self):
        image = Image(40, 30, 0xFF000000)
        image.line(0, 0, 39, 0, 0xFFFF0000)
        self.assertEqual({image[x, 0] for x in range(40)}, {0xFFFF0000})
        image.gradient(0, 0xFF0000FF, 0, 0xFF0000FF, (0, 10, 40, 10))
        self.assertLess(image[1, 15] & 255, image[30, 15] & 255)
        image.ellipse(0, 0, 20, 20, [0xFF00FF00]).triangle(((30, 20), (39, 29), (30, 29)), 0xFFFFFFFF)
        self.assertEqual((image[10, 10], image[31, 28]), (0xFF00FF00, 0xFFFFFFFF))
        self.assertEqual(image.flood(31, 27, 0xFF123456)[:2], (30, 20))
        self.assertEqual(image.trim(0xFF000000), (0, 0, 40, 30))
        other = Image(40, 30, 0x80404040)
        for rule in ("add", "multiply", "key", "tone"):
            image.blit(other, 3, 4, rule=rule)
        image.blend(other, opacity=0.5).fade(other, 0.25).stretch(other, (0, 0, 10, 10), smooth=True)
        image.blur(2).saturate(0.0).levels().levels(how="gentle").tint(0xFFFF0000, 0.5)
        self.assertEqual(image.turn(tessaro.Turn.RIGHT).size, (30, 40))
        self.assertEqual(image.resize(10, 10).size, (10, 10))
        self.assertEqual(image.fit(20, 20).size, (20, 15))
        packed = image.pack(tessaro.Format.FORMAT_8888)
        self.assertEqual(Image.unpack(packed, 40, 30, 8888), image)

    def test_refusals_raise(self):
        image = Image(4, 4)
        for refused in (
            lambda: image.blit(image, 4, 0),
            lambda: image.fill(0, (0, 0, 0, 1)),
            lambda: image.fade(image, -1.0),
            lambda: Image(0, 0).levels(),
            lambda: image.line(0, 0, 1, 1, 0).ellipse(0, 0, 3, 3, Image(1, 1)),
        ):
            with self.assertRaises(tessaro.Refused):
                refused()
        with self.assertRaisesRegex(ValueError, "unknown rule"):
            image.blit(image, rule="melt")

    def test_two_threads_work_at_once(self):
        """Each tells the middle of its call; where one had to wait for the other, its middle is when that ended."""
        large = [Image(1500, 1000, 0xFF204060) for _ in range(2)]
        small = [noise(40, 30, k) for k in range(2)]
        both, middles = threading.Barrier(2), [None, None]

        def enlarge(k):
            both.wait()
            begin = time.perf_counter()
            functions.BBILinear(large[k], small[k])  # some hundredths of a second
            length = time.perf_counter() - begin
            middles[k] = begin + 0.4 * length, begin + 0.6 * length

        overlaps = 0
        for _ in range(60):  # a busy machine runs some one after the other
            threads = [threading.Thread(target=enlarge, args=(k,)) for k in range(2)]
            for thread in threads:
                thread.start()
            for thread in threads:
                thread.join()
            overlaps += max(middles[0][0], middles[1][0]) < min(middles[0][1], middles[1][1])
            if overlaps == 5:
                break
        self.assertEqual(overlaps, 5)
        for k in range(2):
            alone = Image(1500, 1000)
            functions.BBILinear(alone, small[k])
            self.assertEqual(large[k], alone)


def _wide_bitmap():
    """A bitmap of 9000 x 400 pixels, one bit each."""
    row = -(-9000 // 32) * 4
    return struct.pack(
        "<2sIIIIiiHHIIIIIIII",
        b"BM",
        62 + row * 400,
        0,
        62,
        40,
        9000,
        400,
        1,
        1,
        0,
        0,
        0,
        0,
        2,
        2,
        0,
        0xFFFFFF,
    ) + bytes(row * 400)


class Sounds(unittest.TestCase):
    def test_formats(self):
        for bits in (8, 16, 24, 64):
            for channels in (1, 2):
                sound = Sound(50, 8000, bits, channels).write(Sound(50).tone(441, 0.8))
                shape = (50, channels, 3) if bits == 24 else (50, channels)
                self.assertEqual(memoryview(sound.array).shape, shape)
                back = sound.convert(bits=64).convert(bits=bits)
                for a, b in zip(_integers(sound), _integers(back)):
                    self.assertLessEqual(abs(a - b), 1)
                self.assertEqual(Sound.open(sound.to_wav()).bits, 24 if bits == 64 else bits)
        for wrong in (dict(bits=12), dict(channels=3), dict(rate=10)):
            with self.assertRaises(ValueError):
                Sound(1, **wrong)
        with self.assertRaisesRegex(ValueError, "200 bytes"):
            Sound(50, data=bytearray(199))
        self.assertEqual(Sound(3, bits=8)._memory(), b"\x80" * 6)

    def test_files(self):
        voice = Sound.open(media / "voice.wav")
        self.assertEqual((voice.rate, voice.channels, voice.bits, voice.frames), (44100, 2, 16, 258740))
        self.assertEqual(Sound.open(voice.to_wav())._memory(), voice._memory())
        half = voice.convert(rate=22050)
        self.assertEqual((half.frames, half.rate), (129370, 22050))
        for bad in (b"", b"RIFF", voice.to_wav()[:30]):
            with self.assertRaisesRegex(ValueError, "WAV"):
                Sound.open(bad)

    def test_work(self):
        tone = Sound(8192).tone(44100 / 8192 * 64, 0.5)
        strongest = list(tone.spectrum(0, 8192))
        self.assertEqual(strongest.index(max(strongest)), 64)
        with self.assertRaisesRegex(ValueError, "outside"):
            tone.spectrum(1, 8192)
        with self.assertRaisesRegex(ValueError, "power of two"):
            tone.spectrum(0, 1000)
        loud = tone.copy().mix(tone)
        self.assertGreater(_peak(loud), 1.9 * _peak(tone))
        self.assertEqual(_peak(tone.copy().silence()), 0)
        self.assertLess(_peak(tone.smooth(60)), _peak(tone))
        with self.assertRaisesRegex(ValueError, "convert"):
            tone.convert(bits=64).mix(tone)  # or doubles would be taken for 24 bits

    def test_effects_keep_their_state(self):
        quiet = Sound(44100).tone(440, 0.1)
        maximizer = tessaro.Maximizer(growth=1.05)
        first = maximizer.apply(quiet.copy())
        self.assertGreater(_peak(first), 2 * _peak(quiet))
        self.assertGreater(maximizer.gains[0], 2)
        self.assertGreater(_peak(maximizer.apply(quiet.copy())), 2 * _peak(quiet))
        loud = Sound(44100, bits=64).write(Sound(44100).tone(440, 0.999))
        tessaro.Limiter().apply(loud)
        self.assertLess(_peak(loud.convert(bits=16)), 0.6 * 32767)
        click, silence = Sound(1000, bits=16), Sound(4000, bits=16)
        click._memory()[:4] = struct.pack("<hh", 30000, 30000)
        reverb = tessaro.Reverb([(100.0, 100.0, 500)], predelay=2199)
        whole = Sound(5000).write(click)
        tessaro.Reverb([(100.0, 100.0, 500)], predelay=2199).apply(whole)
        reverb.apply(click)
        reverb.apply(silence)  # the echo comes in the second sound
        self.assertEqual(bytes(whole._memory()), bytes(click._memory()) + bytes(silence._memory()))
        self.assertGreater(_peak(silence), 1000)
        self.assertEqual(_integers(whole).index(_peak(silence)) // 2, 2000)


def _integers(sound):
    data = bytes(sound._memory())
    if sound.bits == 24:
        return [int.from_bytes(data[k : k + 3], "little", signed=True) for k in range(0, len(data), 3)]
    code = {8: "B", 16: "h", 64: "d"}[sound.bits]
    return [v for v in memoryview(data).cast(code)]


def _peak(sound):
    return max(map(abs, _integers(sound)))


class Streams(unittest.TestCase):
    def test_all_formats_give_back_what_they_took(self):
        picture = bytes(Image.open(media / "cat.png").crop(0, 0, 64, 64)._memory())
        flat = bytes(4000)
        for format in tessaro.formats + tessaro.transforms:
            for data in (picture, flat, b"abc", b"", flat[:3999]):
                if format == "ib18ex" and len(data) % 4:
                    continue
                stream = tessaro.encode(format, data)
                if stream is not None:
                    self.assertEqual(tessaro.decode(format, stream), data, format)
                    self.assertEqual(tessaro.decode(format, bytes(stream), len(data)), data, format)
            self.assertIsNotNone(tessaro.encode(format, flat), format)
        self.assertIsNone(tessaro.encode("inabe", os.urandom(4000)))
        self.assertEqual(len(tessaro.formats + tessaro.transforms), 19)

    def test_damage_raises(self):
        for format in tessaro.formats:
            stream = tessaro.encode(format, bytes(range(100)) * 100 + bytes(10000))
            if stream is None:
                continue
            with self.assertRaises(tessaro.DamagedStream, msg=format):
                tessaro.decode(format, stream[: len(stream) // 2], stream.length)
        with self.assertRaises(tessaro.DamagedStream):
            tessaro.decode("iwave11", b"abc", 4)
        with self.assertRaisesRegex(TypeError, "length"):
            tessaro.decode("io", b"abc")
        with self.assertRaisesRegex(ValueError, "stream of io, not of i$"):
            tessaro.decode("i", tessaro.encode("io", bytes(1000)))
        with self.assertRaisesRegex(ValueError, "unknown format"):
            tessaro.encode("zip", b"")


class Loading(unittest.TestCase):
    def test_a_library_that_is_not_there_is_named(self):
        here = dict(os.environ, TESSARO_LIBRARY="/nowhere/libtessaro.so")
        if (Path(tessaro.__file__).parent / "libtessaro.so").exists():
            self.skipTest("the library lies beside the package")
        run = subprocess.run(
            [sys.executable, "-c", "import tessaro"], env=here, capture_output=True, text=True
        )
        self.assertRegex(run.stderr, "set TESSARO_LIBRARY(.|\n)*/nowhere/libtessaro.so")


if __name__ == "__main__":
    unittest.main()
