#pragma once

#include "pieces/slots.hpp"
#include "pieces/tile.hpp"

namespace tombolario {

inline constexpr int kChainTiles = 12;

/// The tiles of the chain game: every ordered pair of two different values, 0 to 3.
inline constexpr Slots<Tile, 0, kChainTiles - 1> kChainSet = slots<0, Tile>(
    {{0, 1}, {0, 2}, {0, 3}, {1, 0}, {1, 2}, {1, 3}, {2, 0}, {2, 1}, {2, 3}, {3, 0}, {3, 1}, {3, 2}});

}  // namespace tombolario
