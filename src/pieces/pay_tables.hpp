#pragma once

#include <cstdint>

#include "pieces/slots.hpp"

namespace tombolario {

// What the hands of the two games of poker are called and count: the rules pay by these tables, and the
// pictures show them.

/// The fee of video poker, for going on and for loading; the balance must be above it.
inline constexpr int kFee = 5;

/// A row of the pay table of video poker.
struct PayRow {
  const char* name;
  std::int16_t amount;  ///< added to the balance
  int top;              ///< in twips: the picture of the table has the row there, and the lit one lies on it
};
inline constexpr int kPayRows = 11;
/// From the worthless hand to five alike. The tops are uneven.
inline constexpr Slots<PayRow, 0, kPayRows - 1> kPayTable = slots<0, PayRow>({{"mano nulla", -1, 0},
                                                                              {"coppia", 0, 290},
                                                                              {"doppia coppia", 2, 570},
                                                                              {"tris", 4, 800},
                                                                              {"scala", 5, 1050},
                                                                              {"full", 7, 1310},
                                                                              {"colore", 8, 1560},
                                                                              {"colore rosso", 10, 1810},
                                                                              {"poker", 12, 2070},
                                                                              {"scala reale", 15, 2330},
                                                                              {"pokerissimo", 18, 2560}});

/// A class of hands in poker against the computer.
struct Combination {
  const char* name;
  std::int16_t points;  ///< for the side that wins with it
};
inline constexpr int kHandClasses = 9;
/// From no combination, which has no name, to the straight flush.
inline constexpr Slots<Combination, 0, kHandClasses - 1> kCombinations =
    slots<0, Combination>({{" ", 0},
                           {"coppia", 1},
                           {"doppia coppia", 2},
                           {"tris", 4},
                           {"scala", 5},
                           {"full", 7},
                           {"colore", 8},
                           {"poker", 10},
                           {"scala reale", 12}});

}  // namespace tombolario
