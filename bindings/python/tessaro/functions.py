"""All functions of the library by name.

Arguments are checked, so that no call reads or writes outside the memory it is given: a buffer that is too
short, or read-only where it is written, raises ValueError. Results are returned as they are: what a status
means, its function tells. Images are `tessaro.Image`, or buffers that begin with an image record; sounds are
`tessaro.Sound`, or tuples of format code, frames and memory; buffers are whatever has the buffer protocol, an
image and a sound standing for their pixels and samples.

Made by generate.py from the description of the library; changes here are lost.
"""

from __future__ import annotations

import builtins as _builtins
import ctypes as _c

from . import _arguments as _a
from ._library import callback as _callback
from ._library import function as _function

_i32, _u32, _u16, _f32, _f64 = _c.c_int32, _c.c_uint32, _c.c_uint16, _c.c_float, _c.c_double
_word, _uword, _pointer = _c.c_ssize_t, _c.c_size_t, _c.c_void_p
_min, _max, _abs = _builtins.min, _builtins.max, _builtins.abs

_TessaroMethod1 = _callback("cdecl", _word, _word)
_TessaroMethod4 = _callback("cdecl", _word, _word, _word, _word, _word)
_TessaroCallback2 = _callback("library", _word, _word, _word)
_TessaroWorker = _callback("cdecl", None)
_TessaroHook = _callback("library", _i32, _pointer, _uword, _uword, _word, _word)



# Difference transforms.


_iwave11Encoder = _function("iwave11Encoder", _i32, _pointer, _pointer, _u32, _pointer)


def iwave11Encoder(source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer) -> int:
    """Differences of bytes, the reference one place before, 128 before the start.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it; of an odd length of 16-bit words the last byte is left alone.
    length : int, bytes
        The size of both.
    written : buffer of 1 words, written
        The number of bytes made: the length, or for 16-bit words the even part of it.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _iwave11Encoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_iwave11Decoder = _function("iwave11Decoder", _i32, _pointer, _pointer, _u32)


def iwave11Decoder(source: Buffer, destination: WritableBuffer, length: int) -> int:
    """Undoes `iwave11Encoder`.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it; of an odd length of 16-bit words the last byte is left alone.
    length : int, bytes
        The size of both.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _iwave11Decoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
    )


_iwave12Encoder = _function("iwave12Encoder", _i32, _pointer, _pointer, _u32, _pointer)


def iwave12Encoder(source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer) -> int:
    """Differences of bytes, the reference two places before, 128 before the start.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it; of an odd length of 16-bit words the last byte is left alone.
    length : int, bytes
        The size of both.
    written : buffer of 1 words, written
        The number of bytes made: the length, or for 16-bit words the even part of it.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _iwave12Encoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_iwave12Decoder = _function("iwave12Decoder", _i32, _pointer, _pointer, _u32)


def iwave12Decoder(source: Buffer, destination: WritableBuffer, length: int) -> int:
    """Undoes `iwave12Encoder`.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it; of an odd length of 16-bit words the last byte is left alone.
    length : int, bytes
        The size of both.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _iwave12Decoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
    )


_iwave32Encoder = _function("iwave32Encoder", _i32, _pointer, _pointer, _u32, _pointer)


def iwave32Encoder(source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer) -> int:
    """Differences of bytes, the reference four places before, 128 before the start.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it; of an odd length of 16-bit words the last byte is left alone.
    length : int, bytes
        The size of both.
    written : buffer of 1 words, written
        The number of bytes made: the length, or for 16-bit words the even part of it.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _iwave32Encoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_iwave32Decoder = _function("iwave32Decoder", _i32, _pointer, _pointer, _u32)


def iwave32Decoder(source: Buffer, destination: WritableBuffer, length: int) -> int:
    """Undoes `iwave32Encoder`.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it; of an odd length of 16-bit words the last byte is left alone.
    length : int, bytes
        The size of both.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _iwave32Decoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
    )


_iwave21Encoder = _function("iwave21Encoder", _i32, _pointer, _pointer, _u32, _pointer)


def iwave21Encoder(source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer) -> int:
    """Differences of little-endian 16-bit words, the reference one word before, 0 before the start.

    The last byte of an odd length is neither coded nor copied: the host carries it.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it; of an odd length of 16-bit words the last byte is left alone.
    length : int, bytes
        The size of both.
    written : buffer of 1 words, written
        The number of bytes made: the length, or for 16-bit words the even part of it.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _iwave21Encoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_iwave21Decoder = _function("iwave21Decoder", _i32, _pointer, _pointer, _u32)


def iwave21Decoder(source: Buffer, destination: WritableBuffer, length: int) -> int:
    """Undoes `iwave21Encoder`.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it; of an odd length of 16-bit words the last byte is left alone.
    length : int, bytes
        The size of both.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _iwave21Decoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
    )


_iwave22Encoder = _function("iwave22Encoder", _i32, _pointer, _pointer, _u32, _pointer)


def iwave22Encoder(source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer) -> int:
    """Differences of little-endian 16-bit words, the reference two words before, 0 before the start.

    The last byte of an odd length is neither coded nor copied: the host carries it.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it; of an odd length of 16-bit words the last byte is left alone.
    length : int, bytes
        The size of both.
    written : buffer of 1 words, written
        The number of bytes made: the length, or for 16-bit words the even part of it.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _iwave22Encoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_iwave22Decoder = _function("iwave22Decoder", _i32, _pointer, _pointer, _u32)


def iwave22Decoder(source: Buffer, destination: WritableBuffer, length: int) -> int:
    """Undoes `iwave22Encoder`.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it; of an odd length of 16-bit words the last byte is left alone.
    length : int, bytes
        The size of both.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _iwave22Decoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
    )



# Channel planes.


_ichshift2Encoder = _function("ichshift2Encoder", _i32, _pointer, _pointer, _u32, _pointer)


def ichshift2Encoder(
    source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer
) -> int:
    """Parts bytes into two planes.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it.
    length : int, bytes
        The size of both.
    written : buffer of 1 words, written
        The number of bytes made: the length.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _ichshift2Encoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_ichshift2Decoder = _function("ichshift2Decoder", _i32, _pointer, _pointer, _u32)


def ichshift2Decoder(source: Buffer, destination: WritableBuffer, length: int) -> int:
    """Puts two planes together again.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it.
    length : int, bytes
        The size of both.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _ichshift2Decoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
    )


_ichshift3Encoder = _function("ichshift3Encoder", _i32, _pointer, _pointer, _u32, _pointer)


def ichshift3Encoder(
    source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer
) -> int:
    """Parts bytes into three planes.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it.
    length : int, bytes
        The size of both.
    written : buffer of 1 words, written
        The number of bytes made: the length.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _ichshift3Encoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_ichshift3Decoder = _function("ichshift3Decoder", _i32, _pointer, _pointer, _u32)


def ichshift3Decoder(source: Buffer, destination: WritableBuffer, length: int) -> int:
    """Puts three planes together again.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it.
    length : int, bytes
        The size of both.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _ichshift3Decoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
    )


_ichshift4Encoder = _function("ichshift4Encoder", _i32, _pointer, _pointer, _u32, _pointer)


def ichshift4Encoder(
    source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer
) -> int:
    """Parts bytes into four planes.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it.
    length : int, bytes
        The size of both.
    written : buffer of 1 words, written
        The number of bytes made: the length.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _ichshift4Encoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_ichshift4Decoder = _function("ichshift4Decoder", _i32, _pointer, _pointer, _u32)


def ichshift4Decoder(source: Buffer, destination: WritableBuffer, length: int) -> int:
    """Puts four planes together again.

    Parameters
    ----------
    source : buffer of length bytes
        What is transformed.
    destination : buffer of length bytes, written
        What comes of it.
    length : int, bytes
        The size of both.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _ichshift4Decoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
    )



# Stream formats.


_iEncoder = _function("iEncoder", _i32, _pointer, _pointer, _u32, _pointer)


def iEncoder(source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer) -> int:
    """Codes pairs of bytes, each against the pair before.

    A pair costs 3 bits (equal to the one before) to 19.

    Parameters
    ----------
    source : buffer of length bytes
        What is coded.
    destination : buffer of length bytes, written
        The stream.
    length : int, bytes
        The size of the source, and of the memory at the destination.
    written : buffer of 1 words, changed
        Bytes of the stream; untouched where the source is shorter than the minimum.

    Returns
    -------
    int
        0: The stream is complete and shorter than the limit.
        1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
          first `*written` bytes of a stream that was given up.
    """
    length = _a.unsigned("length", length)
    return _iEncoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_iDecoder = _function("iDecoder", _i32, _pointer, _pointer, _u32)


def iDecoder(stream: Buffer, destination: WritableBuffer, count: int) -> int:
    """Decodes a trusted stream of `i`.

    A buffer has an end, so the work is done by `iDecoderSafe`: a stream that is damaged or cut off returns
    1 here, and nothing behind it is read.

    Parameters
    ----------
    stream : buffer
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The count is 0.
    """
    count = _a.unsigned("count", count)
    view = _a.view_of("stream", stream)
    destination = _a.memory("destination", destination, count, True)
    if not count:
        return _iDecoder(_a.scratch, destination, 0)
    stream_size = _min(view.nbytes, 0xFFFFFFFF)
    return _iDecoderSafe(_a.memory("stream", view, stream_size, False), destination, stream_size, count)


_iDecoderSafe = _function("iDecoderSafe", _i32, _pointer, _pointer, _u32, _u32)


def iDecoderSafe(stream: Buffer, destination: WritableBuffer, stream_size: int, count: int) -> int:
    """Decodes any stream of `i`, safely.

    Parameters
    ----------
    stream : buffer of stream_size bytes
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    stream_size : int, bytes
        Its size.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
          the bytes that were made.
    """
    stream_size = _a.unsigned("stream_size", stream_size)
    count = _a.unsigned("count", count)
    return _iDecoderSafe(
        _a.memory("stream", stream, stream_size, False),
        _a.memory("destination", destination, count, True),
        stream_size,
        count,
    )


_ioEncoder = _function("ioEncoder", _i32, _pointer, _pointer, _u32, _pointer)


def ioEncoder(source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer) -> int:
    """Codes pixels that repeat the one before.

    A group of four bytes that equals the one before costs one bit, any other 33.

    Parameters
    ----------
    source : buffer of length bytes
        What is coded.
    destination : buffer of length bytes, written
        The stream.
    length : int, bytes
        The size of the source, and of the memory at the destination.
    written : buffer of 1 words, changed
        Bytes of the stream; untouched where the source is shorter than the minimum.

    Returns
    -------
    int
        0: The stream is complete and shorter than the limit.
        1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
          first `*written` bytes of a stream that was given up.
    """
    length = _a.unsigned("length", length)
    return _ioEncoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_ioDecoder = _function("ioDecoder", _i32, _pointer, _pointer, _u32)


def ioDecoder(stream: Buffer, destination: WritableBuffer, count: int) -> int:
    """Decodes a trusted stream of `io`.

    A buffer has an end, so the work is done by `ioDecoderSafe`: a stream that is damaged or cut off returns
    1 here, and nothing behind it is read.

    Parameters
    ----------
    stream : buffer
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The count is 0.
    """
    count = _a.unsigned("count", count)
    view = _a.view_of("stream", stream)
    destination = _a.memory("destination", destination, count, True)
    if not count:
        return _ioDecoder(_a.scratch, destination, 0)
    stream_size = _min(view.nbytes, 0xFFFFFFFF)
    return _ioDecoderSafe(_a.memory("stream", view, stream_size, False), destination, stream_size, count)


_ioDecoderSafe = _function("ioDecoderSafe", _i32, _pointer, _pointer, _u32, _u32)


def ioDecoderSafe(stream: Buffer, destination: WritableBuffer, stream_size: int, count: int) -> int:
    """Decodes any stream of `io`, safely.

    Parameters
    ----------
    stream : buffer of stream_size bytes
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    stream_size : int, bytes
        Its size.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
          the bytes that were made.
    """
    stream_size = _a.unsigned("stream_size", stream_size)
    count = _a.unsigned("count", count)
    return _ioDecoderSafe(
        _a.memory("stream", stream, stream_size, False),
        _a.memory("destination", destination, count, True),
        stream_size,
        count,
    )


_ib18Encoder = _function("ib18Encoder", _i32, _pointer, _pointer, _u32, _pointer)


def ib18Encoder(source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer) -> int:
    """Codes blocks of six bytes that repeat the byte before, or are the one that most often follows it in this source, or are sent.

    256 bytes of every stream are the table of successors.

    Parameters
    ----------
    source : buffer of length bytes
        What is coded.
    destination : buffer of length bytes, written
        The stream.
    length : int, bytes
        The size of the source, and of the memory at the destination.
    written : buffer of 1 words, changed
        Bytes of the stream; untouched where the source is shorter than the minimum.

    Returns
    -------
    int
        0: The stream is complete and shorter than the limit.
        1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
          first `*written` bytes of a stream that was given up.
    """
    length = _a.unsigned("length", length)
    return _ib18Encoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_ib18Decoder = _function("ib18Decoder", _i32, _pointer, _pointer, _u32)


def ib18Decoder(stream: Buffer, destination: WritableBuffer, count: int) -> int:
    """Decodes a trusted stream of `ib18`.

    A buffer has an end, so the work is done by `ib18DecoderSafe`: a stream that is damaged or cut off returns
    1 here, and nothing behind it is read.

    Parameters
    ----------
    stream : buffer
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done; also for a count of 0.
    """
    count = _a.unsigned("count", count)
    view = _a.view_of("stream", stream)
    destination = _a.memory("destination", destination, count, True)
    if not count:
        return _ib18Decoder(_a.scratch, destination, 0)
    stream_size = _min(view.nbytes, 0xFFFFFFFF)
    return _ib18DecoderSafe(_a.memory("stream", view, stream_size, False), destination, stream_size, count)


_ib18DecoderSafe = _function("ib18DecoderSafe", _i32, _pointer, _pointer, _u32, _u32)


def ib18DecoderSafe(stream: Buffer, destination: WritableBuffer, stream_size: int, count: int) -> int:
    """Decodes any stream of `ib18`, safely.

    Parameters
    ----------
    stream : buffer of stream_size bytes
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    stream_size : int, bytes
        Its size.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
          the bytes that were made.
    """
    stream_size = _a.unsigned("stream_size", stream_size)
    count = _a.unsigned("count", count)
    return _ib18DecoderSafe(
        _a.memory("stream", stream, stream_size, False),
        _a.memory("destination", destination, count, True),
        stream_size,
        count,
    )


_ib18EncoderEx = _function("ib18EncoderEx", _i32, _pointer, _pointer, _u32, _pointer)


def ib18EncoderEx(source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer) -> int:
    """Codes as `ib18Encoder` does, one channel of 32-bit pixels after another.

    The table of successors is that of the plain order. Only a length that is a multiple of 4 is restored.

    Parameters
    ----------
    source : buffer of length bytes
        What is coded.
    destination : buffer of length bytes, written
        The stream.
    length : int, bytes
        The size of the source, and of the memory at the destination.
    written : buffer of 1 words, changed
        Bytes of the stream; untouched where the source is shorter than the minimum.

    Returns
    -------
    int
        0: The stream is complete and shorter than the limit.
        1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
          first `*written` bytes of a stream that was given up.
    """
    length = _a.unsigned("length", length)
    return _ib18EncoderEx(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_ib18DecoderEx = _function("ib18DecoderEx", _i32, _pointer, _pointer, _u32)


def ib18DecoderEx(stream: Buffer, destination: WritableBuffer, count: int) -> int:
    """Decodes a trusted stream of `ib18`, one channel after another.

    A buffer has an end, so the work is done by `ib18DecoderExSafe`: a stream that is damaged or cut off returns
    1 here, and nothing behind it is read.

    Parameters
    ----------
    stream : buffer
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done; also for a count of 0.
    """
    count = _a.unsigned("count", count)
    view = _a.view_of("stream", stream)
    destination = _a.memory("destination", destination, count, True)
    if not count:
        return _ib18DecoderEx(_a.scratch, destination, 0)
    stream_size = _min(view.nbytes, 0xFFFFFFFF)
    return _ib18DecoderExSafe(_a.memory("stream", view, stream_size, False), destination, stream_size, count)


_ib18DecoderExSafe = _function("ib18DecoderExSafe", _i32, _pointer, _pointer, _u32, _u32)


def ib18DecoderExSafe(stream: Buffer, destination: WritableBuffer, stream_size: int, count: int) -> int:
    """Decodes any stream of `ib18`, one channel after another, safely.

    Parameters
    ----------
    stream : buffer of stream_size bytes
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    stream_size : int, bytes
        Its size.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The stream ended early or the count is 0 (nothing is changed then). What was made lies at
          positions 0, 4, 8, ..., then 1, 5, ....
    """
    stream_size = _a.unsigned("stream_size", stream_size)
    count = _a.unsigned("count", count)
    return _ib18DecoderExSafe(
        _a.memory("stream", stream, stream_size, False),
        _a.memory("destination", destination, count, True),
        stream_size,
        count,
    )


_iabrEncoder = _function("iabrEncoder", _i32, _pointer, _pointer, _u32, _pointer)


def iabrEncoder(source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer) -> int:
    """Codes groups of 4, 8, 16, ...

    bytes, each group with 8, 5, 3 or 0 bits a byte, whatever differs from the byte before.

    A stream that is given up ends with one more byte.

    Parameters
    ----------
    source : buffer of length bytes
        What is coded.
    destination : buffer of length bytes, written
        The stream.
    length : int, bytes
        The size of the source, and of the memory at the destination.
    written : buffer of 1 words, changed
        Bytes of the stream; untouched where the source is shorter than the minimum.

    Returns
    -------
    int
        0: The stream is complete and shorter than the limit.
        1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
          first `*written` bytes of a stream that was given up.
    """
    length = _a.unsigned("length", length)
    return _iabrEncoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_iabrDecoder = _function("iabrDecoder", _i32, _pointer, _pointer, _u32)


def iabrDecoder(stream: Buffer, destination: WritableBuffer, count: int) -> int:
    """Decodes a trusted stream of `iabr`.

    A buffer has an end, so the work is done by `iabrDecoderSafe`: a stream that is damaged or cut off returns
    1 here, and nothing behind it is read.

    Parameters
    ----------
    stream : buffer
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The count is 0.
    """
    count = _a.unsigned("count", count)
    view = _a.view_of("stream", stream)
    destination = _a.memory("destination", destination, count, True)
    if not count:
        return _iabrDecoder(_a.scratch, destination, 0)
    stream_size = _min(view.nbytes, 0xFFFFFFFF)
    return _iabrDecoderSafe(_a.memory("stream", view, stream_size, False), destination, stream_size, count)


_iabrDecoderSafe = _function("iabrDecoderSafe", _i32, _pointer, _pointer, _u32, _u32)


def iabrDecoderSafe(stream: Buffer, destination: WritableBuffer, stream_size: int, count: int) -> int:
    """Decodes any stream of `iabr`, safely.

    Parameters
    ----------
    stream : buffer of stream_size bytes
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    stream_size : int, bytes
        Its size.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
          the bytes that were made.
    """
    stream_size = _a.unsigned("stream_size", stream_size)
    count = _a.unsigned("count", count)
    return _iabrDecoderSafe(
        _a.memory("stream", stream, stream_size, False),
        _a.memory("destination", destination, count, True),
        stream_size,
        count,
    )


_inabeEncoder = _function("inabeEncoder", _i32, _pointer, _pointer, _u32, _pointer)


def inabeEncoder(source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer) -> int:
    """Codes groups of `4 * 2^k` bytes that agree in their top bits, in a few bits each, with an escape for those that do not fit.

    A stream that is given up ends with one more byte.

    Parameters
    ----------
    source : buffer of length bytes
        What is coded.
    destination : buffer of length bytes, written
        The stream.
    length : int, bytes
        The size of the source, and of the memory at the destination.
    written : buffer of 1 words, changed
        Bytes of the stream; untouched where the source is shorter than the minimum.

    Returns
    -------
    int
        0: The stream is complete and shorter than the limit.
        1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
          first `*written` bytes of a stream that was given up.
    """
    length = _a.unsigned("length", length)
    return _inabeEncoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_inabeDecoder = _function("inabeDecoder", _i32, _pointer, _pointer, _u32)


def inabeDecoder(stream: Buffer, destination: WritableBuffer, count: int) -> int:
    """Decodes a trusted stream of `inabe`.

    A buffer has an end, so the work is done by `inabeDecoderSafe`: a stream that is damaged or cut off returns
    1 here, and nothing behind it is read.

    Parameters
    ----------
    stream : buffer
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done; also for a count of 0.
    """
    count = _a.unsigned("count", count)
    view = _a.view_of("stream", stream)
    destination = _a.memory("destination", destination, count, True)
    if not count:
        return _inabeDecoder(_a.scratch, destination, 0)
    stream_size = _min(view.nbytes, 0xFFFFFFFF)
    return _inabeDecoderSafe(_a.memory("stream", view, stream_size, False), destination, stream_size, count)


_inabeDecoderEx = _function("inabeDecoderEx", _i32, _pointer, _pointer, _u32)


def inabeDecoderEx(stream: Buffer, destination: WritableBuffer, count: int) -> int:
    """Decodes a trusted stream of `inabe` and undoes two transforms in the same pass.

    Pixels that were prepared with `ichshift4Encoder`, then `iwave11Encoder`, then coded, come back with one
    call; any length does.

    A buffer has an end, so the work is done by `inabeDecoderExSafe`: a stream that is damaged or cut off returns
    1 here, and nothing behind it is read.

    Parameters
    ----------
    stream : buffer
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done; also for a count of 0.
    """
    count = _a.unsigned("count", count)
    view = _a.view_of("stream", stream)
    destination = _a.memory("destination", destination, count, True)
    if not count:
        return _inabeDecoderEx(_a.scratch, destination, 0)
    stream_size = _min(view.nbytes, 0xFFFFFFFF)
    return _inabeDecoderExSafe(_a.memory("stream", view, stream_size, False), destination, stream_size, count)


_inabeDecoderSafe = _function("inabeDecoderSafe", _i32, _pointer, _pointer, _u32, _u32)


def inabeDecoderSafe(stream: Buffer, destination: WritableBuffer, stream_size: int, count: int) -> int:
    """Decodes any stream of `inabe`, safely.

    Parameters
    ----------
    stream : buffer of stream_size bytes
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    stream_size : int, bytes
        Its size.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The stream ended early or the count is 0 (nothing is changed then). From the last four whole
          codes on, everything up to the end of the group may be wrong.
    """
    stream_size = _a.unsigned("stream_size", stream_size)
    count = _a.unsigned("count", count)
    return _inabeDecoderSafe(
        _a.memory("stream", stream, stream_size, False),
        _a.memory("destination", destination, count, True),
        stream_size,
        count,
    )


_inabeDecoderExSafe = _function("inabeDecoderExSafe", _i32, _pointer, _pointer, _u32, _u32)


def inabeDecoderExSafe(stream: Buffer, destination: WritableBuffer, stream_size: int, count: int) -> int:
    """Decodes any stream of `inabe` and undoes the transforms as `inabeDecoderEx` does, safely.

    Parameters
    ----------
    stream : buffer of stream_size bytes
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    stream_size : int, bytes
        Its size.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The stream ended early or the count is 0 (nothing is changed then). What was made lies at
          positions 0, 4, 8, ..., then 1, 5, ..., and its end may be wrong as for `inabeDecoderSafe`.
    """
    stream_size = _a.unsigned("stream_size", stream_size)
    count = _a.unsigned("count", count)
    return _inabeDecoderExSafe(
        _a.memory("stream", stream, stream_size, False),
        _a.memory("destination", destination, count, True),
        stream_size,
        count,
    )


_imistEncoder = _function("imistEncoder", _i32, _pointer, _pointer, _u32, _pointer)


def imistEncoder(source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer) -> int:
    """Codes pixels against the pixel before, in two pairs of channels: blue and red, green and alpha.

    A pixel costs 6 to 34 bits.

    Parameters
    ----------
    source : buffer of length bytes
        What is coded.
    destination : buffer of length bytes, written
        The stream.
    length : int, bytes
        The size of the source, and of the memory at the destination.
    written : buffer of 1 words, changed
        Bytes of the stream; untouched where the source is shorter than the minimum.

    Returns
    -------
    int
        0: The stream is complete and shorter than the limit.
        1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
          first `*written` bytes of a stream that was given up.
    """
    length = _a.unsigned("length", length)
    return _imistEncoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_imistDecoder = _function("imistDecoder", _i32, _pointer, _pointer, _u32)


def imistDecoder(stream: Buffer, destination: WritableBuffer, count: int) -> int:
    """Decodes a trusted stream of `imist`.

    A buffer has an end, so the work is done by `imistDecoderSafe`: a stream that is damaged or cut off returns
    1 here, and nothing behind it is read.

    Parameters
    ----------
    stream : buffer
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The count is 0.
    """
    count = _a.unsigned("count", count)
    view = _a.view_of("stream", stream)
    destination = _a.memory("destination", destination, count, True)
    if not count:
        return _imistDecoder(_a.scratch, destination, 0)
    stream_size = _min(view.nbytes, 0xFFFFFFFF)
    return _imistDecoderSafe(_a.memory("stream", view, stream_size, False), destination, stream_size, count)


_imistDecoderSafe = _function("imistDecoderSafe", _i32, _pointer, _pointer, _u32, _u32)


def imistDecoderSafe(stream: Buffer, destination: WritableBuffer, stream_size: int, count: int) -> int:
    """Decodes any stream of `imist`, safely.

    Parameters
    ----------
    stream : buffer of stream_size bytes
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    stream_size : int, bytes
        Its size.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
          the bytes that were made.
    """
    stream_size = _a.unsigned("stream_size", stream_size)
    count = _a.unsigned("count", count)
    return _imistDecoderSafe(
        _a.memory("stream", stream, stream_size, False),
        _a.memory("destination", destination, count, True),
        stream_size,
        count,
    )


_indaEncoder = _function("indaEncoder", _i32, _pointer, _pointer, _u32, _pointer)


def indaEncoder(source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer) -> int:
    """Codes blocks of eight bytes, each byte whole or as the bits in which it differs from a byte one to eight places back.

    The encoder tries every distance and every number of bits.

    Parameters
    ----------
    source : buffer of length bytes
        What is coded.
    destination : buffer of length bytes, written
        The stream.
    length : int, bytes
        The size of the source, and of the memory at the destination.
    written : buffer of 1 words, changed
        Bytes of the stream; untouched where the source is shorter than the minimum.

    Returns
    -------
    int
        0: The stream is complete and shorter than the limit.
        1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
          first `*written` bytes of a stream that was given up.
    """
    length = _a.unsigned("length", length)
    return _indaEncoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_indaDecoder = _function("indaDecoder", _i32, _pointer, _pointer, _u32)


def indaDecoder(stream: Buffer, destination: WritableBuffer, count: int) -> int:
    """Decodes a trusted stream of `inda`.

    A buffer has an end, so the work is done by `indaDecoderSafe`: a stream that is damaged or cut off returns
    1 here, and nothing behind it is read.

    Parameters
    ----------
    stream : buffer
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The count is 0.
    """
    count = _a.unsigned("count", count)
    view = _a.view_of("stream", stream)
    destination = _a.memory("destination", destination, count, True)
    if not count:
        return _indaDecoder(_a.scratch, destination, 0)
    stream_size = _min(view.nbytes, 0xFFFFFFFF)
    return _indaDecoderSafe(_a.memory("stream", view, stream_size, False), destination, stream_size, count)


_indaDecoderSafe = _function("indaDecoderSafe", _i32, _pointer, _pointer, _u32, _u32)


def indaDecoderSafe(stream: Buffer, destination: WritableBuffer, stream_size: int, count: int) -> int:
    """Decodes any stream of `inda`, safely.

    Parameters
    ----------
    stream : buffer of stream_size bytes
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    stream_size : int, bytes
        Its size.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
          the bytes that were made; several are made at once, and the last of them may be missing.
    """
    stream_size = _a.unsigned("stream_size", stream_size)
    count = _a.unsigned("count", count)
    return _indaDecoderSafe(
        _a.memory("stream", stream, stream_size, False),
        _a.memory("destination", destination, count, True),
        stream_size,
        count,
    )


_icaEncoder = _function("icaEncoder", _i32, _pointer, _pointer, _u32, _pointer)


def icaEncoder(source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer) -> int:
    """Codes pixels against the pixel before, each byte whole or cut to its low 3 or 5 bits.

    A repeated pixel costs 5 bits, any other 17 to 37.

    Parameters
    ----------
    source : buffer of length bytes
        What is coded.
    destination : buffer of length bytes, written
        The stream.
    length : int, bytes
        The size of the source, and of the memory at the destination.
    written : buffer of 1 words, changed
        Bytes of the stream; untouched where the source is shorter than the minimum.

    Returns
    -------
    int
        0: The stream is complete and shorter than the limit.
        1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
          first `*written` bytes of a stream that was given up.
    """
    length = _a.unsigned("length", length)
    return _icaEncoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length, True),
        length,
        _a.memory("written", written, 4, True),
    )


