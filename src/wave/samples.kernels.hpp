// kernels: SampleKernels for scalar sse2 avx2 avx512
#include <immintrin.h>

#include "wave/samples.hpp"
#include "wave/stored.hpp"

namespace {

// ---- Packed samples of three bytes, which no compiler takes apart well

#if defined(__AVX2__)
constexpr size_t packed_lanes = 8;
TESSARO_INLINE __m256i packed_mask() { return _mm256_setr_epi32(-1, -1, -1, -1, -1, -1, 0, 0); }

TESSARO_INLINE void unpack(int32_t* out, const uint8_t* in) {
  const __m256i bytes = _mm256_maskload_epi32(reinterpret_cast<const int*>(in), packed_mask());
  const __m256i halves = _mm256_permutevar8x32_epi32(bytes, _mm256_setr_epi32(0, 1, 2, 2, 3, 4, 5, 5));
  const __m256i high =
      _mm256_shuffle_epi8(halves, _mm256_setr_epi8(-1, 0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1,
                                                   0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11));
  _mm256_storeu_si256(reinterpret_cast<__m256i*>(out), _mm256_srai_epi32(high, 8));
}
TESSARO_INLINE void pack(uint8_t* out, const int32_t* in) {
  const __m256i words = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(in));
  const __m256i halves =
      _mm256_shuffle_epi8(words, _mm256_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1, 0,
                                                  1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1));
  const __m256i bytes = _mm256_permutevar8x32_epi32(halves, _mm256_setr_epi32(0, 1, 2, 4, 5, 6, 7, 7));
  _mm256_maskstore_epi32(reinterpret_cast<int*>(out), packed_mask(), bytes);
}
#else
constexpr size_t packed_lanes = 1;
TESSARO_INLINE void unpack(int32_t* out, const uint8_t* in) { *out = S24::get(in); }
TESSARO_INLINE void pack(uint8_t* out, const int32_t* in) { S24::put(out, *in); }
#endif

constexpr size_t chunk = 512;  // long enough for what is stored to be settled before it is loaded wider

TESSARO_INLINE void get_chunk(int32_t* __restrict out, const uint8_t* __restrict in, size_t n, S24) {
  size_t i = 0;
  for (; i + packed_lanes <= n; i += packed_lanes) unpack(out + i, in + 3 * i);
  for (; i < n; ++i) out[i] = S24::get(in + 3 * i);
}
TESSARO_INLINE void put_chunk(uint8_t* __restrict out, const int32_t* __restrict in, size_t n, S24) {
  size_t i = 0;
  for (; i + packed_lanes <= n; i += packed_lanes) pack(out + 3 * i, in + i);
  for (; i < n; ++i) S24::put(out + 3 * i, in[i]);
}

// use(i, sample i)
template <class S, class Use>
TESSARO_INLINE void read_samples(const uint8_t* __restrict in, size_t n, Use use) {
  if constexpr (S::bytes == 3) {
    int32_t packed[chunk];
    for (size_t from = 0; from < n; from += chunk) {
      const size_t some = n - from < chunk ? n - from : chunk;
      get_chunk(packed, in + 3 * from, some, S24{});
      TESSARO_PARALLEL
      for (size_t i = 0; i < some; ++i) use(from + i, packed[i]);
    }
  } else {
    TESSARO_PARALLEL
    for (size_t i = 0; i < n; ++i) use(i, S::get(in + S::bytes * i));
  }
}
// sample i = rule(i)
template <class S, class Rule>
TESSARO_INLINE void write_samples(uint8_t* __restrict out, size_t n, Rule rule) {
  if constexpr (S::bytes == 3) {
    int32_t packed[chunk];
    for (size_t from = 0; from < n; from += chunk) {
      const size_t some = n - from < chunk ? n - from : chunk;
      TESSARO_PARALLEL
      for (size_t i = 0; i < some; ++i) packed[i] = rule(from + i);
      put_chunk(out + 3 * from, packed, some, S24{});
    }
  } else {
    TESSARO_PARALLEL
    for (size_t i = 0; i < n; ++i) S::put(out + S::bytes * i, rule(i));
  }
}

