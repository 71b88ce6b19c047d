// The same calls give the same bytes on every target and on every processor. After a deliberate change:
//   test_library --digests > tests/library/digests.inc
#include <gtest/gtest.h>

#include <cinttypes>
#include <cstdio>
#include <map>
#include <set>

#include "library/calls.hpp"

namespace {

constexpr uint64_t calls = 64;

struct Calls {
  uint64_t digest = 0;
  uint64_t changed = 0;  // how many of them changed memory
  std::set<int64_t> results;
};

Calls calls_of(const host::Export& row) {
  Calls all;
  for (uint64_t seed = 0; seed < calls; ++seed) {
    const host::Outcome one = host::call(row, seed, host::Range::ordinary);
    host::digest(all.digest, &one.digest, sizeof one.digest);
    all.changed += one.changed;
    all.results.insert(one.result);
  }
  return all;
}

const std::map<std::string, uint64_t> pinned = {
#define DIGEST(Name, Value) {#Name, Value},
#include "library/digests.inc"
#undef DIGEST
};

// A digest says something only if the calls reached the work: see `drawn` in arguments.hpp when these expectations fail.
TEST(Digest, OfEveryExportIsThePinnedOneOfCallsThatDidSomething) {
  size_t compared = 0;
  std::map<uint64_t, const host::Export*> seen;
  for (const host::Export& row : host::exports()) {
    if (!row.comparable) continue;
    ++compared;
    const Calls all = calls_of(row);
    const auto found = pinned.find(row.name);
    if (found == pinned.end())
      ADD_FAILURE() << row.name << " has no row in tests/library/digests.inc";
    else
      EXPECT_EQ(all.digest, found->second) << row.name;
    const bool does_nothing = !row.writes && !row.results.is_value && row.results.cases.size() == 1;
    if (row.writes)
      EXPECT_GE(all.changed, calls / 8) << row.name << " changed memory in too few calls";
    else
      EXPECT_TRUE(all.results.size() >= 2 || does_nothing) << row.name << " gave one result";
    const auto [equal, first] = seen.emplace(all.digest, &row);
    const bool alike =
        row.first_name == equal->second->first_name || row.first_name == "BBI";  // BBI does as MMX
    EXPECT_TRUE(first || alike) << row.name << " and " << equal->second->name;
  }
  EXPECT_EQ(compared, pinned.size()) << "rows of functions that do not exist";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::string(argv[1]) == "--digests") {
    for (const host::Export& row : host::exports())
      if (row.comparable)
        std::printf("DIGEST(%s, 0x%016" PRIX64 "u)\n", row.name.c_str(), calls_of(row).digest);
    return 0;
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
