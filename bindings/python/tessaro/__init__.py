"""Raster images, byte-stream codecs and waveforms.

    import tessaro
    picture = tessaro.Image.open("cat.png")
    picture.blur(3).line(0, 0, 99, 99, 0xFFFF0000).save("out.png")

`Image`, `Sound`, `encode` and `decode` are what programs use first. `tessaro.functions` has all functions of the
library by name, `tessaro.constants` the names of their modes and flags.
"""

from . import constants, functions
from ._version import __version__
from .codecs import DamagedStream, Stream, decode, encode, formats, transforms
from .constants import *  # noqa: F403
from .constants import __all__ as _constants
from .image import MAX_HEIGHT, MAX_WIDTH, Image, Refused
from .sound import Limiter, Maximizer, Reverb, Sound

__all__ = [
    "DamagedStream", "Image", "Limiter", "MAX_HEIGHT", "MAX_WIDTH", "Maximizer", "Refused", "Reverb", "Sound", "Stream",
    "constants", "decode", "encode", "formats", "functions", "transforms",
    *(name for name in _constants if name != "Reverb"),
]  # fmt: skip
