#pragma once

#include "toolkit/control.hpp"

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

/// The marks on the cards of a row, read from its frames.
template <class Marks, class Frames>
Marks marksOf(Frames& frames) {
  Marks marks{};
  int i = 0;
  for (bool& mark : marks) mark = frames[i++].BackColor == kMarked;
  return marks;
}

}  // namespace tombolario