_icaDecoder = _function("icaDecoder", _i32, _pointer, _pointer, _u32)


def icaDecoder(stream: Buffer, destination: WritableBuffer, count: int) -> int:
    """Decodes a trusted stream of `ica`.

    A buffer has an end, so the work is done by `icaDecoderSafe`: a stream that is damaged or cut off returns
    1 here, and nothing behind it is read.

    Parameters
    ----------
    stream : buffer
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The count is 0.
    """
    count = _a.unsigned("count", count)
    view = _a.view_of("stream", stream)
    destination = _a.memory("destination", destination, count, True)
    if not count:
        return _icaDecoder(_a.scratch, destination, 0)
    stream_size = _min(view.nbytes, 0xFFFFFFFF)
    return _icaDecoderSafe(_a.memory("stream", view, stream_size, False), destination, stream_size, count)


_icaDecoderSafe = _function("icaDecoderSafe", _i32, _pointer, _pointer, _u32, _u32)


def icaDecoderSafe(stream: Buffer, destination: WritableBuffer, stream_size: int, count: int) -> int:
    """Decodes any stream of `ica`, safely.

    Parameters
    ----------
    stream : buffer of stream_size bytes
        The stream.
    destination : buffer of count bytes, written
        What was coded.
    stream_size : int, bytes
        Its size.
    count : int, bytes
        The length of the source, and the memory at the destination.

    Returns
    -------
    int
        0: Done.
        1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
          the bytes that were made.
    """
    stream_size = _a.unsigned("stream_size", stream_size)
    count = _a.unsigned("count", count)
    return _icaDecoderSafe(
        _a.memory("stream", stream, stream_size, False),
        _a.memory("destination", destination, count, True),
        stream_size,
        count,
    )


_c2fEncoder = _function("c2fEncoder", _i32, _pointer, _pointer, _u32, _pointer)


def c2fEncoder(source: Buffer, destination: WritableBuffer, length: int, written: WritableBuffer) -> int:
    """Codes pixels whose channels stay constant, in blocks of eight pixels.

    Takes any length.

    The stream can be longer than the source.

    Parameters
    ----------
    source : buffer of length bytes
        What is coded.
    destination : buffer of length + ceil_div(length, 32) + 3 bytes, written
        The stream.
    length : int, bytes
        The size of the source, and of the memory at the destination.
    written : buffer of 1 words, written
        Bytes of the stream.

    Returns
    -------
    int
        0: Always.
    """
    length = _a.unsigned("length", length)
    return _c2fEncoder(
        _a.memory("source", source, length, False),
        _a.memory("destination", destination, length + _a.ceil_div(length, 32) + 3, True),
        length,
        _a.memory("written", written, 4, True),
    )


_c2fDecoder = _function("c2fDecoder", _i32, _pointer, _pointer, _u32, _u32)


def c2fDecoder(stream: Buffer, destination: WritableBuffer, stream_size: int, size: int) -> int:
    """Decodes `c2f`.

    It checks both sizes, and is safe with any stream.

    The zeros at the end of a source whose length is not a multiple of 32 are not stored: behind the last byte
    of the stream every second byte up to `size` becomes 0, beginning with the first, and the ones between keep
    what they held. A host therefore clears the destination first. An end part that is longer than the room
    left is cut, with result 0.

    Parameters
    ----------
    stream : buffer of stream_size bytes
        The stream.
    destination : buffer of size bytes, changed
        What was coded.
    stream_size : int, bytes
        Its size.
    size : int, bytes
        The length of the source.

    Returns
    -------
    int
        0: Done.
        1: The stream ended early, or describes more than `size` bytes before its end part; the destination
          begins with what was decoded before that.
    """
    stream_size = _a.unsigned("stream_size", stream_size)
    size = _a.unsigned("size", size)
    return _c2fDecoder(
        _a.memory("stream", stream, stream_size, False),
        _a.memory("destination", destination, size, True),
        stream_size,
        size,
    )



# Picture files.


_DecodeImageHead = _function("DecodeImageHead", _i32, _pointer, _i32, _pointer, _pointer)


def DecodeImageHead(file: Buffer, size: int, width: WritableBuffer, height: WritableBuffer) -> int:
    """The extents of a bitmap in HIMETRIC units, hundredths of a millimetre, not in pixels.

    Elsewhere than on Windows at 96 pixels an inch, rounded to nearest: 8 pixels are 212, and `pixels =
    round(extent * 96 / 2540)`; so too on Windows where the screen has 96 pixels an inch. Both are set to 0
    before anything else and stay 0 where there is no bitmap.

    Parameters
    ----------
    file : buffer of size bytes
        The file as it lies on disk.
    size : int, bytes, 64..8388608
        Its size.
    width : buffer of 1 words, written
        The width.
    height : buffer of 1 words, written
        The height.

    Returns
    -------
    int
        0: Handled; also for a file that is no picture, for a picture that is no bitmap (an icon, a cursor,
          a metafile), and where there is no memory for it.
        1: The size is out of range.
    """
    size = _a.signed("size", size)
    return _DecodeImageHead(
        _a.memory("file", file, size, False),
        size,
        _a.memory("width", width, 4, True),
        _a.memory("height", height, 4, True),
    )


_DecodeImage = _function("DecodeImage", _i32, _pointer, _pointer, _i32)


def DecodeImage(device: WritableImage, file: Buffer, size: int) -> int:
    """Draws a bitmap at (0, 0) of a device context.

    Pixels are `0xAARRGGBB` with alpha 0 where the file has none (`BBIClearMask(image, 0, 0, 0, 255,
    0x00FFFFFF)` makes them opaque); the fourth byte of 32-bit bitmaps becomes alpha. The rectangle drawn has
    as many columns as the number of the picture's HIMETRIC height, and as many rows as that of its HIMETRIC
    width, cut to the picture and to the destination: all of a picture, unless one edge is over 26 times as
    long as the other.

    Elsewhere than on Windows a call takes at most 1 GiB of memory, and time for what the destination shows at
    most: of the worst files known, of 8 MiB or less and drawn to their last row, a bitmap took 0.4 s, a JPEG
    file 1.4 s, a PNG file 1.8 s and a GIF file 0.8 s of a server's processor.

    Parameters
    ----------
    device : image, changed
        Elsewhere than on Windows an `ImageRecord`; on Windows an HDC.
    file : buffer of size bytes
        The file as it lies on disk.
    size : int, bytes, 64..8388608
        Its size.

    Returns
    -------
    int
        0: Handled; also for a file that is no picture, for a picture that is no bitmap (an icon, a cursor,
          a metafile), and where there is no memory for it.
        1: The size is out of range.
    """
    size = _a.signed("size", size)
    return _DecodeImage(
        _a.image_or_device("device", device, True),
        _a.memory("file", file, size, False),
        size,
    )



# Lines.


_BBIDrawLine = _function("BBIDrawLine", _i32, _pointer, _i32, _i32, _i32, _i32, _u32, _u32)


def BBIDrawLine(image: WritableImage, x0: int, y0: int, x1: int, y1: int, mask: int, colour: int) -> int:
    """Draws the points of the walk; where both ends are one, that pixel.

    Parameters
    ----------
    image : image, changed
        The image that is drawn on.
    x0 : int, pixels
        The first corner or end.
    y0 : int, pixels
        The first corner or end.
    x1 : int, pixels
        The other corner or end.
    y1 : int, pixels
        The other corner or end.
    mask : int, value
        Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
    colour : int, colour
        The colour.

    Returns
    -------
    int
        0: Done, also when nothing lies inside the image.
    """
    return _BBIDrawLine(
        _a.image("image", image, True).pointer,
        _a.signed("x0", x0),
        _a.signed("y0", y0),
        _a.signed("x1", x1),
        _a.signed("y1", y1),
        _a.unsigned("mask", mask),
        _a.unsigned("colour", colour),
    )


_BBIDotThick = _function("BBIDotThick", _i32, _pointer, _i32, _i32, _i32, _i32, _u32, _u32)


def BBIDotThick(image: WritableImage, x0: int, y0: int, x1: int, y1: int, mask: int, colour: int) -> int:
    """Fills holes along a line: writes each point of the walk of whose neighbours three or four equal the colour.

    Neighbours are the pixels left, right, above and below, inside the image; they are compared in all 32 bits,
    and count as they are when the walk gets there, those that it has written too. Where both ends are one
    nothing happens.

    Parameters
    ----------
    image : image, changed
        The image that is drawn on.
    x0 : int, pixels
        The first corner or end.
    y0 : int, pixels
        The first corner or end.
    x1 : int, pixels
        The other corner or end.
    y1 : int, pixels
        The other corner or end.
    mask : int, value
        Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
    colour : int, colour
        The colour.

    Returns
    -------
    int
        0: Done, also when nothing lies inside the image.
    """
    return _BBIDotThick(
        _a.image("image", image, True).pointer,
        _a.signed("x0", x0),
        _a.signed("y0", y0),
        _a.signed("x1", x1),
        _a.signed("y1", y1),
        _a.unsigned("mask", mask),
        _a.unsigned("colour", colour),
    )


_BBILineThick = _function("BBILineThick", _i32, _pointer, _i32, _i32, _i32, _i32, _u32, _u32, _i32)


def BBILineThick(
    image: WritableImage, x0: int, y0: int, x1: int, y1: int, mask: int, colour: int, thickness: int
) -> int:
    """Grows strokes of the colour towards a line.

    Each point of the walk, which may lie outside the image and is not written itself, has four arms: right,
    left, down, up, in this order. An arm is scanned inwards, at the distances d = `thickness` to 1: where the
    pixel lies inside the image and equals the colour in all 32 bits, `found = thickness + 1 - d`; then, where
    it lies inside and `found >= d`, it is written. found starts at 0 for each arm. So the colour at distance d
    paints its arm from distance `min(d, thickness + 1 - d)` inwards.

    Parameters
    ----------
    image : image, changed
        The image that is drawn on.
    x0 : int, pixels
        The first corner or end.
    y0 : int, pixels
        The first corner or end.
    x1 : int, pixels
        The other corner or end.
    y1 : int, pixels
        The other corner or end.
    mask : int, value
        Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
    colour : int, colour
        The colour.
    thickness : int, pixels
        The length of an arm.

    Returns
    -------
    int
        0: Done, also where both ends are one, which does nothing.
        1: The thickness is below 1, or the pitch of the image is not 4 * width.
    """
    return _BBILineThick(
        _a.image("image", image, True).pointer,
        _a.signed("x0", x0),
        _a.signed("y0", y0),
        _a.signed("x1", x1),
        _a.signed("y1", y1),
        _a.unsigned("mask", mask),
        _a.unsigned("colour", colour),
        _a.signed("thickness", thickness),
    )


_BBIDrawGradationLine = _function("BBIDrawGradationLine", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32)


def BBIDrawGradationLine(image: WritableImage, colours: AnyImage, x0: int, y0: int, x1: int, y1: int) -> int:
    """Draws a gradient line, one step late.

    The walk here has n + 1 steps, in which an error term drops only when it exceeds n, and every step i = 0..n
    draws the point it reaches. So from n = 2 on the line runs from one past its start to one past its end: a
    line from (0, 0) to (4, 0) draws x = 1 to 5. For n = 1 it draws its two ends, for n = 0 its start.

    All four bytes are stored: with c0, c1 the bytes of the two colours, t = i / n (0 for n = 0) and
    `u = (float)(1 - t)`, each is `trunc(c1 * t + c0 * u)`. Between equal colours a byte may come out one less.

    Parameters
    ----------
    image : image, changed
        The image that is drawn on.
    colours : image
        The first two pixels of its first row are the colours of (x0, y0) and (x1, y1).
    x0 : int, pixels
        The first corner or end.
    y0 : int, pixels
        The first corner or end.
    x1 : int, pixels
        The other corner or end.
    y1 : int, pixels
        The other corner or end.

    Returns
    -------
    int
        0: Done.
        1: `colours` is narrower than 2 or has no row.
    """
    return _BBIDrawGradationLine(
        _a.image("image", image, True).pointer,
        _a.image("colours", colours, False).pointer,
        _a.signed("x0", x0),
        _a.signed("y0", y0),
        _a.signed("x1", x1),
        _a.signed("y1", y1),
    )


_BBIDrawAlphaLine = _function("BBIDrawAlphaLine", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32)


def BBIDrawAlphaLine(image: WritableImage, colours: AnyImage, x0: int, y0: int, x1: int, y1: int) -> int:
    """Draws an antialiased gradient line, blended by the alpha of its colours, which is part of the gradient.

    M is the greater of |x1 - x0| and |y1 - y0|, N the other; the line goes along x where |x1 - x0| is greater,
    else along y. It begins at the end where that coordinate is less, and the colours c0 and c1 change places
    with the ends. The other coordinate moves by s: 1 where the last end's is greater or the same, else -1.

    Two tracks share the coverage: A begins at the start, B at one pixel from it, at s. With
    `h = (float)(N / M * 0.5)` and `q = (float)((N - h) / M)`, the coverage of A begins at 1 and falls by q a
    step; below 0 it grows by 1 and A moves by s. That of B begins at h / 2 and grows by q a step; above 1 it
    falls by 1 and B moves by s. These sums are exact.

    For i = 0..M, both ends included, the colour is c = mix(c0, c1, `trunc((float)(i / M) * 256)`), and a pixel
    of coverage v becomes mix(pixel, c, `trunc(min(alpha * 0.003921569f * v, 1) * 256)`), alpha being that of
    c: first A, then B, then, where B is two pixels ahead of A, the one between them with v = 1. Where A or B
    lies outside the image, none of them is drawn: a horizontal line in the last row draws nothing, nor does a
    vertical one in the last column. Where both ends are one nothing happens.

    Parameters
    ----------
    image : image, changed
        The image that is drawn on.
    colours : image
        The first two pixels of its first row are the colours of (x0, y0) and (x1, y1).
    x0 : int, pixels
        The first corner or end.
    y0 : int, pixels
        The first corner or end.
    x1 : int, pixels
        The other corner or end.
    y1 : int, pixels
        The other corner or end.

    Returns
    -------
    int
        0: Done.
        1: `colours` is narrower than 2 or has no row.
    """
    return _BBIDrawAlphaLine(
        _a.image("image", image, True).pointer,
        _a.image("colours", colours, False).pointer,
        _a.signed("x0", x0),
        _a.signed("y0", y0),
        _a.signed("x1", x1),
        _a.signed("y1", y1),
    )



# Boxes by position and size.


_BBIDrawColorFill = _function("BBIDrawColorFill", _i32, _pointer, _i32, _i32, _i32, _i32, _u32, _u32)


def BBIDrawColorFill(image: WritableImage, x: int, y: int, cx: int, cy: int, mask: int, colour: int) -> int:
    """Fills with one colour.

    Parameters
    ----------
    image : image, changed
        The image that is drawn on.
    x : int, pixels
        The upper left corner.
    y : int, pixels
        The upper left corner.
    cx : int, pixels
        The size.
    cy : int, pixels
        The size.
    mask : int, value
        Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
    colour : int, colour
        The colour.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIDrawColorFill(
        _a.image("image", image, True).pointer,
        _a.signed("x", x),
        _a.signed("y", y),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.unsigned("mask", mask),
        _a.unsigned("colour", colour),
    )


_BBIDrawColorTile = _function(
    "BBIDrawColorTile", _i32, _pointer, _i32, _i32, _i32, _i32, _u32, _i32, _i32, _u32, _u32, _u32, _u32
)


def BBIDrawColorTile(
    image: WritableImage, x: int, y: int, cx: int, cy: int, mask: int, tile_cx: int, tile_cy: int,
    colour0: int, colour1: int, colour2: int, colour3: int
) -> int:
    """Fills with a checkerboard of four colours: pixel (i, j) of the image has colour number `(i / tile_cx & 1) + 2 * (j / tile_cy & 1)`.

    The pattern begins at the image's corner, not at the box's.

    Parameters
    ----------
    image : image, changed
        The image that is drawn on.
    x : int, pixels
        The upper left corner.
    y : int, pixels
        The upper left corner.
    cx : int, pixels
        The size.
    cy : int, pixels
        The size.
    mask : int, value
        Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
    tile_cx : int, pixels
        The width of a tile; below 1 counts as 1.
    tile_cy : int, pixels
        The height of a tile; below 1 counts as 1.
    colour0 : int, colour
        Even columns of tiles in even rows.
    colour1 : int, colour
        Odd columns in even rows.
    colour2 : int, colour
        Even columns in odd rows.
    colour3 : int, colour
        Odd columns in odd rows.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIDrawColorTile(
        _a.image("image", image, True).pointer,
        _a.signed("x", x),
        _a.signed("y", y),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.unsigned("mask", mask),
        _a.signed("tile_cx", tile_cx),
        _a.signed("tile_cy", tile_cy),
        _a.unsigned("colour0", colour0),
        _a.unsigned("colour1", colour1),
        _a.unsigned("colour2", colour2),
        _a.unsigned("colour3", colour3),
    )


_BBIDrawBox = _function("BBIDrawBox", _i32, _pointer, _i32, _i32, _i32, _i32, _u32, _u32, _u32, _u32, _u32)


