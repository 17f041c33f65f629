#pragma once

#include "shell/control.hpp"

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

}  // namespace tombolario
