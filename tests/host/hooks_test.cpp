#include "host/hooks.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

namespace tessaro {
namespace {

// Windows that are numbers, each with a procedure; a window that is not listed has none.
std::map<uintptr_t, intptr_t> procedures;
std::vector<intptr_t> called;
constexpr intptr_t ours = 99;

const platform::WindowSystem substitute = {
    .procedure =
        [](void* window) {
          const auto found = procedures.find(reinterpret_cast<uintptr_t>(window));
          return found == procedures.end() ? intptr_t{0} : found->second;
        },
    .set_procedure = [](void* window,
                        intptr_t procedure) { procedures[reinterpret_cast<uintptr_t>(window)] = procedure; },
    .call = [](intptr_t procedure, void* window, uint32_t message, uintptr_t first,
               intptr_t second) -> intptr_t {
      called.push_back(procedure);
      return procedure * 1000 + reinterpret_cast<intptr_t>(window) + message + static_cast<intptr_t>(first) +
             second;
    },
    .replacement = [] { return ours; },
};

void* window(uintptr_t n) { return reinterpret_cast<void*>(n); }

intptr_t seen;
int32_t TESSARO_CALL pass_on(void*, uintptr_t, uintptr_t, intptr_t, intptr_t value) {
  seen = value;
  return 0;
}
int32_t TESSARO_CALL handle(void* at, uintptr_t message, uintptr_t first, intptr_t second, intptr_t value) {
  seen = reinterpret_cast<intptr_t>(at) + static_cast<intptr_t>(message + first) * 10 + second * 100 + value;
  return -7;
}

struct Hooks : testing::Test {
  Hooks() {
    procedures = {{1, 11}, {2, 12}, {3, 13}};
    called.clear();
    seen = 0;
  }
  HookTable table{substitute};
};

TEST_F(Hooks, OffersMessagesAndPassesOnWhatIsNotHandled) {
  EXPECT_FALSE(table.hook(window(4), pass_on, 0)) << "its procedure cannot be read";
  EXPECT_EQ(procedures.count(4), 0u);
  EXPECT_TRUE(table.hook(window(1), pass_on, 5));
  EXPECT_TRUE(table.hook(window(2), handle, 7000));
  EXPECT_EQ(procedures[1], ours);
  EXPECT_EQ(table.offer(window(1), 20, 300, -400), 11 * 1000 + 1 + 20 + 300 - 400);
  EXPECT_EQ(seen, 5);
  EXPECT_EQ(table.offer(window(2), 3, 4, 5), 0);
  EXPECT_EQ(seen, 2 + 70 + 500 + 7000);
  EXPECT_EQ(called.size(), 1u);
  EXPECT_EQ(table.offer(window(3), 1, 1, 1), 0) << "a window that is not hooked goes nowhere";
  EXPECT_EQ(called.size(), 1u);
}

TEST_F(Hooks, OffOutOfOrderTakeTheProceduresOfTheNewest) {
  for (uintptr_t n : {1u, 2u, 3u}) EXPECT_TRUE(table.hook(window(n), pass_on, static_cast<intptr_t>(n)));
  EXPECT_TRUE(table.unhook(window(1)));
  EXPECT_EQ(procedures[1], 11);
  EXPECT_EQ(table.offer(window(1), 0, 0, 0), 13 * 1000 + 1) << "the newest one's procedure";
  EXPECT_EQ(seen, 1);
  EXPECT_EQ(table.offer(window(3), 0, 0, 0), 0) << "hooked, but no longer known";
}

TEST_F(Hooks, ComeOffInEveryOrder) {
  std::vector<uintptr_t> order{1, 2, 3};
  do {
    HookTable hooks{substitute};
    procedures = {{1, 11}, {2, 12}, {3, 13}};
    // The table as it is left behind: the procedures move, the windows do not.
    std::vector<std::pair<uintptr_t, intptr_t>> left(procedures.begin(), procedures.end());
    for (uintptr_t n : {1u, 2u, 3u}) EXPECT_TRUE(hooks.hook(window(n), pass_on, 0));
    for (uintptr_t n : {order[0], order[1], order[2], uintptr_t{1}, uintptr_t{2}}) {
      const auto entry = std::find_if(left.begin(), left.end(), [&](auto& row) { return row.first == n; });
      EXPECT_EQ(hooks.unhook(window(n)), entry != left.end());
      if (entry == left.end()) continue;
      EXPECT_EQ(procedures[n], entry->second);
      entry->second = left.back().second;
      left.pop_back();
    }
    EXPECT_EQ(hooks.count(), 0);
  } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(Hooks, ASecondHookOfAWindowIsFoundAfterTheFirst) {
  EXPECT_TRUE(table.hook(window(1), handle, 0));
  EXPECT_TRUE(table.hook(window(1), pass_on, 0));
  EXPECT_EQ(table.count(), 2);
  EXPECT_EQ(table.offer(window(1), 1, 0, 0), 0);
  EXPECT_TRUE(called.empty());
  EXPECT_TRUE(table.unhook(window(1)));
  EXPECT_EQ(procedures[1], 11);
  EXPECT_EQ(table.offer(window(1), 1, 0, 0), 0) << "still the first hook";
  EXPECT_TRUE(table.unhook(window(1)));
  EXPECT_EQ(procedures[1], ours) << "what the second entry held";
}

TEST_F(Hooks, NumberAtMost256) {
  for (uintptr_t n = 1; n <= 257; ++n) procedures[n] = static_cast<intptr_t>(n + 1000);
  for (uintptr_t n = 1; n <= 256; ++n) EXPECT_TRUE(table.hook(window(n), pass_on, 0));
  EXPECT_FALSE(table.hook(window(257), pass_on, 0));
  EXPECT_EQ(procedures[257], 1257);
  EXPECT_EQ(table.offer(window(256), 0, 0, 0), 1256 * 1000 + 256);
}

TEST_F(Hooks, UnhookingAllGoesThroughTheFirstEntry) {
  for (uintptr_t n : {1u, 2u, 3u}) EXPECT_TRUE(table.hook(window(n), pass_on, 0));
  table.unhook_all();
  EXPECT_EQ(table.count(), 0);
  EXPECT_EQ(procedures[1], 12);
  EXPECT_EQ(procedures[2], ours);
  EXPECT_EQ(procedures[3], ours);
}

}  // namespace
}  // namespace tessaro
