#include "pieces/hand.hpp"

#include <algorithm>

namespace tombolario {

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

OfHand<int> slotsAfterChange(const Marks& marked) {
  OfHand<int> from{};
  int next = kHandSize;
  for (int i = 0; i < kHandSize; ++i) from[i] = marked[i] ? next++ : i;
  return from;
}

}  // namespace tombolario
