#include "domino/line.hpp"

namespace tombolario::domino {

std::optional<std::int16_t> leavesOpen(Placement placement, const Tile& tile, const OpenEnds& open) {
  const auto joining = [](std::int16_t inner, std::int16_t end, std::int16_t outer) {
    return inner == end ? std::optional(outer) : std::nullopt;
  };
  switch (placement) {
    case Placement::Right: return joining(tile.first, open.dxdom, tile.second);
    case Placement::RightReversed: return joining(tile.second, open.dxdom, tile.first);
    case Placement::Left: return joining(tile.second, open.sxdom, tile.first);
    case Placement::LeftReversed: return joining(tile.first, open.sxdom, tile.second);
    case Placement::None: break;
  }
  return std::nullopt;
}

}  // namespace tombolario::domino