// ---- Readers and writers

template <class S>
void to16(I16* __restrict out, const uint8_t* __restrict in, size_t n) {
  read_samples<S>(in, n, [out](size_t i, int32_t s) { out[i] = static_cast<int16_t>(S::to16(s)); });
}
template <class S>
void to24(I32* __restrict out, const uint8_t* __restrict in, size_t n) {
  read_samples<S>(in, n, [out](size_t i, int32_t s) { out[i] = static_cast<int32_t>(S::to24(s)); });
}
template <class S>
void to64(F64* __restrict out, const uint8_t* __restrict in, size_t n) {
  read_samples<S>(in, n, [out](size_t i, auto s) { out[i] = S::to64(s); });
}
template <class S>
void from16(uint8_t* out, const I16* in, size_t n) {
  write_samples<S>(out, n, [in](size_t i) { return S::from16(in[i]); });
}
template <class S>
void from24(uint8_t* out, const I32* in, size_t n) {
  write_samples<S>(out, n, [in](size_t i) { return S::from24(in[i]); });
}
template <class S>
void from64(uint8_t* out, const F64* in, size_t n, double gain) {
  write_samples<S>(out, n, [=](size_t i) { return S::from64(to_unit(in[i] * gain)); });
}
template <class S>
void mean16(uint8_t* out, const I16* in, size_t n) {
  write_samples<S>(out, n, [in](size_t i) { return S::mean16(in[2 * i], in[2 * i + 1]); });
}
template <class S>
void mean24(uint8_t* out, const I32* in, size_t n) {
  write_samples<S>(out, n, [in](size_t i) { return S::mean24(in[2 * i], in[2 * i + 1]); });
}
template <class S>
void mean64(uint8_t* out, const F64* in, size_t n, double gain) {
  write_samples<S>(
      out, n, [=](size_t i) { return S::mean64(to_unit(in[2 * i] * gain), to_unit(in[2 * i + 1] * gain)); });
}
template <class T>
TESSARO_INLINE void pairs_of(T* __restrict pairs, const T* __restrict in, size_t n) {
  for (size_t i = 0; i < n; ++i) pairs[2 * i] = pairs[2 * i + 1] = in[i];
}
void pair16(int16_t* pairs, const int16_t* in, size_t n) { pairs_of(pairs, in, n); }
void pair24(int32_t* pairs, const int32_t* in, size_t n) { pairs_of(pairs, in, n); }
void pair64(double* pairs, const double* in, size_t n) { pairs_of(pairs, in, n); }

// ---- Operations

TESSARO_INLINE int16_t saturated16(int32_t v) {
  const int32_t low = v > -32768 ? v : -32768;
  return static_cast<int16_t>(low < 32767 ? low : 32767);
}

#define TESSARO_OPERATION(name, result)                        \
  void name(I16* d, const I16* s, size_t n, int32_t gain) {    \
    TESSARO_PARALLEL                                           \
    for (size_t i = 0; i < n; ++i) d[i] = saturated16(result); \
    static_cast<void>(gain);                                   \
  }
TESSARO_OPERATION(gain16, (s[i] * gain) >> 6)
TESSARO_OPERATION(add16, d[i] + ((s[i] * gain) >> 8))
TESSARO_OPERATION(sub16, d[i] - ((s[i] * gain) >> 8))
TESSARO_OPERATION(mul16, ((s[i] < 0 ? -s[i] : s[i]) * d[i]) >> 15)
TESSARO_OPERATION(xor16, d[i] ^ s[i])
#undef TESSARO_OPERATION

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

void gain24(int32_t* d, const int32_t* s, size_t n, int32_t gain) {
  TESSARO_PARALLEL
  for (size_t i = 0; i < n; ++i) {
    const int32_t v = (s[i] * gain) >> 6;  // at most 2^23 * 256
    const int32_t low = v > -8388608 ? v : -8388608;
    d[i] = low < 8388607 ? low : 8388607;
  }
}

