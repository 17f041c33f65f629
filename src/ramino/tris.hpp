#pragma once

namespace tombolario::ramino {

// What three cards, given by their numbers of 0 to 51, can be. Their order does not matter.

/// Three of one value.
bool isSet(int a, int b, int c);
/// Three in sequence of one suit, the ace below the two.
bool isRun(int a, int b, int c);
/// The queen, the king and the ace of one suit, which only the player may lay.
bool isHighRun(int a, int b, int c);

}  // namespace tombolario::ramino
