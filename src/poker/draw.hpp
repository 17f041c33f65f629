#pragma once

#include <optional>

#include "poker/classification.hpp"

namespace tombolario::poker {

/// The position, 0 to 4, whose card the computer changes, if any. It knows the card that it would receive: it
/// tries the hand as dealt, then that card in each position from left to right, and takes the first trial of
/// the best class; what does not raise the class is never changed.
std::optional<int> chooseDraw(const Cards& dealt, int next);

}  // namespace tombolario::poker
