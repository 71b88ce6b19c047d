// No argument makes a function leave its images, whatever it is, or work for longer than its images are large.
#include <gtest/gtest.h>

#include <chrono>

#include "library/calls.hpp"

namespace {

TEST(Extreme, ArgumentsOfImageFunctionsStayInsideTheImages) {
  using Clock = std::chrono::steady_clock;
  size_t functions = 0;
  for (const host::Export& row : host::exports()) {
    if (!row.images) continue;
    ++functions;
    for (uint64_t seed = 0; seed < 3000; ++seed) {
      const auto start = Clock::now();
      const host::Outcome outcome = row.call(row, seed, host::Range::extreme);
      const std::chrono::duration<double> taken = Clock::now() - start;
      ASSERT_TRUE(outcome.intact) << row.name << ", call " << seed;
      ASSERT_LT(taken.count(), 2.0) << row.name << ", call " << seed;
    }
  }
  EXPECT_EQ(functions, 94u) << "a new one is counted here";
}

}  // namespace
