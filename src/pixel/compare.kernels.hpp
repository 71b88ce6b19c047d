// kernels: CompareKernels
#include "pixel/compare.hpp"

#include "simd/walk.hpp"

namespace {

using tessaro::AreaPair;

// Each test gives the bits that must all be 0.
#define TESSARO_TEST(Name, must_be_zero)                                         \
  struct Name {                                                                  \
    template <class P>                                                           \
    TESSARO_INLINE static P faults([[maybe_unused]] P a, [[maybe_unused]] P b) { \
      return must_be_zero;                                                       \
    }                                                                            \
  }
TESSARO_TEST(EqualPixels, a ^ b);
TESSARO_TEST(EqualColours, (a ^ b) & P::splat(0x00FFFFFF));
TESSARO_TEST(EqualAlphas, (a ^ b) & P::splat(0xFF000000));
TESSARO_TEST(Transparent, a& P::splat(0xFF000000));
TESSARO_TEST(Opaque, and_not(P::splat(0xFF000000), a));
TESSARO_TEST(BlackOrWhite, (a ^ shr<1>(a)) & P::splat(0x007FFFFF));  // all 24 bits alike
TESSARO_TEST(Grey, (a ^ shr<8>(a)) & P::splat(0x0000FFFF));

template <class P>
TESSARO_INLINE bool any_bit(P a) {
  constexpr uint32_t all = (1u << P::lanes) - 1;
  return P::bits(equal(a, P::splat(0))) != all;
}

template <class Test>
bool holds(const AreaPair& areas) {
  AreaPair n = flattened(areas);
  constexpr size_t lanes = Px::lanes;
  const auto width = static_cast<size_t>(n.width);
  for (; n.height > 0; --n.height, n.dst += n.dst_pitch, n.src += n.src_pitch) {
    const auto faults = [&](size_t x) {
      return Test::faults(Px::load(n.dst + 4 * x), Px::load(n.src + 4 * x));
    };
    size_t x = 0;
    for (; x + 4 * lanes <= width; x += 4 * lanes)
      if (any_bit(faults(x) | faults(x + lanes) | faults(x + 2 * lanes) | faults(x + 3 * lanes)))
        return false;
    for (; x + lanes <= width; x += lanes)
      if (any_bit(faults(x))) return false;
    for (; x < width; ++x)
      if (any_bit(Test::faults(One::load(n.dst + 4 * x), One::load(n.src + 4 * x)))) return false;
  }
  return true;
}

template <class P>
struct CountNear {
  P mask, tolerance;
  // 1 for each pixel that counts.
  TESSARO_INLINE P operator()(P a, P b) const {
    const P one = P::splat(0x01010101), none = P::splat(0);
    const P apart = difference(a & mask, b & mask);
    const P near_bytes = sub_sat(one, sub_sat(apart, tolerance));
    return select(equal(near_bytes, none), none, select(equal(apart, none), none, P::splat(1)));
  }
};

int32_t count_near(const AreaPair& areas, uint32_t mask, uint32_t tolerance) {
  constexpr size_t lanes = Px::lanes;
  const CountNear<Px> many{Px::splat(mask), Px::splat(tolerance * 0x01010101u)};
  const CountNear<One> one{One::splat(mask), One::splat(tolerance * 0x01010101u)};
  const auto width = static_cast<size_t>(areas.width);
  uint32_t total = 0;
  AreaPair n = areas;
  for (; n.height > 0; --n.height, n.dst += n.dst_pitch, n.src += n.src_pitch) {
    size_t x = 0;
    while (x + lanes <= width) {
      Px counts = Px::splat(0);  // in bytes, which hold 255
      for (int i = 0; i < 255 && x + lanes <= width; ++i, x += lanes)
        counts = add(counts, many(Px::load(n.dst + 4 * x), Px::load(n.src + 4 * x)));
      uint32_t each[lanes];
      counts.store(each);
      for (const uint32_t count : each) total += count;
    }
    for (; x < width; ++x) total += one(One::load(n.dst + 4 * x), One::load(n.src + 4 * x)).v;
  }
  return static_cast<int32_t>(total);
}

size_t first_content(const uint8_t* row, size_t width, uint32_t mask, uint32_t key) {
  constexpr size_t lanes = Px::lanes;
  const Px m = Px::splat(mask), k = Px::splat(key);
  const auto other = [&](size_t x) { return (Px::load(row + 4 * x) & m) ^ k; };
  size_t x = 0;
  for (; x + 4 * lanes <= width; x += 4 * lanes)
    if (any_bit(other(x) | other(x + lanes) | other(x + 2 * lanes) | other(x + 3 * lanes))) break;
  for (; x + lanes <= width && !any_bit(other(x)); x += lanes) {
  }
  for (; x < width && (One::load(row + 4 * x).v & mask) == key; ++x) {
  }
  return x;
}

size_t end_of_content(const uint8_t* row, size_t width, uint32_t mask, uint32_t key) {
  constexpr size_t lanes = Px::lanes;
  const Px m = Px::splat(mask), k = Px::splat(key);
  const auto other = [&](size_t end) { return (Px::load(row + 4 * (end - lanes)) & m) ^ k; };
  size_t end = width;
  for (; end >= 4 * lanes; end -= 4 * lanes)
    if (any_bit(other(end) | other(end - lanes) | other(end - 2 * lanes) | other(end - 3 * lanes))) break;
  for (; end >= lanes && !any_bit(other(end)); end -= lanes) {
  }
  for (; end > 0 && (One::load(row + 4 * (end - 1)).v & mask) == key; --end) {
  }
  return end;
}

}  // namespace

TESSARO_KERNELS(CompareKernels){
    .holds = {holds<EqualPixels>, holds<EqualColours>, holds<EqualAlphas>, holds<Transparent>, holds<Opaque>,
              holds<BlackOrWhite>, holds<Grey>},
    .count_near = count_near,
    .first_content = first_content,
    .end_of_content = end_of_content,
};
