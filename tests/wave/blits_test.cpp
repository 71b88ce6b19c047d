#include "core/random.hpp"
#include "models.hpp"

namespace tessaro::test {
namespace {

struct Span {
  int32_t ds, ss, count;
};

// Writes f(i, l, r of the source, l, r of the destination) at an integer scale, frame after frame.
template <class F>
void each_frame(const Buffer& d, const Buffer& s, Span n, int depth, F f) {
  for (int64_t i = 0; i < n.count; ++i) {
    const Frame v = f(i, s.get(n.ss + i, depth), d.get(n.ds + i, depth));
    d.let(n.ds + i, depth, v[0], v[1]);
  }
}
template <class F>
void each_channel(const Buffer& d, const Buffer& s, Span n, int depth, F f) {
  each_frame(d, s, n, depth, [&](int64_t, Frame a, Frame b) { return Frame{f(a[0], b[0]), f(a[1], b[1])}; });
}

void each_real(const Buffer& d, const Buffer& s, Span n, double gain) {
  for (int64_t i = 0; i < n.count; ++i) {
    const Frame64 v = s.get64(n.ss + i);
    d.let64(n.ds + i, v[0] * gain, v[1] * gain);
  }
}

void tone_model(const Buffer& d, const Buffer& s, Span n, float amplitude, float frequency, float depth,
                float rate) {
  float phase = 0, modulation = 0, increment = frequency;
  each_frame(d, s, n, 16, [&](int64_t, Frame a, Frame) {
    const int64_t t =
        trunc_int(std::sin(static_cast<double>(phase)) * static_cast<double>(amplitude * 32768));
    phase += increment;
    modulation += rate;
    increment = static_cast<float>(static_cast<double>(increment) +
                                   std::sin(static_cast<double>(modulation)) * static_cast<double>(depth));
    return Frame{saturated(a[0] + t), saturated(a[1] + t)};
  });
}

// The ratios at which positions turn over, by a gain of the comparisons.
float ratio_of(float v) {
  constexpr float ratios[] = {0.0f, 0.37f, 1.0f, 0.9999f, 2.6f, 40.0f, 150.0f, 1e-9f, 3e38f, INFINITY};
  return ratios[static_cast<size_t>(v * 64) % std::size(ratios)];
}

// Infinity times 0 is not a number: silence from the first frame on.
void expand_model(const Buffer& d, const Buffer& s, float ratio) {
  const bool same = d.bits == s.bits && d.channels == s.channels;
  if (same && d.bits > 16) return;
  for (int64_t i = 0; i < d.count; ++i) {
    const double p = static_cast<double>(i) * static_cast<double>(ratio);
    const int64_t n = p < 1e9 ? static_cast<int64_t>(p) : int64_t{1} << 40;
    const auto f =
        s.inside(n) ? static_cast<int64_t>((p - static_cast<double>(n)) * (same ? 256 : 32768)) : 0;
    if (same) {
      Frame v{};
      for (int lane = 0; lane < d.channels; ++lane)
        v[static_cast<size_t>(lane)] = n >= s.count ? (d.bits == 8 ? 128 : 0)
                                       : n + 1 < s.count
                                           ? (s.stored(n + 1, lane) * f + s.stored(n, lane) * (256 - f)) >> 8
                                           : s.stored(n, lane);
      for (int lane = 0; lane < d.channels; ++lane) d.put(i, lane, v[static_cast<size_t>(lane)]);
    } else {
      const Frame a = s.get(n, 16), b = s.get(n + 1, 16);
      d.let(i, 16, ((32768 - f) * a[0] + f * b[0]) >> 15, ((32768 - f) * a[1] + f * b[1]) >> 15);
    }
  }
}

int64_t scaled(int64_t v, float gain) { return v * static_cast<int64_t>(std::min(gain, 4.0f) * 256) >> 8; }

struct Blit {
  const char* name;
  std::function<int32_t(const WaveBuffer*, const WaveBuffer*, Span, float)> call;
  std::function<void(const Buffer&, const Buffer&, Span, float)> model;
};

template <auto blit>
int32_t with_gain(const WaveBuffer* d, const WaveBuffer* s, Span n, float gain) {
  return blit(d, s, n.ds, n.ss, n.count, gain);
}

const Blit blits[] = {
    {"waveFormat", [](auto d, auto s, Span, float) { return waveFormat(d, s); },
     [](auto& d, auto& s, Span, float) {
       each_channel(d, s, {0, 0, d.count}, 16, [](int64_t a, int64_t) { return a; });
     }},
    {"waveExpand", [](auto d, auto s, Span, float v) { return waveExpand(d, s, ratio_of(v)); },
     [](auto& d, auto& s, Span, float v) { expand_model(d, s, ratio_of(v)); }},
    {"waveBlt", with_gain<waveBlt>,
     [](auto& d, auto& s, Span n, float v) {
       const auto g = static_cast<int64_t>(std::clamp(v, 0.0f, 4.0f) * 64);
       each_channel(d, s, n, 24, [g](int64_t a, int64_t) { return within(a * g >> 6, -8388608, 8388607); });
     }},
    {"waveBltBlur",
     [](auto d, auto s, Span n, float v) {
       return waveBltBlur(d, s, n.ds, n.ss, n.count, static_cast<int32_t>(v * 200) + 1);
     },
     [](auto& d, auto& s, Span n, float v) {
       const int64_t radius = std::min(static_cast<int32_t>(v * 200) + 1, 511);
       std::vector<Frame> read;
       for (int64_t i = 0; i < n.count; ++i) {
         read.push_back(s.get(n.ss + radius + i, 16));
         Frame sum{};
         for (int64_t j = std::max<int64_t>(0, i - 2 * radius); j <= i; ++j)
           for (size_t c = 0; c < 2; ++c) sum[c] += read[static_cast<size_t>(j)][c];
         d.let(n.ds + i, 16, sum[0] / (2 * radius + 1), sum[1] / (2 * radius + 1));
       }
     }},
    {"waveBltGluder",
     [](auto d, auto s, Span n, float v) {
       return waveBltGluder(d, s, n.ds, n.ss, n.count, static_cast<int32_t>(v * 9) + 1);
     },
     [](auto& d, auto& s, Span n, float v) {
       n.ss += static_cast<int32_t>(v * 9) + 1;
       each_channel(d, s, n, 16, [](int64_t a, int64_t b) { return a ^ b; });
     }},
    {"waveBltAddNoise", with_gain<waveBltAddNoise>,
     [](auto& d, auto& s, Span n, float v) {
       const auto k = static_cast<int64_t>(std::clamp(v, 0.0f, 1.0f) * 256);
       each_frame(d, s, n, 16, [k](int64_t, Frame a, Frame) {
         for (int64_t& c : a)
           c = saturated(c + ((static_cast<int64_t>(draw_random() % 65536) - 32768) * k >> 8));
         return a;
       });
     }},
    {"waveBltSin",
     [](auto d, auto s, Span n, float v) {
       return waveBltSin(d, s, n.ds, n.ss, n.count, v * 0.7f - 0.5f, 0.05f, 0.001f, v * 0.01f);
     },
     [](auto& d, auto& s, Span n, float v) {
       tone_model(d, s, n, std::clamp(v * 0.7f - 0.5f, -1.0f, 1.0f), 0.05f, 0.001f, v * 0.01f);
     }},
    {"waveBltAdd", with_gain<waveBltAdd>,
     [](auto& d, auto& s, Span n, float v) {
       each_channel(d, s, n, 16, [v](int64_t a, int64_t b) { return saturated(b + scaled(a, v)); });
     }},
    {"waveBltSub", with_gain<waveBltSub>,
     [](auto& d, auto& s, Span n, float v) {
       each_channel(d, s, n, 16, [v](int64_t a, int64_t b) { return saturated(b - scaled(a, v)); });
     }},
    {"waveBltMul", with_gain<waveBltMul>,
     [](auto& d, auto& s, Span n, float) {
       each_channel(d, s, n, 16, [](int64_t a, int64_t b) { return std::abs(a) * b >> 15; });
     }},
    {"waveBlt64", [](auto d, auto s, Span n, float) { return waveBlt64(d, s, n.ds, n.ss, n.count); },
     [](auto& d, auto& s, Span n, float) { each_real(d, s, n, 1.0); }},
    {"waveClear64", [](auto d, auto, Span n, float) { return waveClear64(d, n.ds, n.count); },
     [](auto& d, auto&, Span n, float) {
       for (int64_t i = 0; i < n.count; ++i) d.let64(n.ds + i, 0, 0);
     }},
    {"waveNormal",
     [](auto d, auto s, Span n, float v) { return waveNormal(d, s, n.ds, n.ss, n.count, v * 0.02f); },
     [](auto& d, auto& s, Span n, float v) {
       each_real(d, s, n, std::clamp(static_cast<double>(v * 0.02f), 0.0, 1.0) / 0.01);
     }},
};

TEST(Blits, AgreeWithOneFrameAfterAnotherInEveryPairOfFormats) {
  for (const Forced backend : supported_backends())
    for (const Blit& blit : blits)
      for (int formats = 0; formats < 64; ++formats)
        for (uint32_t trial = 0; trial < 9; ++trial) {
          Random random(static_cast<uint32_t>(formats) * 97 + trial);
          const Arena arena(random, formats / 8, formats % 8, trial < 4 ? 60 : 1400);
          const Span n{random.between(-20, 40), random.between(-20, 40), random.between(0, 2000)};
          const float v = trial == 1 ? 1.0f : static_cast<float>(random.between(0, 300)) / 64;
          SCOPED_TRACE(testing::Message()
                       << blit.name << " formats " << formats << " trial " << trial << " gain " << v);
          uint32_t next_draw = 0;
          expect_alike(
              arena,
              [&](const WaveBuffer* d, const WaveBuffer* s) {
                seed_random(7);
                const int32_t status = blit.call(d, s, n, v);
                next_draw = draw_random();
                return status;
              },
              [&](const Buffer& d, const Buffer& s) {
                seed_random(7);
                blit.model(d, s, n, v);
              });
          ASSERT_EQ(next_draw, draw_random());
        }
}

TEST(Blits, EverySixteenBitSourceMixesExactly) {
  // All sources, in 24-bit buffers the quietest 65536 codes, against destinations at which sums and products turn over.
  for (const int32_t bits : {16, 24}) {
    std::vector<uint8_t> source(3 * 65536), want = source, got = source;
    const Buffer s{source.data(), 65536, bits, 1}, d{want.data(), 65536, bits, 1};
    const Buffer mine{got.data(), 65536, bits, 1};
    for (int i = 0; i < 65536; ++i) s.put(i, 0, i - 32768);
    const WaveBuffer from = s.record(), to = mine.record();
    for (const Forced backend : supported_backends())
      for (const Blit& blit : blits) {
        if (std::string(blit.name) == "waveBltBlur") continue;
        for (const auto& [start, gain] :
             {std::pair{0, 1.7f}, {-1, 0.3f}, {32767, 4.0f}, {-32768, 50.0f}, {257, 0.0f}}) {
          for (int i = 0; i < 65536; ++i) d.put(i, 0, start + (start == 257 ? i * 31 : 0));
          got = want;
          seed_random(7);
          blit.call(&to, &from, {0, 0, 65536}, gain);
          seed_random(7);
          blit.model(d, s, {0, 0, 65536}, gain);
          ASSERT_EQ(got, want) << blit.name << ' ' << start << ' ' << bits;
        }
      }
  }
}

TEST(Blits, ParametersAreLimitedOrRefused) {
  std::vector<int16_t> a(64, 300), b(64, 0);
  const WaveBuffer from{waveFormatEnc(16, 1, 44100), 64, a.data()},
      to{waveFormatEnc(16, 1, 44100), 64, b.data()};
  for (const float bad : {-0.01f, NAN, -INFINITY}) {
    for (const auto blit : {waveBltAdd, waveBltSub, waveBltMul}) EXPECT_EQ(blit(&to, &from, 0, 0, 8, bad), 1);
    EXPECT_EQ(waveExpand(&to, &from, bad), 1);
  }
  EXPECT_EQ(waveBltBlur(&to, &from, 0, 0, 8, 0) + waveBltGluder(&to, &from, 0, 0, 0, 0), 2);
  EXPECT_EQ(b, std::vector<int16_t>(64, 0));
  const auto first = [&](auto blit, auto... parameters) {
    EXPECT_EQ(blit(&to, &from, 0, 0, 8, parameters...), 0);
    return b[0];
  };
  for (const float low : {-1.0f, NAN, -INFINITY}) {
    EXPECT_EQ(first(waveBltAddNoise, low), 300);
    EXPECT_EQ(first(waveBlt, low), 0);
  }
  EXPECT_EQ(first(waveBlt, INFINITY), 1200);
  EXPECT_EQ(first(waveBltSin, 2.0f, INFINITY, 0.0f, 0.0f), 300);
  EXPECT_EQ(b[1], -32768);  // sin of infinity: the lowest integer
  EXPECT_EQ(first(waveBltSin, 9.0f, 1.57079637f, 0.0f, 0.0f), 300);
  EXPECT_EQ(b[1], 32767);
  EXPECT_EQ(b[3], 300 - 32767);
  // -0 is not below 0 and stays what it is.
  double real[2] = {0.5, 0.5};
  const WaveBuffer reals{waveFormatEnc(64, 1, 44100), 2, real};
  EXPECT_EQ(waveNormal(&reals, &reals, 0, 0, 1, -0.0f) + waveNormal(&reals, &reals, 1, 0, 1, NAN), 0);
  EXPECT_TRUE(std::signbit(real[0]) && real[1] == 0.0);
}

TEST(Blits, ExtremePositionsTouchOnlyTheBuffersAndCostWhatLiesInside) {
  Random random(3);
  const Arena arena(random, 3, 3, 50);
  for (const Blit& blit : blits) {
    if (blit.name == std::string("waveFormat")) continue;
    for (const int32_t ds : extreme_values)
      for (const int32_t ss : extreme_values)
        for (const int32_t count : {INT32_MIN, -1, 1, 7000, INT32_MAX}) {
          const std::string name = blit.name;
          if (name == "waveBltAddNoise" && count == INT32_MAX) continue;  // its draws
          EXPECT_TRUE(arena.only_dst_differs(arena.after([&](const Buffer& d, const Buffer& s) {
            const WaveBuffer to = d.record(), from = s.record();
            EXPECT_EQ(blit.call(&to, &from, {ds, ss, count}, 1.5f), 0);
          })));
        }
  }
}

TEST(Blits, TheToneFarOutsideIsTheOneThatEachFrameWouldGive) {
  for (const float frequency : {0.3f, 3.0e8f, 1.0e30f})
    for (const float depth : {0.0f, 0.01f}) {
      // A single frame a long way into a run that begins outside.
      int16_t got = 0, want = 0, silent = 0;
      const auto buffer = [](int16_t& sample) {
        return Buffer{reinterpret_cast<uint8_t*>(&sample), 1, 16, 1};
      };
      const WaveBuffer to = buffer(got).record(), from = buffer(silent).record();
      const int32_t far = 3000000;
      waveBltSin(&to, &from, -far, 0, far + 1, 1.0f, frequency, depth, 0.01f);
      tone_model(buffer(want), buffer(silent), {-far, 0, far + 1}, 1.0f, frequency, depth, 0.01f);
      if (frequency > 1e20f) want = 9016;  // not every platform's own sine reduces angles as large
      EXPECT_EQ(got, want) << frequency;
    }
}

}  // namespace
}  // namespace tessaro::test
