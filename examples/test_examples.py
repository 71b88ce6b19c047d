"""Runs every example on the project's own media and looks at what it made."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from tessaro import Image, Sound, Turn, functions

here = Path(__file__).resolve().parent
media = here.parent / "gallery" / "media"


def level(image, x, y):
    """The brightness of a place, over 8 x 8 pixels."""
    colours = [image[x + i, y + j] for i in range(8) for j in range(8)]
    return sum((c & 255) + (c >> 8 & 255) + (c >> 16 & 255) for c in colours) / (3 * 64)


def peak(sound, start, count):
    samples = memoryview(sound.cut(start, count).array).cast("B").cast("h")
    return max(max(samples), -min(samples))


class Examples(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.out = Path(folder.name)

    def run_example(self, name, *arguments):
        run = subprocess.run(
            [sys.executable, here / name, *map(str, arguments)], capture_output=True, text=True
        )
        self.assertEqual(run.returncode, 0, run.stderr)
        return run

    def test_contact_sheet(self):
        (self.out / "pictures").mkdir()
        for k, path in enumerate(sorted(media.glob("*.[jp][pn]g")) * 2):
            (self.out / "pictures" / f"{k}{path.suffix}").write_bytes(path.read_bytes())
        (self.out / "pictures" / "broken.png").write_bytes(b"no picture" * 10)
        self.run_example(
            "contact_sheet.py", self.out / "pictures", self.out / "sheet.png", "--columns", 3, "--edge", 100
        )
        sheet = Image.open(self.out / "sheet.png")
        self.assertEqual(sheet.size, (12 + 3 * 112, 12 + 3 * 112))
        self.assertGreater(sheet.count_colours(), 5000)
        cat = Image.open(media / "cat.png").fit(100, 100)
        self.assertEqual(sheet.crop(12, 12 + (100 - cat.height) // 2, 100, cat.height), cat)

    def test_sprite_animation(self):
        self.run_example("sprite_animation.py", self.out, "--frames", 6)
        frames = [Image.open(path) for path in sorted(self.out.glob("*.png"))]
        self.assertEqual(len(frames), 6)
        balls = []
        for image in frames:  # where it is red, a ball is
            image[0, 0] = 0xFF87B5E8
            red = [
                x
                for x in range(240)
                for y in range(0, 160, 8)
                if image[x, y] >> 16 & 255 > 240 and image[x, y] & 255 < 120
            ]
            balls.append(sum(red) / len(red))
        self.assertGreater(balls[3], balls[0] + 120)
        self.assertGreater(balls[2], balls[1])

    def test_green_screen(self):
        studio = Image(451, 300).gradient(0xFF20C030, 0xFF30D040, 0xFF18A828, 0xFF20B830)
        cat = Image.open(media / "cat.png")
        head = Image(451, 300).ellipse(60, -60, 390, 320, [0xFF000000] * 2)
        studio.blend(cat.alpha_from(Image(451, 300).blit(head, rule="alpha")))
        studio.save(self.out / "actor.png")
        self.run_example(
            "green_screen.py", self.out / "actor.png", media / "rocket.jpg", self.out / "out.png"
        )
        made, rocket = Image.open(self.out / "out.png"), Image.open(media / "rocket.jpg").resize(451, 300)
        for x, y in ((5, 5), (440, 10), (4, 280)):  # the background, where there was green
            self.assertAlmostEqual(level(made, x, y), level(rocket, x, y), delta=12)
        for x, y in ((220, 120), (180, 200), (280, 90)):  # the cat, where there was a cat
            self.assertAlmostEqual(level(made, x, y), level(cat, x, y), delta=25)

    def test_auto_levels(self):
        (self.out / "in").mkdir()
        flat = Image.open(media / "cat.png").fade(Image(451, 300, 0xFF808080), 0.7)
        flat.save(self.out / "in" / "flat.png")
        self.run_example("auto_levels.py", self.out / "in", self.out / "out")
        made = Image.open(self.out / "out" / "flat.png")

        def spread(image):
            levels = [level(image, x, y) for x in range(0, 440, 20) for y in range(0, 290, 20)]
            return max(levels) - min(levels)

        self.assertGreater(spread(made), 2 * spread(flat))

    def test_panorama(self):
        rocket = Image.open(media / "rocket.jpg").resize(512, 256)
        rows = rocket.turn(Turn.RIGHT)  # a row a direction, a column a distance from the rim
        disc = Image(512, 512, 0xFF000000)
        functions.BBIDrawPolaCircle(disc, rows, 0, 0, 511, 511)
        disc.save(self.out / "disc.png")
        self.run_example("panorama.py", self.out / "disc.png", self.out / "strip.png", "--width", 512)
        strip = Image.open(self.out / "strip.png")
        self.assertEqual(strip.size, (512, 130))
        near = 0
        for x in range(8, 500, 40):
            for y in range(4, 110, 12):
                near += abs(level(strip, x, y) - level(rocket, x, 51 + y * 205 // 130)) < 40
        self.assertGreater(near, 13 * 9 * 0.8)

    def test_page_transition(self):
        for stencil in ("rings", "blinds", "wind"):
            arguments = (
                media / "cat.png",
                media / "rocket.jpg",
                self.out / stencil,
                "--stencil",
                stencil,
                "--frames",
                5,
            )
            self.run_example("page_transition.py", *arguments)
            frames = [Image.open(path) for path in sorted((self.out / stencil).glob("*.png"))]
            cat, rocket = Image.open(media / "cat.png"), Image.open(media / "rocket.jpg").resize(451, 300)
            self.assertEqual((frames[0], frames[-1]), (cat, rocket))
            changed = [functions.BBICompareAny(cat, image, 0xFFFFFF, 255) for image in frames]
            self.assertEqual(changed, sorted(changed), stencil)
            self.assertLess(changed[1], changed[3])

    def test_art_archive(self):
        run = self.run_example("art_archive.py", media, self.out / "art.tsa")
        self.assertRegex(run.stdout, r"inabeex +\d+ bytes")
        self.assertRegex(run.stdout, r"PNG +\d+ bytes")
        raw = sum(4 * w * h for w, h in (Image.open(p).size for p in media.glob("*.[jp][pn]g")))
        self.assertLess((self.out / "art.tsa").stat().st_size, 0.6 * raw)
        self.run_example("art_archive.py", "--unpack", self.out / "art.tsa", self.out / "again")
        for path in media.glob("*.[jp][pn]g"):
            self.assertEqual(Image.open(self.out / "again" / (path.stem + ".png")), Image.open(path))

    def test_voice_over(self):
        music = Sound(44100 * 3)
        for hertz in (220, 277, 330, 440):
            music.tone(hertz, 0.2)
        music.save(self.out / "music.wav")
        self.run_example("voice_over.py", media / "voice.wav", self.out / "music.wav", self.out / "out.wav")
        voice, mixed = Sound.open(media / "voice.wav"), Sound.open(self.out / "out.wav")
        self.assertEqual(mixed.frames, voice.frames + 44100)
        self.assertLess(peak(mixed, 0, mixed.frames), 32767)  # nothing was cut off
        for start in range(0, mixed.frames - 22050, 22050):
            self.assertGreater(peak(mixed, start, 22050), 1500)

    def test_spectrogram(self):
        Sound(44100).tone(1000, 0.5).save(self.out / "tone.wav")
        self.run_example(
            "spectrogram.py", self.out / "tone.wav", self.out / "out.png", "--width", 40, "--height", 100
        )
        image = Image.open(self.out / "out.png")
        rows = [sum(image[x, y] & 0xFFFF for x in range(40)) for y in range(100)]
        self.assertAlmostEqual(
            rows.index(max(rows)), 52, delta=2
        )  # log(1000 / 60) of log(22050 / 60): 48 % up
        self.assertLess(rows[0], max(rows) / 4)  # and quiet at the top

    def test_echo(self):
        click = Sound(22050)
        memoryview(click.array).cast("B")[400:404] = b"\xff\x5f" * 2
        click.save(self.out / "click.wav")
        self.run_example(
            "echo.py", self.out / "click.wav", self.out / "out.wav", "--delay", 100, "--echoes", 3
        )
        wet = Sound.open(self.out / "out.wav")
        first, second = peak(wet, 100 + 4410 - 5, 12), peak(wet, 100 + 2 * 4410 - 5, 12)
        self.assertGreater(first, second)
        self.assertGreater(second, 300)
        self.assertEqual(peak(wet, 200, 4200), 0)  # silence between the click and its first echo


if __name__ == "__main__":
    unittest.main()
