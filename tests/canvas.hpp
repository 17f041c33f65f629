#pragma once

#include <cmath>
#include <cstddef>
#include <cstring>
#include <set>

#include "desktop/cairo_painter.hpp"

namespace tombolario {

/// A surface of that size at that scale, to draw on and to look at.
class Canvas {
 public:
  Canvas(Size size, double scale)
      : surface_(cairo_image_surface_create(CAIRO_FORMAT_RGB24,
                                            static_cast<int>(std::lround(size.width * scale)),
                                            static_cast<int>(std::lround(size.height * scale)))),
        painter(surface_.get(), scale, cache_) {}

  Rgb pixel(int x, int y) const {
    cairo_surface_flush(surface_.get());
    std::uint32_t value = 0;
    std::memcpy(&value, row(y) + std::ptrdiff_t{4} * x, sizeof value);
    return value & 0xFFFFFF;
  }
  int width() const { return cairo_image_surface_get_width(surface_.get()); }
  int height() const { return cairo_image_surface_get_height(surface_.get()); }
  std::set<Rgb> colours() const {
    std::set<Rgb> found;
    for (int y = 0; y < height(); ++y) {
      for (int x = 0; x < width(); ++x) found.insert(pixel(x, y));
    }
    return found;
  }

 private:
  const unsigned char* row(int y) const {
    const std::ptrdiff_t stride = cairo_image_surface_get_stride(surface_.get());
    return cairo_image_surface_get_data(surface_.get()) + y * stride;
  }

  PainterCache cache_;
  Owned<cairo_surface_t> surface_;

 public:
  CairoPainter painter;
};

}  // namespace tombolario
