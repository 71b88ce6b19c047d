// Made by bindings/cpp/generate.py from the description of the functions. Do not edit.
#pragma once

#include <cstdint>

#include "tessaro/tessaro.h"

namespace tessaro {

// clang-format off

/// Levels of a processor.
enum class CpuLevel : int32_t {
  basic = TESSARO_CPU_BASIC,  ///< No packed integers.
  cmov = TESSARO_CPU_CMOV,  ///< No packed integers, but conditional moves.
  mmx = TESSARO_CPU_MMX,  ///< MMX.
  mmx_sse = TESSARO_CPU_MMX_SSE,  ///< MMX and SSE.
  mmx_sse2 = TESSARO_CPU_MMX_SSE2,  ///< MMX and SSE2 without SSE.
  sse2 = TESSARO_CPU_SSE2,  ///< MMX, SSE and SSE2.
};

/// Pixel formats, with A, R, G and B the bytes of a pixel.
enum class Format : int32_t {
  f8888 = TESSARO_FORMAT_8888,  ///< 4 bytes: the word 0xAARRGGBB.
  f888 = TESSARO_FORMAT_888,  ///< 3 bytes: blue, green, red. Unpacked with alpha 0.
  f565 = TESSARO_FORMAT_565,  ///< 2 bytes: `R >> 3 << 11 | G >> 2 << 5 | B >> 3`. Unpacked with alpha 0.
  f555 = TESSARO_FORMAT_555,  ///< 2 bytes: `R >> 3 << 10 | G >> 3 << 5 | B >> 3`. Unpacked with alpha 0, whatever bit 15 is.
  f1555 = TESSARO_FORMAT_1555,  ///< 2 bytes: `A >> 7 << 15`, the rest as in 555. Unpacked with alpha 0x80 or 0.
  f4444 = TESSARO_FORMAT_4444,  ///< 2 bytes: `A >> 4 << 12 | R >> 4 << 8 | G >> 4 << 4 | B >> 4`. Unpacked with each four bits on top of their byte.
};

/// What `BBICompare` tests.
enum class Compare : int32_t {
  pixels = TESSARO_COMPARE_PIXELS,  ///< All 32 bits of both are equal.
  colours = TESSARO_COMPARE_COLOURS,  ///< The colours of both are equal.
  alphas = TESSARO_COMPARE_ALPHAS,  ///< The alphas of both are equal.
  transparent = TESSARO_COMPARE_TRANSPARENT,  ///< The alpha of `a` is 0.
  opaque = TESSARO_COMPARE_OPAQUE,  ///< The alpha of `a` is 255.
  black_white = TESSARO_COMPARE_BLACK_WHITE,  ///< The colour of `a` is 0x000000 or 0xFFFFFF.
  grey = TESSARO_COMPARE_GREY,  ///< Blue, green and red of `a` are equal.
};

/// Turns of an image.
enum class Turn : int32_t {
  right = TESSARO_TURN_RIGHT,  ///< A quarter clockwise: column x, row y goes to column `height - 1 - y`, row `x`.
  half = TESSARO_TURN_HALF,  ///< A half: to column `width - 1 - x`, row `height - 1 - y`.
  left = TESSARO_TURN_LEFT,  ///< A quarter counter-clockwise: to column `y`, row `width - 1 - x`.
};

/// What BBILinearRender does with a sample s, with the weight a = table[alpha of s].
enum class Render : int32_t {
  mix = TESSARO_RENDER_MIX,  ///< d = mix(d, s, a); any number but the others as well.
  add = TESSARO_RENDER_ADD,  ///< `d = min(d + (s * a >> 8), 255)` per channel, alpha included.
  tint = TESSARO_RENDER_TINT,  ///< The colours of s become mix(s, tint, table[alpha of tint]), then as mixing.
  tint_add = TESSARO_RENDER_TINT_ADD,  ///< The same tint, then as adding.
};

/// What BBIChooseCA and its relatives build from; other bits count for nothing.
enum class Choose : int32_t {
  colour = TESSARO_CHOOSE_COLOUR,  ///< The colour: as colours, or as alpha its brightness.
  alpha = TESSARO_CHOOSE_ALPHA,  ///< The alpha: as colours a grey of it, or as alpha.
  dst = TESSARO_CHOOSE_DST,  ///< Added: the pixel of `dst`; else that of `src`.
};

/// What a channel is copied from by BBIChooseRGBA; other bits count for nothing.
enum class From : int32_t {
  red = TESSARO_FROM_RED,  ///< The red.
  green = TESSARO_FROM_GREEN,  ///< The green.
  blue = TESSARO_FROM_BLUE,  ///< The blue.
  alpha = TESSARO_FROM_ALPHA,  ///< The alpha.
  dst = TESSARO_FROM_DST,  ///< Added: of the pixel of `dst`; else of that of `src`.
};

/// The operations of BBIPaintChoose.
enum class Paint : int32_t {
  key = TESSARO_PAINT_KEY,  ///< Key pixels become `colour`.
  rest = TESSARO_PAINT_REST,  ///< All others become `colour`.
  bordered = TESSARO_PAINT_BORDERED,  ///< All others become `colour`, with a border on either side of the key.
  key_rim = TESSARO_PAINT_KEY_RIM,  ///< Key pixels with a neighbour that is not key become `colour`.
  outline = TESSARO_PAINT_OUTLINE,  ///< Others with a neighbour that is key become `colour`.
  small_regions = TESSARO_PAINT_SMALL_REGIONS,  ///< Connected regions of few key pixels become `colour`.
  majority = TESSARO_PAINT_MAJORITY,  ///< Key pixels take the commonest of their neighbours' colours.
  grey = TESSARO_PAINT_GREY,  ///< Grey pixels take the commonest of their neighbours' colours.
  coloured = TESSARO_PAINT_COLOURED,  ///< Pixels that are not grey become `colour`.
  average = TESSARO_PAINT_AVERAGE,  ///< Key pixels take the average of their neighbours.
  masked = TESSARO_PAINT_MASKED,  ///< Pixels p with `(p & extra) == key` become `colour`.
};

/// Widths of a stored sample.
enum class SampleBits : int32_t {
  b8 = TESSARO_BITS_8,  ///< One byte, 128 is silence.
  b16 = TESSARO_BITS_16,  ///< Signed, little-endian, two bytes.
  b24 = TESSARO_BITS_24,  ///< Signed, little-endian, three bytes.
  b64 = TESSARO_BITS_64,  ///< A double, -1 to 1.
};

/// Samples a frame.
enum class Channels : int32_t {
  mono = TESSARO_MONO,  ///< One sample.
  stereo = TESSARO_STEREO,  ///< Left, then right.
};

/// Lossless stream formats.
enum class Codec : int32_t {
  i,  ///< Codes pairs of bytes, each against the pair before.
  io,  ///< Codes pixels that repeat the one before.
  ib18,  ///< Codes blocks of six bytes that repeat the byte before, or are the one that most often follows it in this source, or are sent.
  ib18_ex,  ///< Codes as `ib18Encoder` does, one channel of 32-bit pixels after another.
  iabr,  ///< Codes groups of 4, 8, 16, ...
  inabe,  ///< Codes groups of `4 * 2^k` bytes that agree in their top bits, in a few bits each, with an escape for those that do not fit.
  imist,  ///< Codes pixels against the pixel before, in two pairs of channels: blue and red, green and alpha.
  inda,  ///< Codes blocks of eight bytes, each byte whole or as the bits in which it differs from a byte one to eight places back.
  ica,  ///< Codes pixels against the pixel before, each byte whole or cut to its low 3 or 5 bits.
  c2f,  ///< Codes pixels whose channels stay constant, in blocks of eight pixels.
};

/// The functions behind a format.
struct CodecFunctions {
  const char* name;
  int32_t(TESSARO_CALL* encode)(const void*, void*, uint32_t, uint32_t*);
  int32_t(TESSARO_CALL* decode)(const void*, void*, uint32_t, uint32_t);
};

inline const CodecFunctions& functions_of(Codec codec) {
  static constexpr CodecFunctions all[] = {
      {"i", iEncoder, iDecoderSafe},
      {"io", ioEncoder, ioDecoderSafe},
      {"ib18", ib18Encoder, ib18DecoderSafe},
      {"ib18_ex", ib18EncoderEx, ib18DecoderExSafe},
      {"iabr", iabrEncoder, iabrDecoderSafe},
      {"inabe", inabeEncoder, inabeDecoderSafe},
      {"imist", imistEncoder, imistDecoderSafe},
      {"inda", indaEncoder, indaDecoderSafe},
      {"ica", icaEncoder, icaDecoderSafe},
      {"c2f", c2fEncoder, c2fDecoder},
  };
  return all[static_cast<int32_t>(codec)];
}

// clang-format on

}  // namespace tessaro
