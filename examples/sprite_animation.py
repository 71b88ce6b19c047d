"""A ball that bounces and squashes, as PNG frames or, with Pillow, as one GIF.

sprite_animation.py FOLDER | ball.gif [--frames 30]
"""

import argparse
import math
import sys
from pathlib import Path

from tessaro import Image

WIDTH, HEIGHT, SIZE = 240, 180, 48
GROUND = 160


def soft(width, height, rim, centre):
    """An ellipse whose colour, alpha included, goes from that of the rim to that of the centre."""
    colours = Image(64, 1).gradient(rim, centre, rim, centre)
    return Image(width, height).ellipse(0, 0, width - 1, height - 1, colours)


def ball():
    """A sprite whose rim fades in over a few pixels, with a shine on it."""
    rings = [0x00FF5020 | min(255, 32 * k) << 24 for k in range(9)]
    rings += [0xFFFF5020 + 0x000201 * k for k in range(40)]
    sprite = Image(SIZE, SIZE).ellipse(0, 0, SIZE - 1, SIZE - 1, rings)
    return sprite.blend(soft(SIZE // 2, SIZE // 2, 0x00FFFFFF, 0xE0FFFFFF), SIZE // 5, SIZE // 10)


def frame(sprite, t):
    """The picture at a moment of 0 to 1."""
    image = Image(WIDTH, HEIGHT).gradient(0xFF87B5E8, 0xFF87B5E8, 0xFFE8F2FC, 0xFFE8F2FC)
    image.fill(0xFF5A8F4A, (0, GROUND, WIDTH, HEIGHT - GROUND))
    height = abs(math.sin(2 * math.pi * t))
    squash = max(0.0, 0.25 - height) * 1.2
    wide, high = round(SIZE * (1 + squash)), round(SIZE * (1 - squash))
    x = round(20 + (WIDTH - 40 - SIZE) * (0.5 - 0.5 * math.cos(2 * math.pi * t)))
    y = round(GROUND + 6 - high - height * 90)
    image.blend(soft(SIZE, 16, 0x00000000, 0xC0000000), x, GROUND, opacity=1 - 0.7 * height)
    return image.stretch(sprite, (x - (wide - SIZE) // 2, y, wide, high), by_alpha=True)


def main():
    parser = argparse.ArgumentParser(description="Writes a small animation.")
    parser.add_argument("out", type=Path, help="a folder for PNG frames, or a GIF file")
    parser.add_argument("--frames", type=int, default=30)
    given = parser.parse_args()

    sprite, frames = ball(), []
    for k in range(given.frames):
        print(f"\rframe {k + 1} of {given.frames}", end="", file=sys.stderr)
        frames.append(frame(sprite, k / given.frames))
    print(file=sys.stderr)
    if given.out.suffix.lower() == ".gif":
        first, *others = (image.to_pillow().convert("RGB") for image in frames)
        first.save(given.out, save_all=True, append_images=others, duration=40, loop=0)
    else:
        given.out.mkdir(parents=True, exist_ok=True)
        for k, image in enumerate(frames):
            image.save(given.out / f"{k:03}.png")


if __name__ == "__main__":
    main()
