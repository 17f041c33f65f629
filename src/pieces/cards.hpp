#pragma once

#include "pieces/slots.hpp"

namespace tombolario {

inline constexpr int kValues = 13;
inline constexpr int kSuits = 4;
inline constexpr int kPack = kValues * kSuits;
inline constexpr int kJoker = kPack;  ///< the number of the joker, where there is one

/// What is drawn on a card of each value, 0 to 12: the ace has the lowest number.
inline constexpr Slots<const char*, 0, kValues - 1> kValueNames =
    slots<0, const char*>({"A", "2", "3", "4", "5", "6", "7", "8", "9", "10", "J", "Q", "K"});

/// The value (0 to 12) and the suit (1 to 4) of a card number, 0 to 51.
constexpr int cardValue(int card) { return card % kValues; }
constexpr int cardSuit(int card) { return card / kValues + 1; }

}  // namespace tombolario
