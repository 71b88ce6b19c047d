// Comparisons of one operation's contenders in one run. A benchmark file registers comparisons in a static
// initialiser; the runner interleaves the contenders' repetitions and prints one row a comparison: each
// contender's time, and the ratio of tessaro's speed to every other's (above 1: tessaro is faster).
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tessaro/tessaro.h"

namespace tessaro::bench {

struct Contender {
  std::string name;  // "tessaro", "limit" (what memory allows), or a peer: "libyuv", "opencv", "loop", ...
  std::function<void()> run;  // one call; owns what it captures
};

// What a comparison is once it is set up.
struct Prepared {
  Prepared(std::vector<Contender> all, std::string behind_name = "", double work_now = 0)
      : contenders(std::move(all)), note(std::move(behind_name)), work(work_now) {}
  std::vector<Contender> contenders;  // none where there is nothing to measure
  std::string note;                   // stands behind the name
  double work;                        // in place of the comparison's, unless 0
};
// setup runs only when the comparison is selected. work is what one run handles, in the unit that the row
// reports a second of: pixels, bytes, frames, taps.
struct Comparison {
  std::string name;  // "BBIBltAdd/512"
  double work;
  std::string unit;  // "pixel", "byte", "frame"
  std::function<Prepared()> setup;
};
bool compare(Comparison comparison);  // use: static const bool registered = compare({...});

// The sizes at which image operations are measured: in cache and in memory.
inline constexpr int image_sizes[] = {512, 4096};

// An image in 64-byte aligned memory, filled with noise from a seed.
class Picture {
 public:
  Picture(int width, int height, uint32_t seed = 1);
  ImageRecord* record() const;
  uint8_t* pixels() const;
  int width() const;
  int height() const;
  size_t bytes() const;

 private:
  struct Block;
  std::shared_ptr<Block> block_;
};

// What memory allows: each moves the stated bytes with the widest vectors of the processor.
void limit_copy(void* dst, const void* src, size_t bytes);                   // memcpy
void limit_fill(void* dst, size_t bytes);                                    // memset
void limit_update(void* dst, size_t bytes);                                  // dst = f(dst)
void limit_combine(void* dst, const void* src, size_t bytes);                // dst = f(dst, src)
void limit_combine3(void* dst, const void* a, const void* b, size_t bytes);  // dst = f(dst, a, b)
uint64_t limit_read(const void* src, size_t bytes);                          // read only

}  // namespace tessaro::bench
