#pragma once

#include <optional>

#include "toolkit/form.hpp"
#include "toolkit/painter.hpp"

namespace tombolario {

/// The room in a window of any size and kind: as large as fits, in the middle, in one piece. Lengths and
/// places are device pixels of the window.
class View {
 public:
  explicit View(Form& form) : form_(form) {}

  /// The window has that size now, and shows neither the room nor its cursor yet; nothing is enlarged. Until
  /// something is, the room leaves so much free at the bottom.
  void fit(int width, int height, int below = 0);
  /// Makes the room that many times as large, and brings what is at one place to another: as near as it goes
  /// between the fitting size and four times as large, with no more margin than the window must have.
  void enlarge(double times, Vec from, Vec to);
  bool enlarged() const { return scale_ > fitting_; }
  /// Device pixels to a pixel of the room.
  double scale() const { return scale_; }
  int marginX() const { return marginX_; }  ///< left of the room
  int marginY() const { return marginY_; }  ///< above it
  /// In twips, maybe outside the room.
  Point placeInRoom(double x, double y) const;

  /// The mouse is there, maybe outside the room. A place that it is at already is no move: a window tells the
  /// place with every press and release, too.
  void mouseAt(double x, double y);
  /// The cursor to show, if it is not the one that was asked for last; no picture is the system's arrow.
  std::optional<PictureId> newCursor();

  /// Draws the room and what is around it, over all of the window.
  void paint(Canvas& canvas);
  /// What was drawn is lost, the pictures that are kept with it.
  void forget();

 private:
  void place(double left, double top);

  Form& form_;
  PictureCache pictures_;
  std::optional<PictureId> cursor_;
  Size size_;
  int below_ = 0;
  double fitting_ = 1;  // the scale at which all of the room is in sight
  double scale_ = 1;
  int marginX_ = 0;
  int marginY_ = 0;
  bool hasMargins_ = false;  // if only of a pixel
  Point mouse_{-1, -1};      // in the room
};

}  // namespace tombolario
