#pragma once

#include <cstdint>

#include "pieces/hand.hpp"

namespace tombolario::videopoker {

/// The joker takes the place of one card when a hand is scored.
inline constexpr std::int16_t kJokerValue = 14;
inline constexpr std::int16_t kJokerSuit = 5;

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

/// Which group of equal cards a card belongs to, as the table shows it. Of two groups the one that counts
/// more is the first: the three of a full house, else the higher pair, and aces before all.
enum class Group { None, First, Second };

/// What a hand is worth, and the groups that make it so. The joker belongs to none, and five alike show none.
struct Scoring {
  Row row = kNothing;
  OfHand<Group> groups{};
};

/// Recognises a hand. At most one of the cards is the joker.
Scoring score(const Hand& hand);

}  // namespace tombolario::videopoker
