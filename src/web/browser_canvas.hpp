#pragma once

#include "toolkit/canvas.hpp"

namespace tombolario {

// What a canvas of the browser does, as `Canvas` tells; src/web/canvas.js has it. A canvas is known by a
// handle.
extern "C" {
int canvas_make(int width, int height);
void canvas_free(int canvas);
void canvas_start_at(int canvas, double x, double y);
void canvas_fill_rect(int canvas, double x, double y, double width, double height, Rgb colour);
void canvas_fill_polygon(int canvas, const Vec* points, std::size_t count, Rgb colour);
void canvas_fill_polygon_gradient(int canvas, const Vec* points, std::size_t count, bool radial, double fromX,
                                  double fromY, double toX, double toY, const Rgb* colours,
                                  std::size_t colourCount);
void canvas_stroke_polygon(int canvas, const Vec* points, std::size_t count, Rgb colour, double width);
void canvas_fill_ellipse(int canvas, double x, double y, double radiusX, double radiusY, Rgb colour);
void canvas_line(int canvas, double fromX, double fromY, double toX, double toY, Rgb colour, double width);
void canvas_text(int canvas, const char* text, std::size_t length, const char* families, int weight,
                 double em, double stretch, double x, double baseline, Rgb colour);
double canvas_text_width(int canvas, const char* text, std::size_t length, const char* families, int weight,
                         double em);
double canvas_cap_height(int canvas, const char* families, int weight);
void canvas_copy(int canvas, int from, double x, double y);
void canvas_clip(int canvas, double x, double y, double width, double height);
void canvas_unclip(int canvas);
}

/// A canvas of the browser.
class BrowserCanvas : public Canvas {
 public:
  /// The canvas of the page itself.
  BrowserCanvas() : BrowserCanvas(kPageCanvas) {}
  /// One that nobody sees.
  explicit BrowserCanvas(Size size) : BrowserCanvas(canvas_make(size.width, size.height)) {}
  BrowserCanvas(const BrowserCanvas&) = delete;
  BrowserCanvas& operator=(const BrowserCanvas&) = delete;
  ~BrowserCanvas() override {
    if (handle_ != kPageCanvas) canvas_free(handle_);
  }

  int handle() const { return handle_; }

  std::unique_ptr<Canvas> make(Size size) override { return std::make_unique<BrowserCanvas>(size); }
  void startAt(Vec origin) override { canvas_start_at(handle_, origin.x, origin.y); }
  void fillRect(const Rect& rect, Rgb colour) override {
    canvas_fill_rect(handle_, rect.x, rect.y, rect.w, rect.h, colour);
  }
  void fillPolygon(std::span<const Vec> points, Rgb colour) override {
    canvas_fill_polygon(handle_, points.data(), points.size(), colour);
  }
  void fillPolygon(std::span<const Vec> points, const Gradient& gradient) override {
    const auto& [shape, from, to, colours] = gradient;
    canvas_fill_polygon_gradient(handle_, points.data(), points.size(), shape == Gradient::Shape::Radial,
                                 from.x, from.y, to.x, to.y, colours.data(), colours.size());
  }
  void strokePolygon(std::span<const Vec> points, Rgb colour, double width) override {
    canvas_stroke_polygon(handle_, points.data(), points.size(), colour, width);
  }
  void fillEllipse(Vec centre, Vec radii, Rgb colour) override {
    canvas_fill_ellipse(handle_, centre.x, centre.y, radii.x, radii.y, colour);
  }
  void line(Vec from, Vec to, Rgb colour, double width) override {
    canvas_line(handle_, from.x, from.y, to.x, to.y, colour, width);
  }
  void text(std::string_view text, const Typeface& face, Vec start, Rgb colour) override {
    canvas_text(handle_, text.data(), text.size(), face.families, face.weight, face.em, face.stretch, start.x,
                start.y, colour);
  }
  double textWidth(std::string_view text, const Typeface& face) override {
    return canvas_text_width(handle_, text.data(), text.size(), face.families, face.weight, face.em);
  }
  double capHeight(const Typeface& face) override {
    return canvas_cap_height(handle_, face.families, face.weight) * face.em;
  }
  void copy(Canvas& from, Vec at) override {
    canvas_copy(handle_, static_cast<BrowserCanvas&>(from).handle_, at.x, at.y);
  }
  void clip(const Rect& rect) override { canvas_clip(handle_, rect.x, rect.y, rect.w, rect.h); }
  void unclip() override { canvas_unclip(handle_); }

 private:
  static constexpr int kPageCanvas = 0;
  explicit BrowserCanvas(int handle) : handle_(handle) { startAt({}); }

  int handle_;
};

}  // namespace tombolario
