#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "desktop/cairo_fonts.hpp"
#include "desktop/cairo_owned.hpp"
#include "toolkit/canvas.hpp"

namespace tombolario {

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
  double textWidth(std::string_view text, const Typeface& face) override {
    return fonts_.find(face).width(text) * face.em;
  }
  double capHeight(const Typeface& face) override { return fonts_.find(face).capHeight() * face.em; }
  void copy(Canvas& from, Vec at) override;
  void clip(const Rect& rect) override;
  void unclip() override { cairo_restore(cairo_.get()); }

 private:
  void ink(Rgb colour);
  void trace(std::span<const Vec> points);

  Owned<cairo_surface_t> surface_;
  Owned<cairo_t> cairo_;  // until it is copied from
  CairoFonts& fonts_;
};

}  // namespace tombolario
