#pragma once

#include <cstddef>
#include <utility>

#include "toolkit/colour.hpp"

namespace tombolario {

// What a canvas of the browser can do, in its own pixels; src/web/canvas.js has it. A canvas is known by a
// handle; that of the page is 0.
extern "C" {
int canvas_make(int width, int height);
void canvas_free(int canvas);
/// From here on the origin lies there, and strokes and text are as the room draws them.
void canvas_begin(int canvas, double x, double y);
void canvas_fill_rect(int canvas, double x, double y, double width, double height, Rgb colour);
/// The points are pairs of x and y.
void canvas_fill_polygon(int canvas, const double* points, std::size_t count, Rgb colour);
void canvas_stroke_polygon(int canvas, const double* points, std::size_t count, Rgb colour, double width);
void canvas_fill_ellipse(int canvas, double x, double y, double radiusX, double radiusY, Rgb colour);
void canvas_line(int canvas, double fromX, double fromY, double toX, double toY, Rgb colour, double width);
/// Text starts at x; its font goes by families, weight and the size of the em.
void canvas_text(int canvas, const char* text, std::size_t length, const char* families, int weight,
                 double em, double x, double baseline, Rgb colour);
double canvas_text_width(int canvas, const char* text, std::size_t length, const char* families, int weight,
                         double em);
void canvas_copy(int canvas, int from, double x, double y);
/// Half covers what has been drawn, and nothing else, with the colour.
void canvas_veil(int canvas, Rgb colour);
/// Clips further, until the matching unclip.
void canvas_clip(int canvas, double x, double y, double width, double height);
void canvas_unclip(int canvas);
}

/// A canvas that nobody sees, to draw pictures on.
class Canvas {
 public:
  Canvas() = default;
  Canvas(int width, int height) : handle_(canvas_make(width, height)) {}
  Canvas(Canvas&& other) noexcept : handle_(std::exchange(other.handle_, 0)) {}
  Canvas& operator=(Canvas&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~Canvas() {
    if (handle_ != 0) canvas_free(handle_);
  }

  explicit operator bool() const { return handle_ != 0; }
  int handle() const { return handle_; }

 private:
  int handle_ = 0;
};

}  // namespace tombolario
