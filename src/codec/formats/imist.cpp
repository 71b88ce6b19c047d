// imist: two pairs of bytes a pixel, blue and red, then green and alpha; a pair is sent as far as it differs
// from that of the pixel before.
#include "codec/stream/pixels.hpp"
#include "tessaro/codec.h"

namespace tessaro {
namespace {

constexpr uint32_t margin = 128;

// How a pair is sent: its mark and two fields of `width` bits. `keep` is what stays of the pair before; pairs
// stand in the bytes 0 and 2 of a word.
struct Form {
  uint8_t bits, width, mark;
  uint32_t keep;
};
constexpr uint32_t pair_bytes = 0x00FF00FF;
constexpr Form literal = {17, 8, 0b0, 0}, low5 = {12, 5, 0b10, 0x00E000E0},  //
    low3 = {9, 3, 0b110, 0x00F800F8}, same = {3, 0, 0b111, pair_bytes};
constexpr unsigned least_pair = 3;

// By the first three bits of a pair.
constexpr Form forms[8] = {literal, literal, literal, literal, low5, low5, low3, same};

constexpr uint64_t lengths = [] {
  uint64_t packed = 0;
  for (unsigned mark = 0; mark < 8; ++mark) packed |= uint64_t{forms[mark].bits} << 8 * mark;
  return packed;
}();

// The index of the form, by the bits that differ in either byte of a pair.
struct FormIndex {
  uint8_t of[256];
};
constexpr FormIndex form_index = [] {
  FormIndex index{};
  for (unsigned v = 0; v < 256; ++v) index.of[v] = v == 0 ? 7 : v < 8 ? 6 : v < 32 ? 4 : 0;
  return index;
}();

inline BitField code_pair(uint32_t pair, uint32_t changed) {
  const Form& form = forms[form_index.of[(changed | changed >> 16) & 0xFF]];
  const uint32_t sent = pair & pair_bytes & ~form.keep;
  return {uint32_t{form.mark} << 2 * form.width | (sent & 0xFF) << form.width | sent >> 16, form.bits};
}

template <class Source, class Need>
inline uint32_t decode_pair(BitReader<Source>& in, uint32_t before, Need need) {
  need(least_pair);
  const Form& form = forms[in.window() >> 61];
  // The next pair waits for this length: a shift gives it sooner than the table.
  const unsigned bits = lengths >> (in.window() >> 58 & 56) & 63;
  need(bits);
  const auto fields = static_cast<uint32_t>(in.window() >> (64 - bits));
  in.skip(bits);
  return (before & form.keep) | ((fields >> form.width | fields << 16) & pair_bytes & ~form.keep);
}

template <class Source>
int32_t decode(Source source, void* destination, uint32_t count) {
  return decode_pixels(source, destination, count, 2 * least_pair,
                       [](BitReader<Source>& in, uint32_t before, auto need) {
                         const uint32_t even = decode_pair(in, before, need);
                         return even | decode_pair(in, before >> 8, need) << 8;
                       });
}

}  // namespace
}  // namespace tessaro

using namespace tessaro;

extern "C" int32_t TESSARO_CALL imistEncoder(const void* source, void* destination, uint32_t length,
                                             uint32_t* written) {
  if (length <= margin) return 1;
  return encode_pixels(source, destination, length, written, margin, [](uint32_t pixel, uint32_t before) {
    return code_pair(pixel, pixel ^ before) + code_pair(pixel >> 8, (pixel ^ before) >> 8);
  });
}

extern "C" int32_t TESSARO_CALL imistDecoder(const void* stream, void* destination, uint32_t count) {
  return decode(Trusted(stream), destination, count);
}

extern "C" int32_t TESSARO_CALL imistDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                 uint32_t count) {
  return decode(Bounded(stream, stream_size), destination, count);
}