void running16(int32_t* sums, const I16* in, size_t frames, size_t lanes) {
  if (lanes == 1) {
    for (size_t i = 0; i < frames; ++i) sums[i + 1] = plus(sums[i], in[i]);
    return;
  }
  __m128i sum = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(sums));
  for (size_t i = 0; i < frames; ++i) {
    int32_t pair;
    __builtin_memcpy(&pair, in + 2 * i, 4);
    const __m128i low = _mm_cvtsi32_si128(pair);
    sum = _mm_add_epi32(sum, _mm_srai_epi32(_mm_unpacklo_epi16(low, low), 16));
    _mm_storel_epi64(reinterpret_cast<__m128i*>(sums + 2 * i + 2), sum);
  }
}

void mean_of_span(I16* __restrict out, const int32_t* __restrict ahead, const int32_t* __restrict behind,
                  size_t n, int32_t span) {
  // Half an integer away from zero no quotient of a sum lies within 0.5 / span of the next integer, so that the
  // rounded reciprocal truncates as the division does.
  const double part = 1.0 / span;
  for (size_t i = 0; i < n; ++i) {
    const int32_t sum =
        static_cast<int32_t>(static_cast<uint32_t>(ahead[i]) - static_cast<uint32_t>(behind[i]));
    out[i] = static_cast<int16_t>(static_cast<int32_t>((sum + (sum < 0 ? -0.5 : 0.5)) * part));
  }
}

// Gains are added up frame by frame, rounded at every step. While they stay between two powers of two, where the
// spacing of the numbers is constant, every step adds the same amount, and frame i has the gain first + i * amount
// exactly. (Steps that fall halfway between two numbers add another amount once; that the first two are equal
// rules it out. A rounded step down to the power of two itself may end below, where numbers lie closer.)
typedef double Lanes __attribute__((vector_size(64)));  // four frames
typedef int32_t Whole __attribute__((vector_size(32)));

TESSARO_INLINE bool even_steps(const double gain[2], const double step[2], size_t frames, double amount[2],
                               double last[2]) {
  for (size_t lane = 0; lane < 2; ++lane) {
    const double a = gain[lane] + step[lane], b = a + step[lane];
    amount[lane] = b - a;
    if (!(a - gain[lane] == amount[lane])) return false;
    last[lane] = gain[lane] + amount[lane] * static_cast<double>(frames);
    uint64_t from, to;
    __builtin_memcpy(&from, gain + lane, 8);
    __builtin_memcpy(&to, last + lane, 8);
    if (from >> 52 != to >> 52 || (to << 12 == 0 && amount[lane] != step[lane])) return false;
  }
  return true;
}

// Calls four(i, gains) for frames i..i + 3 as far as that goes, and one(i, gain) for every other frame.
template <class Four, class One>
TESSARO_INLINE void ramp(size_t frames, double gain[2], const double step[2], Four four, One one) {
  double amount[2], last[2];
  size_t i = 0;
  if (even_steps(gain, step, frames, amount, last)) {
    const Lanes first = {gain[0], gain[1], gain[0], gain[1], gain[0], gain[1], gain[0], gain[1]};
    const Lanes grown = {amount[0], amount[1], amount[0], amount[1],
                         amount[0], amount[1], amount[0], amount[1]};
    Lanes index = {0, 0, 1, 1, 2, 2, 3, 3};
    for (; i + 4 <= frames; i += 4, index += 4.0) four(i, first + index * grown);
    for (size_t lane = 0; lane < 2; ++lane) gain[lane] += amount[lane] * static_cast<double>(i);
  }
  __m128d g = _mm_loadu_pd(gain);
  const __m128d d = _mm_loadu_pd(step);
  for (; i < frames; ++i, g = _mm_add_pd(g, d)) one(i, g);
  _mm_storeu_pd(gain, g);
}

