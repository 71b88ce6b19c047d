// kernels: StencilKernels
#include "mapping/stencils.hpp"
#include "simd/rows.hpp"
#include "simd/rules.hpp"

namespace {

using tessaro::AreaPair;
using tessaro::StencilAreas;

// d is not read: dst = rule(d, outgoing, incoming, stencil).
template <class P>
struct Hard {
  P last;
  TESSARO_INLINE explicit Hard(uint32_t limit) : last(P::splat((limit << 24) - 1)) {}
  TESSARO_INLINE P operator()(P, P o, P i, P stencil) const { return select(above(stencil, last), o, i); }
};
template <class P>
struct Soft {
  const uint32_t* weights;
  TESSARO_INLINE P operator()(P, P o, P i, P stencil) const {
    return mix(i, o, lookup_alpha(stencil, weights));
  }
};
template <class P>
struct Ramp {
  AlphaLine line;
  TESSARO_INLINE explicit Ramp(const AlphaLine& r) : line(r) {}
  TESSARO_INLINE P operator()(P, P o, P i, P stencil) const { return mix(i, o, ramp_alpha(stencil, line)); }
};
template <class P>
struct Fade {
  ConstantMix<P> mixing;
  TESSARO_INLINE explicit Fade(uint32_t w) : mixing(w) {}
  TESSARO_INLINE P operator()(P, P o, P i, P) const { return mixing(i, o); }
};

template <template <class> class Rule, class Arg>
void walk_stencil(const StencilAreas& n, Arg arg) {
  const Rule<Px> rule{arg};
  const auto width = static_cast<size_t>(n.width);
  uint8_t* dst = n.dst;
  auto o = n.outgoing, i = n.incoming, s = n.stencil;
  // What is written over one of its sources lies in the caches already.
  const bool over_source = dst == o.at || dst == i.at || dst == s.at;
  const Streaming streaming(over_source ? 0 : n.width * n.height, n.width);
  for (ptrdiff_t y = 0; y < n.height; ++y) {
    constexpr size_t ahead = 4 * Px::lanes;
    if (reads_own_writes(dst, o.at, ahead) || reads_own_writes(dst, i.at, ahead) ||
        reads_own_writes(dst, s.at, ahead)) [[unlikely]]
      walk_row<One>(dst, width, Rule<One>{arg}, o.at, i.at, s.at);
    else if (streaming.on() && can_align(dst))
      stream_row<Px>(dst, width, rule, o.at, i.at, s.at);
    else
      walk_row<Px>(dst, width, rule, o.at, i.at, s.at);
    dst += n.dst_pitch, o.at += o.pitch, i.at += i.pitch, s.at += s.pitch;
  }
}

template <class P>
struct AddSigned {
  P raise, lower;
  AlphaWeights<P> weights;
  TESSARO_INLINE AddSigned(uint32_t r, uint32_t l, uint32_t factor)
      : raise(P::splat(r)), lower(P::splat(l)), weights(factor) {}
  TESSARO_INLINE P operator()(P d, P s) const {
    return mix(d, sub_sat(add_sat(d, raise), lower), weights(s));
  }
};

}  // namespace

TESSARO_KERNELS(StencilKernels){
    .hard = walk_stencil<Hard, uint32_t>,
    .soft = walk_stencil<Soft, const uint32_t*>,
    .ramp = walk_stencil<Ramp, const AlphaLine&>,
    .fade = walk_stencil<Fade, uint32_t>,
    .add_signed = [](const AreaPair& n, uint32_t raise, uint32_t lower,
                     uint32_t factor) { walk2<AddSigned>(n, raise, lower, factor); },
};
