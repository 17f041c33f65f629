#pragma once

#include <map>
#include <string_view>
#include <utility>

#include "desktop/cairo_owned.hpp"
#include "toolkit/canvas.hpp"

namespace tombolario {

/// A font of the system, its letters as outlines: nothing of it depends on a scale. Lengths are ems.
class CairoFont {
 public:
  /// The first of the families that there is.
  CairoFont(const char* families, int weight);

  double width(std::string_view text) const;
  double capHeight() const;
  /// Adds the outlines of one line of UTF-8 text to the path of the context; none where the text or the font
  /// is broken.
  void trace(cairo_t* context, std::string_view text, const Typeface& face, Vec start);

 private:
  const cairo_path_t* outline(unsigned long glyph);

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

}  // namespace tombolario
