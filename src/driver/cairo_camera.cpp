#include "driver/cairo_camera.hpp"

namespace tombolario {

namespace {

bool save(const CairoCanvas& canvas, const std::string& file) {
  return cairo_surface_write_to_png(canvas.surface(), file.c_str()) == CAIRO_STATUS_SUCCESS;
}

}  // namespace

bool CairoCamera::shoot(Form& form, const std::string& file, double scale) {
  const Size size = deviceSize({form.Width / kTwipsPerPixel, form.Height / kTwipsPerPixel}, scale);
  CairoCanvas canvas(
      Owned<cairo_surface_t>(cairo_image_surface_create(CAIRO_FORMAT_RGB24, size.width, size.height)),
      fonts_);
  Painter painter(canvas, scale, pictures_);
  form.paint(painter);
  return save(canvas, file);
}

bool CairoCamera::shoot(const PictureId& picture, const std::string& file, double scale) {
  CairoCanvas canvas(deviceSize(picture.size(), scale), fonts_);
  drawAlone(picture, canvas, scale);
  return save(canvas, file);
}

}  // namespace tombolario
