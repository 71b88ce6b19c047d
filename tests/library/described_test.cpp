// What a description says of memory and results holds for ordinary arguments and for any others, and no argument makes a
// function work for longer than its memory is large.
#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "library/calls.hpp"

namespace {

struct {
  const char* name = nullptr;
  unsigned long long seed = 0;
  const char* range = "";
} now;

[[noreturn]] void stop(int) {
  std::fprintf(stderr, "%s, %s call %llu: touched memory beside what its description states\n", now.name,
               now.range, now.seed);
  std::_Exit(1);
}

TEST(Described, MemoryAndResultsAreAsStated) {
  std::signal(SIGSEGV, stop);
#ifdef SIGBUS
  std::signal(SIGBUS, stop);
#endif
  for (const host::Export& row : host::exports()) {
    if (!row.callable) continue;
    bool large = row.name.starts_with("DecodeImage");  // or slow
    for (const host::Parameter& one : row.parameters)
      large |= one.kind == host::Kind::sound && one.size != nullptr;
    for (const host::Range range : {host::Range::ordinary, host::Range::extreme}) {
      const uint64_t calls = large ? 16 : 1000;
      for (uint64_t seed = 64; seed < 64 + calls; ++seed) {
        now = {row.name.c_str(), seed, range == host::Range::ordinary ? "ordinary" : "extreme"};
        const std::clock_t start = std::clock();
        const host::Outcome outcome = host::call(row, seed, range);
        const bool slow = std::clock() - start > 2 * CLOCKS_PER_SEC;
        if (!outcome.wrong.empty() || slow) {
          ADD_FAILURE() << row.name << ", " << now.range << " call " << seed << ": "
                        << (outcome.wrong.empty() ? "took too long" : outcome.wrong);
          break;
        }
      }
    }
  }
}

}  // namespace
