#include "pieces/cards.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <vector>

#include "chain/rules.hpp"
#include "domino/rules.hpp"
#include "driver/driver.hpp"
#include "host/clock_source.hpp"
#include "mahjongg/rules.hpp"
#include "poker/rules.hpp"
#include "ramino/rules.hpp"
#include "videopoker/rules.hpp"

namespace tombolario {
namespace {

struct Deal {
  const char* game;
  int n;
  int first;
  int last;
  std::size_t slots;
  void (*run)(UniformSource&);

  friend void PrintTo(const Deal& deal, std::ostream* out) { *out << deal.game; }
};

class EveryDeal : public testing::TestWithParam<Deal> {};

TEST_P(EveryDeal, FillsItsSlotsWithDistinctNumbersAndNoOther) {
  const auto& [game, n, first, last, slots, run] = GetParam();
  ScriptedSource source;
  std::set<std::int16_t> leftOut;
  for (int seed = 0; seed < 500; ++seed) {
    source.seed(seed);
    std::vector<std::int16_t> dealt(slots, -7);
    mescola(source, dealt, first, last, n);
    std::set<std::int16_t> seen;
    for (int i = 0; i < static_cast<int>(slots); ++i) {
      const std::int16_t value = dealt[static_cast<std::size_t>(i)];
      if (i < first || i > last) {
        EXPECT_EQ(value, -7) << "slot " << i << " is not part of the deal";
      } else {
        EXPECT_TRUE(value >= 0 && value < n && seen.insert(value).second) << "slot " << i << ": " << value;
      }
    }
    for (std::int16_t value = 0; value < n; ++value) {
      if (!seen.contains(value)) leftOut.insert(value);
    }
  }
  // Where not all numbers are dealt, each of them is left out now and then.
  const bool complete = last - first + 1 == n;
  EXPECT_EQ(leftOut.size(), complete ? 0U : static_cast<std::size_t>(n));
}

/// Numbers that are all different, as long as there are any.
class CountedSource : public UniformSource {
 public:
  explicit CountedSource(int n) : n_(n) {}
  void seedFromClock() override { ++(draws == 0 ? seeds : lateSeeds); }
  double next() override { return (draws++ % n_ + 0.5) / n_; }

  int draws = 0, seeds = 0, lateSeeds = 0;

 private:
  int n_;
};

TEST_P(EveryDeal, IsSeededOnceAndThenDrawsANumberForEachOfItsSlots) {
  const auto& [game, n, first, last, slots, run] = GetParam();
  CountedSource source(n);
  run(source);
  EXPECT_EQ(source.seeds, 1);
  EXPECT_EQ(source.lateSeeds, 0);
  EXPECT_EQ(source.draws, last - first + 1);
}

INSTANTIATE_TEST_SUITE_P(
    Games, EveryDeal,
    testing::Values(
        Deal{"videopoker", 53, 0, 51, 53, [](UniformSource& u) { videopoker::VideoPoker().begin(u); }},
        Deal{"poker", 52, 0, 50, 52, [](UniformSource& u) { poker::Poker().newMatch(u); }},
        Deal{"ramino", 52, 0, 50, 52, [](UniformSource& u) { ramino::Ramino().newMatch(u); }},
        Deal{"domino", 28, 0, 27, 28, [](UniformSource& u) { domino::Domino().inizioDOMINO(u); }},
        Deal{"chain", 12, 1, 7, 8, [](UniformSource& u) { chain::Chain().begin(u); }},
        Deal{"mahjongg", 120, 0, 119, 120, [](UniformSource& u) { mahjongg::Mahjongg().avvioMAH(u); }}),
    [](const auto& deal) { return deal.param.game; });

TEST(Mescola, DrawsASlotAgainUntilItsNumberIsFresh) {
  ScriptedSource source;
  source.queue({0.25, 0.25, 0.3, 0.75, 0.25, 0.75, 0.5, 0.999});
  std::array<std::int16_t, 5> dealt{9, 9, 9, 9, 9};
  mescola(source, dealt, 1, 3, 4);
  EXPECT_EQ(dealt, (std::array<std::int16_t, 5>{9, 1, 3, 2, 9}));
  EXPECT_EQ(source.queued(), 1U);
  EXPECT_THROW(mescola(source, dealt, 1, 5, 9), std::out_of_range);
  EXPECT_THROW(mescola(source, dealt, 1, 3, 2), std::invalid_argument) << "three numbers out of two";
}

TEST(ClockSource, StartsAnotherSequenceAtEachDealAndStaysInTheUnitInterval) {
  ClockSource source;
  std::set<double> firsts;
  constexpr int kDeals = 1000;
  for (int i = 0; i < kDeals; ++i) {
    source.seedFromClock();
    const double u = source.next();
    EXPECT_TRUE(u >= 0 && u < 1);
    firsts.insert(u);
  }
  EXPECT_EQ(firsts.size(), static_cast<std::size_t>(kDeals));
  EXPECT_NE(ClockSource().next(), ClockSource().next()) << "two starts of the room play other games";
  EXPECT_LT(unitInterval(~std::uint64_t{0}), 1.0);
}

TEST(Cards, FollowTheFourBlocksOfThirteen) {
  for (int card = 0; card < 52; ++card) EXPECT_EQ(cardValue(card) + 13 * (cardSuit(card) - 1), card);
  EXPECT_EQ(cardValue(51), 12);
  EXPECT_EQ(cardSuit(0), 1);
}

}  // namespace
}  // namespace tombolario
