#pragma once

#include <cstdint>
#include <optional>

#include "pieces/domino_set.hpp"

namespace tombolario::domino {

/// The open numbers at the two ends of the line.
struct OpenEnds {
  std::int16_t sxdom = 0;
  std::int16_t dxdom = 0;
};

constexpr bool fits(const Tile& tile, const OpenEnds& open) {
  return tile.bears(open.sxdom) || tile.bears(open.dxdom);
}

/// The ways to lay a tile on the line.
enum class Placement : std::int16_t { None, Right, RightReversed, Left, LeftReversed };

constexpr bool isLeft(Placement placement) {
  return placement == Placement::Left || placement == Placement::LeftReversed;
}
constexpr bool isReversed(Placement placement) {
  return placement == Placement::RightReversed || placement == Placement::LeftReversed;
}

/// The number that the tile would leave open at its end; nothing if it does not fit there that way round.
std::optional<std::int16_t> leavesOpen(Placement placement, const Tile& tile, const OpenEnds& open);

}  // namespace tombolario::domino
