#pragma once

#include <cstdint>

namespace tombolario {

/// A tile by its two numbers, as it lies: the first at the left.
struct Tile {
  std::int16_t first = 0;
  std::int16_t second = 0;

  constexpr bool bears(int number) const { return first == number || second == number; }
};

}  // namespace tombolario
