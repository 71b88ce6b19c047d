"""Raster images, byte-stream codecs and waveforms."""

from . import constants, functions

__all__ = ["constants", "functions"]
