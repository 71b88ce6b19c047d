"""Sounds that own their samples, and effects that keep their state."""

from __future__ import annotations

import ctypes
import io
import os
import struct
import wave
from typing import Any, Optional, Sequence, Tuple, Union

from . import functions as f
from ._arguments import SoundMemory, view_of
from ._pictures import numpy_or_none
from .constants import Reverb as _Sizes
from .image import Refused, done


class Sound:
    """Samples of 8, 16 or 24 bits or doubles (64), of one channel or two.

    Methods change the sound and return it, unless they say that they return another; they raise `Refused`
    where the library does nothing. Positions are frames; what lies outside reads as silence.
    """

    def __init__(
        self, frames: int, rate: int = 44100, bits: int = 16, channels: int = 2, data: Any = None
    ) -> None:
        """Silence, or the samples in `data`: a copy, or a host's own memory if it can be written to."""
        if bits not in (8, 16, 24, 64) or channels not in (1, 2):
            raise ValueError(
                f"a sound has 8, 16, 24 or 64 bits and 1 or 2 channels, not {bits} and {channels}"
            )
        if not 1000 <= rate <= 441000:
            raise ValueError(f"a sound has 1000 to 441000 frames a second, not {rate}")
        if not 0 <= frames <= 0x7FFFFFFF:
            raise ValueError(f"a sound cannot have {frames} frames")
        self.frames, self.rate, self.bits, self.channels = frames, rate, bits, channels
        size = frames * bits // 8 * channels
        if data is None:
            data = bytearray(size) if bits != 8 else bytearray(b"\x80") * size
        elif view_of("data", data).readonly:
            data = bytearray(data)
        self._own = SoundMemory(self.format, frames, data)
        self._view = view_of("data", data).cast("B")[:size]

    def _record(self):
        return self._own

    def _memory(self):
        return self._view

    @property
    def format(self) -> int:
        """The format code, as the functions have it."""
        return f.waveFormatEnc(self.bits, self.channels, self.rate)

    @property
    def seconds(self) -> float:
        return self.frames / self.rate

    def __repr__(self) -> str:
        channels = "mono" if self.channels == 1 else "stereo"
        return f"<tessaro.Sound {self.seconds:.3f} s, {self.rate} Hz, {self.bits} bits, {channels}>"

    def __len__(self) -> int:
        return self.frames

    @property
    def array(self) -> Any:
        """The samples as (frames, channels): a view, nothing is copied.

        Bytes (128 is silence), 16-bit integers or doubles; 24-bit samples are three bytes each and come as
        (frames, channels, 3). With numpy an array, else a memoryview, flat for a sound without frames.
        """
        code, size = {8: ("B", 1), 16: ("h", 2), 24: ("B", 1), 64: ("d", 8)}[self.bits]
        shape = (self.frames, self.channels) + ((3,) if self.bits == 24 else ())
        numpy = numpy_or_none()
        if numpy:
            return numpy.frombuffer(self._view, {"B": "u1", "h": "<i2", "d": "<f8"}[code]).reshape(shape)
        return self._view.cast(code, shape) if self.frames else self._view.cast(code)

    # In and out.

    @classmethod
    def from_array(cls, array: Any, rate: int = 44100) -> Sound:
        """A new sound of bytes, 16-bit integers or floats (-1 to 1): (frames,) or (frames, channels)."""
        numpy = numpy_or_none()
        if numpy:
            array = numpy.asarray(array)
            code, shape = array.dtype.char, array.shape
        else:
            array = memoryview(array)
            code, shape = array.format, array.shape
        bits = {"B": 8, "h": 16, "d": 64, "f": 64}.get(code)
        if bits is None or len(shape) not in (1, 2):
            raise TypeError(
                f"a sound has bytes, 16-bit integers or floats in 1 or 2 dimensions, not {code!r} in {len(shape)}"
            )
        if code == "f":
            array = (
                array.astype("d")
                if numpy
                else memoryview(struct.pack(f"{array.nbytes // 4}d", *array.cast("B").cast("f")))
            )
        channels = shape[1] if len(shape) == 2 else 1
        return cls(shape[0], rate, bits, channels, bytearray(array.tobytes()))

    @classmethod
    def open(cls, source: Union[str, os.PathLike, bytes]) -> Sound:
        """A new sound from a WAV file of integers, a path or its bytes."""
        if not isinstance(source, (str, os.PathLike)):
            file_or_path: Any = io.BytesIO(source)
        else:
            file_or_path = os.fspath(source)
        try:
            with wave.open(file_or_path, "rb") as file:
                bits, channels = 8 * file.getsampwidth(), file.getnchannels()
                data = file.readframes(file.getnframes())
                rate = file.getframerate()
        except (wave.Error, EOFError) as error:
            raise ValueError(
                f"the sound cannot be loaded: {error or 'it ends early'} (WAV files of integers are read)"
            ) from None
        frame = bits // 8 * channels
        return cls(len(data) // frame, rate, bits, channels, bytearray(data))

    def to_wav(self) -> bytes:
        """The sound as a WAV file; doubles become 24-bit integers."""
        if self.bits == 64:
            return self.convert(bits=24).to_wav()
        made = io.BytesIO()
        with wave.open(made, "wb") as file:
            file.setparams((self.channels, self.bits // 8, self.rate, self.frames, "NONE", ""))
            file.writeframes(self._view)
        return made.getvalue()

    def save(self, path: Union[str, os.PathLike]) -> Sound:
        """Writes a WAV file."""
        with open(path, "wb") as file:
            file.write(self.to_wav())
        return self

    # Copies.

    def copy(self) -> Sound:
        return Sound(self.frames, self.rate, self.bits, self.channels, bytearray(self._view))

    def cut(self, start: int, count: int) -> Sound:
        """A new sound with the frames from `start` on."""
        other = Sound(count, self.rate, self.bits, self.channels)
        done(f.waveBlt64(other, self, 0, start, count), "cut")
        return other

    def convert(
        self, bits: Optional[int] = None, channels: Optional[int] = None, rate: Optional[int] = None
    ) -> Sound:
        """A new sound of another format.

        At another rate the samples go through 16 bits.
        """
        bits, channels, rate = bits or self.bits, channels or self.channels, rate or self.rate
        source = self
        if rate != self.rate:
            if self.bits in (24, 64):
                source = self.convert(bits=16)
            other = Sound(round(self.frames * rate / self.rate), rate, source.bits, source.channels)
            done(f.waveExpand(other, source, self.rate / rate), "convert")
            source = other
        other = Sound(source.frames, rate, bits, channels)
        done(f.waveBlt64(other, source, 0, 0, other.frames), "convert")
        return other

    # Changes.

    def _integers(self, what):
        """The integer scales take doubles for packed 24-bit samples, without notice."""
        if self.bits == 64:
            raise ValueError(f"{what} works on integers: use convert(bits=24) or convert(bits=16) first")

    def mix(self, other: Sound, start: int = 0, gain: float = 1.0) -> Sound:
        """Adds a sound from a frame on, at 16 bits; sums saturate. Gains are 0 to 4."""
        self._integers("mix")
        other._integers("mix")
        done(f.waveBltAdd(self, other, start, 0, other.frames, gain), "mix")
        return self

    def write(self, other: Sound, start: int = 0) -> Sound:
        """Replaces frames from one on by those of a sound of any format."""
        done(f.waveBlt64(self, other, start, 0, other.frames), "write")
        return self

    def amplify(self, gain: float) -> Sound:
        """Multiplies by 0 to 4; samples saturate."""
        self._integers("amplify")
        done(f.waveBlt(self, self, 0, 0, self.frames, gain), "amplify")
        return self

    def silence(self, start: int = 0, count: Optional[int] = None) -> Sound:
        done(f.waveClear64(self, start, self.frames if count is None else count), "silence")
        return self

    def tone(
        self, hertz: float, amplitude: float = 0.5, start: int = 0, count: Optional[int] = None
    ) -> Sound:
        """Adds a sine."""
        self._integers("tone")
        step = 2 * 3.141592653589793 * hertz / self.rate
        count = self.frames - start if count is None else count
        done(f.waveBltSin(self, self, start, start, count, amplitude, step, 0.0, 0.0), "tone")
        return self

    def smooth(self, radius: int) -> Sound:
        """A new sound: the moving average over 2 * radius + 1 frames."""
        self._integers("smooth")
        other = Sound(self.frames + radius, self.rate, self.bits, self.channels)
        done(f.waveBltBlur(other, self, 0, 0, other.frames, radius), "smooth")
        return other.cut(radius, self.frames)

    def spectrum(self, start: int = 0, n: int = 1024) -> Any:
        """Magnitudes of the first n / 2 bins of the transform of n frames, n a power of two: doubles.

        Bin k lies at k * rate / n hertz. There is no window.
        """
        if n < 2 or n & (n - 1):
            raise ValueError(f"the length of a spectrum is a power of two, not {n}")
        real, imaginary = bytearray(8 * n), bytearray(8 * n)
        if done(f.wavefft(self, start, n, real, imaginary), "spectrum"):
            raise Refused(f"frames {start}..{start + n - 1} lie outside of the sound's {self.frames}")
        f.wavefft2(self, start, n, real, imaginary)
        numpy = numpy_or_none()
        view = memoryview(real).cast("d")[: n // 2]
        return numpy.frombuffer(view) if numpy else view


class Maximizer:
    """Raises quiet passages of sounds of 8, 16 or 24 bits, up to eight times, and lets go before loud ones.

    It keeps its gains from one sound to the next.
    """

    def __init__(self, growth: float = 1.01, block: int = 441) -> None:
        """The gain grows by `growth`, 1.0001 to 1.7, with each block of frames."""
        self.growth, self.block = growth, block
        self._left, self._right = ctypes.c_double(1.0), ctypes.c_double(1.0)

    @property
    def gains(self) -> Tuple[float, float]:
        return self._left.value, self._right.value

    def apply(self, sound: Sound) -> Sound:
        """Works through a sound in place."""
        sound._integers("Maximizer")
        # One block ahead: the gain falls over the block before the loud one.
        look, write = ctypes.c_int32(0), ctypes.c_int32(-self.block)
        while write.value < sound.frames:
            look.value = min(
                look.value, max(sound.frames - self.block, 0)
            )  # not into the silence behind the end
            status = f.waveEffectMaximizer24(
                sound, look, write, self.block, self.growth, self._left, self._right
            )
            done(status, "Maximizer")
        return sound


class Limiter:
    """Keeps loud passages of 64-bit sounds down, and raises quiet ones up to sixteen times.

    It keeps its gains from one sound to the next.
    """

    def __init__(self, step: float = 0.02, block: int = 441) -> None:
        """The gain grows by `step`, 0 to 9.9, with each block of frames."""
        self.step, self.block = step, block
        self._left, self._right = ctypes.c_double(-15.0), ctypes.c_double(-15.0)

    @property
    def gains(self) -> Tuple[float, float]:
        return self._left.value + 16, self._right.value + 16

    def apply(self, sound: Sound) -> Sound:
        """Works through a sound in place."""
        if sound.bits != 64:
            raise ValueError("Limiter works on doubles: use convert(bits=64) first")
        look, write = ctypes.c_int32(0), ctypes.c_int32(-self.block)
        while write.value < sound.frames:
            look.value = min(
                look.value, max(sound.frames - self.block, 0)
            )  # not into the silence behind the end
            status = f.waveEffectMaximizer64(
                sound, sound, look, write, self.block, self.step, self._left, self._right
            )
            done(status, "Limiter")
        return sound


class Reverb:
    """Adds echoes, and keeps what is still to be heard from one sound to the next."""

    def __init__(
        self,
        taps: Sequence[Tuple[float, float, float]],
        level: float = 1.0,
        predelay: int = 4410,
        spread: int = 1,
    ) -> None:
        """Taps are (left gain, right gain, frames to the next tap); the first lies `predelay` frames behind.

        An echo is heard 199 frames before its delay is over, and one of less than 200 frames never.
        """
        self.taps = [tuple(map(float, tap)) for tap in taps]
        most = int(_Sizes.TAPS)
        if not 1 <= len(self.taps) <= most:
            raise ValueError(f"a reverb has 1 to {most} taps, not {len(self.taps)}")
        self.level, self.predelay, self.spread = level, predelay, spread
        self._table = bytearray(8 * 3 * most)
        for k, tap in enumerate(self.taps):
            for part, value in enumerate(tap):
                struct.pack_into("<d", self._table, 8 * (part * most + k), value)
        self._ring = Sound(int(_Sizes.RING_FRAMES), 44100, 64, 2)
        self._place = ctypes.c_int32(0)

    def apply(self, sound: Sound) -> Sound:
        """Works through a sound in place. The last echoes are heard in the sound that comes next, or in its room."""
        at = ctypes.c_int32(0)
        if sound.frames:
            status = f.waveEffectReverbA1(
                sound, at, self._ring, self._place, sound.frames,
                self.level, self.predelay, self.spread, len(self.taps), self._table,
            )  # fmt: skip
            done(status, "Reverb")
            self._place.value %= int(_Sizes.RING_FRAMES)
        return sound
