#pragma once

#include <cairo.h>

#include <map>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "toolkit/canvas.hpp"

namespace tombolario {

struct CairoDeleter {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_scaled_font_t* font) const { cairo_scaled_font_destroy(font); }
  void operator()(cairo_path_t* path) const { cairo_path_destroy(path); }
};
template <class Object>
using Owned = std::unique_ptr<Object, CairoDeleter>;

/// A font of the system, its letters as outlines: nothing of it depends on a scale. Lengths are ems.
class CairoFont {
 public:
  /// The first of the families that there is.
  CairoFont(const char* families, int weight);

  struct Letter {
    unsigned long glyph;
    double x;  ///< where it begins
  };
  /// One line of UTF-8 text, letter by letter; none where the text or the font is broken.
  std::vector<Letter> letters(std::string_view text) const;
  double width(std::string_view text) const;
  double capHeight() const;
  /// Adds the outline of a letter, 256 pixels an em, to the path of the context, from the context's origin
  /// on.
  void trace(cairo_t* context, unsigned long glyph);

 private:
  Owned<cairo_scaled_font_t> font_;
  std::map<unsigned long, Owned<cairo_path_t>> outlines_;
};

/// The fonts of canvases, which are kept from one drawing to the next.
class CairoFonts {
 public:
  CairoFont& find(const Typeface& face);

 private:
  std::map<std::pair<std::string_view, int>, CairoFont> fonts_;
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
