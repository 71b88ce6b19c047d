// The operations that per-pixel rules are written in. Each back end defines them on a value of a few pixels;
// the scalar one is their definition. Everything here and in the back ends has internal linkage and is always
// inlined: nothing compiled for a newer processor may be picked by the linker for an older one.
//
//   P::lanes                     pixels in a value
//   P::load(p) P::load(p, n)     from any alignment; n < lanes reads n pixels and no byte more, the others are 0
//   a.store(p) a.store(p, n)
//   kept(a)                      a, read once: the compiler must not fold a load into each use
//   a.stream(p)                  past the caches, to a multiple of the vector's size; P::fence() follows the last
//   P::splat(word)               the same pixel in every lane
//   add_sat sub_sat add sub      per byte; the first two saturate, the others wrap
//   min max difference           per unsigned byte
//   & | ^ ~                      bitwise; and_not(a, b) = a & ~b; choose_bits(mask, a, b) = (a & mask) | (b & ~mask)
//   shl<k> shr<k>                per 32-bit pixel, logical; shl(a, k) shr(a, k) where k is known at run time
//   unzip(a, b)                  of the 2 * lanes pixels a, b: .even every other one from the first, .odd the rest
//   alphas(a)                    the alpha byte in all four bytes
//   with_alpha(colour, a)        the colours of one and the alpha of the other
//   equal(a, b) above(a, b)      per unsigned 32-bit pixel, a P::Mask; select(mask, yes, no)
//   P::bits(mask)                one bit a pixel, the first in bit 0
//
// Products need 16 bits: a P::Half has two 16-bit lanes per pixel.
//   even(a) odd(a)               bytes 0 and 2 (blue, red); bytes 1 and 3 (green, alpha)
//   even_up<k>(a) odd_up<k>(a)   the same times 1 << k; k at most 6
//   join(e, o)                   back to bytes; both at most 255
//   join_sat(e, o)               back to bytes; signed lanes, kept within 0..255
//   join_high(e, o)              back to bytes from the upper halves, that is shifted right by 8
//   paired(low, high)            each byte of `high` above that of `low`: .first and .second hold the lanes in an order that
//                                only unpaired(first, second) knows, which takes signed lanes back to bytes, kept within
//                                0..255
//   halves(a)                    the lower and the upper 16 bits of a pixel as they are; whole(h) is the pixel again
//   alpha_halves(a)              the alpha in both lanes of each pixel
//   colour_sums<k>(a, m, c)      (((blue + green + red) << k) * m + c) >> 16, signed, in both lanes; k at most 6, m of 16
//                                bits with sign
//   lookup_alpha(a, table)       table[alpha] in both lanes; table has 256 32-bit entries below 65536
//   ramp_alpha(a, line)          (alpha * rise + base) >> shift, kept within 0..256, in both lanes; see AlphaLine
//   P::Half::splat(v)  + - *     modulo 65536;  & |;  shl<k> shr<k> (logical);  min max (signed)
//   mul_high(a, b)               (a * b) >> 16, unsigned; mul_high_signed(a, b) signed
//   sum_in_byte(a, b)            a + b (signed) kept within 0..255; b at most 255, the sum above -32512
//   plus_equal(a, b)             a + 1 where a == b, else a
//   falling_weights(e, o, line)  trunc(256 - length * factor) kept within 0..256, in both lanes, where length is the root,
//                                truncated, of the squares of both lanes of e and the lower one of o, signed; their sum
//                                below 2^20; see FallingLine
//
// A Quad holds the four channels of one pixel in 16 bits each, blue first; + and * are modulo 65536.
//   Quad::of(p)                  from the four bytes of a pixel
//   Quad::load(p) a.store(p)     four numbers of 16 bits;  Quad::splat(v)
//
// Pixels as numbers of 32 bits and as things that move about:
//   add32(a, b) sub32(a, b)      modulo 2^32
//   reversed(a)                  the last pixel first
//   transpose_square(rows)       P (&rows)[lanes]: rows become columns
//   P::permutes                  whether the next three cost an instruction or two; without, they are one pixel at a time
//   picked(a, where)             pixel where[i] % lanes of a
//   picked(a, b, where)          of the 2 * lanes pixels a, b the one where[i] % (2 * lanes)
//   gather(p, where)             the pixel at p + 4 * where[i], signed
//   shuffled(a, from)            each byte the one of its 16 that the lower bits of from's byte name, 0 where its top bit is
//                                set; only where P::permutes
//   pair_products(a, b)          of two Halves, signed: the sum of the products of both lanes of each pixel
//   trunc_dot(a, b, c, u, v, w)  a * u + b * v + c * w, signed, in doubles and in this order, truncated; what does not fit
//                                is 0x80000000
//   neighbour_sums(a, b)         of the 2 * lanes pixels a, b: each channel of every other pixel and of the one after it added,
//                                in an order that only from_sums(.first, .second) knows, which takes lanes of at most 255 back
//                                to bytes
//
// Pixels that memory holds in fewer than four bytes. Stores write exactly the bytes of their pixels, loads
// read no others.
//   P::load_halfwords(p)         one vector from two bytes a pixel, and P::load_triples(p) from three; the upper bytes are 0
//   halfwords(a, b)              the lower and the upper 16 bits of the 2 * lanes pixels a, b, in an order that only pixels()
//                                and store_halfwords know
//   pixels(halfwords)            .first and .second as they were
//   store_halfwords(p, half)     the lower or the upper ones
//   store_triples(p, a, b, c, d) the lower three bytes of 4 * lanes pixels
//   store_bytes(p, a, b, c, d)   the lowest byte; the upper ones must be 0
//   store_bits(p, a, b, c, d)    the top bit of the lowest byte, the first pixel in bit 7; the upper bytes must be 0. One
//                                pixel a vector fills half a byte, the other half is 0.
//
// Tables of bytes:
//   byte_tables<P>               whether look_up is worth while; without, it is one byte at a time
//   ByteTable<P>::load(p)        from 256 bytes
//   look_up(table, a)            the table's entry for each byte of a
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/weights.hpp"

