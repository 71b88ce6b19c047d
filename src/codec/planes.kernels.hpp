// kernels: PlaneKernels
#include "codec/planes.hpp"
#include "simd/lanes.hpp"

namespace {

// The first byte of plane k of n bytes in `count` channels.
TESSARO_INLINE size_t plane_start(size_t n, size_t count, size_t k) {
  return n / count * k + (k < n % count ? k : n % count);
}

// Whether the operations on planes of 32 bytes are instructions; without, the loops below become vectors.
constexpr bool by_32 = Px::lanes >= 8;

// In the wide forms the memories do not overlap.
template <size_t count>
struct Planes {
  static void encode(const uint8_t* __restrict src, uint8_t* __restrict dst, size_t n) {
    const size_t whole = n / count;
    size_t done = 0;
    if constexpr (count == 2 && by_32)
      for (; done + 32 <= whole; done += 32) {
        Byte32 a, b;
        unzipped(src + 2 * done, a, b);
        put(dst + done, a);
        put(dst + plane_start(n, 2, 1) + done, b);
      }
    for (size_t i = done; i < whole; ++i)
      for (size_t k = 0; k < count; ++k) dst[plane_start(n, count, k) + i] = src[count * i + k];
    for (size_t k = 0; k < n % count; ++k) dst[plane_start(n, count, k) + whole] = src[count * whole + k];
  }
  static void decode(const uint8_t* __restrict src, uint8_t* __restrict dst, size_t n) {
    const size_t whole = n / count;
    size_t done = 0;
    if constexpr (count > 2 && by_32)
      for (; done + 32 <= whole; done += 32) {
        const auto plane = [=](size_t k) { return get<Byte32>(src + plane_start(n, count, k) + done); };
        if constexpr (count == 3) zipped(dst + 3 * done, plane(0), plane(1), plane(2));
        if constexpr (count == 4) zipped(dst + 4 * done, plane(0), plane(1), plane(2), plane(3));
      }
    for (size_t i = done; i < whole; ++i)
      for (size_t k = 0; k < count; ++k) dst[count * i + k] = src[plane_start(n, count, k) + i];
    for (size_t k = 0; k < n % count; ++k) dst[count * whole + k] = src[plane_start(n, count, k) + whole];
  }
};

// One byte after another, whatever overlaps.
template <size_t count>
struct InOrder {
  static void encode(const uint8_t* src, uint8_t* dst, size_t n) {
    for (size_t k = 0; k < count; ++k)
      for (size_t i = k; i < n; i += count) *dst++ = src[i];
  }
  static void decode(const uint8_t* src, uint8_t* dst, size_t n) {
    for (size_t k = 0; k < count; ++k)
      for (size_t i = k; i < n; i += count) dst[i] = *src++;
  }
};

template <class T>
constexpr tessaro::PlaneKernels::Pair both = {T::encode, T::decode};
template <size_t count>
constexpr tessaro::PlaneKernels::Pair planes = Px::lanes > 1 ? both<Planes<count>> : both<InOrder<count>>;

}  // namespace

TESSARO_KERNELS(PlaneKernels){.of2 = planes<2>, .of3 = planes<3>, .of4 = planes<4>};
