#include "driver/cairo_camera.hpp"

namespace tombolario {

namespace {

bool save(cairo_surface_t* surface, const std::string& file) {
  return cairo_surface_write_to_png(surface, file.c_str()) == CAIRO_STATUS_SUCCESS;
}

}  // namespace

bool CairoCamera::shoot(Form& form, const std::string& file, double scale) {
  const auto pixels = [scale](int twips) {
    return devicePixels(static_cast<double>(twips) / kTwipsPerPixel, scale);
  };
  const Owned<cairo_surface_t> surface(
      cairo_image_surface_create(CAIRO_FORMAT_RGB24, pixels(form.Width), pixels(form.Height)));
  CairoPainter painter(surface.get(), scale, cache_);
  form.paint(painter);
  return save(surface.get(), file);
}

bool CairoCamera::shoot(const PictureId& picture, const std::string& file, double scale) {
  return save(CairoPainter::drawn(picture, scale, cache_), file);
}

}  // namespace tombolario
