#pragma once

#include "pieces/hand.hpp"
#include "pieces/pay_tables.hpp"

namespace tombolario::videopoker {

/// The rows of the pay table, from the worthless hand to five alike.
enum Row {
  kNothing,
  kPair,
  kTwoPairs,
  kThree,
  kStraight,
  kFull,
  kFlush,
  kRedFlush,
  kFour,
  kStraightFlush,
  kFive
};
static_assert(kFive == kPayRows - 1, "a row of the pay table for each");

/// Which group of equal cards a card belongs to, as the table shows it. Of two groups the one that counts
/// more is the first: the three of a full house, else the higher pair, and aces before all.
enum class Group { None, First, Second };

/// What a hand is worth, and the groups that make it so. The joker belongs to none, and five alike show none.
struct Scoring {
  Row row = kNothing;
  OfHand<Group> groups{};
};

/// Recognises a hand. At most one of the cards is the joker, which takes the place of any.
Scoring score(const Hand& hand);

}  // namespace tombolario::videopoker
