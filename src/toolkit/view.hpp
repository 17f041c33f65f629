#pragma once

#include "toolkit/form.hpp"

namespace tombolario {

/// The room in a window of any size and kind: as large as fits, in the middle, in one piece. Lengths and
/// places are device pixels of the window.
class View {
 public:
  explicit View(Form& form) : form_(form) {}

  /// The window has that size now.
  void fit(int width, int height);
  /// Device pixels to a pixel of the room.
  double scale() const { return scale_; }
  int marginX() const { return marginX_; }  ///< left of the room
  int marginY() const { return marginY_; }  ///< above it
  /// Whether anything of the window lies beside the room, if only a pixel.
  bool hasMargins() const { return hasMargins_; }

  /// The mouse is there, maybe outside the room. A place that it is at already is no move: a window tells the
  /// place with every press and release, too.
  void mouseAt(double x, double y);

 private:
  Form& form_;
  double scale_ = 1;
  int marginX_ = 0;
  int marginY_ = 0;
  bool hasMargins_ = false;
  Point mouse_{-1, -1};  // in the room
};

}  // namespace tombolario
