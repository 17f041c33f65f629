#pragma once

#include <algorithm>
#include <array>
#include <iterator>
#include <set>

#include "videopoker/scoring.hpp"

/// The rows of video poker by their plain description, to hold the scoring against. Cards are numbers, 0
/// to 52.
namespace tombolario::videopoker::reckoning {

/// The values all lie in one of the ten sequences from A, 2, 3, 4, 5 to 10, J, Q, K, A.
inline bool fitsASequence(const std::set<int>& values) {
  for (int low = 0; low <= 9; ++low) {
    const auto inside = [&](int v) { return (v >= low && v <= low + 4) || (v == 0 && low == 9); };
    if (std::all_of(values.begin(), values.end(), inside)) return true;
  }
  return false;
}

/// The row of a hand by its plain description, with no ladder of tests.
inline Row rowOf(const Hand& hand) {
  std::array<int, 15> count{};
  std::set<int> values;
  std::set<int> suits;
  bool joker = false;
  for (int i = 0; i < kHandSize; ++i) {
    if (hand.value[i] == 14) {
      joker = true;
      continue;
    }
    ++count[static_cast<std::size_t>(hand.value[i])];
    values.insert(hand.value[i]);
    suits.insert(hand.suit[i]);
  }
  std::sort(count.rbegin(), count.rend());
  const std::size_t cards = joker ? 4 : 5;
  if (values.size() < cards) {
    const int alike = count[0];
    if (!joker) {
      if (alike == 4) return kFour;
      if (alike == 3) return count[1] == 2 ? kFull : kThree;
      return count[1] == 2 ? kTwoPairs : kPair;
    }
    if (alike == 4) return kFive;
    if (alike == 3) return kFour;
    return count[1] == 2 ? kFull : kThree;
  }
  const bool oneSuit = suits.size() == 1;
  const bool sequence = fitsASequence(values);
  if (sequence && oneSuit) return kStraightFlush;
  if (oneSuit) return hand.suit[1] == 1 ? kRedFlush : kFlush;
  if (sequence) return kStraight;
  if (!joker) return kNothing;
  // An ace beside any three cards close together makes a straight with the joker: A, 4, 5, 6 too.
  const bool aceAndThree = *values.begin() == 0 && *values.rbegin() - *std::next(values.begin()) <= 3;
  return aceAndThree ? kStraight : kPair;
}

inline Group groupOf(const Hand& hand, Row row, int position) {
  const auto times = [&](int value) { return std::count(hand.value.begin(), hand.value.end(), value); };
  const auto rank = [](int value) { return value == 0 ? 13 : value; };
  const int value = hand.value[position];
  if (times(value) < 2) return Group::None;
  if (row == kPair || row == kThree || row == kFour) return Group::First;
  if (row != kTwoPairs && row != kFull) return Group::None;
  for (const int other : hand.value) {
    if (other == value || times(other) < 2) continue;
    const bool before =
        times(other) != times(value) ? times(other) > times(value) : rank(other) > rank(value);
    if (before) return Group::Second;
  }
  return Group::First;
}

}  // namespace tombolario::videopoker::reckoning
