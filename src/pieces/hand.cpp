#include "pieces/hand.hpp"

#include <algorithm>

#include "pieces/cards.hpp"

namespace tombolario {

Hand handOf(const Cards& cards) {
  Hand hand;
  for (int i = 0; i < kHandSize; ++i) {
    const bool joker = cards[i] == kJoker;
    hand.value[i] = joker ? kJokerValue : static_cast<std::int16_t>(cardValue(cards[i]));
    hand.suit[i] = joker ? kJokerSuit : static_cast<std::int16_t>(cardSuit(cards[i]));
  }
  return hand;
}

LikePairs countLikePairs(const Hand& hand) {
  LikePairs pairs;
  for (int i = 0; i < kHandSize; ++i) {
    for (int j = i + 1; j < kHandSize; ++j) {
      if (hand.value[i] == hand.value[j]) ++pairs.inValue;
      if (hand.suit[i] == hand.suit[j]) ++pairs.inSuit;
    }
  }
  return pairs;
}

int times(const Hand& hand, std::int16_t value) {
  return static_cast<int>(std::count(hand.value.begin(), hand.value.end(), value));
}

OfHand<std::int16_t> sortedValues(const Hand& hand) {
  auto values = hand.value;
  std::sort(values.begin(), values.end());
  return values;
}

}  // namespace tombolario
