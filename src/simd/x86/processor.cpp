// What is particular to a processor, for x86.
#include "simd/processor.hpp"

#include <cpuid.h>

namespace tessaro::processor {

uint32_t feature_flags() {
  unsigned a = 0, b = 0, c = 0, d = 0;
  return __get_cpuid(1, &a, &b, &c, &d) ? d : 0;
}

bool streams_well() { return __builtin_cpu_is("amd"); }

void fill(uint8_t* at, uint32_t word, size_t count) {
  __asm__ volatile("rep stosl" : "+D"(at), "+c"(count) : "a"(word) : "memory");
}

uint32_t remainder(uint32_t a, uint32_t b) {
  uint32_t rest = 0;
  __asm__("divl %2" : "+a"(a), "+d"(rest) : "r"(b) : "cc");
  return rest;
}

}  // namespace tessaro::processor
