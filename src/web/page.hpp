#pragma once

#include <string>

#include "toolkit/form.hpp"
#include "toolkit/view.hpp"

namespace tombolario {

/// The page: shows the room as one piece on the page's canvas, as large as fits, and brings the pointer to
/// it. Lengths are device pixels of the canvas.
class Page {
 public:
  explicit Page(Form& form) : form_(form), view_(form) {}

  /// The canvas is empty and has that size now, so much of it at the bottom is not for the room, and that
  /// many device pixels are a unit of the style sheets.
  void fit(int width, int height, int below, double density);
  /// What was at one place of the canvas comes to another, that many times as large.
  void enlarge(double times, Vec from, Vec to);
  bool enlarged() const { return view_.enlarged(); }
  /// The pointer is there, with the buttons down that have their bits set: 1 left, 2 right, 4 middle, 8 back,
  /// 16 forward.
  void pointer(double x, double y, unsigned buttons);
  /// The same at a place in pixels of the room.
  void pointerInRoom(double x, double y, unsigned buttons) {
    pointer(view_.marginX() + x * view_.scale(), view_.marginY() + y * view_.scale(), buttons);
  }
  /// What a press at a place would do.
  enum class Press { Nothing, CanBeTakenBack, ActsAtOnce };
  Press pressAt(double x, double y);
  /// What is held down is released elsewhere.
  void lose();
  bool needsDrawing() const { return form_.needsDrawing(); }
  void draw();
  /// What was drawn is lost.
  void forget() { view_.forget(); }

 private:
  void placed();
  void showCursor();
  void tell();

  Form& form_;
  View view_;
  double density_ = 1;
  unsigned buttons_ = 0;
  std::string told_;
};

}  // namespace tombolario
