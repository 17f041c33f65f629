#pragma once

#include <cstdint>

#include "poker/classification.hpp"

namespace tombolario::poker {

/// How hard the computer is: at the high level it wins every hand of equal class, at the normal one the
/// ranks decide. Its play is the same.
enum class Level { Normal, High };

/// What a won hand counts: one, or the points of its class.
enum class Counting { ByHand, ByClass };

enum class Side { Nobody, Player, Computer };

/// Who wins the hand.
Side winner(const Classification& player, const Classification& computer, Level level);

/// What a hand of the class counts for the side that wins it.
std::int16_t points(HandClass kind, Counting counting);

/// A match ends with the first score above this.
std::int16_t limit(Counting counting);

}  // namespace tombolario::poker
