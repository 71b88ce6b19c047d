#include <cmath>
#include <map>

#include "models.hpp"
#include "support/small_stack.hpp"
#include "wave/dynamics.hpp"
#include "wave/ramp.hpp"
#include "wave/samples.hpp"

namespace tessaro::test {
namespace {

// ---- Dynamics

struct Gains {
  int32_t look, write;
  Frame64 of;
  bool operator==(const Gains&) const = default;
};

// Calls each(lane gains) for every frame of a ramp.
template <class Each>
void ramp_model(Frame64 now, const Frame64& then, int32_t count, Each each) {
  const Frame64 step{(then[0] - now[0]) / count, (then[1] - now[1]) / count};
  for (int32_t i = 0; i < count; ++i) {
    each(now);
    for (size_t c = 0; c < 2; ++c) now[c] += step[c];
  }
}

void maximizer24_model(const Buffer& b, Gains& g, int32_t count, double growth) {
  growth = growth > 1.0001 ? std::min(growth, 1.7) : 1.0001;
  Frame seen{};
  for (int32_t i = 0; i < count; ++i) {
    const Frame v = b.get(int64_t{g.look} + i, 24);
    for (size_t c = 0; c < 2; ++c) seen[c] |= std::min<int64_t>(std::abs(v[c]), 8388607) & 0x700000;
  }
  g.look = wrap_add(g.look, count);
  const Frame64 before = g.of;
  for (size_t c = 0; c < 2; ++c) {
    const double limit = seen[c] >= 0x400000 ? 1 : seen[c] >= 0x200000 ? 2 : seen[c] >= 0x100000 ? 4 : 8;
    g.of[c] = std::min(std::max(g.of[c] * growth, 1.0), limit);
  }
  int64_t at = g.write;
  ramp_model(before, g.of, count, [&](const Frame64& now) {
    const Frame v = b.get(at, 24);
    b.let(at++, 24, trunc_int(static_cast<double>(v[0]) * now[0]),
          trunc_int(static_cast<double>(v[1]) * now[1]));
  });
  g.write = wrap_add(g.write, count);
}

void maximizer64_model(const Buffer& d, const Buffer& s, Gains& g, int32_t count, double grow) {
  grow = grow > 0 ? std::min(grow, 9.9) : 0;
  Frame64 peak{};
  for (int32_t i = 0; i < count; ++i) {
    const Frame64 v = s.get64(int64_t{g.look} + i);
    for (size_t c = 0; c < 2; ++c) peak[c] = std::fmax(peak[c], std::fabs(v[c]));
  }
  g.look = wrap_add(g.look, count);
  int64_t at = g.write;
  const double from[] = {0.06249, 0.07142, 0.08333, 0.09999, 0.1249, 0.1666,
                         0.249,   0.49,    0.99,    1.99,    3.99,   7.99};
  const double limits[] = {16, 14, 12, 10, 8, 6, 4, 2, 1, 0.5, 0.25, 0.125, 0};
  const Frame64 before{g.of[0] + 16, g.of[1] + 16};
  for (size_t c = 0; c < 2; ++c) {
    const double limit = limits[std::upper_bound(from, from + 12, peak[c]) - from];
    g.of[c] = std::min(std::max(g.of[c] + grow, -15.0), limit - 16);
  }
  ramp_model(before, {g.of[0] + 16, g.of[1] + 16}, count, [&](const Frame64& now) {
    const Frame64 v = s.get64(at);
    d.let64(at++, v[0] * now[0], v[1] * now[1]);
  });
  g.write = wrap_add(g.write, count);
}

int32_t maximize24(const WaveBuffer* d, const WaveBuffer*, Gains& g, int32_t count, double growth) {
  return waveEffectMaximizer24(d, &g.look, &g.write, count, growth, &g.of[0], &g.of[1]);
}
int32_t maximize64(const WaveBuffer* d, const WaveBuffer* s, Gains& g, int32_t count, double step) {
  return waveEffectMaximizer64(d, s, &g.look, &g.write, count, step, &g.of[0], &g.of[1]);
}

TEST(Dynamics, BothMaximizersStreamAsOneFrameAfterAnother) {
  for (const Forced backend : supported_backends()) {
    for (int formats = 0; formats < 64; ++formats)
      for (const double growth : {1.5, 0.7, std::nan(""), 30.0})
        for (const bool deep : {false, true}) {
          SCOPED_TRACE(testing::Message() << formats << ' ' << growth << ' ' << deep);
          Random random(static_cast<uint32_t>(formats));
          const Arena arena(random, formats / 8, formats % 8, 900);
          const bool wild = random.between(0, 3) == 0;
          const int32_t look = random.between(-30, 300), write = random.between(-60, 30);
          const int32_t block = random.between(1, 700);
          Gains mine = deep ? Gains{look, write, {wild ? 1e3 : -15, wild ? 0.0 : -14.5}}
                            : Gains{look, write, {wild ? 1e9 : 1.2, wild ? -15.0 : 2.5}};
          Gains model = mine;
          expect_alike(
              arena,
              [&](const WaveBuffer* d, const WaveBuffer* s) {
                const auto maximize = deep ? maximize64 : maximize24;
                return maximize(d, s, mine, block, growth) + maximize(d, s, mine, block, growth);
              },
              [&](const Buffer& d, const Buffer& s) {
                for (int i = 0; i < 2; ++i)
                  deep ? maximizer64_model(d, s, model, block, growth)
                       : maximizer24_model(d, model, block, growth);
              });
          ASSERT_TRUE(mine == model);
        }
    // A gain that passes just below 2, where sums are rounded finer, at the end of a block, and one that stays.
    for (const auto& [sample, gain] : {std::pair{0x50, 4 - 0x1p-41}, {0x05, 8.0}}) {
      std::vector<uint8_t> got(3 * 1536, static_cast<uint8_t>(sample)), want = got;
      Gains mine{0, 0, {gain, gain}}, model = mine;
      const Buffer fast{got.data(), 1536, 24, 1}, naive{want.data(), 1536, 24, 1};
      const WaveBuffer record = fast.record();
      EXPECT_EQ(maximize24(&record, &record, mine, 1536, 1.5), 0);
      maximizer24_model(naive, model, 1536, 1.5);
      ASSERT_EQ(got, want) << gain;
    }
  }
}

TEST(Dynamics, ExtremePositionsAndStatesAreSafe) {
  Random random(9);
  const Arena arena(random, 3, 7, 60);
  for (const int32_t look : extreme_values)
    for (const int32_t write : extreme_values)
      for (const int32_t count : {INT32_MIN, 0, 1, 90, INT32_MAX})
        for (const double gain : {1.0, -1e300, std::nan(""), static_cast<double>(INFINITY)}) {
          SCOPED_TRACE(testing::Message() << look << ' ' << write << ' ' << count << ' ' << gain);
          const auto left = arena.after([&](const Buffer& d, const Buffer& s) {
            const WaveBuffer to = d.record(), from = s.record();
            for (const auto maximize : {maximize24, maximize64}) {
              Gains g{look, write, {gain, 3.0}};
              EXPECT_EQ(maximize(&to, &from, g, count, gain), count < 1);
              EXPECT_EQ(g.look, count < 1 ? look : wrap_add(look, count));
              EXPECT_EQ(g.write, count < 1 ? write : wrap_add(write, count));
            }
          });
          EXPECT_TRUE(arena.only_dst_differs(left));
          if (count > 90) continue;  // as long as the frames can be gone through
          EXPECT_EQ(left, arena.after([&](const Buffer& d, const Buffer& s) {
            Gains g{look, write, {gain, 3.0}}, other = g;
            if (count < 1) return;
            maximizer24_model(d, g, count, gain);
            maximizer64_model(d, s, other, count, gain);
          }));
        }
}

// Steps that fall halfway between two numbers, where the rounding of a sum depends on its last bit.
TEST(Dynamics, RampsOfHalvedUnitsAddUpStepByStep) {
  for (const Forced backend : supported_backends())
    for (const double gain : {0.5, 0.5 + 0x1p-53, 0.75 + 0x1p-53, 1.0, 1.0 + 0x1p-52, 1.5})
      for (const double step : {0x1p-53, -0x1p-53, 0x3p-53, 0x3p-54, -0x3p-54, 0x5p-54}) {
        const std::vector<double> in(64, 0.37);
        std::vector<double> got(64), want(64);
        const double steps[2] = {step, step};
        double after[2] = {gain, gain}, model[2] = {gain, gain};
        kernels<DynamicsKernels>().ramp64[stored64](reinterpret_cast<uint8_t*>(got.data()),
                                                    reinterpret_cast<const uint8_t*>(in.data()), 32, after,
                                                    steps);
        for (size_t i = 0; i < 64; ++i) {
          want[i] = in[i] * model[i % 2];
          model[i % 2] += step;
        }
        ASSERT_EQ(got, want) << gain << ' ' << step;
        ASSERT_EQ(after[0], model[0]) << gain << ' ' << step;
      }
}

// A gain that stands still is one multiplication by an integer, but for gains so close to a fraction that the roundings of
// the doubles decide.
TEST(Dynamics, SteadyGainsCloseToFractionsRoundAsDoublesDo) {
  for (const Forced backend : supported_backends()) {
    Random random(12);
    for (int round = 0; round < 300; ++round) {
      const int32_t bits = round % 4 ? 16 : 8, codes = 1 << bits;
      const int32_t q = random.between(1, round % 4 ? 40000 : 300);
      double gain = static_cast<double>(random.between(q, 16 * q)) / q;
      for (int32_t ulps = random.between(-4, 4); ulps != 0; ulps += ulps < 0 ? 1 : -1)
        gain = std::nextafter(gain, ulps < 0 ? 0.0 : 99.0);
      std::vector<uint8_t> source(2 * 65536), got(source.size()), want(source.size());
      const Buffer from{source.data(), codes, bits, 1}, to{got.data(), codes, bits, 1},
          model{want.data(), codes, bits, 1};
      for (int32_t i = 0; i < codes; ++i) from.put(i, 0, i - codes / 2);
      Gains mine{-200000, 0, {gain - 16, gain - 16}}, other = mine;  // silence is looked at
      const WaveBuffer s = from.record(), d = to.record();
      ASSERT_EQ(maximize64(&d, &s, mine, codes, 0.0), 0);
      maximizer64_model(model, from, other, codes, 0.0);
      ASSERT_EQ(got, want) << bits << ' ' << gain;
    }
  }
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

// The sound, the ring and the table may share memory.
void reverb_model(const Buffer& b, int32_t& frame, double* ring, const double* table, int32_t& at,
                  int32_t count, double level, int32_t predelay, int32_t spread, size_t taps) {
  constexpr int64_t mask = 0x7FFFF;
  const std::vector<double> spacings(table + 20000, table + 20000 + taps);
  for (int32_t n = 0; n < count; ++n) {
    const int64_t now = (int64_t{at} + n) & mask;
    const Frame64 in = b.get64(int64_t{frame} + n);
    const double* const wet = ring + 2 * ((now + 199) & mask);
    b.let64(int64_t{frame} + n, in[0] + wet[0] * 0.005, in[1] + wet[1] * 0.005);
    ring[2 * now] = ring[2 * now + 1] = 0;
    const double echo = (in[0] + in[1]) * (level * 0.5);
    if (echo == 0 || echo != echo) continue;
    double x = static_cast<double>(now + predelay);
    for (size_t t = 0; t < taps; ++t) {
      const int64_t i = std::fabs(x) < 0x1p63 ? static_cast<int64_t>(x) : INT64_MIN;
      const double f = x - static_cast<double>(i), gains[] = {table[t], table[10000 + t]};
      for (size_t c = 0; c < 2; ++c) ring[2 * static_cast<size_t>(i & mask) + c] += (1 - f) * echo * gains[c];
      for (size_t c = 0; c < 2; ++c)
        ring[2 * static_cast<size_t>(((i & mask) + 1) & mask) + c] += f * echo * gains[c];
      x += spread * spacings[t];
    }
  }
  frame = wrap_add(frame, count);
  at = static_cast<int32_t>((int64_t{at} + count) & mask);
}

// What is not a number need not be so in the same bits.
bool alike(const std::vector<double>& a, const std::vector<double>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](double x, double y) {
    return std::memcmp(&x, &y, sizeof x) == 0 || (std::isnan(x) && std::isnan(y));
  });
}

TEST(Reverb, StreamsBlockByBlockAsOneFrameAfterAnother) {
  for (const Forced backend : supported_backends())
    for (int trial = 0; trial < 24; ++trial) {
      const int format = trial / 3;
      Random random(static_cast<uint32_t>(format));
      const Arena arena(random, format, format, 900);
      auto one = std::make_unique<Echoes>();
      for (double& v : one->table) v = random.between(-100, 100) * 0.017;
      for (size_t t = 20000; t < 20030; ++t) one->table[t] = random.between(-100, 3000) * 0.37;
      if (trial % 3 == 0) one->table[20031] = 1e13;
      if (trial % 3 ==
          1)  // far enough apart for frames to be taken together; some places are nearly whole numbers
        for (size_t t = 20000; t < 20040; ++t) one->table[t] = random.between(30, 900) * 0.05;
      if (trial % 6 == 4) one->table[20000] = 1e10;  // but the first, which is followed by many turns
      if (trial % 3 == 2)                            // not quite, here and there
        for (size_t t = 20000; t < 20040; ++t) one->table[t] = random.between(1, 20) * 0.6;
      for (double& v : one->ring) v = random.between(-9, 9);
      auto two = std::make_unique<Echoes>(*one);
      const int32_t begin = random.between(-20, 20), origin = random.between(524000, 524287), taps = 40,
                    predelay = format < 4 ? 230 : 205;
      int32_t f1 = begin, r1 = origin, f2 = begin, r2 = origin;
      expect_alike(
          arena,
          [&](const WaveBuffer* to, const WaveBuffer*) {
            for (int32_t left = 950, block; left > 0; left -= block) {
              block = std::min(left, random.between(1, 300));
              EXPECT_EQ(waveEffectReverbA1(to, &f2, &two->record, &r2, block, 3.3, predelay, 2, taps,
                                           two->table.data()),
                        0);
            }
            return 0;
          },
          [&](const Buffer& b, const Buffer&) {
            reverb_model(b, f1, one->ring.data(), one->table.data(), r1, 950, 3.3, predelay, 2, taps);
          });
      EXPECT_EQ(f1, f2);
      EXPECT_EQ(r1, r2);
      ASSERT_EQ(std::memcmp(one->ring.data(), two->ring.data(), 8 * one->ring.size()), 0);
    }
}

// The sound, the ring and the table of taps may lie in one another: then frame after frame.
TEST(Reverb, MemoryMayBeShared) {
  for (const Forced backend : supported_backends())
    for (size_t layout = 0; layout < 4; ++layout) {
      std::vector<double> all[2];
      for (const bool model : {false, true}) {
        // One block: the ring, the table, the sound.
        std::vector<double>& block = all[model];
        block.resize((2 << 19) + 30000 + 800);
        Random random(31);
        for (double& v : block) v = random.between(-100, 100) * 0.017;
        double* const ring = block.data();
        double* const table = layout == 0 ? ring + 3000 : ring + (2 << 19);
        for (size_t t = 20000; t < 20040; ++t) table[t] = 40.3;
        double* const sound = layout == 1   ? ring + 1000
                              : layout == 2 ? table + 10
                              : layout == 3 ? table + 20000
                                            : table + 30000;
        const Buffer buffer{reinterpret_cast<uint8_t*>(sound), 400, 64, 2};
        const WaveBuffer echoes{waveFormatEnc(64, 2, 44100), 1 << 19, ring}, wave = buffer.record();
        int32_t frame = 0, at = 0;
        if (model)
          reverb_model(buffer, frame, ring, table, at, 400, 3.3, 230, 1, 40);
        else
          ASSERT_EQ(waveEffectReverbA1(&wave, &frame, &echoes, &at, 400, 3.3, 230, 1, 40, table), 0);
      }
      ASSERT_TRUE(alike(all[0], all[1])) << layout;
    }
}

TEST(Reverb, RefusesAndSurvivesWhatItMust) {
  auto e = std::make_unique<Echoes>();
  double samples[2] = {0.5, 0};
  WaveBuffer to{waveFormatEnc(64, 1, 44100), 2, samples};
  int32_t frame = 0, at = 0;
  const auto call = [&](int32_t count, double level, int32_t predelay = 300, int32_t taps = 1) {
    samples[0] = 0.5;
    return waveEffectReverbA1(&to, &frame, &e->record, &at, count, level, predelay, 1, taps, e->table.data());
  };
  e->table[0] = e->table[10000] = 1.0;
  EXPECT_EQ(call(0, 2), 1);
  // A buffer below 0 has no frames, and yet is not refused.
  for (const auto& [bits, count, frames] :
       {std::tuple{64, 524287, 2}, {16, 524288, 2}, {64, 524288, 0}, {64, 524288, -1}, {64, 524288, 2}}) {
    e->record.format = waveFormatEnc(bits, 1, 44100);
    e->record.count = count;
    to.count = frames;
    EXPECT_EQ(call(2, 2), bits != 64 || count < 524288 || frames == 0)
        << bits << ' ' << count << ' ' << frames;
  }
  // Where an echo of 0.5 is found in the ring, and how large.
  for (const auto& [level, predelay, place, echo] : {std::tuple{2.0, 300, 300, 1.0},
                                                     {-3.0, 300, 300, 0.0},
                                                     {std::nan(""), 300, 300, 0.0},
                                                     {150.0, 300, 300, 99.99 * 0.5},
                                                     {2.0, INT32_MIN, 10, 1.0},
                                                     {2.0, INT32_MAX, 88200, 1.0}}) {
    frame = at = 0;
    e->ring[2 * static_cast<size_t>(place)] = 0;
    EXPECT_EQ(call(1, level, predelay), 0);
    EXPECT_EQ(e->ring[2 * static_cast<size_t>(place)], echo) << level << ' ' << predelay;
  }
  for (size_t t = 20000; t < 30000; ++t)
    e->table[t] = std::array{std::nan(""), 1e300, -1e300, 9.3e18, static_cast<double>(INFINITY)}[t % 5];
  for (const int32_t position : {INT32_MIN, -1, 0, 1, INT32_MAX})
    for (const int32_t count : {1, 90, INT32_MAX}) {
      auto model = std::make_unique<Echoes>(*e);
      frame = at = position;
      on_a_small_stack([&] { EXPECT_EQ(call(count, 150, 300, INT32_MAX), 0); });
      EXPECT_EQ(frame, wrap_add(position, count));
      EXPECT_EQ(at, (static_cast<int64_t>(position) + count) & 0x7FFFF);
      if (count > 90) continue;
      double other[2] = {0.5, samples[1]};
      int32_t f = position, r = position;
      reverb_model({reinterpret_cast<uint8_t*>(other), 2, 64, 1}, f, model->ring.data(), model->table.data(),
                   r, count, 99.99, 300, 1, 10000);
      EXPECT_TRUE(alike(e->ring, model->ring)) << position << ' ' << count;
    }
}

// ---- Spectrum

// The butterflies and the reordering, in a precision that leaves all error to the library.
void transform_model(std::vector<long double>& re, std::vector<long double>& im) {
  const size_t n = re.size();
  size_t m = n;
  long double angle = 2 * 3.14159265358979323846264338327950288L / static_cast<long double>(n);
  for (size_t k = n / 2; k >= 1; m = k, k /= 2, angle *= 2)
    for (size_t j = 0; j < k; ++j) {
      const long double c = std::cos(static_cast<long double>(j) * angle),
                        s = std::sin(static_cast<long double>(j) * angle);
      for (size_t i = j; i + k < n; i += m) {
        const long double dr = re[i] - re[i + k], di = im[i] - im[i + k];
        re[i] += re[i + k];
        im[i] += im[i + k];
        re[i + k] = dr * c - di * s;
        im[i + k] = dr * s + di * c;
      }
    }
  for (size_t i = 1, j = 0; i + 1 < n; ++i) {
    size_t b = n / 2;
    for (j ^= b; b > j; j ^= b) b /= 2;
    if (i >= j) continue;
    std::swap(re[i], re[j]);
    std::swap(im[i], im[j]);
  }
}

TEST(Spectrum, IsTheTransformToTwelveDigitsForEveryLengthOnEveryBackEndAlike) {
  std::map<int32_t, std::vector<uint8_t>> first;
  for (const Forced backend : supported_backends())
    for (const int32_t n : {1,    2,    4,     8, 16, 32, 64, 128, 256,  512,  1024,
                            2048, 4096, 65536, 3, 6,  7,  12, 33,  1000, 1023, 1500}) {
      Random random(static_cast<uint32_t>(n));
      const auto size = static_cast<size_t>(n);
      std::vector<double> samples(2 * size + 2);
      for (double& v : samples) v = random.between(-1000, 1000) * 0.001;
      const int32_t channels = n % 3 == 0 ? 1 : 2;
      const WaveBuffer wave{waveFormatEnc(64, channels, 44100), n + 1, samples.data()};
      const Buffer buffer{reinterpret_cast<uint8_t*>(samples.data()), n + 1, 64, channels};
      // Unaligned, and fenced.
      std::vector<uint8_t> memory(16 * size + 24, 0xA5);
      auto* re = reinterpret_cast<double*>(memory.data() + 4);
      auto* im = reinterpret_cast<double*>(memory.data() + 12 + 8 * n);
      ASSERT_EQ(wavefft(&wave, 1, n, re, im), 0);
      EXPECT_EQ(memory[3] + memory[11 + 8 * size] + memory[12 + 16 * size], 3 * 0xA5);
      std::vector<long double> want_re(size), want_im(size);
      for (size_t i = 0; i < size; ++i) {
        const Frame64 v = buffer.get64(static_cast<int64_t>(i) + 1);
        want_re[i] = static_cast<long double>(v[0] + v[1]);
      }
      transform_model(want_re, want_im);
      long double worst = 0, largest = 0;
      for (size_t k = 0; k < size; ++k) {
        largest = std::max(largest, std::hypot(want_re[k], want_im[k]));
        worst = std::max(worst, std::hypot(want_re[k] - static_cast<long double>(load<double>(re + k)),
                                           want_im[k] - static_cast<long double>(load<double>(im + k))));
      }
      EXPECT_LT(worst, 1e-12L * largest) << n;
      EXPECT_EQ(first.try_emplace(n, memory).first->second, memory) << n;
    }
}

TEST(Spectrum, RefusalsAndAngles) {
  double constant[8], re[8] = {7}, im[8] = {};
  std::fill(constant, constant + 8, 0.25);
  const WaveBuffer wave{waveFormatEnc(64, 1, 44100), 8, constant};
  EXPECT_EQ(wavefft(&wave, 0, 0, re, im), 2);
  EXPECT_EQ(wavefft(&wave, -1, 1, re, im), 2);
  EXPECT_EQ(wavefft(&wave, 1, 8, re, im), 3);
  EXPECT_EQ(wavefft(&wave, INT32_MAX, INT32_MAX, re, im), 3);
  EXPECT_EQ(re[0], 7.0);
  EXPECT_EQ(wavefft(&wave, 0, 8, re, im), 0);
  EXPECT_EQ(re[0], 4.0);
  for (int i = 1; i < 8; ++i) EXPECT_EQ(re[i] * re[i] + im[i] * im[i], 0.0);

  // After a refusal the arrays are converted all the same.
  const auto check = [&](double x, double y) {
    double a = x, b = y;
    EXPECT_EQ(wavefft2(&wave, -1, 1, &a, &b), 2);
    ASSERT_EQ(a, std::sqrt(x * x + y * y));
    const double angle = std::atan2(x, y);
    ASSERT_NEAR(b, angle, std::fabs(angle) * 3e-16 + 1e-310) << x << ' ' << y;
    ASSERT_EQ(std::signbit(b), std::signbit(x));
  };
  const double special[] = {0.0, -0.0, 1.0, -1.0, INFINITY, -INFINITY, 1e308, -1e307, 3e-320, 1e-320};
  for (const double x : special)
    for (const double y : special) check(x, y);
  Random random(5);
  const auto any = [&](double by) {
    return std::ldexp(random.between(-9999, 9999) * by, random.between(-300, 300) * random.between(0, 1));
  };
  for (int trial = 0; trial < 20000; ++trial) check(any(1.0001), any(1.0003));
}

}  // namespace
}  // namespace tessaro::test
