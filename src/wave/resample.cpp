// Buffers stretched by a constant ratio.
#include "wave/resample.hpp"

#include "core/clip.hpp"
#include "wave/blocks.hpp"

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

// What is behind the last frame of the source: that frame itself, or silence.
enum class BehindLast { itself, silence };

void resample(const Wave& to, const Wave& from, double ratio, int32_t fine, BehindLast behind_last) {
  const int64_t inside = frames_below(static_cast<double>(from.count), ratio, to.count);
  const auto before = [ratio](int64_t i) { return static_cast<int64_t>(static_cast<double>(i) * ratio); };
  // A source that the destination overwrites is taken one frame after another.
  const bool apart = !share_memory(to.data, to.bytes(), from.data, from.bytes());
  const int lanes = lanes_of(to, from);
  const Side<int16_t> dst(to, 0, lanes), src(from, 0, lanes);
  const auto blend = kernels<ResampleKernels>().blend[lanes - 1];
  // So many that a block holds what is read for them. Where they lie far apart, what is between them is not
  // worth it.
  static_assert(resample_frames + 2 <= block_frames);
  const int64_t most = !apart || ratio > 128 ? 1
                       : ratio < 1           ? resample_frames
                                             : static_cast<int64_t>(resample_frames / ratio);
  int16_t read[2 * block_frames], room[2 * block_frames];
  for (int64_t i = 0, n; i < inside; i += n) {
    n = smaller(most, inside - i);
    const int64_t first = before(i), last = before(i + n - 1);
    const int16_t* in = src.read(first, last - first + 2, read, true);
    if (last == from.count - 1 && behind_last == BehindLast::itself)
      std::memcpy(read + (last - first + 1) * lanes, read + (last - first) * lanes,
                  2 * static_cast<size_t>(lanes));
    int16_t* out = dst.place(i, room);
    blend(out, in, static_cast<int32_t>(first), static_cast<int32_t>(i), static_cast<size_t>(n), ratio, fine);
    dst.write(i, n, out);
  }
  if (inside < to.count) to.silence(to.at(inside), to.count - inside);
}

}  // namespace

extern "C" int32_t TESSARO_CALL waveExpand(const WaveBuffer* dst, const WaveBuffer* src, float ratio) {
  Wave to, from;
  if (!open_wave(dst, to) || !open_wave(src, from) || !(ratio >= 0.0f)) return status_nothing;
  const double step = static_cast<double>(ratio);

  const bool same = to.stored == from.stored && to.lanes == from.lanes;
  if (same && (to.stored == stored24 || to.stored == stored64)) return status_done;  // left as it is
  if (to.stored == stored64) to.stored = stored24;  // as all 16-bit access does
  if (from.stored == stored64) from.stored = stored24;
  // Frames of one layout are blended with 8 bits of the place.
  if (same)
    resample(to, from, step, 32767 & ~127, BehindLast::itself);
  else
    resample(to, from, step, 32767, BehindLast::silence);
  return status_done;
}
