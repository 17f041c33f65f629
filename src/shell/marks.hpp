#pragma once

#include "shell/control.hpp"
#include "shell/hand.hpp"

namespace tombolario {

/// The back colours of a card's frame. The player's mark on the card lives in them.
inline constexpr Colour kAtRest = SystemColour::Light3d;
inline constexpr Colour kMarked = SystemColour::ButtonShadow;

/// Marks the card of a frame at rest and takes the mark off a marked one; any other colour stays.
inline void toggleMark(Control& frame) {
  if (frame.BackColor == kAtRest) {
    frame.BackColor = kMarked;
  } else if (frame.BackColor == kMarked) {
    frame.BackColor = kAtRest;
  }
}

/// The marks on the cards of a hand, read from its frames, 0 to 4.
template <class Frames>
Marks marksOf(Frames& frames) {
  Marks marked{};
  for (int i = 0; i < kHandSize; ++i) marked[i] = frames[i].BackColor == kMarked;
  return marked;
}

}  // namespace tombolario
