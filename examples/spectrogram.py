"""Draws a spectrogram: time to the right, pitch upwards, the louder the brighter.

spectrogram.py voice.wav out.png [--width 800] [--height 256]
"""

import argparse
import array
import math
import sys
from pathlib import Path

from tessaro import Image, Sound, functions

N = 2048


def window():
    """A rise and a fall: without it the ends of a run would sound like clicks."""
    shape = array.array("h", (round(32767 * math.sin(math.pi * k / N) ** 2) for k in range(N)))
    return Sound(N, 44100, 16, 1, shape)


def palette():
    """256 colours from black over violet and orange to white."""
    stops = [(0, 0x000010), (80, 0x481070), (160, 0xE05030), (220, 0xFFC040), (255, 0xFFFFFF)]
    row = Image(256, 1)
    for (x0, left), (x1, right) in zip(stops, stops[1:]):
        left, right = 0xFF000000 | left, 0xFF000000 | right
        row.gradient(left, right, left, right, (x0, 0, x1 - x0 + 1, 1))
    return [row[x, 0] for x in range(256)]


def main():
    parser = argparse.ArgumentParser(description="Draws a spectrogram.")
    parser.add_argument("sound", type=Path)
    parser.add_argument("out", type=Path)
    parser.add_argument("--width", type=int, default=800)
    parser.add_argument("--height", type=int, default=256)
    given = parser.parse_args()

    sound = Sound.open(given.sound).convert(bits=16, channels=1)
    if sound.frames < N:
        sys.exit(f"a spectrogram needs {N} frames, this sound has {sound.frames}")
    colours, shape, image = palette(), window(), Image(given.width, given.height)
    # Rows are notes, not hertz: from 60 Hz to half the rate.
    top = math.log(sound.rate / 2 / 60)
    bins = [
        min(N // 2 - 1, round(60 * math.exp(top * (1 - y / given.height)) * N / sound.rate))
        for y in range(given.height)
    ]
    for x in range(given.width):
        if x % 20 == 0:
            print(f"\r{100 * x // given.width} %", end="", file=sys.stderr)
        run = sound.cut((sound.frames - N) * x // max(given.width - 1, 1), N)
        functions.waveBltMul(run, shape, 0, 0, N, 1.0)
        levels = run.spectrum(0, N)
        for y, k in enumerate(bins):
            decibels = 20 * math.log10(levels[k] / N + 1e-9)
            image[x, y] = colours[max(0, min(255, int((decibels + 90) * 255 / 80)))]
    print("\r100 %", file=sys.stderr)
    image.save(given.out)


if __name__ == "__main__":
    main()