def BBIDrawBox(
    image: WritableImage, x: int, y: int, cx: int, cy: int, mask: int, top_left: int, top_right: int,
    bottom_left: int, bottom_right: int
) -> int:
    """Fills with a gradient between four corner colours, of which a clipped box shows its part.

    With (sx, sy, sw, sh) the clipped source rectangle, the visible part begins at `(float)(sx / W)` and ends
    at `(float)((sx + sw) / W)` across, down likewise with H. Column i of n visible ones lies at
    `u = (1 - f) * begin + f * end` with `f = i / (n - 1)`; rows likewise, but v is rounded to float. A weight
    is `trunc(max(min(u, 1), 0) * 256)`. With the weights wu and wv the pixel is
    `mix(mix(top_left, bottom_left, wv), mix(top_right, bottom_right, wv), wu)`.

    Where one column (row) is visible, its weight is 0: it shows the left (top) colours, wherever it lies in
    the box.

    Parameters
    ----------
    image : image, changed
        The image that is drawn on.
    x : int, pixels
        The upper left corner.
    y : int, pixels
        The upper left corner.
    cx : int, pixels
        The size.
    cy : int, pixels
        The size.
    mask : int, value
        Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
    top_left : int, colour
        The colour of the corner.
    top_right : int, colour
        The colour of the corner.
    bottom_left : int, colour
        The colour of the corner.
    bottom_right : int, colour
        The colour of the corner.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIDrawBox(
        _a.image("image", image, True).pointer,
        _a.signed("x", x),
        _a.signed("y", y),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.unsigned("mask", mask),
        _a.unsigned("top_left", top_left),
        _a.unsigned("top_right", top_right),
        _a.unsigned("bottom_left", bottom_left),
        _a.unsigned("bottom_right", bottom_right),
    )



# Boxes by corners.


_BBIDrawGradationBox = _function("BBIDrawGradationBox", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32)


def BBIDrawGradationBox(image: WritableImage, pattern: AnyImage, x0: int, y0: int, x1: int, y1: int) -> int:
    """Fills with a gradient between the upper left 2 x 2 pixels of the pattern, one for each corner.

    With p(column, row) a byte of the pattern, read before the first pixel is written,
    `left = (float)(v * p(0, 1) + (1 - v) * p(0, 0))` and `right = (float)(v * p(1, 1) + (1 - v) * p(1, 0))`,
    the byte is `trunc((1 - u) * left + u * right)`.

    Parameters
    ----------
    image : image, changed
        The image that is drawn on.
    pattern : image
        At least 2 x 2 pixels. It may be part of the image.
    x0 : int, pixels
        The first corner or end.
    y0 : int, pixels
        The first corner or end.
    x1 : int, pixels
        The other corner or end.
    y1 : int, pixels
        The other corner or end.

    Returns
    -------
    int
        0: Done, also when nothing lies inside the image.
        1: The pattern is smaller than 2 x 2.
    """
    return _BBIDrawGradationBox(
        _a.image("image", image, True).pointer,
        _a.image("pattern", pattern, False).pointer,
        _a.signed("x0", x0),
        _a.signed("y0", y0),
        _a.signed("x1", x1),
        _a.signed("y1", y1),
    )


_BBIDrawMultiplyLineBox = _function(
    "BBIDrawMultiplyLineBox", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32
)


def BBIDrawMultiplyLineBox(
    image: WritableImage, pattern: AnyImage, x0: int, y0: int, x1: int, y1: int
) -> int:
    """Multiplies a colour chosen along x with one chosen along y: `a * b / 255` rounded down, byte by byte.

    a is column `trunc(u * (pattern width - 1))` of the pattern's first row, read for each pixel; b is column
    `trunc(v * (pattern width - 1))` of its second row, read for each row.

    Parameters
    ----------
    image : image, changed
        The image that is drawn on.
    pattern : image
        At least 2 x 2 pixels. It may be part of the image.
    x0 : int, pixels
        The first corner or end.
    y0 : int, pixels
        The first corner or end.
    x1 : int, pixels
        The other corner or end.
    y1 : int, pixels
        The other corner or end.

    Returns
    -------
    int
        0: Done, also when nothing lies inside the image.
        1: The pattern is smaller than 2 x 2.
    """
    return _BBIDrawMultiplyLineBox(
        _a.image("image", image, True).pointer,
        _a.image("pattern", pattern, False).pointer,
        _a.signed("x0", x0),
        _a.signed("y0", y0),
        _a.signed("x1", x1),
        _a.signed("y1", y1),
    )


_BBIDrawExclusiveLineBox = _function(
    "BBIDrawExclusiveLineBox", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32
)


def BBIDrawExclusiveLineBox(
    image: WritableImage, pattern: AnyImage, x0: int, y0: int, x1: int, y1: int
) -> int:
    """As BBIDrawMultiplyLineBox, with `a + b`, above 255 folded back to `510 - (a + b)`.

    Parameters
    ----------
    image : image, changed
        The image that is drawn on.
    pattern : image
        At least 2 x 2 pixels. It may be part of the image.
    x0 : int, pixels
        The first corner or end.
    y0 : int, pixels
        The first corner or end.
    x1 : int, pixels
        The other corner or end.
    y1 : int, pixels
        The other corner or end.

    Returns
    -------
    int
        0: Done, also when nothing lies inside the image.
        1: The pattern is smaller than 2 x 2.
    """
    return _BBIDrawExclusiveLineBox(
        _a.image("image", image, True).pointer,
        _a.image("pattern", pattern, False).pointer,
        _a.signed("x0", x0),
        _a.signed("y0", y0),
        _a.signed("x1", x1),
        _a.signed("y1", y1),
    )



# Triangles.


_BBIDrawTriangle = _function(
    "BBIDrawTriangle", _i32, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _u32, _u32
)


def BBIDrawTriangle(
    image: WritableImage, x0: int, y0: int, x1: int, y1: int, x2: int, y2: int, mask: int, colour: int
) -> int:
    """Fills the pixels strictly inside: E(0, 1), E(1, 2) and E(2, 0) are all negative or all positive.

    No pixel on an edge is drawn, and none of a triangle without area.

    Parameters
    ----------
    image : image, changed
        The image that is drawn on.
    x0 : int, pixels
        The first corner or end.
    y0 : int, pixels
        The first corner or end.
    x1 : int, pixels
        The other corner or end.
    y1 : int, pixels
        The other corner or end.
    x2 : int, pixels
        The third corner.
    y2 : int, pixels
        The third corner.
    mask : int, value
        Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
    colour : int, colour
        The colour.

    Returns
    -------
    int
        0: Always.
    """
    return _BBIDrawTriangle(
        _a.image("image", image, True).pointer,
        _a.signed("x0", x0),
        _a.signed("y0", y0),
        _a.signed("x1", x1),
        _a.signed("y1", y1),
        _a.signed("x2", x2),
        _a.signed("y2", y2),
        _a.unsigned("mask", mask),
        _a.unsigned("colour", colour),
    )


_BBIDrawTriangleA = _function(
    "BBIDrawTriangleA", _i32, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _u32, _u32
)


def BBIDrawTriangleA(
    image: WritableImage, x0: int, y0: int, x1: int, y1: int, x2: int, y2: int, mask: int, colour: int
) -> int:
    """Fills the pixels inside and on the edges: where E(0, 1) is positive the other two are 0 or more, else they are 0 or less.

    Of a triangle without area these are the pixels exactly on its segment. Where the corners are in clockwise
    order as seen on the screen, as (0, 0), (4, 0), (0, 4) are, the edge from the first to the second is left
    out.

    Parameters
    ----------
    image : image, changed
        The image that is drawn on.
    x0 : int, pixels
        The first corner or end.
    y0 : int, pixels
        The first corner or end.
    x1 : int, pixels
        The other corner or end.
    y1 : int, pixels
        The other corner or end.
    x2 : int, pixels
        The third corner.
    y2 : int, pixels
        The third corner.
    mask : int, value
        Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
    colour : int, colour
        The colour.

    Returns
    -------
    int
        0: Always.
    """
    return _BBIDrawTriangleA(
        _a.image("image", image, True).pointer,
        _a.signed("x0", x0),
        _a.signed("y0", y0),
        _a.signed("x1", x1),
        _a.signed("y1", y1),
        _a.signed("x2", x2),
        _a.signed("y2", y2),
        _a.unsigned("mask", mask),
        _a.unsigned("colour", colour),
    )



# Gradient ellipses.


_BBIDrawLineCircle = _function("BBIDrawLineCircle", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32)


def BBIDrawLineCircle(image: WritableImage, palette: AnyImage, x0: int, y0: int, x1: int, y1: int) -> int:
    """Fills with rings: from the first row of the palette.

    Parameters
    ----------
    image : image, changed
        The image that is drawn on.
    palette : image
        The colours.
    x0 : int, pixels
        The first corner or end.
    y0 : int, pixels
        The first corner or end.
    x1 : int, pixels
        The other corner or end.
    y1 : int, pixels
        The other corner or end.

    Returns
    -------
    int
        0: Done, also when nothing lies inside the image.
        1: The palette is narrower than 2 or has no row.
    """
    return _BBIDrawLineCircle(
        _a.image("image", image, True).pointer,
        _a.image("palette", palette, False).pointer,
        _a.signed("x0", x0),
        _a.signed("y0", y0),
        _a.signed("x1", x1),
        _a.signed("y1", y1),
    )


_BBIDrawPolaCircle = _function("BBIDrawPolaCircle", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32)


def BBIDrawPolaCircle(image: WritableImage, palette: AnyImage, x0: int, y0: int, x1: int, y1: int) -> int:
    """Fills with rings and rays: from the row of the palette that the angle selects.

    Here `v * v` in r is rounded to float. The fraction t of a turn is `atan(u / v) * 0.159154976`, plus 0.25
    where v is negative and 0.75 where it is positive; where v is 0 it is 0.5 for a negative u, else 0. So 0 is
    to the right, 0.25 above, 0.5 to the left, 0.75 below, if the corners are the upper left and the lower
    right. The row is `min(trunc(t * palette height), palette height - 1)`. The arctangent is within one unit
    in the last place of the exact one and the same on every target.

    Parameters
    ----------
    image : image, changed
        The image that is drawn on.
    palette : image
        The colours.
    x0 : int, pixels
        The first corner or end.
    y0 : int, pixels
        The first corner or end.
    x1 : int, pixels
        The other corner or end.
    y1 : int, pixels
        The other corner or end.

    Returns
    -------
    int
        0: Done, also when nothing lies inside the image.
        1: The palette is smaller than 2 x 2.
    """
    return _BBIDrawPolaCircle(
        _a.image("image", image, True).pointer,
        _a.image("palette", palette, False).pointer,
        _a.signed("x0", x0),
        _a.signed("y0", y0),
        _a.signed("x1", x1),
        _a.signed("y1", y1),
    )



# Processor and scalars.


_GetCpuID = _function("GetCpuID", _i32)


def GetCpuID() -> int:
    """Tells the level of the processor, found when the library was loaded.

    Returns
    -------
    int
        The level: no result of another function depends on it.
    """
    return _GetCpuID()


_MMX = _function("MMX", _i32, _i32)


def MMX(flag: int) -> int:
    """Returns its argument.

    Kept for hosts that choose wide code paths with it; the library chooses by itself, and no result depends on
    it.

    Parameters
    ----------
    flag : int, value
        Any number.

    Returns
    -------
    int
        `flag`.
    """
    return _MMX(_a.signed("flag", flag))


_BBI = _function("BBI", _i32, _i32)


def BBI(x: int) -> int:
    """Returns its argument: lets a host see that the library is there.

    Parameters
    ----------
    x : int, value
        Any number.

    Returns
    -------
    int
        `x`.
    """
    return _BBI(_a.signed("x", x))


_wave = _function("wave", _i32, _i32)


def wave(x: int) -> int:
    """Returns its argument: lets a host see that the library is there.

    Parameters
    ----------
    x : int, value
        Any number.

    Returns
    -------
    int
        `x`.

    A second name of `BBI`.
    """
    return _wave(_a.signed("x", x))


_SHR = _function("SHR", _u32, _u32, _u32)


def SHR(value: int, count: int) -> int:
    """Shifts right and fills with zeros.

    Parameters
    ----------
    value : int, value
        The number that is shifted or stored.
    count : int, bits
        By how many bits; only its low five bits count, so that 33 shifts by 1.

    Returns
    -------
    int
        `value >> (count & 31)`, unsigned.
    """
    return _SHR(_a.unsigned("value", value), _a.unsigned("count", count))


_SAR = _function("SAR", _i32, _i32, _u32)


def SAR(value: int, count: int) -> int:
    """Shifts right and fills with the sign.

    Parameters
    ----------
    value : int, value
        The number that is shifted or stored.
    count : int, bits
        By how many bits; only its low five bits count, so that 33 shifts by 1.

    Returns
    -------
    int
        `value >> (count & 31)`, signed: -8 by 1 is -4, -1 by anything -1.
    """
    return _SAR(_a.signed("value", value), _a.unsigned("count", count))


_SHL = _function("SHL", _u32, _u32, _u32)


def SHL(value: int, count: int) -> int:
    """Shifts left.

    Parameters
    ----------
    value : int, value
        The number that is shifted or stored.
    count : int, bits
        By how many bits; only its low five bits count, so that 33 shifts by 1.

    Returns
    -------
    int
        The low 32 bits of `value << (count & 31)`.
    """
    return _SHL(_a.unsigned("value", value), _a.unsigned("count", count))


_GetWORD = _function("GetWORD", _u16, _pointer, _i32)


def GetWORD(base: Union[int, Buffer], index: int) -> int:
    """Reads the 16-bit word at `base + 2 * index`.

    The result is 16 bits wide: a host that takes it for 32 finds undefined bits in the upper half.

    Parameters
    ----------
    base : address or buffer
        Where index 0 lies. In a buffer the word has to lie inside it; at an address nothing is checked.
    index : int, index
        Which word, counted from `base`; may be negative.

    Returns
    -------
    int
        The word.
    """
    index = _a.signed("index", index)
    return _GetWORD(_a.address("base", base, index, 2, False), index)


_GetInt = _function("GetInt", _u16, _pointer, _i32)


def GetInt(base: Union[int, Buffer], index: int) -> int:
    """Reads the 16-bit word at `base + 2 * index`.

    The result is 16 bits wide: a host that takes it for 32 finds undefined bits in the upper half.

    Parameters
    ----------
    base : address or buffer
        Where index 0 lies. In a buffer the word has to lie inside it; at an address nothing is checked.
    index : int, index
        Which word, counted from `base`; may be negative.

    Returns
    -------
    int
        The word.

    A second name of `GetWORD`.
    """
    index = _a.signed("index", index)
    return _GetInt(_a.address("base", base, index, 2, False), index)


_SetWORD = _function("SetWORD", _u16, _pointer, _i32, _u32)


def SetWORD(base: Union[int, WritableBuffer], index: int, value: int) -> int:
    """Stores the low 16 bits of a number at `base + 2 * index`.

    Parameters
    ----------
    base : address or buffer, written
        Where index 0 lies. In a buffer the word has to lie inside it; at an address nothing is checked.
    index : int, index
        Which word, counted from `base`; may be negative.
    value : int, value
        The number that is shifted or stored.

    Returns
    -------
    int
        What was stored; 16 bits wide, as with GetWORD.
    """
    index = _a.signed("index", index)
    value = _a.unsigned("value", value)
    return _SetWORD(_a.address("base", base, index, 2, True), index, value)


_SetInt = _function("SetInt", _u16, _pointer, _i32, _u32)


def SetInt(base: Union[int, WritableBuffer], index: int, value: int) -> int:
    """Stores the low 16 bits of a number at `base + 2 * index`.

    Parameters
    ----------
    base : address or buffer, written
        Where index 0 lies. In a buffer the word has to lie inside it; at an address nothing is checked.
    index : int, index
        Which word, counted from `base`; may be negative.
    value : int, value
        The number that is shifted or stored.

    Returns
    -------
    int
        What was stored; 16 bits wide, as with GetWORD.

    A second name of `SetWORD`.
    """
    index = _a.signed("index", index)
    value = _a.unsigned("value", value)
    return _SetInt(_a.address("base", base, index, 2, True), index, value)


_GetDWORD = _function("GetDWORD", _u32, _pointer, _i32)


def GetDWORD(base: Union[int, Buffer], index: int) -> int:
    """Reads the 32-bit word at `base + 4 * index`.

    Parameters
    ----------
    base : address or buffer
        Where index 0 lies. In a buffer the word has to lie inside it; at an address nothing is checked.
    index : int, index
        Which word, counted from `base`; may be negative.

    Returns
    -------
    int
        The word.
    """
    index = _a.signed("index", index)
    return _GetDWORD(_a.address("base", base, index, 4, False), index)


_GetLong = _function("GetLong", _u32, _pointer, _i32)


def GetLong(base: Union[int, Buffer], index: int) -> int:
    """Reads the 32-bit word at `base + 4 * index`.

    Parameters
    ----------
    base : address or buffer
        Where index 0 lies. In a buffer the word has to lie inside it; at an address nothing is checked.
    index : int, index
        Which word, counted from `base`; may be negative.

    Returns
    -------
    int
        The word.

    A second name of `GetDWORD`.
    """
    index = _a.signed("index", index)
    return _GetLong(_a.address("base", base, index, 4, False), index)


_SetDWORD = _function("SetDWORD", _u32, _pointer, _i32, _u32)


def SetDWORD(base: Union[int, WritableBuffer], index: int, value: int) -> int:
    """Stores a number at `base + 4 * index`.

    Parameters
    ----------
    base : address or buffer, written
        Where index 0 lies. In a buffer the word has to lie inside it; at an address nothing is checked.
    index : int, index
        Which word, counted from `base`; may be negative.
    value : int, value
        The number that is shifted or stored.

    Returns
    -------
    int
        `value`.
    """
    index = _a.signed("index", index)
    value = _a.unsigned("value", value)
    return _SetDWORD(_a.address("base", base, index, 4, True), index, value)


_SetLong = _function("SetLong", _u32, _pointer, _i32, _u32)


def SetLong(base: Union[int, WritableBuffer], index: int, value: int) -> int:
    """Stores a number at `base + 4 * index`.

    Parameters
    ----------
    base : address or buffer, written
        Where index 0 lies. In a buffer the word has to lie inside it; at an address nothing is checked.
    index : int, index
        Which word, counted from `base`; may be negative.
    value : int, value
        The number that is shifted or stored.

    Returns
    -------
    int
        `value`.

    A second name of `SetDWORD`.
    """
    index = _a.signed("index", index)
    value = _a.unsigned("value", value)
    return _SetLong(_a.address("base", base, index, 4, True), index, value)


_dllComp = _function("dllComp", _i32, _pointer, _pointer, _i32)


def dllComp(a: Buffer, b: Buffer, count: int) -> int:
    """Compares bytes.

    The count may reach beyond the end of the memory if a difference lies before it: no page of 4096 bytes
    behind that of the first difference is touched.

    Parameters
    ----------
    a : buffer of count bytes
        The one.
    b : buffer of count bytes
        The other.
    count : int, bytes
        How many are compared; trusted up to the first difference.

    Returns
    -------
    int
        0: They are equal, or `count` is below 1.
        1: They differ.
    """
    count = _a.signed("count", count)
    return _dllComp(_a.memory("a", a, count, False), _a.memory("b", b, count, False), count)


_CopyMemoryEx = _function("CopyMemoryEx", _i32, _pointer, _pointer, _i32, _i32, _i32)


def CopyMemoryEx(dst: WritableBuffer, src: Buffer, words: int, rows: int, pitch: int) -> int:
    """Exclusive-ors a block of words into another, despite the name: onto zeros it copies, applied twice it undoes itself.

    In each row `dst[i] ^= src[i]`, word after word; then both move on by `pitch` bytes. Rows or words below 1
    do nothing.

    Each buffer is the whole block from its lowest address on: where rows go upwards, its last row comes first.

    Parameters
    ----------
    dst : buffer of abs(pitch) * (rows - 1) + 4 * words bytes, changed
        The block that is changed, from the first word of its first row.
    src : buffer of abs(pitch) * (rows - 1) + 4 * words bytes
        The block that is read.
    words : int, words
        32-bit words in a row.
    rows : int, rows
        Rows.
    pitch : int, bytes
        From the start of one row to that of the next, in both blocks; may be negative.

    Returns
    -------
    int
        0: Always.
    """
    words = _a.signed("words", words)
    rows = _a.signed("rows", rows)
    pitch = _a.signed("pitch", pitch)
    return _CopyMemoryEx(
        _a.memory("dst", dst, _abs(pitch) * (rows - 1) + 4 * words, True, _min(0, pitch * (rows - 1))),
        _a.memory("src", src, _abs(pitch) * (rows - 1) + 4 * words, False, _min(0, pitch * (rows - 1))),
        words,
        rows,
        pitch,
    )


_hash32A = _function("hash32A", _u32, _pointer)


def hash32A(text: Buffer) -> int:
    """Hashes a zero-terminated text, or the first 64 bytes of a longer one.

    The value is the same on all targets and in all versions, so that it may be stored. In unsigned 32-bit
    arithmetic:

    ```
    h1 = 0x22A83D, h2 = 0x1476E5
    for each byte ch before the zero, at most 64:
      h2 = h2 & 0x3FFFFF
      h1 = (h1 & 0x3FFFFF) + (h2 >> 1) + ch + 520 * h2
      h2 = h2 + ch + 162 * h1
    result = (h1 << 16) ^ h2
    ```

    Parameters
    ----------
    text : buffer of 64 bytes
        The text; nothing behind its zero is read.

    Returns
    -------
    int
        The hash; that of nothing is 0xA82976E5.
    """
    return _hash32A(_a.text("text", text, 64))


_hash32W = _function("hash32W", _u32, _pointer, _i32)


def hash32W(bytes: Buffer, length: int) -> int:
    """Hashes bytes of a given number, by another function than `hash32A`.

    Zero bytes are skipped, so that a 16-bit text of ASCII characters hashes like its 8-bit form. The value is
    the same on all targets and in all versions. In unsigned 32-bit arithmetic:

    ```
    h1 = 0x12A83D, h2 = 0x1476E5
    for each byte ch that is not 0:
      h2 = h2 & 0x1FFFFF
      h1 = (h1 & 0x1FFFFF) + (h2 >> 1) + ch + 520 * h2
      h2 = h2 + ch + 38 * h1
    result = (h1 << 16) ^ h2
    ```

    Parameters
    ----------
    bytes : buffer of length bytes
        What is hashed.
    length : int, bytes
        How many bytes; below 1 there are none.

    Returns
    -------
    int
        The hash; that of nothing is 0xA82976E5.
    """
    length = _a.signed("length", length)
    return _hash32W(_a.memory("bytes", bytes, length, False), length)


_dwColorBlend = _function("dwColorBlend", _u32, _u32, _u32, _f32)


def dwColorBlend(colour0: int, colour1: int, factor: float) -> int:
    """Mixes two colours, alpha included.

    Parameters
    ----------
    colour0 : int, colour
        The colour at factor 0.
    colour1 : int, colour
        The colour at factor 1.
    factor : float, factor, 0..1
        How much of `colour1`: negative, or not a number, counts as 0, above 1 as 1.

    Returns
    -------
    int
        Of each byte `(c0 * (256 - k) + c1 * k) >> 8` with `k = trunc(factor * 256)`.

    See Also
    --------
    BBIBltColorBlend
    """
    return _dwColorBlend(_a.unsigned("colour0", colour0), _a.unsigned("colour1", colour1), float(factor))


_dllMethod1 = _function("dllMethod1", _word, _TessaroMethod1, _word)


def dllMethod1(fn: Union[int, Callable[..., Any]], a: int) -> int:
    """Calls a function of one argument, which follows C's convention.

    Parameters
    ----------
    fn : callable or address
        The function that is called.
    a : int, value
        Its arguments, each as wide as a pointer.

    Returns
    -------
    int
        What `fn` returns.
    """
    return _dllMethod1(_a.function("fn", fn, _TessaroMethod1), _a.word("a", a))


_dllMethod4 = _function("dllMethod4", _word, _TessaroMethod4, _word, _word, _word, _word)


def dllMethod4(fn: Union[int, Callable[..., Any]], a: int, b: int, c: int, d: int) -> int:
    """Calls a function of four arguments, which follows C's convention.

    Parameters
    ----------
    fn : callable or address
        The function that is called.
    a : int, value
        Its arguments, each as wide as a pointer.
    b : int, value
        Its arguments, each as wide as a pointer.
    c : int, value
        Its arguments, each as wide as a pointer.
    d : int, value
        Its arguments, each as wide as a pointer.

    Returns
    -------
    int
        What `fn` returns.
    """
    return _dllMethod4(
        _a.function("fn", fn, _TessaroMethod4),
        _a.word("a", a),
        _a.word("b", b),
        _a.word("c", c),
        _a.word("d", d),
    )


_StdCallBack = _function("StdCallBack", _word, _TessaroCallback2, _word, _word)


def StdCallBack(fn: Union[int, Callable[..., Any]], a: int, b: int) -> int:
    """Calls a function of two arguments, which follows the library's own convention.

    Parameters
    ----------
    fn : callable or address
        The function that is called.
    a : int, value
        Its arguments, each as wide as a pointer.
    b : int, value
        Its arguments, each as wide as a pointer.

    Returns
    -------
    int
        What `fn` returns.
    """
    return _StdCallBack(_a.function("fn", fn, _TessaroCallback2), _a.word("a", a), _a.word("b", b))


_GetRandom = _function("GetRandom", _u32, _u32)


def GetRandom(n: int) -> int:
    """Draws a random number below a limit.

    The generator is the Mersenne Twister MT19937 of M. Matsumoto and T. Nishimura (1998) with the seeding of
    its revision of October 1999 (each word joins the high halves of two steps of `s = 69069 * s + 1`), seeded
    with the milliseconds since the system started when the library is loaded. It has one state for the process
    and no lock: of two threads that draw at the same moment both may get the same number, and a host that
    minds locks for itself.

    Parameters
    ----------
    n : int, count, 1..
        The limit, unsigned. 0 divides by zero and faults.

    Returns
    -------
    int
        The next output modulo `n`; each call draws one, also with 1.
    """
    n = _a.unsigned("n", n)
    _a.within("n", n, 1, None)
    return _GetRandom(n)



# Worker thread.


_ThreadBegin = _function("ThreadBegin", _i32, _TessaroWorker)


def ThreadBegin(fn: Union[int, Callable[..., Any]]) -> int:
    """Runs a function in a thread of its own, again and again, and returns when that thread has ended.

    The call blocks, yielding in a loop, so `ThreadKill` has to come from another thread. The function runs at
    least once unless `ThreadKill` came before the thread did. Two threads must not call `ThreadBegin` at the
    same moment.

    Parameters
    ----------
    fn : callable or address
        What the thread calls.

    Returns
    -------
    int
        0: The thread has ended, or the system could not make one.
        1: There is a worker already; told at once. One that ended in another way than by `ThreadKill`, its
          function having left by `ExitThread` or `pthread_exit`, still counts until `ThreadKill`.
    """
    return _ThreadBegin(_a.function("fn", fn, _TessaroWorker))


_ThreadKill = _function("ThreadKill", _i32)


def ThreadKill() -> int:
    """Stops the worker after its current call, and waits until it has ended, without a time limit.

    Then `ThreadBegin` may be called again. Called from within the worker's function it waits for ever. Two
    threads must not call it at the same moment.

    Returns
    -------
    int
        0: The worker has ended.
        1: There is no worker.
    """
    return _ThreadKill()



# Window hooks.


_WindowProcLoad = _function("WindowProcLoad", _i32, _pointer, _TessaroHook, _word)


def WindowProcLoad(window: Optional[int], hook: Union[int, Callable[..., Any]], value: int) -> int:
    """Offers the messages of a window to a function first, by giving the window a procedure of the library's.

    Procedures are read, set and called by the system's ANSI functions (`GetWindowLongPtrA` and its like), so
    that texts in messages are ANSI ones. A window that is hooked a second time gets a second entry whose
    previous procedure is the library's own, while its messages find the first: unhook it before hooking it
    again.

    Parameters
    ----------
    window : handle
        A window, an `HWND`.
    hook : callable or address
        What sees the messages.
    value : int, value
        A number that `hook` is given with each message.

    Returns
    -------
    int
        0: The window is hooked.
        1: The table is full, or the window has no procedure that can be read. So it is always where there
          are no such windows: everywhere but on Windows.
    """
    return _WindowProcLoad(window, _a.function("hook", hook, _TessaroHook, True), _a.word("value", value))


_WindowProcUnload = _function("WindowProcUnload", _i32, _pointer)


def WindowProcUnload(window: Optional[int]) -> int:
    """Gives a window its previous procedure back.

    Parameters
    ----------
    window : handle
        A window, an `HWND`.

    Returns
    -------
    int
        0: The window is unhooked.
        1: The window is not hooked.
    """
    return _WindowProcUnload(window)



# Maps.


_BBIMapUC = _function("BBIMapUC", _i32, _pointer, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIMapUC(
    dst: WritableImage, src: AnyImage, map: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """A tone curve for each channel: row 0 for every pixel, columns from s.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        What is recoloured, or selects the row.
    map : image
        At least 256 pixels wide, of which the first 256 columns count, and one row high.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in the images that are read.
    sy : int, pixels
        Where the rectangle begins in the images that are read.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing, or the map is too small.
    """
    return _BBIMapUC(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.image("map", map, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIMapUCVA = _function("BBIMapUCVA", _i32, _pointer, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIMapUCVA(
    dst: WritableImage, src: AnyImage, map: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """Row by the alpha of s, with the factor `(float)((H - 1) * 0.003921569f)`; columns from s.

    The constant is a little above 1 / 255. With 256 rows the row is the alpha.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        What is recoloured, or selects the row.
    map : image
        At least 256 pixels wide, of which the first 256 columns count, and one row high.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in the images that are read.
    sy : int, pixels
        Where the rectangle begins in the images that are read.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing, or the map is too small.
    """
    return _BBIMapUCVA(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.image("map", map, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIMapUDVA = _function("BBIMapUDVA", _i32, _pointer, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIMapUDVA(
    dst: WritableImage, src: AnyImage, map: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """The row of BBIMapUCVA, columns from d: s only selects the row.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        What is recoloured, or selects the row.
    map : image
        At least 256 pixels wide, of which the first 256 columns count, and one row high.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in the images that are read.
    sy : int, pixels
        Where the rectangle begins in the images that are read.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing, or the map is too small.
    """
    return _BBIMapUDVA(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.image("map", map, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIMapMCUCVA = _function(
    "BBIMapMCUCVA", _i32, _pointer, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32
)


def BBIMapMCUCVA(
    dst: WritableImage, src: AnyImage, map: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """As BBIMapUCVA, but the alpha of d stays.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        What is recoloured, or selects the row.
    map : image
        At least 256 x 256 pixels.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in the images that are read.
    sy : int, pixels
        Where the rectangle begins in the images that are read.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing, or the map is too small.
    """
    return _BBIMapMCUCVA(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.image("map", map, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIMapMCUDVA = _function(
    "BBIMapMCUDVA", _i32, _pointer, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32
)


def BBIMapMCUDVA(
    dst: WritableImage, src: AnyImage, map: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """As BBIMapUDVA, but the alpha of d stays.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        What is recoloured, or selects the row.
    map : image
        At least 256 x 256 pixels.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in the images that are read.
    sy : int, pixels
        Where the rectangle begins in the images that are read.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing, or the map is too small.
    """
    return _BBIMapMCUDVA(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.image("map", map, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIMapUCVC = _function("BBIMapUCVC", _i32, _pointer, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIMapUCVC(
    dst: WritableImage, src: AnyImage, map: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """Row by blue + green + red of s, with the factor `(float)((H - 1) * 0.0013071896f)`; columns from s.

    The constant is about 1 / 765.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        What is recoloured, or selects the row.
    map : image
        At least 256 pixels wide, of which the first 256 columns count, and one row high.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in the images that are read.
    sy : int, pixels
        Where the rectangle begins in the images that are read.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing, or the map is too small.
    """
    return _BBIMapUCVC(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.image("map", map, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIMapUDVC = _function("BBIMapUDVC", _i32, _pointer, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIMapUDVC(
    dst: WritableImage, src: AnyImage, map: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """The row of BBIMapUCVC, columns from d.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        What is recoloured, or selects the row.
    map : image
        At least 256 pixels wide, of which the first 256 columns count, and one row high.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in the images that are read.
    sy : int, pixels
        Where the rectangle begins in the images that are read.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing, or the map is too small.
    """
    return _BBIMapUDVC(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.image("map", map, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIMapUCVX = _function("BBIMapUCVX", _i32, _pointer, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIMapUCVX(
    dst: WritableImage, src: AnyImage, map: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """Row by the column in the clipped rectangle: in column i, `trunc(4 * i * (float)((H - 1) / (4.0 * (cx - 1))))`; columns from s.

    So the left edge has the first row of the map and the right edge the last, or the one before it, as the
    rounding of the factor goes. One pixel wide, it has row 0.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        What is recoloured, or selects the row.
    map : image
        At least 256 pixels wide, of which the first 256 columns count, and one row high.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in the images that are read.
    sy : int, pixels
        Where the rectangle begins in the images that are read.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing, or the map is too small.
    """
    return _BBIMapUCVX(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.image("map", map, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIMapUCVY = _function("BBIMapUCVY", _i32, _pointer, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIMapUCVY(
    dst: WritableImage, src: AnyImage, map: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """The same downward: in row i of the rectangle, `trunc(i * (float)((H - 1) / (cy - 1.0)))`; one pixel high, row 0.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        What is recoloured, or selects the row.
    map : image
        At least 256 pixels wide, of which the first 256 columns count, and one row high.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in the images that are read.
    sy : int, pixels
        Where the rectangle begins in the images that are read.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing, or the map is too small.
    """
    return _BBIMapUCVY(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.image("map", map, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )



# Stencils.


_BBIStencilFlip = _function(
    "BBIStencilFlip", _i32, _pointer, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _f32, _f32,
    _i32
)


def BBIStencilFlip(
    dst: WritableImage, outgoing: AnyImage, incoming: AnyImage, dx: int, dy: int, cx: int, cy: int, sx:
    int, sy: int, progress: float, softness: float, unused: int
) -> int:
    """A wipe or fade in which the incoming picture's own alpha is the stencil.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    outgoing : image
        The picture that progress 0 shows.
    incoming : image
        The picture that progress 1 shows.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in the images that are read.
    sy : int, pixels
        Where the rectangle begins in the images that are read.
    progress : float, factor, 0..1
        How far the transition has gone; clamped, not a number counts as 0.
    softness : float, factor, 0..1000
        The width of the edge.
    unused : int, flag
        Counts for nothing.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIStencilFlip(
        _a.image("dst", dst, True).pointer,
        _a.image("outgoing", outgoing, False).pointer,
        _a.image("incoming", incoming, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        float(progress),
        float(softness),
        _a.signed("unused", unused),
    )


_BBIStencilFlipLE = _function(
    "BBIStencilFlipLE", _i32, _pointer, _pointer, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32,
    _f32, _f32
)


def BBIStencilFlipLE(
    dst: WritableImage, outgoing: AnyImage, incoming: AnyImage, stencil: AnyImage, dx: int, dy: int, cx:
    int, cy: int, sx: int, sy: int, progress: float, softness: float
) -> int:
    """A wipe or fade with a stencil of its own.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    outgoing : image
        The picture that progress 0 shows.
    incoming : image
        The picture that progress 1 shows.
    stencil : image
        Its alpha decides.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in the images that are read.
    sy : int, pixels
        Where the rectangle begins in the images that are read.
    progress : float, factor, 0..1
        How far the transition has gone; clamped, not a number counts as 0.
    softness : float, factor, 0..1000
        The width of the edge.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIStencilFlipLE(
        _a.image("dst", dst, True).pointer,
        _a.image("outgoing", outgoing, False).pointer,
        _a.image("incoming", incoming, False).pointer,
        _a.image("stencil", stencil, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        float(progress),
        float(softness),
    )


_BBIStencilFlipLEFix = _function(
    "BBIStencilFlipLEFix", _i32, _pointer, _pointer, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32,
    _i32, _f32, _f32
)


def BBIStencilFlipLEFix(
    dst: WritableImage, incoming: AnyImage, outgoing: AnyImage, stencil: AnyImage, dx: int, dy: int, cx:
    int, cy: int, sx: int, sy: int, progress: float, softness: float
) -> int:
    """As BBIStencilFlipLE, with the two pictures in the other order.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    incoming : image
        The picture that progress 1 shows.
    outgoing : image
        The picture that progress 0 shows.
    stencil : image
        Its alpha decides.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in the images that are read.
    sy : int, pixels
        Where the rectangle begins in the images that are read.
    progress : float, factor, 0..1
        How far the transition has gone; clamped, not a number counts as 0.
    softness : float, factor, 0..1000
        The width of the edge.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIStencilFlipLEFix(
        _a.image("dst", dst, True).pointer,
        _a.image("incoming", incoming, False).pointer,
        _a.image("outgoing", outgoing, False).pointer,
        _a.image("stencil", stencil, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        float(progress),
        float(softness),
    )


_BBIStencilAddsigned = _function(
    "BBIStencilAddsigned", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _f32, _u32
)


def BBIStencilAddsigned(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int, opacity:
    float, colour: int
) -> int:
    """Shifts colours up or down where the stencil, the alpha of `src`, is.

    d becomes mix(d, T, w): the colours of T are `min(max(d + 2 * c - 255, 0), 255)` with c the byte of
    `colour`, its alpha is 0. So 128 adds 1, 127 takes 1, 255 adds 255, 0 takes 255; and the alpha of `dst`
    falls to 0 where the stencil is opaque. w is `trunc(a * opacity * 0.003921569f * 256)` for a stencil of a,
    products from left to right.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The stencil.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in the images that are read.
    sy : int, pixels
        Where the rectangle begins in the images that are read.
    opacity : float, opacity, 0..1
        Clamped; not a number counts as 0.
    colour : int, colour
        The shift; its alpha counts for nothing.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIStencilAddsigned(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        float(opacity),
        _a.unsigned("colour", colour),
    )



# Unscaled blits.


_BBIBlt = _function("BBIBlt", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBlt(dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int) -> int:
    """Copies: `s`.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBlt(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIBltColor = _function("BBIBltColor", _i32, _pointer, _i32, _i32, _i32, _i32, _u32, _u32, _u32)


def BBIBltColor(
    dst: WritableImage, dx: int, dy: int, cx: int, cy: int, mask: int, invert_bits: int, colour: int
) -> int:
    """Fills with a colour, all bits of it or some: `((d ^ invert_bits) & mask) | (colour & ~mask)`.

    A mask of 0 fills; one of 0xFFFFFFFF only inverts.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    mask : int, value
        Bits that the image keeps.
    invert_bits : int, value
        Bits that are inverted first; those that `mask` has not set do not show.
    colour : int, colour
        A colour.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltColor(
        _a.image("dst", dst, True).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.unsigned("mask", mask),
        _a.unsigned("invert_bits", invert_bits),
        _a.unsigned("colour", colour),
    )


_BBIBltColorBlend = _function("BBIBltColorBlend", _i32, _pointer, _i32, _i32, _i32, _i32, _u32, _f32)


def BBIBltColorBlend(
    dst: WritableImage, dx: int, dy: int, cx: int, cy: int, colour: int, factor: float
) -> int:
    """Mixes a colour into a rectangle, with the weight `trunc(factor * 256)`.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    colour : int, colour
        A colour.
    factor : float, factor, 0..1
        How much of the colour: 1 and above fill.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing, or the factor is negative or not a number.
    """
    return _BBIBltColorBlend(
        _a.image("dst", dst, True).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.unsigned("colour", colour),
        float(factor),
    )


_BBIBltAlpha = _function(
    "BBIBltAlpha", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _i32
)


def BBIBltAlpha(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int,
    max_with_dest: int, min_with_dest: int, invert: int, subtract_from_dest: int
) -> int:
    """Combines alphas and keeps the colours of `dst`.

    With `da` the alpha of `d` and `a` that of `s`, these act if their flags are on, in this order, the reverse
    of that of the arguments:

    1. `subtract_from_dest`: `a = da - a`
    2. `invert`: `a = 255 - a`
    3. `min_with_dest`: `a = min(a, da)`
    4. `max_with_dest`: `a = max(a, da)`

    The low eight bits of `a` are stored: what lies outside 0 to 255 wraps (10 - 20 gives 246). With the last
    two on `da` stays.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.
    max_with_dest : int, flag
        Step 4.
    min_with_dest : int, flag
        Step 3.
    invert : int, flag
        Step 2.
    subtract_from_dest : int, flag
        Step 1.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltAlpha(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("max_with_dest", max_with_dest),
        _a.signed("min_with_dest", min_with_dest),
        _a.signed("invert", invert),
        _a.signed("subtract_from_dest", subtract_from_dest),
    )


_BBIBltAdd = _function("BBIBltAdd", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltAdd(dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int) -> int:
    """Adds: `min(d + s, 255)`.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltAdd(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIBltMul = _function("BBIBltMul", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltMul(dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int) -> int:
    """Multiplies: `(d * s + 255) >> 8`.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltMul(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIBltSub = _function("BBIBltSub", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltSub(dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int) -> int:
    """Subtracts: `max(d - s, 0)`.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltSub(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIBltXor = _function("BBIBltXor", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltXor(dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int) -> int:
    """Takes the difference: `abs(d - s)`, despite the name no exclusive-or.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltXor(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIBltXor2 = _function("BBIBltXor2", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltXor2(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """Takes the signed difference: `(d - s + 128) & 255`, which `BBIBltXor3` with the same source undoes.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltXor2(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIBltXor3 = _function("BBIBltXor3", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltXor3(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """Adds a signed difference: `(d + s - 128) & 255`.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltXor3(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIBltNot = _function("BBIBltNot", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltNot(dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int) -> int:
    """Copies inverted: `255 - s`, alpha too.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltNot(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIBltMin = _function("BBIBltMin", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltMin(dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int) -> int:
    """Takes the darker: `min(d, s)`.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltMin(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIBltMax = _function("BBIBltMax", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltMax(dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int) -> int:
    """Takes the brighter: `max(d, s)`.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltMax(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIBltKeying = _function("BBIBltKeying", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltKeying(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """Copies all pixels but those that equal a key.

    The key is the word at column 0, row 0 of the source image, wherever the rectangle lies, read once before
    the first pixel is written. Whole words are compared, alpha included.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltKeying(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIBltKeyingFX = _function(
    "BBIBltKeyingFX", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _i32
)


def BBIBltKeyingFX(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int, keyed: int,
    level: int
) -> int:
    """Cross-fades: a mix with the weight `level`, of all pixels or of all but those that equal a key.

    At 255 and above it is `BBIBlt`, with `keyed` on `BBIBltKeying`. At 0 and below nothing changes; the result
    is 0, or 1 where clipping leaves nothing.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.
    keyed : int, flag
        Whether pixels that equal the key of `BBIBltKeying` are left out.
    level : int, level, 0..255
        How much of the source.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltKeyingFX(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("keyed", keyed),
        _a.signed("level", level),
    )


_BBIBltBlend = _function("BBIBltBlend", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltBlend(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int, whole: int
) -> int:
    """Mixes a source in by its own alpha `a`, in one of two ways.

    - `whole` off: 0 keeps `d`, 255 gives `s`, between them `(s * a + d * (255 - a)) >> 8`, which darkens a
      little.
    - `whole` on: a mix with the weight `a * 256 / 255`, which does not; a byte may be greater by one or two.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.
    whole : int, flag
        Whether weights add up to 256.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltBlend(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("whole", whole),
    )


_BBIBltHalfBlend = _function("BBIBltHalfBlend", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltHalfBlend(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """Mixes half and half: `(s >> 1) + (d >> 1)`, where two odd bytes lose one.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltHalfBlend(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIBltShiftAlpha = _function(
    "BBIBltShiftAlpha", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32
)


def BBIBltShiftAlpha(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """Shows alpha as grey: all four bytes become the alpha of `s`.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltShiftAlpha(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIBltShiftBlock = _function(
    "BBIBltShiftBlock", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32
)


def BBIBltShiftBlock(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """Marks pixels: where the whole word `s` is above 128, `(~d & 0x007FC0C0) | 0x00800000`, elsewhere `d`.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltShiftBlock(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )



# Pixel formats.


_BBIBltTo32from1 = _function("BBIBltTo32from1", _i32, _pointer, _pointer, _pointer, _i32)


def BBIBltTo32from1(image: WritableImage, bits: Buffer, palette: Buffer, stride: int) -> int:
    """Fills an image from a bottom-up bitmap of one bit a pixel.

    Row y of the image (0 is the top) comes from `bits + (height - 1 - y) * stride`, here and in the three
    functions below. An image without pixels is left alone. Each row starts with a new byte, the first of eight
    pixels in its highest bit; a byte is read once for its eight pixels.

    Each buffer is the whole block from its lowest address on: where rows go upwards, its last row comes first.

    Parameters
    ----------
    image : image, changed
        The image that is filled.
    bits : buffer of abs(stride) * (image.height - 1) + ceil_div(image.width, 8) bytes
        The bottom row.
    palette : buffer of 2 words
        The colours of a 0 and a 1.
    stride : int, bytes
        From the start of a row to that of the row above it; may be 0 or negative.

    Returns
    -------
    int
        0: Always.
    """
    stride = _a.signed("stride", stride)
    image_ = _a.image("image", image, True)
    return _BBIBltTo32from1(
        image_.pointer,
        _a.memory("bits", bits, _abs(stride) * (image_.height - 1) + _a.ceil_div(image_.width, 8), False, _min(0, stride * (image_.height - 1))),
        _a.memory("palette", palette, 8, False),
        stride,
    )


_BBIBltTo32from8 = _function("BBIBltTo32from8", _i32, _pointer, _pointer, _pointer, _i32)


def BBIBltTo32from8(image: WritableImage, bits: Buffer, palette: Buffer, stride: int) -> int:
    """Fills an image from a bottom-up bitmap of one byte a pixel, the number of a colour.

    Each buffer is the whole block from its lowest address on: where rows go upwards, its last row comes first.

    Parameters
    ----------
    image : image, changed
        The image that is filled.
    bits : buffer of abs(stride) * (image.height - 1) + image.width bytes
        The bottom row.
    palette : buffer of 256 words
        The colours.
    stride : int, bytes
        From the start of a row to that of the row above it; may be 0 or negative.

    Returns
    -------
    int
        0: Always.
    """
    stride = _a.signed("stride", stride)
    image_ = _a.image("image", image, True)
    return _BBIBltTo32from8(
        image_.pointer,
        _a.memory("bits", bits, _abs(stride) * (image_.height - 1) + image_.width, False, _min(0, stride * (image_.height - 1))),
        _a.memory("palette", palette, 1024, False),
        stride,
    )


_BBIBltTo32from24 = _function("BBIBltTo32from24", _i32, _pointer, _pointer, _i32)


def BBIBltTo32from24(image: WritableImage, bits: Buffer, stride: int) -> int:
    """Fills an image from a bottom-up bitmap of blue, green and red; alpha becomes 0.

    Each buffer is the whole block from its lowest address on: where rows go upwards, its last row comes first.

    Parameters
    ----------
    image : image, changed
        The image that is filled.
    bits : buffer of abs(stride) * (image.height - 1) + 3 * image.width bytes
        The bottom row.
    stride : int, bytes
        From the start of a row to that of the row above it; may be 0 or negative.

    Returns
    -------
    int
        0: Always.
    """
    stride = _a.signed("stride", stride)
    image_ = _a.image("image", image, True)
    return _BBIBltTo32from24(
        image_.pointer,
        _a.memory("bits", bits, _abs(stride) * (image_.height - 1) + 3 * image_.width, False, _min(0, stride * (image_.height - 1))),
        stride,
    )


_BBIBltTo32from32 = _function("BBIBltTo32from32", _i32, _pointer, _pointer, _i32)


def BBIBltTo32from32(image: WritableImage, bits: Buffer, stride: int) -> int:
    """Fills an image from a bottom-up bitmap of whole words, alpha included.

    Each buffer is the whole block from its lowest address on: where rows go upwards, its last row comes first.

    Parameters
    ----------
    image : image, changed
        The image that is filled.
    bits : buffer of abs(stride) * (image.height - 1) + 4 * image.width bytes
        The bottom row.
    stride : int, bytes
        From the start of a row to that of the row above it; may be 0 or negative.

    Returns
    -------
    int
        0: Always.
    """
    stride = _a.signed("stride", stride)
    image_ = _a.image("image", image, True)
    return _BBIBltTo32from32(
        image_.pointer,
        _a.memory("bits", bits, _abs(stride) * (image_.height - 1) + 4 * image_.width, False, _min(0, stride * (image_.height - 1))),
        stride,
    )


_BBIBltToBBIGet = _function("BBIBltToBBIGet", _i32, _pointer, _pointer, _i32, _i32)


def BBIBltToBBIGet(dst: WritableBuffer, src: Buffer, count: int, format: int) -> int:
    """Unpacks pixels of a format.

    Parameters
    ----------
    dst : buffer of count words, written
        The pixels.
    src : buffer of count * bytes_of(format) bytes
        The packed pixels.
    count : int, pixels
        How many.
    format : Format
        How the pixels are packed.

    Returns
    -------
    int
        0: Always; an unknown format does nothing.
    """
    count = _a.signed("count", count)
    format = _a.signed("format", format)
    return _BBIBltToBBIGet(
        _a.memory("dst", dst, 4 * count, True),
        _a.memory("src", src, count * _a.bytes_of(format), False),
        count,
        format,
    )


_BBIBltTo24As888 = _function("BBIBltTo24As888", _i32, _pointer, _pointer, _i32)


def BBIBltTo24As888(dst: WritableBuffer, src: Buffer, count: int) -> int:
    """Packs pixels as 888.

    Parameters
    ----------
    dst : buffer of 3 * count bytes, written
        The packed pixels.
    src : buffer of count words
        The pixels.
    count : int, pixels
        How many.

    Returns
    -------
    int
        0: Always.
    """
    count = _a.signed("count", count)
    return _BBIBltTo24As888(
        _a.memory("dst", dst, 3 * count, True),
        _a.memory("src", src, 4 * count, False),
        count,
    )


_BBIBltTo16As444 = _function("BBIBltTo16As444", _i32, _pointer, _pointer, _i32)


def BBIBltTo16As444(dst: WritableBuffer, src: Buffer, count: int) -> int:
    """Packs pixels as 4444, alpha included.

    Parameters
    ----------
    dst : buffer of count halfwords, written
        The packed pixels.
    src : buffer of count words
        The pixels.
    count : int, pixels
        How many.

    Returns
    -------
    int
        0: Always.
    """
    count = _a.signed("count", count)
    return _BBIBltTo16As444(
        _a.memory("dst", dst, 2 * count, True),
        _a.memory("src", src, 4 * count, False),
        count,
    )


_BBIBltTo16As565 = _function("BBIBltTo16As565", _i32, _pointer, _pointer, _i32)


def BBIBltTo16As565(dst: WritableBuffer, src: Buffer, count: int) -> int:
    """Packs pixels as 565.

    Parameters
    ----------
    dst : buffer of count halfwords, written
        The packed pixels.
    src : buffer of count words
        The pixels.
    count : int, pixels
        How many.

    Returns
    -------
    int
        0: Always.
    """
    count = _a.signed("count", count)
    return _BBIBltTo16As565(
        _a.memory("dst", dst, 2 * count, True),
        _a.memory("src", src, 4 * count, False),
        count,
    )


_BBIBltTo16As555 = _function("BBIBltTo16As555", _i32, _pointer, _pointer, _i32)


def BBIBltTo16As555(dst: WritableBuffer, src: Buffer, count: int) -> int:
    """Packs pixels as 555.

    Parameters
    ----------
    dst : buffer of count halfwords, written
        The packed pixels.
    src : buffer of count words
        The pixels.
    count : int, pixels
        How many.

    Returns
    -------
    int
        0: Always.
    """
    count = _a.signed("count", count)
    return _BBIBltTo16As555(
        _a.memory("dst", dst, 2 * count, True),
        _a.memory("src", src, 4 * count, False),
        count,
    )


_BBIBltTo16As1555 = _function("BBIBltTo16As1555", _i32, _pointer, _pointer, _i32)


def BBIBltTo16As1555(dst: WritableBuffer, src: Buffer, count: int) -> int:
    """Packs pixels as 1555.

    Parameters
    ----------
    dst : buffer of count halfwords, written
        The packed pixels.
    src : buffer of count words
        The pixels.
    count : int, pixels
        How many.

    Returns
    -------
    int
        0: Always.
    """
    count = _a.signed("count", count)
    return _BBIBltTo16As1555(
        _a.memory("dst", dst, 2 * count, True),
        _a.memory("src", src, 4 * count, False),
        count,
    )


_BBIBltTo8AsGray = _function("BBIBltTo8AsGray", _i32, _pointer, _pointer, _i32)


def BBIBltTo8AsGray(dst: WritableBuffer, src: Buffer, count: int) -> int:
    """Takes the blue byte of each pixel: the grey of a grey picture; no luminance is formed.

    Parameters
    ----------
    dst : buffer of count bytes, written
        A byte a pixel.
    src : buffer of count words
        The pixels.
    count : int, pixels
        How many.

    Returns
    -------
    int
        0: Always.
    """
    count = _a.signed("count", count)
    return _BBIBltTo8AsGray(
        _a.memory("dst", dst, count, True),
        _a.memory("src", src, 4 * count, False),
        count,
    )


_BBIBltTo8AsAlpha = _function("BBIBltTo8AsAlpha", _i32, _pointer, _pointer, _i32)


def BBIBltTo8AsAlpha(dst: WritableBuffer, src: Buffer, count: int) -> int:
    """Takes the alpha of each pixel.

    Parameters
    ----------
    dst : buffer of count bytes, written
        A byte a pixel.
    src : buffer of count words
        The pixels.
    count : int, pixels
        How many.

    Returns
    -------
    int
        0: Always.
    """
    count = _a.signed("count", count)
    return _BBIBltTo8AsAlpha(
        _a.memory("dst", dst, count, True),
        _a.memory("src", src, 4 * count, False),
        count,
    )


_BBIBltTo1 = _function("BBIBltTo1", _i32, _pointer, _pointer, _i32)


def BBIBltTo1(dst: WritableBuffer, src: Buffer, count: int) -> int:
    """Packs one bit a pixel, 1 where the blue byte is at least 128.

    A byte is written when its pixels have been read, the first of eight in its highest bit; bits of the last
    byte that belong to no pixel are 0.

    Parameters
    ----------
    dst : buffer of ceil_div(count, 8) bytes, written
        The bits.
    src : buffer of count words
        The pixels.
    count : int, pixels
        How many.

    Returns
    -------
    int
        0: Always.
    """
    count = _a.signed("count", count)
    return _BBIBltTo1(
        _a.memory("dst", dst, _a.ceil_div(count, 8), True),
        _a.memory("src", src, 4 * count, False),
        count,
    )


_BBIBltToX = _function("BBIBltToX", _i32, _pointer, _pointer, _i32, _i32, _u32, _f32)


def BBIBltToX(dst: WritableBuffer, src: Buffer, count: int, format: int, colour: int, factor: float) -> int:
    """Mixes pixels with a colour and packs them: factor 1 keeps the pixel, 0 gives the colour.

    Parameters
    ----------
    dst : buffer of count * bytes_of(format) bytes, written
        The packed pixels.
    src : buffer of count words
        The pixels.
    count : int, pixels
        How many.
    format : Format
        How the pixels are packed.
    colour : int, colour
        What is mixed in where the factor is below 1.
    factor : float, factor, 0..1
        The weight of the pixel: negative, or not a number, counts as 0, above 1 as 1.

    Returns
    -------
    int
        0: Always; an unknown format does nothing.
    """
    count = _a.signed("count", count)
    format = _a.signed("format", format)
    return _BBIBltToX(
        _a.memory("dst", dst, count * _a.bytes_of(format), True),
        _a.memory("src", src, 4 * count, False),
        count,
        format,
        _a.unsigned("colour", colour),
        float(factor),
    )


_BBIBltToXF = _function("BBIBltToXF", _i32, _pointer, _pointer, _pointer, _i32, _i32, _f32)


def BBIBltToXF(dst: WritableBuffer, a: Buffer, b: Buffer, count: int, format: int, factor: float) -> int:
    """Mixes two runs of pixels and packs the result: factor 0 gives those of `a`, 1 those of `b`.

    Parameters
    ----------
    dst : buffer of count * bytes_of(format) bytes, written
        The packed pixels.
    a : buffer of count words
        The pixels with the weight `256 - k`.
    b : buffer of count words
        The pixels with the weight `k`.
    count : int, pixels
        How many.
    format : Format
        How the pixels are packed.
    factor : float, factor, 0..1
        How much of `b`: negative, or not a number, counts as 0, above 1 as 1.

    Returns
    -------
    int
        0: Done.
        1: The format is unknown, whatever the count.
    """
    count = _a.signed("count", count)
    format = _a.signed("format", format)
    return _BBIBltToXF(
        _a.memory("dst", dst, count * _a.bytes_of(format), True),
        _a.memory("a", a, 4 * count, False),
        _a.memory("b", b, 4 * count, False),
        count,
        format,
        float(factor),
    )


_BBIBltToF = _function("BBIBltToF", _i32, _pointer, _pointer, _i32, _i32, _u32, _f32, _f32, _i32, _pointer)


def BBIBltToF(
    dst: WritableBuffer, src: Buffer, count: int, format: int, colour: int, factor: float, saturation:
    float, use_table: int, table: Buffer
) -> int:
    """Changes saturation, looks levels up, mixes with a colour and packs.

    Each pixel in this order, its alpha untouched by the first two steps:

    1. Unless the saturation is exactly 1: with `m = trunc(saturation * 1024)` and `t = (1024 - m) / 3`,
      truncated toward zero, each colour byte c becomes `(c * m >> 10) + ((B + G + R) * t >> 10)`, kept within
      0 to 255. At 0 that is a grey a little below the mean.
    2. With `use_table` on: B, G and R become `table[B]`, `table[256 + G]` and `table[512 + R]`.
    3. The mix with the colour, and the packing, as by `BBIBltToX`.

    Parameters
    ----------
    dst : buffer of count * bytes_of(format) bytes, written
        The packed pixels.
    src : buffer of count words
        The pixels.
    count : int, pixels
        How many.
    format : Format
        How the pixels are packed.
    colour : int, colour
        What is mixed in where the factor is below 1.
    factor : float, factor, 0..1
        The weight of the pixel: negative, or not a number, counts as 0, above 1 as 1.
    saturation : float, factor, 0..256
        Negative, or not a number, counts as 0, above 256 as 256.
    use_table : int, flag
        Whether levels are looked up.
    table : buffer of 768 bytes
        Tables for blue, green and red, 256 bytes each; only read with `use_table` on.

    Returns
    -------
    int
        0: Done.
        1: The format is unknown, whatever the count.
    """
    count = _a.signed("count", count)
    format = _a.signed("format", format)
    return _BBIBltToF(
        _a.memory("dst", dst, count * _a.bytes_of(format), True),
        _a.memory("src", src, 4 * count, False),
        count,
        format,
        _a.unsigned("colour", colour),
        float(factor),
        float(saturation),
        _a.signed("use_table", use_table),
        _a.memory("table", table, 768, False),
    )



# Whole images.


_BBICompare = _function("BBICompare", _i32, _pointer, _pointer, _i32)


def BBICompare(a: AnyImage, b: AnyImage, mode: int) -> int:
    """Compares two images, or tests the first.

    Both have to be images in every mode: their sizes are compared first, also where only the pixels of `a` are
    read.

    Parameters
    ----------
    a : image
        The images that are compared.
    b : image
        The images that are compared.
    mode : Compare
        What is tested.

    Returns
    -------
    int
        0: The test holds for every pixel, or the images have no rows.
        1: It fails for one, or the sizes differ.
        2: The mode is unknown, and the images are of one size and have rows.
    """
    return _BBICompare(
        _a.image("a", a, False).pointer,
        _a.image("b", b, False).pointer,
        _a.signed("mode", mode),
    )


_BBICompareAny = _function("BBICompareAny", _i32, _pointer, _pointer, _u32, _i32)


def BBICompareAny(a: AnyImage, b: AnyImage, mask: int, tolerance: int) -> int:
    """Counts pixels that differ, but not by much in every byte.

    With `p` and `q` the pixels of both images under the mask, a pixel counts if `p` is not `q` and at least
    one of the four bytes differs by no more than the tolerance. Bytes that are equal or masked away differ by
    0: so with a byte masked away all pixels that differ count; pixels that differ by more in all four bytes do
    not.

    Parameters
    ----------
    a : image
        The images that are compared.
    b : image
        The images that are compared.
    mask : int, value
        The bits that are compared.
    tolerance : int, level, 1..255
        Kept within these limits.

    Returns
    -------
    int
        The number of such pixels; 0 for images without pixels.
        -1: The sizes differ.
    """
    return _BBICompareAny(
        _a.image("a", a, False).pointer,
        _a.image("b", b, False).pointer,
        _a.unsigned("mask", mask),
        _a.signed("tolerance", tolerance),
    )


_BBIColorCount = _function("BBIColorCount", _i32, _pointer, _i32)


def BBIColorCount(image: AnyImage, reserved: int) -> int:
    """Counts the different colours of an image, alpha aside.

    Parameters
    ----------
    image : image
        The image that is read.
    reserved : int, flag
        Has to be 0.

    Returns
    -------
    int
        The number of colours; 0 also if `reserved` is not 0, or if working memory (at most 2 MiB) cannot be
        had.
    """
    return _BBIColorCount(_a.image("image", image, False).pointer, _a.signed("reserved", reserved))


_BBIColorPalette = _function("BBIColorPalette", _i32, _pointer, _pointer, _i32)


def BBIColorPalette(image: WritableImage, palette: WritableBuffer, max: int) -> int:
    """Collects the colours of an image into a palette, and replaces each pixel's alpha by the number of its colour there.

    Colours are collected in order of appearance, with alpha 0, until the palette is full; pixels whose colour
    found no room get an alpha of 0. Entries of the palette that no colour takes are left alone.

    Parameters
    ----------
    image : image, changed
        The image that is changed.
    palette : buffer of max words, written
        The colours.
    max : int, count, 0..256
        The room in the palette; otherwise nothing is done and 0 returned.

    Returns
    -------
    int
        The colours collected, plus the pixels whose colour found no room: above `max` the palette was too
        small. 0 for an image without pixels.
    """
    max = _a.signed("max", max)
    return _BBIColorPalette(
        _a.image("image", image, True).pointer,
        _a.memory("palette", palette, 4 * max, True),
        max,
    )


_BBITrim = _function("BBITrim", _i32, _pointer, _i32, _u32, _u32, _pointer, _pointer, _pointer, _pointer)


def BBITrim(
    image: AnyImage, reserved: int, mask: int, key: int, left: WritableBuffer, top: WritableBuffer, cx:
    WritableBuffer, cy: WritableBuffer
) -> int:
    """Finds the smallest rectangle around all content, that is pixels with `(pixel & mask) != key`.

    It is told by its first column and row and its size (`BBIPaint` tells last column and row); without content
    it is 0, 0, 1, 1.

    Parameters
    ----------
    image : image
        The image that is read.
    reserved : int, flag
        Has to be 0.
    mask : int, value
        The bits of a pixel that are compared. Bits of `key` that it has not set make every pixel content.
    key : int, colour
        What is no content.
    left : buffer of 1 words, written
        The first column.
    top : buffer of 1 words, written
        The first row.
    cx : buffer of 1 words, written
        The number of columns.
    cy : buffer of 1 words, written
        The number of rows.

    Returns
    -------
    int
        0: Done.
        1: `reserved` is not 0.
    """
    return _BBITrim(
        _a.image("image", image, False).pointer,
        _a.signed("reserved", reserved),
        _a.unsigned("mask", mask),
        _a.unsigned("key", key),
        _a.memory("left", left, 4, True),
        _a.memory("top", top, 4, True),
        _a.memory("cx", cx, 4, True),
        _a.memory("cy", cy, 4, True),
    )


_BBIClear = _function("BBIClear", _i32, _pointer, _i32, _i32, _i32, _i32)


def BBIClear(image: WritableImage, red: int, green: int, blue: int, alpha: int) -> int:
    """Fills an image.

    Parameters
    ----------
    image : image, changed
        The image that is changed.
    red : int, level, 0..255
        The bytes of a colour; below 0 counts as 0, above 255 as 255.
    green : int, level, 0..255
        The bytes of a colour; below 0 counts as 0, above 255 as 255.
    blue : int, level, 0..255
        The bytes of a colour; below 0 counts as 0, above 255 as 255.
    alpha : int, level, 0..255
        The bytes of a colour; below 0 counts as 0, above 255 as 255.

    Returns
    -------
    int
        0: Done.
        1: The image has no pixels.
    """
    return _BBIClear(
        _a.image("image", image, True).pointer,
        _a.signed("red", red),
        _a.signed("green", green),
        _a.signed("blue", blue),
        _a.signed("alpha", alpha),
    )


_BBIClearRGB = _function("BBIClearRGB", _i32, _pointer, _i32, _i32, _i32)


def BBIClearRGB(image: WritableImage, red: int, green: int, blue: int) -> int:
    """Fills an image and keeps its alpha.

    Parameters
    ----------
    image : image, changed
        The image that is changed.
    red : int, level, 0..255
        The bytes of a colour; below 0 counts as 0, above 255 as 255.
    green : int, level, 0..255
        The bytes of a colour; below 0 counts as 0, above 255 as 255.
    blue : int, level, 0..255
        The bytes of a colour; below 0 counts as 0, above 255 as 255.

    Returns
    -------
    int
        0: Done.
        1: The image has no pixels.
    """
    return _BBIClearRGB(
        _a.image("image", image, True).pointer,
        _a.signed("red", red),
        _a.signed("green", green),
        _a.signed("blue", blue),
    )


_BBIClearMask = _function("BBIClearMask", _i32, _pointer, _i32, _i32, _i32, _i32, _u32)


def BBIClearMask(image: WritableImage, red: int, green: int, blue: int, alpha: int, mask: int) -> int:
    """Fills some bits of an image: `(pixel & mask) | (colour & ~mask)`.

    Parameters
    ----------
    image : image, changed
        The image that is changed.
    red : int, level, 0..255
        The bytes of a colour; below 0 counts as 0, above 255 as 255.
    green : int, level, 0..255
        The bytes of a colour; below 0 counts as 0, above 255 as 255.
    blue : int, level, 0..255
        The bytes of a colour; below 0 counts as 0, above 255 as 255.
    alpha : int, level, 0..255
        The bytes of a colour; below 0 counts as 0, above 255 as 255.
    mask : int, value
        The bits that the image keeps.

    Returns
    -------
    int
        0: Done.
        1: The image has no pixels.
    """
    return _BBIClearMask(
        _a.image("image", image, True).pointer,
        _a.signed("red", red),
        _a.signed("green", green),
        _a.signed("blue", blue),
        _a.signed("alpha", alpha),
        _a.unsigned("mask", mask),
    )


_BBIMirror = _function("BBIMirror", _i32, _pointer)


def BBIMirror(image: WritableImage) -> int:
    """Mirrors an image in place, left to right.

    Parameters
    ----------
    image : image, changed
        The image that is changed.

    Returns
    -------
    int
        0: Done.
        1: The image has no pixels.
    """
    return _BBIMirror(_a.image("image", image, True).pointer)


_BBIVMirror = _function("BBIVMirror", _i32, _pointer)


def BBIVMirror(image: WritableImage) -> int:
    """Mirrors an image in place, top to bottom.

    Parameters
    ----------
    image : image, changed
        The image that is changed.

    Returns
    -------
    int
        0: Done.
        1: The image has no pixels.
    """
    return _BBIVMirror(_a.image("image", image, True).pointer)


_BBIRotation = _function("BBIRotation", _i32, _pointer, _pointer, _i32)


def BBIRotation(dst: WritableImage, src: AnyImage, mode: int) -> int:
    """Turns an image into another.

    The two must not share pixels: what `dst` holds afterwards is undefined if they do.

    Parameters
    ----------
    dst : image, changed
        The turned image, of the size of `src`, with width and height exchanged for a quarter.
    src : image
        The image that is read.
    mode : Turn
        Which turn.

    Returns
    -------
    int
        0: Done; also, without anything done, for any other mode, whatever the sizes, and for images without
          pixels whose sizes fit.
        1: The sizes do not fit.
    """
    return _BBIRotation(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("mode", mode),
    )


_BBIKeying = _function("BBIKeying", _i32, _pointer, _u32)


def BBIKeying(image: WritableImage, key: int) -> int:
    """Makes a colour transparent and all others opaque.

    Alpha becomes 0 for pixels of the key's colour and 255 for all others; alphas are not compared.

    Parameters
    ----------
    image : image, changed
        The image that is changed.
    key : int, colour
        The colour; its alpha does not count.

    Returns
    -------
    int
        0: Done.
        1: The image has no pixels.
    """
    return _BBIKeying(_a.image("image", image, True).pointer, _a.unsigned("key", key))


_BBIKeyingFilter = _function("BBIKeyingFilter", _i32, _pointer)


def BBIKeyingFilter(image: WritableImage) -> int:
    """Gives transparent pixels the colour of their neighbours, so that the edges of a keyed picture stay clean when it is scaled.

    A pixel with alpha 0 gets the mean of blue, of green and of red, truncated, of those of its neighbours
    left, right, above and below whose alpha is not 0; its alpha stays 0. Without such a neighbour it stays as
    it is.

    Parameters
    ----------
    image : image, changed
        The image that is changed.

    Returns
    -------
    int
        0: Done.
        1: The image has no pixels.
    """
    return _BBIKeyingFilter(_a.image("image", image, True).pointer)


_BBIAntiAreas = _function("BBIAntiAreas", _i32, _i32, _i32, _i32)


def BBIAntiAreas(a: int, b: int, c: int) -> int:
    """Does nothing.

    Parameters
    ----------
    a : int, value
        Not looked at.
    b : int, value
        Not looked at.
    c : int, value
        Not looked at.

    Returns
    -------
    int
        0: Always.
    """
    return _BBIAntiAreas(_a.signed("a", a), _a.signed("b", b), _a.signed("c", c))


_BBIPaint = _function("BBIPaint", _i32, _pointer, _i32, _i32, _u32, _pointer, _pointer, _pointer, _pointer)


def BBIPaint(
    image: WritableImage, x: int, y: int, colour: int, left: WritableBuffer, top: WritableBuffer, right:
    WritableBuffer, bottom: WritableBuffer
) -> int:
    """Fills an area: the pixel at a place and all that are connected to it through their four neighbours and equal it in all 32 bits.

    It tells the rectangle filled by its first and last column and row (`BBITrim` tells a size).

    Parameters
    ----------
    image : image, changed
        The image that is changed.
    x : int, pixels
        The column of a pixel of the area.
    y : int, pixels
        Its row.
    colour : int, colour
        What the area takes.
    left : buffer of 1 words, written
        The first column.
    top : buffer of 1 words, written
        The first row.
    right : buffer of 1 words, written
        The last column.
    bottom : buffer of 1 words, written
        The last row.

    Returns
    -------
    int
        0: Done.
        1: The place lies outside or has the colour already, or working memory cannot be had: at most `6 *
          height * ((width + 1) / 2)` bytes, of which only what the fill needs is touched.

    See Also
    --------
    BBIPaintChoose
    """
    return _BBIPaint(
        _a.image("image", image, True).pointer,
        _a.signed("x", x),
        _a.signed("y", y),
        _a.unsigned("colour", colour),
        _a.memory("left", left, 4, True),
        _a.memory("top", top, 4, True),
        _a.memory("right", right, 4, True),
        _a.memory("bottom", bottom, 4, True),
    )



# Tone and true blend.


_BBIBltTone = _function("BBIBltTone", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltTone(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """Gives a source the brightness of what it covers.

    With the brightness `(B + G + R + 1) / 3`, each colour becomes `s` plus the brightness of `d` less that of
    `s`, kept within 0 to 255. The alpha of `d` stays.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltTone(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIBltToneWB = _function("BBIBltToneWB", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _f32)


def BBIBltToneWB(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int, factor: float
) -> int:
    """Mixes a source in the more, the closer its colour is to what it covers, compared at equal brightness.

    With the brightness `(B + G + R) / 3`, `e = d - s` plus the brightness of `s` less that of `d` for each
    colour, and `distance` the square root of the sum of the three squares of `e`, truncated, all four bytes
    are mixed with the weight `trunc(256 - distance * factor)`, formed in double precision and kept within 0 to
    256; 0 if it is not a number.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.
    factor : float, factor, 0..
        How fast the weight falls: at 1 it is 0 at a distance of 256. 0 and below copy.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing.
    """
    return _BBIBltToneWB(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        float(factor),
    )


_BBIBltTrueBlend = _function(
    "BBIBltTrueBlend", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _f32
)


def BBIBltTrueBlend(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int, opacity:
    float
) -> int:
    """Lays a source over a destination that may itself be partly transparent.

    With `a` the alpha of `s` and `da` that of `d`, the first of these that applies:

    1. `a` is 0: `d` stays.
    2. `a` is 255, or `da` is 0: `s` replaces it, whatever the opacity.
    3. The colours are mixed with the weight `trunc(a * opacity * 0.003921569f * 256)`, formed in double
      precision from the two floats (the constant is a little above 1 / 255); the alpha becomes
      `da + (255 - da) * a / 255`.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Left column and top row of the rectangle in `dst`.
    dy : int, pixels
        Left column and top row of the rectangle in `dst`.
    cx : int, pixels
        Width and height of the rectangle.
    cy : int, pixels
        Width and height of the rectangle.
    sx : int, pixels
        Left column and top row of the rectangle in `src`.
    sy : int, pixels
        Left column and top row of the rectangle in `src`.
    opacity : float, opacity, 0..1
        Weakens the partly transparent pixels of the source; above 1 counts as 1.

    Returns
    -------
    int
        0: Done.
        1: Clipping left nothing, or the opacity is negative or not a number.
    """
    return _BBIBltTrueBlend(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        float(opacity),
    )



# Automatic levels.


_BBIAutoLevelRGB = _function("BBIAutoLevelRGB", _i32, _pointer, _i32)


def BBIAutoLevelRGB(image: WritableImage, threshold: int) -> int:
    """Stretches the levels of each channel, blue by the bounds of red and red by those of blue.

    The crossing does not show where the two have the same histogram.

    Parameters
    ----------
    image : image, changed
        The image.
    threshold : int, count
        How many pixels at either end are given up; a negative one makes the bounds 0 and 255.

    Returns
    -------
    int
        0: Done.
        1: The image has no pixels.
    """
    return _BBIAutoLevelRGB(_a.image("image", image, True).pointer, _a.signed("threshold", threshold))


_BBIAutoLevelRGBRev = _function("BBIAutoLevelRGBRev", _i32, _pointer, _i32)


def BBIAutoLevelRGBRev(image: WritableImage, threshold: int) -> int:
    """Stretches the levels of each channel by the mean bounds of the two others.

    Parameters
    ----------
    image : image, changed
        The image.
    threshold : int, count
        How many pixels at either end are given up; a negative one makes the bounds 0 and 255.

    Returns
    -------
    int
        0: Done.
        1: The image has no pixels.
    """
    return _BBIAutoLevelRGBRev(_a.image("image", image, True).pointer, _a.signed("threshold", threshold))


_BBIAutoLevelRGBMul = _function("BBIAutoLevelRGBMul", _i32, _pointer, _i32)


def BBIAutoLevelRGBMul(image: WritableImage, threshold: int) -> int:
    """Stretches the levels of each channel by its own high bound and a low one that is a quarter of the others' mean.

    Parameters
    ----------
    image : image, changed
        The image.
    threshold : int, count
        How many pixels at either end are given up; a negative one makes the bounds 0 and 255.

    Returns
    -------
    int
        0: Done.
        1: The image has no pixels.
    """
    return _BBIAutoLevelRGBMul(_a.image("image", image, True).pointer, _a.signed("threshold", threshold))


_BBIAutoLevelWB = _function("BBIAutoLevelWB", _i32, _pointer, _i32)


def BBIAutoLevelWB(image: WritableImage, threshold: int) -> int:
    """Stretches the levels of all channels alike, which keeps their balance.

    L and H are measured in one histogram of blue, green and red of every pixel: three counts a pixel, which
    the threshold is compared with.

    Parameters
    ----------
    image : image, changed
        The image.
    threshold : int, count
        How many pixels at either end are given up; a negative one makes the bounds 0 and 255.

    Returns
    -------
    int
        0: Done.
        1: The image has no pixels.
    """
    return _BBIAutoLevelWB(_a.image("image", image, True).pointer, _a.signed("threshold", threshold))



# Scaled blits.


_BBIExpandBlt = _function(
    "BBIExpandBlt", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _f32
)


def BBIExpandBlt(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, dw: int, dh: int, sx: int, sy: int, sw: int, sh:
    int, opacity: float
) -> int:
    """Stretches with one opacity: d = mix(d, s, constant weight), at opacity 1 a copy.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    dw : int, pixels
        The size of the rectangle in `dst`.
    dh : int, pixels
        The size of the rectangle in `dst`.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    sw : int, pixels
        The size of the rectangle in `src`.
    sh : int, pixels
        The size of the rectangle in `src`.
    opacity : float, opacity, 0..1
        Above 1 counts as 1; negative or not a number returns 1.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIExpandBlt(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("dw", dw),
        _a.signed("dh", dh),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("sw", sw),
        _a.signed("sh", sh),
        float(opacity),
    )


_BBIExpandBlendBlt = _function(
    "BBIExpandBlendBlt", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _f32
)


def BBIExpandBlendBlt(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, dw: int, dh: int, sx: int, sy: int, sw: int, sh:
    int, opacity: float
) -> int:
    """Stretches by the alpha of the source: d = mix(d, s, alpha weight of s).

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    dw : int, pixels
        The size of the rectangle in `dst`.
    dh : int, pixels
        The size of the rectangle in `dst`.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    sw : int, pixels
        The size of the rectangle in `src`.
    sh : int, pixels
        The size of the rectangle in `src`.
    opacity : float, opacity, 0..1
        Above 1 counts as 1; negative or not a number returns 1.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIExpandBlendBlt(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("dw", dw),
        _a.signed("dh", dh),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("sw", sw),
        _a.signed("sh", sh),
        float(opacity),
    )


_BBIExpandColorBlt = _function(
    "BBIExpandColorBlt", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _f32,
    _u32, _u32, _u32, _u32, _u32, _u32, _i32
)


def BBIExpandColorBlt(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, dw: int, dh: int, sx: int, sy: int, sw: int, sh:
    int, opacity: float, keep_mask: int, mask: int, top_left: int, top_right: int, bottom_left: int,
    bottom_right: int, use_source_alpha: int
) -> int:
    """Replaces bits of each sample by a gradient between four corner colours, then mixes it in.

    The gradient spans the clipped destination rectangle. With
    `w(k, n) = trunc((float)((double)k / (n - 1)) * 256)`, 0 where n is 1, pixel (j, i) of it has
    `G = mix(mix(top_left, bottom_left, w(i, dh)), mix(top_right, bottom_right, w(i, dh)), w(j, dw))`. The
    sample becomes `(s & mask) | (G & ~mask)`, is mixed into d by its weight, and `keep_mask` is applied.

    Returns 1 also when there is no memory for the weights of a row.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    dw : int, pixels
        The size of the rectangle in `dst`.
    dh : int, pixels
        The size of the rectangle in `dst`.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    sw : int, pixels
        The size of the rectangle in `src`.
    sh : int, pixels
        The size of the rectangle in `src`.
    opacity : float, opacity, 0..1
        Above 1 counts as 1; negative or not a number returns 1.
    keep_mask : int, value
        The bits of d that stay: `(d & keep_mask) | (new & ~keep_mask)`.
    mask : int, value
        The bits of the sample that stay.
    top_left : int, colour
        The gradient's corner.
    top_right : int, colour
        The gradient's corner.
    bottom_left : int, colour
        The gradient's corner.
    bottom_right : int, colour
        The gradient's corner.
    use_source_alpha : int, flag
        Weight by the alpha of the sample as replaced; off: the constant weight.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIExpandColorBlt(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("dw", dw),
        _a.signed("dh", dh),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("sw", sw),
        _a.signed("sh", sh),
        float(opacity),
        _a.unsigned("keep_mask", keep_mask),
        _a.unsigned("mask", mask),
        _a.unsigned("top_left", top_left),
        _a.unsigned("top_right", top_right),
        _a.unsigned("bottom_left", bottom_left),
        _a.unsigned("bottom_right", bottom_right),
        _a.signed("use_source_alpha", use_source_alpha),
    )


_BBIExpandChooseBlt = _function(
    "BBIExpandChooseBlt", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _f32,
    _f32, _u32, _u32, _u32, _u32, _u32, _u32, _i32, _i32, _i32, _i32
)


def BBIExpandChooseBlt(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, dw: int, dh: int, sx: int, sy: int, sw: int, sh:
    int, opacity: float, saturation: float, level_low: int, level_high: int, keep_mask: int, mask: int,
    colour: int, invert_bits: int, use_source_alpha: int, add_colour: int, add_alpha: int, source_is_base:
    int
) -> int:
    """The general stretched blit.

    For each destination pixel d, in this order:

    1. base = d, or with `source_is_base` the sample as read
    2. mask: `s = (s & mask) | (((~s & invert_bits) | colour) & ~mask)`
    3. saturation, in the colours: with `k = trunc(saturation * 1024)`, `m = (1024 - k) / 3` and
       `g = (red + green + blue) * m >> 10`, each becomes `(colour * k >> 10) + g`, clamped to 0..255
    4. levels, in the colours: with lo and hi, a colour's bytes of `level_low` and `level_high`, v becomes,
       whichever fits first, 255 - lo for v = lo = hi, 0 for `v <= lo`, 255 for `v >= hi`, else
       `255 * (v - lo) / (hi - lo)`
    5. weight: with `use_source_alpha` the alpha weight of s as it is now, else the constant weight
    6. mix: s = mix(base, s, weight). With `add_colour` the colours become `min(base + (s * weight >> 8), 255)`
       instead; with `add_alpha` the alpha does. Each works for itself.
    7. keep: d = `(base & keep_mask) | (s & ~keep_mask)`

    A constant weight of 0 (an opacity below 1 / 256) without `source_is_base` returns 1, even with
    `use_source_alpha`.

    A call is simple with saturation 1, levels of 0 and 0xFFFFFF in their lower three bytes and the last three
    flags off. Simple calls return 0, not 2, and two of them, where the clipped sizes are equal and `keep_mask`
    is 0, do something else (the weight is the constant one, or with `use_source_alpha` that of s as read):

    | `mask` | and | does |
    |---|---|---|
    | 0xFFFFFFFF | `use_source_alpha`, constant weight 256 | BBIBltBlend with 0 as its last argument |
    | 0xFF000000 | `invert_bits` 0 | d = mix(d, colour, weight), its alpha byte too |

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    dw : int, pixels
        The size of the rectangle in `dst`.
    dh : int, pixels
        The size of the rectangle in `dst`.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    sw : int, pixels
        The size of the rectangle in `src`.
    sh : int, pixels
        The size of the rectangle in `src`.
    opacity : float, opacity, 0..1
        Above 1 counts as 1; negative or not a number counts as 0.
    saturation : float, factor, 0..256
        0 is grey, 1 as it was. Below 0 and not a number count as 0, above 256 as 256.
    level_low : int, colour
        What becomes 0, for each colour; the top byte counts for nothing.
    level_high : int, colour
        What becomes 255, for each colour; the top byte counts for nothing.
    keep_mask : int, value
        The bits of the base that stay.
    mask : int, value
        The bits of the sample that stay.
    colour : int, colour
        What comes into the others.
    invert_bits : int, value
        Where the sample comes into the others inverted.
    use_source_alpha : int, flag
        Weight by the alpha of s; off: the constant weight for all pixels.
    add_colour : int, flag
        Add the colours.
    add_alpha : int, flag
        Add the alpha.
    source_is_base : int, flag
        Mix with the sample as read, not with d.

    Returns
    -------
    int
        0: Done, by a simple call.
        1: Clipping left nothing, or the constant weight is 0.
        2: Done.
        513: Filled, by a simple call.
    """
    return _BBIExpandChooseBlt(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("dw", dw),
        _a.signed("dh", dh),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("sw", sw),
        _a.signed("sh", sh),
        float(opacity),
        float(saturation),
        _a.unsigned("level_low", level_low),
        _a.unsigned("level_high", level_high),
        _a.unsigned("keep_mask", keep_mask),
        _a.unsigned("mask", mask),
        _a.unsigned("colour", colour),
        _a.unsigned("invert_bits", invert_bits),
        _a.signed("use_source_alpha", use_source_alpha),
        _a.signed("add_colour", add_colour),
        _a.signed("add_alpha", add_alpha),
        _a.signed("source_is_base", source_is_base),
    )



# Interpolated stretching.


_BBILinearBlt = _function(
    "BBILinearBlt", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _i32
)


def BBILinearBlt(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, dw: int, dh: int, sx: int, sy: int, sw: int, sh:
    int
) -> int:
    """Stretches with bilinear interpolation: the sample replaces d.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    dw : int, pixels
        The size of the rectangle in `dst`.
    dh : int, pixels
        The size of the rectangle in `dst`.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    sw : int, pixels
        The size of the rectangle in `src`.
    sh : int, pixels
        The size of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBILinearBlt(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("dw", dw),
        _a.signed("dh", dh),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("sw", sw),
        _a.signed("sh", sh),
    )


_BBILinearRender = _function(
    "BBILinearRender", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _pointer,
    _i32, _i32, _u32
)


def BBILinearRender(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, dw: int, dh: int, sx: int, sy: int, sw: int, sh:
    int, table: Buffer, mode: int, smooth: int, tint: int
) -> int:
    """Brings each sample into d by a table of weights and a mode.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    dw : int, pixels
        The size of the rectangle in `dst`.
    dh : int, pixels
        The size of the rectangle in `dst`.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    sw : int, pixels
        The size of the rectangle in `src`.
    sh : int, pixels
        The size of the rectangle in `src`.
    table : buffer of 256 words
        Weights of 0..256 by alpha, for example from BBIAlphaTableCreate. With larger ones channels run over
        into their neighbours: with `L = 0x00FF00FF` and sums modulo 2^32, mixing `d` and `s` gives `((d &
        L) * (256 - w) + (s & L) * w) >> 8 & L | ((d >> 8 & L) * (256 - w) + (s >> 8 & L) * w) & ~L`, the
        tint likewise, and adding the saturated sum of `d` and that with `d` and `256 - w` left out. Read
        once, before the first pixel is written.
    mode : Render
        What becomes of the sample.
    smooth : int, flag
        Interpolate; off: always the nearest sample.
    tint : int, colour
        The colour of the tint.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBILinearRender(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("dw", dw),
        _a.signed("dh", dh),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("sw", sw),
        _a.signed("sh", sh),
        _a.memory("table", table, 1024, False),
        _a.signed("mode", mode),
        _a.signed("smooth", smooth),
        _a.unsigned("tint", tint),
    )


_BBIAlphaTableCreate = _function("BBIAlphaTableCreate", None, _pointer, _f32, _i32)


def BBIAlphaTableCreate(table: WritableBuffer, opacity: float, by_alpha: int) -> None:
    """Fills a table with the weights of an opacity.

    Parameters
    ----------
    table : buffer of 256 words, written
        The weights by alpha, 0..256. Needs no alignment.
    opacity : float, opacity, 0..1
        Below 0 and not a number count as 0, above 1 as 1.
    by_alpha : int, flag
        The alpha weights; off: the constant weight throughout.
    """
    return _BBIAlphaTableCreate(
        _a.memory("table", table, 1024, True),
        float(opacity),
        _a.signed("by_alpha", by_alpha),
    )


_BBILinear = _function("BBILinear", _i32, _pointer, _pointer)


def BBILinear(dst: WritableImage, src: AnyImage) -> int:
    """Resizes all of `src` to all of `dst` with a cubic kernel.

    The corners of the images coincide: destination column x lies at x times the quotient of width - 1 of `src`
    and of `dst`, or at 0 for a destination of one column; i is its integer part and t the rest. The four
    columns from i - 1 on have the weights k(1 + t), k(t), k(1 - t), k(2 - t), where k(v) is
    `1.0 - 2.0 * v * v + v * v * v` for `v < 1` and `4.0 - 8.0 * v + 5.0 * v * v - v * v * v` else; rows
    likewise, all in double precision.

    A tap's weight is the product of its column's and its row's, rounded to single precision; below 0 it counts
    as 0, so that negative lobes act only where two meet. Taps outside the source are 0x00000000. The 16 taps,
    row by row from 0, are merged in pairs: (0, 1), (2, 3) .. (14, 15), then (0, 2), (4, 6), (8, 10), (12, 14),
    then (0, 4), (8, 12), then (0, 8). To merge b into a, a becomes mix(a, b, `trunc(wb / (wa + wb) * 256)`),
    formed in double precision and 0 where both weights are 0; the weight of a becomes wa + wb, rounded to
    single precision.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.

    Returns
    -------
    int
        0: Done.
        1: An image has no pixels.
    """
    return _BBILinear(_a.image("dst", dst, True).pointer, _a.image("src", src, False).pointer)


_BBILinearBltTest = _function(
    "BBILinearBltTest", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _i32
)


def BBILinearBltTest(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, dw: int, dh: int, sx: int, sy: int, sw: int, sh:
    int
) -> int:
    """An experiment: the nearest sample, averaged with neighbours along a spiral.

    The sample v at source pixel (x, y) takes in its neighbours one after another, later ones weighing more:
    `v = (v + p) >> 1` per channel for p at (x, y) plus

        (1, 0) (0, -1) (-1, 0) (0, 1)   (1, -1) (-1, -1) (-1, 1) (1, 1)   (2, 0) (0, -2) (-2, 0) (0, 2)
        (2, -1) (-1, -2) (-2, 1) (1, 2)   (1, -2) (-2, -1) (-1, 2) (2, 1)

    Of these the first `min((sw / dw + sh / dh + 5) & ~3, 20)` take part, and only where they lie at `sx < x`,
    `x < sw`, `sy < y` and `y < sh`: the clipped sizes serve as limits of coordinates. d becomes v. Rows of
    `src` are taken to lie `pitch / 4 * 4` bytes apart.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    dw : int, pixels
        The size of the rectangle in `dst`.
    dh : int, pixels
        The size of the rectangle in `dst`.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    sw : int, pixels
        The size of the rectangle in `src`.
    sh : int, pixels
        The size of the rectangle in `src`.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBILinearBltTest(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("dw", dw),
        _a.signed("dh", dh),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("sw", sw),
        _a.signed("sh", sh),
    )



# Depth, flips and straight runs.


_BBIFlip = _function("BBIFlip", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _f32)


def BBIFlip(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int, opacity:
    float
) -> int:
    """Cross-fades with one opacity: d = mix(d, s, constant weight).

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    opacity : float, opacity, 0..1
        Above 1 counts as 1; negative or not a number returns 1.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIFlip(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        float(opacity),
    )


_BBIFlipBlend = _function("BBIFlipBlend", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _f32)


def BBIFlipBlend(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int, opacity:
    float
) -> int:
    """Mixes by the alpha of the source: d = mix(d, s, alpha weight of s).

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    opacity : float, opacity, 0..1
        Above 1 counts as 1; negative or not a number returns 1.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIFlipBlend(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        float(opacity),
    )


_BBIDepth = _function("BBIDepth", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIDepth(dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int) -> int:
    """Alpha as depth: s replaces d where the alpha of s is greater; on equal alpha d stays.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIDepth(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )


_BBIDepthMask = _function("BBIDepthMask", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _u32)


def BBIDepthMask(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int, keep_mask:
    int
) -> int:
    """As BBIDepth, but d becomes `(d & keep_mask) | (s & ~keep_mask)`.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    keep_mask : int, value
        The bits of d that stay: `(d & keep_mask) | (new & ~keep_mask)`.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIDepthMask(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.unsigned("keep_mask", keep_mask),
    )


_BBIFlipLineX = _function("BBIFlipLineX", _i32, _pointer, _i32, _i32, _i32, _u32)


def BBIFlipLineX(image: WritableImage, x: int, y: int, length: int, colour: int) -> int:
    """Fills `length` pixels from (x, y) to the right.

    1 when y lies outside the image or nothing is left.

    Parameters
    ----------
    image : image, changed
        The image that is changed.
    x : int, pixels
        The first pixel of the run.
    y : int, pixels
        The first pixel of the run.
    length : int, pixels
        The length of the run, which is cut to the image.
    colour : int, colour
        The new colour.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIFlipLineX(
        _a.image("image", image, True).pointer,
        _a.signed("x", x),
        _a.signed("y", y),
        _a.signed("length", length),
        _a.unsigned("colour", colour),
    )


_BBIFlipLineY = _function("BBIFlipLineY", _i32, _pointer, _i32, _i32, _i32, _u32)


def BBIFlipLineY(image: WritableImage, x: int, y: int, length: int, colour: int) -> int:
    """Fills `length` pixels from (x, y) downward.

    1 when x lies outside the image or nothing is left.

    From the first pixel drawn, rows are stepped by `pitch & ~3`: with a pitch that is no multiple of 4 the
    line drifts to the left, by up to 3 bytes a row. It ends where it would begin below the lowest address of
    the image.

    Parameters
    ----------
    image : image, changed
        The image that is changed.
    x : int, pixels
        The first pixel of the run.
    y : int, pixels
        The first pixel of the run.
    length : int, pixels
        The length of the run, which is cut to the image.
    colour : int, colour
        The new colour.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIFlipLineY(
        _a.image("image", image, True).pointer,
        _a.signed("x", x),
        _a.signed("y", y),
        _a.signed("length", length),
        _a.unsigned("colour", colour),
    )



# Blur and one-axis scaling.


_BBIBltUBlur = _function("BBIBltUBlur", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltUBlur(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int, radius: int
) -> int:
    """Box blur of rows: the mean of pixels max(i - radius, 0) to min(i + radius, n - 1).

    The window is cut at the ends, never padded. `dst` and `src` may be one image and one rectangle. The time
    does not depend on the radius.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    radius : int, pixels, 1..127
        How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127; below 1, given or
        lowered, the rectangle is copied as by BBIBlt.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIBltUBlur(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("radius", radius),
    )


_BBIBltVBlur = _function("BBIBltVBlur", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltVBlur(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int, radius: int
) -> int:
    """As BBIBltUBlur, along columns.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    radius : int, pixels, 1..127
        How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127; below 1, given or
        lowered, the rectangle is copied as by BBIBlt.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIBltVBlur(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("radius", radius),
    )


_BBIBltUBlurLoop = _function(
    "BBIBltUBlurLoop", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32
)


def BBIBltUBlurLoop(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int, radius: int
) -> int:
    """Box blur of rows for images that tile: the mean of pixels i - radius to i + radius, counted modulo n.

    The pixels at both ends are read a second time, in the order of the window: the last radius, all, and the
    first radius pixels. So the destination must not overlap the source; if it does, what was written is
    blurred again.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    radius : int, pixels, 1..127
        How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127; below 1, given or
        lowered, the rectangle is copied as by BBIBlt.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIBltUBlurLoop(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("radius", radius),
    )


_BBIBltVBlurLoop = _function(
    "BBIBltVBlurLoop", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32
)


def BBIBltVBlurLoop(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int, radius: int
) -> int:
    """As BBIBltUBlurLoop, along columns.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    radius : int, pixels, 1..127
        How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127; below 1, given or
        lowered, the rectangle is copied as by BBIBlt.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIBltVBlurLoop(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("radius", radius),
    )


_BBIBltUScale = _function(
    "BBIBltUScale", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _i32
)


def BBIBltUScale(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int, num: int,
    den: int
) -> int:
    """Rescales rows by num / den within the same length, with a box filter.

    A source pixel counts as num units, a destination pixel is the mean of den units.

    - Shrinking (`num < den`) starts at the first pixel: destination pixel k is made of den units from k * den
      on, and unit u is source pixel `min(u / num, n - 1)`. The end of the row repeats the last pixel.
    - Enlarging (and num = den) starts at the last pixel: destination pixel n - 1 - k is made of the same
      units, and unit u is source pixel `max(m - 1 - u / num, 0)` with `m = n * den / num`. What is left over
      at the start repeats pixel 0.

    So `dst` and `src` may be one image and one rectangle. `num` and `den` are lowered each for itself, and 256
    / 512 is a copy: reduce the fraction first. Below 1, either returns 1.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    num : int, count, 1..128
        The numerator of the scale; above 128 counts as 128.
    den : int, count, 1..128
        The denominator, likewise.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIBltUScale(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("num", num),
        _a.signed("den", den),
    )


_BBIBltVScale = _function(
    "BBIBltVScale", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32, _i32, _i32
)


def BBIBltVScale(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int, num: int,
    den: int
) -> int:
    """As BBIBltUScale, along columns.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.
    num : int, count, 1..128
        The numerator of the scale; above 128 counts as 128.
    den : int, count, 1..128
        The denominator, likewise.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIBltVScale(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
        _a.signed("num", num),
        _a.signed("den", den),
    )


_BBIBltHalfSize = _function("BBIBltHalfSize", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def BBIBltHalfSize(
    dst: WritableImage, src: AnyImage, dx: int, dy: int, cx: int, cy: int, sx: int, sy: int
) -> int:
    """Halves a rectangle of 2 cx x 2 cy pixels of `src` to cx x cy: the mean of 2 x 2 pixels.

    Nothing is clipped: 1 unless both rectangles lie inside their images and `cx` and `cy` are at least 1.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    dx : int, pixels
        Where the rectangle begins in `dst`.
    dy : int, pixels
        Where the rectangle begins in `dst`.
    cx : int, pixels
        The size of the rectangle.
    cy : int, pixels
        The size of the rectangle.
    sx : int, pixels
        Where the rectangle begins in `src`.
    sy : int, pixels
        Where the rectangle begins in `src`.

    Returns
    -------
    int
        0: Done.
        1: An argument is unusable, or clipping left nothing.
    """
    return _BBIBltHalfSize(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("dx", dx),
        _a.signed("dy", dy),
        _a.signed("cx", cx),
        _a.signed("cy", cy),
        _a.signed("sx", sx),
        _a.signed("sy", sy),
    )



# Colour reduction.


_BBIColorCutDown1555 = _function("BBIColorCutDown1555", _i32, _pointer)


def BBIColorCutDown1555(image: WritableImage) -> int:
    """Dithers for 5 bits a colour: c becomes `min((c & 248) + ((c & 7) < m ? 0 : 8), 255)`.

    m at row y % 4, column x % 4 of

        0 4 1 5
        6 2 7 3
        1 5 0 4
        7 3 6 2

    Parameters
    ----------
    image : image, changed
        The image that is changed.

    Returns
    -------
    int
        0: Done.
        1: The image has no pixels.
    """
    return _BBIColorCutDown1555(_a.image("image", image, True).pointer)


_BBIColorCutDown4444 = _function("BBIColorCutDown4444", _i32, _pointer)


def BBIColorCutDown4444(image: WritableImage) -> int:
    """Dithers for 4 bits a colour: c becomes `min((c & 240) + ((c & 15) < m ? 0 : 16), 255)`.

    m at row y % 4, column x % 4 of

         0  8  2 10
        12  4 14  6
         3 11  1  9
        15  7 13  5

    Parameters
    ----------
    image : image, changed
        The image that is changed.

    Returns
    -------
    int
        0: Done.
        1: The image has no pixels.
    """
    return _BBIColorCutDown4444(_a.image("image", image, True).pointer)


_BBIColorCutDown1111 = _function("BBIColorCutDown1111", _i32, _pointer)


def BBIColorCutDown1111(image: WritableImage) -> int:
    """Dithers for one bit a colour: c becomes `(c >> 2) < m ? 0 : 255`.

    m at row y % 8, column x % 8 of

         3 11 23 31 24 12  4  0
        10 22 39 51 40 32 13  5
        21 38 50 59 52 41 33 14
        30 49 58 63 60 53 42 25
        29 48 57 62 61 54 43 26
        20 37 47 56 55 44 34 15
         9 19 36 46 45 35 16  6
         2  8 18 28 27 17  7  1

    Parameters
    ----------
    image : image, changed
        The image that is changed.

    Returns
    -------
    int
        0: Done.
        1: The image has no pixels.
    """
    return _BBIColorCutDown1111(_a.image("image", image, True).pointer)



# Channel routing.


_BBIChooseCA = _function("BBIChooseCA", _i32, _pointer, _pointer, _i32, _i32)


def BBIChooseCA(dst: WritableImage, src: AnyImage, colour_from: int, alpha_from: int) -> int:
    """Makes colours and alpha from colours or alpha; brightness is `(red + green + blue) / 3`.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    colour_from : flags of Choose
        What the colours come from.
    alpha_from : flags of Choose
        What the alpha comes from.

    Returns
    -------
    int
        0: Done.
        1: The images have no part in common.
    """
    return _BBIChooseCA(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("colour_from", colour_from),
        _a.signed("alpha_from", alpha_from),
    )


_BBIChooseCATR = _function("BBIChooseCATR", _i32, _pointer, _pointer, _i32, _i32)


def BBIChooseCATR(dst: WritableImage, src: AnyImage, colour_from: int, alpha_from: int) -> int:
    """As BBIChooseCA; brightness is `trunc(green * 0.7154 + blue * 0.0721 + red * 0.2125)`, in double precision.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    colour_from : flags of Choose
        What the colours come from.
    alpha_from : flags of Choose
        What the alpha comes from.

    Returns
    -------
    int
        0: Done.
        1: The images have no part in common.
    """
    return _BBIChooseCATR(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("colour_from", colour_from),
        _a.signed("alpha_from", alpha_from),
    )


_BBIChooseCATS = _function("BBIChooseCATS", _i32, _pointer, _pointer, _i32, _i32, _f32, _f32, _f32)


def BBIChooseCATS(
    dst: WritableImage, src: AnyImage, colour_from: int, alpha_from: int, red_weight: float, green_weight:
    float, blue_weight: float
) -> int:
    """As BBIChooseCA; brightness is `trunc(green * green_weight + blue * blue_weight + red * red_weight)`, in double precision.

    The low 8 bits of that integer are taken, so that 256 gives 0. A sum that fits no 32-bit integer, or is not
    a number, gives 0.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    colour_from : flags of Choose
        What the colours come from.
    alpha_from : flags of Choose
        What the alpha comes from.
    red_weight : float, factor
        The share of red.
    green_weight : float, factor
        The share of green.
    blue_weight : float, factor
        The share of blue.

    Returns
    -------
    int
        0: Done.
        1: The images have no part in common.
    """
    return _BBIChooseCATS(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("colour_from", colour_from),
        _a.signed("alpha_from", alpha_from),
        float(red_weight),
        float(green_weight),
        float(blue_weight),
    )


_BBIChooseRGBA = _function("BBIChooseRGBA", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32)


def BBIChooseRGBA(
    dst: WritableImage, src: AnyImage, red_from: int, green_from: int, blue_from: int, alpha_from: int
) -> int:
    """Copies each channel from one that is named.

    Parameters
    ----------
    dst : image, changed
        The image that is changed.
    src : image
        The image that is read.
    red_from : flags of From
        What becomes red.
    green_from : flags of From
        What becomes green.
    blue_from : flags of From
        What becomes blue.
    alpha_from : flags of From
        What becomes alpha.

    Returns
    -------
    int
        0: Done.
        1: The images have no part in common.
    """
    return _BBIChooseRGBA(
        _a.image("dst", dst, True).pointer,
        _a.image("src", src, False).pointer,
        _a.signed("red_from", red_from),
        _a.signed("green_from", green_from),
        _a.signed("blue_from", blue_from),
        _a.signed("alpha_from", alpha_from),
    )



# Region paint.


_BBIPaintChoose = _function("BBIPaintChoose", _i32, _pointer, _u32, _u32, _u32, _u32, _u32)


def BBIPaintChoose(image: WritableImage, op: int, colour: int, key: int, extra: int, outer: int) -> int:
    """Runs one of eleven operations on a whole image in place.

    What the arguments are depends on the operation:

    | `op` | `colour` | `key` | `extra` | `outer` | result |
    |---|---|---|---|---|---|
    | 0, 1 | new colour | key | | | 0 |
    | 2 | fill colour | key | border on the others' side | border on the key's side | 0 |
    | 3, 4 | new colour | key | | | 0 |
    | 5 | new colour | key | most pixels of a region, signed | | regions painted |
    | 6, 9 | colour that does not count | key | | | key pixels left |
    | 7 | darkest grey, low byte | lightest grey, low byte | | | pixels left |
    | 8 | new colour | | | | pixels painted |
    | 10 | new colour | bits wanted | mask | | 0 |

    2, 3 and 4 ask what the neighbours were before the call. In 2, others with a key neighbour become `extra`
    instead of `colour`, key pixels with another neighbour `outer`.

    6, 7 and 9 visit the pixels in four sweeps, row by row: even columns of even rows, odd columns of even
    rows, even columns of odd rows, odd columns of odd rows. A pixel that was filled is a neighbour with its
    new colour from then on. A pixel without neighbours that count stays and is counted.

    - In 6 and 9 neighbours count that are neither key nor `colour`. One pass is made.
    - In 7 grey pixels whose blue lies from the darkest to the lightest are to be filled, and neighbours count
      that are not grey or were filled. Passes repeat until no pixel is left or one fills nothing.
    - Commonest: the earlier of left, right, above, below on a tie.
    - Average: per channel, alpha included, from the sum of those that count: of one the sum, of two
      `sum >> 1`, of three `(sum + 3) * 85 >> 8`, of four `(sum + 2) >> 2`.

    Any other operation, an image without pixels and a lack of working memory change nothing and return 0.

    Parameters
    ----------
    image : image, changed
        The image that is changed.
    op : Paint
        The operation.
    colour : int, colour
        A colour, see the table.
    key : int, colour
        The key, see the table.
    extra : int, value
        Another colour, a number or a mask, see the table.
    outer : int, colour
        Another colour, see the table.

    Returns
    -------
    int
        A number of pixels or regions, see the table.
    """
    return _BBIPaintChoose(
        _a.image("image", image, True).pointer,
        _a.unsigned("op", op),
        _a.unsigned("colour", colour),
        _a.unsigned("key", key),
        _a.unsigned("extra", extra),
        _a.unsigned("outer", outer),
    )



# Single samples.


_GetWave = _function("GetWave", _i32, _pointer, _i32, _i32, _i32, _i32, _pointer, _pointer)


def GetWave(
    data: Buffer, index: int, bits: int, channels: int, count: int, left: WritableBuffer, right:
    WritableBuffer
) -> int:
    """Reads a frame at the 16-bit scale.

    Parameters
    ----------
    data : buffer of max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 - min(abs(channels - 2), 1)) bytes
        Frame 0: 1, 2 or 3 bytes a sample, 1 or 2 samples.
    index : int, index
        The frame.
    bits : SampleBits
        The width of a stored sample.
    channels : Channels
        Samples a frame.
    count : int, frames
        Frames that the memory holds.
    left : buffer of 1 words, written
        The left sample, or the only one.
    right : buffer of 1 words, written
        The right sample, or the only one.

    Returns
    -------
    int
        0: Always.
    """
    bits = _a.signed("bits", bits)
    channels = _a.signed("channels", channels)
    count = _a.signed("count", count)
    return _GetWave(
        _a.memory("data", data, _max(count, 0) * (2 * _min(_abs(bits - 8), 1) + _min(_abs(bits - 16), 1)) * (2 - _min(_abs(channels - 2), 1)), False),
        _a.signed("index", index),
        bits,
        channels,
        count,
        _a.memory("left", left, 4, True),
        _a.memory("right", right, 4, True),
    )


_LetWave = _function("LetWave", _i32, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def LetWave(
    data: WritableBuffer, index: int, bits: int, channels: int, count: int, left: int, right: int
) -> int:
    """Writes a frame at the 16-bit scale, without clamping.

    Parameters
    ----------
    data : buffer of max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 - min(abs(channels - 2), 1)) bytes, changed
        Frame 0.
    index : int, index
        The frame.
    bits : SampleBits
        The width of a stored sample.
    channels : Channels
        Samples a frame.
    count : int, frames
        Frames that the memory holds.
    left : int, value
        The left value; what does not fit loses its high bits.
    right : int, value
        The right one.

    Returns
    -------
    int
        0: Always.
    """
    bits = _a.signed("bits", bits)
    channels = _a.signed("channels", channels)
    count = _a.signed("count", count)
    return _LetWave(
        _a.memory("data", data, _max(count, 0) * (2 * _min(_abs(bits - 8), 1) + _min(_abs(bits - 16), 1)) * (2 - _min(_abs(channels - 2), 1)), True),
        _a.signed("index", index),
        bits,
        channels,
        count,
        _a.signed("left", left),
        _a.signed("right", right),
    )


_GetWave24 = _function("GetWave24", _i32, _pointer, _i32, _i32, _i32, _i32, _pointer, _pointer)


def GetWave24(
    data: Buffer, index: int, bits: int, channels: int, count: int, left: WritableBuffer, right:
    WritableBuffer
) -> int:
    """Reads a frame at the 24-bit scale.

    Parameters
    ----------
    data : buffer of max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 - min(abs(channels - 2), 1)) bytes
        Frame 0: 1, 2 or 3 bytes a sample, 1 or 2 samples.
    index : int, index
        The frame.
    bits : SampleBits
        The width of a stored sample.
    channels : Channels
        Samples a frame.
    count : int, frames
        Frames that the memory holds.
    left : buffer of 1 words, written
        The left sample, or the only one.
    right : buffer of 1 words, written
        The right sample, or the only one.

    Returns
    -------
    int
        0: Always.
    """
    bits = _a.signed("bits", bits)
    channels = _a.signed("channels", channels)
    count = _a.signed("count", count)
    return _GetWave24(
        _a.memory("data", data, _max(count, 0) * (2 * _min(_abs(bits - 8), 1) + _min(_abs(bits - 16), 1)) * (2 - _min(_abs(channels - 2), 1)), False),
        _a.signed("index", index),
        bits,
        channels,
        count,
        _a.memory("left", left, 4, True),
        _a.memory("right", right, 4, True),
    )


_LetWave24 = _function("LetWave24", _i32, _pointer, _i32, _i32, _i32, _i32, _i32, _i32)


def LetWave24(
    data: WritableBuffer, index: int, bits: int, channels: int, count: int, left: int, right: int
) -> int:
    """Writes a frame at the 24-bit scale, without clamping.

    Parameters
    ----------
    data : buffer of max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 - min(abs(channels - 2), 1)) bytes, changed
        Frame 0.
    index : int, index
        The frame.
    bits : SampleBits
        The width of a stored sample.
    channels : Channels
        Samples a frame.
    count : int, frames
        Frames that the memory holds.
    left : int, value
        The left value; what does not fit loses its high bits.
    right : int, value
        The right one.

    Returns
    -------
    int
        0: Always.
    """
    bits = _a.signed("bits", bits)
    channels = _a.signed("channels", channels)
    count = _a.signed("count", count)
    return _LetWave24(
        _a.memory("data", data, _max(count, 0) * (2 * _min(_abs(bits - 8), 1) + _min(_abs(bits - 16), 1)) * (2 - _min(_abs(channels - 2), 1)), True),
        _a.signed("index", index),
        bits,
        channels,
        count,
        _a.signed("left", left),
        _a.signed("right", right),
    )


_GetWave64 = _function("GetWave64", _i32, _pointer, _i32, _i32, _i32, _i32, _pointer, _pointer)


def GetWave64(
    data: Buffer, index: int, bits: int, channels: int, count: int, left: WritableBuffer, right:
    WritableBuffer
) -> int:
    """Reads a frame at the float scale.

    Parameters
    ----------
    data : buffer of max(count, 0) * min(bits / 8, 8) * (2 - min(abs(channels - 2), 1)) bytes
        Frame 0.
    index : int, index
        The frame.
    bits : SampleBits
        The width of a stored sample.
    channels : Channels
        Samples a frame.
    count : int, frames
        Frames that the memory holds.
    left : buffer of 1 doubles, written
        The left sample, or the only one; untouched for unknown bits.
    right : buffer of 1 doubles, written
        The right sample, or the only one; untouched for unknown bits.

    Returns
    -------
    int
        0: Always.
    """
    bits = _a.signed("bits", bits)
    channels = _a.signed("channels", channels)
    count = _a.signed("count", count)
    return _GetWave64(
        _a.memory("data", data, _max(count, 0) * _min(_a.div(bits, 8), 8) * (2 - _min(_abs(channels - 2), 1)), False),
        _a.signed("index", index),
        bits,
        channels,
        count,
        _a.memory("left", left, 8, True),
        _a.memory("right", right, 8, True),
    )


_LetWave64 = _function("LetWave64", _i32, _pointer, _i32, _i32, _i32, _i32, _f64, _f64)


def LetWave64(
    data: WritableBuffer, index: int, bits: int, channels: int, count: int, left: float, right: float
) -> int:
    """Writes a frame at the float scale, clamped to -1..1.

    Parameters
    ----------
    data : buffer of max(count, 0) * min(bits / 8, 8) * (2 - min(abs(channels - 2), 1)) bytes, changed
        Frame 0.
    index : int, index
        The frame.
    bits : SampleBits
        The width of a stored sample.
    channels : Channels
        Samples a frame.
    count : int, frames
        Frames that the memory holds.
    left : float, value, -1..1
        The left value; not a number counts as -1.
    right : float, value, -1..1
        The right one.

    Returns
    -------
    int
        0: Always.
    """
    bits = _a.signed("bits", bits)
    channels = _a.signed("channels", channels)
    count = _a.signed("count", count)
    return _LetWave64(
        _a.memory("data", data, _max(count, 0) * _min(_a.div(bits, 8), 8) * (2 - _min(_abs(channels - 2), 1)), True),
        _a.signed("index", index),
        bits,
        channels,
        count,
        float(left),
        float(right),
    )



# Formats of a buffer.


_waveFormatEnc = _function("waveFormatEnc", _i32, _i32, _i32, _i32)


def waveFormatEnc(bits: int, channels: int, rate: int) -> int:
    """Packs a format code: `rate * 256 + bits + channels`.

    Parameters
    ----------
    bits : SampleBits
        The width of a sample.
    channels : Channels
        Samples a frame.
    rate : int, hertz, 1000..441000
        Frames a second. Not checked here: the functions that take the code refuse other rates.

    Returns
    -------
    int
        The code, in the low 32 bits; 0 for other bits or channels.
    """
    return _waveFormatEnc(_a.signed("bits", bits), _a.signed("channels", channels), _a.signed("rate", rate))


_waveFormat = _function("waveFormat", _i32, _pointer, _pointer)


def waveFormat(dst: AnySound, src: AnySound) -> int:
    """Converts a whole buffer at the 16-bit scale: frames `0..dst->count - 1`, silence past the end of `src`.

    24-bit samples lose their lowest byte. For full resolution and for 64-bit buffers use `waveBlt64`.

    Parameters
    ----------
    dst : sound, changed
        The buffer that is filled.
    src : sound
        The buffer that is read.

    Returns
    -------
    int
        0: Done.
        1: One of the formats is invalid.
    """
    return _waveFormat(_a.sound("dst", dst, True).pointer, _a.sound("src", src, False).pointer)



# Blits of samples.


_waveBlt = _function("waveBlt", _i32, _pointer, _pointer, _i32, _i32, _i32, _f32)


def waveBlt(dst: AnySound, src: AnySound, dst_start: int, src_start: int, count: int, gain: float) -> int:
    """Copies with a gain at the 24-bit scale: `(s * trunc(gain * 64)) >> 6`.

    Parameters
    ----------
    dst : sound, changed
        The buffer that is written.
    src : sound
        The buffer that is read.
    dst_start : int, frames
        The first frame written; may be negative or past the end.
    src_start : int, frames
        The first frame read; may be negative or past the end.
    count : int, frames
        How many frames; below 1 does nothing and returns 0.
    gain : float, factor, 0..4
        Limited to this range; not a number counts as 0. From 1 to below 1 + 1/64 frames are copied exactly.

    Returns
    -------
    int
        0: Done.
        1: A format is invalid, or a parameter is refused.
    """
    return _waveBlt(
        _a.sound("dst", dst, True).pointer,
        _a.sound("src", src, False).pointer,
        _a.signed("dst_start", dst_start),
        _a.signed("src_start", src_start),
        _a.signed("count", count),
        float(gain),
    )


_waveBltBlur = _function("waveBltBlur", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32)


def waveBltBlur(dst: AnySound, src: AnySound, dst_start: int, src_start: int, count: int, radius: int) -> int:
    """Moving average at the 16-bit scale: the sum of the source frames from `radius` before to `radius` after, divided by `2 * radius + 1` and truncated toward zero.

    Frames before `src_start + radius` count as silence, so the first `2 * radius` results fade in. The cost
    does not depend on the radius.

    Parameters
    ----------
    dst : sound, changed
        The buffer that is written.
    src : sound
        The buffer that is read.
    dst_start : int, frames
        The first frame written; may be negative or past the end.
    src_start : int, frames
        The first frame read; may be negative or past the end.
    count : int, frames
        How many frames; below 1 does nothing and returns 0.
    radius : int, frames, 1..511
        Below 1 is refused; above 511 counts as 511.

    Returns
    -------
    int
        0: Done.
        1: A format is invalid, or a parameter is refused.
    """
    return _waveBltBlur(
        _a.sound("dst", dst, True).pointer,
        _a.sound("src", src, False).pointer,
        _a.signed("dst_start", dst_start),
        _a.signed("src_start", src_start),
        _a.signed("count", count),
        _a.signed("radius", radius),
    )


_waveBltGluder = _function("waveBltGluder", _i32, _pointer, _pointer, _i32, _i32, _i32, _i32)


def waveBltGluder(
    dst: AnySound, src: AnySound, dst_start: int, src_start: int, count: int, offset: int
) -> int:
    """Exclusive-or at the 16-bit scale: `d ^ s`, with `s` read `offset` frames further on.

    Between 16-bit buffers, the same call undoes it.

    Parameters
    ----------
    dst : sound, changed
        The buffer that is written.
    src : sound
        The buffer that is read.
    dst_start : int, frames
        The first frame written; may be negative or past the end.
    src_start : int, frames
        The first frame read; may be negative or past the end.
    count : int, frames
        How many frames; below 1 does nothing and returns 0.
    offset : int, frames, 1..2147483647
        Below 1 is refused.

    Returns
    -------
    int
        0: Done.
        1: A format is invalid, or a parameter is refused.
    """
    return _waveBltGluder(
        _a.sound("dst", dst, True).pointer,
        _a.sound("src", src, False).pointer,
        _a.signed("dst_start", dst_start),
        _a.signed("src_start", src_start),
        _a.signed("count", count),
        _a.signed("offset", offset),
    )


_waveBltAddNoise = _function("waveBltAddNoise", _i32, _pointer, _pointer, _i32, _i32, _i32, _f32)


def waveBltAddNoise(
    dst: AnySound, src: AnySound, dst_start: int, src_start: int, count: int, amount: float
) -> int:
    """Copies with noise at the 16-bit scale: `s + (((noise - 32768) * trunc(amount * 256)) >> 8)`.

    `noise` is `GetRandom(65536)`, drawn for the left and then for the right channel of every frame, whatever
    the formats, the amount and the ends of the buffers: the result depends on every other draw in the process.
    A run of 2^31 frames therefore takes seconds.

    Parameters
    ----------
    dst : sound, changed
        The buffer that is written.
    src : sound
        The buffer that is read.
    dst_start : int, frames
        The first frame written; may be negative or past the end.
    src_start : int, frames
        The first frame read; may be negative or past the end.
    count : int, frames
        How many frames; below 1 does nothing and returns 0.
    amount : float, factor, 0..1
        Limited to this range; not a number counts as 0.

    Returns
    -------
    int
        0: Done.
        1: A format is invalid, or a parameter is refused.
    """
    return _waveBltAddNoise(
        _a.sound("dst", dst, True).pointer,
        _a.sound("src", src, False).pointer,
        _a.signed("dst_start", dst_start),
        _a.signed("src_start", src_start),
        _a.signed("count", count),
        float(amount),
    )


_waveBltSin = _function("waveBltSin", _i32, _pointer, _pointer, _i32, _i32, _i32, _f32, _f32, _f32, _f32)


def waveBltSin(
    dst: AnySound, src: AnySound, dst_start: int, src_start: int, count: int, amplitude: float, frequency:
    float, depth: float, rate: float
) -> int:
    """Copies with a tone at the 16-bit scale: `s + trunc(sin(phase) * amplitude * 32768)`, the same tone in both channels.

    From `phase = modulation = 0` and `increment = frequency`, after every frame: `phase += increment` (the old
    one), `modulation += rate`, `increment += sin(modulation) * depth` (the new modulation). The three are kept
    in single precision; sines, the product `sin(phase) * amplitude * 32768` and the sum that becomes the
    increment are formed in double. Every call begins anew. From a far negative position the tone is worked
    through.

    Parameters
    ----------
    dst : sound, changed
        The buffer that is written.
    src : sound
        The buffer that is read.
    dst_start : int, frames
        The first frame written; may be negative or past the end.
    src_start : int, frames
        The first frame read; may be negative or past the end.
    count : int, frames
        How many frames; below 1 does nothing and returns 0.
    amplitude : float, factor, -1..1
        Limited to this range; not a number counts as -1.
    frequency : float, radians
        The first increment: radians a frame, not hertz. `2 * pi * hertz / rate_of_the_buffer`.
    depth : float, radians
        How much the increment moves in a frame at most.
    rate : float, radians
        The speed of that movement: radians a frame, not hertz.

    Returns
    -------
    int
        0: Done.
        1: A format is invalid, or a parameter is refused.
    """
    return _waveBltSin(
        _a.sound("dst", dst, True).pointer,
        _a.sound("src", src, False).pointer,
        _a.signed("dst_start", dst_start),
        _a.signed("src_start", src_start),
        _a.signed("count", count),
        float(amplitude),
        float(frequency),
        float(depth),
        float(rate),
    )


_waveBltAdd = _function("waveBltAdd", _i32, _pointer, _pointer, _i32, _i32, _i32, _f32)


def waveBltAdd(dst: AnySound, src: AnySound, dst_start: int, src_start: int, count: int, gain: float) -> int:
    """Mixes at the 16-bit scale: `d + ((s * trunc(gain * 256)) >> 8)`.

    Parameters
    ----------
    dst : sound, changed
        The buffer that is written.
    src : sound
        The buffer that is read.
    dst_start : int, frames
        The first frame written; may be negative or past the end.
    src_start : int, frames
        The first frame read; may be negative or past the end.
    count : int, frames
        How many frames; below 1 does nothing and returns 0.
    gain : float, factor, 0..4
        A negative gain and not a number are refused; above 4 counts as 4.

    Returns
    -------
    int
        0: Done.
        1: A format is invalid, or a parameter is refused.
    """
    return _waveBltAdd(
        _a.sound("dst", dst, True).pointer,
        _a.sound("src", src, False).pointer,
        _a.signed("dst_start", dst_start),
        _a.signed("src_start", src_start),
        _a.signed("count", count),
        float(gain),
    )


_waveBltSub = _function("waveBltSub", _i32, _pointer, _pointer, _i32, _i32, _i32, _f32)


def waveBltSub(dst: AnySound, src: AnySound, dst_start: int, src_start: int, count: int, gain: float) -> int:
    """Subtracts at the 16-bit scale: `d - ((s * trunc(gain * 256)) >> 8)`.

    Parameters
    ----------
    dst : sound, changed
        The buffer that is written.
    src : sound
        The buffer that is read.
    dst_start : int, frames
        The first frame written; may be negative or past the end.
    src_start : int, frames
        The first frame read; may be negative or past the end.
    count : int, frames
        How many frames; below 1 does nothing and returns 0.
    gain : float, factor, 0..4
        A negative gain and not a number are refused; above 4 counts as 4.

    Returns
    -------
    int
        0: Done.
        1: A format is invalid, or a parameter is refused.
    """
    return _waveBltSub(
        _a.sound("dst", dst, True).pointer,
        _a.sound("src", src, False).pointer,
        _a.signed("dst_start", dst_start),
        _a.signed("src_start", src_start),
        _a.signed("count", count),
        float(gain),
    )


_waveBltMul = _function("waveBltMul", _i32, _pointer, _pointer, _i32, _i32, _i32, _f32)


def waveBltMul(dst: AnySound, src: AnySound, dst_start: int, src_start: int, count: int, gain: float) -> int:
    """Ring modulation by the magnitude of the source, at the 16-bit scale: `(abs(s) * d) >> 15`.

    The gain can refuse, and does nothing else.

    Parameters
    ----------
    dst : sound, changed
        The buffer that is written.
    src : sound
        The buffer that is read.
    dst_start : int, frames
        The first frame written; may be negative or past the end.
    src_start : int, frames
        The first frame read; may be negative or past the end.
    count : int, frames
        How many frames; below 1 does nothing and returns 0.
    gain : float, factor, 0..4
        A negative gain and not a number are refused; above 4 counts as 4.

    Returns
    -------
    int
        0: Done.
        1: A format is invalid, or a parameter is refused.
    """
    return _waveBltMul(
        _a.sound("dst", dst, True).pointer,
        _a.sound("src", src, False).pointer,
        _a.signed("dst_start", dst_start),
        _a.signed("src_start", src_start),
        _a.signed("count", count),
        float(gain),
    )


_waveBlt64 = _function("waveBlt64", _i32, _pointer, _pointer, _i32, _i32, _i32)


def waveBlt64(dst: AnySound, src: AnySound, dst_start: int, src_start: int, count: int) -> int:
    """Copies at the float scale: converts between all formats, and keeps what they can hold to within one unit.

    Parameters
    ----------
    dst : sound, changed
        The buffer that is written.
    src : sound
        The buffer that is read.
    dst_start : int, frames
        The first frame written; may be negative or past the end.
    src_start : int, frames
        The first frame read; may be negative or past the end.
    count : int, frames
        How many frames; below 1 does nothing and returns 0.

    Returns
    -------
    int
        0: Done.
        1: A format is invalid, or a parameter is refused.
    """
    return _waveBlt64(
        _a.sound("dst", dst, True).pointer,
        _a.sound("src", src, False).pointer,
        _a.signed("dst_start", dst_start),
        _a.signed("src_start", src_start),
        _a.signed("count", count),
    )


_waveNormal = _function("waveNormal", _i32, _pointer, _pointer, _i32, _i32, _i32, _f32)


def waveNormal(
    dst: AnySound, src: AnySound, dst_start: int, src_start: int, count: int, target: float
) -> int:
    """Multiplies by `target / 0.01` at the float scale, clamped to -1..1.

    Despite the name the level of the material plays no part.

    The quotient is formed in double precision from the single-precision target.

    Parameters
    ----------
    dst : sound, changed
        The buffer that is written.
    src : sound
        The buffer that is read.
    dst_start : int, frames
        The first frame written; may be negative or past the end.
    src_start : int, frames
        The first frame read; may be negative or past the end.
    count : int, frames
        How many frames; below 1 does nothing and returns 0.
    target : float, factor, 0..1
        Limited to this range; not a number counts as 0. 0.01 keeps the level, 1 multiplies it by 100.

    Returns
    -------
    int
        0: Done.
        1: A format is invalid, or a parameter is refused.
    """
    return _waveNormal(
        _a.sound("dst", dst, True).pointer,
        _a.sound("src", src, False).pointer,
        _a.signed("dst_start", dst_start),
        _a.signed("src_start", src_start),
        _a.signed("count", count),
        float(target),
    )


_waveClear64 = _function("waveClear64", _i32, _pointer, _i32, _i32)


def waveClear64(dst: AnySound, start: int, count: int) -> int:
    """Silences frames `start..start + count - 1`.

    Parameters
    ----------
    dst : sound, changed
        The buffer that is written.
    start : int, frames
        The first frame; may be negative or past the end.
    count : int, frames
        How many frames; below 1 does nothing and returns 0.

    Returns
    -------
    int
        0: Done.
        1: A format is invalid, or a parameter is refused.
    """
    return _waveClear64(
        _a.sound("dst", dst, True).pointer,
        _a.signed("start", start),
        _a.signed("count", count),
    )



# Resampling.


_waveExpand = _function("waveExpand", _i32, _pointer, _pointer, _f32)


def waveExpand(dst: AnySound, src: AnySound, ratio: float) -> int:
    """Fills `dst` with `src` read at a constant speed: frame `i` is the blend of the two source frames around `p = i * ratio`.

    `p` is formed in double precision, `n = trunc(p)`.
    - Same bits and channels, 8 or 16 bits: stored samples are blended, `(sample(n + 1) * f + sample(n) * (256
    - f)) >> 8` with `f = trunc((p - n) * 256)`. The last source frame is held; frames from `src->count` on are
      silence.
    - Same bits and channels, 24 or 64 bits: nothing is written, and 0 returned. Go through a buffer of other
      bits.
    - All else at the 16-bit scale: `((32768 - f) * s(n) + f * s(n + 1)) >> 15` with `f = trunc((p - n) *
      32768)`; behind the last frame lies silence, into which it fades.

    Parameters
    ----------
    dst : sound, changed
        The buffer that is filled, all of it.
    src : sound
        The buffer that is read.
    ratio : float, factor, 0..inf
        Source frames for each destination frame: above 1 is faster and higher. Negative and not a number
        are refused.

    Returns
    -------
    int
        0: Done, or nothing to do.
        1: A format is invalid or the ratio refused.
    """
    return _waveExpand(_a.sound("dst", dst, True).pointer, _a.sound("src", src, False).pointer, float(ratio))



# Dynamics and reverb.


_waveEffectMaximizer24 = _function(
    "waveEffectMaximizer24", _i32, _pointer, _pointer, _pointer, _i32, _f64, _pointer, _pointer
)


def waveEffectMaximizer24(
    buffer: AnySound, look_position: WritableBuffer, write_position: WritableBuffer, count: int, growth:
    float, left_gain: WritableBuffer, right_gain: WritableBuffer
) -> int:
    """Raises quiet passages, in place, at the 24-bit scale.

    In the `count` frames at the look position, magnitudes are limited to 8388607 and their bits joined by or.
    Each channel's new gain is `gain * growth`, at least 1 and at most 8; at most 4 with bit 20, 2 with bit 21,
    1 with bit 22 (the highest that is set decides). The gain thus grows once a call. Frames at the write
    position are multiplied by `old, old + step, old + 2 * step, ...` with `step = (new - old) / count`, by
    repeated addition, and truncated. Where a loud block follows, the first products may not fit and then wrap;
    beyond 32 bits, and where the gain is not a number, they count as -2^31. A gain that is not a number stays
    so.

    Parameters
    ----------
    buffer : sound, changed
        The sound.
    look_position : buffer of 1 words, changed
        The first frame whose loudness is looked at. A host keeps it a block or more ahead of the write
        position.
    write_position : buffer of 1 words, changed
        The first frame that is changed.
    count : int, frames, 1..2147483647
        The length of the block. Below 1 is refused.
    growth : float, factor, 1.0001..1.7
        Limited to this range; not a number counts as 1.0001.
    left_gain : buffer of 1 doubles, changed
        The gain of the left channel; a host begins with 1.0.
    right_gain : buffer of 1 doubles, changed
        The gain of the right channel.

    Returns
    -------
    int
        0: Done.
        1: A format is invalid or the count is below 1.
    """
    return _waveEffectMaximizer24(
        _a.sound("buffer", buffer, True).pointer,
        _a.memory("look_position", look_position, 4, True),
        _a.memory("write_position", write_position, 4, True),
        _a.signed("count", count),
        float(growth),
        _a.memory("left_gain", left_gain, 8, True),
        _a.memory("right_gain", right_gain, 8, True),
    )


_waveEffectMaximizer64 = _function(
    "waveEffectMaximizer64", _i32, _pointer, _pointer, _pointer, _pointer, _i32, _f64, _pointer, _pointer
)


def waveEffectMaximizer64(
    dst: AnySound, src: AnySound, look_position: WritableBuffer, write_position: WritableBuffer, count:
    int, step: float, left_state: WritableBuffer, right_state: WritableBuffer
) -> int:
    """Raises quiet passages at the float scale, from `src` to `dst`, both at the write position.

    Results are clamped to -1..1.

    A state is the gain less 16. It becomes `state + step`, but at least -15 (a gain of 1), and then at most
    `limit - 16`: for loud material the limit wins. The limit follows from the peak `p` of the `count` source
    frames at the look position, the largest magnitude in the channel:

    | p from | limit |
    |---|---|
    | 0 | 16 |
    | 0.06249 | 14 |
    | 0.07142 | 12 |
    | 0.08333 | 10 |
    | 0.09999 | 8 |
    | 0.1249 | 6 |
    | 0.1666 | 4 |
    | 0.249 | 2 |
    | 0.49 | 1 |
    | 0.99 | 0.5 |
    | 1.99 | 0.25 |
    | 3.99 | 0.125 |
    | 7.99 | 0 |

    A state that is not a number stays so; samples that are not a number do not count in the peak. The gain
    moves over the block as in `waveEffectMaximizer24`, from `old state + 16` to `new state + 16`.

    Parameters
    ----------
    dst : sound, changed
        The buffer that is written.
    src : sound
        The buffer that is read.
    look_position : buffer of 1 words, changed
        The first frame whose loudness is looked at. A host keeps it a block or more ahead of the write
        position.
    write_position : buffer of 1 words, changed
        The first frame that is changed.
    count : int, frames, 1..2147483647
        The length of the block. Below 1 is refused.
    step : float, factor, 0..9.9
        Limited to this range; not a number counts as 0.
    left_state : buffer of 1 doubles, changed
        The state of the left channel; a host begins with -15.0.
    right_state : buffer of 1 doubles, changed
        The state of the right channel.

    Returns
    -------
    int
        0: Done.
        1: A format is invalid or the count is below 1.
    """
    return _waveEffectMaximizer64(
        _a.sound("dst", dst, True).pointer,
        _a.sound("src", src, False).pointer,
        _a.memory("look_position", look_position, 4, True),
        _a.memory("write_position", write_position, 4, True),
        _a.signed("count", count),
        float(step),
        _a.memory("left_state", left_state, 8, True),
        _a.memory("right_state", right_state, 8, True),
    )


_waveEffectReverbA1 = _function(
    "waveEffectReverbA1", _i32, _pointer, _pointer, _pointer, _pointer, _i32, _f64, _i32, _i32, _i32,
    _pointer
)


def waveEffectReverbA1(
    buffer: AnySound, frame_position: WritableBuffer, ring: AnySound, ring_position: WritableBuffer,
    count: int, level: float, predelay: int, spread: int, taps: int, tap_table: Buffer
) -> int:
    """Adds echoes to `count` frames from the frame position on, in place, at the float scale.

    For every frame, with `r` the ring position:
    1. ring frame `r + 199`, times 0.005, is added to the frame, which is written clamped;
    2. ring frame `r` is cleared;
    3. with `e = (left + right) * (level * 0.5)` of the frame as it was read, unless that is 0 or not a number:
       from `x = r + predelay`, for each tap, with `i = trunc(x)` in 64 bits (-2^63 for what does not fit or is
       not a number) and `f = x - i`, ring frame `i` receives `(1
    - f) * e * gain` and ring frame `i + 1` receives `f * e * gain` of each channel's gain; then `x += spread *
      distance`;
    4. both positions advance by one.

    Ring frames are taken modulo 524288. So an echo is heard 199 frames before its delay is over, and one of
    less than 200 frames never. Calls that pass on the ring and both positions make one continuous reverb.
    Frames outside the buffer are silence, and only clear the ring.

    Parameters
    ----------
    buffer : sound, changed
        The sound. A count of 0 is refused; a negative one is silence.
    frame_position : buffer of 1 words, changed
        The first frame; advanced by `count`.
    ring : sound, 8388608 bytes of samples, changed
        A 64-bit buffer of at least 524288 frames by its count, whatever its channels used as 524288 frames
        of two doubles: its data must be 8 MiB, cleared by the host before the first call. Its format and
        count may say one channel, but not less memory.
    ring_position : buffer of 1 words, changed
        The place in the ring, 0..524287; other values are taken modulo 524288.
    count : int, frames, 1..2147483647
        The length of the block. Below 1 is refused.
    level : float, factor, 0..99.99
        How loud the echoes are sent; limited to this range, not a number counts as 0.
    predelay : int, frames, 10..88200
        From a frame to its first echo; limited to this range.
    spread : int, factor, 1..44100
        Multiplies the distances of the taps; limited to this range.
    taps : int, count, 1..10000
        How many echoes a frame has; limited to this range.
    tap_table : buffer of 30000 doubles
        10000 left gains, 10000 right gains, 10000 distances from a tap to the next in frames; the first
        `taps` of each are read.

    Returns
    -------
    int
        0: Done.
        1: The count is below 1; the buffer is invalid or has a count of 0; the ring is invalid, has fewer
          frames or other bits; or there is no memory for the distances of the taps, 8 bytes each.
    """
    return _waveEffectReverbA1(
        _a.sound("buffer", buffer, True).pointer,
        _a.memory("frame_position", frame_position, 4, True),
        _a.sound("ring", ring, True, 8388608).pointer,
        _a.memory("ring_position", ring_position, 4, True),
        _a.signed("count", count),
        float(level),
        _a.signed("predelay", predelay),
        _a.signed("spread", spread),
        _a.signed("taps", taps),
        _a.memory("tap_table", tap_table, 240000, False),
    )



# Spectrum.


_wavefft = _function("wavefft", _i32, _pointer, _i32, _i32, _pointer, _pointer)


def wavefft(buffer: AnySound, start: int, n: int, re: WritableBuffer, im: WritableBuffer) -> int:
    """Real and imaginary parts of the spectrum.

    Parameters
    ----------
    buffer : sound
        The sound.
    start : int, frames
        The first frame.
    n : int, frames
        The length of the run and of both arrays.
    re : buffer of n doubles, changed
        Real parts. Must not share memory with the sound or with `im`.
    im : buffer of n doubles, changed
        Imaginary parts.

    Returns
    -------
    int
        0: Done.
        1: The format is invalid.
        2: `n` is below 1 or `start` negative.
        3: The run leaves the buffer.
    """
    n = _a.signed("n", n)
    return _wavefft(
        _a.sound("buffer", buffer, False).pointer,
        _a.signed("start", start),
        n,
        _a.memory("re", re, 8 * n, True),
        _a.memory("im", im, 8 * n, True),
    )


_wavefft2 = _function("wavefft2", _i32, _pointer, _i32, _i32, _pointer, _pointer)


def wavefft2(buffer: AnySound, start: int, n: int, re: WritableBuffer, im: WritableBuffer) -> int:
    """Magnitude and angle: after `wavefft`, `re[k]` becomes `sqrt(re * re + im * im)` and `im[k]` becomes `atan2(re, im)`, in radians from the imaginary axis.

    The arctangent is within one unit in the last place of the exact one, and the same on every target. The
    arrays are converted whatever the result, if `n` is at least 1: what they hold must be defined.

    Parameters
    ----------
    buffer : sound
        The sound.
    start : int, frames
        The first frame.
    n : int, frames
        The length of the run and of both arrays.
    re : buffer of n doubles, changed
        Real parts. Must not share memory with the sound or with `im`.
    im : buffer of n doubles, changed
        Imaginary parts.

    Returns
    -------
    int
        0: Done.
        1: The format is invalid; the arrays are converted all the same.
        2: `n` is below 1, or `start` is negative and the arrays are converted all the same.
        3: The run leaves the buffer; the arrays are converted all the same.
    """
    n = _a.signed("n", n)
    return _wavefft2(
        _a.sound("buffer", buffer, False).pointer,
        _a.signed("start", start),
        n,
        _a.memory("re", re, 8 * n, True),
        _a.memory("im", im, 8 * n, True),
    )



__all__ = [
    "iwave11Encoder",
    "iwave11Decoder",
    "iwave12Encoder",
    "iwave12Decoder",
    "iwave32Encoder",
    "iwave32Decoder",
    "iwave21Encoder",
    "iwave21Decoder",
    "iwave22Encoder",
    "iwave22Decoder",
    "ichshift2Encoder",
    "ichshift2Decoder",
    "ichshift3Encoder",
    "ichshift3Decoder",
    "ichshift4Encoder",
    "ichshift4Decoder",
    "iEncoder",
    "iDecoder",
    "iDecoderSafe",
    "ioEncoder",
    "ioDecoder",
    "ioDecoderSafe",
    "ib18Encoder",
    "ib18Decoder",
    "ib18DecoderSafe",
    "ib18EncoderEx",
    "ib18DecoderEx",
    "ib18DecoderExSafe",
    "iabrEncoder",
    "iabrDecoder",
    "iabrDecoderSafe",
    "inabeEncoder",
    "inabeDecoder",
    "inabeDecoderEx",
    "inabeDecoderSafe",
    "inabeDecoderExSafe",
    "imistEncoder",
    "imistDecoder",
    "imistDecoderSafe",
    "indaEncoder",
    "indaDecoder",
    "indaDecoderSafe",
    "icaEncoder",
    "icaDecoder",
    "icaDecoderSafe",
    "c2fEncoder",
    "c2fDecoder",
    "DecodeImageHead",
    "DecodeImage",
    "BBIDrawLine",
    "BBIDotThick",
    "BBILineThick",
    "BBIDrawGradationLine",
    "BBIDrawAlphaLine",
    "BBIDrawColorFill",
    "BBIDrawColorTile",
    "BBIDrawBox",
    "BBIDrawGradationBox",
    "BBIDrawMultiplyLineBox",
    "BBIDrawExclusiveLineBox",
    "BBIDrawTriangle",
    "BBIDrawTriangleA",
    "BBIDrawLineCircle",
    "BBIDrawPolaCircle",
    "GetCpuID",
    "MMX",
    "BBI",
    "wave",
    "SHR",
    "SAR",
    "SHL",
    "GetWORD",
    "GetInt",
    "SetWORD",
    "SetInt",
    "GetDWORD",
    "GetLong",
    "SetDWORD",
    "SetLong",
    "dllComp",
    "CopyMemoryEx",
    "hash32A",
    "hash32W",
    "dwColorBlend",
    "dllMethod1",
    "dllMethod4",
    "StdCallBack",
    "GetRandom",
    "ThreadBegin",
    "ThreadKill",
    "WindowProcLoad",
    "WindowProcUnload",
    "BBIMapUC",
    "BBIMapUCVA",
    "BBIMapUDVA",
    "BBIMapMCUCVA",
    "BBIMapMCUDVA",
    "BBIMapUCVC",
    "BBIMapUDVC",
    "BBIMapUCVX",
    "BBIMapUCVY",
    "BBIStencilFlip",
    "BBIStencilFlipLE",
    "BBIStencilFlipLEFix",
    "BBIStencilAddsigned",
    "BBIBlt",
    "BBIBltColor",
    "BBIBltColorBlend",
    "BBIBltAlpha",
    "BBIBltAdd",
    "BBIBltMul",
    "BBIBltSub",
    "BBIBltXor",
    "BBIBltXor2",
    "BBIBltXor3",
    "BBIBltNot",
    "BBIBltMin",
    "BBIBltMax",
    "BBIBltKeying",
    "BBIBltKeyingFX",
    "BBIBltBlend",
    "BBIBltHalfBlend",
    "BBIBltShiftAlpha",
    "BBIBltShiftBlock",
    "BBIBltTo32from1",
    "BBIBltTo32from8",
    "BBIBltTo32from24",
    "BBIBltTo32from32",
    "BBIBltToBBIGet",
    "BBIBltTo24As888",
    "BBIBltTo16As444",
    "BBIBltTo16As565",
    "BBIBltTo16As555",
    "BBIBltTo16As1555",
    "BBIBltTo8AsGray",
    "BBIBltTo8AsAlpha",
    "BBIBltTo1",
    "BBIBltToX",
    "BBIBltToXF",
    "BBIBltToF",
    "BBICompare",
    "BBICompareAny",
    "BBIColorCount",
    "BBIColorPalette",
    "BBITrim",
    "BBIClear",
    "BBIClearRGB",
    "BBIClearMask",
    "BBIMirror",
    "BBIVMirror",
    "BBIRotation",
    "BBIKeying",
    "BBIKeyingFilter",
    "BBIAntiAreas",
    "BBIPaint",
    "BBIBltTone",
    "BBIBltToneWB",
    "BBIBltTrueBlend",
    "BBIAutoLevelRGB",
    "BBIAutoLevelRGBRev",
    "BBIAutoLevelRGBMul",
    "BBIAutoLevelWB",
    "BBIExpandBlt",
    "BBIExpandBlendBlt",
    "BBIExpandColorBlt",
    "BBIExpandChooseBlt",
    "BBILinearBlt",
    "BBILinearRender",
    "BBIAlphaTableCreate",
    "BBILinear",
    "BBILinearBltTest",
    "BBIFlip",
    "BBIFlipBlend",
    "BBIDepth",
    "BBIDepthMask",
    "BBIFlipLineX",
    "BBIFlipLineY",
    "BBIBltUBlur",
    "BBIBltVBlur",
    "BBIBltUBlurLoop",
    "BBIBltVBlurLoop",
    "BBIBltUScale",
    "BBIBltVScale",
    "BBIBltHalfSize",
    "BBIColorCutDown1555",
    "BBIColorCutDown4444",
    "BBIColorCutDown1111",
    "BBIChooseCA",
    "BBIChooseCATR",
    "BBIChooseCATS",
    "BBIChooseRGBA",
    "BBIPaintChoose",
    "GetWave",
    "LetWave",
    "GetWave24",
    "LetWave24",
    "GetWave64",
    "LetWave64",
    "waveFormatEnc",
    "waveFormat",
    "waveBlt",
    "waveBltBlur",
    "waveBltGluder",
    "waveBltAddNoise",
    "waveBltSin",
    "waveBltAdd",
    "waveBltSub",
    "waveBltMul",
    "waveBlt64",
    "waveNormal",
    "waveClear64",
    "waveExpand",
    "waveEffectMaximizer24",
    "waveEffectMaximizer64",
    "waveEffectReverbA1",
    "wavefft",
    "wavefft2",
]
