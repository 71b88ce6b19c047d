// Runs of frames copied, mixed and altered between buffers.
#include "core/clip.hpp"
#include "core/numbers.hpp"
#include "core/random.hpp"
#include "wave/blocks.hpp"
#include "wave/oscillator.hpp"
#include "wave/scale.hpp"

using namespace tessaro;

namespace {

// The runs of a blit at the scale of T.
template <class T>
struct Runs {
  Side<T> dst, src;
  Runs(const Wave& to, const Wave& from, int32_t dst_start, int64_t src_start, int lanes)
      : dst(to, dst_start, lanes), src(from, src_start, lanes) {}
  Runs(const Wave& to, const Wave& from, int32_t dst_start, int64_t src_start)
      : Runs(to, from, dst_start, src_start, lanes_of(to, from)) {}
  size_t samples(int64_t n) const { return static_cast<size_t>(n * dst.lanes()); }
};

using Operations = const SampleKernels::Operation[3];

void mix(const Wave& to, const Wave& from, int32_t dst_start, int64_t src_start, int32_t count,
         Operations& operations, int32_t gain) {
  const Runs<int16_t> run(to, from, dst_start, src_start);
  if (run.dst.same_layout(run.src))
    return transform_stored(run.dst, run.src, count, [&](uint8_t* out, const uint8_t* in, size_t n) {
      operations[run.dst.stored()](out, in, n, gain);
    });
  transform(run.dst, run.src, count, true, [&](int16_t* out, const int16_t* in, int64_t, int64_t n) {
    operations[stored16](reinterpret_cast<uint8_t*>(out), reinterpret_cast<const uint8_t*>(in),
                         run.samples(n), gain);
  });
}

// The blits that scale the source by a gain of 0..4 and mix it into the destination.
int32_t mix_scaled(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start, int32_t src_start,
                   int32_t count, float gain, Operations& operations) {
  Wave to, from;
  if (!open_wave(dst, to) || !open_wave(src, from) || !(gain >= 0.0f)) return status_nothing;
  mix(to, from, dst_start, src_start, count, operations, trunc32(clamped(gain, 0.0f, 4.0f) * 256.0f));
  return status_done;
}

// waveBlt at the scale of the runs, whose values have the kernel at `values`.
template <class T>
void amplify(const Runs<T>& run, int32_t count, int32_t factor, size_t values) {
  const auto& gain = kernels<SampleKernels>().gain24;
  const bool same = run.dst.same_layout(run.src);
  if (same && factor == 64)
    copy_bytes(run.dst, run.src, count);
  else if (same)
    transform_stored(run.dst, run.src, count, [&](uint8_t* out, const uint8_t* in, size_t n) {
      gain[run.dst.stored()](out, in, n, factor);
    });
  else
    transform(run.dst, run.src, count, false, [&](T* out, const T* in, int64_t, int64_t n) {
      gain[values](reinterpret_cast<uint8_t*>(out), reinterpret_cast<const uint8_t*>(in), run.samples(n),
                   factor);
    });
}

bool at_most_16_bits(const Wave& wave) { return wave.stored == stored8 || wave.stored == stored16; }

}  // namespace

