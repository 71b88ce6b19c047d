// The value of a running sum after many equal steps, in few.
#pragma once

#include <cmath>
#include <cstdint>

namespace tessaro {

// value after `value += step`, rounded at every step, `times` times. Between two powers of two the spacing of
// the floating-point numbers is constant, so that every step adds the same rounded amount (from the second
// on, where steps fall halfway between two numbers) and multiples of it are exact.
template <class T>
T added_up(T value, T step, int64_t times) {
  while (times > 0) {
    const T a = value + step, b = a + step, c = b + step;
    if (a == value || a != a) return a;  // stays there
    value = a;
    --times;
    int of_a, of_b, of_c;
    std::frexp(a, &of_a);
    std::frexp(b, &of_b);
    std::frexp(c, &of_c);
    const T amount = c - b;
    if (of_a != of_b || of_b != of_c || amount != b - a || amount == 0 || !std::isfinite(c)) continue;
    const T size = std::fabs(a), grown = std::fabs(amount);
    const bool away = std::fabs(b) > size;
    const T room = away ? std::ldexp(T{1}, of_a) - size : size - std::ldexp(T{0.5}, of_a);
    // The quotient may be rounded up to the next integer, and steps add the same only while their sums lie on
    // this side of the power of two before they are rounded as well: three short of it is safe.
    const int64_t fit = static_cast<int64_t>(room / grown) - 3;
    const int64_t jump = fit < times ? fit : times;
    if (jump < 1) continue;
    value = a + static_cast<T>(jump) * amount;
    times -= jump;
  }
  return value;
}

}  // namespace tessaro
