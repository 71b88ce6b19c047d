// The loop over blocks of frames that every operation runs. Results are those of one frame after another:
// where a frame that is still to be read would be overwritten within a block, the block shrinks.
#pragma once

#include "core/overlap.hpp"
#include "wave/side.hpp"

namespace tessaro {

// Frames first..last - 1 of the two runs share no memory, or each lies where its counterpart does: any order
// of work gives the same.
template <class T>
bool independent(const Side<T>& dst, const Side<T>& src, int64_t first, int64_t last) {
  const int64_t n = last - first;
  return !share_memory(dst.address(first), n * dst.frame_bytes(), src.address(first),
                       n * src.frame_bytes()) ||
         (dst.address(first) == src.address(first) && dst.frame_bytes() == src.frame_bytes());
}

// The most frames, up to n, from frame i on that can be read before the first of them is written.
template <class T>
int64_t in_order(const Side<T>& dst, const Side<T>& src, int64_t i, int64_t n) {
  while (n > 1 && !may_read_ahead(dst.address(i), dst.frame_bytes(), src.address(i), src.frame_bytes(), n))
    n /= 2;
  return n;
}

inline int lanes_of(const Wave& a, const Wave& b) { return a.lanes == 2 || b.lanes == 2 ? 2 : 1; }

// Calls step(i, n, in) for blocks of frames i..i + n - 1 of the run that the destination has, in order, with
// the source's values.
template <class T, class Step>
void each_block(const Side<T>& dst, const Side<T>& src, int64_t count, Step step) {
  const int64_t first = dst.first_inside(), last = dst.last_inside(count);
  if (first >= last) return;
  const bool free = independent(dst, src, first, last);
  T room[2 * block_frames];
  for (int64_t i = first, n; i < last; i += n) {
    n = smaller(block_frames, last - i);
    if (!free) n = in_order(dst, src, i, n);
    step(i, n, src.read(i, n, room, free));
  }
}

// Writes op(out, in, i, n) over the destination's part of the run; where `mixing`, out holds the
// destination's values before.
template <class T, class Op>
void transform(const Side<T>& dst, const Side<T>& src, int64_t count, bool mixing, Op op) {
  T room[2 * block_frames];
  each_block(dst, src, count, [&](int64_t i, int64_t n, const T* in) {
    T* out = dst.place(i, room);
    if (mixing && out == room) dst.read(i, n, room);
    op(out, in, i, n);
    dst.write(i, n, out);
  });
}

// Calls op(out, in, n) with the stored samples of the run: n of the destination's, to be written over, and of
// the source's. Both have the same channels.
template <class T, class Op>
void transform_stored(const Side<T>& dst, const Side<T>& src, int64_t count, Op op) {
  const int64_t first = dst.first_inside(), last = dst.last_inside(count);
  if (first >= last) return;
  const bool free = independent(dst, src, first, last);
  uint8_t room[2 * block_frames * sizeof(double)];
  for (int64_t i = first, n; i < last; i += n) {
    n = free ? last - i : in_order(dst, src, i, smaller(block_frames, last - i));
    const uint8_t* in = src.samples(i, n, !free, room);
    op(dst.bytes_at(i), in, static_cast<size_t>(n * dst.channels()));
  }
}

// Writes the source's frames over the destination's part of the run.
template <class T>
void copy(const Side<T>& dst, const Side<T>& src, int64_t count) {
  each_block(dst, src, count, [&](int64_t i, int64_t n, const T* in) { dst.write(i, n, in); });
}
// The same for one layout and a scale that loses nothing of it.
template <class T>
void copy_bytes(const Side<T>& dst, const Side<T>& src, int64_t count) {
  const size_t bytes = stored_bytes[dst.stored()];
  transform_stored(dst, src, count,
                   [=](uint8_t* out, const uint8_t* in, size_t n) { std::memmove(out, in, n * bytes); });
}

}  // namespace tessaro
