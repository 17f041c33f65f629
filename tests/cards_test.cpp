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

TEST(Mescola, FillsItsSlotsWithDistinctNumbersAndNoOther) {
  for (const auto& [n, first, last] : {std::array{28, 0, 27}, std::array{12, 1, 7}, std::array{52, 0, 50}}) {
    ScriptedSource source;
    std::set<std::int16_t> leftOut;
    for (int seed = 0; seed < 500; ++seed) {
      source.seed(seed);
      std::vector<std::int16_t> dealt(53, -7);
      mescola(source, dealt, first, last, n);
      const std::set<std::int16_t> seen(dealt.begin() + first, dealt.begin() + last + 1);
      EXPECT_EQ(std::ssize(seen), last - first + 1);
      EXPECT_TRUE(*seen.begin() >= 0 && *seen.rbegin() < n);
      EXPECT_EQ(std::count(dealt.begin(), dealt.end(), -7), 53 - std::ssize(seen))
          << "other slots as they were";
      for (std::int16_t value = 0; value < n; ++value) {
        if (!seen.contains(value)) leftOut.insert(value);
      }
    }
    // Where not all numbers are dealt, each of them is left out now and then.
    EXPECT_EQ(std::ssize(leftOut), last - first + 1 == n ? 0 : n);
  }
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

TEST(EveryDeal, IsSeededOnceAndThenDrawsANumberForEachOfItsSlots) {
  struct Deal {
    int n, slots;
    void (*run)(UniformSource&);
  };
  for (const auto& [n, slots, run] :
       {Deal{53, 52, [](UniformSource& u) { videopoker::VideoPoker().begin(u); }},
        Deal{52, 51, [](UniformSource& u) { poker::Poker().newMatch(u); }},
        Deal{52, 51, [](UniformSource& u) { ramino::Ramino().newMatch(u); }},
        Deal{28, 28, [](UniformSource& u) { domino::Domino().inizioDOMINO(u); }},
        Deal{12, 7, [](UniformSource& u) { chain::Chain().begin(u); }},
        Deal{120, 120, [](UniformSource& u) { mahjongg::Mahjongg().avvioMAH(u); }}}) {
    CountedSource source(n);
    run(source);
    EXPECT_EQ(source.seeds, 1) << n;
    EXPECT_EQ(source.lateSeeds, 0) << n;
    EXPECT_EQ(source.draws, slots) << n;
  }
}

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

}  // namespace
}  // namespace tombolario
