#include "videopoker/scoring.hpp"

#include <algorithm>
#include <utility>

#include "pieces/cards.hpp"

namespace tombolario::videopoker {

namespace {

constexpr std::int16_t kRedSuit = 1;

Row rowOf(const Hand& hand) {
  const bool joker = times(hand, kJokerValue) > 0;
  const LikePairs pairs = countLikePairs(hand);
  // The joker raises a group by one step: two pairs become a full house.
  switch (pairs.inValue) {
    case 1: return joker ? kThree : kPair;
    case 2: return joker ? kFull : kTwoPairs;
    case 3: return joker ? kFour : kThree;
    case 4: return kFull;
    case 6: return joker ? kFive : kFour;
    default: break;
  }

  // All values differ, and the joker, sorted last, fills a gap, stands at an end or takes a suit.
  const auto values = sortedValues(hand);
  const int highest = values[joker ? 3 : 4];
  const bool ace = values[0] == 0;
  const bool sequence = highest - values[0] <= 4 || (ace && values[1] >= 9);
  if (pairs.inSuit == (joker ? 6 : 10)) {
    if (sequence) return kStraightFlush;
    // Only the second card is asked for its suit, and the joker is not red.
    return hand.suit[1] == kRedSuit ? kRedFlush : kFlush;
  }
  // Beside an ace the joker has no lower limit: ace, 4, 5, 6 and the joker are a straight too.
  if (sequence || (joker && ace && highest - values[1] <= 3)) return kStraight;
  return joker ? kPair : kNothing;
}

}  // namespace

Scoring score(const Hand& hand) {
  Scoring scoring{.row = rowOf(hand)};
  const auto weightOf = [&hand](std::int16_t value) {
    return std::pair{times(hand, value), value == 0 ? kValues : value};
  };
  for (int i = 0; i < kHandSize; ++i) {
    const auto weight = weightOf(hand.value[i]);
    if (weight.first == 1 || scoring.row == kFive) continue;
    const bool outweighed = std::any_of(hand.value.begin(), hand.value.end(),
                                        [&](std::int16_t other) { return weightOf(other) > weight; });
    scoring.groups[i] = outweighed ? Group::Second : Group::First;
  }
  return scoring;
}

}  // namespace tombolario::videopoker
