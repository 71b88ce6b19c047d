"""Puts what stands before a green screen into another picture.

green_screen.py actor.png background.jpg out.png [--gain 3]
"""

import argparse
from pathlib import Path

from tessaro import From, Image, functions


def channel(image, which):
    """One channel as a grey picture."""
    grey = Image(image.width, image.height)
    functions.BBIChooseRGBA(grey, image, which, which, which, which)
    return grey


def cut_out(actor, gain=3):
    """Makes green transparent: the more, the further it stands out over red and blue."""
    green = channel(actor, From.GREEN)
    others = channel(actor, From.RED).blit(channel(actor, From.BLUE), rule="lighter")
    greenness = green.copy().blit(others, rule="subtract")
    step = greenness.copy()
    for _ in range(gain - 1):
        greenness.blit(step, rule="add")  # the sum ends at 255: clear green is quite transparent
    cut = actor.copy().alpha_from(Image(actor.width, actor.height).blit(greenness, rule="invert"))

    # Green that shines onto the edges: no pixel is greener than it is red or blue.
    limit = Image(actor.width, actor.height, 0xFFFFFFFF)
    functions.BBIChooseRGBA(
        limit, others, From.DST | From.RED, From.GREEN, From.DST | From.BLUE, From.DST | From.ALPHA
    )
    return cut.blit(limit, rule="darker")


def main():
    parser = argparse.ArgumentParser(
        description="Puts what stands before a green screen into another picture."
    )
    parser.add_argument("actor", type=Path)
    parser.add_argument("background", type=Path)
    parser.add_argument("out", type=Path)
    parser.add_argument("--gain", type=int, default=3, help="how soon green counts as the screen")
    given = parser.parse_args()

    actor = Image.open(given.actor)
    scene = Image.open(given.background).resize(actor.width, actor.height)
    scene.blend(cut_out(actor, given.gain)).save(given.out)


if __name__ == "__main__":
    main()
