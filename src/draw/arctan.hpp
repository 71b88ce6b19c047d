// The arctangent of the polar palettes.
#pragma once

#include "simd/vocabulary.hpp"

namespace {

// Arctangent within one unit in the last place, the same on every target and without branches, so that loops
// over it become vectors: reduced by pi / 2 or pi / 4 to |x| <= 0.66, then a ratio of polynomials in x
// squared. The coefficients are those of the Cephes library.
TESSARO_INLINE double arctan(double v) {
  const double x = v < 0 ? -v : v;
  const bool far = x > 2.414213562373095, middle = x > 0.66;
  const double less = x - 1.0, more = x + 1.0;
  const double above = far ? -1.0 : middle ? less : x;
  const double below = far ? x : middle ? more : 1.0;
  const double base = far ? 1.5707963267948966 : middle ? 0.7853981633974483 : 0.0;
  const double rest = far ? 6.123233995736766e-17 : middle ? 3.061616997868383e-17 : 0.0;
  const double y = above / below, z = y * y;
  const double p =
      (((-8.750608600031904122785e-1 * z - 1.615753718733365076637e1) * z - 7.500855792314704667340e1) * z -
       1.228866684490136173410e2) *
          z -
      6.485021904942025371773e1;
  const double q =
      ((((z + 2.485846490142306297962e1) * z + 1.650270098316988542046e2) * z + 4.328810604912902668951e2) *
           z +
       4.853903996359136964868e2) *
          z +
      1.945506571482613964425e2;
  const double a = base + (y * (z * (p / q)) + y + rest);
  return v < 0 ? -a : a;
}

}  // namespace
