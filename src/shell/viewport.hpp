#pragma once

#include "shell/geometry.hpp"

namespace tombolario {

class Form;

/// Where the room lies in a window of any size, in device pixels: as large as fits, in the middle.
struct Viewport {
  double scale = 1;  ///< device pixels to a pixel of the room
  int marginX = 0;   ///< left of the room
  int marginY = 0;   ///< above it

  static Viewport fit(const Form& form, int width, int height);
  /// The place in the room, in twips, that is shown at that place of the window; it may lie outside.
  Point place(double x, double y) const;
};

}  // namespace tombolario
