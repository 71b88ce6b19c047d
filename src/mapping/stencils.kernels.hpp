// kernels: StencilKernels
#include "mapping/stencils.hpp"
#include "simd/rows.hpp"
#include "simd/rules.hpp"

namespace {

using tessaro::AreaPair;
using tessaro::StencilAreas;

template <class P>
struct Hard {
  P last;
  TESSARO_INLINE explicit Hard(uint32_t limit) : last(P::splat((limit << 24) - 1)) {}
  TESSARO_INLINE P operator()(P o, P i, P stencil) const { return select(above(stencil, last), o, i); }
};
template <class P>
struct Soft {
  const uint32_t* weights;
  TESSARO_INLINE P operator()(P o, P i, P stencil) const { return mix(i, o, lookup_alpha(stencil, weights)); }
};
template <class P>
struct Ramp {
  AlphaLine line;
  TESSARO_INLINE explicit Ramp(const AlphaLine& r) : line(r) {}
  TESSARO_INLINE P operator()(P o, P i, P stencil) const { return mix(i, o, ramp_alpha(stencil, line)); }
};
template <class P>
struct Fade {
  ConstantMix<P> mixing;
  TESSARO_INLINE explicit Fade(uint32_t w) : mixing(w) {}
  TESSARO_INLINE P operator()(P o, P i, P) const { return mixing(i, o); }
};

// dst[x] = rule(o[x], i[x], stencil[x])
template <class P, class Rule>
TESSARO_INLINE void stencil_row(uint8_t* dst, const uint8_t* o, const uint8_t* i, const uint8_t* s,
                                size_t width, const Rule& rule) {
  size_t x = 0;
  for (; x + P::lanes <= width; x += P::lanes)
    rule(P::load(o + 4 * x), P::load(i + 4 * x), P::load(s + 4 * x)).store(dst + 4 * x);
  if (const size_t rest = width - x)
    rule(P::load(o + 4 * x, rest), P::load(i + 4 * x, rest), P::load(s + 4 * x, rest))
        .store(dst + 4 * x, rest);
}

// The same, written past the caches from the first whole vector on.
template <class Rule>
TESSARO_INLINE void stream_stencil_row(uint8_t* dst, const uint8_t* o, const uint8_t* i, const uint8_t* s,
                                       size_t width, const Rule& rule) {
  size_t x = pixels_to_align(dst);
  stencil_row<Px>(dst, o, i, s, x, rule);
  for (; x + Px::lanes <= width; x += Px::lanes)
    rule(Px::load(o + 4 * x), Px::load(i + 4 * x), Px::load(s + 4 * x)).stream(dst + 4 * x);
  stencil_row<Px>(dst + 4 * x, o + 4 * x, i + 4 * x, s + 4 * x, width - x, rule);
}

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
      stencil_row<One>(dst, o.at, i.at, s.at, width, Rule<One>{arg});
    else if (streaming.on() && can_align(dst))
      stream_stencil_row(dst, o.at, i.at, s.at, width, rule);
    else
      stencil_row<Px>(dst, o.at, i.at, s.at, width, rule);
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
