#pragma once

#include <vector>

#include "toolkit/painter.hpp"
#include "toolkit/picture.hpp"
#include "toolkit/picture_cache.hpp"
#include "toolkit/pixel_grid.hpp"
#include "web/canvas.hpp"

namespace tombolario {

/// A picture as drawn, and from its first use on also under its veil.
struct DrawnPicture {
  Canvas plain;
  Canvas dimmed;
};
using CanvasCache = PictureCache<DrawnPicture>;

/// Draws on a canvas of the browser, with that many of its pixels to a pixel of the room.
class CanvasPainter : public Painter {
 public:
  /// The origin is the place on the canvas, in its pixels, where the drawing begins.
  CanvasPainter(int canvas, Vec origin, double scale, CanvasCache& cache);

  /// The picture at that scale, from the cache. It is good until the next call.
  static DrawnPicture& drawn(const PictureId& picture, double scale, CanvasCache& cache);

  void fillRect(const Rect& rect, Rgb colour) override;
  void outlineRect(const Rect& rect, Rgb colour, double width) override;
  void fillPolygon(std::span<const Vec> points, Rgb colour) override;
  void outlinePolygon(std::span<const Vec> points, Rgb colour, double width) override;
  void fillEllipse(const Rect& bounds, Rgb colour) override;
  void line(Vec from, Vec to, Rgb colour, double width) override;
  void text(const Rect& box, std::string_view text, const Font& font, Rgb colour, Align align) override;
  double textWidth(std::string_view text, const Font& font) override;
  void picture(const PictureId& picture, Vec at, bool dimmed) override;
  using Painter::enter;
  void enter(const Rect& rect, double zoom) override;
  void leave() override;

 private:
  void fill(const PixelGrid::Area& area, Rgb colour) const;
  std::vector<double> trace(std::span<const Vec> points) const;

  int canvas_;
  CanvasCache& cache_;
  PixelGrid grid_;
};

}  // namespace tombolario
