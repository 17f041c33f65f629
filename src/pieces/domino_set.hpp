#pragma once

#include <cstdint>

#include "pieces/slots.hpp"
#include "pieces/tile.hpp"

namespace tombolario {

/// The tiles of domino bear the numbers 0 to 6.
inline constexpr int kNumbers = 7;
inline constexpr int kTiles = 28;
inline constexpr int kFaces = 2 * kTiles;

/// The set, in its two ways round: faces 0 to 27 are the tiles with the smaller number first, face k + 28
/// is face k reversed.
constexpr Slots<Tile, 0, kFaces - 1> makeFaces() {
  Slots<Tile, 0, kFaces - 1> faces{};
  int face = 0;
  for (std::int16_t first = 0; first < kNumbers; ++first) {
    for (std::int16_t second = first; second < kNumbers; ++second) {
      faces[face] = {first, second};
      faces[face + kTiles] = {second, first};
      ++face;
    }
  }
  return faces;
}
inline constexpr Slots<Tile, 0, kFaces - 1> kFaceNumbers = makeFaces();

}  // namespace tombolario
