#pragma once

#include <cstdint>

#include "pieces/slots.hpp"

namespace tombolario {

inline constexpr int kHandSize = 5;

/// Something for each position of a hand, 0 to 4.
template <class T>
using OfHand = Slots<T, 0, kHandSize - 1>;

/// The numbers of five cards, 0 to 51 or the joker's.
using Cards = OfHand<int>;

/// Values (0 to 12, the ace 0) and suits (1 to 4) of five cards. A joker has a value and a suit of its own.
struct Hand {
  OfHand<std::int16_t> value{};
  OfHand<std::int16_t> suit{};
};
inline constexpr std::int16_t kJokerValue = 14;
inline constexpr std::int16_t kJokerSuit = 5;

Hand handOf(const Cards& cards);

/// The cards that a pack has from a slot on.
template <int Last>
Cards cardsAt(const Numbers<0, Last>& pack, int slot) {
  Cards cards{};
  for (int i = 0; i < kHandSize; ++i) cards[i] = pack[slot + i];
  return cards;
}

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

/// Changes the marked cards of the hand at the start of a pack for those that follow it, from left to right.
/// What has come stays in its old slot, too.
template <int Last>
void changeMarked(Numbers<0, Last>& pack, const Marks& marked) {
  int next = kHandSize;
  for (int i = 0; i < kHandSize; ++i) {
    if (marked[i]) pack[i] = pack[next++];
  }
}

}  // namespace tombolario
