#include <gtest/gtest.h>

#include <array>
#include <optional>

#include "poker/award.hpp"
#include "poker/draw.hpp"
#include "ramino/tris.hpp"
#include "videopoker/scoring.hpp"

namespace tombolario {
namespace {

// Cards by number: 0 to 12 of the first suit, 13, 26, 39; 52 is the joker.

/// How many of all hands of a pack are of each kind.
template <std::size_t Kinds, class KindOf>
std::array<long, Kinds> countHands(int pack, KindOf kindOf) {
  std::array<long, Kinds> counts{};
  Cards c{};
  for (c[0] = 0; c[0] < pack; ++c[0])
    for (c[1] = c[0] + 1; c[1] < pack; ++c[1])
      for (c[2] = c[1] + 1; c[2] < pack; ++c[2])
        for (c[3] = c[2] + 1; c[3] < pack; ++c[3])
          for (c[4] = c[3] + 1; c[4] < pack; ++c[4]) ++counts.at(static_cast<std::size_t>(kindOf(c)));
  return counts;
}

TEST(PokerHands, AreAsManyOfEachClassAsCombinatoricsSays) {
  const auto counts = countHands<9>(52, [](const Cards& cards) { return poker::classify(cards).kind; });
  EXPECT_EQ(counts,
            (std::array<long, 9>{1'302'540, 1'098'240, 123'552, 54'912, 10'200, 3'744, 5'108, 624, 40}));
}

TEST(VideoPokerHands, AreAsManyOfEachRowAsCombinatoricsSays) {
  const auto counts =
      countHands<11>(53, [](const Cards& cards) { return videopoker::score(handOf(cards)).row; });
  // Those of 52 cards, and those of four and the joker. Of four different values, 256 hands each, some are
  // part of a straight and some more are one by the ace; of a flush one suit in four is red.
  constexpr long kFours = 715, kStraights = 41, kByTheAce = 20;
  constexpr long kFlushes = 5'108 + (kFours - kStraights) * 4;
  EXPECT_EQ(counts, (std::array<long, 11>{
                        1'302'540, 1'098'240 + (kFours - kStraights - kByTheAce) * 252, 123'552,
                        54'912 + 13 * 6 * 66 * 16, 10'200 + (kStraights + kByTheAce) * 252, 3'744 + 78 * 36,
                        kFlushes / 4 * 3, kFlushes / 4, 624 + 13 * 4 * 48, 40 + kStraights * 4, 13}));
}

TEST(VideoPokerHands, OnlyTheSecondCardIsAskedForRed) {
  EXPECT_EQ(videopoker::score(handOf({{0, 52, 2, 5, 9}})).row, videopoker::kFlush);
  EXPECT_EQ(videopoker::score(handOf({{52, 0, 2, 5, 9}})).row, videopoker::kRedFlush);
}

TEST(PokerHands, OfOneClassAreComparedByTheirRanks) {
  struct Example {
    Cards player, computer;
    const char* text;  // of the player's hand
    poker::Side winner;
  };
  using enum poker::Side;
  for (const auto& [player, computer, text, side] : std::initializer_list<Example>{
           {{0, 13, 3, 18, 6}, {38, 51, 29, 44, 32}, "coppia   A", Player},
           {{12, 25, 10, 22, 7}, {38, 51, 28, 42, 32}, "coppia   K", Nobody},  // no other card counts
           {{0, 13, 1, 14, 5}, {38, 51, 37, 50, 31}, "doppia coppia   A/2", Player},
           {{12, 25, 10, 23, 5}, {38, 51, 37, 50, 31}, "doppia coppia   K/J", Computer},  // the lower pairs
           {{12, 25, 11, 24, 5}, {38, 51, 37, 50, 28}, "doppia coppia   K/Q", Player},    // the odd cards
           {{12, 25, 11, 24, 5}, {38, 51, 37, 50, 26}, "doppia coppia   K/Q", Computer},  // an ace
           {{0, 13, 26, 5, 20}, {12, 25, 38, 30, 45}, "tris   A", Player},
           {{9, 23, 11, 25, 13}, {26, 40, 28, 42, 30}, "scala", Computer},  // an ace on top counts least
           {{1, 15, 3, 17, 5}, {27, 41, 29, 43, 31}, "scala", Nobody},
           {{1, 14, 27, 0, 13}, {2, 15, 28, 12, 25}, "full   2/A", Computer},  // the three, not the pair
           {{0, 2, 4, 6, 8}, {14, 16, 18, 20, 23}, "colore", Nobody},
           {{0, 13, 26, 39, 5}, {12, 25, 38, 51, 30}, "poker   A", Player},
           {{8, 9, 10, 11, 12}, {33, 34, 35, 36, 37}, "scala reale", Player},
           {{1, 16, 5, 20, 8}, {28, 45, 35, 49, 38}, " ", Nobody}}) {
    const poker::Classification ours = poker::classify(player);
    EXPECT_EQ(ours.text(), text);
    EXPECT_EQ(poker::winner(ours, poker::classify(computer), poker::Level::Normal), side) << text;
  }
}

TEST(PokerDraw, TakesTheFirstTrialOfTheBestClass) {
  struct Example {
    Cards dealt;
    int next;
    std::optional<int> changed;
  };
  for (const auto& [dealt, next, changed] :
       std::initializer_list<Example>{{{2, 19, 34, 49, 12}, 6, 0},    // a pair of sevens: the 3 goes
                                      {{1, 17, 34, 49, 12}, 11, {}},  // nothing gained
                                      {{4, 17, 34, 49, 12}, 8, 3},    // two pairs: the jack goes
                                      {{8, 46, 32, 17, 3}, 5, 0},     // a straight either way
                                      {{0, 2, 4, 19, 8}, 10, 3},      // the card out of suit goes
                                      {{1, 15, 29, 4, 5}, 45, {}},    // a higher straight is no higher class
                                      {{7, 20, 33, 1, 2}, 14, 4},     // full house: the other odd card goes
                                      {{0, 13, 2, 4, 6}, 8, 1}}) {    // a pair gives way to a flush
    EXPECT_EQ(poker::chooseDraw(dealt, next), changed) << dealt[0] << ' ' << dealt[1] << ' ' << next;
  }
}

TEST(RaminoTris, AreAsManyAsCombinatoricsSays) {
  int sets = 0, runs = 0, highRuns = 0;
  for (int a = 0; a < 52; ++a)
    for (int b = 0; b < 52; ++b)
      for (int c = 0; c < 52; ++c) {
        if (a == b || b == c || a == c) continue;
        sets += ramino::isSet(a, b, c);
        runs += ramino::isRun(a, b, c);
        highRuns += ramino::isHighRun(a, b, c);
      }
  constexpr int kOrders = 6;
  EXPECT_EQ(sets, 13 * 4 * kOrders);
  EXPECT_EQ(runs, 4 * 11 * kOrders);
  EXPECT_EQ(highRuns, 4 * kOrders);
}

}  // namespace
}  // namespace tombolario
