#pragma once

#include <cstdint>
#include <optional>

#include "pieces/chance.hpp"
#include "pieces/mahjongg_set.hpp"
#include "pieces/slots.hpp"

namespace tombolario::mahjongg {

// The cells of the board, 1 to 120: ten rows of eight on the ground, then ten rows of four over their
// middle.
inline constexpr int kGroundCells = 80;
inline constexpr int kCells = kPieces;
inline constexpr int kGroundColumns = 8;
inline constexpr int kTopColumns = 4;

/// Something for each cell.
template <class T>
using OfCells = Slots<T, 1, kCells>;

constexpr bool isGround(int cell) { return cell <= kGroundCells; }

/// A board of mahjongg: what still stands, and up to two tiles that are selected.
class Mahjongg {
 public:
  /// Lays a new board; any order, solvable or not.
  void avvioMAH(UniformSource& uniform);

  /// Selects a free tile, if fewer than two are, or releases a selected one. Nothing where none stands.
  void press(int cell);
  /// Takes the two selected tiles away if they are of one kind; releases them in any case. Nothing unless
  /// two are selected.
  void removePair();

  bool stands(int cell) const { return standing_[cell]; }
  bool isSelected(int cell) const;
  /// How many tiles are selected.
  int selected() const { return selmah; }
  /// The kind of the first selected tile, if there is one.
  std::optional<int> selectedKind() const;
  int piece(int cell) const { return ordinemah[cell - 1]; }
  int kind(int cell) const { return tipomah[cell]; }
  /// How many tiles of a kind still stand.
  int left(int kind) const { return left_[kind]; }

 private:
  bool isFree(int cell) const;

  Numbers<0, kCells - 1> ordinemah{};  ///< the tiles in shuffled order
  OfCells<std::int16_t> tipomah{};     ///< kind by cell
  OfCells<bool> standing_{};
  Numbers<0, kKinds - 1> left_{};
  int selmah = 0;
  Numbers<0, 1> sceltemah{};  ///< the selected cells
};

}  // namespace tombolario::mahjongg
