#include "videopoker/scoring.hpp"

#include <gtest/gtest.h>

#include <array>

#include "sanitized.hpp"
#include "videopoker_reckoning.hpp"

namespace tombolario::videopoker {
namespace {

TEST(Scoring, AgreesWithThePlainDescriptionOnEveryHand) {
  constexpr int kStep = kSanitized ? 61 : 1;
  std::array<long, kFive + 1> rows{};
  long hands = 0;
  OfHand<int> c{};
  for (c[0] = 0; c[0] <= 52; ++c[0])
    for (c[1] = c[0] + 1; c[1] <= 52; ++c[1])
      for (c[2] = c[1] + 1; c[2] <= 52; ++c[2])
        for (c[3] = c[2] + 1; c[3] <= 52; ++c[3])
          for (c[4] = c[3] + 1; c[4] <= 52; ++c[4]) {
            if (++hands % kStep != 0) continue;
            // Another card stands second each time, the joker too.
            auto cards = c;
            std::rotate(cards.begin(), cards.begin() + hands % 5, cards.end());
            const Hand hand = handOf(cards);
            const Scoring scoring = score(hand);
            const Row row = reckoning::rowOf(hand);
            ++rows[row];
            bool agrees = scoring.row == row;
            for (int i = 0; i < kHandSize; ++i)
              agrees = agrees && scoring.groups[i] == reckoning::groupOf(hand, row, i);
            ASSERT_TRUE(agrees) << cards[0] << ' ' << cards[1] << ' ' << cards[2] << ' ' << cards[3] << ' '
                                << cards[4] << " scores row " << scoring.row << ", should be " << row;
          }
  EXPECT_EQ(hands, 2'869'685);
  if (kStep == 1) {
    // Known from the pack of 52: each plain hand without the joker is among these.
    EXPECT_EQ(rows[kFive], 13);
    EXPECT_EQ(rows[kFour], 624 + 13 * 4 * 48);
    EXPECT_EQ(rows[kFull], 3744 + 78 * 36);
    EXPECT_EQ(rows[kTwoPairs], 123'552);
  }
}

struct Example {
  OfHand<int> cards;
  Row row;
};

// Suits by hand: 0 to 12 red, 13 yellow, 26 cyan, 39 green.
TEST(Scoring, TellsApartTheHandsThatDifferByLittle) {
  const std::array<Example, 18> examples{{
      {{0, 22, 36, 11, 12}, kStraight},        // 10 to the ace
      {{0, 9, 10, 11, 12}, kStraightFlush},    // in the red suit too
      {{12, 13, 1, 2, 3}, kNothing},           // no way round the king
      {{0, 14, 28, 3, 4}, kStraight},          // the ace low
      {{1, 15, 29, 4, 52}, kStraight},         // four in sequence
      {{1, 15, 30, 5, 52}, kStraight},         // one gap
      {{1, 15, 30, 6, 52}, kPair},             // two gaps
      {{0, 15, 29, 5, 52}, kStraight},         // an ace beside three cards
      {{0, 14, 28, 6, 52}, kPair},             //
      {{0, 23, 37, 12, 52}, kStraight},        //
      {{13, 23, 24, 25, 52}, kStraightFlush},  //
      {{0, 3, 4, 5, 52}, kRedFlush},           // the ace beside three cards, all of one suit
      {{13, 16, 17, 18, 52}, kFlush},          //
      {{0, 52, 2, 5, 9}, kFlush},              // only the second card is asked for red
      {{52, 0, 2, 5, 9}, kRedFlush},           //
      {{0, 13, 4, 17, 52}, kFull},             //
      {{7, 20, 33, 46, 52}, kFive},            //
      {{7, 20, 33, 52, 1}, kFour},             //
  }};
  for (const auto& [cards, row] : examples) {
    EXPECT_EQ(score(handOf(cards)).row, row) << cards[0] << ' ' << cards[1] << ' ' << cards[2];
  }
}

}  // namespace
}  // namespace tombolario::videopoker
