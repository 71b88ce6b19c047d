// Waveforms: blits and effects beside memcpy of the bytes they read and write and plain loops, resampling
// beside libsamplerate, the transform beside FFTW and KissFFT, the reverb beside a loop over its taps.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>

#include "bench.hpp"
#include "tessaro/tessaro.h"
#include "wave_loops.hpp"

#if TESSARO_BENCH_HAS_FFTW
#include <fftw3.h>
#endif
#if TESSARO_BENCH_HAS_KISSFFT
#include <kiss_fft.h>
#endif
#if TESSARO_BENCH_HAS_SAMPLERATE
#include <samplerate.h>
#endif

using namespace tessaro::bench;

namespace {

constexpr int frames = 16384;  // of the effects that are measured in one format

// Stereo frames of 512 KiB: in the second cache in every format.
constexpr int frames_of(int bits) { return (1 << 19) * 4 / bits; }

// Samples of a sweep, quiet enough for doubles to stay inside -1..1.
struct Sound {
  std::vector<uint8_t> bytes;
  WaveBuffer record;
  Sound(int bits, int channels, int count = frames)
      : bytes(static_cast<size_t>(count * channels * bits / 8)) {
    record = {waveFormatEnc(bits, channels, 44100), count, bytes.data()};
    for (int i = 0; i < count; ++i)
      LetWave64(record.data, i, bits, channels, count, 0.4 * std::sin(i * i * 1e-6),
                0.3 * std::cos(i * 0.01));
  }
};
using Shared = std::shared_ptr<Sound>;
Shared sound(int bits, int channels = 2, int count = frames) {
  return std::make_shared<Sound>(bits, channels, count);
}

using WaveCall = std::function<void(const WaveBuffer*, const WaveBuffer*)>;

// The integer scales take a buffer of doubles for packed samples of 24 bits, and touch no more of it.
enum class Scale { integer, real };
// passes: how many times the samples of one buffer are read or written.
void add(const std::string& name, int bits, Scale scale, double passes, WaveCall call,
         WaveLoop loop = nullptr) {
  compare({name + "/" + std::to_string(bits), static_cast<double>(frames_of(bits)), "frame", [=] {
             const Shared dst = sound(bits, 2, frames_of(bits)), src = sound(bits, 2, frames_of(bits));
             const size_t moved =
                 static_cast<size_t>(static_cast<double>(src->bytes.size()) * passes / 2 *
                                     (bits == 64 && scale == Scale::integer ? 24 / 64.0 : 1));
             const auto from = std::make_shared<std::vector<uint8_t>>(moved),
                        to = std::make_shared<std::vector<uint8_t>>(moved);
             std::vector<Contender> all = {{"tessaro", [=] { call(&dst->record, &src->record); }},
                                           {"limit", [=] { limit_copy(to->data(), from->data(), moved); }}};
             if (loop)
               all.push_back({"loop", [=] {
                                loop(dst->bytes.data(), src->bytes.data(),
                                     2 * static_cast<size_t>(frames_of(bits)));
                              }});
             return all;
           }});
}

void add_all() {
  for (const int bits : {16, 64, 24, 8}) {
    const WaveLoops plain = wave_loops(bits);
    add(
        "waveBlt", bits, Scale::integer, 2, [](auto d, auto s) { waveBlt(d, s, 0, 0, d->count, 0.8f); },
        plain.gain);
    add(
        "waveFormat", bits, Scale::integer, 2, [](auto d, auto s) { waveFormat(d, s); }, plain.convert);
    add(
        "waveBlt64", bits, Scale::real, 2, [](auto d, auto s) { waveBlt64(d, s, 0, 0, d->count); },
        plain.copy64);
    add(
        "waveBltAdd", bits, Scale::integer, 3, [](auto d, auto s) { waveBltAdd(d, s, 0, 0, d->count, 0.8f); },
        plain.add);
    add(
        "waveBltSub", bits, Scale::integer, 3, [](auto d, auto s) { waveBltSub(d, s, 0, 0, d->count, 0.8f); },
        plain.sub);
    add(
        "waveBltMul", bits, Scale::integer, 3, [](auto d, auto s) { waveBltMul(d, s, 0, 0, d->count, 0.8f); },
        plain.mul);
    add(
        "waveNormal", bits, Scale::real, 2, [](auto d, auto s) { waveNormal(d, s, 0, 0, d->count, 0.009f); },
        plain.normal);
    add(
        "waveEffectMaximizer24", bits, Scale::integer, 3,
        [](auto d, auto) {
          int32_t look = 0, write = 0;
          double left = 1.5, right = 1.5;  // they fall to 1, where they would stay and change nothing
          waveEffectMaximizer24(d, &look, &write, d->count, 1.1, &left, &right);
        },
        plain.maximize24);
    add(
        "waveEffectMaximizer64", bits, Scale::real, 3,
        [](auto d, auto s) {
          int32_t look = 0, write = 0;
          double left = -15, right = -15;
          waveEffectMaximizer64(d, s, &look, &write, d->count, 0.5, &left, &right);
        },
        plain.maximize64);
    add("waveBltAddNoise", bits, Scale::integer, 2,
        [](auto d, auto s) { waveBltAddNoise(d, s, 0, 0, d->count, 0.1f); });
  }
  for (const int radius : {4, 50, 511})
    add("waveBltBlur/r" + std::to_string(radius), 16, Scale::integer, 2,
        [=](auto d, auto s) { waveBltBlur(d, s, 0, 0, d->count, radius); });
  add("waveBltSin", 16, Scale::integer, 2,
      [](auto d, auto s) { waveBltSin(d, s, 0, 0, d->count, 0.3f, 0.05f, 1e-5f, 0.01f); });
}

void add_expand(int dst_bits, int src_bits) {
  compare(
      {"waveExpand/" + std::to_string(src_bits) + "-to-" + std::to_string(dst_bits), frames, "frame", [=] {
         constexpr int input = frames * 5 / 8;
         const Shared dst = sound(dst_bits), src = sound(src_bits, 2, input);
         std::vector<Contender> all = {{"tessaro", [=] { waveExpand(&dst->record, &src->record, 0.62f); }}};
#if TESSARO_BENCH_HAS_SAMPLERATE
         const auto in = std::make_shared<std::vector<float>>(2 * input, 0.1f);
         const auto out = std::make_shared<std::vector<float>>(2 * frames + 64);
         int error = 0;
         const std::shared_ptr<SRC_STATE> state(src_new(SRC_LINEAR, 2, &error), src_delete);
         all.push_back({"libsamplerate", [=] {
                          src_reset(state.get());
                          SRC_DATA data{};
                          data.data_in = in->data();
                          data.data_out = out->data();
                          data.input_frames = input;
                          data.output_frames = frames;
                          data.src_ratio = 1 / 0.62;
                          data.end_of_input = 1;
                          src_process(state.get(), &data);
                        }});
#endif
         return all;
       }});
}

void add_transform(int n) {
  compare({"wavefft/" + std::to_string(n), static_cast<double>(n), "frame", [=] {
             const size_t size = static_cast<size_t>(n);
             const Shared src = sound(64, 1, n);
             const auto re = std::make_shared<std::vector<double>>(size),
                        im = std::make_shared<std::vector<double>>(size);
             std::vector<Contender> all = {
                 {"tessaro", [=] { wavefft(&src->record, 0, n, re->data(), im->data()); }}};
#if TESSARO_BENCH_HAS_FFTW
             double* in = fftw_alloc_real(2 * size);
             double* out = fftw_alloc_real(2 * size);
             fftw_iodim dim = {n, 1, 1};
             // Planned once; every run is given the samples anew, as ours reads them.
             fftw_plan plan =
                 fftw_plan_guru_split_dft(1, &dim, 0, nullptr, in, in + size, out, out + size, FFTW_ESTIMATE);
             all.push_back({"FFTW", [=] {
                              const auto* from = reinterpret_cast<const double*>(src->bytes.data());
                              for (size_t i = 0; i < size; ++i) in[i] = 2 * from[i];
                              std::memset(in + size, 0, 8 * size);
                              fftw_execute(plan);
                            }});
#endif
#if TESSARO_BENCH_HAS_KISSFFT
             kiss_fft_cfg cfg = kiss_fft_alloc(n, 0, nullptr, nullptr);
             const auto a = std::make_shared<std::vector<kiss_fft_cpx>>(size),
                        b = std::make_shared<std::vector<kiss_fft_cpx>>(size);
             all.push_back({"KissFFT", [=] {
                              const auto* from = reinterpret_cast<const double*>(src->bytes.data());
                              for (size_t i = 0; i < size; ++i)
                                (*a)[i] = {static_cast<float>(2 * from[i]), 0};
                              kiss_fft(cfg, a->data(), b->data());
                            }});
#endif
             return all;
           }});
}

void add_reverb(int taps) {
  constexpr int count = 441;
  compare(
      {"waveEffectReverbA1/" + std::to_string(taps) + "-taps", static_cast<double>(count) * taps, "tap", [=] {
         const auto ring = std::make_shared<std::vector<double>>(2 << 19);
         const auto table = std::make_shared<std::vector<double>>(30000);
         std::mt19937 random(1);
         for (size_t t = 0; t < 10000; ++t) {
           (*table)[t] = (*table)[t + 10000] = 1.0 / static_cast<double>(t + 2);
           (*table)[t + 20000] = 20 + static_cast<double>(random() % 1000) * 0.071;
         }
         const Shared music = sound(16, 2, count);
         const auto position = std::make_shared<int32_t>(0);
         const auto at = std::make_shared<size_t>(0);
         return std::vector<Contender>{
             {"tessaro",
              [=] {
                const WaveBuffer record{waveFormatEnc(64, 2, 44100), 1 << 19, ring->data()};
                int32_t frame = 0;
                waveEffectReverbA1(&music->record, &frame, &record, position.get(), count, 0.01, 1000, 1,
                                   taps, table->data());
              }},
             {"loop", [=] {
                double* __restrict cells = ring->data();
                for (int n = 0; n < count; ++n, *at = (*at + 1) & 0x7FFFF) {
                  const double echo = 0.01;
                  double x = static_cast<double>(*at + 1000);
                  for (size_t t = 0; t < static_cast<size_t>(taps); ++t) {
                    const auto i = static_cast<int64_t>(x);
                    const double f = x - static_cast<double>(i);
                    const size_t near = static_cast<size_t>(i & 0x7FFFF),
                                 far = static_cast<size_t>((i + 1) & 0x7FFFF);
                    for (size_t c = 0; c < 2; ++c) {
                      cells[2 * near + c] += (1 - f) * echo * (*table)[10000 * c + t];
                      cells[2 * far + c] += f * echo * (*table)[10000 * c + t];
                    }
                    x += (*table)[20000 + t];
                  }
                }
              }}};
       }});
}

const bool registered = [] {
  add_all();
  for (const auto& [dst, src] : {std::pair{16, 16}, {8, 8}, {16, 24}, {24, 16}}) add_expand(dst, src);
  for (const int n : {1024, 65536}) add_transform(n);
  add_reverb(1000);
  return true;
}();

}  // namespace
