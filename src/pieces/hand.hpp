#pragma once

#include <cstdint>

#include "pieces/slots.hpp"

namespace tombolario {

inline constexpr int kHandSize = 5;

/// Something for each position of a hand, 0 to 4.
template <class T>
using OfHand = Slots<T, 0, kHandSize - 1>;

/// Values (0 to 12, the ace 0) and suits (1 to 4) of five cards. A joker has a value and a suit of its own.
struct Hand {
  OfHand<std::int16_t> value{};
  OfHand<std::int16_t> suit{};
};

/// How many of the ten pairs of positions are alike.
struct LikePairs {
  std::int16_t inValue = 0;
  std::int16_t inSuit = 0;
};
LikePairs countLikePairs(const Hand& hand);

/// How many cards of the hand have the value.
int times(const Hand& hand, std::int16_t value);

/// The values in ascending order, the ace lowest.
OfHand<std::int16_t> sortedValues(const Hand& hand);

/// Whether each card of a hand is to be changed.
using Marks = OfHand<bool>;

/// The slot that each position of a hand has its card from when the marked ones are changed: its own where
/// it is not marked, else the next of the slots that follow the hand, from left to right. No position takes
/// from a slot on its left.
OfHand<int> slotsAfterChange(const Marks& marked);

}  // namespace tombolario
