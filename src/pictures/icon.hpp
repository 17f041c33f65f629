#pragma once

#include "toolkit/painter.hpp"

namespace tombolario::pictures {

/// The side of the room's icon at its own size, in pixels.
inline constexpr int kIconSide = 128;

/// Draws the room's icon, made of two of its pictures, from (0,0) to its side.
void drawIcon(Painter& painter);

}  // namespace tombolario::pictures
