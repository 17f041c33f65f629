#pragma once

namespace tombolario {

/// The tiles of mahjongg: 30 kinds, four of each.
inline constexpr int kKinds = 30;
inline constexpr int kPieces = 120;

/// The kind, 0 to 29, of a tile of the set, 0 to 119.
constexpr int kindOfPiece(int piece) { return piece < 80 ? piece % 20 : 20 + (piece - 80) % 10; }

}  // namespace tombolario
