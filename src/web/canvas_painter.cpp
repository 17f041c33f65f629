#include "web/canvas_painter.hpp"

#include "toolkit/typeface.hpp"

namespace tombolario {

CanvasPainter::CanvasPainter(int canvas, Vec origin, double scale, CanvasCache& cache)
    : canvas_(canvas), cache_(cache), grid_(scale) {
  cache_.begin(scale);
  canvas_begin(canvas_, origin.x, origin.y);
}

DrawnPicture& CanvasPainter::drawn(const PictureId& picture, double scale, CanvasCache& cache) {
  return cache.picture(picture, scale, [&](int width, int height) {
    Canvas canvas(width, height);
    CanvasPainter painter(canvas.handle(), {}, scale, cache);
    picture.draw(painter);
    return DrawnPicture{std::move(canvas), {}};
  });
}

void CanvasPainter::fill(const PixelGrid::Area& area, Rgb colour) const {
  canvas_fill_rect(canvas_, area.left, area.top, area.width(), area.height(), colour);
}

std::vector<double> CanvasPainter::trace(std::span<const Vec> points) const {
  std::vector<double> path;
  path.reserve(2 * points.size());
  for (const Vec& point : points) {
    const Vec at = grid_.device(point);
    path.push_back(at.x);
    path.push_back(at.y);
  }
  return path;
}

void CanvasPainter::fillRect(const Rect& rect, Rgb colour) { fill(grid_.area(rect), colour); }

void CanvasPainter::outlineRect(const Rect& rect, Rgb colour, double width) {
  for (const PixelGrid::Area& bar : grid_.frame(rect, width)) fill(bar, colour);
}

void CanvasPainter::fillPolygon(std::span<const Vec> points, Rgb colour) {
  canvas_fill_polygon(canvas_, trace(points).data(), points.size(), colour);
}

void CanvasPainter::outlinePolygon(std::span<const Vec> points, Rgb colour, double width) {
  canvas_stroke_polygon(canvas_, trace(points).data(), points.size(), colour, width * grid_.scale());
}

void CanvasPainter::fillEllipse(const Rect& bounds, Rgb colour) {
  const Vec centre = grid_.device({bounds.x + bounds.w / 2, bounds.y + bounds.h / 2});
  canvas_fill_ellipse(canvas_, centre.x, centre.y, bounds.w / 2 * grid_.scale(), bounds.h / 2 * grid_.scale(),
                      colour);
}

void CanvasPainter::line(Vec from, Vec to, Rgb colour, double width) {
  const Vec start = grid_.device(from);
  const Vec end = grid_.device(to);
  canvas_line(canvas_, start.x, start.y, end.x, end.y, colour, width * grid_.scale());
}

void CanvasPainter::text(const Rect& box, std::string_view text, const Font& font, Rgb colour, Align align) {
  const double room = (box.w - textWidth(text, font)) * grid_.scale();
  canvas_text(canvas_, text.data(), text.size(), familiesOf(font.face), weightOf(font),
              emOf(font, grid_.scale()), grid_.device({box.x, box.y}).x + room * shareOf(align),
              baselineOf(font, box, grid_), colour);
}

double CanvasPainter::textWidth(std::string_view text, const Font& font) {
  return canvas_text_width(canvas_, text.data(), text.size(), familiesOf(font.face), weightOf(font),
                           emOf(font, grid_.scale())) /
         grid_.scale();
}

void CanvasPainter::picture(const PictureId& picture, Vec at, bool dimmed) {
  if (!picture) return;
  DrawnPicture& drawn = CanvasPainter::drawn(picture, grid_.scale(), cache_);
  if (dimmed && !drawn.dimmed) {
    const Size size = picture.size();
    drawn.dimmed = Canvas(devicePixels(size.width, grid_.scale()), devicePixels(size.height, grid_.scale()));
    canvas_copy(drawn.dimmed.handle(), drawn.plain.handle(), 0, 0);
    canvas_veil(drawn.dimmed.handle(), kVeil);
  }
  const Vec corner = grid_.wholeDevice(at);
  canvas_copy(canvas_, (dimmed ? drawn.dimmed : drawn.plain).handle(), corner.x, corner.y);
}

void CanvasPainter::enter(const Rect& rect, double zoom) {
  const PixelGrid::Area clip = grid_.enter(rect, zoom);
  canvas_clip(canvas_, clip.left, clip.top, clip.width(), clip.height());
}

void CanvasPainter::leave() {
  canvas_unclip(canvas_);
  grid_.leave();
}

}  // namespace tombolario
