#include "frame/clip.hpp"
#include "wave/blocks.hpp"
#include "wave/stored.hpp"

using namespace tessaro;

namespace {

// The number of frames i from 0 on, up to count, with i * ratio below the limit. Positions never fall.
int64_t frames_below(double limit, double ratio, int64_t count) {
  int64_t below = 0, above = count;
  while (below < above) {
    const int64_t middle = (below + above) / 2;
    if (static_cast<double>(middle) * ratio < limit)
      below = middle + 1;
    else
      above = middle;
  }
  return below;
}

// Where destination frames lie between source frames: the one before, and the fraction behind it.
struct Places {
  int32_t frame[block_frames], part[block_frames];
};

// What is behind the last frame of the source: that frame itself, or silence.
enum class BehindLast { itself, silence };

// out = the blends of the frames at the places with those behind them. `last` says that all are the source's last.
template <class S, size_t lanes, int shift>
void blend(I16* out, const uint8_t* data, const Places& at, int64_t n, bool last, BehindLast behind_last) {
  const auto sample = [](const uint8_t* p) { return shift == 8 ? S::get(p) : S::to16(S::get(p)); };
  const size_t next = last ? 0 : lanes * S::bytes;
  const int32_t heard = last && behind_last == BehindLast::silence ? 0 : -1;
  for (size_t j = 0; j < static_cast<size_t>(n); ++j) {
    const uint8_t* here = data + static_cast<size_t>(at.frame[j]) * (lanes * S::bytes);
    const int32_t part = at.part[j], rest = (1 << shift) - part;
    for (size_t lane = 0; lane < lanes; ++lane) {
      const uint8_t* from = here + S::bytes * lane;
      out[lanes * j + lane] =
          static_cast<int16_t>((sample(from + next) * (part & heard) + sample(from) * rest) >> shift);
    }
  }
}

// Packed samples at the 16-bit scale are their two upper bytes.
struct Upper16 {
  static constexpr size_t bytes = S24::bytes;
  static int32_t get(const uint8_t* at) { return S16::get(at + 1); }
  static int32_t to16(int32_t s) { return s; }
};

using Blend = void (*)(I16* out, const uint8_t* data, const Places& at, int64_t n, bool last, BehindLast);

template <class S, int shift>
Blend blend_of(int lanes) {
  return lanes == 2 ? blend<S, 2, shift> : blend<S, 1, shift>;
}

// Resamples with a blend into blocks of values, which put(i, n, values) stores.
template <class Put>
void resample(const Wave& to, const Wave& from, double ratio, double parts, Blend blend,
              BehindLast behind_last, Put put) {
  const int64_t inside = frames_below(static_cast<double>(from.count), ratio, to.count);
  const int64_t before_last = frames_below(static_cast<double>(from.count - 1), ratio, inside);
  // A source that the destination overwrites is taken one frame after another.
  const bool apart = to.address(to.count) <= from.address(0) || from.address(from.count) <= to.address(0);
  int16_t room[2 * block_frames];
  Places at;
  for (int64_t i = 0, n; i < inside; i += n) {
    const bool last = i >= before_last;
    n = apart ? smaller(block_frames, (last ? inside : before_last) - i) : 1;
    kernels<SampleKernels>().places(at.frame, at.part, static_cast<int32_t>(i), static_cast<size_t>(n), ratio,
                                    parts);
    blend(room, from.data, at, n, last, behind_last);
    put(i, n, room);
  }
  if (inside < to.count)
    std::memset(to.at(inside), to.stored == stored8 ? 128 : 0,
                static_cast<size_t>(to.count - inside) * to.frame_bytes());
}

}  // namespace

extern "C" int32_t TESSARO_CALL waveExpand(const WaveBuffer* dst, const WaveBuffer* src, float ratio) {
  Wave to, from;
  if (!open_wave(dst, to) || !open_wave(src, from) || !(ratio >= 0.0f)) return status_nothing;
  const double step = static_cast<double>(ratio);

  if (to.stored == from.stored && to.lanes == from.lanes) {
    if (to.stored == stored16)
      resample(to, from, step, 256, blend_of<S16, 8>(to.lanes), BehindLast::itself,
               [&](int64_t i, int64_t n, const int16_t* values) {
                 std::memcpy(to.at(i), values, static_cast<size_t>(n) * to.frame_bytes());
               });
    if (to.stored == stored8)
      resample(to, from, step, 256, blend_of<S8, 8>(to.lanes), BehindLast::itself,
               [&](int64_t i, int64_t n, const int16_t* values) {
                 uint8_t* at = to.at(i);
                 for (int64_t j = 0; j < n * to.lanes; ++j) at[j] = static_cast<uint8_t>(values[j] + 128);
               });
    return status_done;  // other formats are left as they are
  }

  if (to.stored == stored64) to.stored = stored24;  // as all 16-bit access does
  if (from.stored == stored64) from.stored = stored24;
  const Blend blend = from.stored == stored8    ? blend_of<S8, 15>(from.lanes)
                      : from.stored == stored16 ? blend_of<S16, 15>(from.lanes)
                                                : blend_of<Upper16, 15>(from.lanes);
  const SampleKernels& k = kernels<SampleKernels>();
  resample(to, from, step, 32768, blend, BehindLast::silence,
           [&](int64_t i, int64_t n, const int16_t* values) {
             const size_t count = static_cast<size_t>(n);
             int16_t pairs[2 * block_frames];
             if (to.lanes < from.lanes) {
               k.mean16[to.stored](to.at(i), values, count);
             } else if (to.lanes > from.lanes) {
               k.pair16(pairs, values, count);
               k.from16[to.stored](to.at(i), pairs, 2 * count);
             } else {
               k.from16[to.stored](to.at(i), values, count * static_cast<size_t>(to.lanes));
             }
           });
  return status_done;
}
