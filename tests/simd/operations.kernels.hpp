// kernels: VocabularyKernels +avx512vbmi
#include "simd/operations.hpp"

#include "simd/scalar.hpp"

namespace {

using tessaro::Operation;
using tessaro::Takes;

TESSARO_INLINE Px pixel(Px a) { return a; }
TESSARO_INLINE Px pixel(Px::Half a) { return whole(a); }

const AlphaLine falling{65534, -1 << 24, 15}, rising{257, 128, 8}, flat{0, 70000, 8};
constexpr FallingLine usual{0.7f}, steep{300.0f}, tiny{0x1p-47f}, least_that_counts{0x1.8p-46f},
    negative{-1.0f}, nothing{__builtin_nanf("")};

struct Table {
  uint32_t at[256];
  constexpr Table() : at{} {
    for (uint32_t i = 0; i < 256; ++i) at[i] = 65535 - 257 * i;
  }
};
constexpr Table table;

// Reads three words a pixel, as pixels a, b, c and as halves g, h, and writes the expression.
#define OPERATION(takes, ...)                                                                   \
  {                                                                                             \
#__VA_ARGS__, Takes::takes,                                                                   \
   [](const uint32_t* pa, const uint32_t* pb, const uint32_t* pc, uint32_t* out, size_t n) { \
     for (size_t x = 0; x < n; x += Px::lanes) {                                            \
       [[maybe_unused]] const Px a = Px::load(pa + x), b = Px::load(pb + x), c = Px::load(pc + x); \
       [[maybe_unused]] const Px::Half g = halves(a), h = halves(b);                             \
       pixel(__VA_ARGS__).store(out + x);                                                        \
     }                                                                                           \
   } \
  }
// The same for four vectors at a time, whose bytes go to `to`.
#define PACKED(takes, bytes, ...)                                                               \
  {                                                                                             \
#__VA_ARGS__, Takes::takes,                                                                   \
   [](const uint32_t* pa, const uint32_t*, const uint32_t*, uint32_t* out, size_t n) {      \
     auto* to = reinterpret_cast<uint8_t*>(out);                                                 \
     for (size_t x = 0; x < n; x += 4 * Px::lanes, to += 4 * Px::lanes * bytes) {           \
       const auto p = [&](size_t k) { return Px::load(pa + x + k * Px::lanes); };                \
       __VA_ARGS__;                                                                              \
     }                                                                                           \
   } \
  }

const Operation operations[] = {
    OPERATION(any, kept(a)),
    OPERATION(any, add_sat(a, b)),
    OPERATION(any, sub_sat(a, b)),
    OPERATION(any, add(a, b)),
    OPERATION(any, sub(a, b)),
    OPERATION(any, min(a, b)),
    OPERATION(any, max(a, b)),
    OPERATION(any, difference(a, b)),
    OPERATION(any, a& b),
    OPERATION(any, a | b),
    OPERATION(any, a ^ b),
    OPERATION(any, ~a),
    OPERATION(any, and_not(a, b)),
    OPERATION(any, choose_bits(a, b, c)),
    OPERATION(any, shl<5>(a)),
    OPERATION(any, shr<5>(a)),
    OPERATION(any, shl(a, 31)),
    OPERATION(any, shr(a, 31)),
    OPERATION(any, alphas(a)),
    OPERATION(any, with_alpha(a, b)),
    OPERATION(any, select(equal(a, b), b, c)),
    OPERATION(any, select(equal(a& b, b), b, c)),
    OPERATION(any, select(above(a, b), a, c)),
    OPERATION(any, even(a)),
    OPERATION(any, odd(a)),
    OPERATION(any, even_up<6>(a)),
    OPERATION(any, odd_up<6>(a)),
    OPERATION(bytes_in_halves, join(g, h)),
    OPERATION(any, join_sat(g, h)),
    OPERATION(any, join_high(g, h)),
    OPERATION(any,
              unpaired(paired(a, b).first& Px::Half::splat(255), paired(a, b).second& Px::Half::splat(255))),
    OPERATION(any, unpaired(shr<8>(paired(a, b).first), shr<8>(paired(a, b).second))),
    OPERATION(any, alpha_halves(a)),
    OPERATION(any, colour_sums<6>(a, -10000, 99)),
    OPERATION(any, colour_sums<0>(a, 21846, 21846)),
    OPERATION(any, lookup_alpha(a, table.at)),
    OPERATION(any, ramp_alpha(a, falling)),
    OPERATION(any, ramp_alpha(a, rising)),
    OPERATION(any, ramp_alpha(a, flat)),
    OPERATION(any, g + h),
    OPERATION(any, g - h),
    OPERATION(any, g* h),
    OPERATION(any, g& h),
    OPERATION(any, g | h),
    OPERATION(any, shl<3>(g)),
    OPERATION(any, shr<3>(g)),
    OPERATION(any, min(g, h)),
    OPERATION(any, max(g, h)),
    OPERATION(any, mul_high(g, h)),
    OPERATION(any, mul_high_signed(g, h)),
    OPERATION(sums, sum_in_byte(g, h)),
    OPERATION(any, plus_equal(g, h)),
    OPERATION(lengths, falling_weights(g, h, usual)),
    OPERATION(lengths, falling_weights(g, h, steep)),
    OPERATION(lengths, falling_weights(g, h, tiny)),
    OPERATION(lengths, falling_weights(g, h, least_that_counts)),
    OPERATION(lengths, falling_weights(g, h, negative)),
    OPERATION(lengths, falling_weights(g, h, nothing)),
    OPERATION(any, add32(a, b)),
    OPERATION(any, pair_products(g, h)),
    OPERATION(any, trunc_dot(a, b, c, 0.587, 0.114, 0.299)),
    OPERATION(any, trunc_dot(a& Px::splat(255), b& Px::splat(255), c& Px::splat(255), 1e9, -0.5, 2e300)),
    OPERATION(any, sub32(a, b)),
    OPERATION(any, Px::load_halfwords(reinterpret_cast<const uint8_t*>(pa) + 2 * x)),
    OPERATION(any, Px::load_triples(reinterpret_cast<const uint8_t*>(pa) + 3 * x)),
    PACKED(any, 4, const auto [one, two] = pixels(halfwords(p(0), p(1))); one.store(to);
           two.store(to + 4 * Px::lanes); p(2).store(to + 8 * Px::lanes); p(3).store(to + 12 * Px::lanes)),
    PACKED(any, 2, store_halfwords(to, halves(halfwords(p(0), p(1)).lower));
           store_halfwords(to + 4 * Px::lanes, halves(halfwords(p(2), p(3)).lower))),
    PACKED(any, 2, store_halfwords(to, halves(halfwords(p(0), p(1)).upper));
           store_halfwords(to + 4 * Px::lanes, halves(halfwords(p(2), p(3)).upper))),
    PACKED(any, 3, store_triples(to, p(0), p(1), p(2), p(3))),
    PACKED(lowest_byte, 1, store_bytes(to, p(0), p(1), p(2), p(3))),
};

}  // namespace

