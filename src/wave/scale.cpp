// Frames times a gain at the float scale; see the kernels for what a multiplier saves.
#include "wave/scale.hpp"

#include <cmath>

#include "wave/blocks.hpp"

namespace tessaro {

namespace {

// The two fractions around a value that are neighbours in the Farey sequence of this order: none whose
// denominator is at most `order` lies between them.
struct Neighbours {
  double below[2] = {0, 1}, above[2] = {1, 1};  // numerator and denominator
  Neighbours(double value, double order) {
    // Each turn adds one of the fractions to the other, side by side, as often as the value allows.
    const auto add = [order](double to[2], const double what[2], double times) {
      const double room = std::floor((order - to[1]) / what[1]);
      times = times < room ? std::floor(times) : room;
      to[0] += times * what[0];
      to[1] += times * what[1];
    };
    while (below[1] + above[1] <= order) {
      const double to_below = value * below[1] - below[0], to_above = above[0] - value * above[1];
      if (to_below >= to_above)
        add(below, above, to_above > 0 ? to_below / to_above : order);
      else
        add(above, below, to_below > 0 ? to_above / to_below : order);
    }
  }
};

// The product of a code and the gain, before it is truncated, carries the roundings of a few doubles. They
// show only where it lies that close to an integer, and then the gain lies as close to a fraction whose
// denominator is a code. Where neither of the two fractions around it is close, any gain between these
// truncates alike.
bool find_multiplier(double gain, int32_t unit, Multiplier& m) {
  const double most = gain > 1 ? std::floor((unit + 1) / gain) + 1 : unit + 1;
  const double whole = std::floor(gain), fraction = gain - whole;
  const Neighbours near(fraction, most);
  const double below = near.below[0], of_below = near.below[1], above = near.above[0],
               of_above = near.above[1];
  const double closest = 0x1p-50;  // of the product: six roundings of at most 2^-53 each
  if (below + whole > 0 && fraction * of_below - below <= (below + whole * of_below) * closest) return false;
  if (above - fraction * of_above <= (above + whole * of_above) * closest) return false;
  m.gain = whole + (below + above) / (of_below + of_above);
  if (most > 65535) return true;
  // The lower one rounded up is still below the upper one: they are at least 1 / most^2 apart.
  const int bits = unit < 256 ? 16 : 32;
  const auto part = static_cast<uint64_t>(std::ceil(std::ldexp(below, bits) / of_below)) << (32 - bits);
  m.whole = static_cast<uint16_t>(whole);
  m.high = static_cast<uint16_t>(part >> 16);
  m.low = static_cast<uint16_t>(part);
  m.most = static_cast<uint16_t>(most);
  return true;
}

constexpr int64_t worth_a_multiplier = 1024;  // samples

}  // namespace

void scale(const Wave& to, const Wave& from, int32_t dst_start, int32_t src_start, int32_t count,
           double gain) {
  const int lanes = lanes_of(to, from);
  const Side<double> out(to, dst_start, lanes), in(from, src_start, lanes);
  const SampleKernels& k = kernels<SampleKernels>();
  if (to.lanes != from.lanes)
    return each_block(out, in, count,
                      [&](int64_t i, int64_t n, const double* values) { out.write(i, n, values, gain); });
  if (to.stored == from.stored && to.stored != stored64) {
    if (gain == 1.0) return transform_stored(out, in, count, k.unit64[to.stored]);
    static constexpr int32_t units[] = {127, 32767, 8388607};
    Multiplier m;
    if (int64_t{count} * lanes >= worth_a_multiplier && find_multiplier(gain, units[to.stored], m))
      return transform_stored(
          out, in, count, [&](uint8_t* d, const uint8_t* s, size_t n) { k.times64[to.stored](d, s, n, m); });
  }
  transform_stored(out, in, count, [&](uint8_t* d, const uint8_t* s, size_t n) {
    k.scale64[to.stored][from.stored](d, s, n, gain);
  });
}

}  // namespace tessaro
