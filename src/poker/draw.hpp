#pragma once

#include <cstdint>
#include <optional>

#include "poker/classification.hpp"

namespace tombolario::poker {

/// What the computer makes of its hand.
struct Draw {
  Classification hand;         ///< of the hand that it keeps
  std::optional<int> changed;  ///< the position, 0 to 4, whose card it changes, if any
};

/// The computer knows the card that it would receive. It tries the hand as dealt, then that card in each
/// position from left to right, and takes the first trial of the best class; what does not raise the class
/// is never changed.
Draw chooseDraw(const Hand& dealt, std::int16_t nextValue, std::int16_t nextSuit);

}  // namespace tombolario::poker
