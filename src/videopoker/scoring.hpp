#pragma once

#include <array>
#include <cstdint>

#include "pieces/hand.hpp"

namespace tombolario::videopoker {

inline constexpr int kRows = 11;

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

/// What the recognition of a hand finds.
struct Scoring {
  std::array<bool, kRows> lit{};           ///< the rows of the pay table; exactly one is lit
  std::int16_t coppieVP = 0;               ///< pairs of positions with equal value, the joker's help counted
  std::int16_t colorePariVP = 0;           ///< pairs of positions with equal suit
  std::int16_t gruppoVP = 0;               ///< value of the one group of equal cards; 15 for a joker alone
  std::array<std::int16_t, 2> gruppiVP{};  ///< values of the two groups of two pairs or a full house

  Row row() const;
};

/// Recognises a hand. At most one of the cards is the joker.
Scoring score(const Hand& hand);

/// Which group of equal cards a position belongs to, as the table shows it.
enum class Group { None, First, Second };
Group groupOf(const Scoring& scoring, std::int16_t value);

}  // namespace tombolario::videopoker