TESSARO_KERNELS(VocabularyKernels){
    .lanes = Px::lanes,
    .begin = operations,
    .end = operations + sizeof operations / sizeof *operations,
    .part =
        [](const uint32_t* exact, const uint32_t* in, size_t n, uint32_t* out) {
          Px::load(exact, n).store(out);
          Px::load(in).store(out + Px::lanes, n);
        },
    .unzip =
        [](const uint32_t* in, uint32_t* out) {
          const auto apart = unzip(Px::load(in), Px::load(in + Px::lanes));
          apart.even.store(out);
          apart.odd.store(out + Px::lanes);
        },
    .halve =
        [](const uint32_t* in, uint32_t* out) {
          const auto sums = neighbour_sums(Px::load(in), Px::load(in + Px::lanes));
          from_sums(shr<1>(sums.first), shr<1>(sums.second)).store(out);
        },
    .quads =
        [](const uint32_t* in, uint16_t* out) {
          const auto* p = reinterpret_cast<const uint8_t*>(in);
          (Quad::of(p) * Quad::load(reinterpret_cast<const uint16_t*>(in + 2)) + Quad::splat(40000))
              .store(out);
        },
    .reverse =
        [](const uint32_t* in, uint32_t* out) {
          reversed(Px::load(in)).stream(out);
          Px::fence();
        },
    .zeros = [](const uint32_t* in) { return Px::bits(equal(Px::load(in), Px::splat(0))); },
    .bits =
        [](const uint32_t* in, uint8_t* out) {
          const auto p = [in](size_t k) { return Px::load(in + k * Px::lanes); };
          store_bits(out, p(0), p(1), p(2), p(3));
        },
    .transpose =
        [](uint32_t* square) {
          Px rows[Px::lanes];
          for (size_t y = 0; y < Px::lanes; ++y) rows[y] = Px::load(square + y * Px::lanes);
          transpose_square(rows);
          for (size_t y = 0; y < Px::lanes; ++y) rows[y].store(square + y * Px::lanes);
        },
    .pick =
        [](const uint32_t* in, const uint32_t* where, uint32_t* out) {
          const Px a = Px::load(in), b = Px::load(in + Px::lanes), at = Px::load(where);
          picked(a, at & Px::splat(Px::lanes - 1)).store(out);
          picked(a, b, at).store(out + Px::lanes);
          gather(reinterpret_cast<const uint8_t*>(in + Px::lanes), sub32(at, Px::splat(Px::lanes)))
              .store(out + 2 * Px::lanes);
        },
    .look_up = [](const uint8_t* table, const uint32_t* in,
                  uint32_t* out) { look_up(ByteTable<Px>::load(table), Px::load(in)).store(out); },
};