#define TESSARO_INLINE [[gnu::always_inline]] inline

namespace {

template <class P>
struct Unzipped {
  P even, odd;
};

using tessaro::AlphaLine;

// The 2 * lanes pixels of two vectors, in their order.
template <class P>
struct Pair {
  P first, second;
};
template <class P>
struct Halfwords {
  P lower, upper;
};

// Single precision gives the lengths exactly: a float holds every sum below 2^24, and the root of one less
// than a square lies further below the integer than half a unit in the last place.
//
// The line is meant in doubles: the product is exact, the difference rounded once. Floats, rounded once and
// downwards, keep the same integer part but where doubles round to 256: 256 - x does for x up to 2^-46. That
// takes a tiny factor; scaled by 2^31, floats round at the same x. A factor that is not a number gives 0.
struct FallingLine {
  double factor;
  float start = 256, slope = 0;
  TESSARO_INLINE constexpr explicit FallingLine(float f) : factor(static_cast<double>(f)) {
    const bool tiny = f > 0 && f <= 0x1p-46f;
    start = tiny ? 256 + 0x1p-15f : 256;
    slope = tiny ? f * 0x1p31f : f;
  }
};

template <class H>
struct Paired {
  H first, second;
};

template <class P>
concept PixelVector = requires(P a, typename P::Half h, const void* in, void* out, size_t n,
                               const uint32_t* table) {
  { P::load(in) } -> std::same_as<P>;
  { P::load(in, n) } -> std::same_as<P>;
  a.store(out);
  a.store(out, n);
  a.stream(out);
  P::fence();
  { P::splat(0u) } -> std::same_as<P>;
  { kept(a) } -> std::same_as<P>;
  { add_sat(a, a) } -> std::same_as<P>;
  { sub_sat(a, a) } -> std::same_as<P>;
  { add(a, a) } -> std::same_as<P>;
  { sub(a, a) } -> std::same_as<P>;
  { min(a, a) } -> std::same_as<P>;
  { max(a, a) } -> std::same_as<P>;
  { difference(a, a) } -> std::same_as<P>;
  { (a & a) | (a ^ ~a) } -> std::same_as<P>;
  { and_not(a, a) } -> std::same_as<P>;
  { choose_bits(a, a, a) } -> std::same_as<P>;
  { shl<8>(shr<8>(a)) } -> std::same_as<P>;
  { shl(shr(a, 8), 8) } -> std::same_as<P>;
  { unzip(a, a).even } -> std::convertible_to<P>;
  { alphas(a) } -> std::same_as<P>;
  { with_alpha(a, a) } -> std::same_as<P>;
  { select(equal(a, a), a, a) } -> std::same_as<P>;
  { select(above(a, a), a, a) } -> std::same_as<P>;
  { P::bits(equal(a, a)) } -> std::same_as<uint32_t>;
  { join(even(a), odd(a)) } -> std::same_as<P>;
  { join(even_up<6>(a), odd_up<6>(a)) } -> std::same_as<P>;
  { join_sat(even(a), odd(a)) } -> std::same_as<P>;
  { join_high(even(a), odd(a)) } -> std::same_as<P>;
  { unpaired(paired(a, a).first, h) } -> std::same_as<P>;
  { whole(halves(a)) } -> std::same_as<P>;
  { alpha_halves(a) } -> std::same_as<typename P::Half>;
  { colour_sums<6>(a, 1, 1) } -> std::same_as<typename P::Half>;
  { lookup_alpha(a, table) } -> std::same_as<typename P::Half>;
  { ramp_alpha(a, AlphaLine{}) } -> std::same_as<typename P::Half>;
  { ((h + h) - (h * h)) | (h & h) } -> std::same_as<typename P::Half>;
  { min(max(h, h), P::Half::splat(1)) } -> std::same_as<typename P::Half>;
  { sum_in_byte(h, h) } -> std::same_as<typename P::Half>;
  { plus_equal(h, h) } -> std::same_as<typename P::Half>;
  { falling_weights(h, h, FallingLine{1.0f}) } -> std::same_as<typename P::Half>;
  { mul_high(h, h) } -> std::same_as<typename P::Half>;
  { mul_high_signed(h, h) } -> std::same_as<typename P::Half>;
  { shl<1>(shr<1>(h)) } -> std::same_as<typename P::Half>;
};

template <class P>
inline constexpr bool byte_tables = false;
template <class P>
struct ByteTable {
  uint8_t at[256];
  TESSARO_INLINE static ByteTable load(const uint8_t* from) {
    ByteTable table;
    std::memcpy(table.at, from, sizeof table.at);
    return table;
  }
};

template <class P>
concept MovingPixels = requires(P a, typename P::Half h, P (&rows)[P::lanes], const uint8_t* in) {
  { add32(a, a) } -> std::same_as<P>;
  { sub32(a, a) } -> std::same_as<P>;
  { reversed(a) } -> std::same_as<P>;
  transpose_square(rows);
  requires P::permutes || !P::permutes;
  { picked(a, a) } -> std::same_as<P>;
  { picked(a, a, a) } -> std::same_as<P>;
  { gather(in, a) } -> std::same_as<P>;
  { pair_products(h, h) } -> std::same_as<P>;
  { trunc_dot(a, a, a, 0.5, 0.5, 0.5) } -> std::same_as<P>;
  { from_sums(neighbour_sums(a, a).first, h) } -> std::same_as<P>;
};
template <class P>
concept PackedPixels = requires(P a, typename P::Half h, const uint8_t* in, uint8_t* out) {
  { P::load_halfwords(in) } -> std::same_as<P>;
  { P::load_triples(in) } -> std::same_as<P>;
  { pixels(halfwords(a, a)) } -> std::same_as<Pair<P>>;
  store_halfwords(out, h);
  store_triples(out, a, a, a, a);
  store_bytes(out, a, a, a, a);
  store_bits(out, a, a, a, a);
};
template <class P>
concept LookedUpBytes = requires(P a, const uint8_t* in) {
  { look_up(ByteTable<P>::load(in), a) } -> std::same_as<P>;
};

// The first n pixels, where n may be all lanes; lanes known at compile time to be all there are loaded whole.
template <class P>
TESSARO_INLINE P load_some(const uint8_t* at, size_t n) {
  return n == P::lanes ? P::load(at) : P::load(at, n);
}

}  // namespace
