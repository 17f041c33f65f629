#include "desktop/camera.hpp"

#include <cmath>

namespace tombolario {

namespace {

bool save(cairo_surface_t* surface, const std::string& file) {
  return cairo_surface_write_to_png(surface, file.c_str()) == CAIRO_STATUS_SUCCESS;
}

}  // namespace

bool CairoCamera::shoot(Form& form, const std::string& file, double scale) {
  const double unit = kTwipsPerPixel;
  const Owned<cairo_surface_t> surface(
      cairo_image_surface_create(CAIRO_FORMAT_RGB24, static_cast<int>(std::lround(form.Width / unit * scale)),
                                 static_cast<int>(std::lround(form.Height / unit * scale))));
  CairoPainter painter(surface.get(), scale, cache_);
  form.paint(painter);
  return save(surface.get(), file);
}

bool CairoCamera::shoot(const PictureId& picture, const std::string& file, double scale) {
  return save(cache_.picture(picture, scale), file);
}

}  // namespace tombolario
