// Waveform operations one frame after another, written down naively, on buffers in one block of memory.
#pragma once

#include <algorithm>
#include <cmath>
#include <functional>

#include "support/images.hpp"

namespace tessaro::test {

using Frame = std::array<int64_t, 2>;
using Frame64 = std::array<double, 2>;

// The low 32 bits with their sign; and what a conversion to 32 bits gives, the lowest of them where a number does not fit.
inline int64_t wrapped(int64_t v) {
  const int64_t low = v & 0xFFFFFFFF;
  return low < 2147483648 ? low : low - 4294967296;
}
inline int64_t trunc_int(double v) {
  return std::fabs(v) < 2147483648.0 ? static_cast<int64_t>(v) : -2147483648;
}

struct Buffer {
  uint8_t* data;
  int32_t count, bits, channels;

  WaveBuffer record(int32_t rate = 44100) const { return {rate * 256 + bits + channels, count, data}; }
  size_t frame_bytes() const { return static_cast<size_t>(bits / 8 * channels); }
  bool inside(int64_t i) const { return i >= 0 && i < count; }

  // Stored samples: 8-bit ones with their bias, 64-bit ones for the integer scales as packed 24 bits.
  int form() const { return bits == 8 ? 1 : bits == 16 ? 2 : 3; }
  uint8_t* sample(int64_t i, int lane) const { return data + (i * channels + lane % channels) * form(); }
  int64_t stored(int64_t i, int lane) const {
    const uint8_t* p = sample(i, lane);
    if (form() == 1) return p[0];
    int64_t v = p[0] + 256 * p[1];
    if (form() == 2) return v < 32768 ? v : v - 65536;
    v += 65536 * p[2];
    return v < 8388608 ? v : v - 16777216;
  }
  void put(int64_t i, int lane, int64_t v) const {
    for (int b = 0; b < form(); ++b) sample(i, lane)[b] = static_cast<uint8_t>(v >> 8 * b);
  }
  // The integer that stands for 1 and the one for silence.
  double unit() const { return bits == 8 ? 127 : bits == 16 ? 32767 : 8388607; }
  int64_t silence() const { return bits == 8 ? 128 : 0; }

  // Integer scales: `depth` is 16 or 24.
  Frame get(int64_t i, int depth) const {
    Frame v{};
    for (int lane = 0; lane < 2 && inside(i); ++lane) {
      const int64_t s = stored(i, lane);
      v[static_cast<size_t>(lane)] = form() == 1   ? (s - 128) * (1 << (depth - 8))
                                     : form() == 2 ? s * (1 << (depth - 16))
                                                   : s >> (24 - depth);
    }
    return v;
  }
  void let(int64_t i, int depth, int64_t l, int64_t r) const {
    if (!inside(i)) return;
    const auto code = [&](int64_t v) {
      const int64_t middle = int64_t{1} << (depth - 1);
      return form() == 1   ? wrapped(v + middle) >> (depth - 8)
             : form() == 2 ? v >> (depth - 16)
                           : v * (1 << (24 - depth));
    };
    if (channels == 2) {
      put(i, 0, code(l));
      put(i, 1, code(r));
    } else {
      put(i, 0, form() == 3 ? code(wrapped(l + r) / 2) : wrapped(code(l) + code(r)) / 2);
    }
  }
  Frame64 get64(int64_t i) const {
    Frame64 v{};
    for (size_t lane = 0; lane < 2 && inside(i); ++lane)
      if (bits == 64)
        v[lane] = load<double>(data + 8 * (i * channels + static_cast<int>(lane) % channels));
      else
        v[lane] = static_cast<double>(stored(i, static_cast<int>(lane)) - silence()) * (1 / unit());
    return v;
  }
  void let64(int64_t i, double l, double r) const {
    if (!inside(i)) return;
    double v[2] = {l, r};
    int64_t code[2];
    for (int lane = 0; lane < 2; ++lane) {
      double& x = v[lane];
      if (!(x >= -1.0)) x = -1.0;
      if (x > 1.0) x = 1.0;
      code[lane] = silence() + static_cast<int64_t>(x * unit());
    }
    for (int lane = 0; lane < channels; ++lane)
      if (bits == 64)
        store<double>(data + 8 * (i * channels + lane), channels == 2 ? v[lane] : (v[0] + v[1]) * 0.5);
      else
        put(i, lane, channels == 2 ? code[lane] : (code[0] + code[1]) / 2);
  }
};

// Two buffers at random places of one block of memory, which they may share.
class Arena {
 public:
  Buffer dst, src;
  Arena(Random& random, int dst_format, int src_format, int32_t most = 700) {
    static constexpr int32_t forms[] = {8, 16, 24, 64};
    const auto make = [&](int format) {
      return Buffer{nullptr, random.between(0, most), forms[format / 2 % 4], format % 2 + 1};
    };
    dst = make(dst_format);
    src = make(src_format);
    const auto bytes = [](const Buffer& b) { return static_cast<size_t>(b.count) * b.frame_bytes(); };
    at_[0] = 64 + random.word() % 80;
    const bool shared = random.between(0, 2) != 0;
    at_[1] = shared ? random.between(0, 3) == 0 ? at_[0] : 64 + random.word() % (80 + bytes(dst))
                    : at_[0] + bytes(dst) + random.word() % 9;
    before_.resize(std::max(at_[0] + bytes(dst), at_[1] + bytes(src)) + 64);
    for (uint8_t& byte : before_) byte = random.byte();
    if (random.between(0, 1))
      for (const Buffer* b : {&dst, &src})
        for (size_t i = 0; b->bits == 64 && i < bytes(*b) / 8; ++i)
          store<double>(before_.data() + at_[b == &src] + 8 * i, random.between(-1200, 1200) * 0.001);
  }
  // The block after run(dst, src) on a copy of it.
  template <class Run>
  std::vector<uint8_t> after(Run run) const {
    std::vector<uint8_t> block = before_;
    Buffer d = dst, s = src;
    d.data = block.data() + at_[0];
    s.data = block.data() + at_[1];
    run(d, s);
    return block;
  }
  // Whether nothing but dst is changed in such a block.
  bool only_dst_differs(const std::vector<uint8_t>& block) const {
    const auto begin = static_cast<ptrdiff_t>(at_[0]);
    const auto end = begin + static_cast<ptrdiff_t>(static_cast<size_t>(dst.count) * dst.frame_bytes());
    return std::equal(block.begin(), block.begin() + begin, before_.begin()) &&
           std::equal(block.begin() + end, block.end(), before_.begin() + end);
  }

 private:
  std::vector<uint8_t> before_;
  size_t at_[2];
};

// The library's function on two records leaves the memory as the model does on the buffers.
template <class Call, class Model>
void expect_alike(const Arena& arena, Call call, Model model) {
  const auto got = arena.after([&](const Buffer& d, const Buffer& s) {
    const WaveBuffer to = d.record(), from = s.record();
    EXPECT_EQ(call(&to, &from), 0);
  });
  ASSERT_EQ(got, arena.after(model));
}

inline int64_t within(int64_t v, int64_t low, int64_t high) { return std::clamp(v, low, high); }
inline int64_t saturated(int64_t v) { return within(v, -32768, 32767); }

}  // namespace tessaro::test
