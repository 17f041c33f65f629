#pragma once

#include "toolkit/painter.hpp"

namespace tombolario {

/// The classic edges: a button at rest, a button held down, one that cannot be pressed, a box let into the
/// ground, a groove.
enum class Edge { Raised, Pressed, Flat, Sunken, Etched };

/// Draws the edge just inside the rectangle, one or two lines wide; it is closed all round on any ground.
void drawEdge(Painter& painter, const Rect& rect, Edge edge);

}  // namespace tombolario
