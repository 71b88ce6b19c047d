// kernels: FormatKernels +avx512vbmi
#include "pixel/format.hpp"

#include "simd/rules.hpp"
#include "simd/walk.hpp"

namespace {

using tessaro::FormatKernels;

// Bits first..first + count - 1 of every pixel, moved up to bit `to`.
template <int first, int count, int to, class P>
TESSARO_INLINE P field_up(P a) {
  return shl<to - first>(a & P::splat(((1u << count) - 1) << first));
}

// The first n of 2 * lanes pixels.
template <class P>
TESSARO_INLINE Pair<P> load_pair(const uint8_t* at, size_t n) {
  constexpr size_t lanes = P::lanes;
  return {load_some<P>(at, n < lanes ? n : lanes),
          n > lanes ? load_some<P>(at + 4 * lanes, n - lanes) : P::splat(0)};
}

// The channels of a block apart, 16 bits each, in the order of Halfwords.
template <class P>
struct Apart {
  typename P::Half blue, green, red, alpha;
  // Colours are moved up by so many bits.
  template <int up = 0>
  TESSARO_INLINE static Apart of(Pair<P> a) {
    const Halfwords<P> w = halfwords(a.first, a.second);
    if constexpr (up == 0)
      return {even(w.lower), odd(w.lower), even(w.upper), odd(w.upper)};
    else
      return {even_up<up>(w.lower), odd_up<up>(w.lower), even_up<up>(w.upper), odd(w.upper)};
  }
  // In the upper bytes; the lower ones are not cleared.
  TESSARO_INLINE static Apart tops_of(Halfwords<P> w) {
    const auto lower = halves(w.lower), upper = halves(w.upper);
    return {shl<8>(lower), lower, shl<8>(upper), upper};
  }
  TESSARO_INLINE static Apart of_colour(uint32_t colour) {
    const auto byte = [colour](int at) { return P::Half::splat(colour >> at & 255); };
    return {byte(0), byte(8), byte(16), byte(24)};
  }
  // In the upper bytes.
  TESSARO_INLINE static Apart mixed(Apart d, Apart s, uint32_t weight) {
    const auto w = P::Half::splat(weight), rest = P::Half::splat(256 - weight);
    return {d.blue * rest + s.blue * w, d.green * rest + s.green * w, d.red * rest + s.red * w,
            d.alpha * rest + s.alpha * w};
  }
};

// One struct a format. Those of 16 bits encode channels in upper bytes, the others whole pixels, and give the
// packed value in the lower bytes; decode takes it from there.
struct As8888 {
  static constexpr size_t bytes = 4;
  template <class P>
  TESSARO_INLINE static P encode(P a) {
    return a;
  }
  template <class P>
  TESSARO_INLINE static P decode(P v) {
    return v;
  }
};
struct As888 : As8888 {
  static constexpr size_t bytes = 3;
};
// What the mask leaves of each lane moved down.
template <uint32_t mask, int down, class H>
TESSARO_INLINE H field(H top) {
  return shr<down>(top) & H::splat(mask);
}
struct As565 {
  static constexpr size_t bytes = 2;
  template <class P>
  TESSARO_INLINE static auto encode(Apart<P> a) {
    return shr<11>(a.blue) | field<0x07E0, 5>(a.green) | field<0xF800, 0>(a.red);
  }
  template <class P>
  TESSARO_INLINE static P decode(P v) {
    return field_up<0, 5, 3>(v) | field_up<5, 6, 10>(v) | field_up<11, 5, 19>(v);
  }
};
struct As555 {
  static constexpr size_t bytes = 2;
  template <class P>
  TESSARO_INLINE static auto encode(Apart<P> a) {
    return shr<11>(a.blue) | field<0x03E0, 6>(a.green) | field<0x7C00, 1>(a.red);
  }
  template <class P>
  TESSARO_INLINE static P decode(P v) {
    return field_up<0, 5, 3>(v) | field_up<5, 5, 11>(v) | field_up<10, 5, 19>(v);
  }
};
struct As1555 {
  static constexpr size_t bytes = 2;
  template <class P>
  TESSARO_INLINE static auto encode(Apart<P> a) {
    return As555::encode(a) | field<0x8000, 0>(a.alpha);
  }
  template <class P>
  TESSARO_INLINE static P decode(P v) {
    return As555::decode(v) | field_up<15, 1, 31>(v);
  }
};
struct As4444 {
  static constexpr size_t bytes = 2;
  template <class P>
  TESSARO_INLINE static auto encode(Apart<P> a) {
    return shr<12>(a.blue) | field<0x00F0, 8>(a.green) | field<0x0F00, 4>(a.red) | field<0xF000, 0>(a.alpha);
  }
  template <class P>
  TESSARO_INLINE static P decode(P v) {
    return field_up<0, 4, 4>(v) | field_up<4, 4, 12>(v) | field_up<8, 4, 20>(v) | field_up<12, 4, 28>(v);
  }
};
struct AsGray {  // hosts rely on the blue byte, not on a mean
  static constexpr size_t bytes = 1;
  template <class P>
  TESSARO_INLINE static P encode(P a) {
    return a & P::splat(255);
  }
};
struct AsAlpha {
  static constexpr size_t bytes = 1;
  template <class P>
  TESSARO_INLINE static P encode(P a) {
    return shr<24>(a);
  }
};

template <class Format>
TESSARO_INLINE void write_block(uint8_t* dst, Pair<Px> a, Pair<Px> b) {
  a = {Format::encode(a.first), Format::encode(a.second)};
  b = {Format::encode(b.first), Format::encode(b.second)};
  if constexpr (Format::bytes == 4) {
    a.first.store(dst);
    a.second.store(dst + 4 * Px::lanes);
    b.first.store(dst + 8 * Px::lanes);
    b.second.store(dst + 12 * Px::lanes);
  } else if constexpr (Format::bytes == 3) {
    store_triples(dst, a.first, a.second, b.first, b.second);
  } else {
    store_bytes(dst, a.first, a.second, b.first, b.second);
  }
}
template <class Format>
TESSARO_INLINE void write_block(uint8_t* dst, Apart<Px> a, Apart<Px> b) {
  store_halfwords(dst, Format::encode(a));
  store_halfwords(dst + 4 * Px::lanes, Format::encode(b));
}
template <class Format>
TESSARO_INLINE void write_one(uint8_t* dst, Pair<One> a) {
  store_one<Format::bytes>(dst, Format::encode(a.first));
}
template <class Format>
TESSARO_INLINE void write_one(uint8_t* dst, Apart<One> a) {
  store_one<2>(dst, One{Format::encode(a).v});
}

// read(P{}, x, n) gives the 2 * lanes pixels from number x on, of which n are there, as the format wants
// them.
template <class Format, class Read>
TESSARO_INLINE void encode_run(uint8_t* dst, size_t count, bool blocks, const Read& read) {
  constexpr size_t pair = 2 * Px::lanes, block = 2 * pair;
  size_t x = 0;
  if (!blocks || Px::lanes == 1) {
    for (; x < count; ++x) write_one<Format>(dst + Format::bytes * x, read(One{}, x, 1));
    return;
  }
  for (; x + block <= count; x += block)
    write_block<Format>(dst + Format::bytes * x, read(Px{}, x, pair), read(Px{}, x + pair, pair));
  if (const size_t rest = count - x) {
    uint8_t end[Format::bytes * block];
    write_block<Format>(end, read(Px{}, x, rest < pair ? rest : pair),
                        read(Px{}, x + pair, rest < pair ? 0 : rest - pair));
    std::memcpy(dst + Format::bytes * x, end, Format::bytes * rest);
  }
}

template <class Format>
inline constexpr bool of_words = Format::bytes == 2;

template <class Format>
void encode(uint8_t* dst, const uint8_t* src, size_t count) {
  encode_run<Format>(dst, count, may_read_ahead(dst, Format::bytes, src, 4, count),
                     [src]<class P>(P, size_t x, size_t n) {
                       const auto a = load_pair<P>(src + 4 * x, n);
                       if constexpr (of_words<Format>)
                         return Apart<P>::tops_of(halfwords(a.first, a.second));
                       else
                         return a;
                     });
}

// d and s, of which s has this weight of 256, as the format wants them.
template <class Format, class P>
TESSARO_INLINE auto mixed(Pair<P> d, Pair<P> s, uint32_t weight) {
  if constexpr (of_words<Format>) {
    return Apart<P>::mixed(Apart<P>::of(d), Apart<P>::of(s), weight);
  } else {
    const ConstantMix<P> mix(weight);
    return Pair<P>{mix(d.first, s.first), mix(d.second, s.second)};
  }
}

template <class Format>
void encode_mixed_with_colour(uint8_t* dst, const uint8_t* src, size_t count, uint32_t colour,
                              uint32_t weight) {
  encode_run<Format>(dst, count, may_read_ahead(dst, Format::bytes, src, 4, count),
                     [=]<class P>(P, size_t x, size_t n) {
                       const P c = P::splat(colour);
                       return mixed<Format>(Pair<P>{c, c}, load_pair<P>(src + 4 * x, n), weight);
                     });
}

template <class Format>
void encode_mixed(uint8_t* dst, const uint8_t* a, const uint8_t* b, size_t count, uint32_t weight) {
  encode_run<Format>(
      dst, count,
      may_read_ahead(dst, Format::bytes, a, 4, count) && may_read_ahead(dst, Format::bytes, b, 4, count),
      [=]<class P>(P, size_t x, size_t n) {
        return mixed<Format>(load_pair<P>(a + 4 * x, n), load_pair<P>(b + 4 * x, n), weight);
      });
}

void saturated(uint8_t* dst, const uint8_t* src, size_t count, tessaro::SaturationParts parts) {
  encode_run<As8888>(dst, count,
                     parts.channel_part <= saturation_limit && may_read_ahead(dst, 4, src, 4, count),
                     [=]<class P>(P, size_t x, size_t n) {
                       const Saturate<P> saturate{parts.channel_part, parts.sum_part};
                       const auto a = load_pair<P>(src + 4 * x, n);
                       return Pair<P>{saturate(a.first), saturate(a.second)};
                     });
}

// Saturation and mix of channels that are apart anyway.
template <class Format>
void encode_saturated(uint8_t* dst, const uint8_t* src, size_t count, tessaro::SaturationParts parts,
                      uint32_t colour, uint32_t weight) {
  encode_run<Format>(
      dst, count, parts.channel_part <= saturation_limit && may_read_ahead(dst, Format::bytes, src, 4, count),
      [=]<class P>(P, size_t x, size_t n) {
        const Saturate<P> saturate{parts.channel_part, parts.sum_part};
        auto a = load_pair<P>(src + 4 * x, n);
        if constexpr (P::lanes == 1) a.first = saturate(a.first);
        constexpr int up = P::lanes == 1 ? 0 : 5;
        auto c = Apart<P>::template of<up>(a);
        if constexpr (P::lanes > 1)
          saturate.apart(c.blue, c.green, c.red, [](auto c, auto grey) { return sum_in_byte(c, grey); });
        return Apart<P>::mixed(Apart<P>::of_colour(colour), c, weight);
      });
}

template <class Format, class P>
TESSARO_INLINE P decode_at(const uint8_t* src) {
  if constexpr (Format::bytes == 4)
    return P::load(src);
  else if constexpr (Format::bytes == 3)
    return Format::decode(P::load_triples(src));
  else
    return Format::decode(P::load_halfwords(src));
}

template <class Format>
void decode(uint8_t* dst, const uint8_t* src, size_t count) {
  constexpr size_t lanes = Px::lanes, bytes = Format::bytes;
  size_t x = 0;
  if (lanes == 1 || !may_read_ahead(dst, 4, src, bytes, count)) {
    for (; x < count; ++x) decode_at<Format, One>(src + bytes * x).store(dst + 4 * x);
    return;
  }
  for (; x + lanes <= count; x += lanes) decode_at<Format, Px>(src + bytes * x).store(dst + 4 * x);
  if (const size_t rest = count - x) {
    uint8_t end[4 * lanes] = {};
    std::memcpy(end, src + bytes * x, bytes * rest);
    decode_at<Format, Px>(end).store(dst + 4 * x, rest);
  }
}

// Packs whole blocks and returns how many pixels that were: a multiple of eight.
template <class P>
TESSARO_INLINE size_t blocks_to_bits(uint8_t* dst, const uint8_t* src, size_t count) {
  size_t x = 0;
  if constexpr (constexpr size_t lanes = P::lanes; lanes > 1)
    for (; x + 4 * lanes <= count; x += 4 * lanes) {
      const auto blue = [&](size_t at) { return AsGray::encode(P::load(src + 4 * (x + at))); };
      store_bits(dst + x / 8, blue(0), blue(lanes), blue(2 * lanes), blue(3 * lanes));
    }
  return x;
}

void to_bits(uint8_t* dst, const uint8_t* src, size_t count) {
  size_t x = may_read_ahead(dst, 1, src, 4, count) ? blocks_to_bits<Px>(dst, src, count) : 0;
  for (; x < count; x += 8) {
    const size_t rest = count - x < 8 ? count - x : 8;
    uint32_t bits = 0;
    for (size_t i = 0; i < rest; ++i) bits |= (src[4 * (x + i)] & 128u) >> i;
    dst[x / 8] = static_cast<uint8_t>(bits);
  }
}

void from_bits(uint8_t* dst, const uint8_t* src, size_t count, const uint8_t* palette) {
  for (size_t x = 0; x < count; x += 8) {
    const uint32_t bits = src[x / 8];
    const size_t rest = count - x < 8 ? count - x : 8;
    for (size_t i = 0; i < rest; ++i) std::memcpy(dst + 4 * (x + i), palette + 4 * (bits >> (7 - i) & 1), 4);
  }
}

void from_bytes(uint8_t* dst, const uint8_t* src, size_t count, const uint8_t* palette) {
  for (size_t x = 0; x < count; ++x) std::memcpy(dst + 4 * x, palette + 4 * src[x], 4);
}

void looked_up(uint8_t* dst, const uint8_t* src, size_t count, const uint8_t* table) {
  for (size_t x = 0; x < count; ++x) {
    const uint32_t v = One::load(src + 4 * x).v;
    One{table[v & 255] | static_cast<uint32_t>(table[256 + (v >> 8 & 255)]) << 8 |
        static_cast<uint32_t>(table[512 + (v >> 16 & 255)]) << 16 | (v & 0xFF000000)}
        .store(dst + 4 * x);
  }
}

// Tables that have been mixed with the colour, all in registers. Alpha, which has no table, is mixed pixel by
// pixel.
template <class P>
struct Curves {
  ByteTable<P> channel[3];
  typename P::Half weight, behind_alpha;
  TESSARO_INLINE Curves(const uint8_t* table, uint32_t colour, uint32_t w)
      : weight(P::Half::splat(w)), behind_alpha(P::Half::splat((colour >> 24) * (256 - w))) {
    const ConstantMix<P> mix(w);
    for (int c = 0; c < 3; ++c) {
      const P behind = P::splat(0x01010101 * (colour >> 8 * c & 255));
      uint8_t mixed[256];
      for (size_t i = 0; i < 256; i += 4 * P::lanes)
        mix(behind, P::load(table + 256 * c + i)).store(mixed + i);
      channel[c] = ByteTable<P>::load(mixed);
    }
  }
};

// Four vectors, of which n pixels are there.
template <class Format, bool saturates, class P>
TESSARO_INLINE void look_up_block(uint8_t* dst, const uint8_t* src, size_t n, const Curves<P>& curves,
                                  const Saturate<P>& saturate) {
  constexpr size_t pair = 2 * P::lanes;
  constexpr int up = saturates ? 5 : 0;
  auto a = Apart<P>::template of<up>(load_pair<P>(src, n < pair ? n : pair));
  auto b = Apart<P>::template of<up>(load_pair<P>(src + 4 * pair, n < pair ? 0 : n - pair));
  if constexpr (saturates) {
    const auto sum = [](typename P::Half c, typename P::Half grey) {
      return c + grey;
    };  // unpaired keeps within bytes
    saturate.apart(a.blue, a.green, a.red, sum);
    saturate.apart(b.blue, b.green, b.red, sum);
  }
  const P blue = look_up(curves.channel[0], unpaired(a.blue, b.blue));
  const P green = look_up(curves.channel[1], unpaired(a.green, b.green));
  const P red = look_up(curves.channel[2], unpaired(a.red, b.red));
  const auto lower = paired(blue, green), reds = paired(red, P::splat(0));
  const auto with_alpha = [&](typename P::Half r, typename P::Half alpha) {
    return choose_bits(P::splat(0xFF00FF00), whole(alpha * curves.weight + curves.behind_alpha), whole(r));
  };
  const Halfwords<P> first{whole(lower.first), with_alpha(reds.first, a.alpha)};
  const Halfwords<P> second{whole(lower.second), with_alpha(reds.second, b.alpha)};
  if constexpr (of_words<Format>)
    write_block<Format>(dst, Apart<P>::tops_of(first), Apart<P>::tops_of(second));
  else
    write_block<Format>(dst, pixels(first), pixels(second));
}

template <class Format, bool saturates, class P = Px>
void look_up_run(uint8_t* dst, const uint8_t* src, size_t count, tessaro::SaturationParts parts,
                 const uint8_t* table, uint32_t colour, uint32_t weight) {
  constexpr size_t block = 4 * P::lanes, bytes = Format::bytes;
  const Curves<P> curves(table, colour, weight);
  const Saturate<P> saturate{parts.channel_part, parts.sum_part};
  size_t x = 0;
  for (; x + block <= count; x += block)
    look_up_block<Format, saturates>(dst + bytes * x, src + 4 * x, block, curves, saturate);
  if (const size_t rest = count - x) {
    uint8_t end[bytes * block];
    look_up_block<Format, saturates>(end, src + 4 * x, rest, curves, saturate);
    std::memcpy(dst + bytes * x, end, bytes * rest);
  }
}

template <class Format>
bool encode_looked_up(uint8_t* dst, const uint8_t* src, size_t count, tessaro::SaturationParts parts,
                      const uint8_t* table, uint32_t colour, uint32_t weight) {
  constexpr size_t few = 16;  // pixels that are not worth the curves
  if (count < few || parts.channel_part > saturation_limit ||
      !may_read_ahead(dst, Format::bytes, src, 4, count))
    return false;
  const auto run = parts.channel_part == 1024 ? look_up_run<Format, false> : look_up_run<Format, true>;
  run(dst, src, count, parts, table, colour, weight);
  return true;
}
template <class Format>
constexpr FormatKernels::LookedUp with_curves() {
  if constexpr (byte_tables<Px>)
    return encode_looked_up<Format>;
  else
    return nullptr;
}

}  // namespace

#define TESSARO_EACH_FORMAT(f) \
  { f<As8888>, f<As888>, f<As565>, f<As555>, f<As1555>, f<As4444> }
TESSARO_KERNELS(FormatKernels){
    .to_gray = encode<AsGray>,
    .to_alpha = encode<AsAlpha>,
    .to_bits = to_bits,
    .to = TESSARO_EACH_FORMAT(encode),
    .from = TESSARO_EACH_FORMAT(decode),
    .mixed_with_colour = TESSARO_EACH_FORMAT(encode_mixed_with_colour),
    .mixed = TESSARO_EACH_FORMAT(encode_mixed),
    .saturated = saturated,
    .saturated_to = {nullptr, nullptr, encode_saturated<As565>, encode_saturated<As555>,
                     encode_saturated<As1555>, encode_saturated<As4444>},
    .from_bits = from_bits,
    .from_bytes = from_bytes,
    .looked_up = looked_up,
    .looked_up_to = {with_curves<As8888>(), with_curves<As888>(), with_curves<As565>(), with_curves<As555>(),
                     with_curves<As1555>(), with_curves<As4444>()},
};