extern "C" {

int32_t TESSARO_CALL waveBlt(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                             int32_t src_start, int32_t count, float gain) {
  Wave to, from;
  if (!open_wave(dst, to) || !open_wave(src, from)) return status_nothing;
  const int32_t factor = trunc32(clamped(gain, 0.0f, 4.0f) * 64.0f);
  // Of 8 and 16-bit samples the lower 8 of the 24 bits are 0 on the way in and dropped on the way out.
  if (at_most_16_bits(to) && at_most_16_bits(from))
    amplify(Runs<int16_t>(to, from, dst_start, src_start), count, factor, stored16);
  else
    amplify(Runs<int32_t>(to, from, dst_start, src_start), count, factor, values24);
  return status_done;
}

int32_t TESSARO_CALL waveBltBlur(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                 int32_t src_start, int32_t count, int32_t radius) {
  Wave to, from;
  if (!open_wave(dst, to) || !open_wave(src, from) || radius < 1) return status_nothing;
  radius = radius > 511 ? 511 : radius;
  const int32_t span = 2 * radius + 1;
  const Runs<int16_t> run(to, from, dst_start, static_cast<int64_t>(src_start) + radius);
  const SampleKernels& k = kernels<SampleKernels>();
  const size_t lanes = static_cast<size_t>(run.dst.lanes());
  // The running sums up to the last frame read and to each of the `span` frames before it.
  int32_t sums[2 * (1024 + block_frames)];
  const size_t kept = (static_cast<size_t>(span) + 1) * lanes;
  std::memset(sums, 0, kept * sizeof *sums);
  int32_t* now = sums + kept - lanes;
  const auto slide = [&](int64_t n) {
    std::memmove(sums, sums + static_cast<size_t>(n) * lanes, kept * sizeof *sums);
  };
  // Frames that are not written still enter the first sums.
  const int64_t first = smaller(run.dst.first_inside(), count);
  for (int64_t i = larger(0, first - span), n; i < first; i += n) {
    int16_t room[2 * block_frames];
    n = smaller(block_frames, first - i);
    k.running16(now, run.src.read(i, n, room), static_cast<size_t>(n), lanes);
    slide(n);
  }
  transform(run.dst, run.src, count, false, [&](int16_t* out, const int16_t* in, int64_t, int64_t n) {
    k.running16(now, in, static_cast<size_t>(n), lanes);
    k.mean_of_span(out, now + lanes, sums + lanes, run.samples(n), span);
    slide(n);
  });
  return status_done;
}

int32_t TESSARO_CALL waveBltGluder(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                   int32_t src_start, int32_t count, int32_t offset) {
  Wave to, from;
  if (!open_wave(dst, to) || !open_wave(src, from) || offset < 1) return status_nothing;
  mix(to, from, dst_start, static_cast<int64_t>(src_start) + offset, count, kernels<SampleKernels>().xor16,
      0);
  return status_done;
}

int32_t TESSARO_CALL waveBltAddNoise(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                     int32_t src_start, int32_t count, float amount) {
  Wave to, from;
  if (!open_wave(dst, to) || !open_wave(src, from)) return status_nothing;
  const int32_t factor = trunc32(clamped(amount, 0.0f, 1.0f) * 256.0f);
  const Runs<int16_t> run(to, from, dst_start, src_start, 2);
  int64_t drawn = 0;  // frames that have had their two draws
  transform(run.dst, run.src, count, false, [&](int16_t* out, const int16_t* in, int64_t i, int64_t n) {
    skip_random(2 * (i - drawn));
    uint32_t noise[2 * block_frames];
    draw_random(noise, 2 * n);
    kernels<SampleKernels>().noise16(out, in, run.samples(n), noise, factor);
    drawn = i + n;
  });
  skip_random(2 * (count - drawn));
  return status_done;
}

int32_t TESSARO_CALL waveBltSin(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                int32_t src_start, int32_t count, float amplitude, float frequency,
                                float depth, float rate) {
  Wave to, from;
  if (!open_wave(dst, to) || !open_wave(src, from)) return status_nothing;
  const Runs<int16_t> run(to, from, dst_start, src_start);
  Oscillator oscillator(clamped(amplitude, -1.0f, 1.0f) * 32768.0f, frequency, depth, rate);
  bool started = false;
  transform(run.dst, run.src, count, false, [&](int16_t* out, const int16_t* in, int64_t i, int64_t n) {
    if (!started) oscillator.skip(i);
    started = true;
    int32_t tone[block_frames];
    oscillator.draw(tone, n);
    kernels<SampleKernels>().tone16(out, in, static_cast<size_t>(n), static_cast<size_t>(run.dst.lanes()),
                                    tone);
  });
  return status_done;
}

int32_t TESSARO_CALL waveBltAdd(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                int32_t src_start, int32_t count, float gain) {
  return mix_scaled(dst, src, dst_start, src_start, count, gain, kernels<SampleKernels>().add16);
}

int32_t TESSARO_CALL waveBltSub(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                int32_t src_start, int32_t count, float gain) {
  return mix_scaled(dst, src, dst_start, src_start, count, gain, kernels<SampleKernels>().sub16);
}

int32_t TESSARO_CALL waveBltMul(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                int32_t src_start, int32_t count, float gain) {
  return mix_scaled(dst, src, dst_start, src_start, count, gain, kernels<SampleKernels>().mul16);
}

int32_t TESSARO_CALL waveBlt64(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                               int32_t src_start, int32_t count) {
  Wave to, from;
  if (!open_wave(dst, to) || !open_wave(src, from)) return status_nothing;
  scale(to, from, dst_start, src_start, count, 1.0);
  return status_done;
}

int32_t TESSARO_CALL waveClear64(const WaveBuffer* dst, int32_t start, int32_t count) {
  Wave to;
  if (!open_wave(dst, to)) return status_nothing;
  const int64_t first = larger(start, 0), last = smaller(static_cast<int64_t>(start) + count, to.count);
  if (first < last) to.silence(to.at(first), last - first);
  return status_done;
}

}  // extern "C"
