// Overlap. Images and buffers may share memory, and results are then those of one pixel after another, left
// to right and top to bottom. Work that goes about it in another way asks one of four questions first.
//
// 1. share_memory: do two pieces of memory meet? Where they do not, any order of work gives the same.
// 2. reads_own_writes: would a vector read what an earlier pixel of the same vector should have written? Only
//    where the destination lies ahead of the source, by less than the vector: pixel i writes what pixel i +
//    ahead reads. Where it lies behind, each pixel is read before it is written, by vectors as by single
//    pixels; at the same place likewise.
// 3. may_read_ahead: may any number of pixels be read before the first of them is written, where pixels of
//    source and destination differ in size? Yes where the runs do not meet, or where the destination begins
//    no later and its pixels are no larger: then every write stays behind the reads still to come.
// 4. rows_apart: does no row of an area run into the next one? Where one does, a place belongs to several
//    rows, and the order of the rows shows in what is left there.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tessaro {

// The area of one image that an operation works on.
struct Area {
  uint8_t* at;
  ptrdiff_t pitch;
  ptrdiff_t width, height;  // pixels, rows; both at least 1
};
struct AreaPair {
  uint8_t* dst;
  ptrdiff_t dst_pitch;
  const uint8_t* src;
  ptrdiff_t src_pitch;
  ptrdiff_t width, height;
};

inline Area dst_of(const AreaPair& n) { return {n.dst, n.dst_pitch, n.width, n.height}; }
inline Area src_of(const AreaPair& n) {
  return {const_cast<uint8_t*>(n.src), n.src_pitch, n.width, n.height};
}

// Addresses may be numbers as well: what lies outside a buffer has one too, which need not fit a pointer.
template <class Address>
[[gnu::always_inline]] constexpr bool share_memory(Address a, Address a_bytes, Address b, Address b_bytes) {
  return a < b ? b - a < a_bytes : a - b < b_bytes;
}
[[gnu::always_inline]] inline bool share_memory(const void* a, size_t a_bytes, const void* b,
                                                size_t b_bytes) {
  return share_memory<uintptr_t>(reinterpret_cast<uintptr_t>(a), a_bytes, reinterpret_cast<uintptr_t>(b),
                                 b_bytes);
}
// Areas that lie side by side in one image do not meet, although the spans of memory from their first to
// their last byte do.
bool share_memory(const Area& a, const Area& b);

[[gnu::always_inline]] inline bool reads_own_writes(const void* dst, const void* src, size_t bytes) {
  const uintptr_t ahead = reinterpret_cast<uintptr_t>(dst) - reinterpret_cast<uintptr_t>(src);
  return ahead != 0 && ahead < bytes;
}

template <class Address>
[[gnu::always_inline]] constexpr bool may_read_ahead(Address dst, Address dst_bytes, Address src,
                                                     Address src_bytes, Address count) {
  if (dst <= src && dst_bytes <= src_bytes) return true;
  return !share_memory<Address>(dst, dst_bytes * count, src, src_bytes * count);
}
[[gnu::always_inline]] inline bool may_read_ahead(const void* dst, size_t dst_bytes, const void* src,
                                                  size_t src_bytes, size_t count) {
  return may_read_ahead<uintptr_t>(reinterpret_cast<uintptr_t>(dst), dst_bytes,
                                   reinterpret_cast<uintptr_t>(src), src_bytes, count);
}

inline bool rows_apart(const Area& a) { return a.pitch >= 4 * a.width || -a.pitch >= 4 * a.width; }

}  // namespace tessaro