void ramp24(int32_t* __restrict out, const int32_t* __restrict in, size_t frames, double gain[2],
            const double step[2]) {
  ramp(
      frames, gain, step,
      [=](size_t i, const Lanes& g) {
        Whole v;
        __builtin_memcpy(&v, in + 2 * i, sizeof v);
        // What does not fit in 32 bits becomes the smallest integer, as the processor's conversion gives it.
        v = __builtin_convertvector(__builtin_convertvector(v, Lanes) * g, Whole);
        __builtin_memcpy(out + 2 * i, &v, sizeof v);
      },
      [=](size_t i, __m128d g) {
        const __m128d v = _mm_cvtepi32_pd(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(in + 2 * i)));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(out + 2 * i), _mm_cvttpd_epi32(_mm_mul_pd(v, g)));
      });
}
void ramp64(double* __restrict out, const F64* __restrict in, size_t frames, double gain[2],
            const double step[2]) {
  ramp(
      frames, gain, step,
      [=](size_t i, const Lanes& g) {
        Lanes v;
        __builtin_memcpy(&v, in + 2 * i, sizeof v);
        v *= g;
        __builtin_memcpy(out + 2 * i, &v, sizeof v);
      },
      [=](size_t i, __m128d g) {
        _mm_storeu_pd(out + 2 * i, _mm_mul_pd(_mm_loadu_pd(reinterpret_cast<const double*>(in + 2 * i)), g));
      });
}

void peaks24(const int32_t* in, size_t frames, uint32_t bits[2]) {
  uint32_t left = 0, right = 0;
  for (size_t i = 0; i < frames; ++i) {
    const int32_t l = in[2 * i] < 0 ? -in[2 * i] : in[2 * i];
    const int32_t r = in[2 * i + 1] < 0 ? -in[2 * i + 1] : in[2 * i + 1];
    left |= static_cast<uint32_t>(l < 8388607 ? l : 8388607);
    right |= static_cast<uint32_t>(r < 8388607 ? r : 8388607);
  }
  bits[0] |= left & 0x700000;
  bits[1] |= right & 0x700000;
}

void peaks64(const F64* in, size_t frames, double low[2], double high[2]) {
  // Four frames at a time; comparisons in this form pass over what is not a number.
  Lanes lows = {}, highs = {};
  size_t i = 0;
  for (; i + 4 <= frames; i += 4) {
    Lanes v;
    __builtin_memcpy(&v, in + 2 * i, sizeof v);
    lows = v < lows ? v : lows;
    highs = v > highs ? v : highs;
  }
  for (; i < frames; ++i)
    for (size_t lane = 0; lane < 2; ++lane) {
      const double v = in[2 * i + lane];
      if (v < low[lane]) low[lane] = v;
      if (v > high[lane]) high[lane] = v;
    }
  for (size_t lane = 0; lane < 8; ++lane) {
    if (lows[lane] < low[lane & 1]) low[lane & 1] = lows[lane];
    if (highs[lane] > high[lane & 1]) high[lane & 1] = highs[lane];
  }
}

}  // namespace

TESSARO_KERNELS(SampleKernels){
    .to16 = {to16<S8>, to16<S16>, to16<S24>},
    .to24 = {to24<S8>, to24<S16>, to24<S24>},
    .to64 = {to64<S8>, to64<S16>, to64<S24>, to64<S64>},
    .from16 = {from16<S8>, from16<S16>, from16<S24>},
    .from24 = {from24<S8>, from24<S16>, from24<S24>},
    .from64 = {from64<S8>, from64<S16>, from64<S24>, from64<S64>},
    .mean16 = {mean16<S8>, mean16<S16>, mean16<S24>},
    .mean24 = {mean24<S8>, mean24<S16>, mean24<S24>},
    .mean64 = {mean64<S8>, mean64<S16>, mean64<S24>, mean64<S64>},
    .pair16 = pair16,
    .pair24 = pair24,
    .pair64 = pair64,
    .gain16 = gain16,
    .add16 = add16,
    .sub16 = sub16,
    .mul16 = mul16,
    .xor16 = xor16,
    .noise16 = noise16,
    .tone16 = tone16,
    .gain24 = gain24,
    .running16 = running16,
    .mean_of_span = mean_of_span,
    .ramp24 = ramp24,
    .ramp64 = ramp64,
    .peaks24 = peaks24,
    .peaks64 = peaks64,
};
