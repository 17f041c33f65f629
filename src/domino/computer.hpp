#pragma once

#include "domino/line.hpp"

namespace tombolario::domino {

// Where the tiles of each side are dealt to; slot 0 opens the line.
inline constexpr int kFirstOfPlayer = 1;
inline constexpr int kLastOfPlayer = 14;
inline constexpr int kFirstOfComputer = 15;
inline constexpr int kLastOfComputer = 27;

/// The beginner lays the first tile that fits; the expert reads the player's hand.
enum class Level { Beginner, Expert };

/// What the computer sees of a game.
struct View {
  Slots<Tile, kFirstOfComputer, kLastOfComputer> hand;
  Slots<bool, kFirstOfComputer, kLastOfComputer> laid;  ///< those of its tiles that are on the line
  OpenEnds open;
  Numbers<0, kNumbers - 1> held;  ///< how many of the player's tiles bear each number
};

/// A tile of the computer and how to lay it; no placement if none fits.
struct Choice {
  Placement mossadom = Placement::None;
  int sceltadom = 0;  ///< the slot, 15 to 27
};

/// The computer's choice. The expert prefers to leave open the number that the player holds least, the
/// lower of two that are held alike; then the lowest slot counts, then right before left, and as it lies
/// before reversed.
Choice choose(const View& view, Level level);

}  // namespace tombolario::domino
