#pragma once

namespace tombolario::ramino {

// Where a card can be: everything goes by these positions, 0 to 51.
inline constexpr int kPlayerCards = 9;  ///< 0 to 8, in three triples of frames
inline constexpr int kInPlay = 9;       ///< what the player has drawn
inline constexpr int kComputerFirst = 10;
inline constexpr int kComputerLast = 20;
inline constexpr int kConsidered = 21;  ///< what the computer is looking at
inline constexpr int kTable = 22;       ///< the card that lies open
inline constexpr int kStockFirst = 23;
inline constexpr int kStockEnd = 51;  ///< after the last of the stock; nothing is dealt to it

}  // namespace tombolario::ramino
