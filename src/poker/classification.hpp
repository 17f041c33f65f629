#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "pieces/hand.hpp"
#include "pieces/pay_tables.hpp"

namespace tombolario::poker {

/// The classes of a hand, from the worst to the best. A flush beats a full house, and a straight flush is
/// one at any height.
enum HandClass {
  kNothing,
  kPair,
  kTwoPairs,
  kThree,
  kStraight,
  kFull,
  kFlush,
  kFour,
  kStraightFlush,
};
static_assert(kStraightFlush == kHandClasses - 1, "a combination for each");

/// What a card is to the class of its hand.
enum class Role { None, FirstGroup, SecondGroup, Top };

/// What a hand is, and what it is compared by with another of its class.
struct Classification {
  HandClass kind = kNothing;
  /// Ranks that decide, the first before the others: the group; the higher pair, the lower pair and the odd
  /// card; the three and the pair. 1 to 13, the ace 13; 0 where the class has none.
  std::array<std::int16_t, 3> confrontopok{};
  /// The value of the highest card of a straight: 0, the least of all, where it ends in the ace.
  std::int16_t cimapok = 0;

  bool isStraight() const { return kind == kStraight || kind == kStraightFlush; }
  /// What the table tells of it, as "doppia coppia   A/K"; one blank for nothing.
  std::string text() const;
  /// The role of a card of the hand, by its number; none where the hand is nothing.
  Role roleOf(int card) const;
};

Classification classify(const Cards& cards);

}  // namespace tombolario::poker
