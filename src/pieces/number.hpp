#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace tombolario {

/// Adds to a number of a game, which has 16 bits: a sum beyond them stays at the last number that they hold.
constexpr void add(std::int16_t& number, int more) {
  using Limits = std::numeric_limits<std::int16_t>;
  number = static_cast<std::int16_t>(std::clamp<int>(number + more, Limits::min(), Limits::max()));
}

}  // namespace tombolario
