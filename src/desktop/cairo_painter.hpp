#pragma once

#include <cairo.h>
#include <pango/pangocairo.h>

#include <memory>

#include "toolkit/painter.hpp"
#include "toolkit/picture.hpp"
#include "toolkit/picture_cache.hpp"
#include "toolkit/pixel_grid.hpp"

namespace tombolario {

struct CairoDeleter {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
  template <class Object>
  void operator()(Object* object) const {
    g_object_unref(object);
  }
};
template <class Object>
using Owned = std::unique_ptr<Object, CairoDeleter>;

/// What painters keep from one drawing to the next: the fonts, and each picture as drawn at its scale.
class PainterCache {
 public:
  PainterCache();

  /// The text laid out at that scale. The layout is good until the next call.
  PangoLayout* layout(std::string_view text, const Font& font, double scale);

  PictureCache<Owned<cairo_surface_t>> pictures;

 private:
  Owned<PangoContext> context_;
  Owned<PangoLayout> layout_;
};

/// Draws on a Cairo surface, with that many device pixels to a pixel of the room.
class CairoPainter : public Painter {
 public:
  CairoPainter(cairo_surface_t* target, double scale, PainterCache& cache);

  /// The picture at that scale, from the cache. It is good until the next call.
  static cairo_surface_t* drawn(const PictureId& picture, double scale, PainterCache& cache);

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
  void fill(const PixelGrid::Area& area);
  void ink(Rgb colour);
  void trace(std::span<const Vec> points);

  Owned<cairo_t> cairo_;
  PainterCache& cache_;
  PixelGrid grid_;
};

}  // namespace tombolario
