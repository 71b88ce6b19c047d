// The table at the head of an ib18 stream.
#pragma once

#include <cstdint>
#include <cstring>

namespace tessaro {

// For every byte of 0 and n others behind it the one that follows it most often; the smallest of equals, and
// never itself. The counts of so many bytes fit into the table: the source is gone through for as many at a
// time.
template <unsigned rows>
void find_successors(const uint8_t* source, uint32_t n, uint32_t* counts, uint8_t* successors) {
  for (unsigned first = 0; first < 256; first += rows) {
    std::memset(counts, 0, sizeof *counts * rows * 256);
    unsigned before = 0;
    for (uint32_t i = 0; i < n; ++i) {
      if (rows == 256 || before - first < rows) ++counts[(before - first) * 256 + source[i]];
      before = source[i];
    }
    for (unsigned p = 0; p < rows; ++p) {
      uint32_t* const row = counts + size_t{p} * 256;
      row[first + p] = UINT32_MAX;  // -1: the comparisons are signed
      unsigned best = 0;
      for (unsigned c = 1; c < 256; ++c)
        if (static_cast<int32_t>(row[c]) > static_cast<int32_t>(row[best])) best = c;
      successors[first + p] = static_cast<uint8_t>(best);
    }
  }
}

}  // namespace tessaro
