#include <cmath>

#include "models.hpp"
#include "wave/ramp.hpp"

namespace tessaro::test {
namespace {

void expand_model(const Buffer& d, const Buffer& s, float ratio) {
  const bool same = d.bits == s.bits && d.channels == s.channels;
  if (same && d.bits > 16) return;
  const auto outside_or = [&](int64_t n) { return s.inside(n); };
  for (int64_t i = 0; i < d.count; ++i) {
    const double p = static_cast<double>(i) * static_cast<double>(ratio);
    const int64_t n = p < 1e9 ? static_cast<int64_t>(p) : int64_t{1} << 40;
    if (same) {
      const auto f = outside_or(n) ? static_cast<int64_t>((p - static_cast<double>(n)) * 256) : 0;
      for (int lane = 0; lane < d.channels; ++lane)
        d.put(i, lane,
              n >= s.count      ? (d.bits == 8 ? 128 : 0)
              : n + 1 < s.count ? (s.stored(n + 1, lane) * f + s.stored(n, lane) * (256 - f)) >> 8
                                : s.stored(n, lane));
    } else {
      const auto f = outside_or(n) ? static_cast<int64_t>((p - static_cast<double>(n)) * 32768) : 0;
      const Frame a = s.get(n, 16), b = s.get(n + 1, 16);
      d.let(i, 16, ((32768 - f) * a[0] + f * b[0]) >> 15, ((32768 - f) * a[1] + f * b[1]) >> 15);
    }
  }
}

TEST(Expand, AgreesWithOneFrameAfterAnotherInEveryPairOfFormats) {
  for (const Backend backend : supported_backends()) {
    const Forced forced(backend);
    for (int formats = 0; formats < 64; ++formats)
      for (const float ratio : {0.0f, 0.37f, 1.0f, 0.9999f, 2.6f, 40.0f, 1e-9f, 3e38f, INFINITY}) {
        Random random(static_cast<uint32_t>(formats));
        const Arena arena(random, formats / 8, formats % 8, 1100);
        const auto got = arena.after([&](const Buffer& d, const Buffer& s) {
          const WaveBuffer to = d.record(22050), from = s.record(8000);
          EXPECT_EQ(waveExpand(&to, &from, ratio), 0);
        });
        const auto want = arena.after([&](const Buffer& d, const Buffer& s) { expand_model(d, s, ratio); });
        // Infinity times 0 is not a number: silence from the first frame on.
        ASSERT_EQ(got, want) << name_of(backend) << " formats " << formats << " ratio " << ratio;
      }
  }
  int16_t in[2] = {0, 1000}, out[6] = {7, 7, 7, 7, 7, 7};
  const WaveBuffer from{waveFormatEnc(16, 1, 44100), 2, in}, to{waveFormatEnc(16, 1, 44100), 6, out};
  EXPECT_EQ(waveExpand(&to, &from, -1.0f) + waveExpand(&to, &from, std::nanf("")), 2);
  EXPECT_EQ(out[0], 7);
  waveExpand(&to, &from, 0.5f);
  const int16_t want[6] = {0, 500, 1000, 1000, 0, 0};
  EXPECT_EQ(std::memcmp(out, want, sizeof out), 0);
}

// ---- Dynamics

struct Gains {
  int32_t look, write;
  double left, right;
};

void maximizer24_model(const Buffer& b, Gains& g, int32_t count, double growth) {
  growth = growth > 1.0001 ? std::min(growth, 1.7) : 1.0001;
  int64_t seen[2] = {};
  for (int32_t i = 0; i < count; ++i) {
    const Frame v = b.get(g.look++, 24);
    for (size_t c = 0; c < 2; ++c) seen[c] |= std::min<int64_t>(std::abs(v[c]), 8388607) & 0x700000;
  }
  double* gain[2] = {&g.left, &g.right};
  double now[2], step[2];
  for (int c = 0; c < 2; ++c) {
    now[c] = *gain[c];
    const double limit = seen[c] >= 0x400000 ? 1 : seen[c] >= 0x200000 ? 2 : seen[c] >= 0x100000 ? 4 : 8;
    *gain[c] = std::min(std::max(*gain[c] * growth, 1.0), limit);
    step[c] = (*gain[c] - now[c]) / count;
  }
  for (int32_t i = 0; i < count; ++i) {
    const Frame v = b.get(g.write, 24);
    b.let(g.write++, 24, trunc_int(static_cast<double>(v[0]) * now[0]),
          trunc_int(static_cast<double>(v[1]) * now[1]));
    for (int c = 0; c < 2; ++c) now[c] += step[c];
  }
}

void maximizer64_model(const Buffer& d, const Buffer& s, Gains& g, int32_t count, double grow) {
  grow = grow > 0 ? std::min(grow, 9.9) : 0;
  double peak[2] = {};
  for (int32_t i = 0; i < count; ++i) {
    const Frame64 v = s.get64(g.look++);
    for (size_t c = 0; c < 2; ++c) peak[c] = std::fmax(peak[c], std::fabs(v[c]));
  }
  const double from[] = {0.06249, 0.07142, 0.08333, 0.09999, 0.1249, 0.1666,
                         0.249,   0.49,    0.99,    1.99,    3.99,   7.99};
  const double limits[] = {16, 14, 12, 10, 8, 6, 4, 2, 1, 0.5, 0.25, 0.125, 0};
  double* state[2] = {&g.left, &g.right};
  double now[2], step[2];
  for (int c = 0; c < 2; ++c) {
    now[c] = *state[c] + 16;
    const double limit = limits[std::upper_bound(from, from + 12, peak[c]) - from];
    *state[c] = std::min(std::max(*state[c] + grow, -15.0), limit - 16);
    step[c] = (*state[c] + 16 - now[c]) / count;
  }
  for (int32_t i = 0; i < count; ++i) {
    const Frame64 v = s.get64(g.write);
    d.let64(g.write++, v[0] * now[0], v[1] * now[1]);
    for (int c = 0; c < 2; ++c) now[c] += step[c];
  }
}

TEST(Dynamics, BothMaximizersStreamAsOneFrameAfterAnother) {
  for (const Backend backend : supported_backends()) {
    const Forced forced(backend);
    for (int formats = 0; formats < 64; ++formats)
      for (const double growth : {1.5, 0.7, std::nan(""), 30.0}) {
        Random random(static_cast<uint32_t>(formats));
        const Arena arena(random, formats / 8, formats % 8, 900);
        const bool wild = random.between(0, 3) == 0;
        const Gains begin{random.between(-30, 300), random.between(-60, 30), wild ? 1e9 : 1.2,
                          wild ? -15.0 : 2.5};
        const int32_t block = random.between(1, 700);
        Gains model = begin, mine = begin;
        const auto both = [&](const Gains& a, const Gains& b) {
          EXPECT_EQ(a.look, b.look);
          EXPECT_EQ(a.write, b.write);
          EXPECT_EQ(a.left, b.left);
          EXPECT_EQ(a.right, b.right);
        };
        auto want = arena.after([&](const Buffer& d, const Buffer&) {
          for (int i = 0; i < 3; ++i) maximizer24_model(d, model, block, growth);
        });
        auto got = arena.after([&](const Buffer& d, const Buffer&) {
          const WaveBuffer to = d.record();
          for (int i = 0; i < 3; ++i)
            EXPECT_EQ(
                waveEffectMaximizer24(&to, &mine.look, &mine.write, block, growth, &mine.left, &mine.right),
                0);
        });
        ASSERT_EQ(got, want) << name_of(backend) << " formats " << formats << " growth " << growth;
        both(mine, model);

        model = mine = {begin.look, begin.write, -15, wild ? 0.0 : -14.5};
        want = arena.after([&](const Buffer& d, const Buffer& s) {
          for (int i = 0; i < 3; ++i) maximizer64_model(d, s, model, block, growth);
        });
        got = arena.after([&](const Buffer& d, const Buffer& s) {
          const WaveBuffer to = d.record(), from = s.record();
          for (int i = 0; i < 3; ++i)
            EXPECT_EQ(waveEffectMaximizer64(&to, &from, &mine.look, &mine.write, block, growth, &mine.left,
                                            &mine.right),
                      0);
        });
        ASSERT_EQ(got, want) << name_of(backend) << " formats " << formats << " step " << growth;
        both(mine, model);
      }
  }
}

TEST(Dynamics, ExtremePositionsAndStatesAreSafe) {
  Random random(9);
  const Arena arena(random, 3, 7, 60);
  for (const int32_t look : extreme_values)
    for (const int32_t write : extreme_values)
      for (const int32_t count : {INT32_MIN, 0, 1, 90, INT32_MAX})
        for (const double gain : {1.0, -1e300, std::nan(""), static_cast<double>(INFINITY)})
          arena.after([&](const Buffer& d, const Buffer& s) {
            const WaveBuffer to = d.record(), from = s.record();
            Gains g{look, write, gain, 3.0};
            EXPECT_EQ(waveEffectMaximizer24(&to, &g.look, &g.write, count, gain, &g.left, &g.right),
                      count < 1);
            EXPECT_EQ(g.look, count < 1 ? look : wrap_add(look, count));
            g = {look, write, gain, -10};
            EXPECT_EQ(waveEffectMaximizer64(&to, &from, &g.look, &g.write, count, gain, &g.left, &g.right),
                      count < 1);
            EXPECT_EQ(g.write, count < 1 ? write : wrap_add(write, count));
          });
}

TEST(Dynamics, SumsAreTheSameHoweverManyStepsAreTakenAtOnce) {
  Random random(4);
  const auto check = [&](auto value, auto step) {
    auto want = value;
    for (int64_t n = 0; n < 3000; ++n) {
      ASSERT_EQ(want, added_up(value, step, n)) << value << ' ' << step << ' ' << n;
      want += step;
    }
  };
  for (int i = 0; i < 60; ++i) {
    const double step = std::ldexp(random.between(-1000, 1000) + 0.5, random.between(-30, 4));
    check(static_cast<float>(random.between(-50, 50)), static_cast<float>(step));
    check(static_cast<double>(random.between(-50, 50)), step * 1e-13);
  }
  check(1.0f, std::ldexp(1.0f, -24));  // halfway between two numbers at every step
  check(1.0f, std::ldexp(3.0f, -24));
  check(16777216.0f, -0.5f);
}

// ---- Reverb

struct Echoes {
  std::vector<double> ring = std::vector<double>(2 << 19), table = std::vector<double>(30000);
  WaveBuffer record{waveFormatEnc(64, 2, 44100), 1 << 19, ring.data()};
  Echoes() = default;
  Echoes(const Echoes& other) : ring(other.ring), table(other.table) {}
};

void reverb_model(const Buffer& b, int32_t& frame, Echoes& e, int32_t& at, int32_t count, double level,
                  int32_t predelay, int32_t spread, int32_t taps) {
  constexpr int64_t mask = 0x7FFFF;
  for (int32_t n = 0; n < count; ++n, ++frame, at = static_cast<int32_t>((at + 1) & mask)) {
    const Frame64 in = b.get64(frame);
    const auto wet = static_cast<size_t>((at + 199) & mask);
    b.let64(frame, in[0] + e.ring[2 * wet] * 0.005, in[1] + e.ring[2 * wet + 1] * 0.005);
    e.ring[2 * static_cast<size_t>(at)] = e.ring[2 * static_cast<size_t>(at) + 1] = 0;
    const double echo = (in[0] + in[1]) * (level * 0.5);
    if (echo == 0 || echo != echo) continue;
    double x = at + predelay;
    for (size_t t = 0; t < static_cast<size_t>(taps); ++t) {
      const auto i = static_cast<int64_t>(x);
      const double f = x - static_cast<double>(i);
      for (size_t c = 0; c < 2; ++c) {
        e.ring[2 * static_cast<size_t>(i & mask) + c] += (1 - f) * echo * e.table[10000 * c + t];
        e.ring[2 * static_cast<size_t>((i + 1) & mask) + c] += f * echo * e.table[10000 * c + t];
      }
      x += spread * e.table[20000 + t];
    }
  }
}

TEST(Reverb, StreamsBlockByBlockAsOneFrameAfterAnother) {
  for (const Backend backend : supported_backends()) {
    const Forced forced(backend);
    for (int format = 0; format < 8; ++format) {
      Random random(static_cast<uint32_t>(format));
      const Arena arena(random, format, format, 900);
      auto one = std::make_unique<Echoes>();
      for (double& v : one->table) v = random.between(-100, 100) * 0.017;
      for (size_t t = 20000; t < 20030; ++t) one->table[t] = random.between(-100, 3000) * 0.37;
      one->table[20031] = 1e13;
      for (double& v : one->ring) v = random.between(-9, 9);
      auto two = std::make_unique<Echoes>(*one);
      const int32_t begin = random.between(-20, 20), origin = random.between(524000, 524287), taps = 40;
      int32_t f1 = begin, r1 = origin, f2 = begin, r2 = origin;
      const auto want = arena.after(
          [&](const Buffer& b, const Buffer&) { reverb_model(b, f1, *one, r1, 950, 3.3, 210, 2, taps); });
      const auto got = arena.after([&](const Buffer& b, const Buffer&) {
        const WaveBuffer to = b.record();
        if (b.count == 0) return;
        for (int32_t left = 950, block; left > 0; left -= block) {
          block = std::min(left, random.between(1, 300));
          EXPECT_EQ(
              waveEffectReverbA1(&to, &f2, &two->record, &r2, block, 3.3, 210, 2, taps, two->table.data()),
              0);
        }
      });
      ASSERT_EQ(got, want) << name_of(backend) << ' ' << format;
      EXPECT_EQ(f1, f2);
      EXPECT_EQ(r1, r2);
      ASSERT_EQ(std::memcmp(one->ring.data(), two->ring.data(), 8 * one->ring.size()), 0);
    }
  }
}

TEST(Reverb, RefusesAndSurvivesWhatItMust) {
  auto e = std::make_unique<Echoes>();
  double samples[2] = {0.5, 0};
  WaveBuffer to{waveFormatEnc(64, 1, 44100), 2, samples};
  int32_t frame = 0, at = 0;
  const auto call = [&](int32_t count, double level, int32_t taps = 1) {
    return waveEffectReverbA1(&to, &frame, &e->record, &at, count, level, 300, 1, taps, e->table.data());
  };
  e->table[0] = e->table[10000] = 1.0;
  EXPECT_EQ(call(0, 2), 1);
  e->record.count = 524287;
  EXPECT_EQ(call(2, 2), 1);
  e->record = {waveFormatEnc(16, 2, 44100), 1 << 19, e->ring.data()};
  EXPECT_EQ(call(2, 2), 1);
  e->record.format = waveFormatEnc(64, 1, 44100);
  to.count = 0;
  EXPECT_EQ(call(2, 2), 1);
  to.count = -1;  // no frames, and yet not refused
  EXPECT_EQ(call(2, 2), 0);
  to.count = 2;
  frame = at = 0;
  EXPECT_EQ(call(2, 2), 0);
  EXPECT_EQ(e->ring[600], 1.0);
  for (const double level : {-3.0, std::nan("")}) {
    frame = at = 0;
    call(1, level);
    EXPECT_EQ(e->ring[600], 1.0);
  }
  for (size_t t = 20000; t < 30000; ++t)
    e->table[t] = std::array{std::nan(""), 1e300, -1e300, 9.3e18, static_cast<double>(INFINITY)}[t % 5];
  for (const int32_t position : extreme_values)
    for (const int32_t count : {1, 90, INT32_MAX}) {
      frame = at = position;
      samples[0] = 0.5;
      EXPECT_EQ(call(count, 150, INT32_MAX), 0);
      EXPECT_EQ(frame, wrap_add(position, count));
      EXPECT_EQ(at, (static_cast<int64_t>(position) + count) & 0x7FFFF);
    }
}

// ---- Spectrum

TEST(Spectrum, IsTheTransformToTwelveDigits) {
  for (const Backend backend : supported_backends()) {
    const Forced forced(backend);
    for (const int32_t n : {1, 2, 4, 8, 16, 32, 64, 256, 1024, 4096, 7, 12, 33, 1000, 1023}) {
      Random random(static_cast<uint32_t>(n));
      std::vector<double> samples(2 * static_cast<size_t>(n) + 2);
      for (double& v : samples) v = random.between(-1000, 1000) * 0.001;
      const WaveBuffer wave{waveFormatEnc(64, 2, 44100), n + 1, samples.data()};
      // Unaligned, and fenced.
      std::vector<uint8_t> memory(16 * static_cast<size_t>(n) + 24, 0xA5);
      auto* re = reinterpret_cast<double*>(memory.data() + 4);
      auto* im = reinterpret_cast<double*>(memory.data() + 12 + 8 * n);
      ASSERT_EQ(wavefft(&wave, 1, n, re, im), 0);
      EXPECT_EQ(
          memory[3] + memory[12 + 8 * static_cast<size_t>(n) - 1] + memory[12 + 16 * static_cast<size_t>(n)],
          3 * 0xA5);
      if (n & (n - 1)) continue;
      std::vector<long double> turn(2 * static_cast<size_t>(n));
      for (size_t k = 0; k < static_cast<size_t>(n); ++k) {
        turn[2 * k] = std::cos(2 * 3.14159265358979323846264338327950288L * static_cast<long double>(k) / n);
        turn[2 * k + 1] =
            std::sin(2 * 3.14159265358979323846264338327950288L * static_cast<long double>(k) / n);
      }
      long double worst = 0, largest = 0;
      for (int32_t k = 0; k<n; k += n> 1024 ? 37 : 1) {
        long double a = 0, b = 0;
        for (int32_t i = 0; i < n; ++i) {
          const auto v = static_cast<long double>(samples[2 * static_cast<size_t>(i) + 2] +
                                                  samples[2 * static_cast<size_t>(i) + 3]);
          const auto at = static_cast<size_t>((static_cast<int64_t>(i) * k) % n);
          a += v * turn[2 * at];
          b += v * turn[2 * at + 1];
        }
        largest = std::max(largest, std::hypot(a, b));
        const double x = load<double>(re + k), y = load<double>(im + k);
        worst = std::max(worst, std::hypot(a - static_cast<long double>(x), b - static_cast<long double>(y)));
      }
      EXPECT_LT(worst, 1e-12L * largest) << n << ' ' << name_of(backend);
    }
  }
}

TEST(Spectrum, RunsTheSameStepsForEveryLength) {
  for (const int32_t n : {3, 6, 7, 12, 33, 100, 1000, 1023, 1500, 2048}) {
    Random random(static_cast<uint32_t>(n));
    std::vector<int16_t> samples(static_cast<size_t>(n));
    for (int16_t& v : samples) v = static_cast<int16_t>(random.word());
    const WaveBuffer wave{waveFormatEnc(16, 1, 8000), n, samples.data()};
    const Buffer buffer{reinterpret_cast<uint8_t*>(samples.data()), n, 16, 1};
    const auto size = static_cast<size_t>(n);
    std::vector<double> re(size), im(size), got_re(size), got_im(size);
    for (size_t i = 0; i < size; ++i) re[i] = 2 * buffer.get64(static_cast<int64_t>(i))[0];
    size_t m = size;
    double angle = 6.28318530717959 / n;
    for (size_t k = size / 2; k >= 1; m = k, k /= 2, angle *= 2)
      for (size_t j = 0; j < k; ++j)
        for (size_t i = j; i + k < size; i += m) {
          const double c = std::cos(static_cast<double>(j) * angle),
                       s = std::sin(static_cast<double>(j) * angle);
          const double dr = re[i] - re[i + k], di = im[i] - im[i + k];
          re[i] += re[i + k];
          im[i] += im[i + k];
          re[i + k] = dr * c - di * s;
          im[i + k] = dr * s + di * c;
        }
    for (size_t i = 1, j = 0; i < size - 1; ++i) {
      size_t b = size / 2;
      for (j ^= b; b > j; j ^= b) b /= 2;
      if (i < j) {
        std::swap(re[i], re[j]);
        std::swap(im[i], im[j]);
      }
    }
    ASSERT_EQ(wavefft(&wave, 0, n, got_re.data(), got_im.data()), 0);
    for (size_t i = 0; i < size; ++i) {
      ASSERT_NEAR(got_re[i], re[i], 1e-11) << n << ' ' << i;
      ASSERT_NEAR(got_im[i], im[i], 1e-11) << n << ' ' << i;
    }
  }
}

TEST(Spectrum, RefusalsAndAngles) {
  double constant[8], re[8] = {0, 1, 0, -0.0, INFINITY, 3e-320, 1e308, -2},
                      im[8] = {1, 0, -1, -1, -INFINITY, 1e-320, -1e307, 5};
  std::fill(constant, constant + 8, 0.25);
  const WaveBuffer wave{waveFormatEnc(64, 1, 44100), 8, constant};
  EXPECT_EQ(wavefft(&wave, 0, 0, re, im), 2);
  EXPECT_EQ(wavefft(&wave, -1, 1, re, im), 2);
  EXPECT_EQ(wavefft(&wave, 1, 8, re, im), 3);
  EXPECT_EQ(wavefft(&wave, INT32_MAX, INT32_MAX, re, im), 3);
  EXPECT_EQ(re[1], 1.0);
  double x[8], y[8];
  std::copy(re, re + 8, x);
  std::copy(im, im + 8, y);
  EXPECT_EQ(wavefft2(&wave, -1, 8, re, im), 2);
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(re[i], std::sqrt(x[i] * x[i] + y[i] * y[i]));
    EXPECT_DOUBLE_EQ(im[i], std::atan2(x[i], y[i])) << i;
    EXPECT_EQ(std::signbit(im[i]), std::signbit(x[i])) << i;
  }
  EXPECT_EQ(wavefft(&wave, 0, 8, re, im), 0);
  EXPECT_EQ(re[0], 4.0);
  for (int i = 1; i < 8; ++i) EXPECT_EQ(re[i] * re[i] + im[i] * im[i], 0.0);

  Random random(5);
  for (int trial = 0; trial < 20000; ++trial) {
    double a =
        std::ldexp(random.between(-9999, 9999) * 1.0001, random.between(-300, 300) * random.between(0, 1));
    double b =
        std::ldexp(random.between(-9999, 9999) * 1.0003, random.between(-300, 300) * random.between(0, 1));
    const double angle = std::atan2(a, b);
    wavefft2(&wave, -1, 1, &a, &b);
    ASSERT_NEAR(b, angle, std::fabs(angle) * 3e-16 + 1e-310);
  }
}

}  // namespace
}  // namespace tessaro::test
