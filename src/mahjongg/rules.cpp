#include "mahjongg/rules.hpp"

#include <algorithm>

namespace tombolario::mahjongg {

void Mahjongg::avvioMAH(UniformSource& uniform) {
  std::fill(standing_.begin(), standing_.end(), true);
  std::fill(left_.begin(), left_.end(), std::int16_t{kOfAKind});
  selmah = 0;
  deal(uniform, ordinemah, 0, kCells - 1, kCells);
  for (int cell = 1; cell <= kCells; ++cell)
    tipomah[cell] = static_cast<std::int16_t>(kindOfPiece(piece(cell)));
}

/// At the edge of its row, or beside a gap in its own layer.
bool Mahjongg::isFree(int cell) const {
  const int column = cell % (isGround(cell) ? kGroundColumns : kTopColumns);
  const bool atEdge = column == 1 || column == 0;
  return atEdge || !stands(cell - 1) || !stands(cell + 1);
}

void Mahjongg::press(int cell) {
  if (!isSelected(cell)) {
    if (selmah < 2 && stands(cell) && isFree(cell)) sceltemah[selmah++] = static_cast<std::int16_t>(cell);
    return;
  }
  if (sceltemah[0] == cell) sceltemah[0] = sceltemah[1];
  --selmah;
}

void Mahjongg::removePair() {
  if (selmah != 2) return;
  const auto [first, second] = sceltemah.items;
  if (kind(first) == kind(second)) {
    standing_[first] = standing_[second] = false;
    left_[kind(first)] = static_cast<std::int16_t>(left(kind(first)) - 2);
  }
  selmah = 0;
}

bool Mahjongg::isSelected(int cell) const {
  const auto selected = sceltemah.begin() + selmah;
  return std::find(sceltemah.begin(), selected, cell) != selected;
}

std::optional<int> Mahjongg::selectedKind() const {
  return selmah > 0 ? std::optional(kind(sceltemah[0])) : std::nullopt;
}

}  // namespace tombolario::mahjongg
