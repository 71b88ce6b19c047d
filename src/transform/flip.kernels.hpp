// kernels: FlipKernels
#include "simd/rules.hpp"
#include "simd/walk.hpp"
#include "transform/flip.hpp"

namespace {

using tessaro::AreaPair;

// The source lies in front where its alpha is the greater one.
template <class P>
TESSARO_INLINE typename P::Mask in_front(P s, P d) {
  return above(s, d | P::splat(0x00FFFFFF));
}

template <class P>
struct Depth {
  TESSARO_INLINE P operator()(P d, P s) const { return select(in_front(s, d), s, d); }
};

template <class P>
struct DepthMask {
  P keep;
  TESSARO_INLINE explicit DepthMask(uint32_t k) : keep(P::splat(k)) {}
  TESSARO_INLINE P operator()(P d, P s) const { return select(in_front(s, d), choose_bits(keep, d, s), d); }
};

}  // namespace

TESSARO_KERNELS(FlipKernels){
    .blend = [](const AreaPair& n, uint32_t factor) { walk2<AlphaMix>(n, factor); },
    .depth = [](const AreaPair& n) { walk2<Depth>(n); },
    .depth_mask = [](const AreaPair& n, uint32_t keep) { walk2<DepthMask>(n, keep); },
};
