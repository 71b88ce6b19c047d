// kernels: SampleKernels
#include "wave/samples.hpp"

#include "wave/eights.hpp"

namespace {

template <class D, class S>
constexpr bool packed = D::bytes == 3 || S::bytes == 3;

// out = rule(in), sample by sample: in vectors of eight, where there are any, for doubles and for packed
// samples of three bytes, which no compiler takes apart well.
template <class D, class S, bool vectors = packed<D, S>, class Rule>
TESSARO_INLINE void each_sample(uint8_t* out, const uint8_t* in, size_t n, Rule rule) {
  size_t i = 0;
  if constexpr (vectors && eights)
    for (; i + 8 <= n; i += 8) write8<D>(out + D::bytes * i, rule(read8<S>(in + S::bytes * i)));
  TESSARO_PARALLEL
  for (; i < n; ++i) D::put(out + D::bytes * i, rule(S::get(in + S::bytes * i)));
}
// d = rule(d, s)
template <class S, class Rule>
TESSARO_INLINE void each_pair(uint8_t* d, const uint8_t* s, size_t n, Rule rule) {
  size_t i = 0;
  if constexpr (S::bytes == 3 && eights)
    for (; i + 8 <= n; i += 8) write8<S>(d + 3 * i, rule(read8<S>(d + 3 * i), read8<S>(s + 3 * i)));
  TESSARO_PARALLEL
  for (; i < n; ++i) S::put(d + S::bytes * i, rule(S::get(d + S::bytes * i), S::get(s + S::bytes * i)));
}
// out = rule(left, right) of pairs
template <class D, class S, class Rule>
TESSARO_INLINE void each_mean(uint8_t* __restrict out, const uint8_t* __restrict pairs, size_t n, Rule rule) {
  size_t i = 0;
  if constexpr (D::bytes == 3 && S::bytes < 8 && eights)
    for (; i + 8 <= n; i += 8) {
      const auto a = read8<S>(pairs + 2 * S::bytes * i), b = read8<S>(pairs + 2 * S::bytes * (i + 4));
      write8<D>(out + 3 * i, rule(__builtin_shufflevector(a, b, 0, 2, 4, 6, 8, 10, 12, 14),
                                  __builtin_shufflevector(a, b, 1, 3, 5, 7, 9, 11, 13, 15)));
    }
  TESSARO_PARALLEL
  for (; i < n; ++i)
    D::put(out + D::bytes * i,
           rule(S::get(pairs + 2 * S::bytes * i), S::get(pairs + S::bytes * (2 * i + 1))));
}

// ---- Readers and writers

template <class S>
void to16(int16_t* out, const uint8_t* in, size_t n) {
  each_sample<S16, S>(bytes_of(out), in, n, [](auto s) { return S::to16(s); });
}
template <class S>
void to24(int32_t* out, const uint8_t* in, size_t n) {
  each_sample<Value24, S>(bytes_of(out), in, n, [](auto s) { return S::to24(s); });
}
template <class S>
void to64(double* out, const uint8_t* in, size_t n) {
  each_sample<S64, S>(bytes_of(out), in, n, [](auto s) { return S::to64(s); });
}
template <class S>
void from16(uint8_t* out, const int16_t* in, size_t n) {
  each_sample<S, S16>(out, bytes_of(in), n, [](auto v) { return S::from16(v); });
}
template <class S>
void from24(uint8_t* out, const int32_t* in, size_t n) {
  each_sample<S, Value24>(out, bytes_of(in), n, [](auto v) { return S::from24(v); });
}
template <class S>
void mean16(uint8_t* out, const int16_t* in, size_t n) {
  each_mean<S, S16>(out, bytes_of(in), n, [](auto l, auto r) { return S::mean16(l, r); });
}
template <class S>
void mean24(uint8_t* out, const int32_t* in, size_t n) {
  each_mean<S, Value24>(out, bytes_of(in), n, [](auto l, auto r) { return S::mean24(l, r); });
}
template <class S>
void mean64(uint8_t* out, const double* in, size_t n, double gain) {
  each_mean<S, S64>(out, bytes_of(in), n,
                    [=](auto l, auto r) { return S::mean64(to_unit(l * gain), to_unit(r * gain)); });
}
// One stored form to another through the float scale.
template <class D, class S>
void scale64(uint8_t* out, const uint8_t* in, size_t n, double gain) {
  each_sample<D, S, true>(out, in, n, [=](auto s) {
    if constexpr (D::bytes < 8 && S::bytes < 8)
      return limited_code<D>(S::to64(s) * gain);
    else
      return D::from64(to_unit(S::to64(s) * gain));
  });
}
template <class T>
TESSARO_INLINE void pairs_of(T* __restrict pairs, const T* __restrict in, size_t n) {
  for (size_t i = 0; i < n; ++i) pairs[2 * i] = pairs[2 * i + 1] = in[i];
}
void pair16(int16_t* pairs, const int16_t* in, size_t n) { pairs_of(pairs, in, n); }
void pair24(int32_t* pairs, const int32_t* in, size_t n) { pairs_of(pairs, in, n); }
void pair64(double* pairs, const double* in, size_t n) { pairs_of(pairs, in, n); }

// ---- Operations on samples of one stored form

TESSARO_INLINE int16_t saturated16(int32_t v) { return static_cast<int16_t>(limited(v, -32768, 32767)); }

// The lowest 8 bits of 8-bit samples are 0 at the 16-bit scale and dropped on the way back: what is saturated
// there can as well be saturated in 8 bits, which leaves room for twice as many in a vector.
template <class S>
constexpr int depth = S::bytes == 1 ? 8 : 16;
template <class S>
TESSARO_INLINE auto shallow(auto s) {
  return S::bytes == 3 ? s >> 8 : s;
}
template <class S>
TESSARO_INLINE auto stored(auto v) {
  if constexpr (S::bytes == 1)
    return v + 128;
  else if constexpr (S::bytes == 3)
    return v * 256;
  else
    return v;
}
template <class S>
TESSARO_INLINE auto saturated(auto v) {
  return limited(v, -(1 << (depth<S> - 1)), (1 << (depth<S> - 1)) - 1);
}
// (s * gain) >> 8
template <class S>
TESSARO_INLINE auto scaled(auto s, int32_t gain) {
  if constexpr (S::bytes == 1)  // the upper half of a product of 16 bits
    return static_cast<int16_t>((static_cast<int16_t>(s * 256) * static_cast<int16_t>(gain)) >> 16);
  else
    return (s * gain) >> 8;
}

#define TESSARO_OPERATION(name, result)                             \
  template <class S>                                                \
  void name(uint8_t* d, const uint8_t* s, size_t n, int32_t gain) { \
    static_cast<void>(gain);                                        \
    each_pair<S>(d, s, n, [=](auto to, auto from) {                 \
      const auto a = shallow<S>(from), b = shallow<S>(to);          \
      static_cast<void>(b);                                         \
      return stored<S>(result);                                     \
    });                                                             \
  }
TESSARO_OPERATION(copy16, a)
TESSARO_OPERATION(gain16, saturated<S>(scaled<S>(a, 4 * gain)))
TESSARO_OPERATION(add16, saturated<S>(b + scaled<S>(a, gain)))
TESSARO_OPERATION(subtract16, saturated<S>(b - scaled<S>(a, gain)))
TESSARO_OPERATION(mul16, (magnitude(a) * b) >> (depth<S> - 1))
TESSARO_OPERATION(xor16, a ^ b)
#undef TESSARO_OPERATION

// In 8 bits a difference is what is rounded, not the product that is taken away.
template <class S>
void sub16(uint8_t* d, const uint8_t* s, size_t n, int32_t gain) {
  S::bytes == 1 ? add16<S>(d, s, n, -gain) : subtract16<S>(d, s, n, gain);
}

template <class S>
void gain24(uint8_t* d, const uint8_t* s, size_t n, int32_t gain) {
  each_sample<S, S>(d, s, n, [=](auto v) { return limited((v * gain) >> 6, -8388608, 8388607); });
}

// Integers times a gain through the float scale, without it: the short ones in 16 bits, comparisons and all,
// so that a vector holds many.
template <class S>
void times64(uint8_t* out, const uint8_t* in, size_t n, const tessaro::Multiplier& multiplier) {
  const tessaro::Multiplier m = multiplier;
  if constexpr (S::bytes == 3)
    return each_sample<S, S>(out, in, n,
                             [=](auto s) { return limited(truncated(real(s) * m.gain), -S::unit, S::unit); });
  else
    each_sample<S, S>(out, in, n, [=](int32_t s) {
      const auto narrow = static_cast<int16_t>(s), sign = static_cast<int16_t>(narrow >> 15);
      const auto size = static_cast<uint16_t>(magnitude(narrow));
      const auto a = static_cast<uint16_t>(size < m.most ? size : m.most);
      auto product = static_cast<uint16_t>(a * m.whole + (a * static_cast<uint32_t>(m.high) >> 16));
      if constexpr (S::bytes == 2) {  // 8 bits need no more than the upper part of the fraction
        const auto part = static_cast<uint16_t>(a * static_cast<uint32_t>(m.high));
        const auto sum = static_cast<uint16_t>(part + (a * static_cast<uint32_t>(m.low) >> 16));
        product = static_cast<uint16_t>(product + (sum < part));
      }
      const auto code = static_cast<int16_t>(product < S::unit ? product : S::unit);
      return stored<S>(static_cast<int16_t>((code ^ sign) - sign));
    });
}

// To the float scale and back, where the two roundings lose one unit of a few codes: those whose highest bit
// stands `distance` places above their lowest one, with a 0 next to that. The distance is 4 for 8 bits, 8 for
// 16 and 7 for 24, of which 12, 448 and 512 positive codes are such. In integers of the form's size, sign and
// all; there are no shifts of bytes.
template <class I, class U, int distance>
TESSARO_INLINE I returned(int32_t s, int32_t most) {
  const auto sign = static_cast<I>(static_cast<I>(s) >> (8 * sizeof(I) - 1));
  const auto a = static_cast<U>((static_cast<I>(s) ^ sign) - sign);
  const auto lowest = static_cast<U>(a & (~a + 1)), twice = static_cast<U>(lowest + lowest);
  U from = lowest;
  for (int i = 0; i < distance; ++i) from = static_cast<U>(from + from);
  const auto above = static_cast<U>(a - from), next = static_cast<U>(a & twice);
  const auto kept = static_cast<U>(a - static_cast<U>((above < from) & (next == 0)));
  const U code = kept < most ? kept : static_cast<U>(most);
  return static_cast<I>((code ^ static_cast<U>(sign)) - static_cast<U>(sign));
}
template <class S>
void unit64(uint8_t* out, const uint8_t* in, size_t n) {
  if constexpr (S::bytes == 3) {
    const auto rule = [](auto s) { return limited(S::from64(S::to64(s)), -S::unit, S::unit); };
    size_t i = 0;
    // A vector that may hold a code that changes is a rarity: one whose highest bit stands at most 7 places
    // above the lowest, which makes the difference negative, or one above unit.
    for (; eights && i + 8 <= n; i += 8) {
      const Whole s = read8<S>(in + 3 * i), a = magnitude(s), lowest = a & -a;
      const Natural doubt = (natural(a) - (natural(lowest) << 8)) | natural(S::unit - a);
      if (!any_negative(doubt)) [[likely]]
        __builtin_memcpy(out + 3 * i, in + 3 * i, 24);
      else
        write8<S>(out + 3 * i, rule(s));
    }
    each_sample<S, S>(out + 3 * i, in + 3 * i, n - i, rule);
  } else {
    each_sample<S, S>(out, in, n, [](int32_t s) {
      if constexpr (S::bytes == 1)
        return stored<S>(returned<int8_t, uint8_t, 4>(s, S::unit));
      else
        return returned<int16_t, uint16_t, 8>(s, S::unit);
    });
  }
}

void noise16(I16* d, const I16* s, size_t n, const uint32_t* noise, int32_t amount) {
  TESSARO_PARALLEL
  for (size_t i = 0; i < n; ++i)
    d[i] = saturated16(s[i] + (((static_cast<int32_t>(noise[i] & 65535) - 32768) * amount) >> 8));
}

void tone16(I16* d, const I16* s, size_t frames, size_t lanes, const int32_t* tone) {
  if (lanes == 1) {
    TESSARO_PARALLEL
    for (size_t i = 0; i < frames; ++i) d[i] = saturated16(s[i] + tone[i]);
  } else {
    TESSARO_PARALLEL
    for (size_t i = 0; i < frames; ++i) {
      d[2 * i] = saturated16(s[2 * i] + tone[i]);
      d[2 * i + 1] = saturated16(s[2 * i + 1] + tone[i]);
    }
  }
}

void running16(int32_t* sums, const I16* in, size_t frames, size_t lanes) {
  if (lanes == 1) {
    for (size_t i = 0; i < frames; ++i) sums[i + 1] = plus<int32_t>(sums[i], in[i]);
    return;
  }
  // Both channels in the low half of a vector: a frame doubled to l l r r, as 32-bit numbers, is shifted
  // down.
  Int4 sum = reinterpret_cast<Int4>(Long2{get<int64_t>(sums), 0});
  for (size_t i = 0; i < frames; ++i) {
    const auto low = reinterpret_cast<Short8>(Int4{get<int32_t>(in + 2 * i), 0, 0, 0});
    sum += reinterpret_cast<Int4>(__builtin_shufflevector(low, low, 0, 0, 1, 1, 2, 2, 3, 3)) >> 16;
    put<int64_t>(sums + 2 * i + 2, reinterpret_cast<Long2>(sum)[0]);
  }
}

void mean_of_span(I16* __restrict out, const int32_t* __restrict ahead, const int32_t* __restrict behind,
                  size_t n, int32_t span) {
  // Half an integer away from zero no quotient of a sum lies within 0.5 / span of the next integer, so that
  // the rounded reciprocal truncates as the division does.
  const double part = 1.0 / span;
  for (size_t i = 0; i < n; ++i) {
    const int32_t sum =
        static_cast<int32_t>(static_cast<uint32_t>(ahead[i]) - static_cast<uint32_t>(behind[i]));
    out[i] = static_cast<int16_t>(static_cast<int32_t>((sum + (sum < 0 ? -0.5 : 0.5)) * part));
  }
}

}  // namespace

