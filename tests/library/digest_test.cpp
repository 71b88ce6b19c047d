// The same calls give the same bytes on every target and on every processor. After a deliberate change:
//   test_library --digests > tests/library/digests.inc
#include <gtest/gtest.h>

#include <cinttypes>
#include <cstdio>
#include <map>

#include "library/calls.hpp"

namespace {

constexpr uint64_t calls = 48;

uint64_t digest_of(const host::Export& row) {
  uint64_t all = 0;
  for (uint64_t seed = 0; seed < calls; ++seed) {
    bool intact;
    const uint64_t one = row.call(row, seed, host::Range::ordinary, intact);
    EXPECT_TRUE(intact) << row.name << ", call " << seed
                        << ": wrote beside its memory or left the stack unbalanced";
    host::digest(all, &one, sizeof one);
  }
  return all;
}

const std::map<std::string, uint64_t> pinned = {
#define DIGEST(Name, Value) {#Name, Value},
#include "library/digests.inc"
#undef DIGEST
};

TEST(Digest, OfEveryExportIsThePinnedOne) {
  size_t compared = 0;
  for (const host::Export& row : host::exports()) {
    if (!row.comparable) continue;
    const auto found = pinned.find(row.name);
    if (found == pinned.end())
      ADD_FAILURE() << row.name << " has no row in tests/library/digests.inc";
    else
      EXPECT_EQ(digest_of(row), found->second) << row.name;
    ++compared;
  }
  EXPECT_EQ(compared, pinned.size()) << "rows of functions that do not exist";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::string(argv[1]) == "--digests") {
    for (const host::Export& row : host::exports())
      if (row.comparable) std::printf("DIGEST(%s, 0x%016" PRIX64 "u)\n", row.name.c_str(), digest_of(row));
    return 0;
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
