#pragma once

#include <cstddef>
#include <cstring>
#include <set>

#include "desktop/cairo_canvas.hpp"
#include "toolkit/painter.hpp"

namespace tombolario {

/// A surface of that size at that scale, to draw on and to look at.
template <class Kind = CairoCanvas>
class Sheet {
 public:
  Sheet(Size size, double scale)
      : canvas_(deviceSize(size, scale), fonts_), painter(canvas_, scale, pictures_) {}
  /// With a picture on all of it.
  Sheet(const PictureId& picture, double scale) : Sheet(picture.size(), scale) {
    painter.drawing(picture, {0, 0, double(picture.size().width), double(picture.size().height)});
  }

  Rgb pixel(int x, int y) const {
    std::uint32_t value = 0;
    std::memcpy(&value, row(y) + std::ptrdiff_t{4} * x, sizeof value);
    return value & 0xFFFFFF;
  }
  int width() const { return cairo_image_surface_get_width(canvas_.surface()); }
  int height() const { return cairo_image_surface_get_height(canvas_.surface()); }
  std::set<Rgb> colours() const {
    std::set<Rgb> found;
    for (int y = 0; y < height(); ++y) {
      for (int x = 0; x < width(); ++x) found.insert(pixel(x, y));
    }
    return found;
  }

 private:
  const unsigned char* row(int y) const {
    const std::ptrdiff_t stride = cairo_image_surface_get_stride(canvas_.surface());
    return cairo_image_surface_get_data(canvas_.surface()) + y * stride;
  }

  CairoFonts fonts_;
  Kind canvas_;
  PictureCache pictures_;

 public:
  Painter painter;
};

}  // namespace tombolario
