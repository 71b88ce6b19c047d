"""Streams: bytes made shorter without loss."""

from __future__ import annotations

import ctypes
from typing import Any, Optional

from . import functions as f
from ._arguments import view_of


class DamagedStream(ValueError):
    """The stream ends early, or is none of its format."""


class Stream(bytes):
    """What `encode` makes: bytes that know their format and the length of what they were made of."""

    format: str
    length: int

    def __new__(cls, data: Any, format: str, length: int) -> Stream:
        self = super().__new__(cls, data)
        self.format, self.length = format, length
        return self

    def __reduce__(self):
        return Stream, (bytes(self), self.format, self.length)


def _codec(encoder, decoder, before=()):
    return getattr(f, encoder), getattr(f, decoder), before


def _found():
    """The formats that there are: every encoder with its decoder, the hardened one where there are two."""
    codecs = {}
    for name in f.__all__:
        if name.endswith(("Encoder", "EncoderEx")):
            decoder = name.replace("Encoder", "Decoder")
            decoder += "Safe" if hasattr(f, decoder + "Safe") else ""
            codecs[name.replace("Encoder", "").lower()] = _codec(name, decoder)
    # This decoder undoes two transforms that have been made before.
    codecs["inabeex"] = _codec("inabeEncoder", "inabeDecoderExSafe", (f.ichshift4Encoder, f.iwave11Encoder))
    return codecs


_codecs = _found()
_transforms = {name for name, (_, decoder, _) in _codecs.items() if name.startswith(("iwave", "ichshift"))}

#: Names of formats: what makes bytes shorter, and the transforms that prepare bytes for them.
formats = tuple(name for name in _codecs if name not in _transforms)
transforms = tuple(name for name in _codecs if name in _transforms)


def _codec_of(format):
    if format not in _codecs:
        raise ValueError(f"unknown format {format!r}: one of {', '.join(_codecs)}")
    return _codecs[format]


def encode(format: str, data: Any) -> Optional[Stream]:
    """A stream of a format, or None where the data does not compress; a transform always makes one.

    `inabeex` is `ichshift4`, then `iwave11`, then `inabe`: for pixels. `ib18ex` takes multiples of 4 bytes.
    """
    encoder, _, before = _codec_of(format)
    view = view_of("data", data)
    length = view.nbytes
    if format == "ib18ex" and length % 4:
        raise ValueError(f"ib18ex restores multiples of 4 bytes only, not {length}")
    written = ctypes.c_uint32(0)
    for transform in before:
        out = bytearray(length)
        transform(view, out, length, written)
        view = memoryview(out)
    if format in _transforms:
        out = bytearray(view)  # an odd byte at the end is carried along
        encoder(view, out, length, written)
        return Stream(out, format, length)
    out = bytearray(length + -(-length // 32) + 3)
    written.value = 0
    if encoder(view, out, length, written) or not 0 < written.value < length:
        return None
    return Stream(memoryview(out)[: written.value], format, length)


def decode(format: str, stream: Any, length: Optional[int] = None) -> bytes:
    """What a stream was made of. Bytes that are no `Stream` need the length of that.

    Whatever they hold, no memory but theirs is read; a stream that ends early raises `DamagedStream`.
    """
    _, decoder, _ = _codec_of(format)
    if length is None:
        if not isinstance(stream, Stream):
            raise TypeError(
                "a stream does not say how long its source was: pass the length that was kept with it"
            )
        if stream.format != format:
            raise ValueError(f"this is a stream of {stream.format}, not of {format}")
        length = stream.length
    view = view_of("stream", stream)
    if format in _transforms:
        if view.nbytes != length:
            raise DamagedStream(f"{format} keeps the length: {view.nbytes} bytes are not {length}")
        out = bytearray(view)
        decoder(view, out, length)
        return bytes(out)
    out = bytearray(length)
    if decoder(view, out, view.nbytes, length):
        raise DamagedStream(f"the stream of {format} is damaged, or was not made of {length} bytes")
    return bytes(out)