#define TESSARO_INTEGER_FORMS(f) \
  { f<S8>, f<S16>, f<S24> }
TESSARO_KERNELS(SampleKernels){
    .to16 = TESSARO_INTEGER_FORMS(to16),
    .to24 = TESSARO_INTEGER_FORMS(to24),
    .to64 = {to64<S8>, to64<S16>, to64<S24>, to64<S64>},
    .from16 = TESSARO_INTEGER_FORMS(from16),
    .from24 = TESSARO_INTEGER_FORMS(from24),
    .mean16 = TESSARO_INTEGER_FORMS(mean16),
    .mean24 = TESSARO_INTEGER_FORMS(mean24),
    .mean64 = {mean64<S8>, mean64<S16>, mean64<S24>, mean64<S64>},
    .scale64 = {{scale64<S8, S8>, scale64<S8, S16>, scale64<S8, S24>, scale64<S8, S64>},
                {scale64<S16, S8>, scale64<S16, S16>, scale64<S16, S24>, scale64<S16, S64>},
                {scale64<S24, S8>, scale64<S24, S16>, scale64<S24, S24>, scale64<S24, S64>},
                {scale64<S64, S8>, scale64<S64, S16>, scale64<S64, S24>, scale64<S64, S64>}},
    .times64 = TESSARO_INTEGER_FORMS(times64),
    .unit64 = TESSARO_INTEGER_FORMS(unit64),
    .pair16 = pair16,
    .pair24 = pair24,
    .pair64 = pair64,
    .copy16 = TESSARO_INTEGER_FORMS(copy16),
    .add16 = TESSARO_INTEGER_FORMS(add16),
    .sub16 = TESSARO_INTEGER_FORMS(sub16),
    .mul16 = TESSARO_INTEGER_FORMS(mul16),
    .xor16 = TESSARO_INTEGER_FORMS(xor16),
    .gain24 = {gain16<S8>, gain16<S16>, gain24<S24>, gain24<Value24>},
    .noise16 = noise16,
    .tone16 = tone16,
    .running16 = running16,
    .mean_of_span = mean_of_span,
};
