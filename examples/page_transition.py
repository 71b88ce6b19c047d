"""A page gives way to the next, led by a stencil: frames as PNG files.

page_transition.py before.png after.png FOLDER [--stencil rings|blinds|wind] [--frames 12] [--softness 0.3]
"""

import argparse
import sys
from pathlib import Path

from tessaro import Image, functions


def stencil(kind, width, height):
    """An image whose alpha says when a pixel turns: low values go first."""
    image = Image(width, height)
    if kind == "rings":  # from the middle outwards
        ramp = Image(256, 1)
        for x in range(256):
            ramp[x, 0] = (255 - x) << 24
        image.fill(0xFF000000).ellipse(-width // 4, -height // 4, width * 5 // 4, height * 5 // 4, ramp)
    elif kind == "blinds":
        for x in range(0, width, 32):
            image.gradient(0x00000000, 0xFF000000, 0x00000000, 0xFF000000, (x, 0, min(32, width - x), height))
    else:  # streaks, blown from the left
        for y in range(height):
            late = functions.GetRandom(96) << 24
            image.gradient(late, late + 0x9F000000, late, late + 0x9F000000, (0, y, width, 1))
        image.blur(2)
    return image


def main():
    parser = argparse.ArgumentParser(description="Turns one picture into another.")
    parser.add_argument("before", type=Path)
    parser.add_argument("after", type=Path)
    parser.add_argument("out", type=Path, help="a folder for the frames")
    parser.add_argument("--stencil", default="rings", choices=("rings", "blinds", "wind"))
    parser.add_argument("--frames", type=int, default=12)
    parser.add_argument("--softness", type=float, default=0.3, help="0 is a hard edge")
    given = parser.parse_args()

    before = Image.open(given.before)
    after = Image.open(given.after).resize(before.width, before.height)
    lead = stencil(given.stencil, before.width, before.height)
    given.out.mkdir(parents=True, exist_ok=True)
    for k in range(given.frames):
        print(f"\rframe {k + 1} of {given.frames}", end="", file=sys.stderr)
        page = Image(before.width, before.height)
        functions.BBIStencilFlipLE(
            page,
            before,
            after,
            lead,
            0,
            0,
            page.width,
            page.height,
            0,
            0,
            k / max(given.frames - 1, 1),
            given.softness,
        )
        page.save(given.out / f"{k:03}.png")
    print(file=sys.stderr)


if __name__ == "__main__":
    main()
