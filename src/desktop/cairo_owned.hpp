#pragma once

#include <cairo.h>

#include <memory>

namespace tombolario {

struct CairoDeleter {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_scaled_font_t* font) const { cairo_scaled_font_destroy(font); }
  void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
  void operator()(cairo_path_t* path) const { cairo_path_destroy(path); }
};
template <class Object>
using Owned = std::unique_ptr<Object, CairoDeleter>;

}  // namespace tombolario
