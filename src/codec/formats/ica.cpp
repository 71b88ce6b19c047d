// ica: pixels whose bytes are each sent whole or cut to their low bits, as a five-bit head says.
#include "codec/stream/bytes.hpp"
#include "codec/stream/pixels.hpp"
#include "tessaro/codec.h"

namespace tessaro {
namespace {

constexpr uint32_t margin = 128;
constexpr unsigned head_bits = 5;
constexpr unsigned repeat_head = 1;

// How a pixel with a given head stands in the stream: the place and the mask of each byte's field, counted
// from the end of the pixel's bits, and the bits that stay of the pixel before.
struct Form {
  uint8_t bits;
  uint8_t shift[4], mask[4];
  uint32_t keep;
};
struct Forms {
  Form of[32];
};
constexpr Forms forms = [] {
  Forms all{};
  for (unsigned head = 0; head < 32; ++head) {
    Form& form = all.of[head];
    unsigned bits = 0;
    for (unsigned k = 4; k-- > 0;) {
      const bool cut = head >> (k + 1) & 1;
      const unsigned width = head == repeat_head ? 0 : !cut ? 8 : head & 1 ? 3 : 5;
      const unsigned mask = (1u << width) - 1;
      form.shift[k] = static_cast<uint8_t>(bits);
      form.mask[k] = static_cast<uint8_t>(mask);
      form.keep |= (0xFF & ~mask) << 8 * k;
      bits += width;
    }
    form.bits = static_cast<uint8_t>(head_bits + bits);
  }
  return all;
}();

// A flag a byte pays by the bits that it saves: five where the top five bits stay, three where only the top
// three do.
struct HeadChoice {
  uint8_t of[256];  // by the flags of the top five bits, and above them those of the top three
};
constexpr HeadChoice head_choice = [] {
  HeadChoice choice{};
  for (unsigned top5 = 0; top5 < 16; ++top5)
    for (unsigned top3 = 0; top3 < 16; ++top3) {
      const bool by5 = 3 * bits_in(top3) < 5 * bits_in(top5);
      choice.of[top3 << 4 | top5] = static_cast<uint8_t>(by5 ? top5 << 1 | 1 : top3 << 1);
    }
  return choice;
}();

inline BitField code_pixel(uint32_t pixel, uint32_t before) {
  const uint32_t changed = pixel ^ before;
  if (changed == 0) return {repeat_head, head_bits};
  const unsigned top5 = zero_bytes(changed & 0xF8F8F8F8) & 15, top3 = zero_bytes(changed & 0xE0E0E0E0) & 15;
  const unsigned head = head_choice.of[top3 << 4 | top5];
  const Form& form = forms.of[head];
  uint64_t bits = uint64_t{head} << (form.bits - head_bits);
  for (unsigned k = 0; k < 4; ++k) bits |= uint64_t{pixel >> 8 * k & form.mask[k]} << form.shift[k];
  return {bits, form.bits};
}

template <class Source, class Need>
inline uint32_t decode_pixel(BitReader<Source>& in, uint32_t before, Need need) {
  need(head_bits);
  const Form& form = forms.of[in.window() >> (64 - head_bits)];
  need(form.bits);
  const uint64_t fields = in.window() >> (64 - form.bits);
  in.skip(form.bits);
  uint32_t sent = 0;
  for (unsigned k = 0; k < 4; ++k)
    sent |= (static_cast<uint32_t>(fields >> form.shift[k]) & form.mask[k]) << 8 * k;
  return (before & form.keep) | sent;
}

template <class Source>
int32_t decode(Source source, void* destination, uint32_t count) {
  return decode_pixels(
      source, destination, count, head_bits,
      [](BitReader<Source>& in, uint32_t before, auto need) { return decode_pixel(in, before, need); });
}

}  // namespace
}  // namespace tessaro

using namespace tessaro;

extern "C" int32_t TESSARO_CALL icaEncoder(const void* source, void* destination, uint32_t length,
                                           uint32_t* written) {
  if (length <= margin) return 1;
  return encode_pixels(source, destination, length, written, margin, code_pixel);
}

extern "C" int32_t TESSARO_CALL icaDecoder(const void* stream, void* destination, uint32_t count) {
  return decode(Trusted(stream), destination, count);
}

extern "C" int32_t TESSARO_CALL icaDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                               uint32_t count) {
  return decode(Bounded(stream, stream_size), destination, count);
}
