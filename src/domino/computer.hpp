#pragma once

#include <optional>

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
struct Position {
  Slots<std::optional<Tile>, kFirstOfComputer, kLastOfComputer>
      hand;  ///< nothing where the tile has been laid
  OpenEnds open;
  Numbers<0, kNumbers - 1> held;  ///< how many of the player's tiles bear each number
};

/// A tile of the computer and how to lay it.
struct Choice {
  Placement mossadom;
  int sceltadom = 0;  ///< the slot, 15 to 27
};

/// The computer's choice; nothing if no tile fits. The expert prefers to leave open the number that the
/// player holds least, the lower of two that are held alike; then the lowest slot counts, then right before
/// left, and as it lies before reversed.
std::optional<Choice> choose(const Position& position, Level level);

}  // namespace tombolario::domino
