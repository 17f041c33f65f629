#include "poker/draw.hpp"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

#include "poker_reckoning.hpp"
#include "sanitized.hpp"

namespace tombolario::poker {
namespace {

reckoning::Five kept(const reckoning::Five& dealt, int next) {
  auto cards = dealt;
  if (const auto changed = chooseDraw({dealt}, next)) cards.at(static_cast<std::size_t>(*changed)) = next;
  return cards;
}

TEST(PokerDraw, AgreesWithThePlainSearch) {
  constexpr int kCases = kSanitized ? 10'000 : 200'000;
  std::mt19937 engine(3);
  std::array<long, 9> classes{};
  long changes = 0;
  for (int i = 0; i < kCases; ++i) {
    // Every other case from few cards, where groups and straights are common.
    std::vector<int> pack(52);
    std::iota(pack.begin(), pack.end(), 0);
    if (i % 2 == 0) {
      pack.erase(std::remove_if(pack.begin(), pack.end(), [](int card) { return card % 13 > 5; }),
                 pack.end());
    }
    std::shuffle(pack.begin(), pack.end(), engine);
    reckoning::Five dealt{};
    std::copy_n(pack.begin(), 5, dealt.begin());
    const reckoning::Five found = kept(dealt, pack[5]);
    ASSERT_EQ(found, reckoning::draw(dealt, pack[5])) << "case " << i;
    if (found != dealt) ++changes;
    ++classes.at(static_cast<std::size_t>(reckoning::reckon(found).kind));
  }
  EXPECT_GT(changes, kCases / 4);
  EXPECT_LT(changes, kCases);
  for (const long count : classes) EXPECT_GT(count, 0);
}

struct Example {
  reckoning::Five dealt;
  int next;
  int changed;  // -1 for none
};

TEST(PokerDraw, TakesTheFirstTrialOfTheBestClass) {
  const std::array<Example, 11> examples{{
      {{2, 19, 34, 49, 12}, 6, 0},    // a pair of sevens: the 3 goes
      {{1, 17, 34, 49, 12}, 11, -1},  // nothing gained
      {{4, 17, 34, 49, 12}, 8, 3},    // two pairs: the jack goes
      {{3, 17, 32, 46, 8}, 5, 0},     // a straight either way: the 4 goes
      {{8, 46, 32, 17, 3}, 5, 0},     // the 9 goes
      {{0, 2, 4, 19, 8}, 10, 3},      // the card out of suit goes
      {{1, 15, 29, 4, 5}, 45, -1},    // a higher straight is no higher class
      {{7, 20, 33, 1, 2}, 14, 4},     // full house: the other odd card goes
      {{7, 20, 1, 14, 2}, 33, 4},     //
      {{1, 7, 20, 33, 2}, 46, 0},     // four alike
      {{0, 13, 2, 4, 6}, 8, 1},       // a pair gives way to a flush
  }};
  for (const auto& [dealt, next, changed] : examples) {
    auto expected = dealt;
    if (changed >= 0) expected.at(static_cast<std::size_t>(changed)) = next;
    EXPECT_EQ(kept(dealt, next), expected);
  }
}

}  // namespace
}  // namespace tombolario::poker
