// kernels: KeyingKernels
#include "pixel/keying.hpp"

#include "simd/walk.hpp"

namespace {

using tessaro::Area;

template <class P>
struct KeyOut {
  P key;
  TESSARO_INLINE explicit KeyOut(uint32_t k) : key(P::splat(k & 0x00FFFFFF)) {}
  TESSARO_INLINE P operator()(P d) const {
    const P colour = d & P::splat(0x00FFFFFF);
    return select(equal(colour, key), colour, colour | P::splat(0xFF000000));
  }
};

template <class P>
TESSARO_INLINE auto is_clear(P a) {
  return above(P::splat(0x01000000), a);
}

// The colour of a clear pixel becomes the mean of those neighbours that are not clear, if there are any. A
// neighbour that does not exist is given as the pixel itself: it is clear, and then does not count.
template <class P>
TESSARO_INLINE P filled(P here, P left, P right, P up, P down) {
  using H = typename P::Half;
  const P none = P::splat(0), one = P::splat(0x00010001);
  H even_sum = H::splat(0), odd_sum = H::splat(0);
  P count = none;  // in both lanes
  const auto take = [&](P a) {
    const P kept = select(is_clear(a), none, a);
    even_sum = even_sum + even(kept);
    odd_sum = odd_sum + odd(kept);
    count = add(count, select(is_clear(a), none, one));
  };
  take(left);
  take(right);
  take(up);
  take(down);
  // 32768 / count: exact for sums of so many bytes.
  const P inverse =
      select(equal(count, one), P::splat(0x80008000),
             select(equal(count, P::splat(0x00020002)), P::splat(0x40004000),
                    select(equal(count, P::splat(0x00030003)), P::splat(0x2AAB2AAB), P::splat(0x20002000))));
  const auto mean = [inverse](H sum) { return mul_high(shl<1>(sum), halves(inverse)); };
  const P colour = join(mean(even_sum), mean(odd_sum)) & P::splat(0x00FFFFFF);
  return select(is_clear(here), select(equal(count, none), here, colour), here);
}

// In place, and yet every vector may read what others have written: alphas do not change, and the colour of a
// clear pixel never counts. Only where rows run into one another pixels go one by one.
void fill_keyed(const Area& n) {
  constexpr ptrdiff_t lanes = Px::lanes;
  const ptrdiff_t vectors_end = rows_apart(n) ? n.width : 0;
  uint8_t* row = n.at;
  for (ptrdiff_t y = 0; y < n.height; ++y, row += n.pitch) {
    const uint8_t* up = y > 0 ? row - n.pitch : row;
    const uint8_t* down = y + 1 < n.height ? row + n.pitch : row;
    const auto single = [&](ptrdiff_t x) {
      const auto at = [x](const uint8_t* p, ptrdiff_t by = 0) { return One::load(p + 4 * (x + by)); };
      filled(at(row), at(row, x > 0 ? -1 : 0), at(row, x + 1 < n.width ? 1 : 0), at(up), at(down))
          .store(row + 4 * x);
    };
    single(0);
    ptrdiff_t x = 1;
    for (; x + lanes < vectors_end; x += lanes) {
      const Px here = Px::load(row + 4 * x);
      if (Px::bits(is_clear(here)) == 0) continue;
      filled(here, Px::load(row + 4 * (x - 1)), Px::load(row + 4 * (x + 1)), Px::load(up + 4 * x),
             Px::load(down + 4 * x))
          .store(row + 4 * x);
    }
    for (; x < n.width; ++x) single(x);
  }
}

}  // namespace

TESSARO_KERNELS(KeyingKernels){
    .key_out = [](const Area& n, uint32_t key) { walk1<KeyOut>(n, key); },
    .fill_keyed = fill_keyed,
};
