#pragma once

#include "toolkit/colour.hpp"

namespace tombolario {

/// The back colours of a card's frame: without and with the player's mark on the card.
inline constexpr Colour kAtRest = SystemColour::Light3d;
inline constexpr Colour kMarked = SystemColour::ButtonShadow;

}  // namespace tombolario
