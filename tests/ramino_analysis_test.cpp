#include "ramino/analysis.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

#include "ramino/tris.hpp"
#include "ramino_reckoning.hpp"
#include "sanitized.hpp"

namespace tombolario::ramino {
namespace {

TEST(RaminoAnalysis, AgreesWithThePlainLoops) {
  constexpr int kCases = kSanitized ? 5'000 : 200'000;
  std::mt19937 engine(7);
  int seen[4] = {};
  for (int i = 0; i < kCases; ++i) {
    // From fewer cards the more is found.
    std::vector<int> pack(52);
    std::iota(pack.begin(), pack.end(), 0);
    const int highest = 3 + i % 10;
    pack.erase(std::remove_if(pack.begin(), pack.end(), [&](int card) { return card % 13 > highest; }),
               pack.end());
    std::shuffle(pack.begin(), pack.end(), engine);

    reckoning::Twelve plain;
    ComputerCards cards{};
    Marking marking;
    plain.nextGroup = marking.nGrupRam = static_cast<std::int16_t>(engine() % 2);
    for (int p = kComputerFirst; p <= kConsidered; ++p) {
      const auto at = static_cast<std::size_t>(p);
      cards[p] = static_cast<std::int16_t>(pack[at - 10]);
      // What an earlier turn may have left: some in a `tris`, and any mark on the considered card.
      const int mark = p == kConsidered ? static_cast<int>(engine() % 3) : engine() % 8 == 0 ? 2 : 0;
      plain.card[at] = cards[p];
      plain.mark[at] = mark;
      marking.segnoRam[p] = static_cast<Mark>(mark);
    }
    plain.look();
    analyse(cards, marking);
    for (int p = kComputerFirst; p <= kConsidered; ++p) {
      const auto at = static_cast<std::size_t>(p);
      ASSERT_EQ(static_cast<int>(marking.segnoRam[p]), plain.mark[at]) << "case " << i << ", position " << p;
      ASSERT_EQ(marking.grupRam[p], plain.group[at]) << "case " << i << ", position " << p;
    }
    ASSERT_EQ(marking.nGrupRam, plain.nextGroup);
    ASSERT_EQ(allMarked(marking), plain.handAllMarked());
    ASSERT_EQ(countInTris(marking), plain.inTris());
    ++seen[std::min(3, static_cast<int>(marking.nGrupRam))];
    plain.clearPairs();
    clearPairs(marking);
    for (int p = kComputerFirst; p <= kConsidered; ++p) {
      ASSERT_EQ(static_cast<int>(marking.segnoRam[p]), plain.mark[static_cast<std::size_t>(p)]);
    }
  }
  for (const int count : seen) EXPECT_GT(count, kCases / 100);
}

TEST(RaminoTris, TheAceEndsARunForThePlayerOnly) {
  for (int a = 0; a < 52; ++a)
    for (int b = 0; b < 52; ++b)
      for (int c = 0; c < 52; ++c) {
        if (a == b || b == c || a == c) continue;
        const bool players = isSet(a, b, c) || isRun(a, b, c) || isHighRun(a, b, c);
        ASSERT_EQ(players, reckoning::playersTris(a, b, c)) << a << ' ' << b << ' ' << c;
      }
  EXPECT_TRUE(isHighRun(11, 12, 0));
  EXPECT_FALSE(isRun(11, 12, 0));
  EXPECT_TRUE(isRun(0, 1, 2));
  EXPECT_FALSE(isHighRun(12, 0, 1));
  EXPECT_FALSE(isHighRun(11, 12, 13));
}

}  // namespace
}  // namespace tombolario::ramino
