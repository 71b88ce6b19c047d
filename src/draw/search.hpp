// The bisection of the shapes.
#pragma once

#include <cstdint>

namespace tessaro {

// The first of first..last for which the condition, once true, holds; last + 1 if it never does.
template <class Condition>
int64_t first_where(int64_t first, int64_t last, Condition holds) {
  int64_t end = last + 1;
  while (first < end) {
    const int64_t middle = first + (end - first) / 2;
    if (holds(middle))
      end = middle;
    else
      first = middle + 1;
  }
  return first;
}

}  // namespace tessaro
