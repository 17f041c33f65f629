#pragma once

#include <cairo.h>
#include <pango/pangocairo.h>

#include <cstddef>
#include <map>
#include <memory>
#include <tuple>
#include <utility>
#include <vector>

#include "shell/painter.hpp"
#include "shell/picture.hpp"

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

  /// A drawing at that scale begins; what was kept for a drawing at another scale is dropped.
  void begin(double scale);
  /// The picture at that scale (device pixels to a pixel). It is good until the next call.
  cairo_surface_t* picture(const PictureId& picture, double scale);
  /// The text laid out at that scale. The layout is good until the next call.
  PangoLayout* layout(std::string_view text, const Font& font, double scale);

 private:
  using Key = std::pair<PictureId, double>;  // a picture and its scale
  struct Before {
    bool operator()(const Key& a, const Key& b) const {
      return std::tuple(&a.first.store(), a.first.index(), a.second) <
             std::tuple(&b.first.store(), b.first.index(), b.second);
    }
  };

  Owned<PangoContext> context_;
  Owned<PangoLayout> layout_;
  std::map<Key, Owned<cairo_surface_t>, Before> pictures_;
  std::size_t bytes_ = 0;
  double scale_ = 0;  // of the drawing
  int inner_ = 0;     // pictures that are being drawn for it
};

/// Draws on a Cairo surface, with that many device pixels to a pixel of the room.
class CairoPainter : public Painter {
 public:
  CairoPainter(cairo_surface_t* target, double scale, PainterCache& cache);

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
  /// A rectangle in whole device pixels.
  struct Area {
    double left, top, right, bottom;
  };
  Area area(const Rect& rect) const;
  Vec device(Vec point) const;
  void fill(const Area& area);
  void ink(Rgb colour);
  void trace(std::span<const Vec> points);

  /// A place that was entered. Origins are whole device pixels: what is drawn inside lies alike everywhere.
  struct Place {
    Vec origin;
    double scale;
  };
  double scale() const { return places_.back().scale; }

  Owned<cairo_t> cairo_;
  PainterCache& cache_;
  std::vector<Place> places_;
};

}  // namespace tombolario
