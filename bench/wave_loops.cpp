#include "wave_loops.hpp"

#include <algorithm>
#include <cstdlib>

namespace tessaro::bench {
namespace {

struct S8 {
  static constexpr size_t bytes = 1;
  static constexpr int bits = 8;
  static constexpr double unit = 127;
  static int get(const uint8_t* p) { return *p - 128; }
  static void put(uint8_t* p, int v) { *p = static_cast<uint8_t>(v + 128); }
};
struct S16 {
  static constexpr size_t bytes = 2;
  static constexpr int bits = 16;
  static constexpr double unit = 32767;
  static int get(const uint8_t* p) { return *reinterpret_cast<const int16_t*>(p); }
  static void put(uint8_t* p, int v) { *reinterpret_cast<int16_t*>(p) = static_cast<int16_t>(v); }
};
struct S24 {
  static constexpr size_t bytes = 3;
  static constexpr int bits = 24;
  static constexpr double unit = 8388607;
  static int get(const uint8_t* p) { return p[0] | p[1] << 8 | static_cast<int8_t>(p[2]) * 65536; }
  static void put(uint8_t* p, int v) {
    p[0] = static_cast<uint8_t>(v);
    p[1] = static_cast<uint8_t>(v >> 8);
    p[2] = static_cast<uint8_t>(v >> 16);
  }
};
struct S64 {
  static constexpr size_t bytes = 8;
};

template <class S>
double real(const uint8_t* p) {
  if constexpr (S::bytes == 8)
    return *reinterpret_cast<const double*>(p);
  else
    return S::get(p) * (1 / S::unit);
}
template <class S>
void put_real(uint8_t* p, double v) {
  v = std::min(std::max(v, -1.0), 1.0);
  if constexpr (S::bytes == 8)
    *reinterpret_cast<double*>(p) = v;
  else
    S::put(p, static_cast<int>(v * S::unit));
}

// dst = f(dst, src) in integers of `depth` bits; a format is shifted there and back.
template <class S, int depth, class F>
void integers(uint8_t* __restrict d, const uint8_t* __restrict s, size_t n, F f) {
  const auto scaled = [](int v) {
    return depth >= S::bits ? v * (1 << std::max(depth - S::bits, 0)) : v >> std::max(S::bits - depth, 0);
  };
  for (size_t i = 0; i < n; ++i) {
    const int v = f(scaled(S::get(d + S::bytes * i)), scaled(S::get(s + S::bytes * i)));
    const int limited = std::min(std::max(v, -(1 << (depth - 1))), (1 << (depth - 1)) - 1);
    S::put(d + S::bytes * i, depth >= S::bits ? limited >> std::max(depth - S::bits, 0)
                                              : limited * (1 << std::max(S::bits - depth, 0)));
  }
}
template <class S>
void reals(uint8_t* __restrict d, const uint8_t* __restrict s, size_t n, double gain) {
  for (size_t i = 0; i < n; ++i) put_real<S>(d + S::bytes * i, real<S>(s + S::bytes * i) * gain);
}

// The peaks of both channels, then both channels times gains that grow.
template <class S>
void maximize24(uint8_t* d, const uint8_t*, size_t n) {
  int peak[2] = {};
  for (size_t i = 0; i < n; i += 2)
    for (size_t c = 0; c < 2; ++c) peak[c] |= std::abs(S::get(d + S::bytes * (i + c)));
  double gain[2] = {1, 1};
  const double step[2] = {1e-7 * (peak[0] & 7), 1e-7 * (peak[1] & 7)};
  constexpr int up = 1 << (24 - S::bits);
  for (size_t i = 0; i < n; i += 2)
    for (size_t c = 0; c < 2; ++c, gain[c & 1] += step[c & 1]) {
      uint8_t* p = d + S::bytes * (i + c);
      S::put(p, static_cast<int>(S::get(p) * up * gain[c]) >> (24 - S::bits));
    }
}
template <class S>
void maximize64(uint8_t* __restrict d, const uint8_t* __restrict s, size_t n) {
  double peak[2] = {};
  for (size_t i = 0; i < n; i += 2)
    for (size_t c = 0; c < 2; ++c) peak[c] = std::max(peak[c], std::abs(real<S>(s + S::bytes * (i + c))));
  double gain[2] = {1, 1};
  const double step[2] = {1e-7 * peak[0], 1e-7 * peak[1]};
  for (size_t i = 0; i < n; i += 2)
    for (size_t c = 0; c < 2; ++c, gain[c & 1] += step[c & 1])
      put_real<S>(d + S::bytes * (i + c), real<S>(s + S::bytes * (i + c)) * gain[c]);
}

using Bytes = uint8_t* __restrict;
using In = const uint8_t* __restrict;

// S is what the integer scales take the format for, R what the real scale does.
template <class S, class R>
constexpr WaveLoops loops{
    [](Bytes d, In s, size_t n) { integers<S, 24>(d, s, n, [](int, int b) { return b * 51 >> 6; }); },
    [](Bytes d, In s, size_t n) { integers<S, 16>(d, s, n, [](int, int b) { return b; }); },
    [](Bytes d, In s, size_t n) { reals<R>(d, s, n, 1); },
    [](Bytes d, In s, size_t n) {
      integers<S, 16>(d, s, n, [](int a, int b) { return a + (b * 204 >> 8); });
    },
    [](Bytes d, In s, size_t n) {
      integers<S, 16>(d, s, n, [](int a, int b) { return a - (b * 204 >> 8); });
    },
    [](Bytes d, In s, size_t n) {
      integers<S, 16>(d, s, n, [](int a, int b) { return std::abs(b) * a >> 15; });
    },
    [](Bytes d, In s, size_t n) { reals<R>(d, s, n, 0.9); },
    maximize24<S>,
    maximize64<R>};

}  // namespace

WaveLoops wave_loops(int bits) {
  return bits == 8    ? loops<S8, S8>
         : bits == 16 ? loops<S16, S16>
         : bits == 24 ? loops<S24, S24>
                      : loops<S24, S64>;
}

}  // namespace tessaro::bench
