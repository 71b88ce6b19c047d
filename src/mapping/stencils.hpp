// Kernels of the stencil transitions.
#pragma once

#include <cstdint>

#include "core/clip.hpp"
#include "core/weights.hpp"
#include "simd/dispatch.hpp"

namespace tessaro {

struct StencilAreas {
  struct Source {
    const uint8_t* at;
    ptrdiff_t pitch;
  };
  uint8_t* dst;
  ptrdiff_t dst_pitch;
  Source outgoing, incoming, stencil;
  ptrdiff_t width, height;
};

struct StencilKernels {
  // The incoming pixel where the stencil's alpha is below the limit (1..255), else the outgoing one.
  void (*hard)(const StencilAreas&, uint32_t limit);
  // The incoming pixel mixed towards the outgoing one with the weight of the stencil's alpha, or with one
  // weight.
  void (*soft)(const StencilAreas&, const uint32_t* weights);
  void (*ramp)(const StencilAreas&, const AlphaLine&);
  void (*fade)(const StencilAreas&, uint32_t weight);
  // Mixes towards the colours raised and lowered, with the alpha factor of the source.
  void (*add_signed)(const AreaPair&, uint32_t raise, uint32_t lower, uint32_t factor);
};
TESSARO_DECLARE_KERNELS(StencilKernels);

}  // namespace tessaro
