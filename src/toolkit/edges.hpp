#pragma once

#include "toolkit/painter.hpp"

namespace tombolario {

/// The classic edges: a button at rest, a button held down, a box let into the ground, a groove.
enum class Edge { Raised, Pressed, Sunken, Etched };

/// Draws the edge just inside the rectangle, one or two pixels wide.
void drawEdge(Painter& painter, const Rect& rect, Edge edge);

}  // namespace tombolario
