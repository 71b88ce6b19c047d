// i: pairs of bytes against the pair before: a 3-bit code and what it leaves open.
#include "codec/stream/bits.hpp"
#include "tessaro/codec.h"

namespace tessaro {
namespace {

constexpr uint32_t margin = 48;
constexpr uint32_t repeat = 7;  // the code of a pair that equals the one before

// What a code makes of a pair, held as a | b << 8: the bits that stay, whether the old b becomes a, and where
// in the window, with the code on top, the fields end.
struct Rule {
  uint16_t keep, b_field;
  uint8_t a_from_b, a_field;
  uint8_t a_end, b_end;
};
constexpr Rule rules[8] = {
    {0x0000, 0xFF00, 0x00, 0xFF, 11, 19},  // a, b
    {0xE000, 0x1F00, 0x00, 0xFF, 11, 16},  // a, low bits of b
    {0x00E0, 0xFF00, 0x00, 0x1F, 8, 16},   // low bits of a, b
    {0xE0E0, 0x1F00, 0x00, 0x1F, 8, 13},   // low bits of both
    {0x0000, 0xFF00, 0x00, 0xFF, 11, 11},  // a, b equals it
    {0x0000, 0xFF00, 0xFF, 0x00, 11, 11},  // b, a is the old b
    {0xFF00, 0x0000, 0x00, 0xFF, 11, 11},  // a, b stays
    {0xFFFF, 0x0000, 0x00, 0x00, 3, 3},    // both stay
};
// The bits of each code with its fields, a byte each, code 0 lowest: found by a shift, the length of one pair
// decides where the next begins as soon as possible. That chain is what bounds the decoder.
constexpr uint64_t lengths = 0x030B0B0B0D101013;

constexpr uint16_t apply(uint64_t window, uint16_t before) {
  const Rule& rule = rules[window >> 61];
  return static_cast<uint16_t>((before & rule.keep) | (before >> 8 & rule.a_from_b) |
                               (window >> (64 - rule.a_end) & rule.a_field) |
                               (window >> (56 - rule.b_end) & rule.b_field));
}
constexpr unsigned length_of(uint64_t window) {
  return static_cast<unsigned>(lengths >> (window >> 58 & 56)) & 63;
}

template <class Source>
int32_t decode(Source source, void* destination, uint32_t count) {
  if (count == 0) return 1;
  BitReader<Source> in(source);
  auto* out = static_cast<uint8_t*>(destination);
  uint16_t pair = 0;
  uint32_t left = count;
  // A pair costs at least 3 bits: so much of the stream is sure to be there.
  while (left >= 8 && in.can_refill(uint64_t{left / 2} * 3)) {
    in.refill();
    if (~in.window() >> 52 == 0) {  // four repeats and more
      auto run = static_cast<unsigned>(__builtin_clzll(~in.window() | 0xFF)) / 12;
      run = run < left / 8 ? run : left / 8;
      in.skip(run * 12);
      left -= run * 8;
      for (; run != 0; --run, out += 8) store(out, pair * 0x0001000100010001u);
    } else {
      pair = apply(in.window(), pair);
      store(out, pair);
      in.skip(length_of(in.window()));
      pair = apply(in.window(), pair);
      store(out + 2, pair);
      in.skip(length_of(in.window()));
      out += 4;
      left -= 4;
    }
  }
  while (left != 0) {
    in.need(3);
    in.need(length_of(in.window()));
    pair = apply(in.window(), pair);
    in.skip(length_of(in.window()));
    if (in.ran_out()) return 1;
    const unsigned n = left < 2 ? left : 2;
    std::memcpy(out, &pair, n);
    out += n;
    left -= n;
  }
  return 0;
}

// The code and fields of a pair.
inline BitField code_of(uint32_t a, uint32_t b, uint32_t a_before, uint32_t b_before) {
  const bool a_near = ((a ^ a_before) & 0xE0) == 0, b_near = ((b ^ b_before) & 0xE0) == 0;
  const unsigned a_width = a_near ? 5 : 8, b_width = b_near ? 5 : 8;
  const uint32_t a_bits = a_near ? a & 31 : a, b_bits = b_near ? b & 31 : b;
  BitField code{(2u * a_near + b_near) << (a_width + b_width) | a_bits << b_width | b_bits,
                3 + a_width + b_width};
  if (a == b) code = {4u << 8 | a, 11};
  if (a == b_before) code = {5u << 8 | b, 11};
  if (b == b_before) code = {6u << 8 | a, 11};
  if (a == a_before && b == b_before) code = {repeat, 3};
  return code;
}

}  // namespace
}  // namespace tessaro

using namespace tessaro;

extern "C" int32_t TESSARO_CALL iEncoder(const void* source, void* destination, uint32_t length,
                                         uint32_t* written) {
  if (length <= margin) return 1;
  const auto* in = static_cast<const uint8_t*>(source);
  const uint32_t limit = length - margin;
  BitWriter out(static_cast<uint8_t*>(destination));
  uint32_t a_before = 0, b_before = 0;
  const auto put = [&](uint32_t a, uint32_t b) {
    out.put(code_of(a, b, a_before, b_before));
    a_before = a;
    b_before = b;
  };
  uint32_t left = length;
  for (; left >= 8 && out.written() + 16 < limit; left -= 8, in += 8) {  // four pairs cannot reach the limit
    const auto pairs = load<uint64_t>(in);
    if (pairs == (a_before | b_before << 8) * 0x0001000100010001u) {
      out.put(0xFFF, 12);
    } else {
      for (int k = 0; k < 8; k += 2) put(in[k], in[k + 1]);
    }
  }
  while (left != 0) {
    const unsigned n = left < 2 ? left : 2;
    put(in[0], n == 2 ? in[1] : 0);
    if (out.written() >= limit) {
      store(written, out.written());
      return 1;
    }
    in += n;
    left -= n;
  }
  out.flush();
  store(written, out.written());
  return out.written() >= limit;
}

extern "C" int32_t TESSARO_CALL iDecoder(const void* stream, void* destination, uint32_t count) {
  return decode(Trusted(stream), destination, count);
}

extern "C" int32_t TESSARO_CALL iDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                             uint32_t count) {
  return decode(Bounded(stream, stream_size), destination, count);
}
