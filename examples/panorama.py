"""Unwraps a round picture, as a mirror ball or a fisheye gives it, into a strip.

panorama.py disc.png strip.png [--width 768] [--inner 0.2]

The library's maps look a pixel up in an image of 256 columns by its colour, and in the row that its alpha
names. So a picture of coordinates, made once, moves every pixel to where it belongs; four of them reach
512 x 512 pixels.
"""

import argparse
import math
import sys
from pathlib import Path

from tessaro import Image, functions

TILE = 256


def coordinates(width, height, inner):
    """For each tile of the disc: where the strip's pixels lie in it, and a mask of those that do."""
    maps = {(i, j): (Image(width, height), Image(width, height)) for i in range(2) for j in range(2)}
    for y in range(height):
        print(f"\rrow {y + 1} of {height}", end="", file=sys.stderr)
        radius = TILE * (inner + (1 - inner) * y / height) - 1  # the rim is the bottom of the strip
        for x in range(width):
            angle = 2 * math.pi * x / width
            u, v = int(TILE + radius * math.cos(angle)), int(TILE - radius * math.sin(angle))
            source, mask = maps[u // TILE, v // TILE]
            column, row = u % TILE, v % TILE
            source[x, y] = row << 24 | column * 0x010101
            mask[x, y] = 0xFFFFFFFF
    print(file=sys.stderr)
    return maps


def unwrap(disc, width, inner=0.2):
    """The strip of a disc that fills its picture."""
    disc = disc.resize(2 * TILE, 2 * TILE)
    height = round(width * (1 - inner) / math.pi)
    strip = Image(width, height, 0xFF000000)
    for (i, j), (source, mask) in coordinates(width, height, inner).items():
        part = Image(width, height)
        tile = disc.crop(i * TILE, j * TILE, TILE, TILE)
        functions.BBIMapUCVA(part, source, tile, 0, 0, width, height, 0, 0)
        strip.blend(part.alpha_from(mask))
    return strip


def main():
    parser = argparse.ArgumentParser(description="Unwraps a round picture into a strip.")
    parser.add_argument("disc", type=Path)
    parser.add_argument("strip", type=Path)
    parser.add_argument("--width", type=int, default=768)
    parser.add_argument(
        "--inner", type=float, default=0.2, help="the part of the radius that is left out in the middle"
    )
    given = parser.parse_args()
    unwrap(Image.open(given.disc), given.width, given.inner).save(given.strip)


if __name__ == "__main__":
    main()
