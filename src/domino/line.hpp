#pragma once

#include <cstdint>
#include <optional>

#include "pieces/domino_set.hpp"

namespace tombolario::domino {

/// The ends of the line.
enum class End { Left, Right };

/// The open numbers at the two ends of the line.
struct OpenEnds {
  std::int16_t sxdom = 0;
  std::int16_t dxdom = 0;

  constexpr bool areOf(int number) const { return number == sxdom || number == dxdom; }
  constexpr bool accept(const Tile& tile) const { return areOf(tile.first) || areOf(tile.second); }
};

/// A way to lay a tile on the line.
struct Placement {
  End end = End::Left;
  bool reversed = false;

  /// The number that the tile would leave open at its end; nothing if it does not fit there that way round.
  constexpr std::optional<std::int16_t> leavesOpen(const Tile& tile, const OpenEnds& open) const {
    const auto [first, second] = reversed ? Tile{tile.second, tile.first} : tile;
    if (end == End::Left) return second == open.sxdom ? std::optional(first) : std::nullopt;
    return first == open.dxdom ? std::optional(second) : std::nullopt;
  }
};

}  // namespace tombolario::domino
