#pragma once

#include <cairo.h>
#include <pango/pangocairo.h>

#include <memory>

#include "toolkit/canvas.hpp"

namespace tombolario {

struct CairoDeleter {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
  void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
  template <class Object>
  void operator()(Object* object) const {
    g_object_unref(object);
  }
};
template <class Object>
using Owned = std::unique_ptr<Object, CairoDeleter>;

/// The fonts of canvases, which are kept from one drawing to the next.
class CairoFonts {
 public:
  CairoFonts();

  /// The text laid out in that face. The layout is good until the next call.
  PangoLayout* layout(std::string_view text, const Typeface& face);

 private:
  Owned<PangoContext> context_;
  Owned<PangoLayout> layout_;
  Typeface face_{};  // of the layout
};

/// A Cairo surface to draw on.
class CairoCanvas : public Canvas {
 public:
  CairoCanvas(Owned<cairo_surface_t> surface, CairoFonts& fonts);
  /// A transparent image.
  CairoCanvas(Size size, CairoFonts& fonts);

  /// What has been drawn.
  cairo_surface_t* surface() const;

  std::unique_ptr<Canvas> make(Size size) override { return std::make_unique<CairoCanvas>(size, fonts_); }
  void startAt(Vec origin) override;
  void fillRect(const Rect& rect, Rgb colour) override;
  void fillPolygon(std::span<const Vec> points, Rgb colour) override;
  void fillPolygon(std::span<const Vec> points, const Gradient& gradient) override;
  void strokePolygon(std::span<const Vec> points, Rgb colour, double width) override;
  void fillEllipse(Vec centre, Vec radii, Rgb colour) override;
  void line(Vec from, Vec to, Rgb colour, double width) override;
  void text(std::string_view text, const Typeface& face, Vec start, Rgb colour) override;
  double textWidth(std::string_view text, const Typeface& face) override;
  void copy(Canvas& from, Vec at) override;
  void veil(Rgb colour) override;
  void clip(const Rect& rect) override;
  void unclip() override { cairo_restore(cairo_.get()); }

 private:
  void ink(Rgb colour, double opacity = 1);
  void trace(std::span<const Vec> points);

  Owned<cairo_surface_t> surface_;
  Owned<cairo_t> cairo_;  // until it is copied from
  CairoFonts& fonts_;
};

}  // namespace tombolario
