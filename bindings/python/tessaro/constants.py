"""The named constants of the library.

Made by generate.py from the description of the library; changes here are lost.
"""

from enum import IntEnum, IntFlag


class CpuLevel(IntEnum):
    """Levels of a processor."""

    #: No packed integers.
    BASIC = 2
    #: No packed integers, but conditional moves.
    CMOV = 3
    #: MMX.
    MMX = 4
    #: MMX and SSE.
    MMX_SSE = 12
    #: MMX and SSE2 without SSE.
    MMX_SSE2 = 20
    #: MMX, SSE and SSE2.
    SSE2 = 28


class Format(IntEnum):
    """Pixel formats, with A, R, G and B the bytes of a pixel."""

    #: 4 bytes: the word 0xAARRGGBB.
    FORMAT_8888 = 8888
    #: 3 bytes: blue, green, red. Unpacked with alpha 0.
    FORMAT_888 = 888
    #: 2 bytes: `R >> 3 << 11 | G >> 2 << 5 | B >> 3`. Unpacked with alpha 0.
    FORMAT_565 = 565
    #: 2 bytes: `R >> 3 << 10 | G >> 3 << 5 | B >> 3`. Unpacked with alpha 0, whatever bit 15 is.
    FORMAT_555 = 555
    #: 2 bytes: `A >> 7 << 15`, the rest as in 555. Unpacked with alpha 0x80 or 0.
    FORMAT_1555 = 1555
    #: 2 bytes: `A >> 4 << 12 | R >> 4 << 8 | G >> 4 << 4 | B >> 4`. Unpacked with each four bits on top
    #: of their byte.
    FORMAT_4444 = 4444


class Compare(IntEnum):
    """What `BBICompare` tests."""

    #: All 32 bits of both are equal.
    PIXELS = 0
    #: The colours of both are equal.
    COLOURS = 1
    #: The alphas of both are equal.
    ALPHAS = 2
    #: The alpha of `a` is 0.
    TRANSPARENT = 4
    #: The alpha of `a` is 255.
    OPAQUE = 5
    #: The colour of `a` is 0x000000 or 0xFFFFFF.
    BLACK_WHITE = 6
    #: Blue, green and red of `a` are equal.
    GREY = 7


class Turn(IntEnum):
    """Turns of an image."""

    #: A quarter clockwise: column x, row y goes to column `height - 1 - y`, row `x`.
    RIGHT = 0
    #: A half: to column `width - 1 - x`, row `height - 1 - y`.
    HALF = 1
    #: A quarter counter-clockwise: to column `y`, row `width - 1 - x`.
    LEFT = 2


class Render(IntEnum):
    """What BBILinearRender does with a sample s, with the weight a = table[alpha of s]."""

    #: d = mix(d, s, a); any number but the others as well.
    MIX = 0
    #: `d = min(d + (s * a >> 8), 255)` per channel, alpha included.
    ADD = 1
    #: The colours of s become mix(s, tint, table[alpha of tint]), then as mixing.
    TINT = 2
    #: The same tint, then as adding.
    TINT_ADD = 3


class Choose(IntFlag):
    """What BBIChooseCA and its relatives build from; other bits count for nothing."""

    #: The colour: as colours, or as alpha its brightness.
    COLOUR = 0
    #: The alpha: as colours a grey of it, or as alpha.
    ALPHA = 1
    #: Added: the pixel of `dst`; else that of `src`.
    DST = 2


class From(IntFlag):
    """What a channel is copied from by BBIChooseRGBA; other bits count for nothing."""

    #: The red.
    RED = 0
    #: The green.
    GREEN = 1
    #: The blue.
    BLUE = 2
    #: The alpha.
    ALPHA = 3
    #: Added: of the pixel of `dst`; else of that of `src`.
    DST = 4


class Paint(IntEnum):
    """The operations of BBIPaintChoose.

    A key pixel equals `key` in all 32 bits; neighbours are the pixels left,
    right, above and below, inside the image; grey is a pixel with equal red, green and blue, whatever its
    alpha.
    """

    #: Key pixels become `colour`.
    KEY = 0
    #: All others become `colour`.
    REST = 1
    #: All others become `colour`, with a border on either side of the key.
    BORDERED = 2
    #: Key pixels with a neighbour that is not key become `colour`.
    KEY_RIM = 3
    #: Others with a neighbour that is key become `colour`.
    OUTLINE = 4
    #: Connected regions of few key pixels become `colour`.
    SMALL_REGIONS = 5
    #: Key pixels take the commonest of their neighbours' colours.
    MAJORITY = 6
    #: Grey pixels take the commonest of their neighbours' colours.
    GREY = 7
    #: Pixels that are not grey become `colour`.
    COLOURED = 8
    #: Key pixels take the average of their neighbours.
    AVERAGE = 9
    #: Pixels p with `(p & extra) == key` become `colour`.
    MASKED = 10


class SampleBits(IntEnum):
    """Widths of a stored sample."""

    #: One byte, 128 is silence.
    BITS_8 = 8
    #: Signed, little-endian, two bytes.
    BITS_16 = 16
    #: Signed, little-endian, three bytes.
    BITS_24 = 24
    #: A double, -1 to 1.
    BITS_64 = 64


class Channels(IntEnum):
    """Samples a frame."""

    #: One sample.
    MONO = 1
    #: Left, then right.
    STEREO = 2


class Reverb(IntEnum):
    """Sizes that the reverb is built on."""

    #: Frames of the ring, of two doubles each: 8 MiB.
    RING_FRAMES = 524288
    #: Entries of each of the three parts of a tap table.
    TAPS = 10000


__all__ = [
    "CpuLevel",
    "Format",
    "Compare",
    "Turn",
    "Render",
    "Choose",
    "From",
    "Paint",
    "SampleBits",
    "Channels",
    "Reverb",
]
