#include "desktop/cairo_canvas.hpp"

#include <cmath>
#include <numbers>
#include <utility>

namespace tombolario {

namespace {

/// A colour by channels from 0 to 1, as Cairo takes it.
struct Channels {
  explicit constexpr Channels(Rgb colour)
      : red((colour >> 16 & 0xFF) / 255.0),
        green((colour >> 8 & 0xFF) / 255.0),
        blue((colour & 0xFF) / 255.0) {}
  double red, green, blue;
};

Owned<cairo_pattern_t> patternOf(const Gradient& gradient) {
  const auto& [shape, from, to, colours] = gradient;
  Owned<cairo_pattern_t> pattern(shape == Gradient::Shape::Linear
                                     ? cairo_pattern_create_linear(from.x, from.y, to.x, to.y)
                                     : cairo_pattern_create_radial(from.x, from.y, 0, from.x, from.y,
                                                                   std::hypot(to.x - from.x, to.y - from.y)));
  const double steps = static_cast<double>(colours.size()) - 1;
  for (double step = 0; const Rgb colour : colours) {
    const Channels c(colour);
    cairo_pattern_add_color_stop_rgb(pattern.get(), step++ / steps, c.red, c.green, c.blue);
  }
  return pattern;
}

}  // namespace

CairoCanvas::CairoCanvas(Owned<cairo_surface_t> surface, CairoFonts& fonts)
    : surface_(std::move(surface)), cairo_(cairo_create(surface_.get())), fonts_(fonts) {
  cairo_set_line_join(cairo_.get(), CAIRO_LINE_JOIN_ROUND);
}

CairoCanvas::CairoCanvas(Size size, CairoFonts& fonts)
    : CairoCanvas(
          Owned<cairo_surface_t>(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size.width, size.height)),
          fonts) {}

cairo_surface_t* CairoCanvas::surface() const {
  cairo_surface_flush(surface_.get());
  return surface_.get();
}

void CairoCanvas::ink(Rgb colour) {
  const Channels c(colour);
  cairo_set_source_rgb(cairo_.get(), c.red, c.green, c.blue);
}

void CairoCanvas::trace(std::span<const Vec> points) {
  for (const Vec& point : points) cairo_line_to(cairo_.get(), point.x, point.y);
  cairo_close_path(cairo_.get());
}

void CairoCanvas::startAt(Vec origin) {
  cairo_identity_matrix(cairo_.get());
  cairo_translate(cairo_.get(), origin.x, origin.y);
}

void CairoCanvas::fillRect(const Rect& rect, Rgb colour) {
  ink(colour);
  cairo_rectangle(cairo_.get(), rect.x, rect.y, rect.w, rect.h);
  cairo_fill(cairo_.get());
}

void CairoCanvas::fillPolygon(std::span<const Vec> points, Rgb colour) {
  ink(colour);
  trace(points);
  cairo_fill(cairo_.get());
}

void CairoCanvas::fillPolygon(std::span<const Vec> points, const Gradient& gradient) {
  cairo_set_source(cairo_.get(), patternOf(gradient).get());
  trace(points);
  cairo_fill(cairo_.get());
}

void CairoCanvas::strokePolygon(std::span<const Vec> points, Rgb colour, double width) {
  ink(colour);
  trace(points);
  cairo_set_line_width(cairo_.get(), width);
  cairo_stroke(cairo_.get());
}

void CairoCanvas::fillEllipse(Vec centre, Vec radii, Rgb colour) {
  cairo_t* cairo = cairo_.get();
  ink(colour);
  cairo_save(cairo);
  cairo_translate(cairo, centre.x, centre.y);
  cairo_scale(cairo, radii.x, radii.y);
  cairo_arc(cairo, 0, 0, 1, 0, 2 * std::numbers::pi);
  cairo_restore(cairo);
  cairo_fill(cairo);
}

void CairoCanvas::line(Vec from, Vec to, Rgb colour, double width) {
  ink(colour);
  cairo_move_to(cairo_.get(), from.x, from.y);
  cairo_line_to(cairo_.get(), to.x, to.y);
  cairo_set_line_width(cairo_.get(), width);
  cairo_stroke(cairo_.get());
}

void CairoCanvas::text(std::string_view text, const Typeface& face, Vec start, Rgb colour) {
  ink(colour);
  fonts_.find(face).trace(cairo_.get(), text, face, start);
  cairo_fill(cairo_.get());
}

void CairoCanvas::copy(Canvas& from, Vec at) {
  auto& drawn = static_cast<CairoCanvas&>(from);
  drawn.cairo_ = nullptr;  // a context takes as much memory as a small picture
  cairo_set_source_surface(cairo_.get(), drawn.surface_.get(), at.x, at.y);
  cairo_paint(cairo_.get());
}

void CairoCanvas::clip(const Rect& rect) {
  cairo_save(cairo_.get());
  cairo_rectangle(cairo_.get(), rect.x, rect.y, rect.w, rect.h);
  cairo_clip(cairo_.get());
}

}  // namespace tombolario
